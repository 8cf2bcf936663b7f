# SPDX-License-Identifier: MIT
# The interface target that all our targets link: include root, warnings, sanitizers.
add_library(quorvandel_options INTERFACE)
target_include_directories(quorvandel_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(quorvandel_options INTERFACE QT_DEPRECATED_WARNINGS_SINCE=0x050c00)
target_compile_options(quorvandel_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  -ffp-contract=off # the same results on every processor
  $<$<BOOL:${QUORVANDEL_WERROR}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  # The toolkit's QSKIP is called without further arguments; newer versions count that as C++20's.
  target_compile_options(quorvandel_options INTERFACE -Wno-gnu-zero-variadic-macro-arguments
    $<$<VERSION_GREATER_EQUAL:$<CXX_COMPILER_VERSION>,18>:-Wno-c++20-extensions>)
endif()
if(QUORVANDEL_SANITIZE)
  target_compile_options(quorvandel_options INTERFACE
    -fsanitize=${QUORVANDEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  # GCC's names for them; Clang has none.
  if(QUORVANDEL_SANITIZE STREQUAL "thread")
    target_compile_definitions(quorvandel_options INTERFACE __SANITIZE_THREAD__)
  elseif(QUORVANDEL_SANITIZE MATCHES "address")
    # Beyond a container's end may be memory of its own: the standard library checks the indices.
    target_compile_definitions(quorvandel_options INTERFACE __SANITIZE_ADDRESS__ _GLIBCXX_ASSERTIONS)
  endif()
  if(QUORVANDEL_SANITIZE STREQUAL "thread" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # The sanitizer's own code hides from GCC what is initialised.
    target_compile_options(quorvandel_options INTERFACE -Wno-maybe-uninitialized)
  endif()
  target_link_options(quorvandel_options INTERFACE -fsanitize=${QUORVANDEL_SANITIZE}
    # Several files are linked at a time.
    "$<$<CXX_COMPILER_ID:Clang>:-fuse-ld=lld;LINKER:--threads=1>")
endif()
