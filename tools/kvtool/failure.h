// The two ways in which a command ends early. The text is the line that the user reads, without the
// leading "kvtool: ".

#ifndef KV_TOOLS_KVTOOL_FAILURE_H
#define KV_TOOLS_KVTOOL_FAILURE_H

#include <stdexcept>

namespace Korvane::Tool {

enum ExitCode : int { Done = 0, BadInput = 1, WrongUsage = 2 };

class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_FAILURE_H
