#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

// Two halves of the raster side by side over one of the full width.
const std::string kWall = R"({
  "server_address": "239.10.0.1", "port": 5004, "edit_rate": "30000/1001",
  "keep_aspect_ratio": true,
  "sources": [
    {"id": 7, "channel_id": "CAM 1", "width": 960, "height": 540,
     "x_offset": 0, "y_offset": 0, "use_audio": true},
    {"id": 8, "channel_id": "Studio B\u00fchne", "width": 960, "height": 540,
     "x_offset": 960, "y_offset": 0},
    {"id": 9, "channel_id": "", "width": 1920, "height": 540, "x_offset": 0, "y_offset": 540}
  ]
}
)";

std::string tile(const std::string& members) {
  return R"({"id": 1, "channel_id": "A", "x_offset": 0, "y_offset": 0, )" + members + '}';
}

std::string tiles(const std::string& list) { return R"({"sources": [)" + list + "]}"; }

std::vector<std::string> warnings_in(const ToolResult& result) {
  std::vector<std::string> warnings;
  std::istringstream lines(result.out);
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with("warning: ")) warnings.push_back(line.substr(9));
  return warnings;
}

// 72 columns and 20 rows, so that 960 pixels are 36 columns and 540 are 10 rows.
TEST(MultiviewerCommand, DrawsALayoutOnTheTerminal) {
  const std::string blank_half(35, ' ');
  const std::string line_half(35, '-');
  const auto halves = [&](std::string left, std::string right) {
    left.resize(35, ' ');
    right.resize(36, ' ');  // the letter u with dots has two bytes
    return '|' + left + '|' + right + "|\n";
  };
  std::string expected =
      "1920x1080, 30000/1001 pictures per second, aspect ratios kept, to 239.10.0.1, port 5004\n";
  expected += '+' + line_half + '+' + line_half + "+\n";
  expected += halves("7 CAM 1 (audio)", "8 Studio B\u00fchne");
  for (int i = 0; i < 8; ++i) expected += '|' + blank_half + '|' + blank_half + "|\n";
  expected += '+' + std::string(71, '-') + "+\n";
  expected += "|9 " + std::string(69, ' ') + "|\n";
  for (int i = 0; i < 8; ++i) expected += '|' + std::string(71, ' ') + "|\n";
  expected += '+' + std::string(71, '-') + "+\n";
  const ToolResult result = run_tool({"multiviewer", "-"}, kWall);
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("", result.err);
  EXPECT_EQ(expected, result.out.substr(0, expected.size()));
  EXPECT_EQ(0U, result.out.find("tile", expected.size()) - expected.size()) << result.out;
  EXPECT_EQ(std::vector<std::string>(), warnings_in(result));
}

TEST(MultiviewerCommand, ListsTheTiles) {
  const ToolResult result = run_tool({"multiviewer", "-"}, kWall);
  std::istringstream lines(result.out.substr(result.out.find("\ntile") + 1));
  std::vector<std::vector<std::string>> words;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream in(line);
    words.emplace_back();
    for (std::string word; in >> word;) words.back().push_back(word);
  }
  ASSERT_EQ(4U, words.size());
  EXPECT_EQ((std::vector<std::string>{"1", "7", "CAM", "1", "960", "540", "0", "0", "yes"}),
            words[1]);
  EXPECT_EQ(
      (std::vector<std::string>{"2", "8", "Studio", "B\u00fchne", "960", "540", "960", "0", "no"}),
      words[2]);
  EXPECT_EQ("540", words[3][words[3].size() - 2]);
}

TEST(MultiviewerCommand, AnEmptyLayoutHasTheLibrarysDefaults) {
  const ToolResult result = run_tool({"multiviewer", "-"}, R"({"sources": []})");
  EXPECT_EQ(0, result.code);
  EXPECT_TRUE(result.out.starts_with(
      "1920x1080, no edit rate, aspect ratios not kept, to no address, port 0\n+---"))
      << result.out;
}

TEST(MultiviewerCommand, WritesAnSvg) {
  const ScratchFile svg("what was there before", ".svg");
  const std::string layout = R"({"width": 200, "height": 100, "sources": [
    {"id": -1, "channel_id": "<A&B>\u0001", "width": 96, "height": 80, "x_offset": -10,
     "y_offset": 20, "use_audio": true}]})";
  EXPECT_EQ(0, run_tool({"multiviewer", "-", "--svg", svg.path()}, layout).code);
  EXPECT_EQ(
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 200 100\" width=\"200\" "
      "height=\"100\" font-family=\"sans-serif\">\n"
      "  <rect width=\"200\" height=\"100\" fill=\"#202020\"/>\n"
      "  <rect x=\"-10\" y=\"20\" width=\"96\" height=\"80\" fill=\"#4e79a7\" "
      "fill-opacity=\"0.8\" stroke=\"#ffffff\" stroke-width=\"2\"/>\n"
      "  <text x=\"38\" y=\"60\" font-size=\"8\" text-anchor=\"middle\" fill=\"#ffffff\">"
      "-1 &lt;A&amp;B>\\x01 (audio)</text>\n"
      "</svg>\n",
      read_file(svg.path()));
}

TEST(MultiviewerCommand, ABadLayoutLeavesTheSvgAsItWas) {
  const ScratchFile svg("what was there before", ".svg");
  EXPECT_EQ(1, run_tool({"multiviewer", "-", "--svg", svg.path()}, "{").code);
  EXPECT_EQ("what was there before", read_file(svg.path()));
}

TEST(MultiviewerCommand, AnSvgThatCannotBeWrittenIsOneLineAndNothingIsLeft) {
  const ScratchFile file("x");
  const std::string under_file = file.path() + "/wall.svg";
  expect_refused(1, under_file + ": cannot be made (expected a file that can be written)",
                 run_tool({"multiviewer", "-", "--svg", under_file}, kWall));
  const std::string folder = std::filesystem::temp_directory_path().string();
  expect_refused(1, folder + ": is no regular file (expected a file that can be written)",
                 run_tool({"multiviewer", "-", "--svg", folder}, kWall));
}

TEST(MultiviewerCommand, WarnsOfWhatTheLibraryTakes) {
  const ToolResult result = run_tool({"multiviewer", "-"},
                                     R"({"width": 1000, "height": 500, "sources": [
        {"id": 1, "channel_id": "A", "width": 600, "height": 300, "x_offset": 0, "y_offset": 0},
        {"id": 2, "channel_id": "B", "width": 600, "height": 300, "x_offset": 500, "y_offset": 200},
        {"id": 1, "channel_id": "C", "width": 10, "height": 10, "x_offset": -10, "y_offset": 0},
        {"id": 3, "channel_id": "D", "width": 0, "height": -5, "x_offset": 50, "y_offset": 50},
        {"id": 4, "channel_id": "E", "width": 2147483647, "height": 1, "x_offset": 2147483647,
         "y_offset": 9}]})");
  EXPECT_EQ(0, result.code);
  EXPECT_EQ((std::vector<std::string>{
                "tile 2 (id 2) reaches beyond the raster of 1000x500: 600x300 at 500,200",
                "tile 1 (id 1) and tile 2 (id 2) overlap: 100x100 at 500,200",
                "tile 3 (id 1) lies outside the raster of 1000x500: 10x10 at -10,0",
                "tile 1 (id 1) and tile 3 (id 1) have the same id",
                "tile 4 (id 3) is 0x-5 and shows nothing",
                "tile 5 (id 4) lies outside the raster of 1000x500: 2147483647x1 at 2147483647,9"}),
            warnings_in(result));
}

TEST(MultiviewerCommand, JsonIsTheLayoutWithItsDefaultsAndWarnings) {
  const ToolResult result = run_tool({"multiviewer", "-", "--json"}, R"({"width": 100, "sources": [
    {"id": 1, "channel_id": "B\u00fchne", "width": 8, "height": 9, "x_offset": -4, "y_offset": 0}]})");
  EXPECT_EQ(0, result.code);
  EXPECT_EQ(nlohmann::json::parse(R"({"server_address": "", "port": 0, "width": 100, "height": 1080,
      "edit_rate": null, "keep_aspect_ratio": false,
      "sources": [{"id": 1, "channel_id": "B\u00fchne", "width": 8, "height": 9, "x_offset": -4,
                   "y_offset": 0, "use_audio": false}],
      "warnings": ["tile 1 (id 1) reaches beyond the raster of 100x1080: 8x9 at -4,0"]})"),
            nlohmann::json::parse(result.out));
  const ToolResult wall = run_tool({"multiviewer", "-", "--json"}, kWall);
  EXPECT_EQ("30000/1001", nlohmann::json::parse(wall.out)["edit_rate"]);
}

TEST(MultiviewerCommand, TilesThatOnlyTouchAreFine) {
  EXPECT_EQ(std::vector<std::string>(), warnings_in(run_tool({"multiviewer", "-"}, kWall)));
}

struct BadLayout {
  std::string json;
  const char* line;  // without "standard input: "
};

TEST(MultiviewerCommand, BadLayoutsAreOneLineWithTheirPlace) {
  const BadLayout layouts[] = {
      {"{\n  \"sources\": [\n    wall\n  ]\n}",
       "line 3, column 5: \"wall\" is no JSON here (expected JSON)"},
      {"{\"sources\": [],}", "line 1, column 16: \"}\" is no JSON here (expected string literal)"},
      {"{\"sources\": [",
       "line 1, column 14: the text ends too early (expected '[', '{', or a literal)"},
      {"", "line 1, column 1: the text ends too early (expected '[', '{', or a literal)"},
      {"{\"sources\":: []}",
       "line 1, column 12: \":\" is no JSON here (expected '[', '{', or a literal)"},
      {"{\"port\": 01, \"sources\": []}",
       "line 1, column 11: \"1\" is no JSON here (expected '}')"},
      {"{\"sources\": \"a\\q\"}", "line 1, column 13: \"\"a\\q\" is no JSON here (expected JSON)"},
      {"[1]",
       "line 1, column 1: \"[\" is no layout (expected an object with server_address, port, width, "
       "height, edit_rate, keep_aspect_ratio, sources)"},
      {"{}", "line 1, column 1: \"{\" lacks sources (expected sources)"},
      {"{\n \"sauces\": []}",
       "line 2, column 2: \"sauces\" is no key of a layout (expected server_address, port, width, "
       "height, edit_rate, keep_aspect_ratio, sources)"},
      {"{\"port\": 1,\n \"port\": 2, \"sources\": []}",
       "line 2, column 2: \"port\" stands here again (expected each key once)"},
      {"{\"port\": 65536, \"sources\": []}",
       "line 1, column 10: \"65536\" is not supported (expected a whole number from 0 to 65535)"},
      {"{\"width\" : 0, \"sources\": []}",
       "line 1, column 12: \"0\" is not supported (expected a whole number from 1 to 1000000)"},
      {"{\"height\": \"108\\u0030\", \"sources\": []}",
       "line 1, column 12: \"1080\" is not supported (expected a whole number from 1 to 1000000)"},
      {"{\"keep_aspect_ratio\": 1, \"sources\": []}",
       "line 1, column 23: \"1\" is not supported (expected true or false)"},
      {"{\"server_address\": null, \"sources\": []}",
       "line 1, column 20: \"null\" is not supported (expected a text without a character of value "
       "0)"},
      {"{\"edit_rate\": 29.97, \"sources\": []}",
       "line 1, column 15: \"29.97\" is no edit rate (expected such as 25 or \"30000/1001\")"},
      {"{\"sources\": {}}", "line 1, column 13: \"{\" is no list (expected the list of sources)"},
      {tiles(tile("\"width\": 1")), "line 1, column 14: \"{\" lacks height (expected height)"},
      {tiles(tile("\"width\": 1.5, \"height\": 2")),
       "line 1, column 82: \"1.5\" is not supported (expected a whole number from -2147483648 to "
       "2147483647)"},
      {tiles(tile("\"width\":\n2147483648, \"height\": 2")),
       "line 2, column 1: \"2147483648\" is not supported (expected a whole number from "
       "-2147483648 "
       "to 2147483647)"},
      {tiles("7"),
       "line 1, column 14: \"7\" is no source (expected an object with id, channel_id, width, "
       "height, x_offset, y_offset, use_audio)"},
      {std::string(65, '['),
       "line 1, column 65: lists and objects lie too deep (expected at most 64 in each other)"},
  };
  for (const BadLayout& layout : layouts) {
    SCOPED_TRACE(layout.json);
    expect_refused(1, std::string("standard input: ") + layout.line,
                   run_tool({"multiviewer", "-"}, layout.json));
  }
}

TEST(MultiviewerCommand, EditRatesAreTextsOrNumbers) {
  const std::pair<const char*, const char*> rates[] = {{"25", "25 pictures"},
                                                       {"\"25\"", "25 pictures"},
                                                       {"\"50/1\"", "50 pictures"},
                                                       {"0", "no edit rate"}};
  for (const auto& [rate, text] : rates) {
    const ToolResult result = run_tool(
        {"multiviewer", "-"}, std::string("{\"edit_rate\": ") + rate + ", \"sources\": []}");
    EXPECT_NE(std::string::npos, result.out.find(text)) << result.out << result.err;
  }
  for (const char* const rate : {"\"25/0\"", "\"-25\"", "\"25/\"", "\"\"", "-25", "\"25 \""})
    EXPECT_EQ(1, run_tool({"multiviewer", "-"},
                          std::string("{\"edit_rate\": ") + rate + ", \"sources\": []}")
                     .code)
        << rate;
}

// What is written into a terminal must not move its cursor.
TEST(MultiviewerCommand, ControlCharactersAreShownAsText) {
  const ToolResult result = run_tool(
      {"multiviewer", "-"},
      R"({"server_address": "\u001b[2J", "sources": [{"id": 1, "channel_id": "\u0007", "width": 900,
          "height": 900, "x_offset": 0, "y_offset": 0}]})");
  EXPECT_EQ(0, result.code);
  EXPECT_EQ(std::string::npos, result.out.find('\x1b'));
  EXPECT_EQ(std::string::npos, result.out.find('\x07'));
  EXPECT_NE(std::string::npos, result.out.find("|1 \\x07"));
}

TEST(MultiviewerCommand, MissingAndEndlessFilesAreRefused) {
  expect_refused(1, "no-such.json: no such file (expected a readable file)",
                 run_tool({"multiviewer", "no-such.json"}));
  expect_refused(1, "standard input: too long (expected a layout of at most 4194304 bytes)",
                 run_tool({"multiviewer", "-"}, std::string(4194305, ' ')));
}

}  // namespace
}  // namespace Korvane::Tool
