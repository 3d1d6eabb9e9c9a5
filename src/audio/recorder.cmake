# Recording the learner: the audio inputs (a microphone, or a file in tests), the conversion to a
# 16 kHz mono Apple Lossless file on a thread of its own, the recorder and the microphone check.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/AudioInput.h ${CMAKE_CURRENT_LIST_DIR}/AudioInputFactory.cpp
  ${CMAKE_CURRENT_LIST_DIR}/AudioInputFactory.h
  ${CMAKE_CURRENT_LIST_DIR}/DeviceAudioInput.cpp ${CMAKE_CURRENT_LIST_DIR}/DeviceAudioInput.h
  ${CMAKE_CURRENT_LIST_DIR}/FileAudioInput.cpp ${CMAKE_CURRENT_LIST_DIR}/FileAudioInput.h
  ${CMAKE_CURRENT_LIST_DIR}/MicrophonePermission.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MicrophonePermission.h
  ${CMAKE_CURRENT_LIST_DIR}/RecordingWorker.cpp ${CMAKE_CURRENT_LIST_DIR}/RecordingWorker.h
  ${CMAKE_CURRENT_LIST_DIR}/RecordingWriter.cpp ${CMAKE_CURRENT_LIST_DIR}/RecordingWriter.h
  ${CMAKE_CURRENT_LIST_DIR}/VoAudioRecorder.cpp ${CMAKE_CURRENT_LIST_DIR}/VoAudioRecorder.h
)
target_link_libraries(tolvane_core PRIVATE Qt6::Multimedia)
