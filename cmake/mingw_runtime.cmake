# With MinGW the C++ run time is shared, so that exceptions cross the borders of DLLs. Its DLLs are put
# beside ours, in the build tree and on installation.
set(KV_MINGW_RUNTIME "")
if(MINGW)
  foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
      OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}")
      message(FATAL_ERROR "The compiler's run time ${name} was not found.")
    endif()
    list(APPEND KV_MINGW_RUNTIME ${path})
  endforeach()
  if(PROJECT_IS_TOP_LEVEL)
    file(COPY ${KV_MINGW_RUNTIME} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  endif()
endif()
