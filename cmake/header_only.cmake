# kv_header_only(<target> <folder in /usr/include>): an imported target for one header-only library
# alone. The whole of /usr/include must not be on a cross compiler's path.
function(kv_header_only target folder)
  find_path(${target}_ROOT ${folder} PATHS /usr/include /usr/local/include
    NO_CMAKE_FIND_ROOT_PATH NO_SYSTEM_ENVIRONMENT_PATH)  # a program may have its name
  if(NOT ${target}_ROOT)
    message(FATAL_ERROR "The ${folder} headers were not found; set ${target}_ROOT to their folder.")
  endif()
  add_library(${target} INTERFACE)
  if(CMAKE_CROSSCOMPILING)
    set(root ${CMAKE_BINARY_DIR}/header_only/${folder})
    file(MAKE_DIRECTORY ${root})
    file(CREATE_LINK ${${target}_ROOT}/${folder} ${root}/${folder} SYMBOLIC)
  else()
    set(root ${${target}_ROOT})
  endif()
  target_include_directories(${target} SYSTEM INTERFACE ${root})
endfunction()
