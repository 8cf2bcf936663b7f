# SPDX-License-Identifier: MIT
# Finds CFITSIO, the library of FITS files, as the package libcfitsio-dev brings it. Defines the
# target CFITSIO::CFITSIO.
find_path(CFITSIO_INCLUDE_DIR fitsio.h PATH_SUFFIXES cfitsio)
find_library(CFITSIO_LIBRARY cfitsio)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(CFITSIO REQUIRED_VARS CFITSIO_LIBRARY CFITSIO_INCLUDE_DIR)
if(CFITSIO_FOUND AND NOT TARGET CFITSIO::CFITSIO)
  add_library(CFITSIO::CFITSIO INTERFACE IMPORTED)
  target_include_directories(CFITSIO::CFITSIO SYSTEM INTERFACE ${CFITSIO_INCLUDE_DIR})
  target_link_libraries(CFITSIO::CFITSIO INTERFACE ${CFITSIO_LIBRARY})
endif()
mark_as_advanced(CFITSIO_INCLUDE_DIR CFITSIO_LIBRARY)
