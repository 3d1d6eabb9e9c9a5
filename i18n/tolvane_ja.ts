<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>このユニットが見つからないため、出題できません。</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>クイズには%1個のフレーズが必要ですが、ここには足りないため出題できません。</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進捗</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>スコア</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>ユニットクイズ</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>シャドーイング</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>再生回数</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1回</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1秒</translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation>聞いて選ぶ</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>フレーズを再生</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>回答</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>聞いて書く</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>フレーズを再生</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>聞こえた文を入力</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>回答</translation>
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
        <translation>ユーザー情報</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>経験値</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>クイズ</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>カテゴリ</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%nフレーズ</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>マイクへのアクセスが拒否されました</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>設定を開く</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>フレーズを読む</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>回答</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>声紋を表示</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>長押ししながら話してください。</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>前のフレーズ</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>ドイツ語を表示</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>ドイツ語を隠す</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>フレーズを書く</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>次のフレーズ</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>シャドーイング</translation>
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
        <translation>録音を保存するフォルダがないため、録音できません。</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>聞こえたとおりに書く</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>フレーズを入力</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>回答</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>聞いて選ぶ</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>聞いて書く</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>単語の並べ替え</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>フレーズを読む</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>ドイツ語 → 日本語</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>日本語 → ドイツ語</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>クイズ</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>ユニットクイズ</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Tolvaneを評価</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>Tolvaneでの学習を楽しんでいただけているなら、少しだけ評価にご協力いただけませんか？ご支援ありがとうございます！</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>評価する</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>今はしない</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>判定なし</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>よく聞き取れた</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>不明瞭</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>聞き取れず</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>長押しで話す</translation>
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
        <translation>リスニング</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>再生速度</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1倍</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>母語</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>クイズ</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>テスト時間</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n秒</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>ストレージ</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>キャッシュ</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>フィードバックを送信</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Tolvaneを評価</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>シャドーイング</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>聞いて</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>あなたの番です</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>判定中</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>よくできました！</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>録音から声が聞こえませんでした。</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>音声モデルを作成できなかったため、このフレーズは比較できません。</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>録音が見つかりません。</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>録音が空です。</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>録音を読み込めないか、1分より長すぎます。</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>お手本の音声を読み込めませんでした。</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>スコア</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>お手本の声</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>自分の声</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>テスト時間</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n秒</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>ユーザー情報</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>経験値</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>獲得の内訳</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>アプリ起動</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>聞いた回数</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>書いた回数</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>読んだ回数</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>クイズ回数</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>クイズの得点</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>アプリの評価</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>学習記録のファイルが壊れていたため、保存しておいたコピーに戻しました。失われたのは最後の1回分までです。</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>学習記録のファイルが壊れていたため修復しました。読み取れた内容はすべて残っています。壊れたファイルは%1として保存してあります。</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>学習記録のファイルが壊れていて正常なコピーもなかったため、記録を最初からやり直しました。壊れたファイルは%1として保存してあります。</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>マイクがありません。</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>話し始める前にマイクが外れました。もう一度録音してください。</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>録音フォルダ%1を作成できません。</translation>
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
        <translation>前のフレーズ</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>遅く</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>再生／一時停止</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>速く</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>次のフレーズ</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>リピートモード</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>声が検出されませんでした</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>正しい単語が検出されませんでした</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>語順に少し問題があります</translation>
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
        <translation>遅く</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>再生／一時停止</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>速く</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>ドイツ語 → 日本語</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>日本語 → ドイツ語</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>回答</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>単語の並べ替え</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>単語をドラッグして並べ替えてください。</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>回答</translation>
    </message>
</context>
</TS>
