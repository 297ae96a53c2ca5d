# cmake -D COMPILER= -D STANDARD= -D FLAGS= -D SOURCE= -D SOURCE_DIR= -D WORK_DIR= -P compile_test.cmake:
# a client's source compiles without a warning. To assembly: GCC leaves out warnings when it only checks.
cmake_minimum_required(VERSION 3.25)

string(REPLACE "23" "2b" standard ${STANDARD})  # the name that all supported compilers know
file(MAKE_DIRECTORY ${WORK_DIR})
execute_process(
  COMMAND ${COMPILER} ${FLAGS} -std=c++${standard} -Wall -Wextra -Wpedantic -Werror -S
    -I${SOURCE_DIR}/include -I${SOURCE_DIR}/core/include -o ${WORK_DIR}/output.s ${SOURCE}
  COMMAND_ERROR_IS_FATAL ANY)
