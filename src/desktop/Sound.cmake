# Speech and wave playing of the desktop as a library of its own, so that tests reach it. What brings
# libraries along lies in modules beside the program, loaded with the first sound that needs them.
find_package(Qt6 REQUIRED COMPONENTS Core Multimedia)

add_library(talvora-desktop-sound STATIC
  ${CMAKE_CURRENT_LIST_DIR}/Modules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/PcmPlayer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/Sound.cpp
  ${CMAKE_CURRENT_LIST_DIR}/SoundDevice.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ThreadedSpeech.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WaveOutput.cpp
)
target_link_libraries(talvora-desktop-sound PUBLIC talvora Qt6::Core PRIVATE ${CMAKE_DL_LIBS})
# Where the modules are installed, as seen from the program.
target_compile_definitions(talvora-desktop-sound PRIVATE TALVORA_MODULES="${TALVORA_MODULES_FROM_BIN}")

# The modules that this build has, for those that install them or load them from the build.
set_property(GLOBAL PROPERTY TALVORA_SOUND_MODULES "")

# A module of these sources and libraries.
function(talvora_sound_module module)
  cmake_parse_arguments(module "" "" "SOURCES;LIBRARIES" ${ARGN})
  # Tests take the sources without the module.
  add_library(${module}-parts OBJECT ${module_SOURCES})
  set_target_properties(${module}-parts PROPERTIES POSITION_INDEPENDENT_CODE ON)
  target_link_libraries(${module}-parts PUBLIC talvora-settings ${module_LIBRARIES} ${CMAKE_DL_LIBS})
  add_library(${module} MODULE)
  set_target_properties(${module} PROPERTIES PREFIX "")
  target_link_libraries(${module} PRIVATE ${module}-parts)
  add_dependencies(talvora-desktop-sound ${module})
  set_property(GLOBAL APPEND PROPERTY TALVORA_SOUND_MODULES ${module})
endfunction()

# For the programs that make sound.
function(talvora_finds_sound_modules program)
  get_property(modules GLOBAL PROPERTY TALVORA_SOUND_MODULES)
  foreach(module ${modules})
    set_property(TARGET ${program} APPEND PROPERTY BUILD_RPATH $<TARGET_FILE_DIR:${module}>)
  endforeach()
endfunction()

talvora_sound_module(talvora-sound-device
  SOURCES ${CMAKE_CURRENT_LIST_DIR}/QtPcmDevice.cpp
  LIBRARIES Qt6::Multimedia)
if(TALVORA_SPEECH)
  # The voices themselves are loaded with the first word.
  talvora_sound_module(talvora-voices
    SOURCES
      ${CMAKE_CURRENT_LIST_DIR}/FliteModule.cpp ${PROJECT_SOURCE_DIR}/src/fronts/FliteVoices.cpp
      ${PROJECT_SOURCE_DIR}/src/sound/FliteLexicon.cpp
    LIBRARIES Flite::Flite)
endif()
if(TALVORA_RECORDINGS)
  talvora_sound_module(talvora-recordings
    SOURCES ${CMAKE_CURRENT_LIST_DIR}/SndfileRecording.cpp
    LIBRARIES Sndfile::Sndfile)
endif()
