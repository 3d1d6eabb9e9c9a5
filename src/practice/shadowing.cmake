# Practice on top of the quizzes and the reading aloud: hands-free shadowing.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/EndOfSpeech.cpp ${CMAKE_CURRENT_LIST_DIR}/EndOfSpeech.h
  ${CMAKE_CURRENT_LIST_DIR}/ShadowingVC.cpp ${CMAKE_CURRENT_LIST_DIR}/ShadowingVC.h
)
# The QML type registration includes the controller by file name.
target_include_directories(tolvane_core PRIVATE ${CMAKE_CURRENT_LIST_DIR})
