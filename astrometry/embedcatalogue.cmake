# SPDX-License-Identifier: MIT
# Turns the star list into a table of constants: cmake -DIN=stars.csv -DOUT=stars.cpp -P embedcatalogue.cmake
file(STRINGS "${IN}" lines)
list(POP_FRONT lines)
set(number "(-?[0-9.]+)")
set(rows "")
foreach(line IN LISTS lines)
  if(NOT line MATCHES "^${number},${number},${number},${number},${number},${number},${number},[^,]*,([0-9]*),\"?([^\"]*)\"?$")
    message(FATAL_ERROR "${IN}: not a star: ${line}")
  endif()
  set(hd ${CMAKE_MATCH_8})
  set(name "${CMAKE_MATCH_9}")
  if(NOT hd)
    set(hd 0)
  endif()
  string(APPEND rows "    {${CMAKE_MATCH_1}, ${CMAKE_MATCH_2}, ${CMAKE_MATCH_3}, ${CMAKE_MATCH_4}, "
    "${CMAKE_MATCH_5}, ${CMAKE_MATCH_6}, ${CMAKE_MATCH_7}, ${hd}, \"${name}\"},\n")
endforeach()
file(WRITE "${OUT}" "// SPDX-License-Identifier: MIT
// The stars of pole_stars.csv; made by the build.
#include \"astrometry/catalogue.h\"

namespace astrometry
{
namespace
{
const CatalogueStar stars[] = {
${rows}};
} // namespace

CatalogueView catalogue()
{
    return {std::begin(stars), std::end(stars)};
}
} // namespace astrometry
")
