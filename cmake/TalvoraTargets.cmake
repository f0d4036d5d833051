# The compiler settings that every target of the project shares.
add_library(talvora-settings INTERFACE)
target_compile_options(talvora-settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
  -Wconversion -Wsign-conversion
  # g++ 12 sees overlapping copies in the joining of texts where there are none.
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op -Wno-restrict>)
if(TALVORA_WERROR)
  target_compile_options(talvora-settings INTERFACE -Werror)
endif()
target_include_directories(talvora-settings INTERFACE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR})
if(TALVORA_SANITIZE)
  target_compile_options(talvora-settings INTERFACE
    -fsanitize=${TALVORA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(talvora-settings INTERFACE -fsanitize=${TALVORA_SANITIZE})
endif()
if(TALVORA_FUZZER)
  target_compile_options(talvora-settings INTERFACE
    -fsanitize=fuzzer-no-link -fprofile-instr-generate -fcoverage-mapping)
  target_link_options(talvora-settings INTERFACE -fprofile-instr-generate)
endif()

# For the programs that tell their version.
function(talvora_knows_its_version program)
  target_compile_definitions(${program} PRIVATE
    TALVORA_VERSION="${PROJECT_VERSION}" TALVORA_WITHOUT="${TALVORA_WITHOUT}")
endfunction()
