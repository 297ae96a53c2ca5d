// Session descriptions.

#include "kvtool_run.h"
#include "media_inputs.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = Korvane::Input(data, size).rest();
  Korvane::run_json_command(
      [](Korvane::Tool::Streams& streams) {
        return Korvane::Tool::run_sdp({{"-"}, true}, streams);
      },
      text);
  return 0;
}
