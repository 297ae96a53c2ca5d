#include "media/i_umid_info.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "media/umid.h"

namespace Korvane::Media::IUmidInfoTests {
namespace {

static_assert(sizeof(IUmidInfo) == sizeof(void*));
static_assert(std::is_abstract_v<IUmidInfo>);
static_assert(std::has_virtual_destructor_v<IUmidInfo>);
static_assert(sizeof(IUmidInfo::UmidKind) == 4);
static_assert(std::is_convertible_v<IUmidInfo::UmidKind, int>);

// A host's own, with one identifier for everything.
class OneUmid final : public IUmidInfo {
 public:
  explicit OneUmid(const wchar_t* text) : id_(text) {}

  UmidKind umid_kind() override { return static_cast<UmidKind>(id_[0]); }
  const Umid* tape_mob_id() const override { return &id_; }
  void tape_mob_id(const Umid& id) override { id_ = id; }
  const Umid* master_mob_id() const override { return &id_; }
  void master_mob_id(const Umid& id) override { id_ = id; }
  const Umid* source_mob_id() const override { return &id_; }
  void source_mob_id(const Umid& id) override { id_ = id; }

 private:
  Umid id_;
};

TEST(IUmidInfo, IsImplementedByHosts) {
  OneUmid host(L"01");
  IUmidInfo& info = host;
  EXPECT_EQ(1U, info.umid_kind());
  info.master_mob_id(Umid(L"FE"));
  EXPECT_STREQ(L"fe", info.tape_mob_id()->c_str());
  EXPECT_STREQ(L"fe", info.source_mob_id()->c_str());
  EXPECT_EQ(0xFEU, info.umid_kind());
}

TEST(IUmidInfo, ItsImplementationsCanBeCopied) {
  const OneUmid first(L"01");
  OneUmid second(first);
  EXPECT_STREQ(L"01", second.tape_mob_id()->c_str());
  second.tape_mob_id(Umid(L"02"));
  EXPECT_STREQ(L"01", first.tape_mob_id()->c_str());
  second = first;
  EXPECT_STREQ(L"01", second.tape_mob_id()->c_str());
}

}  // namespace
}  // namespace Korvane::Media::IUmidInfoTests
