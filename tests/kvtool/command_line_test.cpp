#include <gtest/gtest.h>

#include <utility>

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
      {{"frob"},
       "unknown command \"frob\" (expected timecode, gaps, probe, formats, colorspaces, essence, "
       "umid, multiviewer, sdp or srt; see kvtool --help)"},
      {{"frob", "gaps"}, "unexpected argument \"frob\" before gaps (see kvtool gaps --help)"},
      {{"gaps", "a", "b"}, "unexpected argument \"b\" (see kvtool gaps --help)"},
      {{"--frob", "gaps"}, "unknown option \"--frob\" before gaps (see kvtool gaps --help)"},
      {{"timecode", "1", "--rate", "25", "--frob"},
       "unknown option \"--frob\" (see kvtool timecode --help)"},
      {{"timecode", "1"}, "--rate is required (see kvtool timecode --help)"},
      {{"timecode", "--rate", "25"}, "EXPR is required (see kvtool timecode --help)"},
      {{"timecode", "1", "--rate"},
       "--rate has no value (expected RATE:{24,25,30,50,60,23.976,29.97,59.94,24000/1001,"
       "30000/1001,60000/1001}; see kvtool timecode --help)"},
      {{"timecode", "1", "--rate", "25", "--add", "x"},
       "--add \"x\" is not supported (expected a whole number of 64 bits)"},
      {{"timecode", "1", "--rate", "25", "--add-minutes", "2147483648"},
       "--add-minutes \"2147483648\" is not supported (expected a whole number of 32 bits)"},
      {{"timecode", "1", "--rate", "25", "--json", "--format", "%HH"},
       "--format excludes --json (see kvtool timecode --help)"},
      {{"gaps", "--input", "frob", "--rate", "25"},
       "--input \"frob\" is not supported (expected text, st12, st12-64, ltc or media)"},
      {{"gaps", "list.txt"},
       "gaps --input text needs --rate (such as --rate 25; for a media file --input media)"},
      {{"gaps", "--input", "ltc"}, "gaps --input ltc needs --rate (such as --rate 25)"},
      {{"probe"}, "FILE is required (see kvtool probe --help)"},
      {{"umid"}, "TEXT is required (see kvtool umid --help)"},
      {{"multiviewer"}, "LAYOUT is required (see kvtool multiviewer --help)"},
      {{"sdp"}, "FILE is required (see kvtool sdp --help)"},
      {{"srt", "--period", "0"},
       "--period \"0\" is not supported (expected a whole number from 1 to 86400)"},
      {{"formats", "--json", "--csv"}, "--csv excludes --json (see kvtool formats --help)"},
      {{"essence", "--family"},
       "--family has no value (expected FAMILY:{audio,video,data,none}; see kvtool essence "
       "--help)"},
      {{"--color", "red"}, "--color \"red\" is not supported (expected auto, always or never)"},
  };
  for (const Refusal& refusal : refusals) {
    SCOPED_TRACE(refusal.line);
    expect_refused(2, refusal.line, run_tool(refusal.args));
  }
}

TEST(CommandLine, UnsupportedRatesAreWrongUsage) {
  for (const std::string rate : {"48", "120", "0", "-25", "abc", "29", "25i", "1/0"}) {
    SCOPED_TRACE(rate);
    const std::string line = "--rate \"" + rate +
                             "\" is not supported (expected 24, 25, 30, 50, 60, 23.976, 29.97, "
                             "59.94, 24000/1001, 30000/1001 or 60000/1001)";
    expect_refused(2, line, run_tool({"timecode", "1", "--rate=" + rate}));
    expect_refused(2, line, run_tool({"gaps", "--rate=" + rate}, "00:00:00:00\n"));
  }
}

std::string hint_of(const std::vector<std::string>& args) {
  const ToolResult result = run_tool(args);
  EXPECT_EQ(2, result.code);
  const std::string start = "; did you mean ";
  const std::size_t position = result.err.find(start);
  if (position == std::string::npos || !result.err.ends_with("?)\n")) return "";
  const std::size_t name = position + start.size();
  return result.err.substr(name, result.err.size() - name - 3);
}

TEST(CommandLine, HintsAtTheNameThatIsMeant) {
  EXPECT_EQ("timecode", hint_of({"timcode"}));
  EXPECT_EQ("probe", hint_of({"porbe", "clip.mxf"}));
  EXPECT_EQ("colorspaces", hint_of({"col"}));
  EXPECT_EQ("", hint_of({"s"})) << "sdp and srt";
  EXPECT_EQ("--rate", hint_of({"timecode", "1", "--rat", "25"}));
  EXPECT_EQ("--field-mark", hint_of({"gaps", "--fieldmark=1"}));
  EXPECT_EQ("--color", hint_of({"--colour=never", "gaps"}));
  EXPECT_EQ("", hint_of({"gaps", "--frob"}));
  EXPECT_EQ("text", hint_of({"gaps", "--input", "txet"}));
  EXPECT_EQ("V210", hint_of({"colorspaces", "--name", "v21"}));
  EXPECT_EQ("Hd1080i50", hint_of({"formats", "--name", "HD1080I50"}));
  EXPECT_EQ("yes", hint_of({"formats", "--uhd", "y"}));
}

TEST(CommandLine, HintsAtTheRateThatIsWrittenOtherwise) {
  const std::vector<std::pair<std::string, std::string>> rates = {
      {"25.0", "25"}, {"23.98", "23.976"}, {"29,97", "29.97"},   {"59.9401", "59.94"},
      {"25p", "25"},  {"60fps", "60"},     {"30000/1000", "30"}, {"60/1.001", "59.94"},
      {"50/2x", ""},  {"48", ""},          {"-25", ""},          {"30/x", ""},
  };
  for (const auto& [rate, expected] : rates)
    EXPECT_EQ(expected, hint_of({"timecode", "1", "--rate=" + rate})) << rate;
}

TEST(CommandLine, InkIsForTerminalsOrWhenAsked) {
  const std::string heading = "\x1b[1mExamples:\x1b[0m\n";
  const std::string alarm = "\x1b[1;31mkvtool:\x1b[0m ";
  EXPECT_EQ(std::string::npos, run_tool({"gaps", "--help"}).out.find('\x1b'));
  EXPECT_NE(std::string::npos, run_tool({"gaps", "--help", "--color", "always"}).out.find(heading));
  EXPECT_EQ(0U, run_tool({"gaps", "--color=always", "--frob"}).err.find(alarm));
  EXPECT_EQ(0U, run_tool({"--color=always", "umid", "x"}).err.find(alarm));

  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  Streams streams{in, out, err};
  streams.err_ink = Ink(true);
  EXPECT_EQ(1, run({"umid", "x", "--color", "auto"}, streams));
  EXPECT_EQ(0U, err.str().find(alarm));
  err.str("");
  EXPECT_EQ(1, run({"umid", "x", "--color", "never"}, streams));
  EXPECT_EQ(0U, err.str().find("kvtool: "));
}

TEST(CommandLine, GapsAndHeadingsAreInInk) {
  const ToolResult gaps =
      run_tool({"gaps", "--rate", "25", "--color", "always"}, "00:00:00:00\n00:00:00:02\n");
  EXPECT_NE(std::string::npos, gaps.out.find("00:00:00:02\x1b[1;31m (+1 frame)\x1b[0m\n"));
  EXPECT_NE(std::string::npos, gaps.out.find(" 2 timecodes, \x1b[1;31m1 gap\x1b[0m, first "));
  const ToolResult none = run_tool({"gaps", "--rate", "25", "--color", "always"}, "00:00:00:00\n");
  EXPECT_EQ(std::string::npos, none.out.find('\x1b'));
  const ToolResult table = run_tool({"essence", "--name", "EssenceMpeg2", "--color", "always"});
  EXPECT_EQ(0U, table.out.find("\x1b[1mvalue"));
  EXPECT_NE(std::string::npos, table.out.find("\x1b[0m\n"));
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
