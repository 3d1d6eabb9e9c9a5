# The spectrum comparison pop-up: the speech worker thread, the comparison of one recording with
# a phrase, and the pop-up's controller.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ComparisonSteps.cpp ${CMAKE_CURRENT_LIST_DIR}/ComparisonSteps.h
  ${CMAKE_CURRENT_LIST_DIR}/ReadingFeedback.cpp ${CMAKE_CURRENT_LIST_DIR}/ReadingFeedback.h
  ${CMAKE_CURRENT_LIST_DIR}/SpectrumCompView.cpp ${CMAKE_CURRENT_LIST_DIR}/SpectrumCompView.h
  ${CMAKE_CURRENT_LIST_DIR}/SpeechWorker.cpp ${CMAKE_CURRENT_LIST_DIR}/SpeechWorker.h
)
