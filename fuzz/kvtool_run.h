// Runs commands of kvtool in process on damaged input.

#ifndef KV_ENGINE_FUZZ_KVTOOL_RUN_H
#define KV_ENGINE_FUZZ_KVTOOL_RUN_H

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "core/exception.h"
#include "failure.h"
#include "input.h"
#include "streams.h"

namespace Korvane {

// Whatever the input is, a command comes to an end, or raises what the user can be told.
// `command` takes the streams. Returns what it wrote.
template <typename Command>
std::string run_command(const Command& command, const std::string& input = "") {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  Tool::Streams streams{in, out, err};
  try {
    const int code = command(streams);
    expect(code == Tool::Done || code == Tool::BadInput);
  } catch (const Tool::InputError& error) {
    expect(error.what()[0] != '\0');
  } catch (const Tool::UsageError& error) {
    expect(error.what()[0] != '\0');
  } catch (const Exception& exception) {
    expect(exception.message()[0] != '\0');
  }
  return out.str();
}

// As run_command, of one that writes JSON: all of it, or none.
template <typename Command>
void run_json_command(const Command& command, const std::string& input = "") {
  const std::string out = run_command(command, input);
  expect(out.empty() || nlohmann::json::accept(out));
}

}  // namespace Korvane
#endif  // KV_ENGINE_FUZZ_KVTOOL_RUN_H
