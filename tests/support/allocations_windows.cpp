// Where every module has its own imports: the C++ run time, which makes the allocations of all, is
// given our malloc and free in place of those that it imports.

#include <windows.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include "support/allocations.h"

namespace Korvane::Allocations {
namespace {

std::atomic<long> made{0};
std::atomic<long> freed{0};

void* counting_malloc(std::size_t size) {
  if (next_fails()) return nullptr;
  void* const memory = std::malloc(size);
  if (memory != nullptr) ++made;
  return memory;
}

void counting_free(void* memory) {
  if (memory != nullptr) ++freed;
  std::free(memory);
}

// The slot through which `module` calls the imported function `name`; null when it imports none.
void** import_slot(HMODULE module, const char* name) {
  auto* const base = reinterpret_cast<unsigned char*>(module);
  const auto* const dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
  const auto* const headers = reinterpret_cast<IMAGE_NT_HEADERS64*>(base + dos->e_lfanew);
  const IMAGE_DATA_DIRECTORY& directory =
      headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  const auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
  for (; library->Name != 0; ++library) {
    const auto* wanted = reinterpret_cast<IMAGE_THUNK_DATA64*>(base + library->OriginalFirstThunk);
    auto* slot = reinterpret_cast<void**>(base + library->FirstThunk);
    for (; wanted->u1.AddressOfData != 0; ++wanted, ++slot) {
      if (IMAGE_SNAP_BY_ORDINAL64(wanted->u1.Ordinal)) continue;
      const auto* const import =
          reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + wanted->u1.AddressOfData);
      if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) == 0) return slot;
    }
  }
  return nullptr;
}

void replace_import(HMODULE module, const char* name, void* replacement) {
  void** const slot = module != nullptr ? import_slot(module, name) : nullptr;
  if (slot == nullptr) throw std::runtime_error(name);
  DWORD protection = 0;
  VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
  *slot = replacement;
  VirtualProtect(slot, sizeof *slot, protection, &protection);
}

struct Installation {
  Installation() {
    const HMODULE run_time = GetModuleHandleA("libstdc++-6.dll");
    replace_import(run_time, "malloc", reinterpret_cast<void*>(counting_malloc));
    replace_import(run_time, "free", reinterpret_cast<void*>(counting_free));
  }
} installation;

}  // namespace

Counters counters() { return {made, freed}; }

}  // namespace Korvane::Allocations
