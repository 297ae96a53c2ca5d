#include "media/source_reader.h"

#include <optional>
#include <span>
#include <string>

#include "media/probe_report.h"
#include "media/umid.h"
#include "umid_reading.h"
#include "wide_text.h"

namespace Korvane::Tool {
namespace {

std::string stated_in(const AVDictionary* metadata, const char* key) {
  const AVDictionaryEntry* const entry = av_dict_get(metadata, key, nullptr, 0);
  return entry != nullptr ? entry->value : "";
}

std::string first_stated(const AVFormatContext& format, const char* key) {
  std::string value = stated_in(format.metadata, key);
  for (const AVStream* const stream : std::span(format.streams, format.nb_streams))
    if (value.empty()) value = stated_in(stream->metadata, key);
  return value;
}

// The libraries that read media write UMIDs with 0x.
std::optional<Media::Umid> first_umid(const AVFormatContext& format, const char* key) {
  const std::optional<std::string> digits = read_umid(umid_digits_of(first_stated(format, key)));
  if (!digits || (digits->size() != 64 && digits->size() != 128)) return std::nullopt;
  return Media::Umid(wide_of(*digits).c_str());
}

std::optional<std::string> umid_text(const Media::Umid* umid) {
  return umid != nullptr ? std::optional(utf8_of(umid->c_str())) : std::nullopt;
}

}  // namespace

std::unique_ptr<Media::SourceInfo> read_source(const AVFormatContext& format) {
  const std::optional<Media::Umid> master = first_umid(format, "material_package_umid");
  const std::optional<Media::Umid> source = first_umid(format, "file_package_umid");
  const std::optional<Media::Umid> tape = first_umid(format, "reel_umid");
  const std::string reel = first_stated(format, "reel_name");
  if (!master && !source && !tape && reel.empty()) return nullptr;

  auto info = std::make_unique<Media::SourceInfo>(Media::IUmidInfo::UmidKind{});
  if (master) info->master_mob_id(*master);
  if (source) info->source_mob_id(*source);
  if (tape) info->tape_mob_id(*tape);
  info->tape_name(wide_of(reel).c_str());
  return info;
}

std::vector<SourceText> texts_of(const Media::SourceInfo& source) {
  const std::optional<std::string> name =
      source.has_tape_name() ? std::optional(utf8_of(source.tape_name())) : std::nullopt;
  return {{"master_mob_id", umid_text(source.master_mob_id())},
          {"source_mob_id", umid_text(source.source_mob_id())},
          {"tape_mob_id", umid_text(source.tape_mob_id())},
          {"tape_name", name}};
}

}  // namespace Korvane::Tool
