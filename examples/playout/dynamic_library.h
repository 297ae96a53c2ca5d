// A shared library opened at run time. Whatever came from it must be gone before it is closed.

#ifndef KV_ENGINE_EXAMPLES_PLAYOUT_DYNAMIC_LIBRARY_H
#define KV_ENGINE_EXAMPLES_PLAYOUT_DYNAMIC_LIBRARY_H

#include <filesystem>

namespace Playout {

// The folder of the running program.
std::filesystem::path program_folder();

class DynamicLibrary {
 public:
  // The file at `path`; no folder of the system is searched. Raises std::runtime_error, as
  // function() does.
  explicit DynamicLibrary(const std::filesystem::path& path);
  DynamicLibrary(const DynamicLibrary&) = delete;
  DynamicLibrary& operator=(const DynamicLibrary&) = delete;
  ~DynamicLibrary();

  template <typename Function>
  Function* function(const char* name) const {
    return reinterpret_cast<Function*>(address(name));
  }

 private:
  void* address(const char* name) const;

  std::filesystem::path path_;
  void* handle_;
};

}  // namespace Playout
#endif  // KV_ENGINE_EXAMPLES_PLAYOUT_DYNAMIC_LIBRARY_H
