# An installed prefix works from another place, whose name has blanks and letters outside ASCII.
cmake_minimum_required(VERSION 3.25)

set(moved "${WORK_DIR} moved/Grün & süß")
file(REMOVE_RECURSE "${WORK_DIR} moved")
file(MAKE_DIRECTORY "${WORK_DIR} moved")
file(COPY ${PREFIX}/ DESTINATION "${moved}")

file(GLOB_RECURSE texts ${moved}/${LIBDIR}/*.cmake ${moved}/${LIBDIR}/*.pc)
foreach(text IN LISTS texts)
  file(READ ${text} content)
  foreach(folder ${PREFIX} ${BUILD_DIR} ${SOURCE_DIR})
    string(FIND "${content}" "${folder}" position)
    if(NOT position EQUAL -1)
      message(SEND_ERROR "${text} names ${folder}")
    endif()
  endforeach()
endforeach()

include(${CMAKE_CURRENT_LIST_DIR}/consumer_project.cmake)
kv_build_and_run(../../examples/consumer -D "CMAKE_PREFIX_PATH=${moved}")
execute_process(COMMAND ${WORK_DIR}/consumer OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
if(NOT printed STREQUAL "01:00:00;00\n")
  message(SEND_ERROR "the example of a consumer prints ${printed}")
endif()

# By pkg-config its flags are words of a shell. Escaped letters outside ASCII are for the shell too.
set(ENV{PKG_CONFIG_PATH} "${moved}/${LIBDIR}/pkgconfig")
set(ENV{LD_LIBRARY_PATH} "${moved}/${LIBDIR}")
execute_process(COMMAND sh -c [[eval "$1 -std=c++11 $2 -o $3 $($4 --cflags --libs kv_Engine_r)"]] sh
  ${COMPILER} ${CMAKE_CURRENT_LIST_DIR}/consumer.cpp ${WORK_DIR}/by_pkg_config ${PKG_CONFIG}
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/by_pkg_config COMMAND_ERROR_IS_FATAL ANY)

if(EXISTS "${moved}/bin/kvtool")
  unset(ENV{LD_LIBRARY_PATH})
  execute_process(COMMAND "${moved}/bin/kvtool" --version COMMAND_ERROR_IS_FATAL ANY)
endif()
