# Installs the build into an empty prefix and compares the files with the manifest.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX}
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE installed LIST_DIRECTORIES false RELATIVE ${PREFIX} ${PREFIX}/*)
file(STRINGS ${EXPECTED} expected)
if(NOT TOOLS)
  list(FILTER expected EXCLUDE REGEX "^(bin|share)/")
endif()
list(FILTER installed EXCLUDE REGEX "^lib/python")  # of KV_BUILD_PYTHON, seen in its package
list(TRANSFORM expected REPLACE "^LIBDIR" "${LIBDIR}")
foreach(file ${installed})
  string(REGEX REPLACE "Targets-[a-z]+\\.cmake$" "Targets-CONFIG.cmake" file ${file})
  if(NOT file IN_LIST expected)
    message(SEND_ERROR "installed, not expected: ${file}")
  endif()
  list(REMOVE_ITEM expected ${file})
endforeach()
foreach(file ${expected})
  message(SEND_ERROR "expected, not installed: ${file}")
endforeach()
