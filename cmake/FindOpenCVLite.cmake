# SPDX-License-Identifier: MIT
# Finds OpenCV 4's core, imgproc and imgcodecs by their files alone, as the packages
# libopencv-core-dev, libopencv-imgproc-dev and libopencv-imgcodecs-dev bring them: the CMake package
# of OpenCV would pull in every module. Defines the targets OpenCVLite::OpenCV (core and imgproc) and
# OpenCVLite::imgcodecs.
find_path(OpenCVLite_INCLUDE_DIR opencv2/core.hpp PATH_SUFFIXES opencv4)
find_library(OpenCVLite_CORE opencv_core)
find_library(OpenCVLite_IMGPROC opencv_imgproc)
find_library(OpenCVLite_IMGCODECS opencv_imgcodecs)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenCVLite REQUIRED_VARS
  OpenCVLite_CORE OpenCVLite_IMGPROC OpenCVLite_IMGCODECS OpenCVLite_INCLUDE_DIR)
if(OpenCVLite_FOUND AND NOT TARGET OpenCVLite::OpenCV)
  add_library(OpenCVLite::OpenCV INTERFACE IMPORTED)
  target_include_directories(OpenCVLite::OpenCV SYSTEM INTERFACE ${OpenCVLite_INCLUDE_DIR})
  target_link_libraries(OpenCVLite::OpenCV INTERFACE ${OpenCVLite_CORE} ${OpenCVLite_IMGPROC})
  add_library(OpenCVLite::imgcodecs INTERFACE IMPORTED)
  target_link_libraries(OpenCVLite::imgcodecs INTERFACE OpenCVLite::OpenCV ${OpenCVLite_IMGCODECS})
endif()
mark_as_advanced(OpenCVLite_INCLUDE_DIR OpenCVLite_CORE OpenCVLite_IMGPROC OpenCVLite_IMGCODECS)
