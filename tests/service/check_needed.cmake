# Fails when a binary needs a library it must do without: the headless service runs where no
# display libraries are installed.
# Usage: cmake -DREADELF=<readelf> -DBINARY=<file> -DREQUIRED=<regex> -DFORBIDDEN=<regex>
#        -P check_needed.cmake
include(${CMAKE_CURRENT_LIST_DIR}/ToolListing.cmake)
nx_tool_listing(needed "\\(NEEDED\\).*\\[(.+)\\]" ${READELF} -d ${BINARY})
# An empty list means the listing was not understood, not that the binary is clean.
if(NOT needed MATCHES "${REQUIRED}")
  message(FATAL_ERROR "expected a library matching ${REQUIRED} among: ${needed}")
endif()
set(bad ${needed})
list(FILTER bad INCLUDE REGEX "${FORBIDDEN}")
if(bad)
  message(FATAL_ERROR "needs ${bad}")
endif()
message(STATUS "needs only: ${needed}")
