# The translation-choice quiz, in both directions.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/Word2WordVC.cpp ${CMAKE_CURRENT_LIST_DIR}/Word2WordVC.h
)
