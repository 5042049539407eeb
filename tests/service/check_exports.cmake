# Compares the dynamic symbols a shared library defines with the expected list.
# Usage: cmake -DNM=<nm> -DLIBRARY=<file> -DEXPECTED=<a;b;...> -P check_exports.cmake
include(${CMAKE_CURRENT_LIST_DIR}/ToolListing.cmake)
nx_tool_listing(found "^[0-9a-fA-F]+ [A-Za-z] (.+)$" ${NM} -D --defined-only ${LIBRARY})
list(SORT found)
set(expected ${EXPECTED})
list(SORT expected)
if(NOT found STREQUAL expected)
  message(FATAL_ERROR "exported symbols differ\n  found:    ${found}\n  expected: ${expected}")
endif()
list(LENGTH found count)
message(STATUS "${count} exports, as expected")
