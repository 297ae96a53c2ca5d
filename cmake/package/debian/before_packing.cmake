# Adds to each package what Debian asks of all, and gives every file the date of the packages, and
# permissions that are not those of the builder's habit.
foreach(package IN LISTS CPACK_KV_PACKAGES)
  string(REGEX MATCH "^(.*)=(.*)$" package "${package}")
  set(root ${CPACK_TEMPORARY_DIRECTORY}/${CMAKE_MATCH_1}/usr)
  set(package ${CMAKE_MATCH_2})
  if(NOT IS_DIRECTORY ${root})
    continue()
  endif()
  set(doc ${root}/share/doc/${package})
  file(MAKE_DIRECTORY ${doc})
  configure_file(${CPACK_KV_COPYRIGHT} ${doc}/copyright COPYONLY)
  configure_file(${CPACK_KV_DEBIAN_DIR}/changelog ${doc}/changelog.Debian COPYONLY)
  configure_file(${CPACK_KV_CHANGELOG} ${doc}/changelog COPYONLY)
  if(EXISTS ${CPACK_KV_DEBIAN_DIR}/${package}.lintian-overrides)
    configure_file(${CPACK_KV_DEBIAN_DIR}/${package}.lintian-overrides
      ${root}/share/lintian/overrides/${package} COPYONLY)
  endif()
  file(GLOB binaries ${root}/lib/*/*.so.*.*.* ${root}/bin/*
    ${root}/lib/python3/dist-packages/*.so)
  if(binaries)
    execute_process(COMMAND strip --strip-unneeded --remove-section=.comment --remove-section=.note
      ${binaries} COMMAND_ERROR_IS_FATAL ANY)
  endif()
  file(GLOB packed ${doc}/changelog* ${root}/share/man/man*/*)
  execute_process(COMMAND gzip -9n ${packed} COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND chmod -R u=rwX,go=rX ${root} COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND find ${root} -exec touch -h -d @$ENV{SOURCE_DATE_EPOCH} {} +
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
