# The program carries its faces along, so that its pages look the same on every machine. They are
# found where Debian, Fedora, Arch and TeX Live put them. Sets TALVORA_FONT_RESOURCES, which belongs
# to the sources of whoever has Fonts.cpp.
set(TALVORA_FONT_FOLDERS
  /usr/share/texmf/fonts/opentype/public/tex-gyre
  /usr/share/texmf-dist/fonts/opentype/public/tex-gyre
  /usr/share/texlive/texmf-dist/fonts/opentype/public/tex-gyre
  /usr/share/fonts/opentype/tex-gyre
  /usr/share/fonts/tex-gyre
  /usr/share/fonts/truetype/lato
  /usr/share/fonts/lato
  /usr/share/fonts/TTF
  /usr/share/texmf-dist/fonts/truetype/typoland/lato
  /usr/share/texlive/texmf-dist/fonts/truetype/typoland/lato
)

set(TALVORA_FONT_ENTRIES "")
foreach(face
    texgyreschola-regular.otf texgyreschola-bold.otf
    Lato-Regular.ttf Lato-Semibold.ttf Lato-Bold.ttf Lato-Italic.ttf Lato-SemiboldItalic.ttf)
  find_file(TALVORA_FONT_${face} ${face} PATHS ${TALVORA_FONT_FOLDERS} NO_DEFAULT_PATH)
  mark_as_advanced(TALVORA_FONT_${face})
  if(NOT TALVORA_FONT_${face})
    message(FATAL_ERROR "The font file ${face} was not found. Install fonts-texgyre and "
      "fonts-lato, or set TALVORA_FONT_${face} to its path.")
  endif()
  string(APPEND TALVORA_FONT_ENTRIES "<file alias=\"${face}\">${TALVORA_FONT_${face}}</file>\n")
endforeach()
file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/fonts.qrc CONTENT
  "<RCC><qresource prefix=\"/fonts\">\n${TALVORA_FONT_ENTRIES}</qresource></RCC>\n" @ONLY)
# Kept uncompressed: a face is then read in place when the program starts.
qt6_add_big_resources(TALVORA_FONT_RESOURCES ${CMAKE_CURRENT_BINARY_DIR}/fonts.qrc
  OPTIONS -no-compress)
