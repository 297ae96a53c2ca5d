// The fields of each identifier are cut from its text by hand, as SMPTE ST 330 lays them out.

#include <gtest/gtest.h>

#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

const std::string kBasic = "060a2b340101010501010d13130000f0a1b2c3d4e5f60718293a4b5c6d7e8f90";
const std::string kPack = "00000000aabbccdd0102030405060708090a0b0c474252004242430041424344";
const std::string kExtended =
    "060a2b340101010501010d13330000f0a1b2c3d4e5f60718293a4b5c6d7e8f90" + kPack;

TEST(UmidCommand, ShowsABasicIdentifier) {
  const ToolResult result = run_tool({"umid", kBasic});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("", result.err);
  EXPECT_EQ(kBasic +
                "\n"
                "  umid         060a2b340101010501010d13130000f0a1b2c3d4e5f60718293a4b5c6d7e8f90\n"
                "  bytes        32\n"
                "  kind         basic\n"
                "  label        060a2b340101010501010d13\n"
                "  instance     240\n"
                "  material     a1b2c3d4e5f60718293a4b5c6d7e8f90\n",
            result.out);
}

TEST(UmidCommand, ShowsAnExtendedIdentifierAndItsSourcePack) {
  const ToolResult result = run_tool({"umid", kExtended});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ(kExtended + "\n  umid         " + kExtended +
                "\n"
                "  bytes        64\n"
                "  kind         extended\n"
                "  label        060a2b340101010501010d13\n"
                "  instance     240\n"
                "  material     a1b2c3d4e5f60718293a4b5c6d7e8f90\n"
                "  source pack  " +
                kPack + "\n",
            result.out);
}

TEST(UmidCommand, PassesOverCaseAndSeparatorsAsTheLibraryDoes) {
  const ToolResult result = run_tool({"umid",
                                      "{06-0A 2B:34.01010105-01010D13-130000F0-A1B2C3D4-E5F60718-"
                                      "293A4B5C-6D7E8F90}"});
  EXPECT_EQ(0, result.code);
  EXPECT_NE(std::string::npos, result.out.find("\n  umid         " + kBasic + "\n"));
  EXPECT_EQ(std::string::npos, result.out.find("misread"));
}

// The letters of "urn:smpte:umid:" that are hexadecimal digits make the byte ed.
TEST(UmidCommand, TellsThatTheUrnFormIsMisread) {
  for (const std::string prefix : {"urn:smpte:umid:", "URN:SMPTE:UMID:"}) {
    const ToolResult result = run_tool({"umid", prefix + kBasic});
    EXPECT_EQ(1, result.code);
    EXPECT_EQ("", result.err);
    EXPECT_EQ(prefix + kBasic +
                  "\n"
                  "  umid         " +
                  kBasic +
                  "\n"
                  "  bytes        32\n"
                  "  kind         basic\n"
                  "  label        060a2b340101010501010d13\n"
                  "  instance     240\n"
                  "  material     a1b2c3d4e5f60718293a4b5c6d7e8f90\n"
                  "  misread      the library reads ed" +
                  kBasic + ", as it takes characters of the prefix for digits; give it \"" +
                  kBasic + "\"\n",
              result.out);
  }
}

// The 0 of one 0x makes the number of digits odd; those of every byte make it even.
TEST(UmidCommand, TellsThatThe0xFormIsMisread) {
  const ToolResult once = run_tool({"umid", "0x" + kBasic});
  EXPECT_EQ(1, once.code);
  EXPECT_NE(std::string::npos,
            once.out.find("\n  misread      the library does not read this text, as it takes "
                          "characters of the prefix for digits; give it \"" +
                          kBasic + "\"\n"))
      << once.out;

  std::string text;
  std::string read;
  for (std::size_t i = 0; i < kBasic.size(); i += 2) {
    text += "0x" + kBasic.substr(i, 2) + ' ';
    read += '0' + kBasic.substr(i, 2);
  }
  const ToolResult each = run_tool({"umid", text});
  EXPECT_EQ(1, each.code);
  EXPECT_NE(std::string::npos, each.out.find("\n  umid         " + kBasic + "\n")) << each.out;
  EXPECT_NE(std::string::npos, each.out.find("the library reads " + read + ",")) << each.out;
}

TEST(UmidCommand, WarnsOfWhatContradictsTheStandard) {
  std::string other_label = kBasic;
  other_label[7] = '5';
  std::string other_length = kExtended;
  other_length.replace(24, 2, "13");
  const ToolResult result = run_tool({"umid", other_label, other_length});
  EXPECT_EQ(0, result.code);
  EXPECT_NE(std::string::npos,
            result.out.find("\n  warning      the label is not that of a UMID (expected "
                            "060a2b34010101 at its start)\n\n" +
                            other_length + "\n"))
      << result.out;
  EXPECT_TRUE(result.out.ends_with(
      "\n  warning      the length byte says 19 (expected 51, the bytes behind it)\n"))
      << result.out;
}

TEST(UmidCommand, PrintsJson) {
  const ToolResult result = run_tool({"umid", kBasic, "0x" + kExtended, "--json"});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ(
      "[\n"
      "  {\n"
      "    \"text\": \"" +
          kBasic +
          "\",\n"
          "    \"umid\": \"" +
          kBasic +
          "\",\n"
          "    \"bytes\": 32,\n"
          "    \"kind\": \"basic\",\n"
          "    \"label\": \"060a2b340101010501010d13\",\n"
          "    \"instance\": 240,\n"
          "    \"material\": \"a1b2c3d4e5f60718293a4b5c6d7e8f90\",\n"
          "    \"source_pack\": null,\n"
          "    \"warning\": null,\n"
          "    \"misread\": false,\n"
          "    \"read_as\": null,\n"
          "    \"use_instead\": null\n"
          "  },\n"
          "  {\n"
          "    \"text\": \"0x" +
          kExtended +
          "\",\n"
          "    \"umid\": \"" +
          kExtended +
          "\",\n"
          "    \"bytes\": 64,\n"
          "    \"kind\": \"extended\",\n"
          "    \"label\": \"060a2b340101010501010d13\",\n"
          "    \"instance\": 240,\n"
          "    \"material\": \"a1b2c3d4e5f60718293a4b5c6d7e8f90\",\n"
          "    \"source_pack\": \"" +
          kPack +
          "\",\n"
          "    \"warning\": null,\n"
          "    \"misread\": true,\n"
          "    \"read_as\": null,\n"
          "    \"use_instead\": \"" +
          kExtended +
          "\"\n"
          "  }\n"
          "]\n",
      result.out);
}

// Bytes that are no UTF-8 are passed over as any other character, and replaced in JSON.
TEST(UmidCommand, TakesTextThatIsNoUtf8) {
  const ToolResult result = run_tool({"umid", "\xFF" + kBasic, "--json"});
  EXPECT_EQ(0, result.code);
  EXPECT_NE(std::string::npos, result.out.find("\"umid\": \"" + kBasic + '"')) << result.out;
}

TEST(UmidCommand, ATextThatIsNoUmidIsRefusedBeforeAnythingIsPrinted) {
  const auto line = [](const std::string& quoted, const std::string& digits) {
    return quoted +
           " is no UMID (expected 64 hexadecimal digits, or 128 with a source pack; it has " +
           digits + ")";
  };
  expect_refused(1, line("\"060a2\"", "5"), run_tool({"umid", kBasic, "060a2", "--json"}));
  expect_refused(1, line("\"\"", "0"), run_tool({"umid", kBasic, ""}));
  expect_refused(1, line("\"060a2b34\"", "8"), run_tool({"umid", "060a2b34"}));
  expect_refused(1, line('"' + kBasic.substr(0, 60) + "...\"", "65"),
                 run_tool({"umid", kBasic + "0"}));
  expect_refused(1, line("\"urn:smpte:umid:01\"", "2"), run_tool({"umid", "urn:smpte:umid:01"}));
}

}  // namespace
}  // namespace Korvane::Tool
