# Audio output: the decoding and stretching pipeline, the player over it with its two outputs
# (a sound device through QAudioSink, or none), the offline renderer and playSound.
pkg_check_modules(SOUNDTOUCH REQUIRED IMPORTED_TARGET soundtouch)

target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/AudioRenderer.cpp ${CMAKE_CURRENT_LIST_DIR}/AudioRenderer.h
  ${CMAKE_CURRENT_LIST_DIR}/PlaybackClock.cpp ${CMAKE_CURRENT_LIST_DIR}/PlaybackClock.h
  ${CMAKE_CURRENT_LIST_DIR}/PlaybackBounds.h
  ${CMAKE_CURRENT_LIST_DIR}/PlaySound.cpp ${CMAKE_CURRENT_LIST_DIR}/PlaySound.h
  ${CMAKE_CURRENT_LIST_DIR}/SilentSoundOutput.cpp ${CMAKE_CURRENT_LIST_DIR}/SilentSoundOutput.h
  ${CMAKE_CURRENT_LIST_DIR}/SinkSoundOutput.cpp ${CMAKE_CURRENT_LIST_DIR}/SinkSoundOutput.h
  ${CMAKE_CURRENT_LIST_DIR}/SoundOutput.h
  ${CMAKE_CURRENT_LIST_DIR}/StretchedStream.cpp ${CMAKE_CURRENT_LIST_DIR}/StretchedStream.h
  ${CMAKE_CURRENT_LIST_DIR}/StretchedStreamDevice.cpp
  ${CMAKE_CURRENT_LIST_DIR}/StretchedStreamDevice.h
  ${CMAKE_CURRENT_LIST_DIR}/TempoAudioPlayer.cpp ${CMAKE_CURRENT_LIST_DIR}/TempoAudioPlayer.h
)
target_link_libraries(tolvane_core PRIVATE PkgConfig::SOUNDTOUCH Qt6::Multimedia)
