// Where a program's operator new takes the place of everyone's.

#include <atomic>
#include <cstdlib>
#include <new>

#include "support/allocations.h"

namespace {

std::atomic<long> made{0};
std::atomic<long> freed{0};

void* allocate(std::size_t size) noexcept {
  if (Korvane::Allocations::next_fails()) return nullptr;
  void* const memory = std::malloc(size != 0 ? size : 1);
  if (memory != nullptr) ++made;
  return memory;
}

void release(void* memory) noexcept {
  if (memory == nullptr) return;
  ++freed;
  std::free(memory);
}

}  // namespace

namespace Korvane::Allocations {

Counters counters() { return {made, freed}; }

}  // namespace Korvane::Allocations

void* operator new(std::size_t size) {
  void* const memory = allocate(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return allocate(size); }
void operator delete(void* memory) noexcept { release(memory); }
void operator delete[](void* memory) noexcept { release(memory); }
void operator delete(void* memory, std::size_t) noexcept { release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { release(memory); }
