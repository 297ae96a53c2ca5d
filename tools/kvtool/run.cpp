#include "run.h"

#include <algorithm>
#include <exception>

#include "command_line.h"
#include "core/exception.h"
#include "failure.h"
#include "usage.h"

namespace Korvane::Tool {
namespace {

void say(Streams& streams, std::string line) {
  std::replace(line.begin(), line.end(), '\n', ' ');
  complain(streams, line);
}

int parse_and_run(const std::vector<std::string>& args, Streams& streams) {
  CommandLine command_line(streams);
  try {
    command_line.parse(args);
  } catch (const CLI::CallForHelp&) {
    streams.out << with_headings(command_line.app().help(), streams.out_ink);
    return Done;
  } catch (const CLI::CallForVersion& version) {
    streams.out << version.what() << '\n';
    return Done;
  } catch (const CLI::ParseError& error) {
    throw UsageError(describe_usage(command_line.app(), error));
  }
  return command_line.run();
}

}  // namespace

int run(const std::vector<std::string>& args, Streams& streams) {
  try {
    const int code = parse_and_run(args, streams);
    if (streams.out.flush()) return code;
    say(streams, "the results cannot be written to standard output");
  } catch (const UsageError& error) {
    say(streams, error.what());
    return WrongUsage;
  } catch (const Exception& error) {
    say(streams, error.message());
  } catch (const std::exception& error) {
    say(streams, error.what());
  }
  return BadInput;
}

}  // namespace Korvane::Tool
