# The player engine shared by the player bars.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/VoPlayerBox.cpp ${CMAKE_CURRENT_LIST_DIR}/VoPlayerBox.h
  ${CMAKE_CURRENT_LIST_DIR}/VoPlayerBoxControls.cpp
  ${CMAKE_CURRENT_LIST_DIR}/VoPlayerBoxStart.cpp
)
