# What cpack makes: of a Windows build a ZIP, of a build for /usr Debian packages, of others an archive.
# Archives unpack anywhere.
if(KV_CORE_TARGET OR NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

set(CPACK_PACKAGE_NAME kv_Engine_r)
set(CPACK_PACKAGE_VENDOR "kv_Engine_r maintainers")
set(CPACK_PACKAGE_CONTACT
  "kv_Engine_r maintainers <maintainers@users.noreply.c-seed-2263bb1c.example>")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
elseif(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  set(CPACK_GENERATOR DEB)
  include(${CMAKE_CURRENT_LIST_DIR}/debian/packages.cmake)
else()
  set(CPACK_GENERATOR TGZ)
endif()
include(CPack)
