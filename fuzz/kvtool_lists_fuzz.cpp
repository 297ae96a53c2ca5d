// Lists of timecodes as text, in each of their forms.

#include "gaps_command.h"
#include "kvtool_run.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr const char* kRates[] = {"24", "25", "29.97", "30", "50", "60000/1001"};
  constexpr const char* kForms[] = {"text", "st12", "st12-64"};
  Korvane::Input input(data, size);
  Korvane::Tool::GapsOptions options;
  options.rate = kRates[input.take_below(6)];
  options.input = kForms[input.take_below(3)];
  options.drop_frame = input.take_bool();
  options.field_mark = input.take_bool();
  const std::string text = input.rest();
  const auto run = [&](Korvane::Tool::Streams& streams) {
    return Korvane::Tool::run_gaps(options, streams);
  };
  Korvane::run_command(run, text);
  options.json = true;
  Korvane::run_json_command(run, text);
  return 0;
}
