// Counts what malloc hands out to the whole process, libraries written in C included, and makes it
// fail on demand. Only in programs that link failing_malloc.cpp; for one thread.

#ifndef KV_ENGINE_TESTS_SUPPORT_FAILING_MALLOC_H
#define KV_ENGINE_TESTS_SUPPORT_FAILING_MALLOC_H

namespace Korvane::FailingMalloc {

// How often memory was asked for since the start of the program; a realloc asks, too.
long asked();

// How many blocks are in use.
long live();

// Makes the `failing`-th allocation from now on fail, only that one; 0 makes none fail.
void fail(long failing);

}  // namespace Korvane::FailingMalloc
#endif  // KV_ENGINE_TESTS_SUPPORT_FAILING_MALLOC_H
