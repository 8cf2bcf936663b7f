# SPDX-License-Identifier: MIT
# Joined tests: a build that joins sources compiles the tests of a folder as one and links them to one
# executable, up to 24 at a time; that takes a third of the time. Each test keeps a file of its own, a hard
# link, whose name says which test runs. The test's own target is still there, to build it alone.

set(joined_tests_most 24)

# join_test(TARGET DEPENDENT): lets a test be built with the others of its folder on which the target
# DEPENDENT depends too, or by itself if it `stands_alone`.
function(join_test TARGET DEPENDENT)
  set_property(TARGET ${TARGET} PROPERTY DEPENDENT ${DEPENDENT})
  get_property(found DIRECTORY PROPERTY JOINED_TESTS)
  set_property(DIRECTORY APPEND PROPERTY JOINED_TESTS ${TARGET})
  if(NOT found)
    cmake_language(DEFER CALL join_tests_of_folder) # once all is known of them
  endif()
endfunction()

# stands_alone(TARGET RESULT): whether a test has to be built by itself. The property ALONE marks one that
# replaces a function in the whole executable; others need other headers or a form of their own.
function(stands_alone TARGET RESULT)
  set(${RESULT} OFF PARENT_SCOPE)
  foreach(property IN ITEMS ALONE AUTOUIC DISABLE_PRECOMPILE_HEADERS)
    get_target_property(value ${TARGET} ${property})
    if(value)
      set(${RESULT} ON PARENT_SCOPE)
    endif()
  endforeach()
endfunction()

# join_tests_of_folder(): joins the tests of the current folder.
function(join_tests_of_folder)
  get_property(tests DIRECTORY PROPERTY JOINED_TESTS)
  set(dependents)
  foreach(test IN LISTS tests)
    get_target_property(dependent ${test} DEPENDENT)
    stands_alone(${test} alone)
    if(alone OR NOT CMAKE_UNITY_BUILD)
      add_dependencies(${dependent} ${test})
    else()
      list(APPEND dependents ${dependent})
      list(APPEND tests_of_${dependent} ${test})
    endif()
  endforeach()
  list(REMOVE_DUPLICATES dependents)
  file(RELATIVE_PATH folder ${CMAKE_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  string(MAKE_C_IDENTIFIER ${folder} folder)
  set(number 0)
  foreach(dependent IN LISTS dependents)
    # Groups of about one size.
    list(LENGTH tests_of_${dependent} count)
    math(EXPR groups "(${count} + ${joined_tests_most} - 1) / ${joined_tests_most}")
    math(EXPR size "(${count} + ${groups} - 1) / ${groups}")
    math(EXPR last "${count} - 1")
    foreach(first RANGE 0 ${last} ${size})
      list(SUBLIST tests_of_${dependent} ${first} ${size} group)
      math(EXPR number "${number} + 1")
      joined_executable(${folder}_${number} ${group})
      add_dependencies(${dependent} ${folder}_${number})
    endforeach()
  endforeach()
endfunction()

# joined_executable(NAME TEST...): the executable of some tests. Its source begins with the project's
# headers, so that what a test opens does not yet hold there.
function(joined_executable NAME)
  set(headers)
  set(included)
  set(rows)
  set(links)
  set(sources)
  set(macros)
  set(libraries)
  set(needed)
  foreach(test IN LISTS ARGN)
    get_target_property(files ${test} SOURCES)
    get_target_property(definitions ${test} COMPILE_DEFINITIONS)
    get_target_property(linked ${test} LINK_LIBRARIES)
    get_target_property(dependencies ${test} MANUALLY_ADDED_DEPENDENCIES)
    get_target_property(place ${test} RUNTIME_OUTPUT_DIRECTORY)
    list(POP_FRONT files source)
    list(APPEND sources ${files})
    list(APPEND libraries ${linked})
    if(dependencies)
      list(APPEND needed ${dependencies})
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    file(STRINGS ${source} lines REGEX "^#include \".*\\.h\"$")
    list(APPEND headers ${lines})
    foreach(definition IN LISTS definitions)
      string(REGEX MATCH "^([^=]+)=?(.*)$" matched "${definition}")
      if(NOT DEFINED macro_${CMAKE_MATCH_1})
        set(macro_${CMAKE_MATCH_1} ON)
        list(APPEND macros "${definition}")
      endif()
      string(APPEND included "#undef ${CMAKE_MATCH_1}\n#define ${CMAKE_MATCH_1} ${CMAKE_MATCH_2}\n")
    endforeach()
    string(APPEND included
      "#define main main_${test}\nint main(int, char **);\n"
      "#include \"${CMAKE_CURRENT_SOURCE_DIR}/${source}\"\n#undef main\n\n")
    string(APPEND rows "        {\"${test}\", main_${test}},\n")
    list(APPEND links COMMAND ln -f $<TARGET_FILE:${NAME}> ${place}/${test})
    file(MAKE_DIRECTORY ${place})
    set_target_properties(${test} PROPERTIES EXCLUDE_FROM_ALL ON)
  endforeach()
  foreach(list IN ITEMS headers sources libraries needed)
    list(REMOVE_DUPLICATES ${list})
  endforeach()
  list(JOIN headers "\n" headers)
  set(joined ${CMAKE_CURRENT_BINARY_DIR}/${NAME}.cpp)
  file(GENERATE OUTPUT ${joined} CONTENT "#include \"tests/support/joinedtests.h\"
${headers}
#pragma GCC diagnostic ignored \"-Wshadow\" // names of another test

${included}int main(int argc, char *argv[])
{
    return runJoinedTest({
${rows}    }, argc, argv);
}
")
  add_executable(${NAME} ${joined} ${sources})
  set_target_properties(${NAME} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests/joined UNITY_BUILD OFF)
  target_include_directories(${NAME} PRIVATE ${CMAKE_CURRENT_BINARY_DIR} ${CMAKE_CURRENT_SOURCE_DIR})
  # GCC warns of a class with members from an unnamed namespace outside the compiled file itself.
  target_compile_options(${NAME} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  target_compile_definitions(${NAME} PRIVATE ${macros})
  target_link_libraries(${NAME} PRIVATE ${libraries})
  precompile(${NAME} TEST)
  if(needed)
    add_dependencies(${NAME} ${needed})
  endif()
  add_custom_command(TARGET ${NAME} POST_BUILD ${links} VERBATIM)
endfunction()
