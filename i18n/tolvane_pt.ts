<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>Esta unidade não foi encontrada, por isso não há nada para responder.</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>Um teste precisa de %1 frases e aqui há menos, por isso não há nada para responder.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Pontuação</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Fim</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>Teste da unidade</translation>
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
        <translation>Tocar cada</translation>
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
        <translation>Ouvir e escolher</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Tocar a frase</translation>
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
        <translation>Ouvir e escrever</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Tocar a frase</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>Digite o que você ouve</translation>
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
        <translation>Meu perfil</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Experiência</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Testes</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorias</translation>
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
        <translation>Acesso ao microfone negado</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Abrir configurações</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>Ler em voz alta</translation>
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
        <translation>Ver impressão de voz</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>Toque e segure para falar.</translation>
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
        <translation>Mostrar o alemão</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>Ocultar o alemão</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Tocar</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>Escrever a frase</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Próxima frase</translation>
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
        <translation>Não é possível gravar sua voz: não há pasta para guardá-la.</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>Escreva o que você ouve</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>Digite a frase</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>Ouvir e escolher</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>Ouvir e escrever</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>Ordenar palavras</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>Ler em voz alta</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Alemão → português</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Português → alemão</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Testes</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>Teste da unidade</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Avaliar o Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>Se você gosta de aprender com o Tolvane, pode reservar um momento para avaliá-lo? Obrigado pelo apoio!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Avaliar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>Não, obrigado</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>não avaliada</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>bem ouvida</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>pouco clara</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>faltando</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>Segure para falar</translation>
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
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Audição</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>Velocidade de reprodução</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>Língua materna</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Testes</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>Duração do teste</translation>
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
        <translation>Armazenamento</translation>
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
        <translation>Limpar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Enviar opinião</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Avaliar o Tolvane</translation>
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
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Ouça</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>Agora você</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Avaliando</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>Muito bem!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>Nenhuma voz foi ouvida na sua gravação.</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>Não é possível comparar esta frase: o modelo de fala não pôde ser criado.</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>Sua gravação não foi encontrada.</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>Sua gravação está vazia.</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>Sua gravação não pôde ser lida ou tem mais de um minuto.</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>A voz original não pôde ser lida.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Pontuação</translation>
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
        <translation>Minha voz</translation>
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
        <translation>Duração do teste</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <translation>Meu perfil</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Experiência</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>Como foi ganha</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>Aberturas</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>Audições</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>Escritas</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>Leituras</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>Testes feitos</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>Pontos nos testes</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>Avaliação</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>Seu arquivo de progresso estava danificado, então o Tolvane voltou à cópia guardada. No máximo, falta sua última etapa.</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>Seu arquivo de progresso estava danificado, então o Tolvane o reparou: tudo o que pôde ler foi mantido. O arquivo danificado foi guardado como %1.</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>Seu arquivo de progresso estava danificado e não havia cópia boa, então o Tolvane recomeçou seu progresso. O arquivo danificado foi guardado como %1.</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>Não há microfone.</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>O microfone foi desconectado antes de você falar. Grave novamente.</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>Não é possível criar a pasta de gravações %1.</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>Frase anterior</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Mais lento</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Tocar ou pausar</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Mais rápido</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Próxima frase</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Modo de repetição</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>Nenhuma voz detectada</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>Nenhuma palavra correta detectada</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>Pequeno problema na ordem das palavras</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Mais lento</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Tocar ou pausar</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Mais rápido</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Alemão → português</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Português → alemão</translation>
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
        <translation>Ordenar palavras</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>Arraste a palavra para mudar a ordem.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Enviar</translation>
    </message>
</context>
</TS>
