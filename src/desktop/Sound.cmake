# Speech and wave playing of the desktop as a library of its own, so that tests reach it. What is
# not installed is replaced by a silent one.
find_package(Qt6 REQUIRED COMPONENTS Multimedia)
find_library(SNDFILE_LIBRARY sndfile)
find_package(Flite COMPONENTS cmu_us_awb cmu_us_rms cmu_us_slt)

add_library(talvora-desktop-sound STATIC
  ${CMAKE_CURRENT_LIST_DIR}/PcmPlayer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/QtPcmDevice.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SilentSpeech.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Sound.cpp
)
target_link_libraries(talvora-desktop-sound PUBLIC talvora Qt6::Multimedia)

if(Flite_FOUND)
  target_sources(talvora-desktop-sound PRIVATE ${CMAKE_CURRENT_LIST_DIR}/FliteSpeech.cpp)
  target_compile_definitions(talvora-desktop-sound PUBLIC TALVORA_HAS_FLITE)
  # The voices are loaded with the first word.
  target_link_libraries(talvora-desktop-sound PRIVATE Flite::Flite ${CMAKE_DL_LIBS})
else()
  message(STATUS "flite was not found: the program is built without a speaking voice")
endif()

if(SNDFILE_LIBRARY)
  target_sources(talvora-desktop-sound PRIVATE ${CMAKE_CURRENT_LIST_DIR}/WaveOutput.cpp)
  target_compile_definitions(talvora-desktop-sound PUBLIC TALVORA_HAS_SNDFILE)
  target_link_libraries(talvora-desktop-sound PUBLIC ${SNDFILE_LIBRARY})
else()
  message(STATUS "libsndfile was not found: the program is built without recordings")
endif()
