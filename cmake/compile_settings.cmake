# kv_compile_settings(<target>): how our own code is compiled and linked. All private: nothing of it
# reaches the users of an installed library.
include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(${CMAKE_CURRENT_LIST_DIR}/exported_names.cmake)

set(kv_warnings
  -Wall -Wextra -Wpedantic   # the usual ground
  -Wshadow                   # a hidden name is a misread name
  -Wconversion               # values change silently
  -Wsign-conversion          # likewise, between signed and unsigned
  -Wold-style-cast           # casts must be searchable
  -Wnon-virtual-dtor         # deleted through a base, it would leak
  -Woverloaded-virtual       # a hidden overload moves no slot and is never called
  -Wswitch-enum              # every enumerator has its case
)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  list(APPEND kv_warnings -Wsuggest-override)  # a changed base is noticed
  if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    list(APPEND kv_warnings -Wno-restrict)  # warns of joining std::string (GCC bug 105651)
  endif()
elseif(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  list(APPEND kv_warnings -Winconsistent-missing-destructor-override)
endif()

# _FORTIFY_SOURCE works in optimised builds only, and not together with the sanitizers.
set(kv_fortify "")
if(NOT WIN32 AND NOT KV_SANITIZE AND CMAKE_BUILD_TYPE MATCHES "Rel")
  set(CMAKE_REQUIRED_FLAGS "-O2 -Werror -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3")
  check_cxx_source_compiles("#include <cstring>\nint main() {}" KV_HAS_FORTIFY_SOURCE_3)
  unset(CMAKE_REQUIRED_FLAGS)
  set(kv_fortify -U_FORTIFY_SOURCE)
  if(KV_HAS_FORTIFY_SOURCE_3)
    list(APPEND kv_fortify -D_FORTIFY_SOURCE=3)
  else()
    list(APPEND kv_fortify -D_FORTIFY_SOURCE=2)
  endif()
endif()

set(kv_hardening_compile "")
set(kv_hardening_link "")
if(WIN32)
  set(kv_hardening_link -Wl,--high-entropy-va -Wl,--dynamicbase -Wl,--nxcompat)
else()
  set(kv_hardening_compile ${kv_fortify} -fstack-protector-strong)
  set(kv_hardening_link -Wl,-z,relro -Wl,-z,now)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    list(APPEND kv_hardening_compile -fcf-protection=full -fstack-clash-protection)
  endif()
endif()

# Nobody puts functions in the place of ours, so that calls among our own exported ones are direct; and
# every name is bound at once, so that calls of others need no stub.
set(kv_direct_calls "")
if(NOT WIN32)
  set(kv_direct_calls -fno-semantic-interposition -fno-plt)
endif()

# Records of some hundred bytes are copied by the C library: an SRT sample in three quarters of the time
# that GCC's choice, an instruction that copies on its own (rep movs), takes. Each function begins on a line
# of the processor's cache, so that its speed does not depend on what stands before it: making a timecode
# took up to a twelfth longer by that alone.
check_cxx_compiler_flag(-mstringop-strategy=libcall KV_HAS_STRINGOP_STRATEGY)
set(kv_speed "")
if(KV_HAS_STRINGOP_STRATEGY AND NOT WIN32)
  set(kv_speed -mstringop-strategy=libcall -falign-functions=64)
endif()

# No path of the build machine gets into what is shipped: builds in different folders give the same bytes.
# Debug builds keep their paths, which debuggers follow.
set(kv_same_bytes_compile
  $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>
  $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_BINARY_DIR}=./build>)
set(kv_same_bytes_link "")
if(MINGW)
  set(kv_same_bytes_link -Wl,--no-insert-timestamp)
endif()

set(kv_instrumentation "")
if(KV_SANITIZE)
  list(APPEND kv_instrumentation -fsanitize=${KV_SANITIZE} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
endif()
# The libraries are counted, the tests are not.
set(kv_coverage_compile "")
set(kv_coverage_link "")
if(KV_COVERAGE AND CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  set(kv_coverage_compile -fprofile-instr-generate -fcoverage-mapping -fcoverage-mcdc
    -fprofile-update=atomic)
  set(kv_coverage_link -fprofile-instr-generate)
elseif(KV_COVERAGE)
  set(kv_coverage_compile --coverage -fprofile-update=atomic)
  set(kv_coverage_link --coverage)
endif()

function(kv_compile_settings target)
  set_target_properties(${target} PROPERTIES
    CXX_STANDARD 20
    CXX_STANDARD_REQUIRED ON
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    BUILD_RPATH_USE_ORIGIN ON
    POSITION_INDEPENDENT_CODE ON)
  target_compile_options(${target} PRIVATE ${kv_warnings}
    $<$<BOOL:${KV_WARNINGS_AS_ERRORS}>:-Werror> ${kv_hardening_compile} ${kv_same_bytes_compile}
    ${kv_direct_calls} ${kv_instrumentation})
  target_link_options(${target} PRIVATE ${kv_hardening_link} ${kv_same_bytes_link}
    ${kv_instrumentation} ${kv_coverage_link})
endfunction()

# kv_shared_library(<target>): a library that we ship. Nothing but our own interface is visible: by the
# version script cmake/<target>.map on ELF, by the list of names cmake/<target>.exports on Windows.
function(kv_shared_library target)
  kv_compile_settings(${target})
  target_compile_options(${target} PRIVATE ${kv_coverage_compile})
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  if(WIN32)
    set_target_properties(${target} PROPERTIES PREFIX "" DLL_NAME_WITH_SOVERSION OFF)
    kv_module_definition(${target})
  else()
    set(version_script ${PROJECT_SOURCE_DIR}/cmake/${target}.map)
    target_link_options(${target} PRIVATE LINKER:--version-script=${version_script})
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${version_script})
    # Every symbol is found at link time; clang leaves the sanitizers' run time to the executable.
    if(NOT (KV_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "Clang"))
      target_link_options(${target} PRIVATE -Wl,-z,defs)
    endif()
  endif()
endfunction()

# The module-definition file of <target>, from its list of exported names.
function(kv_module_definition target)
  set(exports ${PROJECT_SOURCE_DIR}/cmake/${target}.exports)
  set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${exports})
  kv_exported_names(names ${exports} pe)
  list(TRANSFORM names APPEND " DATA" REGEX "^_ZT")
  list(JOIN names "\n  " lines)
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${target}.def "EXPORTS\n  ${lines}\n")
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
endfunction()
