# flite as the target Flite::Flite, and a target for each voice that is asked for as a component,
# for instance Flite::cmu_us_slt. Found only when all of it is there.
include(FindPackageHandleStandardArgs)

find_path(FLITE_INCLUDE_DIR flite/flite.h)
find_library(FLITE_LIBRARY flite)
set(flite_parts FLITE_LIBRARY)
foreach(part ${Flite_FIND_COMPONENTS} usenglish cmulex)
  find_library(FLITE_${part}_LIBRARY flite_${part})
  list(APPEND flite_parts FLITE_${part}_LIBRARY)
endforeach()

find_package_handle_standard_args(Flite REQUIRED_VARS ${flite_parts} FLITE_INCLUDE_DIR)

if(Flite_FOUND AND NOT TARGET Flite::Flite)
  add_library(Flite::Flite INTERFACE IMPORTED)
  target_include_directories(Flite::Flite INTERFACE ${FLITE_INCLUDE_DIR})
  target_link_libraries(Flite::Flite INTERFACE ${FLITE_LIBRARY} m)
  foreach(voice ${Flite_FIND_COMPONENTS})
    add_library(Flite::${voice} INTERFACE IMPORTED)
    # In the order in which they need each other.
    target_link_libraries(Flite::${voice} INTERFACE
      ${FLITE_${voice}_LIBRARY} ${FLITE_usenglish_LIBRARY} ${FLITE_cmulex_LIBRARY} Flite::Flite)
  endforeach()
endif()
