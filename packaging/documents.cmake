# Pages, licences, icons and metadata as they are installed.
set(TALVORA_MAN_PAGES talvora.1 talvora-pack.1)
if(TALVORA_DRIVER)
  list(APPEND TALVORA_MAN_PAGES talvora-driver.1)
endif()
set(TALVORA_FORMAT_PAGES talvora-content.5 talvora-pack.5)

find_program(GZIP gzip REQUIRED)
set(documents "")

# Compressed without a name and a time, so that two builds give the same bytes.
function(talvora_compressed from to)
  add_custom_command(OUTPUT ${to}
    COMMAND sh -c "${GZIP} -9n < '${from}' > '${to}'" DEPENDS ${from} VERBATIM)
  set(documents ${documents} ${to} PARENT_SCOPE)
endfunction()

file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/man/vi ${CMAKE_CURRENT_BINARY_DIR}/icons)
foreach(page ${TALVORA_MAN_PAGES} ${TALVORA_FORMAT_PAGES} vi/talvora.1)
  talvora_compressed(${CMAKE_CURRENT_SOURCE_DIR}/man/${page}
    ${CMAKE_CURRENT_BINARY_DIR}/man/${page}.gz)
endforeach()

# The day of the release, for pages that must name one: the same in every build of one state.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  string(TIMESTAMP TALVORA_RELEASE_DATE "%Y-%m-%d" UTC)
  string(TIMESTAMP TALVORA_RELEASE_TIME "%a, %d %b %Y %H:%M:%S +0000" UTC)
else()
  set(TALVORA_RELEASE_DATE 2026-11-22)
  set(TALVORA_RELEASE_TIME "Sun, 22 Nov 2026 12:00:00 +0000")
endif()
configure_file(${TALVORA_ID}.metainfo.xml.in ${TALVORA_ID}.metainfo.xml @ONLY)
configure_file(changelog.in changelog @ONLY)
talvora_compressed(${CMAKE_CURRENT_BINARY_DIR}/changelog
  ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz)

file(READ ${CMAKE_SOURCE_DIR}/LICENSE licence)
string(REGEX REPLACE "^MIT License\n\nCopyright[^\n]*\n\n" "" licence "${licence}")
string(REGEX REPLACE "\n+$" "" licence "${licence}")
string(REPLACE "\n\n" "\n.\n" licence "${licence}")
string(REPLACE "\n" "\n " TALVORA_LICENCE_INDENTED " ${licence}")
configure_file(copyright.in copyright @ONLY)

# The learner's manual and the teacher's guide, as pages and as books.
find_program(PANDOC pandoc)
find_program(WEASYPRINT weasyprint)
set(TALVORA_BOOKS "")

# Makes NAME.html and NAME.pdf of a source in a folder, with the pictures of another one.
function(talvora_book name folder source pictures)
  set(page ${CMAKE_CURRENT_BINARY_DIR}/${name}.html)
  set(style ${CMAKE_SOURCE_DIR}/docs/manual/style.css)
  file(GLOB used CONFIGURE_DEPENDS ${pictures}/*.png)
  add_custom_command(OUTPUT ${page}
    COMMAND ${PANDOC} --standalone --self-contained --toc --toc-depth=1 --css ${style}
      --metadata toc-title= -o ${page} ${source} ${ARGN}
    DEPENDS ${folder}/${source} ${style} ${used}
    WORKING_DIRECTORY ${folder} VERBATIM)
  set(made ${page})
  if(WEASYPRINT)
    set(book ${CMAKE_CURRENT_BINARY_DIR}/${name}.pdf)
    # Links lead to where the packages put what they name, not into this build's folder.
    add_custom_command(OUTPUT ${book}
      COMMAND ${WEASYPRINT} -q --base-url file:///usr/share/doc/talvora/ ${page} ${book}
      DEPENDS ${page} VERBATIM)
    list(APPEND made ${book})
  endif()
  set(TALVORA_BOOKS ${TALVORA_BOOKS} ${made} PARENT_SCOPE)
endfunction()

set(docs ${CMAKE_SOURCE_DIR}/docs)
if(PANDOC)
  talvora_book(manual ${docs}/manual manual.md ${docs}/manual/pictures)
  talvora_book(huong-dan-giao-vien ${docs} huong-dan-giao-vien.md ${docs}/teacher/pictures
    --shift-heading-level-by=-1 --metadata lang=vi)
  list(APPEND documents ${TALVORA_BOOKS})
endif()

# The licences of what is carried along are read from where the machine that builds has them.
function(talvora_licence list name)
  find_file(TALVORA_LICENCE_${name} NAMES ${ARGN} NO_DEFAULT_PATH PATHS
    /usr/share/doc /usr/share/licenses)
  mark_as_advanced(TALVORA_LICENCE_${name})
  if(NOT TALVORA_LICENCE_${name})
    message(WARNING "The licence of ${name} was not found: it has to be added to a package by hand.")
    return()
  endif()
  configure_file(${TALVORA_LICENCE_${name}} ${CMAKE_CURRENT_BINARY_DIR}/licences/${name} COPYONLY)
  set(${list} ${${list}} ${CMAKE_CURRENT_BINARY_DIR}/licences/${name} PARENT_SCOPE)
endfunction()
if(TALVORA_DESKTOP)
  talvora_licence(TALVORA_FONT_LICENCES lato
    fonts-lato/copyright lato-fonts/OFL.txt ttf-lato/OFL.txt)
  talvora_licence(TALVORA_FONT_LICENCES texgyre
    fonts-texgyre/copyright texlive-tex-gyre/COPYING tex-gyre-fonts/LICENSE)
endif()
talvora_licence(TALVORA_COURSE_LICENCES wordnet
  wordnet-base/copyright wordnet/LICENSE wordnet-common/LICENSE)
talvora_licence(TALVORA_COURSE_LICENCES flite libflite1/copyright flite/COPYING)

# One vector source, all sizes.
set(TALVORA_ICON_SIZES "")
find_program(RSVG_CONVERT rsvg-convert)
if(RSVG_CONVERT AND TALVORA_DESKTOP)
  set(TALVORA_ICON_SIZES 16 22 24 32 48 64 128 256 512)
  foreach(size ${TALVORA_ICON_SIZES})
    set(icon ${CMAKE_CURRENT_BINARY_DIR}/icons/${size}.png)
    add_custom_command(OUTPUT ${icon}
      COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${icon}
        ${CMAKE_CURRENT_SOURCE_DIR}/${TALVORA_ID}.svg
      DEPENDS ${TALVORA_ID}.svg VERBATIM)
    list(APPEND documents ${icon})
  endforeach()
endif()

add_custom_target(talvora-documents ALL DEPENDS ${documents})
