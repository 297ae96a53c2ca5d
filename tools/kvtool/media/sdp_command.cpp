#include <array>
#include <optional>

#include "failure.h"
#include "input.h"
#include "media/sdp_config_set.h"
#include "media/sdp_text.h"
#include "media_inputs.h"
#include "printable.h"
#include "table.h"
#include "wide_text.h"

namespace Korvane::Tool {
namespace {

constexpr std::size_t kLongestDescription = 1024UL * 1024;
constexpr std::size_t kEssenceCount = 3;
constexpr const char* kEssenceNames[kEssenceCount] = {"video", "audio", "anc"};

// By SdpType.
using SdpMedia = std::array<std::optional<SdpMedium>, kEssenceCount>;

void add_medium(SdpMedia& found, const SdpMedium& medium) {
  std::optional<SdpMedium>& place = found[medium.type];
  if (place && !medium.second_path)
    throw InputError(medium.file + ": line " + std::to_string(medium.line) + ": a second " +
                     kEssenceNames[medium.type] + " endpoint (expected one, which " + place->file +
                     " has in line " + std::to_string(place->line) + ')');
  if (!place) place = medium;
}

Media::SdpConfig config_of(const SdpMedia& found, Media::SdpType type) {
  const std::optional<SdpMedium>& medium = found[type];
  if (!medium) return {type};
  return {type, wide_of(medium->address).c_str(), medium->port};
}

Table table_of(const SdpMedia& found, const Media::SdpConfigSet& set) {
  Table table{{"essence", "ip_address", "port", "encoding", "file", "line"}, {}};
  const std::array<const Media::SdpConfig*, kEssenceCount> configs = {
      &set.video_sdp(), &set.audio_sdp(), &set.anc_sdp()};
  for (std::size_t i = 0; i < kEssenceCount; ++i) {
    const std::optional<SdpMedium>& medium = found[i];
    if (!medium) {
      table.rows.push_back({std::string(kEssenceNames[i]), {}, {}, {}, {}, {}});
      continue;
    }
    table.rows.push_back({std::string(kEssenceNames[i]), utf8_of(configs[i]->ip_address()),
                          Integer{configs[i]->port()}, printable_name(medium->encoding),
                          medium->file, static_cast<Integer>(medium->line)});
  }
  return table;
}

}  // namespace

int run_sdp(const SdpOptions& options, Streams& streams) {
  SdpMedia found;
  for (const std::string& file : options.files) {
    Input input(file, streams.in);
    const std::string text = input.read_all(kLongestDescription, "a session description");
    for (const SdpMedium& medium : read_sdp(printable_name(input.name()), text))
      add_medium(found, medium);
  }
  const Media::SdpConfigSet set(config_of(found, Media::SdpVideo),
                                config_of(found, Media::SdpAudio), config_of(found, Media::SdpAnc));
  const Table table = table_of(found, set);
  if (options.json)
    write_json(streams.out, table);
  else
    write_text(streams.out, table, "", streams.out_ink);
  return Done;
}

}  // namespace Korvane::Tool
