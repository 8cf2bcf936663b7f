# SPDX-License-Identifier: MIT
# What every build has against damage by a stray write: stack protector, position independence,
# RELRO; optimised builds also check the bounds of the C library's calls.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX) # links position independent executables
target_compile_options(quorvandel_options INTERFACE -fstack-protector-strong)
target_link_options(quorvandel_options INTERFACE LINKER:-z,relro)
if(NOT QUORVANDEL_SANITIZE)
  # In the sanitizer builds, many short tests would resolve all symbols as they begin.
  target_link_options(quorvandel_options INTERFACE LINKER:-z,now)
  # The sanitizers check these calls themselves. Without optimisation there is no check, only a warning.
  target_compile_options(quorvandel_options INTERFACE
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE>
    $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=2>)
endif()
