# The manual page has the commands of "kvtool --help", in their order and in the same words.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${KVTOOL} --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
if(NOT help MATCHES "Subcommands:\n(.*)\n\nResults go")
  message(FATAL_ERROR "no commands in the help:\n${help}")
endif()
string(REGEX REPLACE " +([a-z]+) +([^\n]+)" ".TP\n.B \\1\n\\2" commands "${CMAKE_MATCH_1}")
file(READ ${PAGE} page)
string(FIND "${page}" ".SH COMMANDS\n${commands}\n.SH" position)
if(position EQUAL -1)
  message(FATAL_ERROR "the commands should be\n${commands}")
endif()
