// Reads numbers from text as the C library's scanf reads "%d", alike on every platform and under
// every locale.

#ifndef KV_ENGINE_SRC_TIMECODE_LABEL_SCANNER_H
#define KV_ENGINE_SRC_TIMECODE_LABEL_SCANNER_H

namespace Korvane {

// Reads optional white space, an optional sign and digits at `text` and moves `text` behind them.
// A number that does not fit is saturated. Answers whether there was a digit; without one `value`
// is left alone.
bool scan_number(const char*& text, long long& value);

struct ScannedLabel {
  int items = 0;  // how many of the six were read before the first mismatch
  long long hours = 0, minutes = 0, seconds = 0;
  char separator = '\0';
  long long frames = 0, field = 0;
};

// Scans `text` as "%d:%d:%d%c%d.%d" does.
ScannedLabel scan_label(const char* text);

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TIMECODE_LABEL_SCANNER_H
