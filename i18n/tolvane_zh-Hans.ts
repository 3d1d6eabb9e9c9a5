<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>找不到该单元，因此没有可回答的题目。</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>测验需要 %1 个短语，这里的短语不够，因此没有可回答的题目。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>得分</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>结束</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>单元测验</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>跟读</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>每句播放</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1 次</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>间隔</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation>听音选择</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>播放短语</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>听写</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>播放短语</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>输入你听到的内容</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tolvane</source>
        <translation>Tolvane</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Tolvane</source>
        <translation>Tolvane</translation>
    </message>
    <message>
        <source>User Info</source>
        <translation>用户信息</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>经验值</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>测验</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>分类</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n 个短语</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>麦克风访问被拒绝</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>打开设置</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>朗读短语</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>显示声纹</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>按住说话。</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>上一个短语</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>显示德语原文</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>隐藏德语原文</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>书写短语</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>下一个短语</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>跟读</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>无法录音：没有用于保存录音的文件夹。</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>写下你听到的内容</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>输入短语</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>听音选择</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>听写</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>单词排序</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>朗读短语</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>德语 → 中文</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>中文 → 德语</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>测验</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>单元测验</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>评价 Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>如果你喜欢用 Tolvane 学习，能否花一点时间为它评分？感谢你的支持！</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>去评分</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>不用了</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>未评判</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>清晰</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>不清楚</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>缺失</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>按住说话</translation>
    </message>
</context>
<context>
    <name>ScoreText</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>SettingPage</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>听力</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>播放速度</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1 倍</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>母语</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>测验</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>测验时长</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n 秒</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>缓存</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>发送反馈</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>评价 Tolvane</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>跟读</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>听</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>轮到你了</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>正在评分</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>做得好！</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>你的录音中没有听到声音。</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>无法比较这个短语：未能生成它的语音模型。</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>找不到你的录音。</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>你的录音是空的。</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>无法读取你的录音，或录音超过一分钟。</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>无法读取原声。</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>得分</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>原声</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>我的声音</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>测验时长</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n 秒</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>用户信息</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>经验值</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>获得方式</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>启动应用</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>听</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>写</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>读</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>测验次数</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>测验得分</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>评价应用</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>你的学习记录文件已损坏，Tolvane 已恢复为保存的副本。最多只丢失最后一步。</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>你的学习记录文件已损坏，Tolvane 已将其修复：能读取的内容全部保留。损坏的文件保存为 %1。</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>你的学习记录文件已损坏且没有可用的副本，Tolvane 已重新开始记录。损坏的文件保存为 %1。</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>没有麦克风。</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>你还没开口，麦克风就断开了。请重新录音。</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>无法创建录音文件夹 %1。</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>上一个短语</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>减速</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暂停</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>加速</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>下一个短语</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>重复模式</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>未检测到声音</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>未检测到正确的单词</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>词序有点问题</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>减速</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暂停</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>加速</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>德语 → 中文</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>中文 → 德语</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>单词排序</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>拖动单词调整顺序。</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
</context>
</TS>
