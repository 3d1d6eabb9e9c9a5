# Sources of the trainer (speech/): a phrase's dictionary and language model.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/LanguageModelError.h
  ${CMAKE_CURRENT_LIST_DIR}/NgramModelFile.cpp ${CMAKE_CURRENT_LIST_DIR}/NgramModelFile.h
  ${CMAKE_CURRENT_LIST_DIR}/PronunciationList.cpp ${CMAKE_CURRENT_LIST_DIR}/PronunciationList.h
  ${CMAKE_CURRENT_LIST_DIR}/VoLanguageModelTrainer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/VoLanguageModelTrainer.h
  ${CMAKE_CURRENT_LIST_DIR}/VoLanguageModelTrainerToolkit.cpp
)
