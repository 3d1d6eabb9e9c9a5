<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>यह इकाई नहीं मिली, इसलिए जवाब देने के लिए कुछ नहीं है।</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>क्विज़ के लिए %1 वाक्यांश चाहिए और यहाँ उससे कम हैं, इसलिए जवाब देने के लिए कुछ नहीं है।</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>प्रगति</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>स्कोर</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>समाप्त</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>इकाई क्विज़</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>दोहराएँ</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>हर वाक्यांश</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>अंतराल</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 से.</translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation>सुनें और चुनें</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>वाक्यांश चलाएँ</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>जमा करें</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>सुनें और लिखें</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>वाक्यांश चलाएँ</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>जो सुनें वह टाइप करें</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>जमा करें</translation>
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
        <translation>उपयोगकर्ता जानकारी</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>सेटिंग्स</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>अनुभव</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>क्विज़</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>श्रेणियाँ</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n वाक्यांश</numerusform>
            <numerusform>%n वाक्यांश</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>माइक्रोफ़ोन की अनुमति नहीं मिली</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>सेटिंग्स खोलें</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>वाक्यांश पढ़ें</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>जमा करें</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>वॉइसप्रिंट दिखाएँ</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>बोलने के लिए दबाकर रखें।</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>पिछला वाक्यांश</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>जर्मन पाठ दिखाएँ</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>जर्मन पाठ छिपाएँ</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>चलाएँ</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>वाक्यांश लिखें</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>अगला वाक्यांश</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>दोहराएँ</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%2 में से %1</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>आपकी आवाज़ रिकॉर्ड नहीं हो सकती: उसे रखने के लिए कोई फ़ोल्डर नहीं है।</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>जो सुनें वह लिखें</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>वाक्यांश टाइप करें</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>जमा करें</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>फिर से करें</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>सुनें और चुनें</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>सुनें और लिखें</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>शब्दों का क्रम</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>वाक्यांश पढ़ें</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>जर्मन → हिन्दी</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>हिन्दी → जर्मन</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>क्विज़</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>इकाई क्विज़</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Tolvane को रेट करें</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>अगर आपको Tolvane के साथ सीखना अच्छा लगता है, तो क्या आप एक पल निकालकर इसे रेट करेंगे? आपके सहयोग के लिए धन्यवाद!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>रेट करें</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>बाद में</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>नहीं, धन्यवाद</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>जाँचा नहीं गया</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>साफ़ सुनाई दिया</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>अस्पष्ट</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>छूट गया</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>बोलने के लिए दबाए रखें</translation>
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
        <translation>सेटिंग्स</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>सुनना</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>चलाने की गति</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>मातृभाषा</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>क्विज़</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>क्विज़ की अवधि</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n सेकंड</numerusform>
            <numerusform>%n सेकंड</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>स्टोरेज</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>कैश</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>साफ़ करें</translation>
    </message>
    <message>
        <source>About</source>
        <translation>परिचय</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>सुझाव भेजें</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Tolvane को रेट करें</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>दोहराएँ</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 में से %1</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>जारी रखें</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>रोकें</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>रुका हुआ</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>सुनें</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>अब आप बोलें</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>जाँच हो रही है</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>बहुत बढ़िया!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>आपकी रिकॉर्डिंग में कोई आवाज़ सुनाई नहीं दी।</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>इस वाक्यांश की तुलना नहीं हो सकती: इसका वाक् मॉडल नहीं बन सका।</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>आपकी रिकॉर्डिंग नहीं मिली।</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>आपकी रिकॉर्डिंग खाली है।</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>आपकी रिकॉर्डिंग पढ़ी नहीं जा सकी, या वह एक मिनट से लंबी है।</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>मूल आवाज़ पढ़ी नहीं जा सकी।</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>स्कोर</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>मूल आवाज़</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>मेरी आवाज़</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>क्विज़ की अवधि</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n सेकंड</numerusform>
            <numerusform>%n सेकंड</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>उपयोगकर्ता जानकारी</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>अनुभव</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>यह कैसे कमाया गया</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>ऐप खोला</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>सुना</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>लिखा</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>पढ़ा</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>क्विज़ दिए</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>क्विज़ स्कोर</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>ऐप को रेटिंग</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>आपकी प्रगति फ़ाइल खराब हो गई थी, इसलिए Tolvane ने सहेजी गई कॉपी वापस ले ली। ज़्यादा से ज़्यादा आपका आख़िरी कदम छूटा है।</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>आपकी प्रगति फ़ाइल खराब हो गई थी, इसलिए Tolvane ने उसे ठीक किया: जो कुछ पढ़ा जा सका वह सुरक्षित है। खराब फ़ाइल %1 नाम से रखी गई है।</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>आपकी प्रगति फ़ाइल खराब हो गई थी और कोई सही कॉपी नहीं बची, इसलिए Tolvane ने आपकी प्रगति फिर से शुरू की। खराब फ़ाइल %1 नाम से रखी गई है।</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>कोई माइक्रोफ़ोन नहीं है।</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>आपके कुछ बोलने से पहले ही माइक्रोफ़ोन हट गया। कृपया फिर से रिकॉर्ड करें।</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>रिकॉर्डिंग फ़ोल्डर %1 नहीं बन सका।</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>पिछला वाक्यांश</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>धीमा</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>चलाएँ या रोकें</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>तेज़</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>अगला वाक्यांश</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>दोहराव मोड</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>कोई आवाज़ नहीं मिली</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>कोई सही शब्द नहीं मिला</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>शब्दों के क्रम में थोड़ी गड़बड़ी है</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>धीमा</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>चलाएँ या रोकें</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>तेज़</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>वापस</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>जर्मन → हिन्दी</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>हिन्दी → जर्मन</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>जमा करें</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>शब्दों का क्रम</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>क्रम बदलने के लिए शब्द को खींचें।</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>जमा करें</translation>
    </message>
</context>
</TS>
