# A debug build with a postfix installs beside a release build; each client links the one of its kind, and
# clients of no kind or of one that is not installed the release build.
cmake_minimum_required(VERSION 3.25)

set(both ${WORK_DIR}_prefix)
file(REMOVE_RECURSE ${both} ${WORK_DIR}_debug)
file(COPY ${PREFIX}/ DESTINATION ${both})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}_debug -G Ninja
  -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_BUILD_TYPE=Debug -D CMAKE_DEBUG_POSTFIX=d
  -D CMAKE_UNITY_BUILD=ON -D CMAKE_INSTALL_LIBDIR=${LIBDIR} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}_debug OUTPUT_QUIET
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${WORK_DIR}_debug --prefix ${both} OUTPUT_QUIET
  COMMAND_ERROR_IS_FATAL ANY)

# kv_check_needed(<program> <postfix>): which libraries the program asks for.
function(kv_check_needed program postfix)
  execute_process(COMMAND ${READELF} --dynamic ${program} OUTPUT_VARIABLE dynamic
    COMMAND_ERROR_IS_FATAL ANY)
  foreach(library Engine Core)
    if(NOT dynamic MATCHES "NEEDED[^\n]*\\[libkv_${library}_r${postfix}\\.so\\.1\\]")
      message(SEND_ERROR "${program} does not need libkv_${library}_r${postfix}.so.1:\n${dynamic}")
    endif()
  endforeach()
endfunction()

include(${CMAKE_CURRENT_LIST_DIR}/consumer_project.cmake)
foreach(kind Debug Release RelWithDebInfo "")
  kv_build_and_run(find_package -D CMAKE_PREFIX_PATH=${both} -D "CMAKE_BUILD_TYPE=${kind}")
  if(kind STREQUAL "Debug")
    kv_check_needed(${WORK_DIR}/consumer d)
  else()
    kv_check_needed(${WORK_DIR}/consumer "")
  endif()
endforeach()

set(ENV{PKG_CONFIG_PATH} ${both}/${LIBDIR}/pkgconfig)
foreach(postfix "" d)
  execute_process(COMMAND ${PKG_CONFIG} --libs-only-l kv_Engine_r${postfix}
    OUTPUT_VARIABLE libraries OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  if(NOT libraries STREQUAL "-lkv_Engine_r${postfix} -lkv_Core_r${postfix}")
    message(SEND_ERROR "pkg-config kv_Engine_r${postfix}: ${libraries}")
  endif()
endforeach()
