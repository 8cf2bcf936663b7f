# SPDX-License-Identifier: MIT
# Finds the client library of INDI, as the package libindi-dev brings it: version 1.9.9 or later.
# Defines the target INDI::client.
find_path(INDIClient_INCLUDE_DIR libindi/lilxml.h)
find_library(INDIClient_LIBRARY indiclient)
set(INDIClient_VERSION "")
if(INDIClient_INCLUDE_DIR)
  file(GLOB headers ${INDIClient_INCLUDE_DIR}/libindi/indiversion.h ${INDIClient_INCLUDE_DIR}/libindi/indiapi.h)
  foreach(header IN LISTS headers)
    file(READ ${header} text)
    if(text MATCHES "define INDI_VERSION_MAJOR +([0-9]+)")
      set(INDIClient_VERSION ${CMAKE_MATCH_1})
      foreach(part IN ITEMS MINOR RELEASE)
        if(text MATCHES "define INDI_VERSION_${part} +([0-9]+)")
          string(APPEND INDIClient_VERSION .${CMAKE_MATCH_1})
        endif()
      endforeach()
    endif()
  endforeach()
endif()
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(INDIClient
  REQUIRED_VARS INDIClient_LIBRARY INDIClient_INCLUDE_DIR
  VERSION_VAR INDIClient_VERSION)
if(INDIClient_FOUND AND NOT TARGET INDI::client)
  find_package(Threads REQUIRED)
  add_library(INDI::client INTERFACE IMPORTED GLOBAL)
  target_include_directories(INDI::client SYSTEM INTERFACE
    ${INDIClient_INCLUDE_DIR} ${INDIClient_INCLUDE_DIR}/libindi)
  target_link_libraries(INDI::client INTERFACE ${INDIClient_LIBRARY} Threads::Threads)
endif()
mark_as_advanced(INDIClient_INCLUDE_DIR INDIClient_LIBRARY)
