# A recording's spectrum as a picture with its own player bar, and the button picture helpers.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/VoAudioSpectrumView.cpp ${CMAKE_CURRENT_LIST_DIR}/VoAudioSpectrumView.h
  ${CMAKE_CURRENT_LIST_DIR}/VoImageUtil.cpp ${CMAKE_CURRENT_LIST_DIR}/VoImageUtil.h
  ${CMAKE_CURRENT_LIST_DIR}/VoSpectrumPanel.cpp ${CMAKE_CURRENT_LIST_DIR}/VoSpectrumPanel.h
)
