# Speech and wave playing of the desktop as a library of its own, so that tests reach it. What is
# not installed is replaced by a silent one.
find_package(Qt6 REQUIRED COMPONENTS Core Multimedia)
find_library(SNDFILE_LIBRARY sndfile)
find_package(Flite COMPONENTS cmu_us_awb cmu_us_rms cmu_us_slt)

add_library(talvora-desktop-sound STATIC
  ${CMAKE_CURRENT_LIST_DIR}/PcmPlayer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SilentSpeech.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Sound.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SoundDevice.cpp
)
target_link_libraries(talvora-desktop-sound PUBLIC talvora Qt6::Core PRIVATE ${CMAKE_DL_LIBS})

# The device is loaded with the first sound: where it is installed, as seen from the program.
target_compile_definitions(talvora-desktop-sound PRIVATE TALVORA_MODULES="${TALVORA_MODULES_FROM_BIN}")
add_library(talvora-sound-device MODULE ${CMAKE_CURRENT_LIST_DIR}/QtPcmDevice.cpp)
set_target_properties(talvora-sound-device PROPERTIES PREFIX "")
target_include_directories(talvora-sound-device PRIVATE ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(talvora-sound-device PRIVATE talvora-settings Qt6::Multimedia)
add_dependencies(talvora-desktop-sound talvora-sound-device)

# For the programs that make sound.
function(talvora_finds_sound_device program)
  set_property(TARGET ${program} APPEND PROPERTY
    BUILD_RPATH $<TARGET_FILE_DIR:talvora-sound-device>)
endfunction()

if(Flite_FOUND)
  target_sources(talvora-desktop-sound PRIVATE ${CMAKE_CURRENT_LIST_DIR}/FliteSpeech.cpp
    ${PROJECT_SOURCE_DIR}/src/sound/FliteLexicon.cpp)
  target_compile_definitions(talvora-desktop-sound PUBLIC TALVORA_HAS_FLITE)
  # The voices are loaded with the first word.
  target_link_libraries(talvora-desktop-sound PRIVATE Flite::Flite)
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
