# Phrase cards: the study screen and its writing pop-up.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/PhraseCardVC.cpp ${CMAKE_CURRENT_LIST_DIR}/PhraseCardVC.h
  ${CMAKE_CURRENT_LIST_DIR}/PhraseWriteController.cpp ${CMAKE_CURRENT_LIST_DIR}/PhraseWriteController.h
)
