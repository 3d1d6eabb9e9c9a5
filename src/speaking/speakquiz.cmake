# Reading phrases aloud: the recording of a phrase and its comparison, shared by the phrase cards
# and the speaking quiz, and the quiz itself.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/Phrase2SpeakVC.cpp ${CMAKE_CURRENT_LIST_DIR}/Phrase2SpeakVC.h
  ${CMAKE_CURRENT_LIST_DIR}/PhraseRecording.cpp ${CMAKE_CURRENT_LIST_DIR}/PhraseRecording.h
)
# The QML type registration includes the quiz by file name.
target_include_directories(tolvane_core PRIVATE ${CMAKE_CURRENT_LIST_DIR})
