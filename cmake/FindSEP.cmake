# SPDX-License-Identifier: MIT
# Finds SEP, the library of source extraction, as the package libsep-dev brings it: without
# pkg-config or CMake files. Defines the target SEP::SEP.
find_path(SEP_INCLUDE_DIR sep.h)
find_library(SEP_LIBRARY sep)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(SEP REQUIRED_VARS SEP_LIBRARY SEP_INCLUDE_DIR)
if(SEP_FOUND AND NOT TARGET SEP::SEP)
  add_library(SEP::SEP INTERFACE IMPORTED)
  target_include_directories(SEP::SEP SYSTEM INTERFACE ${SEP_INCLUDE_DIR})
  target_link_libraries(SEP::SEP INTERFACE ${SEP_LIBRARY})
endif()
mark_as_advanced(SEP_INCLUDE_DIR SEP_LIBRARY)
