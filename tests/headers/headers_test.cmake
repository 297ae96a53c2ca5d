# cmake -D COMPILER= -D STANDARD= -D FLAGS= -D SOURCE_DIR= [-D COMPANIONS=ON] -P headers_test.cmake: each
# exported header compiles alone without a warning, includes nothing but our own headers, and is included by
# the umbrella header. Or each header of include/ext, which may include others, with all our warnings.
cmake_minimum_required(VERSION 3.25)

set(companions "^${SOURCE_DIR}/include/ext/")
set(warnings -Wall -Wextra -Wpedantic)
file(GLOB_RECURSE headers ${SOURCE_DIR}/include/*.h ${SOURCE_DIR}/core/include/*.h)
if(COMPANIONS)
  list(FILTER headers INCLUDE REGEX "${companions}")
  list(APPEND warnings -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual -Wswitch-enum)
else()
  list(FILTER headers EXCLUDE REGEX "${companions}")
endif()
list(LENGTH headers count)
if(count EQUAL 0)
  message(FATAL_ERROR "no headers found under ${SOURCE_DIR}")
endif()
string(REPLACE "23" "2b" standard ${STANDARD})  # the name that all supported compilers know
foreach(header ${headers})
  file(STRINGS ${header} foreign REGEX "^[ \t]*#[ \t]*include[ \t]*<")
  if(foreign AND NOT COMPANIONS)
    message(SEND_ERROR "${header} includes ${foreign}")
  endif()
  execute_process(
    COMMAND ${COMPILER} ${FLAGS} -std=c++${standard} ${warnings} -Werror -fsyntax-only
      -I${SOURCE_DIR}/include -I${SOURCE_DIR}/core/include -x c++ ${header}
    RESULT_VARIABLE result ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(SEND_ERROR "${header}:\n${errors}")
  endif()
endforeach()

# The umbrella header includes what a client names, and nothing of include/ext.
if(NOT COMPANIONS)
  file(READ ${SOURCE_DIR}/include/kv_engine.h umbrella)
  foreach(header ${headers})
    string(REGEX REPLACE "^.*/include/" "" name ${header})
    string(FIND "${umbrella}" "#include \"${name}\"" position)
    if(name MATCHES "^kv_engine.h$|/export.h$|/(comparison|record_ptr|types|virtual_slots).h$")
      if(NOT position EQUAL -1)
        message(SEND_ERROR "kv_engine.h includes ${name}, which others include")
      endif()
    elseif(position EQUAL -1)
      message(SEND_ERROR "kv_engine.h does not include ${name}")
    endif()
  endforeach()
  if(umbrella MATCHES "\"ext/")
    message(SEND_ERROR "kv_engine.h includes a header of include/ext")
  endif()
endif()
message(STATUS "${count} headers")
