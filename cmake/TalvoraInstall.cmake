# Where things go when they are installed: the one truth for packages, archives and `cmake --install`.
include(GNUInstallDirs)

# One name for the desktop, the icon, the metadata and the window.
set(TALVORA_ID org.talvora.talvora)

# The sound device lies in a folder of the program's own.
set(TALVORA_MODULES_DIR ${CMAKE_INSTALL_LIBDIR}/talvora/modules)
file(RELATIVE_PATH TALVORA_MODULES_FROM_BIN
  /${CMAKE_INSTALL_BINDIR} /${TALVORA_MODULES_DIR})

# The compiler's messages in other languages than English.
file(RELATIVE_PATH TALVORA_TRANSLATIONS_FROM_BIN
  /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LOCALEDIR})
