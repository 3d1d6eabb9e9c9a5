# The quiz menu, the session core, listen and select, and the result table every quiz kind shows.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/BaseQuizViewController.cpp ${CMAKE_CURRENT_LIST_DIR}/BaseQuizViewController.h
  ${CMAKE_CURRENT_LIST_DIR}/Listen2SelectVC.cpp ${CMAKE_CURRENT_LIST_DIR}/Listen2SelectVC.h
  ${CMAKE_CURRENT_LIST_DIR}/QuizAnswer.cpp ${CMAKE_CURRENT_LIST_DIR}/QuizAnswer.h
  ${CMAKE_CURRENT_LIST_DIR}/QuizLog.cpp ${CMAKE_CURRENT_LIST_DIR}/QuizLog.h
  ${CMAKE_CURRENT_LIST_DIR}/QuizOutlineVC.cpp ${CMAKE_CURRENT_LIST_DIR}/QuizOutlineVC.h
  ${CMAKE_CURRENT_LIST_DIR}/QuizResultModel.cpp ${CMAKE_CURRENT_LIST_DIR}/QuizResultModel.h
  # The score's colours and text, which the comparison pop-up's mark shares.
  ${CMAKE_CURRENT_LIST_DIR}/../app/ScoreText.cpp ${CMAKE_CURRENT_LIST_DIR}/../app/ScoreText.h
)
