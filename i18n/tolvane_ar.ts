<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>تعذّر العثور على هذه الوحدة، فلا توجد أسئلة للإجابة.</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>يحتاج الاختبار إلى %1 عبارات والموجود هنا أقل، فلا توجد أسئلة للإجابة.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدّم</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>انتهى</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>اختبار الوحدة</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>الترديد</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>تكرار كل عبارة</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>المهلة</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 ث</translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation>استمع واختر</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>تشغيل العبارة</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>إرسال</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>استمع واكتب</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>تشغيل العبارة</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>اكتب ما تسمعه</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>إرسال</translation>
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
        <translation>معلومات المستخدم</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>الخبرة</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>الاختبارات</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>الفئات</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n عبارة</numerusform>
            <numerusform>عبارة واحدة</numerusform>
            <numerusform>عبارتان</numerusform>
            <numerusform>%n عبارات</numerusform>
            <numerusform>%n عبارة</numerusform>
            <numerusform>%n عبارة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>تم رفض الوصول إلى الميكروفون</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>فتح الإعدادات</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>اقرأ العبارة</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>إرسال</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>عرض بصمة الصوت</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>اضغط مطوّلًا للتحدث.</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>العبارة السابقة</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>إظهار النص الألماني</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>إخفاء النص الألماني</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>اكتب العبارة</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>العبارة التالية</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>الترديد</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>لا يمكن تسجيل صوتك: لا يوجد مجلد لحفظه.</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>اكتب ما تسمعه</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>اكتب العبارة</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>أعد المحاولة</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>استمع واختر</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>استمع واكتب</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>رتّب الكلمات</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>اقرأ العبارة</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>الألمانية ← العربية</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>العربية ← الألمانية</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>الاختبارات</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>اختبار الوحدة</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>قيّم Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>إن كنت تستمتع بالتعلّم مع Tolvane، فهل تمنحنا لحظة لتقييمه؟ شكرًا لدعمك!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>تقييم</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>لا، شكرًا</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>لم تُقيَّم</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>مسموعة جيدًا</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>غير واضحة</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>مفقودة</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>اضغط مطوّلًا للتحدث</translation>
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
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>الاستماع</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>سرعة التشغيل</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>اللغة الأم</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>الاختبارات</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>مدة الاختبار</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n ثانية</numerusform>
            <numerusform>ثانية واحدة</numerusform>
            <numerusform>ثانيتان</numerusform>
            <numerusform>%n ثوانٍ</numerusform>
            <numerusform>%n ثانية</numerusform>
            <numerusform>%n ثانية</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>التخزين</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>ذاكرة التخزين المؤقت</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 م.ب</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>إرسال ملاحظات</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>قيّم Tolvane</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>الترديد</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>استئناف</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>استمع</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>دورك الآن</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>جارٍ التقييم</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>أحسنت!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>لم يُسمع أي صوت في تسجيلك.</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>لا يمكن مقارنة هذه العبارة: تعذّر إنشاء نموذج النطق الخاص بها.</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>تعذّر العثور على تسجيلك.</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>تسجيلك فارغ.</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>تعذّرت قراءة تسجيلك، أو أنه أطول من دقيقة.</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>تعذّرت قراءة الصوت الأصلي.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>النتيجة</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>الصوت الأصلي</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>صوتي</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>مدة الاختبار</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n ثانية</numerusform>
            <numerusform>ثانية واحدة</numerusform>
            <numerusform>ثانيتان</numerusform>
            <numerusform>%n ثوانٍ</numerusform>
            <numerusform>%n ثانية</numerusform>
            <numerusform>%n ثانية</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>معلومات المستخدم</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>الخبرة</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>كيف اكتُسبت</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>مرات فتح التطبيق</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>الاستماع</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>الكتابة</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>القراءة</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>عدد الاختبارات</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>نقاط الاختبارات</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>تقييم التطبيق</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>كان ملف تقدّمك تالفًا، فعاد Tolvane إلى النسخة المحفوظة. قد تكون خطوتك الأخيرة فقط مفقودة.</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>كان ملف تقدّمك تالفًا، فأصلحه Tolvane مع الاحتفاظ بكل ما أمكن قراءته. حُفظ الملف التالف باسم %1.</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>كان ملف تقدّمك تالفًا ولم تبقَ نسخة سليمة، فبدأ Tolvane تقدّمك من جديد. حُفظ الملف التالف باسم %1.</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>لا يوجد ميكروفون.</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>انقطع الميكروفون قبل أن تقول شيئًا. يُرجى التسجيل مرة أخرى.</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>تعذّر إنشاء مجلد التسجيلات %1.</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>العبارة السابقة</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>أبطأ</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>تشغيل أو إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>أسرع</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>العبارة التالية</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>وضع التكرار</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>لم يُكتشف أي صوت</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>لم تُكتشف كلمات صحيحة</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>بعض المشكلات في ترتيب الكلمات</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>أبطأ</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>تشغيل أو إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>أسرع</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>الألمانية ← العربية</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>العربية ← الألمانية</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>إرسال</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>رتّب الكلمات</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>اسحب الكلمة لتغيير ترتيبها.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>إرسال</translation>
    </message>
</context>
</TS>
