# The library built on another core, by KV_CORE_TARGET: one that was found, up to an installed package and
# its client; and one that the project around it builds, as far as the configuration.
cmake_minimum_required(VERSION 3.25)

set(core_prefix ${WORK_DIR}_core_prefix)
set(engine_prefix ${WORK_DIR}_engine_prefix)
file(REMOVE_RECURSE ${core_prefix} ${engine_prefix})

# kv_install(<source folder> <prefix> <settings>...)
function(kv_install source prefix)
  set(build ${prefix}_build)
  file(REMOVE_RECURSE ${build})
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${source} -B ${build} -G Ninja
    -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_INSTALL_LIBDIR=${LIBDIR} ${ARGN}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CMAKE_COMMAND} --build ${build} OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CMAKE_COMMAND} --install ${build} --prefix ${prefix} OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
endfunction()

kv_install(${CMAKE_CURRENT_LIST_DIR}/other_core ${core_prefix})
file(WRITE ${WORK_DIR}_find_core.cmake "find_package(other_core CONFIG REQUIRED)\n")
kv_install(${SOURCE_DIR} ${engine_prefix}
  -D KV_CORE_TARGET=OtherProduct::core -D CMAKE_PREFIX_PATH=${core_prefix}
  -D CMAKE_PROJECT_kv_Engine_r_INCLUDE=${WORK_DIR}_find_core.cmake
  -D CMAKE_BUILD_TYPE=Debug -D CMAKE_UNITY_BUILD=ON)

file(GLOB_RECURSE own_core ${engine_prefix}/*kv_Core_r* ${engine_prefix}/*/core/*)
if(own_core)
  message(SEND_ERROR "installed beside another core: ${own_core}")
endif()
execute_process(COMMAND ${READELF} --dynamic ${engine_prefix}/${LIBDIR}/libkv_Engine_r.so
  OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
if(NOT dynamic MATCHES "libother_core" OR dynamic MATCHES "kv_Core_r")
  message(SEND_ERROR "needs other libraries than it should:\n${dynamic}")
endif()

include(${CMAKE_CURRENT_LIST_DIR}/consumer_project.cmake)
kv_build_and_run(other_core/client -D "CMAKE_PREFIX_PATH=${core_prefix}\;${engine_prefix}")

# A client that does not look for the core first is told which one it needs.
execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/find_package
  -B ${WORK_DIR}_without_core -G Ninja -D CMAKE_CXX_COMPILER=${COMPILER}
  -D CMAKE_PREFIX_PATH=${engine_prefix} RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE error)
if(result EQUAL 0 OR NOT error MATCHES "OtherProduct::core")
  message(SEND_ERROR "without the core it ended with ${result}, saying: ${error}")
endif()

# What the project around it builds; and a name that is nobody's.
file(WRITE ${WORK_DIR}_around/CMakeLists.txt "
cmake_minimum_required(VERSION 3.25)
project(around LANGUAGES CXX)
add_subdirectory(${CMAKE_CURRENT_LIST_DIR}/other_core other_core)
add_subdirectory(${SOURCE_DIR} kv_Engine_r)
")
foreach(core other_core misspelt)
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${WORK_DIR}_around -B ${WORK_DIR}_around/${core} -G Ninja
    -D CMAKE_CXX_COMPILER=${COMPILER} -D KV_CORE_TARGET=${core}
    RESULT_VARIABLE result_${core} OUTPUT_QUIET ERROR_VARIABLE error_${core})
endforeach()
if(NOT result_other_core EQUAL 0)
  message(SEND_ERROR "${error_other_core}")
endif()
if(result_misspelt EQUAL 0 OR NOT error_misspelt MATCHES "there is no target misspelt")
  message(SEND_ERROR "a core that does not exist: ${result_misspelt}, ${error_misspelt}")
endif()
