# Runs the port with stand-ins for what vcpkg has for it: configuring is done, and an installed prefix stands for
# what would be built.
cmake_minimum_required(VERSION 3.25)

set(PORT kv-engine-r)
set(VCPKG_LIBRARY_LINKAGE dynamic)
set(CURRENT_INSTALLED_DIR ${WORK_DIR}/installed)
set(CURRENT_PACKAGES_DIR ${WORK_DIR}/packages)
set(port ${SOURCE_DIR}/packaging/vcpkg/${PORT})
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${CURRENT_INSTALLED_DIR}/include/boost)

function(vcpkg_check_linkage)
  if(NOT ARGN STREQUAL "ONLY_DYNAMIC_LIBRARY")
    message(SEND_ERROR "the libraries are shared only, not ${ARGN}")
  endif()
endfunction()

function(vcpkg_cmake_configure)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "SOURCE_PATH" "OPTIONS")
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${arg_SOURCE_PATH} -B ${WORK_DIR}/build -G Ninja
    -D CMAKE_CXX_COMPILER=${COMPILER} -D BUILD_SHARED_LIBS=ON ${arg_OPTIONS}
    OUTPUT_QUIET ERROR_VARIABLE warnings COMMAND_ERROR_IS_FATAL ANY)
  if(arg_UNPARSED_ARGUMENTS OR warnings)
    message(SEND_ERROR "unknown: ${arg_UNPARSED_ARGUMENTS} ${warnings}")
  endif()
endfunction()

function(vcpkg_cmake_install)
  foreach(folder IN ITEMS ${CURRENT_PACKAGES_DIR} ${CURRENT_PACKAGES_DIR}/debug)
    file(MAKE_DIRECTORY ${folder}/share)
    file(COPY ${PREFIX}/include DESTINATION ${folder})
    file(COPY ${PREFIX}/${LIBDIR}/ DESTINATION ${folder}/lib)
  endforeach()
endfunction()

function(vcpkg_cmake_config_fixup)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "PACKAGE_NAME;CONFIG_PATH" "")
  foreach(folder IN ITEMS ${CURRENT_PACKAGES_DIR} ${CURRENT_PACKAGES_DIR}/debug)
    file(RENAME ${folder}/${arg_CONFIG_PATH} ${folder}/share/${arg_PACKAGE_NAME})
  endforeach()
endfunction()

function(vcpkg_fixup_pkgconfig)
endfunction()

function(vcpkg_install_copyright)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "FILE_LIST")
  configure_file(${arg_FILE_LIST} ${CURRENT_PACKAGES_DIR}/share/${PORT}/copyright COPYONLY)
endfunction()

include(${port}/portfile.cmake)
foreach(file IN ITEMS include/kv_Engine_r/kv_engine.h lib/libkv_Engine_r.so
    share/kv_engine_r/kv_Engine_rConfig.cmake share/kv-engine-r/copyright share/kv-engine-r/usage)
  if(NOT EXISTS ${CURRENT_PACKAGES_DIR}/${file})
    message(SEND_ERROR "the package lacks ${file}")
  endif()
endforeach()
foreach(folder IN ITEMS include share)
  if(EXISTS ${CURRENT_PACKAGES_DIR}/debug/${folder})
    message(SEND_ERROR "the package has debug/${folder}")
  endif()
endforeach()

# The usage that it tells is that of the test of an installed prefix.
file(READ ${port}/usage usage)
file(READ ${CMAKE_CURRENT_LIST_DIR}/find_package/CMakeLists.txt project)
foreach(line IN ITEMS "find_package(kv_Engine_r 1 CONFIG REQUIRED)"
    "PRIVATE Korvane::kv_Engine_r Korvane::kv_Core_r)")
  string(FIND "${usage}" "${line}" told)
  string(FIND "${project}" "${line}" tried)
  if(told EQUAL -1 OR tried EQUAL -1)
    message(SEND_ERROR "the usage differs from ${line}")
  endif()
endforeach()
