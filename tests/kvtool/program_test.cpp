// The program itself, through pipes.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <functional>

#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

struct ProgramResult {
  int code;
  std::string out;
  std::string err;
  long peak_kilobytes;
};

[[noreturn]] void become_program(std::vector<std::string> args, int in, int out, int err) {
  dup2(in, STDIN_FILENO);
  dup2(out, STDOUT_FILENO);
  dup2(err, STDERR_FILENO);
  // Freed memory that the address sanitizer keeps back must not look like growth.
  setenv("ASAN_OPTIONS", "quarantine_size_mb=1", 1);
  args.insert(args.begin(), KVTOOL_PROGRAM);
  std::vector<char*> arguments;
  for (std::string& arg : args) arguments.push_back(arg.data());
  arguments.push_back(nullptr);
  execv(KVTOOL_PROGRAM, arguments.data());
  _exit(127);
}

// `write_input` writes what the program reads; results are collected in files.
ProgramResult run_program(const std::vector<std::string>& args,
                          const std::function<void(std::FILE*)>& write_input) {
  const ScratchFile out("");
  const ScratchFile err("");
  std::array<int, 2> ends{};
  EXPECT_EQ(0, pipe2(ends.data(), O_CLOEXEC));
  const pid_t child = fork();
  if (child == 0)
    become_program(args, ends[0], open(out.path().c_str(), O_WRONLY),
                   open(err.path().c_str(), O_WRONLY));
  close(ends[0]);
  std::FILE* const in = fdopen(ends[1], "w");
  write_input(in);
  std::fclose(in);
  int status = 0;
  rusage usage{};
  EXPECT_EQ(child, wait4(child, &status, 0, &usage));
  EXPECT_TRUE(WIFEXITED(status));
  return {WEXITSTATUS(status), read_file(out.path()), read_file(err.path()), usage.ru_maxrss};
}

// Consecutive labels at 25 from midnight on.
void write_labels(std::FILE* in, int count) {
  for (int i = 0; i < count; ++i) {
    const int seconds = i / 25;
    std::fprintf(in, "%02d:%02d:%02d:%02d\n", seconds / 3600 % 24, seconds / 60 % 60, seconds % 60,
                 i % 25);
  }
}

TEST(Program, ReadsLabelsFromAPipe) {
  const ProgramResult result = run_program({"gaps", "-", "--rate", "25"},
                                           [](std::FILE* in) { std::fputs("00:00:00:00\n", in); });
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("standard input: 1 timecode, 0 gaps, first 00:00:00:00, last 00:00:00:00\n",
            result.out);
  EXPECT_EQ("", result.err);
}

TEST(Program, ReadsMediaFromAPipe) {
  const ProgramResult result = run_program({"gaps", "-", "--input", "media"}, [](std::FILE* in) {
    const std::string clip = read_file(KVTOOL_CLIPS "open-gop.mxf");
    EXPECT_EQ(clip.size(), std::fwrite(clip.data(), 1, clip.size(), in));
  });
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("standard input: 4 timecodes, 0 gaps, first 10:00:00:00, last 10:00:01:09\n",
            result.out);
}

TEST(Program, ExitCodesTellTheKindOfFailure) {
  const auto nothing = [](std::FILE*) {};
  const ProgramResult bad = run_program({"timecode", "abc", "--rate", "25"}, nothing);
  EXPECT_EQ(1, bad.code);
  EXPECT_EQ("", bad.out);
  EXPECT_EQ(
      "kvtool: \"abc\" is no timecode at rate 25 (expected HH:MM:SS:FF with frames 00 to 24)\n",
      bad.err);
  EXPECT_EQ(2, run_program({"timecode", "0", "--rate", "48"}, nothing).code);
}

TEST(Program, ThreeMillionLinesTakeNoMoreMemoryThanThree) {
  const ProgramResult few =
      run_program({"gaps", "--rate", "25"}, [](std::FILE* in) { write_labels(in, 3); });
  const ProgramResult many =
      run_program({"gaps", "--rate", "25"}, [](std::FILE* in) { write_labels(in, 3000000); });
  EXPECT_EQ(0, many.code);
  EXPECT_EQ("standard input: 3000000 timecodes, 0 gaps, first 00:00:00:00, last 09:19:59:24\n",
            many.out);
  EXPECT_LT(many.peak_kilobytes, few.peak_kilobytes + 4096);
}

}  // namespace
}  // namespace Korvane::Tool
