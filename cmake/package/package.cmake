# Installation: libraries, headers under one root, CMake package and pkg-config file. Every path in
# them is relative, so that an installed prefix can be moved.
include(CMakePackageConfigHelpers)

set(kv_include_dir ${CMAKE_INSTALL_INCLUDEDIR}/kv_Engine_r)
set(kv_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/kv_Engine_r)

set(kv_libraries kv_Engine_r)
if(NOT KV_CORE_TARGET)
  list(APPEND kv_libraries kv_Core_r)
endif()

set_target_properties(${kv_libraries} PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS ${kv_libraries} EXPORT kv_Engine_rTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${kv_include_dir}
  FILE_SET HEADERS DESTINATION ${kv_include_dir})
install(EXPORT kv_Engine_rTargets NAMESPACE Korvane:: DESTINATION ${kv_package_dir})

configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/kv_Engine_rConfig.cmake.in
  ${PROJECT_BINARY_DIR}/kv_Engine_rConfig.cmake
  INSTALL_DESTINATION ${kv_package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kv_Engine_rConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/kv_Engine_rConfig.cmake
  ${PROJECT_BINARY_DIR}/kv_Engine_rConfigVersion.cmake
  DESTINATION ${kv_package_dir})

file(RELATIVE_PATH kv_prefix_from_pkgconfig
  /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${CMAKE_CURRENT_LIST_DIR}/kv_Engine_r.pc.in ${PROJECT_BINARY_DIR}/kv_Engine_r.pc
  @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kv_Engine_r.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(KV_MINGW_RUNTIME)
  install(FILES ${KV_MINGW_RUNTIME} DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
