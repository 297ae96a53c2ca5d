#include <gtest/gtest.h>

#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

struct Refusal {
  std::vector<std::string> args;
  const char* line;
};

TEST(CommandLine, WrongUsageIsOneLineAndCode2) {
  const Refusal refusals[] = {
      {{},
       "no command given (expected timecode, gaps, probe, formats, colorspaces, essence, umid, "
       "multiviewer, sdp or srt; see kvtool --help)"},
      {{"frob"}, "The following argument was not expected: frob (see kvtool --help)"},
      {{"timecode", "1", "--rate", "25", "--frob"},
       "The following argument was not expected: --frob (see kvtool --help)"},
      {{"timecode", "1"}, "--rate is required (see kvtool --help)"},
      {{"timecode", "--rate", "25"}, "EXPR is required (see kvtool --help)"},
      {{"timecode", "1", "--rate"}, "--rate: 1 required RATE missing (see kvtool --help)"},
      {{"timecode", "1", "--rate", "25", "--add", "x"},
       "Could not convert: --add = x (see kvtool --help)"},
      {{"timecode", "1", "--rate", "25", "--json", "--format", "%HH"},
       "--format excludes --json (see kvtool --help)"},
      {{"gaps", "--input", "frob", "--rate", "25"},
       "--input: frob not in {text,st12,st12-64,ltc,media} (see kvtool --help)"},
      {{"gaps", "list.txt"}, "gaps --input text needs --rate (such as --rate 25)"},
      {{"probe"}, "FILE is required (see kvtool --help)"},
      {{"umid"}, "TEXT is required (see kvtool --help)"},
      {{"multiviewer"}, "LAYOUT is required (see kvtool --help)"},
      {{"sdp"}, "FILE is required (see kvtool --help)"},
      {{"formats", "--json", "--csv"}, "--csv excludes --json (see kvtool --help)"},
      {{"essence", "--family"}, "--family: 1 required FAMILY missing (see kvtool --help)"},
  };
  for (const Refusal& refusal : refusals) {
    SCOPED_TRACE(refusal.line);
    expect_refused(2, refusal.line, run_tool(refusal.args));
  }
}

TEST(CommandLine, UnsupportedRatesAreWrongUsage) {
  for (const std::string rate : {"48", "120", "0", "-25", "abc", "25.0", "30000/1000"}) {
    SCOPED_TRACE(rate);
    const std::string line = "--rate \"" + rate +
                             "\" is not supported (expected 24, 25, 30, 50, 60, 23.976, 29.97, "
                             "59.94, 24000/1001, 30000/1001 or 60000/1001)";
    expect_refused(2, line, run_tool({"timecode", "1", "--rate=" + rate}));
    expect_refused(2, line, run_tool({"gaps", "--rate=" + rate}, "00:00:00:00\n"));
  }
}

TEST(CommandLine, DropFrameNeedsRate30Or60) {
  for (const std::string rate : {"24", "25", "50", "23.976", "24000/1001"}) {
    const std::string line = "--drop does not go with --rate " + rate + " (expected 30 or 60)";
    expect_refused(2, line, run_tool({"timecode", "1", "--rate", rate, "--drop"}));
    expect_refused(2, line, run_tool({"gaps", "--rate", rate, "--drop"}, "00:00:00:00\n"));
  }
}

TEST(CommandLine, EveryCommandHasHelpWithExamples) {
  for (const std::vector<std::string>& args : {std::vector<std::string>{"--help"},
                                               {"timecode", "--help"},
                                               {"gaps", "--help"},
                                               {"probe", "--help"},
                                               {"formats", "--help"},
                                               {"colorspaces", "--help"},
                                               {"essence", "--help"},
                                               {"umid", "--help"},
                                               {"multiviewer", "--help"},
                                               {"sdp", "--help"},
                                               {"srt", "--help"}}) {
    SCOPED_TRACE(args.front());
    const ToolResult result = run_tool(args);
    EXPECT_EQ(0, result.code);
    EXPECT_EQ("", result.err);
    EXPECT_NE(std::string::npos, result.out.find("Usage: kvtool"));
    EXPECT_NE(std::string::npos, result.out.find("Examples:\n  kvtool "));
  }
}

TEST(CommandLine, TellsItsVersion) {
  const ToolResult result = run_tool({"--version"});
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("kvtool " KVTOOL_EXPECTED_VERSION "\n", result.out);
  EXPECT_EQ("", result.err);
}

TEST(CommandLine, ResultsThatCannotBeWrittenAreAFailure) {
  std::istringstream in;
  std::ostream out(nullptr);
  std::ostringstream err;
  Streams streams{in, out, err};
  EXPECT_EQ(1, run({"timecode", "0", "--rate", "25"}, streams));
  EXPECT_EQ("kvtool: the results cannot be written to standard output\n", err.str());
}

}  // namespace
}  // namespace Korvane::Tool
