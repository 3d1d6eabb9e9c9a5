<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>找不到這個單元，因此沒有可作答的題目。</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>測驗需要 %1 個片語，這裡的片語不夠，因此沒有可作答的題目。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>分數</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>結束</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>單元測驗</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>跟讀</translation>
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
        <translation>間隔</translation>
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
        <translation>聽音選擇</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>播放片語</translation>
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
        <translation>聽寫</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>播放片語</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>輸入你聽到的內容</translation>
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
        <translation>使用者資訊</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>經驗值</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>測驗</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>分類</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n 個片語</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>麥克風存取遭拒</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>開啟設定</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>朗讀片語</translation>
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
        <translation>顯示聲紋</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>按住說話。</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>上一個片語</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>顯示德文原文</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>隱藏德文原文</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>書寫片語</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>下一個片語</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>跟讀</translation>
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
        <translation>無法錄音：沒有可儲存錄音的資料夾。</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>寫下你聽到的內容</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>輸入片語</translation>
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
        <translation>聽音選擇</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>聽寫</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>單字排序</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>朗讀片語</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>德文 → 中文</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>中文 → 德文</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>測驗</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>單元測驗</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>評分 Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>如果你喜歡用 Tolvane 學習，能否花一點時間為它評分？感謝你的支持！</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>去評分</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍後</translation>
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
        <translation>未評判</translation>
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
        <translation>缺漏</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>按住說話</translation>
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
        <translation>設定</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>聽力</translation>
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
        <translation>母語</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>測驗</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>測驗時間</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n 秒</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>儲存空間</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>快取</translation>
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
        <translation>關於</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>傳送意見回饋</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>評分 Tolvane</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>跟讀</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>聽</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>輪到你了</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>評分中</translation>
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
        <translation>你的錄音中沒有聽到聲音。</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>無法比較這個片語：無法建立它的語音模型。</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>找不到你的錄音。</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>你的錄音是空的。</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>無法讀取你的錄音，或錄音超過一分鐘。</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>無法讀取原聲。</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>分數</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>原聲</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>我的聲音</translation>
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
        <translation>測驗時間</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
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
        <translation>使用者資訊</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>經驗值</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>獲得方式</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>啟動 App</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>聽</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>寫</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>讀</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>測驗次數</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>測驗分數</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>評分 App</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>你的學習紀錄檔案已損毀，Tolvane 已還原為保留的副本。最多只遺失最後一步。</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>你的學習紀錄檔案已損毀，Tolvane 已將其修復：能讀取的內容全部保留。損毀的檔案保存為 %1。</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>你的學習紀錄檔案已損毀且沒有可用的副本，Tolvane 已重新開始紀錄。損毀的檔案保存為 %1。</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>沒有麥克風。</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>你還沒開口，麥克風就中斷了。請重新錄音。</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>無法建立錄音資料夾 %1。</translation>
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
        <translation>上一個片語</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>減速</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暫停</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>加速</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>下一個片語</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>重複模式</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>未偵測到聲音</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>未偵測到正確的單字</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>詞序有點問題</translation>
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
        <translation>減速</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暫停</translation>
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
        <translation>關閉</translation>
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
        <translation>德文 → 中文</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>中文 → 德文</translation>
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
        <translation>單字排序</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>拖曳單字調整順序。</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>提交</translation>
    </message>
</context>
</TS>
