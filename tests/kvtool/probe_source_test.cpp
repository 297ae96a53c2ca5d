// The packages of clips that are made without unique identifiers: the UMID label, a material number
// of zeros, and at its end 0 for the material, 1 for the file, 2 for the tape.

#include <gtest/gtest.h>

#include "kvtool/clips.h"
#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

const std::string kPackage = "060a2b340101010501010d0013000000000000000000000000000000000000";

// The paragraph under "source"; empty when there is none.
std::string source_of(const std::string& name) {
  const ToolResult result = run_tool({"probe", clip(name)});
  EXPECT_EQ(0, result.code) << result.err;
  const std::size_t start = result.out.find("\n\nsource\n");
  if (start == std::string::npos) return {};
  return result.out.substr(start + 9, result.out.find("\n\n", start + 9) - start - 8);
}

TEST(ProbeSource, ShowsThePackagesAndTheReelOfAnMxfFile) {
  EXPECT_EQ("  master mob id     " + kPackage +
                "00\n"
                "  source mob id     " +
                kPackage +
                "01\n"
                "  tape mob id       " +
                kPackage +
                "02\n"
                "  tape name         A001 B\u00fchne\n",
            source_of("reel.mxf"));
}

TEST(ProbeSource, AnMxfFileWithoutTapeHasTwoPackages) {
  EXPECT_EQ("  master mob id     " + kPackage +
                "00\n"
                "  source mob id     " +
                kPackage + "01\n",
            source_of("xdcam.mxf"));
}

TEST(ProbeSource, AMovFileNamesItsReel) {
  EXPECT_EQ("  tape name         Reel 7\n", source_of("reel.mov"));
}

TEST(ProbeSource, AFileWithoutIdentifiersHasNoSource) { EXPECT_EQ("", source_of("tmcd.mov")); }

TEST(ProbeSource, WhatIsNoUmidIsLeftOut) {
  EXPECT_EQ(
      "  tape mob id       060a2b340101010501010d1313000000a1b2c3d4e5f60718293a4b5c6d7e8f90\n",
      source_of("no-umid.mov"));
}

TEST(ProbeSource, StandsInJson) {
  EXPECT_NE(std::string::npos, run_tool({"probe", clip("reel.mxf"), "--json"})
                                   .out.find("\n  \"source\": {\n"
                                             "    \"master_mob_id\": \"" +
                                             kPackage +
                                             "00\",\n"
                                             "    \"source_mob_id\": \"" +
                                             kPackage +
                                             "01\",\n"
                                             "    \"tape_mob_id\": \"" +
                                             kPackage +
                                             "02\",\n"
                                             "    \"tape_name\": \"A001 B\u00fchne\"\n"
                                             "  },\n"));
  EXPECT_NE(std::string::npos, run_tool({"probe", clip("reel.mov"), "--json"})
                                   .out.find("\n  \"source\": {\n"
                                             "    \"master_mob_id\": null,\n"
                                             "    \"source_mob_id\": null,\n"
                                             "    \"tape_mob_id\": null,\n"
                                             "    \"tape_name\": \"Reel 7\"\n"
                                             "  },\n"));
  EXPECT_NE(std::string::npos,
            run_tool({"probe", clip("tmcd.mov"), "--json"}).out.find("\n  \"source\": null,\n"));
}

}  // namespace
}  // namespace Korvane::Tool
