# Speech and wave playing of the desktop as a library of its own, so that tests reach it. What is
# not installed is replaced by a silent one.
find_package(Qt6 REQUIRED COMPONENTS Multimedia)
find_library(SNDFILE_LIBRARY sndfile)
find_path(FLITE_INCLUDE_DIR flite/flite.h)
set(FLITE_LIBRARIES)
# In the order in which they need each other.
foreach(part cmu_us_kal cmu_us_awb cmu_us_rms cmu_us_slt usenglish cmulex)
  find_library(FLITE_${part}_LIBRARY flite_${part})
  list(APPEND FLITE_LIBRARIES ${FLITE_${part}_LIBRARY})
endforeach()
find_library(FLITE_LIBRARY flite)
list(APPEND FLITE_LIBRARIES ${FLITE_LIBRARY} m)

add_library(talvora-desktop-sound STATIC
  ${CMAKE_CURRENT_LIST_DIR}/PcmPlayer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/QtPcmDevice.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Sound.cpp
)
target_link_libraries(talvora-desktop-sound PUBLIC talvora Qt6::Multimedia)

if(FLITE_INCLUDE_DIR AND NOT "${FLITE_LIBRARIES}" MATCHES "NOTFOUND")
  target_sources(talvora-desktop-sound PRIVATE ${CMAKE_CURRENT_LIST_DIR}/FliteSpeech.cpp)
  target_compile_definitions(talvora-desktop-sound PUBLIC TALVORA_HAS_FLITE)
  target_include_directories(talvora-desktop-sound SYSTEM PRIVATE ${FLITE_INCLUDE_DIR})
  target_link_libraries(talvora-desktop-sound PRIVATE ${FLITE_LIBRARIES})
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
