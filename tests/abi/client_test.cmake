# cmake -D HOST_COMPILER= -D HOST_FLAGS= -D HOST_INCLUDE= -D MODULE_COMPILER= -D MODULE_FLAGS=
# -D MODULE_INCLUDE= -D SOURCES= -D LIBDIR= -D WORK_DIR= [-D ARGUMENT=] -P client_test.cmake: host and
# module, in SOURCES, each built in its own way, meet in the libraries of LIBDIR and do what they should.
cmake_minimum_required(VERSION 3.25)

set(libraries -L${LIBDIR} -lkv_Engine_r -lkv_Core_r -Wl,-rpath,${LIBDIR})
list(TRANSFORM HOST_INCLUDE PREPEND -I)
list(TRANSFORM MODULE_INCLUDE PREPEND -I)
file(MAKE_DIRECTORY ${WORK_DIR})
execute_process(
  COMMAND ${MODULE_COMPILER} ${MODULE_FLAGS} ${MODULE_INCLUDE} -fPIC -shared
    -o ${WORK_DIR}/libmodule.so ${SOURCES}/module.cpp ${libraries}
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND ${HOST_COMPILER} ${HOST_FLAGS} ${HOST_INCLUDE} -o ${WORK_DIR}/host ${SOURCES}/host.cpp
    -L${WORK_DIR} -lmodule -Wl,-rpath,${WORK_DIR} ${libraries}
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${WORK_DIR}/host ${ARGUMENT} COMMAND_ERROR_IS_FATAL ANY)
