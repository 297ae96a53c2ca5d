// A shared library opened at run time.

#ifndef KV_ENGINE_TESTS_SUPPORT_DYNAMIC_LIBRARY_H
#define KV_ENGINE_TESTS_SUPPORT_DYNAMIC_LIBRARY_H

#include <stdexcept>
#include <string>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace Korvane {

class DynamicLibrary {
 public:
  explicit DynamicLibrary(const char* path) : handle_(open(path)) {
    if (handle_ == nullptr) throw std::runtime_error(std::string("cannot open ") + path);
  }
  DynamicLibrary(const DynamicLibrary&) = delete;
  DynamicLibrary& operator=(const DynamicLibrary&) = delete;
  ~DynamicLibrary() { close(); }

  template <typename Function>
  Function* function(const char* name) const {
    auto* const address = reinterpret_cast<Function*>(find(name));
    if (address == nullptr) throw std::runtime_error(std::string("no function ") + name);
    return address;
  }

 private:
#ifdef _WIN32
  static HMODULE open(const char* path) { return LoadLibraryA(path); }
  void* find(const char* name) const {
    return reinterpret_cast<void*>(GetProcAddress(handle_, name));
  }
  void close() { FreeLibrary(handle_); }
  HMODULE handle_;
#else
  static void* open(const char* path) { return dlopen(path, RTLD_NOW | RTLD_LOCAL); }
  void* find(const char* name) const { return dlsym(handle_, name); }
  void close() { dlclose(handle_); }
  void* handle_;
#endif
};

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_SUPPORT_DYNAMIC_LIBRARY_H
