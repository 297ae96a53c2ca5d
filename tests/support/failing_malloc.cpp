#include "support/failing_malloc.h"

#include <atomic>
#include <cerrno>
#include <cstddef>

// The C library's own, by the names under which it keeps them for programs that replace malloc.
// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* memory);
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

namespace {

std::atomic<long> asked_count{0};
std::atomic<long> live_count{0};
std::atomic<long> left_until_failure{0};

bool next_fails() {
  ++asked_count;
  if (left_until_failure == 0 || --left_until_failure != 0) return false;
  errno = ENOMEM;
  return true;
}

void* counted(void* memory) {
  if (memory != nullptr) ++live_count;
  return memory;
}

}  // namespace

namespace Korvane::FailingMalloc {

long asked() { return asked_count; }
long live() { return live_count; }
void fail(long failing) { left_until_failure = failing; }

}  // namespace Korvane::FailingMalloc

#pragma GCC visibility push(default)  // or the libraries would find the C library's
extern "C" {

void* malloc(std::size_t size) { return next_fails() ? nullptr : counted(__libc_malloc(size)); }

void* calloc(std::size_t count, std::size_t size) {
  return next_fails() ? nullptr : counted(__libc_calloc(count, size));
}

void* realloc(void* memory, std::size_t size) {
  if (next_fails()) return nullptr;
  void* const moved = __libc_realloc(memory, size);
  if (memory == nullptr) return counted(moved);
  if (moved == nullptr && size == 0) --live_count;  // that freed it
  return moved;
}

void* memalign(std::size_t alignment, std::size_t size) {
  return next_fails() ? nullptr : counted(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) { return memalign(alignment, size); }

int posix_memalign(void** memory, std::size_t alignment, std::size_t size) {
  void* const made = memalign(alignment, size);
  if (made == nullptr) return ENOMEM;
  *memory = made;
  return 0;
}

void free(void* memory) {
  if (memory == nullptr) return;
  --live_count;
  __libc_free(memory);
}
}
#pragma GCC visibility pop
