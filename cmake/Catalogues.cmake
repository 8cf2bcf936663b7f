# SPDX-License-Identifier: MIT
# Compiles Qt Linguist's catalogues into a library.

# bundle_catalogues(TARGET NAME PREFIX catalogue.ts...): compiles the catalogues and bundles them
# into the target as the resource NAME (Q_INIT_RESOURCE), each as PREFIX/catalogue.qm. The bundle
# uses relative paths and rcc runs in its folder: without a UTF-8 locale, rcc cannot find files
# whose path has non-ASCII letters.
function(bundle_catalogues TARGET NAME PREFIX)
  qt5_add_translation(compiled ${ARGN})
  set(CATALOGUE_FILES "")
  foreach(file IN LISTS compiled)
    cmake_path(GET file FILENAME name)
    string(APPEND CATALOGUE_FILES "        <file>${name}</file>\n")
  endforeach()
  set(bundle ${CMAKE_CURRENT_BINARY_DIR}/${NAME})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/catalogues.qrc.in ${bundle}.qrc @ONLY)
  set_source_files_properties(${bundle}.qrc PROPERTIES SKIP_AUTORCC ON)
  add_custom_command(
    OUTPUT ${bundle}.cpp
    COMMAND Qt5::rcc --name ${NAME} --output ${NAME}.cpp ${NAME}.qrc
    WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}
    DEPENDS ${bundle}.qrc ${compiled}
    COMMENT "Bundling the catalogues" VERBATIM)
  target_sources(${TARGET} PRIVATE ${bundle}.cpp)
endfunction()
