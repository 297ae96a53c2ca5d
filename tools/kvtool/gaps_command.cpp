#include "gaps_command.h"

#include <memory>
#include <optional>

#include "failure.h"
#include "gap_report.h"
#include "input.h"
#include "label.h"
#include "line_source.h"
#include "media_inputs.h"
#include "printable.h"
#include "progress.h"

namespace Korvane::Tool {
namespace {

// Media files tell their own rate.
std::optional<Rate> rate_of(const GapsOptions& options) {
  if (!options.rate.empty()) return parse_rate(options.rate, options.drop_frame);
  if (options.input == "media") return std::nullopt;
  throw UsageError("gaps --input " + options.input + " needs --rate (such as --rate 25" +
                   (options.input == "text" ? "; for a media file --input media)" : ")"));
}

std::unique_ptr<TimecodeSource> open_source(const GapsOptions& options, Input& input,
                                            const std::optional<Rate>& rate) {
  if (options.input == "media") return open_media_timecodes(input, rate);
  if (options.input == "ltc") return open_ltc_timecodes(input, rate.value());
  const LineForm form = options.input == "text"   ? LineForm::Label
                        : options.input == "st12" ? LineForm::Word32
                                                  : LineForm::Word64;
  return std::make_unique<LineSource>(input.stream(), input.name(), rate.value(), form,
                                      options.field_mark);
}

class GapFinder {
 public:
  GapFinder(TimecodeSource& source, GapReport& report, Progress& progress, GapTotals& totals)
      : source_(source), report_(report), progress_(progress), totals_(totals) {}

  void read_all() {
    while (std::optional<Entry> entry = source_.next()) {
      if (previous_)
        check(*entry);
      else
        totals_.first = label(entry->value);
      previous_ = entry->value;
      totals_.count += 1 + source_.take_following(*previous_);
      progress_.update(source_.bytes_read(), totals_.count);
    }
    if (previous_) totals_.last = label(*previous_);
  }

 private:
  void check(const Entry& entry) {
    if (entry.frames_on > 1) previous_->add(entry.frames_on - 1);
    // Its text is made for every entry, so it is kept short of a copy of the name.
    position_.resize(name_size_);
    position_ += position_text({}, source_.unit(), entry.position);
    const std::optional<Difference> gap = log_.compare(position_, *previous_, entry.value);
    if (!gap) return;
    ++totals_.gaps;
    progress_.erase();
    report_.gap(source_.unit(), entry.position, *gap);
  }

  TimecodeSource& source_;
  GapReport& report_;
  Progress& progress_;
  GapTotals& totals_;
  DifferenceLog log_;
  std::string position_ = printable_name(totals_.name);
  std::size_t name_size_ = position_.size();
  std::optional<Timecode> previous_;
};

}  // namespace

int run_gaps(const GapsOptions& options, Streams& streams) {
  const std::optional<Rate> rate = rate_of(options);
  Input input(options.file, streams.in);
  const std::unique_ptr<TimecodeSource> source = open_source(options, input, rate);
  std::unique_ptr<GapReport> report;
  if (options.json)
    report = std::make_unique<GapJson>(streams.out);
  else
    report = std::make_unique<GapText>(streams.out, streams.out_ink);

  GapTotals totals{input.name(), options.input, source->frame_rate()};
  Progress progress(streams, input.name(), input.size());
  input.on_read([&] { progress.update(source->bytes_read(), totals.count); });
  GapFinder(*source, *report, progress, totals).read_all();
  progress.erase();
  if (totals.count == 0)
    throw InputError(printable_name(input.name()) + ": no timecode (expected at least one)");
  report->finish(totals);
  return totals.gaps == 0 ? Done : BadInput;
}

}  // namespace Korvane::Tool
