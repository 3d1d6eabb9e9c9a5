# Settings, user info and the rating prompt.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/AppConfig.cpp ${CMAKE_CURRENT_LIST_DIR}/AppConfig.h
  ${CMAKE_CURRENT_LIST_DIR}/ExternalLinks.cpp ${CMAKE_CURRENT_LIST_DIR}/ExternalLinks.h
  ${CMAKE_CURRENT_LIST_DIR}/RatingPrompt.cpp ${CMAKE_CURRENT_LIST_DIR}/RatingPrompt.h
  ${CMAKE_CURRENT_LIST_DIR}/SettingViewController.cpp ${CMAKE_CURRENT_LIST_DIR}/SettingViewController.h
  ${CMAKE_CURRENT_LIST_DIR}/TestDurPickerView.cpp ${CMAKE_CURRENT_LIST_DIR}/TestDurPickerView.h
  ${CMAKE_CURRENT_LIST_DIR}/UserInfoVC.cpp ${CMAKE_CURRENT_LIST_DIR}/UserInfoVC.h
)
# The rating prompt asks once per version; the version is the project's.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/AppConfig.cpp
  PROPERTIES COMPILE_DEFINITIONS TOLVANE_VERSION="${PROJECT_VERSION}")
