# cmake -D "COMMAND=program;argument;..." -D EXPECTED=<file> -P output_test.cmake: the program ends with 0
# and prints exactly the text of the file.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${COMMAND} OUTPUT_VARIABLE actual COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\r" "" actual "${actual}")
file(READ ${EXPECTED} expected)
if(NOT actual STREQUAL expected)
  message(FATAL_ERROR "expected:\n${expected}\nprinted:\n${actual}")
endif()
