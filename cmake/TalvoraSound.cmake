# What speaks and what reads and writes recordings, for the desktop program and the content compiler.
# What a build is made without is not looked for; it keeps silent and says so in its version.
if(TALVORA_SPEECH AND (TALVORA_DESKTOP OR TALVORA_PACK))
  find_package(Flite COMPONENTS cmu_us_awb cmu_us_rms cmu_us_slt)
  if(NOT Flite_FOUND)
    message(FATAL_ERROR "Talvora speaks with flite, and it was not found. On Debian, install "
      "flite1-dev; or build without speech: -DTALVORA_SPEECH=OFF")
  endif()
endif()
if(TALVORA_RECORDINGS AND (TALVORA_DESKTOP OR TALVORA_PACK))
  find_package(Sndfile)
  if(NOT Sndfile_FOUND)
    message(FATAL_ERROR "Talvora reads and writes recordings with libsndfile, and it was not found. "
      "On Debian, install libsndfile1-dev; or build without: -DTALVORA_RECORDINGS=OFF")
  endif()
endif()

# What the version says behind its number.
set(TALVORA_WITHOUT "")
if(NOT TALVORA_SPEECH AND NOT TALVORA_RECORDINGS)
  set(TALVORA_WITHOUT " (without speech and recordings)")
elseif(NOT TALVORA_SPEECH)
  set(TALVORA_WITHOUT " (without speech)")
elseif(NOT TALVORA_RECORDINGS)
  set(TALVORA_WITHOUT " (without recordings)")
endif()
