# Fails when a binary needs a library it must do without: the headless programs run where no
# display libraries are installed.
# Usage: cmake -DREADELF=<readelf> "-DBINARIES=<a;b>" -DREQUIRED=<regex> -DFORBIDDEN=<regex>
#        -P check_needed.cmake
include(${CMAKE_CURRENT_LIST_DIR}/ToolListing.cmake)
foreach(binary IN LISTS BINARIES)
  nx_tool_listing(needed "\\(NEEDED\\).*\\[(.+)\\]" ${READELF} -d ${binary})
  # An empty list means the listing was not understood, not that the binary is clean.
  set(bad ${needed})
  list(FILTER bad INCLUDE REGEX "${FORBIDDEN}")
  if(bad OR NOT needed MATCHES "${REQUIRED}")
    message(FATAL_ERROR "${binary} needs: ${needed}")
  endif()
endforeach()
