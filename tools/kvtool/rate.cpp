#include "rate.h"

#include <cmath>

#include "failure.h"
#include "printable.h"

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

std::string known_rates() {
  std::string names;
  for (const NamedRate& rate : kRates) {
    if (!names.empty()) names += &rate == std::end(kRates) - 1 ? " or " : ", ";
    names += rate.name;
  }
  return names;
}

double per_second(const Rational32& rate) {
  return static_cast<double>(rate.numerator) / rate.denominator;
}

}  // namespace

Rate parse_rate(const std::string& text, bool drop_frame) {
  for (const NamedRate& known : kRates) {
    if (text != known.name) continue;
    if (drop_frame && known.nominal != 30 && known.nominal != 60)
      throw UsageError("--drop does not go with --rate " + text + " (expected 30 or 60)");
    return counting({known.nominal, known.edit, false}, drop_frame);
  }
  throw UsageError("--rate " + in_quotes(text) + " is not supported (expected " + known_rates() +
                   ")");
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
    if (std::abs(per_second(frame_rate) / per_second(known.edit) - 1) < 0.0003)
      return known.nominal;
  return 0;
}

}  // namespace Korvane::Tool
