# The language-model toolkit: corpus to ARPA trigram model.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/LmToolkit.h
  # the four steps
  ${CMAKE_CURRENT_LIST_DIR}/Text2Wfreq.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Wfreq2Vocab.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Text2IdNgram.cpp
  ${CMAKE_CURRENT_LIST_DIR}/IdNgram2Lm.cpp
  # what they share: files, tokens, arguments, the estimate and the ARPA writer
  ${CMAKE_CURRENT_LIST_DIR}/ArpaWriter.cpp ${CMAKE_CURRENT_LIST_DIR}/ArpaWriter.h
  ${CMAKE_CURRENT_LIST_DIR}/CorpusTokens.cpp ${CMAKE_CURRENT_LIST_DIR}/CorpusTokens.h
  ${CMAKE_CURRENT_LIST_DIR}/IdNgramFile.cpp ${CMAKE_CURRENT_LIST_DIR}/IdNgramFile.h
  ${CMAKE_CURRENT_LIST_DIR}/LmFiles.cpp ${CMAKE_CURRENT_LIST_DIR}/LmFiles.h
  ${CMAKE_CURRENT_LIST_DIR}/LmLog.cpp ${CMAKE_CURRENT_LIST_DIR}/LmLog.h
  ${CMAKE_CURRENT_LIST_DIR}/ToolArguments.cpp ${CMAKE_CURRENT_LIST_DIR}/ToolArguments.h
  ${CMAKE_CURRENT_LIST_DIR}/VocabularyFile.cpp ${CMAKE_CURRENT_LIST_DIR}/VocabularyFile.h
  ${CMAKE_CURRENT_LIST_DIR}/WittenBellModel.cpp ${CMAKE_CURRENT_LIST_DIR}/WittenBellModel.h
)
