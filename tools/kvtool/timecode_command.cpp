#include "timecode_command.h"

#include "expression.h"
#include "failure.h"
#include "rate.h"
#include "timecode/timecode_utils.h"
#include "timecode_forms.h"

namespace Korvane::Tool {

int run_timecode(const TimecodeOptions& options, Streams& streams) {
  const Rate rate = parse_rate(options.rate, options.drop_frame);
  Expression given = read_expression(options.expression, rate, options.repair);
  Timecode& timecode = given.timecode;
  // Even a step by 0 would turn hour 24 of a word into the next day.
  if (options.days != 0) timecode.add_days(options.days);
  if (options.add_minutes != 0) TimecodeUtils::add_minutes(timecode, options.add_minutes);
  if (options.add != 0) timecode.add(options.add);

  if (!given.repair_note.empty()) streams.err << "kvtool: " << given.repair_note << '\n';
  if (options.format) {
    streams.out << timecode.formatter(options.format->c_str()) << '\n';
    return Done;
  }
  const TimecodeForms forms = forms_of(timecode, counting(rate, timecode.drop_frame()).edit);
  if (options.json)
    write_json(streams.out, forms);
  else
    write_text(streams.out, forms, "");
  return Done;
}

}  // namespace Korvane::Tool
