<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>Этот раздел не найден, поэтому отвечать не на что.</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>Для теста нужно %1 фраз, а здесь их меньше, поэтому отвечать не на что.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Прогресс</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Баллы</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Конец</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>Тест по разделу</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Повторять</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>Повторов</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation>Слушай и выбирай</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Воспроизвести фразу</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Ответить</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>Слушай и пиши</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Воспроизвести фразу</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>Напишите, что слышите</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Ответить</translation>
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
        <translation>Профиль</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Опыт</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Тесты</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Разделы</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n фраза</numerusform>
            <numerusform>%n фразы</numerusform>
            <numerusform>%n фраз</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>Нет доступа к микрофону</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Открыть настройки</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>Прочитать вслух</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Ответить</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>Показать спектр голоса</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>Нажмите и удерживайте, чтобы говорить.</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>Предыдущая фраза</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>Показать немецкий текст</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>Скрыть немецкий текст</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>Написать фразу</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Следующая фраза</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Повторять</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>Не удаётся записать голос: нет папки для записи.</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>Напишите, что слышите</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>Введите фразу</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Ответить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Заново</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>Слушай и выбирай</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>Слушай и пиши</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>Порядок слов</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>Прочитать вслух</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Немецкий → русский</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Русский → немецкий</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Тесты</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>Тест по разделу</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Оценить Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>Если вам нравится учиться с Tolvane, найдите минутку, чтобы оценить приложение. Спасибо за поддержку!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Оценить</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>Нет, спасибо</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>без оценки</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>хорошо слышно</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>неразборчиво</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>пропущено</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>Удерживайте и говорите</translation>
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
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Прослушивание</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>Скорость воспроизведения</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>Родной язык</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Тесты</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>Длительность теста</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n секунда</numerusform>
            <numerusform>%n секунды</numerusform>
            <numerusform>%n секунд</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Хранилище</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Кэш</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О приложении</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Отправить отзыв</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Оценить Tolvane</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>Повторять</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Слушайте</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>Теперь вы</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Проверка</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>Отлично!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>В записи не слышно голоса.</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>Эту фразу нельзя сравнить: не удалось создать её речевую модель.</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>Запись не найдена.</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>Запись пуста.</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>Не удаётся прочитать запись, или она длиннее минуты.</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>Не удаётся прочитать исходную запись.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Баллы</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>Образец</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>Мой голос</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>Длительность теста</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n секунда</numerusform>
            <numerusform>%n секунды</numerusform>
            <numerusform>%n секунд</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>Профиль</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Опыт</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>Как он получен</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>Запуски</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>Прослушивания</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>Написания</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>Чтения</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>Пройдено тестов</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>Баллы за тесты</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>Отзыв</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>Файл прогресса был повреждён, поэтому Tolvane вернулся к сохранённой копии. Потерян не более чем последний шаг.</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>Файл прогресса был повреждён, поэтому Tolvane восстановил его: всё, что удалось прочитать, сохранено. Повреждённый файл сохранён как %1.</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>Файл прогресса был повреждён, а исправной копии не осталось, поэтому прогресс начат заново. Повреждённый файл сохранён как %1.</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>Микрофон не найден.</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>Микрофон отключился, прежде чем вы что-то сказали. Запишите ещё раз.</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>Не удаётся создать папку для записей %1.</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>Предыдущая фраза</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Медленнее</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Воспроизвести или пауза</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Быстрее</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Следующая фраза</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Режим повтора</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>Голос не обнаружен</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>Правильные слова не обнаружены</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>Небольшие ошибки в порядке слов</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Медленнее</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Воспроизвести или пауза</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Быстрее</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Немецкий → русский</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Русский → немецкий</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Ответить</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>Порядок слов</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>Перетащите слово, чтобы изменить порядок.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Ответить</translation>
    </message>
</context>
</TS>
