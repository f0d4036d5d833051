# The course, made along with the program when it is to be installed. Sets TALVORA_COURSE_FOLDER.
set(TALVORA_COURSE_FOLDER ${CMAKE_BINARY_DIR}/course)
if(TALVORA_COURSE)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/content/*)
  add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/course.stamp
    COMMAND talvora-pack build ${CMAKE_SOURCE_DIR}/content ${TALVORA_COURSE_FOLDER}
    COMMAND talvora-pack compress ${TALVORA_COURSE_FOLDER}
    COMMAND ${CMAKE_COMMAND} -E touch ${CMAKE_BINARY_DIR}/course.stamp
    DEPENDS talvora-pack ${sources}
    COMMENT "Making the course" USES_TERMINAL VERBATIM)
  add_custom_target(talvora-course ALL DEPENDS ${CMAKE_BINARY_DIR}/course.stamp)
endif()
