# cmake -D COMMAND=... -D EXPECTED=... -P failure_test.cmake: the program ends with 1, prints
# nothing, and writes one line to standard error, which matches the regular expression.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${COMMAND} RESULT_VARIABLE status OUTPUT_VARIABLE output
  ERROR_VARIABLE errors)
string(REPLACE "\r" "" errors "${errors}")
if(NOT status EQUAL 1)
  message(FATAL_ERROR "ended with ${status}")
endif()
if(NOT output STREQUAL "")
  message(FATAL_ERROR "printed:\n${output}")
endif()
if(NOT errors MATCHES "^${EXPECTED}\n$" OR errors MATCHES "\n.")
  message(FATAL_ERROR "expected:\n${EXPECTED}\nwritten to standard error:\n${errors}")
endif()
