# The project with which Conan tests the package, with the installed prefix.
include(${CMAKE_CURRENT_LIST_DIR}/consumer_project.cmake)
kv_build_and_run(../../packaging/conan/test_package -D CMAKE_PREFIX_PATH=${PREFIX})
