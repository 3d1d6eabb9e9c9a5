# The phrase scorer: recognised words against the phrase's own words, and one recording judged
# against a phrase from model generation to mark.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/FloatText.cpp ${CMAKE_CURRENT_LIST_DIR}/FloatText.h
  ${CMAKE_CURRENT_LIST_DIR}/PhraseAssessment.cpp ${CMAKE_CURRENT_LIST_DIR}/PhraseAssessment.h
  ${CMAKE_CURRENT_LIST_DIR}/SpeechLog.cpp ${CMAKE_CURRENT_LIST_DIR}/SpeechLog.h
  ${CMAKE_CURRENT_LIST_DIR}/VoPSRecognizerScoring.cpp
)
# A score is a chain of single- and double-precision roundings; fusing a multiply and an add
# where the processor happens to offer it would change the last digits from one device to the
# next.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/VoPSRecognizerScoring.cpp
  PROPERTIES COMPILE_OPTIONS -ffp-contract=off)
