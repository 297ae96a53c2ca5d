# Packs the packages again: cpack lets scripts of libraries' packages call ldconfig, for which they have a
# trigger, and cannot state that packages of several architectures may be installed together.
foreach(file IN LISTS CPACK_PACKAGE_FILES)
  set(folder ${file}.unpacked)
  file(REMOVE_RECURSE ${folder})
  execute_process(COMMAND dpkg-deb --raw-extract ${file} ${folder} COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
  file(READ ${folder}/DEBIAN/control control)
  string(STRIP "${control}" control)
  if(control MATCHES "Section: lib")
    string(APPEND control "\nMulti-Arch: same")
  endif()
  file(WRITE ${folder}/DEBIAN/control "${control}\n")
  execute_process(COMMAND dpkg-deb --root-owner-group --build ${folder} ${file}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE ${folder})
endforeach()
