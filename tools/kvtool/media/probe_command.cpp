#include "failure.h"
#include "media/probe_report.h"
#include "media_inputs.h"
#include "printable.h"

namespace Korvane::Tool {

int run_probe(const ProbeOptions& options, Streams& streams) {
  const ProbeReport report = read_probe_report(options.file, streams);
  if (options.json)
    streams.out << to_json(report).dump(2, ' ', false, nlohmann::json::error_handler_t::replace)
                << '\n';
  else
    write_text(streams.out, report);

  if (!report.start) {
    streams.err << "kvtool: " << printable_name(report.file)
                << ": no timecode (expected one in the container or in a frame)\n";
    return BadInput;
  }
  const bool continuous = !report.frame_timecodes || report.frame_timecodes->differences.empty();
  return continuous && !report.start_difference ? Done : BadInput;
}

}  // namespace Korvane::Tool
