# Builds the Debian package from the build with CPack, then checks its contents with dpkg-deb
# and the package with lintian (no errors allowed).
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
execute_process(COMMAND ${CPACK} -G DEB --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}
                OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
file(GLOB packages ${WORK_DIR}/*.deb)
if(NOT result EQUAL 0 OR NOT packages)
  message(FATAL_ERROR "cpack failed:\n${output}")
endif()
list(GET packages 0 package)

set(failures)
execute_process(COMMAND ${DPKG_DEB} -c ${package} OUTPUT_VARIABLE contents)
# The tree itself is install.tree's to check; here, what packaging adds or could lose. Lintian
# reports as errors files under /usr/local, unstripped programs, maintainer scripts that are
# not valid shell and dependencies not computed from the binaries (no libc among them).
foreach(entry IN ITEMS "/usr/bin/norvalexctl -> ../lib/" "/norvalex/norvalex-control"
        "/usr/share/doc/norvalex-rgb/changelog.Debian.gz")
  string(FIND "${contents}" "${entry}" at)
  if(at EQUAL -1)
    list(APPEND failures "the package lacks ${entry}")
  endif()
endforeach()

# The postinst enables the DMI cache's unit.
execute_process(COMMAND ${DPKG_DEB} -e ${package} ${WORK_DIR}/control)
file(STRINGS ${WORK_DIR}/control/postinst enables REGEX "deb-systemd-helper enable")
if(NOT enables)
  list(APPEND failures "postinst does not enable the DMI cache's unit")
endif()

execute_process(COMMAND ${LINTIAN} --no-tag-display-limit ${package}
                OUTPUT_VARIABLE report ERROR_VARIABLE report RESULT_VARIABLE result)
message(STATUS "lintian:\n${report}")
if(report MATCHES "(^|\n)E: ")
  list(APPEND failures "lintian reports errors")
endif()

if(failures)
  list(JOIN failures "\n" text)
  message(FATAL_ERROR "${text}")
endif()
file(REMOVE_RECURSE ${WORK_DIR})
