# SPDX-License-Identifier: MIT
# Compiles Qt Linguist's catalogues into a library, and updates them from the sources. The languages
# are those of the table in core/languages.h, the families of catalogues those of catalogues.txt.

set(families ${PROJECT_SOURCE_DIR}/cmake/catalogues.txt)
set(languages ${PROJECT_SOURCE_DIR}/core/languages.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${families} ${languages})

# What the catalogues' names end with: en_us, zh_cn, ...
file(READ ${languages} table)
string(REGEX MATCHALL "Language{\"[A-Z]+\", \"[a-z]+_[A-Z]+\"" rows "${table}")
set(CATALOGUE_SUFFIXES)
foreach(row IN LISTS rows)
  string(REGEX REPLACE ".*\"(.*)\"$" "\\1" suffix ${row})
  string(TOLOWER ${suffix} suffix)
  list(APPEND CATALOGUE_SUFFIXES ${suffix})
endforeach()
if(NOT CATALOGUE_SUFFIXES)
  message(FATAL_ERROR "core/languages.h: there is no table of languages")
endif()
list(GET CATALOGUE_SUFFIXES 0 ENGLISH_SUFFIX)

# Updates all catalogues from the sources; run by hand, never as part of a build.
add_custom_target(update_translations)

# bundle_catalogues(TARGET FAMILY): compiles a family's catalogues and bundles them into the target
# as the resource FAMILY_catalogues (Q_INIT_RESOURCE), each as :/languages/catalogue.qm. A family has
# a catalogue for each language; it may do without the English one. The bundle uses relative paths and
# rcc runs in its folder: without a UTF-8 locale, rcc cannot find files whose path has non-ASCII
# letters.
function(bundle_catalogues TARGET FAMILY)
  file(STRINGS ${families} row REGEX "^${FAMILY} ")
  separate_arguments(row UNIX_COMMAND "${row}")
  list(POP_FRONT row family folder)
  set(english ${PROJECT_SOURCE_DIR}/${folder}/${FAMILY}_${ENGLISH_SUFFIX}.ts)
  set(catalogues)
  foreach(suffix IN LISTS CATALOGUE_SUFFIXES)
    list(APPEND catalogues ${PROJECT_SOURCE_DIR}/${folder}/${FAMILY}_${suffix}.ts)
  endforeach()
  if(NOT EXISTS ${english})
    list(REMOVE_ITEM catalogues ${english})
  endif()
  update_catalogues(${FAMILY} "${english}" "${catalogues}" "${row}")

  qt5_add_translation(compiled ${catalogues})
  set(CATALOGUE_FILES "")
  foreach(file IN LISTS compiled)
    cmake_path(GET file FILENAME name)
    string(APPEND CATALOGUE_FILES "        <file>${name}</file>\n")
  endforeach()
  set(name ${FAMILY}_catalogues)
  set(bundle ${CMAKE_CURRENT_BINARY_DIR}/${name})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/catalogues.qrc.in ${bundle}.qrc @ONLY)
  set_source_files_properties(${bundle}.qrc PROPERTIES SKIP_AUTORCC ON)
  add_custom_command(
    OUTPUT ${bundle}.cpp
    COMMAND Qt5::rcc --name ${name} --output ${name}.cpp ${name}.qrc
    WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}
    DEPENDS ${bundle}.qrc ${compiled}
    COMMENT "Bundling the catalogues" VERBATIM)
  target_sources(${TARGET} PRIVATE ${bundle}.cpp)
endfunction()

# update_catalogues(FAMILY ENGLISH CATALOGUES FOLDERS): makes the texts of these folders part of
# update_translations. An English catalogue repeats the source texts: an empty one would not load.
function(update_catalogues FAMILY ENGLISH CATALOGUES FOLDERS)
  get_target_property(lupdate Qt5::lupdate IMPORTED_LOCATION)
  set(fill)
  if(ENGLISH IN_LIST CATALOGUES)
    set(fill COMMAND python3 tools/fill_english.py ${ENGLISH})
  endif()
  add_custom_target(update_${FAMILY}_translations
    COMMAND ${lupdate} -no-obsolete -locations none -source-language en_US -I . ${FOLDERS}
            -ts ${CATALOGUES}
    ${fill}
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    COMMENT "Updating the catalogues from the sources" VERBATIM)
  add_dependencies(update_translations update_${FAMILY}_translations)
endfunction()
