# A product's own core library in place of the one in core/. kv_core is its target; whoever writes
# Korvane::kv_Core_r gets it too. kv_core_is_installed: it was found, not built here, so that projects
# which use the installed package can find it likewise.
if(NOT TARGET ${KV_CORE_TARGET})
  message(FATAL_ERROR "KV_CORE_TARGET: there is no target ${KV_CORE_TARGET}. Define it before "
    "add_subdirectory, or find it in a file named by CMAKE_PROJECT_kv_Engine_r_INCLUDE.")
endif()
set(kv_core ${KV_CORE_TARGET})
get_target_property(kv_core_aliased ${kv_core} ALIASED_TARGET)
if(kv_core_aliased)
  set(kv_core ${kv_core_aliased})
endif()
get_target_property(kv_core_is_installed ${kv_core} IMPORTED)
if(NOT TARGET Korvane::kv_Core_r)
  add_library(Korvane::kv_Core_r ALIAS ${kv_core})
endif()
