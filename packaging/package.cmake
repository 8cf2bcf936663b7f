# SPDX-License-Identifier: MIT
# The Debian package: built by `cpack` or the target `package`.
if(NOT latestRelease VERSION_EQUAL PROJECT_VERSION)
  message(WARNING "The latest release in CHANGELOG.md is ${latestRelease}, the version is ${PROJECT_VERSION}")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quorvandel)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The Quorvandel developers")
set(CPACK_PACKAGE_CONTACT "The Quorvandel developers <developers@quorvandel.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://quorvandel.example/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "polar alignment of an equatorial telescope mount")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"A small camera turns with the mount and looks at the sky around the celestial
pole. Picking one star before and after two turns of the mount shows where
its axis points; the stars around Polaris or sigma Octantis show where the
pole is. The program shows both live while the bolts of the mount are turned.
.
The library of the camera's maker is needed for a real camera. A virtual
camera and a virtual mount are included, so that all of it can be practised
indoors.
.
The assistant, quorvandel-assistant, needs no star to be picked: connect, turn
the axis, turn the bolts until two numbers are small.
.
The command quorvandel-recognise finds the pole in pictures by their stars.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Opens the manual; the libraries are added automatically.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "xdg-utils")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "fonts-liberation, fonts-noto-cjk, libqt5multimedia5-plugins, gstreamer1.0-plugins-good, firefox-esr | www-browser")
# The virtual camera is loaded by name and has its own folder.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)

# Debian's own documents, and the compression that it requires, are added during packaging.
execute_process(COMMAND date --utc --rfc-email --date=${latestDay}
  OUTPUT_VARIABLE debianDay OUTPUT_STRIP_TRAILING_WHITESPACE)
configure_file(debian/changelog.in debian/changelog @ONLY)
configure_file(debian/finish.cmake.in debian/finish.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/debian/finish.cmake)
include(CPack)
