// Identifiers of material (SMPTE ST 330) from the texts that people exchange.

#ifndef KV_TOOLS_KVTOOL_UMID_READING_H
#define KV_TOOLS_KVTOOL_UMID_READING_H

#include <optional>
#include <string>

namespace Korvane::Tool {

// `text` without what Media::Umid would take for digits though it is none: the name of the URN
// form, "urn:smpte:umid:", and the 0 of each 0x. Equal to `text` when there is neither.
std::string umid_digits_of(const std::string& text);

// What Media::Umid makes of `text`, by its own c_str(); nothing when it raises instead.
std::optional<std::string> read_umid(const std::string& text);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_UMID_READING_H
