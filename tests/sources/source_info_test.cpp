#include "media/source_info.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

#include "media/umid.h"
#include "support/raises.h"

namespace Korvane::Media::SourceInfoTests {
namespace {

static_assert(sizeof(SourceInfo) == 2 * sizeof(void*));
static_assert(std::is_base_of_v<IUmidInfo, SourceInfo>);
static_assert(!std::is_default_constructible_v<SourceInfo>);
static_assert(!std::is_copy_constructible_v<SourceInfo>);
static_assert(!std::is_copy_assignable_v<SourceInfo>);
static_assert(!std::is_move_constructible_v<SourceInfo>);
static_assert(!std::is_move_assignable_v<SourceInfo>);

constexpr auto kKind = static_cast<IUmidInfo::UmidKind>(3);

// One of the three identifiers.
struct Identifier {
  const char* name;
  const Umid* (IUmidInfo::*get)() const;
  void (IUmidInfo::*set)(const Umid&);
  bool (SourceInfo::*has)() const;
};

constexpr Identifier kIdentifiers[] = {
    {"tape", &IUmidInfo::tape_mob_id, &IUmidInfo::tape_mob_id, &SourceInfo::has_tape_mob_id},
    {"master", &IUmidInfo::master_mob_id, &IUmidInfo::master_mob_id,
     &SourceInfo::has_master_mob_id},
    {"source", &IUmidInfo::source_mob_id, &IUmidInfo::source_mob_id,
     &SourceInfo::has_source_mob_id},
};

TEST(SourceInfo, HoldsNothingAtFirst) {
  const SourceInfo info(kKind);
  for (const Identifier& identifier : kIdentifiers) {
    SCOPED_TRACE(identifier.name);
    EXPECT_EQ(nullptr, (info.*identifier.get)());
    EXPECT_FALSE((info.*identifier.has)());
  }
  EXPECT_FALSE(info.has_tape_name());
  EXPECT_STREQ(L"", info.tape_name());
}

TEST(SourceInfo, CarriesAnyKind) {
  for (const unsigned int kind : {0U, 1U, 3U, 0x80000000U, 0xFFFFFFFFU}) {
    SourceInfo info(static_cast<IUmidInfo::UmidKind>(kind));
    EXPECT_EQ(kind, static_cast<unsigned int>(info.umid_kind()));
  }
}

TEST(SourceInfo, EachIdentifierStandsAlone) {
  for (const Identifier& set : kIdentifiers) {
    SourceInfo info(kKind);
    (info.*set.set)(Umid(L"060A"));
    for (const Identifier& identifier : kIdentifiers) {
      SCOPED_TRACE(std::string(set.name) + " set, " + identifier.name);
      const bool is_set = &identifier == &set;
      EXPECT_EQ(is_set, (info.*identifier.has)());
      ASSERT_EQ(is_set, (info.*identifier.get)() != nullptr);
    }
    EXPECT_STREQ(L"060a", (info.*set.get)()->c_str());
    EXPECT_FALSE(info.has_tape_name());
  }
}

TEST(SourceInfo, KeepsCopies) {
  for (const Identifier& identifier : kIdentifiers) {
    SCOPED_TRACE(identifier.name);
    SourceInfo info(kKind);
    Umid id(L"0102");
    (info.*identifier.set)(id);
    id[0] = 0xFF;
    id = Umid(L"");
    EXPECT_NE(&id, (info.*identifier.get)());
    EXPECT_STREQ(L"0102", (info.*identifier.get)()->c_str());
  }
}

TEST(SourceInfo, ALaterIdentifierReplacesAnEarlierOne) {
  for (const Identifier& identifier : kIdentifiers) {
    SCOPED_TRACE(identifier.name);
    SourceInfo info(kKind);
    (info.*identifier.set)(Umid(L"0102"));
    (info.*identifier.set)(Umid(L"03"));
    EXPECT_STREQ(L"03", (info.*identifier.get)()->c_str());
    // One without bytes is set all the same.
    (info.*identifier.set)(Umid(L""));
    EXPECT_TRUE((info.*identifier.has)());
    EXPECT_EQ(nullptr, (info.*identifier.get)()->value());
  }
}

TEST(SourceInfo, APointerOutlivesTheSettingOfAnother) {
  SourceInfo info(kKind);
  info.master_mob_id(Umid(L"0102"));
  const Umid* const master = info.master_mob_id();
  info.tape_mob_id(Umid(L"03"));
  info.source_mob_id(Umid(L"04"));
  info.tape_name(L"tape");
  EXPECT_EQ(master, info.master_mob_id());
  EXPECT_STREQ(L"0102", master->c_str());
}

TEST(SourceInfo, TakesItsOwnIdentifiers) {
  for (const Identifier& identifier : kIdentifiers) {
    SCOPED_TRACE(identifier.name);
    SourceInfo info(kKind);
    (info.*identifier.set)(Umid(L"060A2B34"));
    (info.*identifier.set)(*(info.*identifier.get)());
    EXPECT_STREQ(L"060a2b34", (info.*identifier.get)()->c_str());
    for (const Identifier& other : kIdentifiers) (info.*other.set)(*(info.*identifier.get)());
    for (const Identifier& other : kIdentifiers)
      EXPECT_STREQ(L"060a2b34", (info.*other.get)()->c_str());
  }
}

TEST(SourceInfo, KeepsTheTapeName) {
  SourceInfo info(kKind);
  std::wstring name = L"Tape \u00C4 0001, a name that is too long for a short buffer";
  info.tape_name(name.c_str());
  EXPECT_TRUE(info.has_tape_name());
  EXPECT_EQ(name, info.tape_name());
  const std::wstring kept = name;
  name[0] = L'X';
  EXPECT_EQ(kept, info.tape_name());
  info.tape_name(L"B");
  EXPECT_STREQ(L"B", info.tape_name());
  for (const Identifier& identifier : kIdentifiers) EXPECT_FALSE((info.*identifier.has)());
}

TEST(SourceInfo, AnEmptyTapeNameIsNone) {
  SourceInfo info(kKind);
  info.tape_name(L"");
  EXPECT_FALSE(info.has_tape_name());
  info.tape_name(L" ");
  EXPECT_TRUE(info.has_tape_name());
  info.tape_name(L"");
  EXPECT_FALSE(info.has_tape_name());
  EXPECT_STREQ(L"", info.tape_name());
}

TEST(SourceInfo, TakesItsOwnTapeName) {
  for (const wchar_t* name : {L"A007", L"A007, a name that is too long for a short buffer"}) {
    const std::wstring whole = name;
    SourceInfo info(kKind);
    info.tape_name(name);
    info.tape_name(info.tape_name());
    EXPECT_EQ(whole, info.tape_name());
    info.tape_name(info.tape_name() + 1);
    EXPECT_EQ(whole.substr(1), info.tape_name());
  }
}

TEST(SourceInfo, ANullTapeNameIsRefusedAndChangesNothing) {
  SourceInfo info(kKind);
  info.tape_name(L"tape");
  EXPECT_TRUE(raises(InvalidArgument, "Text must not be null", [&] { info.tape_name(nullptr); }));
  EXPECT_STREQ(L"tape", info.tape_name());
}

TEST(SourceInfo, IsDestroyedThroughItsInterface) {
  std::unique_ptr<IUmidInfo> info = std::make_unique<SourceInfo>(kKind);
  info->tape_mob_id(Umid(L"01"));
  EXPECT_EQ(kKind, info->umid_kind());
  info.reset();  // leaks, were the destructor not virtual: seen by the leak sanitizer
}

}  // namespace
}  // namespace Korvane::Media::SourceInfoTests
