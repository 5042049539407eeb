# Fails when a binary needs a library it must do without: the headless service runs where no
# display libraries are installed.
# Usage: cmake -DREADELF=<readelf> -DBINARY=<file> -DREQUIRED=<regex> -DFORBIDDEN=<regex>
#        -P check_needed.cmake
execute_process(COMMAND ${READELF} -d ${BINARY} OUTPUT_VARIABLE listing RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "readelf failed on ${BINARY}")
endif()
string(REPLACE "\n" ";" lines "${listing}")
set(needed "")
foreach(line IN LISTS lines)
  if(line MATCHES "\\(NEEDED\\).*\\[(.+)\\]")
    list(APPEND needed ${CMAKE_MATCH_1})
  endif()
endforeach()
# An empty list means the listing was not understood, not that the binary is clean.
if(NOT needed MATCHES "${REQUIRED}")
  message(FATAL_ERROR "expected a library matching ${REQUIRED} among: ${needed}")
endif()
set(bad "")
foreach(library IN LISTS needed)
  if(library MATCHES "${FORBIDDEN}")
    list(APPEND bad ${library})
  endif()
endforeach()
if(bad)
  message(FATAL_ERROR "needs ${bad}")
endif()
message(STATUS "needs only: ${needed}")
