# Decoder configuration and recognition: the option list, the decoder, word results and the
# log power spectrum beside it.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/DecoderArguments.cpp ${CMAKE_CURRENT_LIST_DIR}/DecoderArguments.h
  ${CMAKE_CURRENT_LIST_DIR}/DecoderLog.cpp ${CMAKE_CURRENT_LIST_DIR}/DecoderLog.h
  ${CMAKE_CURRENT_LIST_DIR}/FrontEndFraming.cpp ${CMAKE_CURRENT_LIST_DIR}/FrontEndFraming.h
  ${CMAKE_CURRENT_LIST_DIR}/RunBeside.h
  ${CMAKE_CURRENT_LIST_DIR}/LogPowerSpectrum.cpp ${CMAKE_CURRENT_LIST_DIR}/LogPowerSpectrum.h
  ${CMAKE_CURRENT_LIST_DIR}/VoCommandArray.cpp ${CMAKE_CURRENT_LIST_DIR}/VoCommandArray.h
  ${CMAKE_CURRENT_LIST_DIR}/VoPSRecognizer.cpp
)
