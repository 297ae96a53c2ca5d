#include <ltc.h>

#include <algorithm>
#include <memory>
#include <new>
#include <vector>

#include "core/exception.h"
#include "failure.h"
#include "media/audio_samples.h"
#include "media/packet_decoder.h"
#include "media_inputs.h"

namespace Korvane::Tool {
namespace {

// A block holds fewer timecodes than the queue: one has at least 80 changes of the signal.
constexpr std::size_t kBlock = 1024;
constexpr int kQueue = 32;

struct LtcDeleter {
  void operator()(LTCDecoder* decoder) const { ltc_decoder_free(decoder); }
};

class LtcSource : public TimecodeSource {
 public:
  LtcSource(Input& input, const Rate& rate)
      : rate_(rate),
        file_(input),
        stream_(file_.first_stream(AVMEDIA_TYPE_AUDIO, "audio")),
        decoder_(file_, stream_),
        ltc_(ltc_decoder_create(stream_.codecpar->sample_rate / rate.nominal, kQueue)) {
    if (ltc_ == nullptr) throw std::bad_alloc();
  }

  std::optional<Entry> next() override {
    LTCFrameExt found;
    while (ltc_decoder_read(ltc_.get(), &found) == 0)
      if (!write_block()) return std::nullopt;
    return entry_of(found);
  }

  unsigned short frame_rate() const override { return rate_.nominal; }
  const char* unit() const override { return "sample"; }
  unsigned long long bytes_read() const override { return file_.bytes_read(); }

 private:
  // False at the end of the audio.
  bool write_block() {
    if (written_ == samples_.size() && !read_samples()) return false;
    const std::size_t size = std::min(kBlock, samples_.size() - written_);
    ltc_decoder_write_float(ltc_.get(), samples_.data() + written_, size, position_);
    written_ += size;
    position_ += static_cast<ltc_off_t>(size);
    return true;
  }

  bool read_samples() {
    const AVFrame* const frame = decoder_.next();
    if (frame == nullptr) return false;
    written_ = 0;
    if (!first_channel(*frame, samples_))
      throw InputError(file_.name() + ": audio samples of an unknown kind (expected PCM)");
    return true;
  }

  Entry entry_of(LTCFrameExt& found) const {
    const auto position = static_cast<unsigned long long>(std::max<ltc_off_t>(0, found.off_start));
    const std::string place = position_text(file_.name(), unit(), position) + ": ";
    if (found.reverse != 0)
      throw InputError(place + "longitudinal timecode runs in reverse (expected forward play)");
    SMPTETimecode time;
    ltc_frame_to_time(&time, &found.ltc, 0);
    try {
      return {Timecode(rate_.nominal, time.hours, time.mins, time.secs, time.frame,
                       found.ltc.dfbit != 0, false),
              position};
    } catch (const Exception& error) {
      throw InputError(place + "no timecode at rate " + std::to_string(rate_.nominal) + " (" +
                       error.message() + ')');
    }
  }

  Rate rate_;
  MediaFile file_;
  AVStream& stream_;
  PacketDecoder decoder_;
  std::unique_ptr<LTCDecoder, LtcDeleter> ltc_;
  std::vector<float> samples_;
  std::size_t written_ = 0;  // of samples_
  ltc_off_t position_ = 0;
};

}  // namespace

std::unique_ptr<TimecodeSource> open_ltc_timecodes(Input& input, const Rate& rate) {
  if (rate.nominal > 30)
    throw UsageError("longitudinal timecode has no rate " + std::to_string(rate.nominal) +
                     " (expected 24, 25 or 30)");
  return std::make_unique<LtcSource>(input, rate);
}

}  // namespace Korvane::Tool
