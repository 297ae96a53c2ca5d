# cmake -D LIBRARY= -D FORMAT=elf|pe -D OBJDUMP= -D READELF= -P hardening_test.cmake: what the built
# file says of its own protection.
cmake_minimum_required(VERSION 3.25)

function(require text pattern meaning)
  if(NOT text MATCHES "${pattern}")
    message(SEND_ERROR "${LIBRARY}: no ${meaning}")
  endif()
endfunction()

if(FORMAT STREQUAL "elf")
  execute_process(COMMAND ${READELF} --wide --program-headers --dynamic --notes --dyn-syms ${LIBRARY}
    OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  require("${text}" "GNU_RELRO" "read-only relocations")
  require("${text}" "BIND_NOW|FLAGS.* NOW" "immediate binding")
  require("${text}" "GNU_STACK[^\n]* RW " "stack that cannot be executed")
  require("${text}" "__stack_chk_fail" "stack protector")
  if(CMAKE_HOST_SYSTEM_PROCESSOR STREQUAL "x86_64")
    require("${text}" "IBT" "indirect branch tracking")
    require("${text}" "SHSTK" "shadow stack")
  endif()
else()
  execute_process(COMMAND ${OBJDUMP} -p ${LIBRARY} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  foreach(flag HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT)
    require("${text}" "${flag}" "${flag}")
  endforeach()
endif()
