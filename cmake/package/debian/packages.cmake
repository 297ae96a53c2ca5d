# The Debian packages, one for each component. The core library has one of its own: it may be replaced by
# that of a product, which then states that it provides libkv-core-r1.
file(STRINGS ${CMAKE_CURRENT_LIST_DIR}/changelog kv_debian_changelog LIMIT_COUNT 1)
if(NOT kv_debian_changelog MATCHES "^kv-engine-r \\(${PROJECT_VERSION}-([0-9]+)\\) ")
  message(FATAL_ERROR "cmake/package/debian/changelog begins with another version than "
    "${PROJECT_VERSION}: ${kv_debian_changelog}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_1})
set(CPACK_DEBIAN_PACKAGE_SOURCE kv-engine-r)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL core_runtime runtime development)
if(KV_BUILD_TOOLS)
  list(APPEND CPACK_COMPONENTS_ALL tools)
endif()
if(KV_BUILD_PYTHON)
  list(APPEND CPACK_COMPONENTS_ALL python)
endif()

# An interface grows with the minor version only, so patches satisfy each other. Headers are those of
# exactly one build.
set(since "(>= ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})")
set(same "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

# kv_debian_library(<variable> <package> <library>): control files of a package with a shared library:
# which package others need that are linked to it, and that the loader's cache is renewed.
function(kv_debian_library variable package library)
  set(folder ${PROJECT_BINARY_DIR}/debian/${package})
  file(WRITE ${folder}/shlibs "${library} ${PROJECT_VERSION_MAJOR} ${package} ${since}\n")
  file(WRITE ${folder}/triggers "activate-noawait ldconfig\n")
  set(${variable} ${folder}/shlibs ${folder}/triggers PARENT_SCOPE)
endfunction()

kv_debian_library(CPACK_DEBIAN_CORE_RUNTIME_PACKAGE_CONTROL_EXTRA libkv-core-r1 libkv_Core_r)
set(CPACK_DEBIAN_CORE_RUNTIME_PACKAGE_NAME libkv-core-r1)
set(CPACK_DEBIAN_CORE_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_CORE_RUNTIME_DESCRIPTION
"exceptions and log of the kv_Engine_r library
The core library on which kv_Engine_r stands: the exception that reports its
failures, and the log that its lines go to. A product that has a core library
of its own can replace it.")

kv_debian_library(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA libkv-engine-r1 libkv_Engine_r)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libkv-engine-r1)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libkv-core-r1 ${since}")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
"vocabulary of broadcast ingest and playout
Timecodes (SMPTE ST 12-1), track descriptors, video formats and raw layouts,
frames and samples in shared handles, statistics of streams, identifiers of
material (SMPTE ST 330), and settings of devices and services, as classes
whose binary interface stays put.
.
This package has the shared library.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkv-engine-r-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libkv-core-r1 ${same}, libkv-engine-r1 ${same}")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
"vocabulary of broadcast ingest and playout - development files
Timecodes (SMPTE ST 12-1), track descriptors, video formats and raw layouts,
frames and samples in shared handles, statistics of streams, identifiers of
material (SMPTE ST 330), and settings of devices and services.
.
This package has the headers, the CMake package, the pkg-config file, and what
GDB needs to show the objects by their values.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME kvtool)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION video)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "libkv-core-r1 ${since}, libkv-engine-r1 ${since}")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION
"timecodes and tracks of broadcast material
Shows and checks the timecodes and tracks of media files, lists of timecodes
and recorded longitudinal timecode; shows identifiers of material (UMIDs),
endpoints of SMPTE ST 2110 streams, statistics of SRT connections, and
multiviewer layouts.")

# The module is for the minor version of the interpreter that it was built with.
math(EXPR next_python "${KV_PYTHON_MINOR} + 1")
set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-korvane)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS "libkv-core-r1 ${since}, libkv-engine-r1 ${since}, \
python3 (>= 3.${KV_PYTHON_MINOR}), python3 (<< 3.${next_python})")
set(CPACK_COMPONENT_PYTHON_DESCRIPTION
"vocabulary of broadcast ingest and playout - Python module
Timecodes (SMPTE ST 12-1), track descriptors, video formats and raw layouts,
statistics of streams, identifiers of material (SMPTE ST 330), and settings
of devices and services, as classes of Python.
.
This package has the module korvane and its type stubs.")

# For the scripts that cpack runs, which see only what begins with CPACK_.
set(CPACK_KV_DEBIAN_DIR ${CMAKE_CURRENT_LIST_DIR})
set(CPACK_KV_COPYRIGHT ${CMAKE_CURRENT_LIST_DIR}/../copyright)
set(CPACK_KV_CHANGELOG ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set(CPACK_KV_PACKAGES core_runtime=libkv-core-r1 runtime=libkv-engine-r1
  development=libkv-engine-r-dev tools=kvtool python=python3-korvane)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/project_config.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/before_packing.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/after_packing.cmake)
