# Audio decoding, WAV files and the lap timer.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/AudioDataInfo.h
  ${CMAKE_CURRENT_LIST_DIR}/AudioPowerSpectrumInfo.h
  ${CMAKE_CURRENT_LIST_DIR}/VoAudioUtil.h
  ${CMAKE_CURRENT_LIST_DIR}/VoTimer.h
)
