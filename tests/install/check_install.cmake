# Installs the build into a temporary prefix and checks one of each kind of artefact a user
# gets: programs and library in the private folder, relative links to them, an icon of the size
# its folder names, units that start the installed programs, valid desktop files, a manual page,
# and installed programs that find their library and service from the links.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
set(private ${prefix}/${LIBDIR}/norvalex)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix}
                OUTPUT_QUIET RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "cmake --install failed")
endif()

set(failures)
set(share ${prefix}/share)
foreach(path IN ITEMS ${private}/libNORVALEX_Lighting.so ${share}/man/man1/norvalexctl.1.gz
        ${share}/bash-completion/completions/norvalexctl ${share}/doc/norvalex-rgb/copyright
        ${share}/icons/hicolor/scalable/apps/${APP_ID}.svg)
  if(NOT EXISTS ${path})
    list(APPEND failures "missing ${path}")
  endif()
endforeach()

# The commands users type are relative links into the private folder.
foreach(program IN ITEMS norvalex-rgb norvalexctl)
  file(READ_SYMLINK ${prefix}/bin/${program} target)
  if(NOT target STREQUAL "../${LIBDIR}/norvalex/${program}" OR NOT EXISTS ${private}/${program})
    list(APPEND failures "bin/${program} links to '${target}'")
  endif()
endforeach()

# A PNG is as large as its folder says (width and height in the IHDR chunk).
file(READ ${share}/icons/hicolor/48x48/apps/${APP_ID}.png header OFFSET 16 LIMIT 8 HEX)
if(NOT header STREQUAL "0000003000000030")
  list(APPEND failures "the 48x48 icon's header says ${header}")
endif()

foreach(unit IN ITEMS user/norvalex-control system/norvalex-dmi-cache)
  get_filename_component(program ${unit} NAME)
  file(STRINGS ${prefix}/lib/systemd/${unit}.service exec REGEX "^ExecStart=")
  if(NOT exec STREQUAL "ExecStart=${private}/${program}")
    list(APPEND failures "${unit} starts '${exec}', not the installed program")
  endif()
endforeach()

# A short runtime directory: socket paths are limited to 107 bytes.
execute_process(COMMAND mktemp -d OUTPUT_VARIABLE runtime OUTPUT_STRIP_TRAILING_WHITESPACE)
file(CHMOD ${runtime} DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
macro(validate)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output
                  RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    list(APPEND failures "${ARGN}:\n${output}")
  endif()
endmacro()
if(DESKTOP_FILE_VALIDATE)
  validate(${DESKTOP_FILE_VALIDATE} ${share}/applications/${APP_ID}.desktop)
endif()
if(APPSTREAMCLI)
  validate(${APPSTREAMCLI} validate --no-net ${share}/metainfo/${APP_ID}.metainfo.xml)
endif()
if(SYSTEMD_ANALYZE)
  validate(${CMAKE_COMMAND} -E env XDG_RUNTIME_DIR=${runtime} ${SYSTEMD_ANALYZE} --user --man=no
           verify ${prefix}/lib/systemd/user/norvalex-control.service)
endif()
validate(${CMAKE_COMMAND} -E env XDG_RUNTIME_DIR=${runtime} XDG_CONFIG_HOME=${WORK_DIR}/config
         HOME=${WORK_DIR} QT_QPA_PLATFORM=offscreen
         sh ${CMAKE_CURRENT_LIST_DIR}/run_installed.sh ${prefix}/bin ${private})

file(REMOVE_RECURSE ${runtime})
if(failures)
  list(JOIN failures "\n" text)
  message(FATAL_ERROR "${text}")
endif()
file(REMOVE_RECURSE ${WORK_DIR})
