# Builds the clone that this port stands in.
get_filename_component(SOURCE_PATH "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

# Hosts and modules exchange objects and exceptions, so a process holds one copy.
vcpkg_check_linkage(ONLY_DYNAMIC_LIBRARY)

vcpkg_cmake_configure(
  SOURCE_PATH "${SOURCE_PATH}"
  OPTIONS "-Dkv_boost_ROOT=${CURRENT_INSTALLED_DIR}/include")
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME kv_engine_r CONFIG_PATH lib/cmake/kv_Engine_r)
vcpkg_fixup_pkgconfig()

file(REMOVE_RECURSE
  "${CURRENT_PACKAGES_DIR}/debug/include"
  "${CURRENT_PACKAGES_DIR}/debug/share")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/cmake/package/copyright")
