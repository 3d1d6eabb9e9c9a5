# The listen-and-write quiz: the learner types the phrase heard.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/Listen2WriteVC.cpp ${CMAKE_CURRENT_LIST_DIR}/Listen2WriteVC.h
)
