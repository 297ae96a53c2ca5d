# kv_build_and_run(<folder> <cache settings>...): configures, builds and runs a consumer project.
cmake_minimum_required(VERSION 3.25)

function(kv_build_and_run folder)
  file(REMOVE_RECURSE ${WORK_DIR})
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/${folder}
    -B ${WORK_DIR} -G Ninja -D CMAKE_CXX_COMPILER=${COMPILER} ${ARGN}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR} OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${WORK_DIR}/consumer COMMAND_ERROR_IS_FATAL ANY)
endfunction()
