#include "usage.h"

#include <sstream>

#include "command_line.h"
#include "printable.h"
#include "suggestion.h"

namespace Korvane::Tool {
namespace {

// The option of `command` that is like this one, whose dashes are no part of the name.
std::string nearest_option(const CLI::App& command, const std::string& option) {
  std::vector<std::string> names;
  for (const CLI::Option* const known : command.get_options())
    for (const std::string& name : known->get_lnames()) names.push_back(name);
  const std::size_t start = option.find_first_not_of('-');
  if (start == std::string::npos) return {};
  const std::string name = nearest_name(option.substr(start), names);
  return name.empty() ? name : "--" + name;
}

// What was left over of the command line: `before` the command, when there is one.
std::string describe_unexpected(const CLI::App& app, const CLI::App& command,
                                const std::string& before, const std::string& argument,
                                const std::string& see) {
  if (argument.starts_with('-')) {
    const std::string name = argument.substr(0, argument.find('='));
    return "unknown option " + in_quotes(name) + before + " (" + see +
           did_you_mean(nearest_option(command, name)) + ')';
  }
  if (&app != &command || !before.empty())
    return "unexpected argument " + in_quotes(argument) + before + " (" + see + ')';
  const std::vector<std::string> names = command_names(app);
  return "unknown command " + in_quotes(argument) + " (expected " + one_of(names) + "; " + see +
         did_you_mean(nearest_name(argument, names)) + ')';
}

// "NAME: 1 required TYPE missing" says no more than that.
std::string describe_missing_value(const std::string& what, const std::string& see) {
  const std::string number = ": 1 required ";
  const std::string missing = " missing";
  const std::size_t middle = what.find(number);
  if (middle == std::string::npos || !what.ends_with(missing)) return what + " (" + see + ')';
  const std::size_t type = middle + number.size();
  return what.substr(0, middle) + " has no value (expected " +
         what.substr(type, what.size() - missing.size() - type) + "; " + see + ')';
}

bool is_heading(const std::string& line) {
  return line.size() < 22 && line.ends_with(':') && line[0] >= 'A' && line[0] <= 'Z';
}

}  // namespace

std::string describe_usage(const CLI::App& app, const CLI::ParseError& error) {
  const std::vector<CLI::App*> parsed = app.get_subcommands();
  const std::string name = parsed.empty() ? "" : parsed.front()->get_name() + ' ';
  const std::string see = "see kvtool " + name + "--help";
  const bool is_before = parsed.empty() || app.remaining_size() != 0;
  const CLI::App& command = is_before ? app : *parsed.front();
  const std::string before =
      is_before && !parsed.empty() ? " before " + parsed.front()->get_name() : "";
  const std::string what = error.what();
  const auto is = [&](CLI::ExitCodes kind) {
    return error.get_exit_code() == static_cast<int>(kind);
  };

  // What is misspelt comes before what is missing therefore.
  const std::vector<std::string> unexpected = command.remaining();
  if (!unexpected.empty() && (is(CLI::ExitCodes::ExtrasError) || is(CLI::ExitCodes::RequiredError)))
    return describe_unexpected(app, command, before, unexpected.front(), see);
  if (is(CLI::ExitCodes::ArgumentMismatch)) return describe_missing_value(what, see);
  // "NAME: TEXT", which says itself what was expected.
  if (is(CLI::ExitCodes::ValidationError)) return std::string(what).erase(what.find(": "), 1);
  return what + " (" + see + ')';
}

std::string with_headings(const std::string& help, Ink ink) {
  std::string text;
  std::istringstream lines(help);
  for (std::string line; std::getline(lines, line);)
    text += (is_heading(line) ? ink.heading(line) : line) + '\n';
  return text;
}

}  // namespace Korvane::Tool
