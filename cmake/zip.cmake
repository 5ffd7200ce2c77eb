# Zip files are unpacked with libarchive. All else works without it.
find_package(LibArchive QUIET)
if(NOT LibArchive_FOUND)
  message(WARNING "libarchive was not found (Debian: libarchive-dev): the installer of figures will not "
    "unpack zip files by itself")
endif()
