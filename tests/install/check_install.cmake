# Installs the build into a temporary prefix and checks what a user gets: the tree, relative
# links that reach the private folder, icons of the sizes their folders name, a unit that
# starts the installed service, valid desktop files, and installed programs that find their
# library and service from the links.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
set(private ${prefix}/${LIBDIR}/norvalex)

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix}
                OUTPUT_QUIET RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "cmake --install failed")
endif()

set(failures)
macro(fail text)
  list(APPEND failures "${text}")
endmacro()

set(icon_sizes 16 22 24 32 48 64 128 256)
set(expected
  ${private}/norvalex-rgb ${private}/norvalex-control ${private}/norvalexctl
  ${private}/libNORVALEX_Lighting.so
  ${prefix}/share/applications/${APP_ID}.desktop
  ${prefix}/share/metainfo/${APP_ID}.metainfo.xml
  ${prefix}/share/icons/hicolor/scalable/apps/${APP_ID}.svg
  ${prefix}/lib/systemd/user/norvalex-control.service
  ${private}/norvalex-dmi-cache
  ${prefix}/lib/systemd/system/norvalex-dmi-cache.service
  ${prefix}/share/man/man1/norvalex-rgb.1.gz
  ${prefix}/share/man/man1/norvalex-control.1.gz
  ${prefix}/share/man/man1/norvalexctl.1.gz
  ${prefix}/share/bash-completion/completions/norvalexctl
  ${prefix}/share/doc/norvalex-rgb/copyright)
foreach(size IN LISTS icon_sizes)
  list(APPEND expected ${prefix}/share/icons/hicolor/${size}x${size}/apps/${APP_ID}.png)
endforeach()
foreach(path IN LISTS expected)
  if(NOT EXISTS ${path})
    fail("missing ${path}")
  endif()
endforeach()

# The commands users type are relative links into the private folder.
foreach(program IN ITEMS norvalex-rgb norvalexctl)
  set(link ${prefix}/bin/${program})
  if(NOT IS_SYMLINK ${link})
    fail("${link} is not a link")
    continue()
  endif()
  file(READ_SYMLINK ${link} target)
  file(REAL_PATH ${link} resolved)
  file(REAL_PATH ${private}/${program} wanted)
  if(IS_ABSOLUTE "${target}" OR NOT resolved STREQUAL wanted)
    fail("${link} points to ${target}, not relatively to ${wanted}")
  endif()
endforeach()

# Every PNG is as large as its folder says (width and height in the IHDR chunk).
foreach(size IN LISTS icon_sizes)
  set(png ${prefix}/share/icons/hicolor/${size}x${size}/apps/${APP_ID}.png)
  if(EXISTS ${png})
    file(READ ${png} header OFFSET 16 LIMIT 8 HEX)
    string(SUBSTRING "${header}" 0 8 width)
    string(SUBSTRING "${header}" 8 8 height)
    math(EXPR width "0x${width}")
    math(EXPR height "0x${height}")
    if(NOT width EQUAL size OR NOT height EQUAL size)
      fail("${png} is ${width} x ${height}, not ${size} x ${size}")
    endif()
  endif()
endforeach()
file(READ ${prefix}/share/icons/hicolor/scalable/apps/${APP_ID}.svg svg LIMIT 4096)
if(NOT svg MATCHES "<svg[^>]*viewBox=\"0 0 256 256\"")
  fail("the scalable icon is no square SVG")
endif()

file(STRINGS ${prefix}/lib/systemd/user/norvalex-control.service exec REGEX "^ExecStart=")
if(NOT exec STREQUAL "ExecStart=${private}/norvalex-control")
  fail("the user unit starts '${exec}', not the installed service")
endif()
file(STRINGS ${prefix}/lib/systemd/system/norvalex-dmi-cache.service exec REGEX "^ExecStart=")
if(NOT exec STREQUAL "ExecStart=${private}/norvalex-dmi-cache")
  fail("the system unit starts '${exec}', not the installed cache writer")
endif()

# A short runtime directory: socket paths are limited to 107 bytes.
execute_process(COMMAND mktemp -d OUTPUT_VARIABLE runtime OUTPUT_STRIP_TRAILING_WHITESPACE
                RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "mktemp -d failed")
endif()
file(CHMOD ${runtime} DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
macro(validate)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output
                  RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    fail("${ARGN}:\n${output}")
  endif()
endmacro()
if(DESKTOP_FILE_VALIDATE)
  validate(${DESKTOP_FILE_VALIDATE} ${prefix}/share/applications/${APP_ID}.desktop)
endif()
if(APPSTREAMCLI)
  validate(${APPSTREAMCLI} validate --no-net ${prefix}/share/metainfo/${APP_ID}.metainfo.xml)
endif()
if(SYSTEMD_ANALYZE)
  validate(${CMAKE_COMMAND} -E env XDG_RUNTIME_DIR=${runtime} ${SYSTEMD_ANALYZE} --user --man=no
           verify ${prefix}/lib/systemd/user/norvalex-control.service)
  validate(${SYSTEMD_ANALYZE} --man=no verify
           ${prefix}/lib/systemd/system/norvalex-dmi-cache.service)
endif()

# The installed programs, started through their links, load the library and launch the
# service from the private folder.
validate(${CMAKE_COMMAND} -E env XDG_RUNTIME_DIR=${runtime} XDG_CONFIG_HOME=${WORK_DIR}/config
         HOME=${WORK_DIR} QT_QPA_PLATFORM=offscreen
         sh ${CMAKE_CURRENT_LIST_DIR}/run_installed.sh ${prefix}/bin ${private})

file(REMOVE_RECURSE ${runtime})
if(failures)
  list(JOIN failures "\n" text)
  message(FATAL_ERROR "${text}")
endif()
file(REMOVE_RECURSE ${WORK_DIR})
