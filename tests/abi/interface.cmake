# What only scripts/checks/interface runs, which installs what is missing: a tool that is not found fails
# its tests. For libraries with their debug information, each source compiled alone.
find_program(KV_UNDNAME NAMES llvm-undname)
find_program(KV_LLVM_NM NAMES llvm-nm)
find_program(KV_ABIDIFF NAMES abidiff)

kv_client_tests(interface Clang-19 ${KV_CLANGXX_19})
kv_client_tests(interface Clang-19-for-Microsoft ${KV_CLANGXX_19} --target=x86_64-pc-windows-msvc)
kv_clang_tests(interface ${KV_CLANGXX_19} .clang-19)

add_test(NAME abi.names COMMAND ${KV_PYTHON} -B ${CMAKE_CURRENT_SOURCE_DIR}/names_test.py
  --clang ${KV_CLANGXX} --cxxfilt ${KV_CXXFILT} --undname ${KV_UNDNAME} --nm ${KV_LLVM_NM}
  --client ${kept}/client/module.cpp ${include_roots} ${export_lists} --microsoft ${CMAKE_CURRENT_SOURCE_DIR}/microsoft.exports)
foreach(library kv_Core_r kv_Engine_r)
  add_test(NAME abi.abidiff.${library} COMMAND ${KV_ABIDIFF} --no-added-syms
    ${kept}/${library}.abi $<TARGET_FILE:${library}>)
endforeach()
set_tests_properties(abi.names abi.abidiff.kv_Core_r abi.abidiff.kv_Engine_r PROPERTIES
  LABELS interface TIMEOUT 300)

# Once the version has its tag, its headers must not have changed since.
add_test(NAME abi.kept_headers.${kept_version} COMMAND ${CMAKE_COMMAND}
  -D VERSION=${kept_version} -D SOURCE_DIR=${PROJECT_SOURCE_DIR}
  -P ${CMAKE_CURRENT_SOURCE_DIR}/kept_headers_test.cmake)
set_tests_properties(abi.kept_headers.${kept_version} PROPERTIES
  LABELS interface SKIP_REGULAR_EXPRESSION "no tag")

# kv_client_test(<name> HOST <compiler> <flags>... MODULE <compiler> <flags>...
#   [ARGUMENT <argument of the host>]): host and module meet in the library. The headers of the host are
# today's, those of the module are kept here.
function(kv_client_test name)
  cmake_parse_arguments(arg "" "ARGUMENT" "HOST;MODULE" ${ARGN})
  list(POP_FRONT arg_HOST host_compiler)
  list(POP_FRONT arg_MODULE module_compiler)
  add_test(NAME ${name} COMMAND ${CMAKE_COMMAND}
    -D HOST_COMPILER=${host_compiler} -D "HOST_FLAGS=${arg_HOST}"
    -D "HOST_INCLUDE=${PROJECT_SOURCE_DIR}/include;${PROJECT_SOURCE_DIR}/core/include"
    -D MODULE_COMPILER=${module_compiler} -D "MODULE_FLAGS=${arg_MODULE}"
    -D MODULE_INCLUDE=${kept}/include -D SOURCES=${kept}/client
    -D LIBDIR=$<TARGET_FILE_DIR:kv_Engine_r>
    -D ARGUMENT=${arg_ARGUMENT} -D WORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/${name}
    -P ${CMAKE_CURRENT_SOURCE_DIR}/client_test.cmake)
  set_tests_properties(${name} PROPERTIES LABELS interface TIMEOUT 300)
endfunction()

# Host and module by other compilers and settings than the library, one after the other and both.
# Exceptions meet within one C++ run time only: those of libc++ have their own.
function(kv_mixed_test name)
  cmake_parse_arguments(arg "" "ARGUMENT" "" ${ARGN})
  set(client ${arg_UNPARSED_ARGUMENTS})
  if(arg_ARGUMENT)
    set(argument ARGUMENT ${arg_ARGUMENT})
  endif()
  kv_client_test(abi.mixed.${name}.host
    HOST ${client} MODULE ${plain_client} ${argument})
  kv_client_test(abi.mixed.${name}.module
    HOST ${plain_client} MODULE ${client} ${argument})
endfunction()

set(plain_client ${CMAKE_CXX_COMPILER} -std=c++11)
set(gcc ${CMAKE_CXX_COMPILER})
set(clang ${KV_CLANGXX})
set(clang19 ${KV_CLANGXX_19})
set(KV_LIBCXX "" CACHE PATH "Root below which libc++ of LLVM 14 is unpacked; empty when it is installed")
set(llvm ${KV_LIBCXX}/usr/lib/llvm-14)
set(libcxx -stdlib=libc++ -nostdinc++ -isystem ${llvm}/include/c++/v1 -L${llvm}/lib
  -Wl,-rpath,${llvm}/lib)
kv_mixed_test(gcc-c++11-O0           ${gcc} -std=c++11 -O0)
kv_mixed_test(gcc-c++23-O3-lto       ${gcc} -std=c++2b -O3 -flto)
kv_mixed_test(gcc-c++11-debug        ${gcc} -std=c++11 -D_GLIBCXX_DEBUG)
kv_mixed_test(gcc-c++23-no-rtti      ${gcc} -std=c++2b -O2 -fno-rtti)
kv_mixed_test(clang-c++11-O0         ${clang} -std=c++11 -O0)
kv_mixed_test(clang-c++23-O3-lto     ${clang} -std=c++2b -O3 -flto -fuse-ld=lld)
kv_mixed_test(clang-c++23-debug      ${clang} -std=c++2b -D_GLIBCXX_DEBUG)
kv_mixed_test(clang-c++11-no-rtti    ${clang} -std=c++11 -O2 -fno-rtti)
kv_mixed_test(clang-19-c++11-O0      ${clang19} -std=c++11 -O0)
kv_mixed_test(clang-19-c++23-O3      ${clang19} -std=c++23 -O3)
kv_mixed_test(clang-19-c++23-debug   ${clang19} -std=c++23 -D_GLIBCXX_DEBUG)
kv_mixed_test(clang-19-c++11-no-rtti ${clang19} -std=c++11 -O2 -fno-rtti)
kv_mixed_test(clang-libc++-c++11     ${clang} ${libcxx} -std=c++11 ARGUMENT other-run-time)
kv_mixed_test(clang-libc++-c++23     ${clang} ${libcxx} -std=c++2b -O3 ARGUMENT other-run-time)
kv_mixed_test(clang-19-libc++-c++23  ${clang19} ${libcxx} -std=c++23 -O2 ARGUMENT other-run-time)

# Each break of the interface is refused, by the checks that are said to refuse it.
file(STRINGS break_test.py lines REGEX "^    \"[a-z_]+\": Break\\(")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  ${CMAKE_CURRENT_SOURCE_DIR}/break_test.py)
foreach(line ${lines})
  string(REGEX REPLACE "^    \"([a-z_]+)\".*$" "\\1" name "${line}")
  add_test(NAME abi.break.${name} COMMAND
    ${KV_PYTHON} -B ${CMAKE_CURRENT_SOURCE_DIR}/break_test.py ${name}
      --source ${PROJECT_SOURCE_DIR} --build ${PROJECT_BINARY_DIR}
      --work ${CMAKE_CURRENT_BINARY_DIR}/break.${name} --core $<TARGET_FILE:kv_Core_r>
      --stored ${kept}/kv_Engine_r.abi --compiler ${CMAKE_CXX_COMPILER} --clang ${KV_CLANGXX}
      --cmake ${CMAKE_COMMAND} --cxxfilt ${KV_CXXFILT} --undname ${KV_UNDNAME} --nm ${KV_LLVM_NM}
      --client ${kept}/client/module.cpp
      --objdump ${CMAKE_OBJDUMP} --abidiff ${KV_ABIDIFF})
  set_tests_properties(abi.break.${name} PROPERTIES LABELS interface TIMEOUT 300)
endforeach()
