<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>No se encuentra esta unidad, así que no hay nada que responder.</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>Un cuestionario necesita %1 frases y aquí hay menos, así que no hay nada que responder.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Puntuación</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Fin</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>Prueba de la unidad</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Repetir</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>Reproducir cada</translation>
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
        <translation>Escucha y elige</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Reproducir la frase</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Enviar</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>Escucha y escribe</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Reproducir la frase</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>Escribe lo que oyes</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Enviar</translation>
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
        <translation>Mi perfil</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Experiencia</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n frase</numerusform>
            <numerusform>%n frases</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>Acceso al micrófono denegado</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir ajustes</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>Leer en voz alta</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Enviar</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>Ver huella de voz</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>Mantén pulsado para hablar.</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>Frase anterior</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>Mostrar el alemán</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>Ocultar el alemán</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>Escribir la frase</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Frase siguiente</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Repetir</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>No se puede grabar tu voz: no hay ninguna carpeta donde guardarla.</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>Escribe lo que oyes</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>Escribe la frase</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>Escucha y elige</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>Escucha y escribe</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>Ordena las palabras</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>Leer en voz alta</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Alemán → español</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Español → alemán</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>Prueba de la unidad</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Valorar Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>Si disfrutas aprendiendo con Tolvane, ¿podrías dedicar un momento a valorarla? ¡Gracias por tu apoyo!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Valorar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>No, gracias</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>sin evaluar</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>bien oída</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>poco clara</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>falta</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>Mantén para hablar</translation>
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
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Escucha</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>Velocidad de reproducción</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>Lengua materna</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Pruebas</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>Duración de la prueba</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Caché</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Valorar Tolvane</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
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
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Escucha</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>Ahora tú</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Evaluando</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>¡Muy bien!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>No se oyó ninguna voz en tu grabación.</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>No se puede comparar esta frase: no se pudo crear su modelo de voz.</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>No se encuentra tu grabación.</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>Tu grabación está vacía.</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>No se pudo leer tu grabación o dura más de un minuto.</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>No se pudo leer la voz original.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Puntuación</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>Voz original</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>Mi voz</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>Duración de la prueba</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n segundo</numerusform>
            <numerusform>%n segundos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>Mi perfil</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Experiencia</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>Cómo se ganó</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>Inicios</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>Escuchas</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>Escrituras</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>Lecturas</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>Pruebas hechas</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>Puntos de pruebas</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>Valoración</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>Tu archivo de progreso estaba dañado, así que Tolvane volvió a la copia que guardaba. Como mucho falta tu último paso.</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>Tu archivo de progreso estaba dañado, así que Tolvane lo reparó: se conserva todo lo que pudo leer. El archivo dañado se guarda como %1.</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>Tu archivo de progreso estaba dañado y no quedaba ninguna copia buena, así que Tolvane empezó tu progreso de nuevo. El archivo dañado se guarda como %1.</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>No hay micrófono.</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>El micrófono se desconectó antes de que dijeras nada. Vuelve a grabar.</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>No se puede crear la carpeta de grabaciones %1.</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>Frase anterior</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Más lento</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Más rápido</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Frase siguiente</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Modo de repetición</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>No se detectó voz</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>No se detectaron palabras correctas</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>Algún problema en el orden de las palabras</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Más lento</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Más rápido</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Alemán → español</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Español → alemán</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Enviar</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>Ordena las palabras</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>Arrastra la palabra para cambiar su orden.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Enviar</translation>
    </message>
</context>
</TS>
