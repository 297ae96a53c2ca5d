#include "failure.h"
#include "media/probe_report.h"
#include "media_inputs.h"

namespace Korvane::Tool {

int run_probe(const ProbeOptions& options, Streams& streams) {
  const ProbeReport report = read_probe_report(options.file, streams);
  if (options.json)
    write_json(streams.out, report);
  else
    write_text(streams.out, report, streams.out_ink);

  if (report.complaint) {
    complain(streams, *report.complaint);
    return BadInput;
  }
  const bool continuous = !report.frame_timecodes || report.frame_timecodes->differences.empty();
  return continuous && !report.start_difference ? Done : BadInput;
}

}  // namespace Korvane::Tool
