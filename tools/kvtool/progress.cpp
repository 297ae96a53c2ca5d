#include "progress.h"

#include <algorithm>

#include "printable.h"

namespace Korvane::Tool {
namespace {

constexpr std::chrono::milliseconds kFirstDraw(1000);
constexpr std::chrono::milliseconds kBetweenDraws(100);

}  // namespace

Progress::Progress(Streams& streams, const std::string& name,
                   std::optional<unsigned long long> total)
    : streams_(streams),
      name_(printable_name(name)),
      total_(total),
      next_draw_(streams.now() + kFirstDraw) {}

Progress::~Progress() { erase(); }

std::string Progress::text(unsigned long long bytes, unsigned long long count) const {
  const std::string start = "kvtool: " + name_ + ' ';
  if (!total_ || *total_ == 0) return start + std::to_string(count) + " timecodes";
  constexpr unsigned long long kWidth = 30;
  const double share = std::min(1.0, static_cast<double>(bytes) / static_cast<double>(*total_));
  const auto filled = static_cast<std::size_t>(share * static_cast<double>(kWidth));
  return start + '[' + std::string(filled, '#') + std::string(kWidth - filled, '.') + "] " +
         std::to_string(static_cast<int>(share * 100)) + '%';
}

void Progress::update(unsigned long long bytes, unsigned long long count) {
  if (!streams_.err_is_terminal) return;
  const Time now = streams_.now();
  if (now < next_draw_) return;
  next_draw_ = now + kBetweenDraws;
  const std::string line = text(bytes, count);
  erase();
  streams_.err << line << std::flush;
  drawn_ = line.size();
}

void Progress::erase() {
  if (drawn_ == 0) return;
  streams_.err << '\r' << std::string(drawn_, ' ') << '\r' << std::flush;
  drawn_ = 0;
}

}  // namespace Korvane::Tool
