#include "command_line.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "failure.h"
#include "help_texts.h"
#include "printable.h"
#include "rate.h"
#include "suggestion.h"

namespace Korvane::Tool {
namespace {

std::string in_braces(const std::vector<std::string>& values) {
  std::string text;
  for (const std::string& value : values) text += (text.empty() ? "{" : ",") + value;
  return text + '}';
}

std::string rate_type() { return "RATE:" + in_braces(rate_names()); }

std::string not_supported(const std::string& value, const std::string& expected) {
  return in_quotes(value) + " is not supported (expected " + expected + ')';
}

CLI::Validator one_of_these(const std::vector<std::string>& values) {
  return {[values](const std::string& value) {
            if (std::find(values.begin(), values.end(), value) != values.end())
              return std::string();
            return not_supported(value, one_of(values) + did_you_mean(nearest_name(value, values)));
          },
          in_braces(values)};
}

template <typename Number>
CLI::Validator whole_number(Number lowest, Number highest, const std::string& range) {
  return {[lowest, highest, range](const std::string& value) {
            Number number = 0;
            const std::size_t sign = value.starts_with('+') ? 1 : 0;
            const char* const end = value.data() + value.size();
            const auto [stop, error] = std::from_chars(value.data() + sign, end, number);
            if (error == std::errc() && stop == end && number >= lowest && number <= highest)
              return std::string();
            return not_supported(value, "a whole number " + range);
          },
          ""};
}

CLI::Validator whole_number(unsigned int lowest, unsigned int highest) {
  return whole_number(lowest, highest,
                      "from " + std::to_string(lowest) + " to " + std::to_string(highest));
}

// Any that an option of this type can hold.
template <typename Number>
CLI::Validator any_whole_number(const Number&) {
  using Limits = std::numeric_limits<Number>;
  return whole_number(Limits::min(), Limits::max(),
                      "of " + std::to_string(8 * sizeof(Number)) + " bits");
}

}  // namespace

std::vector<std::string> command_names(const CLI::App& app) {
  std::vector<std::string> names;
  for (const CLI::App* const command : app.get_subcommands([](const CLI::App*) { return true; }))
    names.push_back(command->get_name());
  return names;
}

CommandLine::CommandLine(Streams& streams)
    : streams_(streams),
      app_("Shows and checks the timecodes and tracks of broadcast material.", "kvtool"),
      subjects_{&formats_subject(), &colorspaces_subject(), &essence_subject()} {
  app_.set_version_flag("--version", "kvtool " KVTOOL_VERSION);
  app_.require_subcommand(0, 1);
  app_.footer(kToolFooter);
  add_timecode();
  add_gaps();
  add_probe();
  for (const TableSubject* const subject : subjects_) add_table(*subject);
  add_umid();
  add_multiviewer();
  add_sdp();
  add_srt();
  add_color(app_);
  for (CLI::App* const command : app_.get_subcommands({})) add_color(*command);
}

CLI::App& CommandLine::add_command(const char* name, const char* description, const char* help) {
  CLI::App& command = *app_.add_subcommand(name, description);
  command.footer(help);
  return command;
}

void CommandLine::add_color(CLI::App& command) {
  command
      .add_option_function<std::string>(
          "--color",
          [this](const std::string& when) {
            if (when != "auto") streams_.out_ink = streams_.err_ink = Ink(when == "always");
          },
          "When to use colours: on a terminal by default (auto)")
      ->type_name("WHEN")
      ->check(one_of_these({"auto", "always", "never"}))
      ->trigger_on_parse();
}

void CommandLine::add_timecode() {
  CLI::App& command = add_command("timecode", "Show one timecode in every form", kTimecodeFooter);
  command.add_option("EXPR", timecode_.expression, "Label, frame count, word or clock time")
      ->required()
      ->type_name("");
  command.add_option("--rate", timecode_.rate, "Frame rate")->required()->type_name(rate_type());
  command.add_flag("--drop", timecode_.drop_frame, "Count drop-frame (rates 30 and 60)");
  command.add_flag("--repair", timecode_.repair,
                   "Read a label leniently, and tell where strict reading differs");
  command.add_option("--add", timecode_.add, "Step by so many frames")
      ->type_name("N")
      ->check(any_whole_number(timecode_.add));
  command.add_option("--add-minutes", timecode_.add_minutes, "Step by so many minutes")
      ->type_name("N")
      ->check(any_whole_number(timecode_.add_minutes));
  command.add_option("--days", timecode_.days, "Step by so many days")
      ->type_name("N")
      ->check(any_whole_number(timecode_.days));
  CLI::Option* const format = command.add_option(
      "--format", timecode_.format, "Print only PATTERN with %HH, %MM, %SS and %FF replaced");
  format->type_name("PATTERN");
  command.add_flag("--json", timecode_.json, "Print JSON")->excludes(format);
}

void CommandLine::add_gaps() {
  CLI::App& command = add_command("gaps", "Find the discontinuities of a sequence", kGapsFooter);
  command.add_option("FILE", gaps_.file, "What to read; - is standard input, the default")
      ->type_name("");
  command.add_option("--input", gaps_.input, "Kind of input, text by default")
      ->type_name("KIND")
      ->check(one_of_these({"text", "st12", "st12-64", "ltc", "media"}));
  command.add_option("--rate", gaps_.rate, "Frame rate")->type_name(rate_type());
  command.add_flag("--drop", gaps_.drop_frame, "Count drop-frame (rates 30 and 60)");
  command.add_flag("--field-mark", gaps_.field_mark,
                   "st12-64: read the field mark where most words hold parity");
  command.add_flag("--json", gaps_.json, "Print JSON");
}

void CommandLine::add_probe() {
  CLI::App& command =
      add_command("probe", "Show the tracks and timecodes of a media file", kProbeFooter);
  command.add_option("FILE", probe_.file, "Media file")->required()->type_name("");
  command.add_flag("--json", probe_.json, "Print JSON");
}

void CommandLine::add_table(const TableSubject& subject) {
  CLI::App& command = add_command(subject.command, subject.description, subject.footer);
  for (const TableOption& option : subject.options)
    command
        .add_option_function<std::string>(
            option.name,
            [this, &option](const std::string& text) { table_.given[option.name] = text; },
            option.help)
        ->type_name(option.value == TableValue::Rate ? rate_type() : option.type_name);
  CLI::Option* const csv = command.add_flag("--csv", table_.csv, "Print comma-separated values");
  command.add_flag("--json", table_.json, "Print JSON")->excludes(csv);
}

void CommandLine::add_umid() {
  CLI::App& command = add_command("umid", "Show what identifiers of material say", umid_footer());
  command.add_option("TEXT", umid_.texts, "UMID in hexadecimal digits")->required()->type_name("");
  command.add_flag("--json", umid_.json, "Print JSON");
}

void CommandLine::add_multiviewer() {
  CLI::App& command =
      add_command("multiviewer", "Check and draw a multiviewer layout", multiviewer_footer());
  command.add_option("LAYOUT", multiviewer_.file, "Layout in JSON; - is standard input")
      ->required()
      ->type_name("");
  command.add_option("--svg", multiviewer_.svg, "Draw it into this file, too")->type_name("FILE");
  command.add_flag("--json", multiviewer_.json, "Print JSON");
}

void CommandLine::add_sdp() {
  CLI::App& command = add_command("sdp", "Show the endpoints of ST 2110 descriptions", kSdpFooter);
  command.add_option("FILE", sdp_.files, "Session description; - is standard input")
      ->required()
      ->type_name("");
  command.add_flag("--json", sdp_.json, "Print JSON");
}

void CommandLine::add_srt() {
  CLI::App& command = add_command("srt", "Show the statistics of an SRT connection", kSrtFooter);
  CLI::Option* const connect =
      command.add_option("--connect", srt_.connect, "Call the sender there");
  connect->type_name("HOST:PORT");
  command.add_option("--listen", srt_.listen, "Wait for a sender there")
      ->type_name("PORT")
      ->excludes(connect);
  command.add_option("--passphrase-file", srt_.passphrase_file, "Decrypt by its first line")
      ->type_name("FILE");
  command.add_option("--period", srt_.period, "Seconds between samples, 5 by default")
      ->type_name("N")
      ->check(whole_number(1U, 86400U));
  command.add_option("--count", srt_.count, "End after N samples")
      ->type_name("N")
      ->check(whole_number(1U, 172800U));
  command.add_option("--wait", srt_.wait, "Seconds to wait for the connection, 30 by default")
      ->type_name("N")
      ->check(whole_number(1U, 86400U));
  CLI::Option* const csv = command.add_flag("--csv", srt_.csv, "Print comma-separated values");
  command.add_flag("--json", srt_.json, "Print JSON")->excludes(csv);
}

void CommandLine::parse(const std::vector<std::string>& args) {
  app_.parse(std::vector<std::string>(args.rbegin(), args.rend()));
}

int CommandLine::run() {
  if (app_.got_subcommand("timecode")) return run_timecode(timecode_, streams_);
  if (app_.got_subcommand("gaps")) return run_gaps(gaps_, streams_);
  if (app_.got_subcommand("probe")) return run_probe(probe_, streams_);
  if (app_.got_subcommand("umid")) return run_umid(umid_, streams_);
  if (app_.got_subcommand("multiviewer")) return run_multiviewer(multiviewer_, streams_);
  if (app_.got_subcommand("sdp")) return run_sdp(sdp_, streams_);
  if (app_.got_subcommand("srt")) return run_srt(srt_, streams_);
  for (const TableSubject* const subject : subjects_)
    if (app_.got_subcommand(subject->command)) return run_table(*subject, table_, streams_);
  throw UsageError("no command given (expected " + one_of(command_names(app_)) +
                   "; see kvtool --help)");
}

}  // namespace Korvane::Tool
