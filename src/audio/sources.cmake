# Audio decoding, WAV files and the lap timer.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/AudioDataInfo.h
  ${CMAKE_CURRENT_LIST_DIR}/AudioDecodeStatus.h
  ${CMAKE_CURRENT_LIST_DIR}/AudioHandles.h
  ${CMAKE_CURRENT_LIST_DIR}/AudioLog.cpp ${CMAKE_CURRENT_LIST_DIR}/AudioLog.h
  ${CMAKE_CURRENT_LIST_DIR}/AudioPlayer.cpp ${CMAKE_CURRENT_LIST_DIR}/AudioPlayer.h
  ${CMAKE_CURRENT_LIST_DIR}/AudioPowerSpectrumInfo.h
  ${CMAKE_CURRENT_LIST_DIR}/Mono16kResampler.cpp ${CMAKE_CURRENT_LIST_DIR}/Mono16kResampler.h
  ${CMAKE_CURRENT_LIST_DIR}/SoundFileReader.cpp ${CMAKE_CURRENT_LIST_DIR}/SoundFileReader.h
  ${CMAKE_CURRENT_LIST_DIR}/VoAudioUtil.cpp ${CMAKE_CURRENT_LIST_DIR}/VoAudioUtil.h
  ${CMAKE_CURRENT_LIST_DIR}/VoAudioUtilConvert.cpp
  ${CMAKE_CURRENT_LIST_DIR}/VoAudioUtilWaveLayout.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SpectrumImage.cpp ${CMAKE_CURRENT_LIST_DIR}/SpectrumImage.h
  ${CMAKE_CURRENT_LIST_DIR}/VoTimer.h
)
