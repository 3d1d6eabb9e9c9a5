<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>이 단원을 찾을 수 없어 풀 문제가 없습니다.</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>퀴즈에는 %1개의 문장이 필요한데 여기에는 부족하여 풀 문제가 없습니다.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>점수</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>종료</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>단원 퀴즈</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>섀도잉</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>반복 횟수</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1회</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>간격</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1초</translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation>듣고 고르기</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>문장 재생</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>제출</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>듣고 쓰기</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>문장 재생</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>들은 내용을 입력하세요</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>제출</translation>
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
        <translation>사용자 정보</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>경험치</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>퀴즈</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>카테고리</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n개 문장</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>마이크 접근이 거부되었습니다</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>설정 열기</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>문장 읽기</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>제출</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>성문 보기</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>길게 누르고 말하세요.</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>이전 문장</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>독일어 보기</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>독일어 숨기기</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>문장 쓰기</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>다음 문장</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>섀도잉</translation>
    </message>
</context>
<context>
    <name>PhraseCardView</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>PhraseRecording</name>
    <message>
        <source>Your voice cannot be recorded: there is no folder to keep it in.</source>
        <translation>녹음을 저장할 폴더가 없어 녹음할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>들은 대로 쓰기</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>문장을 입력하세요</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>제출</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 하기</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>듣고 고르기</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>듣고 쓰기</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>단어 배열</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>문장 읽기</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>독일어 → 한국어</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>한국어 → 독일어</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>퀴즈</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>단원 퀴즈</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Tolvane 평가하기</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>Tolvane으로 즐겁게 공부하고 계신다면 잠시 평가해 주시겠어요? 응원해 주셔서 감사합니다!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>평가하기</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>괜찮습니다</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>판정 없음</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>잘 들림</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>불분명</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>누락</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>길게 눌러 말하기</translation>
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
        <translation>설정</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>듣기</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>재생 속도</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1배</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>모국어</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>퀴즈</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>퀴즈 시간</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n초</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>저장 공간</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>캐시</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1MB</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>의견 보내기</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Tolvane 평가하기</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>섀도잉</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 정지</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>일시 정지됨</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>들어 보세요</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>이제 따라 하세요</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>채점 중</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>잘했어요!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>녹음에서 목소리가 들리지 않았습니다.</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>음성 모델을 만들 수 없어 이 문장은 비교할 수 없습니다.</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>녹음을 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>녹음이 비어 있습니다.</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>녹음을 읽을 수 없거나 1분보다 깁니다.</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>원어민 음성을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>점수</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>원어민 음성</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>내 목소리</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>퀴즈 시간</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n초</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>사용자 정보</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>경험치</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>획득 내역</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>앱 실행</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>듣기</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>쓰기</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>읽기</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>퀴즈 횟수</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>퀴즈 점수</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>앱 평가</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>학습 기록 파일이 손상되어 보관해 둔 사본으로 되돌렸습니다. 사라진 것은 많아야 마지막 한 단계입니다.</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>학습 기록 파일이 손상되어 복구했습니다. 읽을 수 있는 내용은 모두 남아 있습니다. 손상된 파일은 %1(으)로 보관했습니다.</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>학습 기록 파일이 손상되었고 정상 사본도 없어 기록을 처음부터 다시 시작했습니다. 손상된 파일은 %1(으)로 보관했습니다.</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>마이크가 없습니다.</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>말하기 전에 마이크 연결이 끊어졌습니다. 다시 녹음해 주세요.</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>녹음 폴더 %1을(를) 만들 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>이전 문장</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>느리게</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>재생/일시 정지</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>빠르게</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>다음 문장</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>반복 모드</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>목소리가 감지되지 않았습니다</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>맞는 단어가 감지되지 않았습니다</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>단어 순서에 약간 문제가 있습니다</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>느리게</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>재생/일시 정지</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>빠르게</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>독일어 → 한국어</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>한국어 → 독일어</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>제출</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>단어 배열</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>단어를 끌어 순서를 바꾸세요.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>제출</translation>
    </message>
</context>
</TS>
