<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>Cette unité est introuvable : il n’y a aucune question.</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>Un quiz demande %1 phrases et il y en a moins ici : il n’y a aucune question.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>Quiz de l’unité</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Répéter</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>Lire chaque</translation>
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
        <translation>Écouter et choisir</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Lire la phrase</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Valider</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>Écouter et écrire</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Lire la phrase</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>Tapez ce que vous entendez</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Valider</translation>
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
        <translation>Mon profil</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Expérience</translation>
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
        <translation>Catégories</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n phrase</numerusform>
            <numerusform>%n phrases</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>Accès au micro refusé</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Ouvrir les réglages</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>Lire à voix haute</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Valider</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>Voir l’empreinte vocale</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>Maintenez appuyé pour parler.</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>Phrase précédente</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>Afficher l’allemand</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>Masquer l’allemand</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>Écrire la phrase</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Phrase suivante</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Répéter</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>Impossible d’enregistrer votre voix : aucun dossier pour la conserver.</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>Écrivez ce que vous entendez</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>Tapez la phrase</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Valider</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Recommencer</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>Écouter et choisir</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>Écouter et écrire</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>Remettre les mots en ordre</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>Lire à voix haute</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Allemand → français</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Français → allemand</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Quiz</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>Quiz de l’unité</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Noter Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>Si vous aimez apprendre avec Tolvane, prendriez-vous un instant pour le noter ? Merci de votre soutien !</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Noter</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>Non merci</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>non évalué</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>bien entendu</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>peu clair</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>manquant</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>Maintenir pour parler</translation>
    </message>
</context>
<context>
    <name>ScoreText</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>SettingPage</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Écoute</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>Vitesse de lecture</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>Langue maternelle</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Quiz</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>Durée du quiz</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n seconde</numerusform>
            <numerusform>%n secondes</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Cache</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Envoyer un avis</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Noter Tolvane</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>Répéter</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Écoutez</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>À vous</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>Bravo !</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>Aucune voix n’a été entendue dans votre enregistrement.</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>Impossible de comparer cette phrase : son modèle vocal n’a pas pu être créé.</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>Votre enregistrement est introuvable.</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>Votre enregistrement est vide.</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>Votre enregistrement est illisible ou dure plus d’une minute.</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>La voix d’origine est illisible.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Score</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>Voix d’origine</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>Ma voix</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>Durée du quiz</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n seconde</numerusform>
            <numerusform>%n secondes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>Mon profil</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Expérience</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>Comment elle a été gagnée</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>Lancements</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>Écoutes</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>Écritures</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>Lectures</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>Quiz faits</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>Points des quiz</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>Avis donné</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>Votre fichier de progression était endommagé : Tolvane a repris la copie conservée. Il manque au plus votre dernière étape.</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>Votre fichier de progression était endommagé : Tolvane l’a réparé en gardant tout ce qu’il a pu lire. Le fichier endommagé est conservé sous le nom %1.</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>Votre fichier de progression était endommagé et aucune copie valide ne restait : Tolvane a repris votre progression à zéro. Le fichier endommagé est conservé sous le nom %1.</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>Aucun micro n’est branché.</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>Le micro a été débranché avant que vous ayez parlé. Veuillez enregistrer à nouveau.</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>Impossible de créer le dossier d’enregistrement %1.</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>Phrase précédente</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Plus lent</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Lecture ou pause</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Plus rapide</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Phrase suivante</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Mode de répétition</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>Aucune voix détectée</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>Aucun mot correct détecté</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>Petit problème dans l’ordre des mots</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Plus lent</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Lecture ou pause</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Plus rapide</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Allemand → français</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Français → allemand</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Valider</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>Remettre les mots en ordre</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>Faites glisser le mot pour le déplacer.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Valider</translation>
    </message>
</context>
</TS>
