// KV_ENGINE_SLOTS(first, second); declares two virtual overloads of one name so that `first` takes
// the slot before `second` under every ABI. Microsoft compilers, and those that follow them, number
// the overloads of a name from the last declared to the first; all others number them as declared.

#ifndef KV_ENGINE_FOUNDATION_VIRTUAL_SLOTS_H
#define KV_ENGINE_FOUNDATION_VIRTUAL_SLOTS_H

#if defined(_MSC_VER)
#define KV_ENGINE_SLOTS(first, second) \
  second;                              \
  first
#else
#define KV_ENGINE_SLOTS(first, second) \
  first;                               \
  second
#endif

#endif  // KV_ENGINE_FOUNDATION_VIRTUAL_SLOTS_H
