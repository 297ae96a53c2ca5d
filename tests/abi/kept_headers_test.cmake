# cmake -D VERSION= -D SOURCE_DIR= -P kept_headers_test.cmake: the headers kept in tests/abi/VERSION are those
# of the tag vVERSION, but for include/ext. Says "no tag" where there is none yet.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND git -C ${SOURCE_DIR} rev-parse -q --verify refs/tags/v${VERSION}
  OUTPUT_QUIET ERROR_QUIET RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(STATUS "no tag v${VERSION}")
  return()
endif()

# The headers of the tag, and their hashes, by the path that clients include them by.
execute_process(COMMAND git -C ${SOURCE_DIR} ls-tree -r v${VERSION} include core/include
  OUTPUT_VARIABLE tree COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[0-9a-f]+\t[^\n]+" tagged "${tree}")
list(TRANSFORM tagged REPLACE "\t(core/)?include/" " ")
list(FILTER tagged EXCLUDE REGEX " ext/")

set(folder ${SOURCE_DIR}/tests/abi/${VERSION}/include)
file(GLOB_RECURSE headers RELATIVE ${folder} ${folder}/*)
set(kept "")
foreach(header ${headers})
  execute_process(COMMAND git hash-object --no-filters ${folder}/${header}
    OUTPUT_VARIABLE hash OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND kept "${hash} ${header}")
endforeach()

foreach(header ${kept})
  if(NOT header IN_LIST tagged)
    message(SEND_ERROR "kept, but not in the tag: ${header}")
  endif()
endforeach()
foreach(header ${tagged})
  if(NOT header IN_LIST kept)
    message(SEND_ERROR "in the tag, but not kept: ${header}")
  endif()
endforeach()
list(LENGTH tagged count)
if(count EQUAL 0)
  message(SEND_ERROR "the tag has no headers")
endif()
message(STATUS "${count} headers")
