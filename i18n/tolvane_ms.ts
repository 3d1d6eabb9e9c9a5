<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ms">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>Unit ini tidak ditemui, jadi tiada soalan untuk dijawab.</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>Kuiz memerlukan %1 frasa tetapi di sini kurang daripada itu, jadi tiada soalan untuk dijawab.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Kemajuan</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Markah</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Tamat</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>Kuiz Unit</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ikut sebut</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>Main setiap</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Jeda</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 saat</translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation>Dengar dan Pilih</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Main frasa</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Hantar</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>Dengar dan Tulis</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Main frasa</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>Taip apa yang anda dengar</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Hantar</translation>
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
        <translation>Maklumat Pengguna</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Tetapan</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Pengalaman</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Kuiz</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Kategori</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n frasa</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>Akses mikrofon ditolak</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Buka Tetapan</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>Baca Frasa</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Hantar</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>Tunjuk Cap Suara</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>Tekan dan tahan untuk bercakap.</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>Frasa sebelumnya</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>Tunjuk teks Jerman</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>Sembunyikan teks Jerman</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Main</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>Tulis frasa</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Frasa seterusnya</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Ikut sebut</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 daripada %2</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>Suara anda tidak dapat dirakam: tiada folder untuk menyimpannya.</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>Tulis apa yang anda dengar</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>Taip frasa</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Hantar</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ulang</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>Dengar dan Pilih</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>Dengar dan Tulis</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>Susun Perkataan</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>Baca Frasa</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Bahasa Jerman → Bahasa Melayu</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Bahasa Melayu → Bahasa Jerman</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Kuiz</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>Kuiz Unit</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Nilai Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>Jika anda seronok belajar dengan Tolvane, sudikah anda meluangkan sedikit masa untuk menilainya? Terima kasih atas sokongan anda!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Nilai</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Nanti</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>Tidak, terima kasih</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>tidak dinilai</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>jelas didengar</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>kurang jelas</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>tertinggal</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>Tahan untuk bercakap</translation>
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
        <translation>Tetapan</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Mendengar</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>Kelajuan main</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>Bahasa ibunda</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Kuiz</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>Tempoh kuiz</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n saat</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Storan</translation>
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
        <translation>Kosongkan</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Perihal</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Hantar maklum balas</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Nilai Tolvane</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>Ikut sebut</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 daripada %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sambung</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Jeda</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>Dijeda</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Dengar</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>Giliran anda</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Sedang dinilai</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>Syabas!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>Tiada suara kedengaran dalam rakaman anda.</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>Frasa ini tidak dapat dibandingkan: model pertuturannya tidak dapat dibuat.</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>Rakaman anda tidak ditemui.</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>Rakaman anda kosong.</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>Rakaman anda tidak dapat dibaca, atau lebih panjang daripada seminit.</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>Suara asal tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Markah</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>Suara Asal</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>Suara Saya</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>Tempoh Kuiz</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n saat</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>Maklumat Pengguna</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Pengalaman</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>Cara ia diperoleh</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>Buka Aplikasi</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>Dengar</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>Tulis</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>Baca</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>Bilangan Kuiz</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>Markah Kuiz</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>Nilai Aplikasi</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>Fail kemajuan anda rosak, jadi Tolvane kembali kepada salinan yang disimpan. Paling banyak langkah terakhir anda sahaja yang hilang.</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>Fail kemajuan anda rosak, jadi Tolvane membaikinya: semua yang dapat dibaca disimpan. Fail yang rosak disimpan sebagai %1.</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>Fail kemajuan anda rosak dan tiada salinan yang baik, jadi Tolvane memulakan semula kemajuan anda. Fail yang rosak disimpan sebagai %1.</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>Tiada mikrofon.</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>Mikrofon terputus sebelum anda sempat bercakap. Sila rakam sekali lagi.</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>Folder rakaman %1 tidak dapat dibuat.</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Henti</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>Frasa sebelumnya</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Lebih perlahan</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Main atau jeda</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Lebih laju</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Frasa seterusnya</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Mod ulang</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>Tiada suara dikesan</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>Tiada perkataan betul dikesan</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>Sedikit masalah pada susunan perkataan</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Henti</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Lebih perlahan</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Main atau jeda</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Lebih laju</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>Kembali</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Bahasa Jerman → Bahasa Melayu</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Bahasa Melayu → Bahasa Jerman</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Hantar</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>Susun Perkataan</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>Seret perkataan untuk menyusunnya.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Hantar</translation>
    </message>
</context>
</TS>
