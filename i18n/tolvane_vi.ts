<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi">
<context>
    <name>BaseQuizViewController</name>
    <message>
        <source>This unit cannot be found, so there is nothing to answer.</source>
        <translation>Không tìm thấy bài này nên không có câu hỏi nào.</translation>
    </message>
    <message>
        <source>A quiz needs %1 phrases and there are fewer here, so there is nothing to answer.</source>
        <translation>Bài kiểm tra cần %1 câu nhưng ở đây không đủ nên không có câu hỏi nào.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Tiến độ</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Điểm</translation>
    </message>
    <message>
        <source>Over</source>
        <translation>Kết thúc</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Unit Quiz</source>
        <translation>Kiểm tra bài</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Nói theo</translation>
    </message>
</context>
<context>
    <name>CategoryPlayOptions</name>
    <message>
        <source>Play each</source>
        <translation>Phát mỗi câu</translation>
    </message>
    <message>
        <source>%1×</source>
        <translation>%1×</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Nghỉ</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 giây</translation>
    </message>
</context>
<context>
    <name>Listen2SelectPage</name>
    <message>
        <source>Listen And Select</source>
        <translation>Nghe và chọn</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Phát câu</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Gửi</translation>
    </message>
</context>
<context>
    <name>Listen2WritePage</name>
    <message>
        <source>Listen And Write</source>
        <translation>Nghe và viết</translation>
    </message>
    <message>
        <source>Play the phrase</source>
        <translation>Phát câu</translation>
    </message>
    <message>
        <source>Type what you hear</source>
        <translation>Nhập những gì bạn nghe</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Gửi</translation>
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
        <translation>Thông tin người dùng</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Kinh nghiệm</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Kiểm tra</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Chủ đề</translation>
    </message>
    <message numerus="yes">
        <source>%n phrases</source>
        <translation>
            <numerusform>%n câu</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MicrophonePermission</name>
    <message>
        <source>Microphone Access Denied</source>
        <translation>Không được phép dùng micrô</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Mở Cài đặt</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakPage</name>
    <message>
        <source>Read Phrase</source>
        <translation>Đọc câu</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Gửi</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakResultCellView</name>
    <message>
        <source>Show Voiceprint</source>
        <translation>Xem dấu giọng</translation>
    </message>
</context>
<context>
    <name>Phrase2SpeakVC</name>
    <message>
        <source>Tap and hold to speak.</source>
        <translation>Nhấn giữ để nói.</translation>
    </message>
</context>
<context>
    <name>PhraseCardPage</name>
    <message>
        <source>Previous phrase</source>
        <translation>Câu trước</translation>
    </message>
    <message>
        <source>Show the German text</source>
        <translation>Hiện câu tiếng Đức</translation>
    </message>
    <message>
        <source>Hide the German text</source>
        <translation>Ẩn câu tiếng Đức</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Phát</translation>
    </message>
    <message>
        <source>Write the phrase</source>
        <translation>Viết câu</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Câu tiếp theo</translation>
    </message>
    <message>
        <source>Shadow</source>
        <translation>Nói theo</translation>
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
        <translation>Không thể ghi âm: không có thư mục để lưu.</translation>
    </message>
</context>
<context>
    <name>PhraseWritePopView</name>
    <message>
        <source>Write what you hear</source>
        <translation>Viết những gì bạn nghe</translation>
    </message>
    <message>
        <source>Type the phrase</source>
        <translation>Nhập câu</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Gửi</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Làm lại</translation>
    </message>
</context>
<context>
    <name>QuizOutlineVC</name>
    <message>
        <source>Listen And Select</source>
        <translation>Nghe và chọn</translation>
    </message>
    <message>
        <source>Listen And Write</source>
        <translation>Nghe và viết</translation>
    </message>
    <message>
        <source>Reorder Words</source>
        <translation>Sắp xếp từ</translation>
    </message>
    <message>
        <source>Read Phrase</source>
        <translation>Đọc câu</translation>
    </message>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Tiếng Đức → Tiếng Việt</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Tiếng Việt → Tiếng Đức</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Kiểm tra</translation>
    </message>
    <message>
        <source>Unit Quiz</source>
        <translation>Kiểm tra bài</translation>
    </message>
</context>
<context>
    <name>RatingPromptDialog</name>
    <message>
        <source>Rate Tolvane</source>
        <translation>Đánh giá Tolvane</translation>
    </message>
    <message>
        <source>If you enjoy learning with Tolvane, would you take a moment to rate it? Thank you for your support!</source>
        <translation>Nếu bạn thích học với Tolvane, bạn có thể dành chút thời gian đánh giá không? Cảm ơn bạn đã ủng hộ!</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Đánh giá</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Để sau</translation>
    </message>
    <message>
        <source>No thanks</source>
        <translation>Không, cảm ơn</translation>
    </message>
</context>
<context>
    <name>ReadingFeedback</name>
    <message>
        <source>not judged</source>
        <translation>chưa chấm</translation>
    </message>
    <message>
        <source>heard well</source>
        <translation>nghe rõ</translation>
    </message>
    <message>
        <source>unclear</source>
        <translation>chưa rõ</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>thiếu</translation>
    </message>
</context>
<context>
    <name>RecordButton</name>
    <message>
        <source>Hold to speak</source>
        <translation>Giữ để nói</translation>
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
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Nghe</translation>
    </message>
    <message>
        <source>Playback speed</source>
        <translation>Tốc độ phát</translation>
    </message>
    <message>
        <source>%1x</source>
        <translation>%1x</translation>
    </message>
    <message>
        <source>Mother language</source>
        <translation>Tiếng mẹ đẻ</translation>
    </message>
    <message>
        <source>Quizzes</source>
        <translation>Kiểm tra</translation>
    </message>
    <message>
        <source>Test duration</source>
        <translation>Thời gian kiểm tra</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n giây</numerusform>
        </translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Bộ nhớ</translation>
    </message>
    <message>
        <source>Cache</source>
        <translation>Bộ nhớ đệm</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Giới thiệu</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Gửi góp ý</translation>
    </message>
    <message>
        <source>Rate Tolvane</source>
        <translation>Đánh giá Tolvane</translation>
    </message>
</context>
<context>
    <name>ShadowingPage</name>
    <message>
        <source>Shadow</source>
        <translation>Nói theo</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Tiếp tục</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tạm dừng</translation>
    </message>
</context>
<context>
    <name>ShadowingVC</name>
    <message>
        <source>Paused</source>
        <translation>Đã tạm dừng</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>Hãy nghe</translation>
    </message>
    <message>
        <source>Now you</source>
        <translation>Đến lượt bạn</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Đang chấm</translation>
    </message>
    <message>
        <source>Well done!</source>
        <translation>Làm tốt lắm!</translation>
    </message>
</context>
<context>
    <name>SpectrumCompView</name>
    <message>
        <source>No voice was heard in your recording.</source>
        <translation>Không nghe thấy giọng nói trong bản ghi của bạn.</translation>
    </message>
    <message>
        <source>This phrase cannot be compared: its speech model could not be made.</source>
        <translation>Không thể so sánh câu này: không tạo được mô hình giọng nói.</translation>
    </message>
    <message>
        <source>Your recording could not be found.</source>
        <translation>Không tìm thấy bản ghi của bạn.</translation>
    </message>
    <message>
        <source>Your recording is empty.</source>
        <translation>Bản ghi của bạn trống.</translation>
    </message>
    <message>
        <source>Your recording could not be read, or it is longer than a minute.</source>
        <translation>Không đọc được bản ghi của bạn, hoặc bản ghi dài hơn một phút.</translation>
    </message>
    <message>
        <source>The original voice could not be read.</source>
        <translation>Không đọc được giọng mẫu.</translation>
    </message>
    <message>
        <source>Score</source>
        <translation>Điểm</translation>
    </message>
</context>
<context>
    <name>SpectrumCompViewPopup</name>
    <message>
        <source>Original Voice</source>
        <translation>Giọng mẫu</translation>
    </message>
    <message>
        <source>My Voice</source>
        <translation>Giọng của tôi</translation>
    </message>
</context>
<context>
    <name>TestDurPickerView</name>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Test Duration</source>
        <translation>Thời gian kiểm tra</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message numerus="yes">
        <source>%n seconds</source>
        <translation>
            <numerusform>%n giây</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UserInfoPage</name>
    <message>
        <source>User Info</source>
        <translation>Thông tin người dùng</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Kinh nghiệm</translation>
    </message>
    <message>
        <source>How it was earned</source>
        <translation>Cách đạt được</translation>
    </message>
</context>
<context>
    <name>UserInfoVC</name>
    <message>
        <source>Start App</source>
        <translation>Mở ứng dụng</translation>
    </message>
    <message>
        <source>Listen Word</source>
        <translation>Nghe</translation>
    </message>
    <message>
        <source>Write Word</source>
        <translation>Viết</translation>
    </message>
    <message>
        <source>Read Word</source>
        <translation>Đọc</translation>
    </message>
    <message>
        <source>Quiz Times</source>
        <translation>Số lần kiểm tra</translation>
    </message>
    <message>
        <source>Quiz Score</source>
        <translation>Điểm kiểm tra</translation>
    </message>
    <message>
        <source>Review App</source>
        <translation>Đánh giá ứng dụng</translation>
    </message>
</context>
<context>
    <name>UserRecord</name>
    <message>
        <source>Your progress file was damaged, so Tolvane went back to the copy it kept. At most your last step is missing.</source>
        <translation>Tệp tiến độ của bạn bị hỏng nên Tolvane đã quay về bản sao đã lưu. Nhiều nhất chỉ mất bước cuối cùng.</translation>
    </message>
    <message>
        <source>Your progress file was damaged, so Tolvane repaired it: everything it could read is kept. The damaged file is kept as %1.</source>
        <translation>Tệp tiến độ của bạn bị hỏng nên Tolvane đã sửa: mọi thứ đọc được đều được giữ lại. Tệp hỏng được lưu thành %1.</translation>
    </message>
    <message>
        <source>Your progress file was damaged and no good copy was left, so Tolvane started your progress again. The damaged file is kept as %1.</source>
        <translation>Tệp tiến độ của bạn bị hỏng và không còn bản sao tốt nên Tolvane đã bắt đầu lại tiến độ. Tệp hỏng được lưu thành %1.</translation>
    </message>
</context>
<context>
    <name>VoAudioRecorder</name>
    <message>
        <source>There is no microphone.</source>
        <translation>Không có micrô.</translation>
    </message>
    <message>
        <source>The microphone went away before you had said anything. Please record again.</source>
        <translation>Micrô bị ngắt trước khi bạn kịp nói. Vui lòng ghi âm lại.</translation>
    </message>
    <message>
        <source>The recording folder %1 cannot be created.</source>
        <translation>Không thể tạo thư mục ghi âm %1.</translation>
    </message>
</context>
<context>
    <name>VoListPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Dừng</translation>
    </message>
    <message>
        <source>Previous phrase</source>
        <translation>Câu trước</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Chậm hơn</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Phát hoặc tạm dừng</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Nhanh hơn</translation>
    </message>
    <message>
        <source>Next phrase</source>
        <translation>Câu tiếp theo</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Chế độ lặp</translation>
    </message>
</context>
<context>
    <name>VoPSRecognizer</name>
    <message>
        <source>No voice detected</source>
        <translation>Không phát hiện giọng nói</translation>
    </message>
    <message>
        <source>No correct words detected</source>
        <translation>Không phát hiện từ đúng nào</translation>
    </message>
    <message>
        <source>Problems a bit in word sequence</source>
        <translation>Thứ tự từ hơi có vấn đề</translation>
    </message>
</context>
<context>
    <name>VoPlayerBoxView</name>
    <message>
        <source>Stop</source>
        <translation>Dừng</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>Chậm hơn</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Phát hoặc tạm dừng</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>Nhanh hơn</translation>
    </message>
</context>
<context>
    <name>VoPopView</name>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
</context>
<context>
    <name>VoToolBarView</name>
    <message>
        <source>Back</source>
        <translation>Quay lại</translation>
    </message>
</context>
<context>
    <name>Word2WordPage</name>
    <message>
        <source>Foreign Language -&gt; Mother Language</source>
        <translation>Tiếng Đức → Tiếng Việt</translation>
    </message>
    <message>
        <source>Mother Language -&gt; Foreign Language</source>
        <translation>Tiếng Việt → Tiếng Đức</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Gửi</translation>
    </message>
</context>
<context>
    <name>WordOrderAdjustPage</name>
    <message>
        <source>Reorder Words</source>
        <translation>Sắp xếp từ</translation>
    </message>
    <message>
        <source>Drag the word to reorder it.</source>
        <translation>Kéo từ để sắp xếp lại.</translation>
    </message>
    <message>
        <source>Submit</source>
        <translation>Gửi</translation>
    </message>
</context>
</TS>
