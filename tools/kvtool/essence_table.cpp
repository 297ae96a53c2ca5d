#include "enum_names.h"
#include "media/track_descriptor_utils.h"
#include "table_command.h"

namespace Korvane::Tool {
namespace {

using Kind = Media::TrackDescriptorEssenceKind;
namespace Families = Media::TrackDescriptorUtils;

constexpr TableOption kEssenceOptions[] = {
    {"--value", "value", TableValue::Number, "N", "The kind of this number"},
    {"--name", "name", TableValue::Listed, "NAME", "The kind of this name"},
    {"--family", "family", TableValue::Listed, "FAMILY:{audio,video,data,none}",
     "Kinds of this family"},
    {"--dnx", "dnx", TableValue::YesNo, "WHETHER:{yes,no}", "Whether it is a DNx kind"},
    {"--prores", "prores", TableValue::YesNo, "WHETHER:{yes,no}", "Whether it is a ProRes kind"},
};

constexpr const char* kEssenceFooter =
    R"(The kinds of essence that a track carries, and the family of each.

Examples:
  kvtool essence
  kvtool essence --family audio
  kvtool essence --prores yes --json

JSON and CSV:
  The columns are value, name, family, dnx, prores.

Exit codes:
  0  done
  2  wrong usage)";

std::string family_of(Kind kind) {
  if (Families::is_audio_track(kind)) return "audio";
  if (Families::is_video_track(kind)) return "video";
  return Families::is_data_track(kind) ? "data" : "none";
}

Table build_essence(const TableRequest&) {
  Table table{{"value", "name", "family", "dnx", "prores"}, {}};
  for (const Kind kind : enumerators<Kind>())
    table.rows.push_back({static_cast<long long>(kind), std::string(name_of(kind)), family_of(kind),
                          Families::is_dnx(kind), Families::is_prores(kind)});
  return table;
}

}  // namespace

const TableSubject& essence_subject() {
  static constexpr TableSubject kSubject{"essence", "List the kinds of essence", kEssenceFooter,
                                         kEssenceOptions, build_essence};
  return kSubject;
}

}  // namespace Korvane::Tool
