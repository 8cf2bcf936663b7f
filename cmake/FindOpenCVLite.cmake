# SPDX-License-Identifier: MIT
# Finds OpenCV 4's core and imgproc by their files, as the packages libopencv-core-dev and
# libopencv-imgproc-dev install them: OpenCV's CMake package would pull in every module. Defines the
# target OpenCVLite::OpenCV.
find_path(OpenCVLite_INCLUDE_DIR opencv2/core.hpp PATH_SUFFIXES opencv4)
find_library(OpenCVLite_CORE opencv_core)
find_library(OpenCVLite_IMGPROC opencv_imgproc)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCVLite REQUIRED_VARS
  OpenCVLite_CORE OpenCVLite_IMGPROC OpenCVLite_INCLUDE_DIR)
if(OpenCVLite_FOUND AND NOT TARGET OpenCVLite::OpenCV)
  add_library(OpenCVLite::OpenCV INTERFACE IMPORTED)
  target_include_directories(OpenCVLite::OpenCV SYSTEM INTERFACE ${OpenCVLite_INCLUDE_DIR})
  target_link_libraries(OpenCVLite::OpenCV INTERFACE ${OpenCVLite_CORE} ${OpenCVLite_IMGPROC})
endif()
mark_as_advanced(OpenCVLite_INCLUDE_DIR OpenCVLite_CORE OpenCVLite_IMGPROC)
