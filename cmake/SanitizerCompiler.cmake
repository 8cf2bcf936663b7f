# SPDX-License-Identifier: MIT
# The compiler of the sanitizer builds. Clang takes a third of GCC's time for them, its linker too; where
# it or its runtime is not installed, or another compiler is named, that one does. Included before
# project().
if(NOT QUORVANDEL_SANITIZE OR CMAKE_CXX_COMPILER OR DEFINED ENV{CXX})
  return()
endif()
find_program(QUORVANDEL_CLANG clang++)
if(NOT QUORVANDEL_CLANG)
  return()
endif()
set(probe ${CMAKE_BINARY_DIR}/sanitizerprobe)
file(WRITE ${probe}.cpp "int main() { return 0; }\n")
execute_process(
  COMMAND ${QUORVANDEL_CLANG} -fsanitize=${QUORVANDEL_SANITIZE} -fuse-ld=lld ${probe}.cpp -o ${probe}
  RESULT_VARIABLE failed OUTPUT_QUIET ERROR_QUIET)
if(NOT failed)
  set(CMAKE_CXX_COMPILER ${QUORVANDEL_CLANG} CACHE FILEPATH "Compiler")
endif()
