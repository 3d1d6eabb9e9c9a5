<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>ไม่พบบทเรียนนี้ จึงไม่มีคำถามให้ตอบ</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>แบบทดสอบต้องมี %1 วลี แต่ที่นี่มีไม่ถึง จึงไม่มีคำถามให้ตอบ</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>ความคืบหน้า</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>คะแนน</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>จบแล้ว</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>แบบทดสอบบทเรียน</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>พูดตาม</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>เล่นวลีละ</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>เว้นช่วง</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 วิ</translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation>ฟังแล้วเลือก</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>เล่นวลี</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>ส่งคำตอบ</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>ฟังแล้วเขียน</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>เล่นวลี</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>พิมพ์สิ่งที่ได้ยิน</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>ส่งคำตอบ</translation>
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
        <translation>ข้อมูลผู้ใช้</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>ค่าประสบการณ์</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>แบบทดสอบ</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>หมวดหมู่</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n วลี</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>ไม่ได้รับอนุญาตให้ใช้ไมโครโฟน</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>เปิดการตั้งค่า</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>อ่านออกเสียง</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>ส่งคำตอบ</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>แสดงลายเสียง</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>แตะค้างไว้เพื่อพูด</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>วลีก่อนหน้า</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>แสดงข้อความภาษาเยอรมัน</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>ซ่อนข้อความภาษาเยอรมัน</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>เล่น</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>เขียนวลี</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>วลีถัดไป</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>พูดตาม</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 จาก %2</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>บันทึกเสียงของคุณไม่ได้ เพราะไม่มีโฟลเดอร์สำหรับเก็บ</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>เขียนสิ่งที่ได้ยิน</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>พิมพ์วลี</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>ส่งคำตอบ</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>ทำใหม่</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>ฟังแล้วเลือก</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>ฟังแล้วเขียน</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>เรียงคำ</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>อ่านออกเสียง</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>เยอรมัน → ไทย</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>ไทย → เยอรมัน</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>แบบทดสอบ</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>แบบทดสอบบทเรียน</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>ให้คะแนน Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>ถ้าคุณชอบเรียนกับ Tolvane ช่วยสละเวลาสักครู่ให้คะแนนได้ไหม ขอบคุณที่สนับสนุน!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>ให้คะแนน</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>ไว้ทีหลัง</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>ไม่ล่ะ ขอบคุณ</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>ไม่ได้ประเมิน</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>ได้ยินชัด</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>ไม่ชัด</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>ขาดหายไป</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>กดค้างเพื่อพูด</translation>
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
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>การฟัง</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>ความเร็วในการเล่น</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>ภาษาแม่</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>แบบทดสอบ</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>เวลาทำแบบทดสอบ</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n วินาที</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>พื้นที่จัดเก็บ</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>แคช</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>ล้าง</translation>
    </message>
    <message>
        <source>About</source>
        <translation>เกี่ยวกับ</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>ส่งความคิดเห็น</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>ให้คะแนน Tolvane</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>พูดตาม</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 จาก %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>เล่นต่อ</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>หยุดชั่วคราว</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>หยุดชั่วคราว</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>ฟัง</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>ถึงตาคุณแล้ว</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>กำลังตรวจ</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>เยี่ยมมาก!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>ไม่ได้ยินเสียงพูดในเสียงที่บันทึกไว้</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>เปรียบเทียบวลีนี้ไม่ได้ เพราะสร้างแบบจำลองเสียงพูดไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>ไม่พบเสียงที่คุณบันทึก</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>เสียงที่คุณบันทึกว่างเปล่า</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>อ่านเสียงที่คุณบันทึกไม่ได้ หรือยาวเกินหนึ่งนาที</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>อ่านเสียงต้นฉบับไม่ได้</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>คะแนน</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>เสียงต้นฉบับ</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>เสียงของฉัน</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>เวลาทำแบบทดสอบ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n วินาที</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>ข้อมูลผู้ใช้</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>ค่าประสบการณ์</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>ได้มาอย่างไร</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>เปิดแอป</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>การฟัง</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>การเขียน</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>การอ่าน</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>จำนวนแบบทดสอบ</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>คะแนนแบบทดสอบ</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>รีวิวแอป</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>ไฟล์ความคืบหน้าของคุณเสียหาย Tolvane จึงกลับไปใช้สำเนาที่เก็บไว้ อย่างมากจะหายไปแค่ขั้นตอนล่าสุด</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>ไฟล์ความคืบหน้าของคุณเสียหาย Tolvane จึงซ่อมให้ ข้อมูลที่อ่านได้ยังอยู่ครบ ไฟล์ที่เสียหายเก็บไว้เป็น %1</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>ไฟล์ความคืบหน้าของคุณเสียหายและไม่มีสำเนาที่ดีเหลืออยู่ Tolvane จึงเริ่มความคืบหน้าใหม่ ไฟล์ที่เสียหายเก็บไว้เป็น %1</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>ไม่มีไมโครโฟน</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>ไมโครโฟนหลุดไปก่อนที่คุณจะพูด โปรดบันทึกอีกครั้ง</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>สร้างโฟลเดอร์บันทึกเสียง %1 ไม่ได้</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>หยุด</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>วลีก่อนหน้า</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>ช้าลง</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>เล่นหรือหยุดชั่วคราว</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>เร็วขึ้น</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>วลีถัดไป</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>โหมดเล่นซ้ำ</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>ไม่พบเสียงพูด</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>ไม่พบคำที่ถูกต้อง</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>ลำดับคำผิดไปเล็กน้อย</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>หยุด</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>ช้าลง</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>เล่นหรือหยุดชั่วคราว</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>เร็วขึ้น</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>กลับ</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>เยอรมัน → ไทย</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>ไทย → เยอรมัน</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>ส่งคำตอบ</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>เรียงคำ</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>ลากคำเพื่อเปลี่ยนลำดับ</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>ส่งคำตอบ</translation>
    </message>
</context>
</TS>
