cmake_minimum_required(VERSION 3.25)

file(MAKE_DIRECTORY ${WORK_DIR})
set(ENV{PKG_CONFIG_PATH} ${PREFIX}/${LIBDIR}/pkgconfig)
execute_process(COMMAND ${PKG_CONFIG} --cflags --libs kv_Engine_r
  OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags)
execute_process(COMMAND ${COMPILER} -std=c++11 ${CMAKE_CURRENT_LIST_DIR}/consumer.cpp
  -o ${WORK_DIR}/consumer ${flags} COMMAND_ERROR_IS_FATAL ANY)
set(ENV{LD_LIBRARY_PATH} ${PREFIX}/${LIBDIR})
execute_process(COMMAND ${WORK_DIR}/consumer COMMAND_ERROR_IS_FATAL ANY)
