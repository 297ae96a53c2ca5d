#include "suggestion.h"

#include <algorithm>
#include <numeric>

namespace Korvane::Tool {
namespace {

constexpr std::size_t kLongestText = 64;

std::string in_lower_case(std::string text) {
  for (char& c : text)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return text;
}

// Row by row: how many errors make the start of `a` into each start of `b`.
std::size_t typing_errors(const std::string& a, const std::string& b) {
  std::vector<std::size_t> before_last(b.size() + 1);
  std::vector<std::size_t> last(b.size() + 1);
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::swap(before_last, last);
    std::swap(last, row);
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t wrong = a[i - 1] == b[j - 1] ? 0 : 1;
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + wrong});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        row[j] = std::min(row[j], before_last[j - 2] + 1);
    }
  }
  return row[b.size()];
}

std::string only_name_with_start(const std::string& start, const std::vector<std::string>& names) {
  std::string found;
  if (start.empty()) return found;
  for (const std::string& name : names) {
    if (!in_lower_case(name).starts_with(start)) continue;
    if (!found.empty()) return {};
    found = name;
  }
  return found;
}

}  // namespace

std::string nearest_name(const std::string& text, const std::vector<std::string>& names) {
  if (text.size() > kLongestText) return {};
  const std::string typed = in_lower_case(text);
  std::string nearest;
  std::size_t fewest = typed.size() / 3 + 1;
  for (const std::string& name : names) {
    const std::size_t errors = typing_errors(typed, in_lower_case(name));
    if (errors >= fewest) continue;
    fewest = errors;
    nearest = name;
  }
  return nearest.empty() ? only_name_with_start(typed, names) : nearest;
}

std::string did_you_mean(const std::string& name) {
  return name.empty() ? "" : "; did you mean " + name + '?';
}

std::string one_of(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) {
    if (!text.empty()) text += &name == &names.back() ? " or " : ", ";
    text += name;
  }
  return text;
}

}  // namespace Korvane::Tool
