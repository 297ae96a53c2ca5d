#include "gap_report.h"

#include <nlohmann/json.hpp>

#include "printable.h"

namespace Korvane::Tool {
namespace {

using Json = nlohmann::ordered_json;

constexpr auto kReplaceIllFormed = Json::error_handler_t::replace;

std::string counted(unsigned long long count, const char* one) {
  return std::to_string(count) + ' ' + one + (count == 1 ? "" : "s");
}

// Moves a document two levels in.
std::string indented(std::string text) {
  const std::string indent = "    ";
  for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', end + 1))
    text.insert(end + 1, indent);
  return indent + text;
}

}  // namespace

GapReport::~GapReport() = default;

void GapText::gap(const std::string&, unsigned long long, const Difference& gap) {
  out_ << gap.line << ink_.alarm(describe_jump(gap.frames)) << '\n';
}

void GapText::finish(const GapTotals& totals) {
  const std::string gaps = counted(totals.gaps, "gap");
  out_ << printable_name(totals.name) << ": " << counted(totals.count, "timecode") << ", "
       << (totals.gaps == 0 ? gaps : ink_.alarm(gaps)) << ", first " << totals.first << ", last "
       << totals.last << '\n';
}

void GapJson::gap(const std::string& unit, unsigned long long position, const Difference& gap) {
  const Json json = {
      {unit, position}, {"expected", gap.expected}, {"actual", gap.actual}, {"frames", gap.frames}};
  waiting_.write((any_ ? ",\n" : "") + indented(json.dump(2)));
  any_ = true;
}

void GapJson::finish(const GapTotals& totals) {
  const Json json = {{"input", totals.name},  {"kind", totals.kind},      {"rate", totals.rate},
                     {"count", totals.count}, {"gap_count", totals.gaps}, {"first", totals.first},
                     {"last", totals.last}};
  std::string text = json.dump(2, ' ', false, kReplaceIllFormed);
  text.resize(text.size() - 2);  // the line feed and brace at the end
  out_ << text << ",\n  \"gaps\": [";
  if (any_) {
    out_ << '\n';
    waiting_.copy_to(out_);
    out_ << "\n  ";
  }
  out_ << "]\n}\n";
}

}  // namespace Korvane::Tool
