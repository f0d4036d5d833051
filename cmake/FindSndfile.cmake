# libsndfile as the target Sndfile::Sndfile.
include(FindPackageHandleStandardArgs)

find_path(SNDFILE_INCLUDE_DIR sndfile.hh)
find_library(SNDFILE_LIBRARY sndfile)

find_package_handle_standard_args(Sndfile REQUIRED_VARS SNDFILE_LIBRARY SNDFILE_INCLUDE_DIR)

if(Sndfile_FOUND AND NOT TARGET Sndfile::Sndfile)
  add_library(Sndfile::Sndfile INTERFACE IMPORTED)
  target_include_directories(Sndfile::Sndfile INTERFACE ${SNDFILE_INCLUDE_DIR})
  target_link_libraries(Sndfile::Sndfile INTERFACE ${SNDFILE_LIBRARY})
endif()
