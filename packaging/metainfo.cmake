# SPDX-License-Identifier: MIT
# What software centres show of the two programs: screenshots, and the releases from CHANGELOG.md.

# File in docs/images and caption; lists show the first one.
set(pictures
  "north/step-13-aligned.png|The pole mark is on the axis mark: aligned"
  "north/step-02-template.png|The template is turned until it matches the stars around Polaris"
  "north/step-08-axis.png|Three positions of one star show where the axis points"
  "assistant/bolts.png|The assistant says which way each bolt must go, and how far"
  "south/step-13-aligned.png|South of the equator, by the stars around sigma Octantis")
set(assistantPictures
  "assistant/bolts.png|An arrow and a number for each bolt, with their uncertainty"
  "assistant/axis.png|The axis appears as the mount is turned"
  "assistant/large.png|The large view can be read from three metres"
  "assistant/red.png|The red theme keeps eyes used to the dark"
  "assistant/report.png|The report at the end")

# list_screenshots(OUT "FILE|CAPTION" ...): their elements.
function(list_screenshots OUT)
  set(screenshots "")
  set(type " type=\"default\"")
  foreach(picture IN LISTS ARGN)
    string(REGEX MATCH "^(.*)\\|(.*)$" matched "${picture}")
    string(APPEND screenshots
      "    <screenshot${type}>\n"
      "      <caption>${CMAKE_MATCH_2}</caption>\n"
      "      <image>https://quorvandel.example/images/${CMAKE_MATCH_1}</image>\n"
      "    </screenshot>\n")
    set(type "")
  endforeach()
  set(${OUT} "${screenshots}" PARENT_SCOPE)
endfunction()
list_screenshots(screenshots ${pictures})
list_screenshots(assistantScreenshots ${assistantPictures})

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

foreach(application IN ITEMS quorvandel assistant)
  set(metainfo example.quorvandel.${application}.metainfo.xml)
  configure_file(${metainfo}.in ${metainfo} @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${metainfo}
          DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
endforeach()
