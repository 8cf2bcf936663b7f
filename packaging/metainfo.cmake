# SPDX-License-Identifier: MIT
# What software centres show: the screenshots, and the releases from CHANGELOG.md.

# File in docs/images and caption; lists show the first one.
set(pictures
  "north/step-13-aligned.png|The pole mark is on the axis mark: aligned"
  "north/step-02-template.png|The template is turned until it matches the stars around Polaris"
  "north/step-08-axis.png|Three positions of one star show where the axis points"
  "assistant/bolts.png|The assistant says which way each bolt must go, and how far"
  "south/step-13-aligned.png|South of the equator, by the stars around sigma Octantis")
set(screenshots "")
set(type " type=\"default\"")
foreach(picture IN LISTS pictures)
  string(REGEX MATCH "^(.*)\\|(.*)$" matched "${picture}")
  string(APPEND screenshots
    "    <screenshot${type}>\n"
    "      <caption>${CMAKE_MATCH_2}</caption>\n"
    "      <image>https://quorvandel.example/images/${CMAKE_MATCH_1}</image>\n"
    "    </screenshot>\n")
  set(type "")
endforeach()

# Newest first.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
file(STRINGS ${CMAKE_SOURCE_DIR}/CHANGELOG.md headings REGEX "^## \\[[0-9]")
set(releases "")
set(latestRelease "")
foreach(heading IN LISTS headings)
  if(NOT heading MATCHES "^## .([0-9.]+). - ([0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9])$")
    message(FATAL_ERROR "CHANGELOG.md: not a release heading: ${heading}")
  endif()
  string(APPEND releases "    <release version=\"${CMAKE_MATCH_1}\" date=\"${CMAKE_MATCH_2}\"/>\n")
  if(NOT latestRelease)
    set(latestRelease ${CMAKE_MATCH_1})
  endif()
endforeach()

if(NOT latestRelease VERSION_EQUAL PROJECT_VERSION)
  message(WARNING "The latest release in CHANGELOG.md is ${latestRelease}, the version is ${PROJECT_VERSION}")
endif()

set(metainfo example.quorvandel.quorvandel.metainfo.xml)
configure_file(${metainfo}.in ${metainfo} @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
