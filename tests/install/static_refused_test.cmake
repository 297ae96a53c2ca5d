# A build of static libraries stops with the reason; a project around this one may want static libraries
# of its own, which tests/install/fetch_content does.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR} -G Ninja
  -D CMAKE_CXX_COMPILER=${COMPILER} -D BUILD_SHARED_LIBS=OFF
  RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE error)
string(REGEX REPLACE "[ \n]+" " " error "${error}")
if(result EQUAL 0 OR NOT error MATCHES "kv_Engine_r is a shared library only: hosts and modules exchange")
  message(FATAL_ERROR "ended with ${result}, saying: ${error}")
endif()
