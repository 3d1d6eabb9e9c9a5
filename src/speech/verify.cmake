# The acoustic check of a reading: forced alignment against a free phone loop, goodness per word
# and sound, the letters and IPA of a sound, and the mark a learner sees.
target_sources(tolvane_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/verify/ReadingMark.cpp ${CMAKE_CURRENT_LIST_DIR}/verify/ReadingMark.h
  ${CMAKE_CURRENT_LIST_DIR}/verify/ReadingVerification.cpp
  ${CMAKE_CURRENT_LIST_DIR}/verify/ReadingVerification.h
  ${CMAKE_CURRENT_LIST_DIR}/verify/ReadingVerifier.cpp
  ${CMAKE_CURRENT_LIST_DIR}/verify/ReadingVerifier.h
  ${CMAKE_CURRENT_LIST_DIR}/verify/SoundSpelling.cpp
  ${CMAKE_CURRENT_LIST_DIR}/verify/SoundSpelling.h
  ${CMAKE_CURRENT_LIST_DIR}/verify/VerificationDecoder.cpp
  ${CMAKE_CURRENT_LIST_DIR}/verify/VerificationDecoder.h
)
