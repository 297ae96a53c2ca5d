// Runs kvtool in the test's own process.

#ifndef KV_ENGINE_TESTS_KVTOOL_TOOL_RUN_H
#define KV_ENGINE_TESTS_KVTOOL_TOOL_RUN_H

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "run.h"

namespace Korvane::Tool {

struct ToolResult {
  int code;
  std::string out;
  std::string err;
};

inline ToolResult run_tool(const std::vector<std::string>& args, const std::string& input = "") {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  Streams streams{in, out, err};
  const int code = run(args, streams);
  return {code, out.str(), err.str()};
}

// Every look at the clock finds it 300 milliseconds later.
inline ToolResult run_slowly(const std::vector<std::string>& args, const std::string& input,
                             bool err_is_terminal) {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  std::chrono::steady_clock::time_point time;
  Streams streams{in, out, err, err_is_terminal,
                  [&time] { return time += std::chrono::milliseconds(300); }};
  const int code = run(args, streams);
  return {code, out.str(), err.str()};
}

// Nothing on standard output and just this line, without "kvtool: ", on standard error.
inline void expect_refused(int code, const std::string& line, const ToolResult& result) {
  EXPECT_EQ(code, result.code);
  EXPECT_EQ("", result.out);
  EXPECT_EQ("kvtool: " + line + '\n', result.err);
}

// A file of this content that lasts as long as the object.
class ScratchFile {
 public:
  explicit ScratchFile(const std::string& content, const std::string& suffix = ".txt")
      : path_((std::filesystem::temp_directory_path() /
               ("kvtool-test-" + std::to_string(std::random_device()()) + suffix))
                  .string()) {
    std::ofstream(path_, std::ios::binary) << content;
  }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  ~ScratchFile() { std::filesystem::remove(path_); }

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

inline std::string read_file(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  EXPECT_TRUE(in.is_open()) << path;
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

}  // namespace Korvane::Tool
#endif  // KV_ENGINE_TESTS_KVTOOL_TOOL_RUN_H
