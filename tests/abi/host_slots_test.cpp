#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <iostream>

#include "kv_engine.h"

// The slots as the compiler of this build numbers them.
namespace Korvane::Media {
namespace {

// Of a virtual function; the destructor, which comes first, counts once. In the Itanium C++ ABI a
// pointer to a virtual function is 1 plus its offset in the table, where the destructor takes two
// slots, and the adjustment of `this`.
template <typename Member>
std::ptrdiff_t place_of(Member member) {
  std::ptrdiff_t parts[2];
  static_assert(sizeof member == sizeof parts);
  std::memcpy(parts, &member, sizeof parts);
  const bool is_virtual = parts[0] % 2 == 1 && parts[1] == 0;
  constexpr std::ptrdiff_t kSlot = sizeof(void*);
  return is_virtual ? (parts[0] - 1) / kSlot - 1 : -1;
}

struct HostSlot {
  const char* class_name;
  const char* function;
  std::ptrdiff_t listed;
  std::ptrdiff_t place;
};

using UmidKind = IUmidInfo::UmidKind;  // the list leaves out scopes

TEST(HostSlots, AreThoseOfTheList) {
  const HostSlot slots[] = {
#include "host_slots.inc"
  };
  for (const HostSlot& slot : slots) {
    std::cout << slot.class_name << ' ' << slot.place << ' ' << slot.function << '\n';
    EXPECT_EQ(slot.listed, slot.place) << slot.class_name << ": " << slot.function;
  }
}

}  // namespace
}  // namespace Korvane::Media
