// All that differs between Windows and other systems.

#include "dynamic_library.h"

#include <stdexcept>
#include <string>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace Playout {
namespace {

#ifdef _WIN32

void* open(const std::filesystem::path& path) { return LoadLibraryW(path.c_str()); }
std::string reason(const std::filesystem::path& path) {
  return path.string() + ": error " + std::to_string(GetLastError());
}
void close(void* library) { FreeLibrary(static_cast<HMODULE>(library)); }
void* find(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}
std::filesystem::path program() {
  wchar_t path[MAX_PATH];
  return std::wstring(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
}

#else

void* open(const std::filesystem::path& path) {
  return dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
}
// NOLINTNEXTLINE(concurrency-mt-unsafe): each thread has a text of its own
std::string reason(const std::filesystem::path& /*path*/) { return dlerror(); }
void close(void* library) { dlclose(library); }
void* find(void* library, const char* name) { return dlsym(library, name); }
std::filesystem::path program() { return std::filesystem::read_symlink("/proc/self/exe"); }

#endif

}  // namespace

std::filesystem::path program_folder() { return program().parent_path(); }

DynamicLibrary::DynamicLibrary(const std::filesystem::path& path)
    : path_(std::filesystem::absolute(path)), handle_(open(path_)) {
  if (handle_ == nullptr) throw std::runtime_error("cannot open the module: " + reason(path_));
}

DynamicLibrary::~DynamicLibrary() { close(handle_); }

void* DynamicLibrary::address(const char* name) const {
  void* const found = find(handle_, name);
  if (found == nullptr) throw std::runtime_error(path_.string() + " has no function " + name);
  return found;
}

}  // namespace Playout
