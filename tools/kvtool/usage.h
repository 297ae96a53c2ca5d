// What the tool says of its own use.

#ifndef KV_TOOLS_KVTOOL_USAGE_H
#define KV_TOOLS_KVTOOL_USAGE_H

#include <CLI/CLI.hpp>
#include <string>

#include "ink.h"

namespace Korvane::Tool {

// What is wrong with the command line that `app` has refused with `error`, in a line that names the
// help to look at and, for an unknown name, the one that may be meant.
std::string describe_usage(const CLI::App& app, const CLI::ParseError& error);

// The text of a help with its headings in ink.
std::string with_headings(const std::string& help, Ink ink);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_USAGE_H
