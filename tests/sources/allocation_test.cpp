// What is allocated, and what happens when there is no memory.

#include <gtest/gtest.h>

#include <string>

#include "media/source_info.h"
#include "media/umid.h"
#include "support/without_memory.h"

namespace Korvane::Media::AllocationTests {
namespace {

using Allocations::made_by;
using Allocations::run_with_ever_more_memory;

constexpr auto kKind = static_cast<IUmidInfo::UmidKind>(1);
const wchar_t* const kOldId = L"060a2b340101010501010d4313000000d927956e4f1c41baa03b7e82c560f819";
const wchar_t* const kNewId = L"060a2b340101010501010d4313000000ffffffffffffffffffffffffffffffff";
const wchar_t* const kOldName = L"a name that is too long for a short buffer";
const wchar_t* const kNewName = L"another name that is too long for the buffer of the former one";

TEST(SourceAllocations, TheTextOfAUmidIsMadeOnce) {
  const Umid umid(kOldId);
  EXPECT_EQ(1, made_by([&] { umid.c_str(); }));
  EXPECT_EQ(0, made_by([&] { umid.c_str(); }));
  EXPECT_EQ(0, made_by([&] { static_cast<void>(umid.value()); }));
}

TEST(SourceAllocations, AUmidIsReadOrNot) {
  EXPECT_LT(0, run_with_ever_more_memory([] { return 0; }, [](int) { const Umid umid(kOldId); },
                                         [](int, bool) {}));
}

TEST(SourceAllocations, AUmidWithoutMemoryForItsTextPrintsItLater) {
  EXPECT_LT(0, run_with_ever_more_memory(
                   [] { return Umid(kOldId); }, [](const Umid& umid) { umid.c_str(); },
                   [](const Umid& umid, bool) { EXPECT_STREQ(kOldId, umid.c_str()); }));
}

TEST(SourceAllocations, AUmidThatCannotBeAssignedStaysAsItWas) {
  const Umid source(kNewId);
  source.c_str();
  EXPECT_LT(
      0, run_with_ever_more_memory([] { return Umid(kOldId); }, [&](Umid& umid) { umid = source; },
                                   [](const Umid& umid, bool done) {
                                     EXPECT_STREQ(done ? kNewId : kOldId, umid.c_str());
                                   }));
}

struct Filled : SourceInfo {
  Filled() : SourceInfo(kKind) {
    tape_name(kOldName);
    tape_mob_id(Umid(kOldId));
    master_mob_id(Umid(kOldId));
    source_mob_id(Umid(kOldId));
  }
};

struct Setter {
  const char* name;
  void (*run)(SourceInfo&, const Umid&);
};

constexpr Setter kSetters[] = {
    {"tape", [](SourceInfo& info, const Umid& id) { info.tape_mob_id(id); }},
    {"master", [](SourceInfo& info, const Umid& id) { info.master_mob_id(id); }},
    {"source", [](SourceInfo& info, const Umid& id) { info.source_mob_id(id); }},
    {"name", [](SourceInfo& info, const Umid&) { info.tape_name(kNewName); }},
};

TEST(SourceAllocations, ASetterWithoutMemoryChangesNothing) {
  const Umid id(kNewId);
  for (const Setter& setter : kSetters) {
    SCOPED_TRACE(setter.name);
    const auto check = [&](const SourceInfo& info, bool done) {
      const auto now = [&](const char* name) { return done && std::string(name) == setter.name; };
      EXPECT_STREQ(now("tape") ? kNewId : kOldId, info.tape_mob_id()->c_str());
      EXPECT_STREQ(now("master") ? kNewId : kOldId, info.master_mob_id()->c_str());
      EXPECT_STREQ(now("source") ? kNewId : kOldId, info.source_mob_id()->c_str());
      EXPECT_STREQ(now("name") ? kNewName : kOldName, info.tape_name());
    };
    EXPECT_LT(0, run_with_ever_more_memory([] { return Filled(); },
                                           [&](SourceInfo& info) { setter.run(info, id); }, check));
  }
}

TEST(SourceAllocations, AFirstIdentifierWithoutMemoryIsNone) {
  const Umid id(kNewId);
  EXPECT_LT(0, run_with_ever_more_memory([] { return SourceInfo(kKind); },
                                         [&](SourceInfo& info) { info.master_mob_id(id); },
                                         [](const SourceInfo& info, bool done) {
                                           EXPECT_EQ(done, info.has_master_mob_id());
                                           EXPECT_EQ(done, info.master_mob_id() != nullptr);
                                         }));
}

TEST(SourceAllocations, NoRecordIsLostWhenATextIsRefused) {
  const long live = Allocations::counters().live();
  EXPECT_ANY_THROW(Umid(L"060A2"));
  EXPECT_ANY_THROW(Umid(nullptr));
  EXPECT_EQ(live, Allocations::counters().live());
}

}  // namespace
}  // namespace Korvane::Media::AllocationTests
