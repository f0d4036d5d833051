# Two Debian packages: the program, and the course that any machine can read.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME talvora)
# Each package has a summary of its own, the first line of its description.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_VENDOR "The Talvora founders")
set(CPACK_PACKAGE_CONTACT "The Talvora founders <founders@talvora.org>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL talvora talvora-course)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
   OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_TALVORA_PACKAGE_NAME talvora)
set(CPACK_DEBIAN_TALVORA_PACKAGE_SHLIBDEPS ON)
# Loaded when they are needed, so that no linker knows of them.
set(CPACK_DEBIAN_TALVORA_PACKAGE_DEPENDS "talvora-course, libflite1, qt6-qpa-plugins")
set(CPACK_DEBIAN_TALVORA_PACKAGE_RECOMMENDS "qt6-wayland")
set(CPACK_COMPONENT_TALVORA_DESCRIPTION "tutor of English for speakers of Vietnamese
Read a text, click any word and get its entry and hear it; take a whole
sentence with its translation; collect words; work through rule lessons and
exercises whose explanations link back to the lessons; listen and pick; take
dictation; and study texts that are analysed word by word.

Everything runs on one machine, offline. What a learner collects lies in a
folder of its own and is stored the moment it is taken.")

set(CPACK_DEBIAN_TALVORA-COURSE_PACKAGE_NAME talvora-course)
set(CPACK_DEBIAN_TALVORA-COURSE_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_TALVORA-COURSE_PACKAGE_RECOMMENDS talvora)
set(CPACK_COMPONENT_TALVORA-COURSE_DESCRIPTION "course of the tutor Talvora
A year of lessons of English for speakers of Vietnamese, from the first words
to B2: graded stories and texts with translations, a dictionary, rule lessons,
exercises, listening, dictation, situations to speak in, analysed sentences.")

include(CPack)
