// What "--help" says behind the options. Sections stand apart by blank lines; one with a heading is
// "Heading:" and lines that are indented by two. The manual pages are made from it.

#ifndef KV_TOOLS_KVTOOL_HELP_TEXTS_H
#define KV_TOOLS_KVTOOL_HELP_TEXTS_H

namespace Korvane::Tool {

extern const char* const kToolFooter;
extern const char* const kTimecodeFooter;
extern const char* const kGapsFooter;
extern const char* const kProbeFooter;
extern const char* const kSdpFooter;
extern const char* const kSrtFooter;

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_HELP_TEXTS_H
