// What needs the media libraries. In a build without them every function raises UsageError.

#ifndef KV_TOOLS_KVTOOL_MEDIA_INPUTS_H
#define KV_TOOLS_KVTOOL_MEDIA_INPUTS_H

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "input.h"
#include "rate.h"
#include "streams.h"
#include "timecode_source.h"

namespace Korvane::Tool {

struct ProbeOptions {
  std::string file;
  bool json = false;
};

struct SdpOptions {
  std::vector<std::string> files;
  bool json = false;
};

struct SrtOptions {
  std::string connect;          // "HOST:PORT"; empty when it listens
  std::string listen;           // "PORT"; empty when it connects
  std::string passphrase_file;  // empty: not encrypted
  unsigned int period = 5;      // seconds from one sample to the next
  unsigned int count = 0;       // samples; 0: until the connection ends
  unsigned int wait = 30;       // seconds for the connection to come about
  bool json = false;
  bool csv = false;
};

// The timecodes that the frames of the first video stream carry. A `rate` must be the file's.
std::unique_ptr<TimecodeSource> open_media_timecodes(Input& input, const std::optional<Rate>& rate);

// Longitudinal timecode on the first channel of the first audio stream.
std::unique_ptr<TimecodeSource> open_ltc_timecodes(Input& input, const Rate& rate);

int run_probe(const ProbeOptions& options, Streams& streams);
int run_sdp(const SdpOptions& options, Streams& streams);
int run_srt(const SrtOptions& options, Streams& streams);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_INPUTS_H
