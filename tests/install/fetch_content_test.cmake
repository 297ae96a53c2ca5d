cmake_minimum_required(VERSION 3.25)

include(${CMAKE_CURRENT_LIST_DIR}/consumer_project.cmake)
kv_build_and_run(fetch_content -D KV_SOURCE_DIR=${SOURCE_DIR} -D CMAKE_UNITY_BUILD=ON)
