<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>Diese Lektion wurde nicht gefunden, daher gibt es nichts zu beantworten.</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>Ein Quiz braucht %1 Sätze, hier sind es weniger – daher gibt es nichts zu beantworten.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Vorbei</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>Lektionsquiz</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Nachsprechen</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>Jeden Satz</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation>Hören und wählen</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Satz abspielen</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Absenden</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>Hören und schreiben</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Satz abspielen</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>Schreib, was du hörst</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Absenden</translation>
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
        <translation>Mein Profil</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Erfahrung</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Quiz</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategorien</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n Satz</numerusform>
            <numerusform>%n Sätze</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>Kein Zugriff auf das Mikrofon</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>Satz vorlesen</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Absenden</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>Stimmprofil zeigen</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>Zum Sprechen gedrückt halten.</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>Vorheriger Satz</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>Deutschen Text zeigen</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>Deutschen Text ausblenden</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>Satz schreiben</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Nächster Satz</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Nachsprechen</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>Deine Stimme kann nicht aufgenommen werden: Es gibt keinen Ordner zum Speichern.</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>Schreib, was du hörst</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>Satz eingeben</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Absenden</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>Hören und wählen</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>Hören und schreiben</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>Wörter ordnen</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>Satz vorlesen</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Fremdsprache → Muttersprache</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Muttersprache → Fremdsprache</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Quiz</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>Lektionsquiz</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Tolvane bewerten</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>Lernst du gern mit Tolvane? Dann nimm dir doch einen Moment für eine Bewertung. Danke für deine Unterstützung!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Bewerten</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>Nein, danke</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>nicht bewertet</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>gut verstanden</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>undeutlich</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>Zum Sprechen halten</translation>
    </message>
</context>
<context>
    <name>ScoreText</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingPage</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Hören</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>Wiedergabetempo</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>Muttersprache</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Quiz</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>Quizdauer</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Tolvane bewerten</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>Nachsprechen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Zuhören</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>Jetzt du</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Wird geprüft</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>Gut gemacht!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>In deiner Aufnahme war keine Stimme zu hören.</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>Dieser Satz kann nicht verglichen werden: Sein Sprachmodell ließ sich nicht erstellen.</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>Deine Aufnahme wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>Deine Aufnahme ist leer.</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>Deine Aufnahme ist nicht lesbar oder länger als eine Minute.</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>Die Originalstimme ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Punkte</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>Originalstimme</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>Meine Stimme</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>Quizdauer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>Mein Profil</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Erfahrung</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>So hast du sie gesammelt</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>App-Starts</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>Gehört</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>Gesprochen</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>Quizrunden</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>Quizpunkte</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>Bewertung</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>Deine Fortschrittsdatei war beschädigt, daher hat Tolvane die aufbewahrte Kopie genommen. Höchstens dein letzter Schritt fehlt.</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>Deine Fortschrittsdatei war beschädigt, daher hat Tolvane sie repariert: Alles Lesbare bleibt erhalten. Die beschädigte Datei liegt als %1 bereit.</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>Deine Fortschrittsdatei war beschädigt und es gab keine gute Kopie mehr, daher beginnt dein Fortschritt neu. Die beschädigte Datei liegt als %1 bereit.</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>Es ist kein Mikrofon da.</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>Das Mikrofon war weg, bevor du etwas gesagt hast. Bitte nimm noch einmal auf.</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>Der Aufnahmeordner %1 kann nicht angelegt werden.</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>Vorheriger Satz</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Nächster Satz</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Wiederholmodus</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>Keine Stimme erkannt</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>Keine richtigen Wörter erkannt</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>Kleine Probleme bei der Wortfolge</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Langsamer</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Schneller</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Fremdsprache → Muttersprache</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Muttersprache → Fremdsprache</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Absenden</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>Wörter ordnen</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>Zieh das Wort an seinen Platz.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Absenden</translation>
    </message>
</context>
</TS>
