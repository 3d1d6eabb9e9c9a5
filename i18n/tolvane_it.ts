<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>Impossibile trovare questa unità: non c’è nulla a cui rispondere.</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>Un quiz richiede %1 frasi e qui ce ne sono meno: non c’è nulla a cui rispondere.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Punteggio</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Finito</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>Quiz dell’unità</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ripeti</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>Riproduci ogni</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
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
        <translation>Ascolta e scegli</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Riproduci la frase</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Invia</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>Ascolta e scrivi</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Riproduci la frase</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>Scrivi ciò che senti</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Invia</translation>
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
        <translation>Il mio profilo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Esperienza</translation>
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
        <translation>Categorie</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n frase</numerusform>
            <numerusform>%n frasi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>Accesso al microfono negato</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Apri impostazioni</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>Leggi ad alta voce</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Invia</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>Mostra impronta vocale</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>Tieni premuto per parlare.</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>Frase precedente</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>Mostra il tedesco</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>Nascondi il tedesco</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>Scrivi la frase</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Frase successiva</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ripeti</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>Impossibile registrare la tua voce: non c’è una cartella in cui salvarla.</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>Scrivi ciò che senti</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>Scrivi la frase</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rifai</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>Ascolta e scegli</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>Ascolta e scrivi</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>Riordina le parole</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>Leggi ad alta voce</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Tedesco → italiano</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Italiano → tedesco</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Quiz</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>Quiz dell’unità</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Valuta Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>Se ti piace imparare con Tolvane, ti va di dedicare un momento a valutarla? Grazie per il tuo sostegno!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Valuta</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>No, grazie</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>non valutata</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>sentita bene</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>poco chiara</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>mancante</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>Tieni premuto per parlare</translation>
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
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Ascolto</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>Velocità di riproduzione</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>Lingua madre</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Quiz</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>Durata del quiz</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n secondo</numerusform>
            <numerusform>%n secondi</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Archiviazione</translation>
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
        <translation>Svuota</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Invia un commento</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Valuta Tolvane</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Ascolta</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>Ora tu</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Valutazione</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>Ottimo lavoro!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>Nella tua registrazione non si sente nessuna voce.</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>Impossibile confrontare questa frase: non è stato possibile creare il suo modello vocale.</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>Impossibile trovare la tua registrazione.</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>La tua registrazione è vuota.</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>Impossibile leggere la tua registrazione, oppure dura più di un minuto.</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>Impossibile leggere la voce originale.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Punteggio</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>Voce originale</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>La mia voce</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>Durata del quiz</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n secondo</numerusform>
            <numerusform>%n secondi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>Il mio profilo</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Esperienza</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>Come è stata guadagnata</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>Avvii</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>Ascolti</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>Scritture</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>Letture</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>Quiz svolti</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>Punti nei quiz</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>Valutazione</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>Il file dei tuoi progressi era danneggiato, quindi Tolvane è tornata alla copia conservata. Manca al massimo il tuo ultimo passo.</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>Il file dei tuoi progressi era danneggiato, quindi Tolvane lo ha riparato: tutto ciò che ha potuto leggere è conservato. Il file danneggiato è salvato come %1.</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>Il file dei tuoi progressi era danneggiato e non restava una copia valida, quindi Tolvane ha ricominciato i tuoi progressi. Il file danneggiato è salvato come %1.</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>Non c’è nessun microfono.</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>Il microfono si è scollegato prima che dicessi qualcosa. Registra di nuovo.</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>Impossibile creare la cartella delle registrazioni %1.</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>Frase precedente</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Più lento</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Riproduci o metti in pausa</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Più veloce</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Frase successiva</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Modalità ripetizione</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>Nessuna voce rilevata</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>Nessuna parola corretta rilevata</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>Qualche problema nell’ordine delle parole</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Più lento</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Riproduci o metti in pausa</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Più veloce</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Tedesco → italiano</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Italiano → tedesco</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Invia</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>Riordina le parole</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>Trascina la parola per spostarla.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Invia</translation>
    </message>
</context>
</TS>
