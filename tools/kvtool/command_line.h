// The commands and their options.

#ifndef KV_TOOLS_KVTOOL_COMMAND_LINE_H
#define KV_TOOLS_KVTOOL_COMMAND_LINE_H

#include <CLI/CLI.hpp>
#include <array>

#include "gaps_command.h"
#include "media_inputs.h"
#include "multiviewer_command.h"
#include "streams.h"
#include "table_command.h"
#include "timecode_command.h"
#include "umid_command.h"

namespace Korvane::Tool {

// Stays where it is: parsing writes into it.
class CommandLine {
 public:
  // `--color` changes the inks of `streams` as soon as it is read.
  explicit CommandLine(Streams& streams);
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;
  ~CommandLine() = default;

  // Raises what CLI::App::parse does.
  void parse(const std::vector<std::string>& args);

  // Runs the command that was parsed. Raises UsageError when there was none.
  int run();

  CLI::App& app() { return app_; }

 private:
  CLI::App& add_command(const char* name, const char* description, const char* help);
  void add_color(CLI::App& command);
  void add_timecode();
  void add_gaps();
  void add_probe();
  void add_table(const TableSubject& subject);
  void add_umid();
  void add_multiviewer();
  void add_sdp();
  void add_srt();

  Streams& streams_;
  CLI::App app_;
  TimecodeOptions timecode_;
  GapsOptions gaps_;
  ProbeOptions probe_;
  UmidOptions umid_;
  MultiviewerOptions multiviewer_;
  SdpOptions sdp_;
  SrtOptions srt_;
  std::array<const TableSubject*, 3> subjects_;
  TableRequest table_;
};

// The names of the commands, in the order of the help.
std::vector<std::string> command_names(const CLI::App& app);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_COMMAND_LINE_H
