# What is built beside the two libraries. All off, so that a plain build needs only a compiler, CMake
# and the Boost headers; the presets switch on what they need.
option(KV_BUILD_TESTS "Build the tests" OFF)
option(KV_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(KV_BUILD_TOOLS "Build kvtool" OFF)
option(KV_BUILD_EXAMPLES "Build the examples" OFF)
option(KV_BUILD_FUZZERS "Build the fuzz targets (clang only)" OFF)
option(KV_BUILD_DOCS "Build the reference documentation with Doxygen" OFF)
option(KV_BUILD_PYTHON "Build the Python module korvane (needs pybind11)" OFF)

option(KV_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
option(KV_COVERAGE "Count what runs, for scripts/coverage" OFF)
option(KV_TEST_WHOLE_PROGRAMS
  "Run each test program once, not once for each of its tests: quicker where programs start slowly" OFF)
set(KV_SANITIZE "" CACHE STRING "Sanitizers, as for -fsanitize=, e.g. address,undefined")
set(KV_CORE_TARGET "" CACHE STRING "Another core library target in place of the kv_Core_r built here")
