// Multiviewer layouts, and their pictures.

#include "kvtool_run.h"
#include "multiviewer_command.h"
#include "multiviewer_layout.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = Korvane::Input(data, size).rest();
  Korvane::run_command(
      [](Korvane::Tool::Streams& streams) {
        return Korvane::Tool::run_multiviewer({"-", {}}, streams);
      },
      text);
  try {
    Korvane::Tool::svg_of(Korvane::Tool::read_layout(Korvane::Tool::JsonText("layout", text)));
  } catch (const Korvane::Tool::InputError& error) {
    Korvane::expect(error.what()[0] != '\0');
  }
  return 0;
}
