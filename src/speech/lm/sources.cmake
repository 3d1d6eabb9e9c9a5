# The language-model toolkit: corpus to ARPA trigram model.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/LmToolkit.h
)
