<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Score</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1×</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Tolvane</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Tolvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>User Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Experience</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Later</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>heard well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unclear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>missing</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingPage</name>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listening</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Score</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Experience</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Review App</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faster</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slower</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Faster</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Submit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
