#include "ext/umid.h"

#include <gtest/gtest.h>

#include <string>

#include "support/raises.h"

namespace Korvane::ExtUmidTests {
namespace {

using Ext::AafMobId;
using Media::Umid;

const char* const kUrn =
    "urn:smpte:umid:060A2B34.01010105.01010D20.13000000.D2C9036C.8F195343.AB7014D2.D718BFDA";
const char* const kHex = "0x060A2B340101010501010D2013000000D2C9036C8F195343AB7014D2D718BFDA";
const char* const kDotted =
    "06.0A.2B.34.01.01.01.05.01.01.0D.20.13.00.00.00."
    "D2.C9.03.6C.8F.19.53.43.AB.70.14.D2.D7.18.BF.DA";
const wchar_t* const kDigits = L"060a2b340101010501010d2013000000d2c9036c8f195343ab7014d2d718bfda";
const std::string kSourcePack = "0000000000000001000000000000000230303030202020205347524142434445";

Umid basic() { return Umid(kDigits); }

Umid extended() {
  const std::wstring pack(kSourcePack.begin(), kSourcePack.end());
  return Umid((kDigits + pack).c_str());
}

TEST(ExtUmid, Texts) {
  EXPECT_EQ(kUrn, Ext::to_urn(basic()));
  EXPECT_EQ(kHex, Ext::to_hex(basic()));
  EXPECT_EQ(kDotted, Ext::to_dotted(basic()));
  EXPECT_EQ(std::string(kUrn) +
                ".00000000.00000001.00000000.00000002.30303030.20202020.53475241.42434445",
            Ext::to_urn(extended()));
  EXPECT_EQ("0x", Ext::to_hex(Umid(L"")));
  EXPECT_EQ("", Ext::to_dotted(Umid(L"")));
  EXPECT_EQ("AB", Ext::to_dotted(Umid(L"ab")));
}

TEST(ExtUmid, UrnsHaveOneOfTwoLengths) {
  for (const wchar_t* text : {L"", L"06", L"060a2b340101010501010d2013000000"})
    EXPECT_TRUE(
        raises(InvalidArgument, "UMID must have 32 or 64 bytes", [&] { Ext::to_urn(Umid(text)); }));
}

TEST(ExtUmid, SizeAndKind) {
  EXPECT_EQ(32U, Ext::size(basic()));
  EXPECT_TRUE(Ext::is_basic(basic()));
  EXPECT_FALSE(Ext::is_extended(basic()));
  EXPECT_EQ(64U, Ext::size(extended()));
  EXPECT_FALSE(Ext::is_basic(extended()));
  EXPECT_TRUE(Ext::is_extended(extended()));
  EXPECT_EQ(0U, Ext::size(Umid(L"")));
  EXPECT_EQ(1U, Ext::size(Umid(L"00")));
}

TEST(ExtUmid, EqualComparesAllBytes) {
  EXPECT_TRUE(Ext::equal(basic(), basic()));
  EXPECT_FALSE(Ext::equal(basic(), extended()));
  EXPECT_FALSE(Ext::equal(extended(), basic()));
  Umid other = basic();
  other[31] = 0;
  EXPECT_FALSE(Ext::equal(basic(), other));
  EXPECT_TRUE(Ext::equal(Umid(L""), Umid(L"-")));
}

// Asking leaves the text that was handed out in place.
TEST(ExtUmid, AskingChangesNothing) {
  const Umid umid = basic();
  const wchar_t* const text = umid.c_str();
  Ext::size(umid);
  Ext::to_urn(umid);
  Ext::equal(umid, umid);
  EXPECT_STREQ(kDigits, text);
}

void expect_parsed(const Umid& expected, const std::string& text) {
  const std::optional<Umid> umid = Ext::parse_umid(text);
  ASSERT_TRUE(umid) << text;
  EXPECT_TRUE(Ext::equal(expected, *umid)) << text;
}

TEST(ExtUmid, ReadsEachText) {
  expect_parsed(basic(), kUrn);
  expect_parsed(basic(), kHex);
  expect_parsed(basic(), kDotted);
  expect_parsed(basic(), std::string(kHex).substr(2));
  expect_parsed(extended(), Ext::to_urn(extended()));
  expect_parsed(extended(), Ext::to_hex(extended()));
  expect_parsed(extended(), Ext::to_dotted(extended()));
}

TEST(ExtUmid, ReadsEitherCase) {
  expect_parsed(basic(),
                "URN:SMPTE:UMID:060a2b34.01010105.01010d20.13000000.d2c9036c.8f195343.ab7014d2."
                "d718bfda");
  expect_parsed(basic(), "0X060a2b340101010501010d2013000000d2c9036c8f195343ab7014d2d718bfda");
}

TEST(ExtUmid, ReadsNothingElse) {
  const std::string urn = kUrn;
  const std::string hex = kHex;
  const std::string dotted = kDotted;
  const std::string texts[] = {
      "",
      "0x",
      "urn:smpte:umid:",
      "urn:smpte:ul:" + urn.substr(15),
      urn + ".",
      urn + "0",
      urn.substr(0, urn.size() - 1),
      urn.substr(0, urn.size() - 9),
      "urn:smpte:umid:" + hex.substr(2),
      hex + " ",
      " " + hex,
      hex.substr(0, hex.size() - 2),
      hex.substr(0, hex.size() - 1) + "G",
      dotted + ".",
      "." + dotted.substr(1),
      dotted.substr(3) + "-DA",
      dotted.substr(0, 2) + "-" + dotted.substr(3),
      "06-0A-2B-34",
  };
  for (const std::string& text : texts) EXPECT_FALSE(Ext::parse_umid(text)) << text;
}

TEST(ExtUmid, MobIdsReverseThePartsOfTheMaterial) {
  const AafMobId mob_id = {0x06, 0x0A, 0x2B, 0x34, 0x01, 0x01, 0x01, 0x05, 0x01, 0x01, 0x0D,
                           0x20, 0x13, 0x00, 0x00, 0x00, 0x6C, 0x03, 0xC9, 0xD2, 0x19, 0x8F,
                           0x43, 0x53, 0xAB, 0x70, 0x14, 0xD2, 0xD7, 0x18, 0xBF, 0xDA};
  EXPECT_EQ(mob_id, Ext::to_aaf_mob_id(basic()));
  EXPECT_TRUE(Ext::equal(basic(), Ext::from_aaf_mob_id(mob_id)));
}

TEST(ExtUmid, MobIdsOfOlderSystemsHaveTheirHalvesSwapped) {
  const Umid umid(L"060a2b340101010101010f0013000000060e2b347f7f2a804fa5c20f4e301e50");
  const AafMobId mob_id = {0x06, 0x0A, 0x2B, 0x34, 0x01, 0x01, 0x01, 0x01, 0x01, 0x01, 0x0F,
                           0x00, 0x13, 0x00, 0x00, 0x00, 0x0F, 0xC2, 0xA5, 0x4F, 0x30, 0x4E,
                           0x50, 0x1E, 0x06, 0x0E, 0x2B, 0x34, 0x7F, 0x7F, 0x2A, 0x80};
  EXPECT_EQ(mob_id, Ext::to_aaf_mob_id(umid));
  EXPECT_TRUE(Ext::equal(umid, Ext::from_aaf_mob_id(mob_id)));
}

TEST(ExtUmid, OnlyBasicOnesAreMobIds) {
  EXPECT_TRUE(
      raises(InvalidArgument, "UMID must have 32 bytes", [] { Ext::to_aaf_mob_id(extended()); }));
  EXPECT_TRUE(
      raises(InvalidArgument, "UMID must have 32 bytes", [] { Ext::to_aaf_mob_id(Umid(L"")); }));
}

TEST(ExtUmid, MadeOfBytes) {
  const unsigned char bytes[] = {0x06, 0x0A, 0xFF};
  EXPECT_STREQ(L"060a", Ext::make_umid(bytes, 2).c_str());
  EXPECT_EQ(0U, Ext::size(Ext::make_umid(nullptr, 0)));
}

}  // namespace
}  // namespace Korvane::ExtUmidTests
