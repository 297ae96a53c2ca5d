# What cpack packs of a build that is not for /usr unpacks anywhere, and holds the files of an installation.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${WORK_DIR}_unpacked)
execute_process(COMMAND ${CMAKE_CPACK} --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}_unpacked
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB archive ${WORK_DIR}_unpacked/kv_Engine_r-*.tar.gz)
file(ARCHIVE_EXTRACT INPUT ${archive} DESTINATION ${WORK_DIR}_unpacked)
string(REGEX REPLACE "\\.tar\\.gz$" "" unpacked ${archive})

file(GLOB_RECURSE expected LIST_DIRECTORIES false RELATIVE ${PREFIX} ${PREFIX}/*)
file(GLOB_RECURSE found LIST_DIRECTORIES false RELATIVE ${unpacked} ${unpacked}/*)
if(NOT found STREQUAL expected)
  message(SEND_ERROR "installed:\n${expected}\nunpacked:\n${found}")
endif()

include(${CMAKE_CURRENT_LIST_DIR}/consumer_project.cmake)
kv_build_and_run(find_package -D CMAKE_PREFIX_PATH=${unpacked})
