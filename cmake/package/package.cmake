# Installation: libraries, headers under one root, CMake package and pkg-config file. Every path in
# them is relative, so that an installed prefix can be moved. Components: runtime, core_runtime,
# development, tools, python.
include(CMakePackageConfigHelpers)

set(kv_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/kv_Engine_r)
set(kv_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/kv_Engine_r)

# kv_install_library(<target> <component>): the library itself is of <component>, what links against it
# and its headers are of the development component.
function(kv_install_library target component)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  install(TARGETS ${target} EXPORT kv_Engine_rTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${component}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${component}
      NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    INCLUDES DESTINATION ${kv_include_dir}
    FILE_SET HEADERS DESTINATION ${kv_include_dir} COMPONENT development
    FILE_SET companions DESTINATION ${kv_include_dir} COMPONENT development)
endfunction()

kv_install_library(kv_Engine_r runtime)
if(NOT KV_CORE_TARGET)
  kv_install_library(kv_Core_r core_runtime)
endif()
if(WIN32)  # Debian packages have it in each of them
  install(FILES ${CMAKE_CURRENT_LIST_DIR}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT core_runtime)
endif()
if(KV_MINGW_RUNTIME)
  install(FILES ${KV_MINGW_RUNTIME} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT core_runtime)
endif()

# A core that the project around this one builds can be found by nobody else.
if(KV_CORE_TARGET AND NOT kv_core_is_installed)
  return()
endif()

install(DIRECTORY ${PROJECT_SOURCE_DIR}/tests/vectors DESTINATION ${CMAKE_INSTALL_DATADIR}/kv_Engine_r
  COMPONENT development FILES_MATCHING PATTERN *.csv PATTERN *.md)
install(EXPORT kv_Engine_rTargets NAMESPACE Korvane:: DESTINATION ${kv_package_dir}
  COMPONENT development)
configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/kv_Engine_rConfig.cmake.in
  ${PROJECT_BINARY_DIR}/kv_Engine_rConfig.cmake
  INSTALL_DESTINATION ${kv_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kv_Engine_rConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/kv_Engine_rConfig.cmake
  ${PROJECT_BINARY_DIR}/kv_Engine_rConfigVersion.cmake
  DESTINATION ${kv_package_dir} COMPONENT development)

# Named after the library, so that one with CMAKE_DEBUG_POSTFIX has its own.
file(RELATIVE_PATH kv_prefix_from_pkgconfig
  /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
set(kv_pkgconfig_core "")
if(NOT KV_CORE_TARGET)
  set(kv_pkgconfig_core " -l$<TARGET_FILE_BASE_NAME:kv_Core_r>")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/kv_Engine_r.pc.in ${PROJECT_BINARY_DIR}/kv_Engine_r.pc.in
  @ONLY)
set(kv_pkgconfig_file ${PROJECT_BINARY_DIR}/$<TARGET_FILE_BASE_NAME:kv_Engine_r>.pc)
file(GENERATE OUTPUT ${kv_pkgconfig_file} INPUT ${PROJECT_BINARY_DIR}/kv_Engine_r.pc.in
  TARGET kv_Engine_r)
install(FILES ${kv_pkgconfig_file} DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)

# How debuggers show the objects. GDB loads by itself what has the whole path of the library and stands in
# its folder for such scripts, which is that of the system.
set(kv_debuggers_dir ${PROJECT_SOURCE_DIR}/debuggers)
install(FILES ${kv_debuggers_dir}/kv_Engine_r-gdb.py
  DESTINATION ${CMAKE_INSTALL_DATADIR}/kv_Engine_r COMPONENT development)
if(WIN32)
  install(FILES ${kv_debuggers_dir}/kv_Engine_r.natvis
    DESTINATION ${CMAKE_INSTALL_DATADIR}/kv_Engine_r COMPONENT development)
elseif(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  install(FILES ${kv_debuggers_dir}/kv_Engine_r-gdb.py
    DESTINATION ${CMAKE_INSTALL_DATADIR}/gdb/auto-load${CMAKE_INSTALL_FULL_LIBDIR}
    RENAME $<TARGET_FILE_NAME:kv_Engine_r>-gdb.py COMPONENT development)
endif()
