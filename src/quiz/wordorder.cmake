# The word-order quiz: the screen, its work area of draggable word labels and their layout.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/wordorder/WordOrderAdjustVC.cpp ${CMAKE_CURRENT_LIST_DIR}/wordorder/WordOrderAdjustVC.h
  ${CMAKE_CURRENT_LIST_DIR}/wordorder/WordOrderBoard.cpp ${CMAKE_CURRENT_LIST_DIR}/wordorder/WordOrderBoard.h
  ${CMAKE_CURRENT_LIST_DIR}/wordorder/WordRows.cpp ${CMAKE_CURRENT_LIST_DIR}/wordorder/WordRows.h
)
# The QML type registration includes the screen and the board by file name.
target_include_directories(tolvane_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/wordorder)
