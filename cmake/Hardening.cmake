# SPDX-License-Identifier: MIT
# What every build has against damage by a stray write: stack protector, position independence,
# read-only relocations; optimised builds also check the bounds of the C library's calls.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX) # links position independent executables
target_compile_options(quorvandel_options INTERFACE -fstack-protector-strong)
target_link_options(quorvandel_options INTERFACE LINKER:-z,relro)
# The sanitizers check these calls themselves. Without optimisation there is no check, only a warning.
# Their builds hold many short tests, which would resolve every symbol as they begin.
if(NOT QUORVANDEL_SANITIZE)
  target_link_options(quorvandel_options INTERFACE LINKER:-z,now)
  target_compile_options(quorvandel_options INTERFACE
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE>
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=2>)
endif()
