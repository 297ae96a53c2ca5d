#include "rate.h"

#include <charconv>
#include <cmath>
#include <optional>

#include "failure.h"
#include "printable.h"
#include "suggestion.h"

namespace Korvane::Tool {
namespace {

struct NamedRate {
  const char* name;
  unsigned short nominal;
  Rational32 edit;
};

constexpr NamedRate kRates[] = {
    {"24", 24, {24, 1}},
    {"25", 25, {25, 1}},
    {"30", 30, {30, 1}},
    {"50", 50, {50, 1}},
    {"60", 60, {60, 1}},
    {"23.976", 24, {24000, 1001}},
    {"29.97", 30, {30000, 1001}},
    {"59.94", 60, {60000, 1001}},
    {"24000/1001", 24, {24000, 1001}},
    {"30000/1001", 30, {30000, 1001}},
    {"60000/1001", 60, {60000, 1001}},
};

double per_second(const Rational32& rate) {
  return static_cast<double>(rate.numerator) / rate.denominator;
}

// Containers and people round rates: 0.03 percent is a third of what parts 30 from 30000/1001.
bool is_near(double frames_per_second, const Rational32& rate) {
  return std::abs(frames_per_second / per_second(rate) - 1) < 0.0003;
}

std::optional<double> take_decimal(std::string_view& text) {
  double value = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
  return value;
}

// The name of the rate that is written otherwise: "23.98", "29,97", "25p", "60000/1000".
std::string same_rate(std::string text) {
  const std::size_t comma = text.find(',');
  if (comma != std::string::npos) text[comma] = '.';
  std::string_view rest = text;
  std::optional<double> frames_per_second = take_decimal(rest);
  if (frames_per_second && rest.starts_with('/')) {
    rest.remove_prefix(1);
    const std::optional<double> seconds = take_decimal(rest);
    if (!seconds) return {};
    *frames_per_second /= *seconds;
  }
  if (!frames_per_second || (!rest.empty() && rest != "p" && rest != "fps")) return {};
  for (const NamedRate& known : kRates)
    if (is_near(*frames_per_second, known.edit)) return known.name;
  return {};
}

}  // namespace

std::vector<std::string> rate_names() {
  std::vector<std::string> names;
  for (const NamedRate& rate : kRates) names.emplace_back(rate.name);
  return names;
}

Rate parse_rate(const std::string& text, bool drop_frame) {
  for (const NamedRate& known : kRates) {
    if (text != known.name) continue;
    if (drop_frame && known.nominal != 30 && known.nominal != 60)
      throw UsageError("--drop does not go with --rate " + text + " (expected 30 or 60)");
    return counting({known.nominal, known.edit, false}, drop_frame);
  }
  throw UsageError("--rate " + in_quotes(text) + " is not supported (expected " +
                   one_of(rate_names()) + did_you_mean(same_rate(text)) + ")");
}

Rate counting(const Rate& rate, bool drop_frame) {
  if (!drop_frame) return {rate.nominal, rate.edit, false};
  return {rate.nominal, {rate.nominal * 1000, 1001}, true};
}

std::string describe(const Rate& rate) {
  return std::to_string(rate.nominal) + (rate.drop_frame ? " drop-frame" : "");
}

std::string describe(const Rational32& edit_rate) {
  const std::string numerator = std::to_string(edit_rate.numerator);
  return edit_rate.denominator == 1 ? numerator
                                    : numerator + '/' + std::to_string(edit_rate.denominator);
}

std::string describe_ratio(const Rational32& ratio) {
  return std::to_string(ratio.numerator) + '/' + std::to_string(ratio.denominator);
}

unsigned short nominal_rate(const Rational32& frame_rate) {
  if (frame_rate.numerator <= 0 || frame_rate.denominator <= 0) return 0;
  for (const NamedRate& known : kRates)
    if (is_near(per_second(frame_rate), known.edit)) return known.nominal;
  return 0;
}

}  // namespace Korvane::Tool
