#include "media/frame_timecodes.h"

#include <cstring>
#include <span>

#include "core/exception.h"
#include "failure.h"
#include "media/gop_header.h"

namespace Korvane::Tool {
namespace {

TimecodeCarrier carrier_of(const AVStream& stream) {
  const AVCodecID codec = stream.codecpar->codec_id;
  const bool mpeg = codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO;
  return mpeg ? TimecodeCarrier::GroupOfPictures : TimecodeCarrier::Frame;
}

// The data are the number of words and the words; their bytes stand the other way round than in
// the library's.
std::optional<unsigned int> find_word(const AVFrame& frame) {
  const AVFrameSideData* const data = av_frame_get_side_data(&frame, AV_FRAME_DATA_S12M_TIMECODE);
  std::uint32_t words[2] = {};
  if (data == nullptr || data->size < sizeof words) return std::nullopt;
  std::memcpy(words, data->data, sizeof words);
  if (words[0] == 0) return std::nullopt;
  const std::uint32_t word = words[1];
  return word >> 24U | (word >> 8U & 0xFF00U) | (word << 8U & 0xFF0000U) | word << 24U;
}

Timecode timecode_of(const GopTimecode& gop, unsigned short rate) {
  const bool pairs = rate == 50 || rate == 60;
  const auto frames = static_cast<unsigned char>(pairs ? gop.pictures / 2 : gop.pictures);
  const bool second = pairs && gop.pictures % 2 != 0;
  return Timecode(rate, gop.hours, gop.minutes, gop.seconds, frames, gop.drop_frame, second);
}

[[noreturn]] void refuse(const std::string& name, unsigned long long frame,
                         const Exception& error) {
  throw InputError(name + ": frame " + std::to_string(frame) + " carries no valid timecode (" +
                   error.message() + ')');
}

}  // namespace

FrameTimecodes::FrameTimecodes(const MediaFile& file, AVStream& stream, const Rate& rate)
    : name_(file.name()),
      rate_(rate),
      carrier_(carrier_of(stream)),
      decoder_(file, stream, [this](const AVPacket& packet) { visit_packet(packet); }) {}

std::optional<FrameTimecode> FrameTimecodes::next() {
  while (found_.empty()) {
    const AVFrame* const frame = decoder_.next();
    if (frame == nullptr) break;
    visit_frame(*frame);
  }
  if (found_.empty()) return std::nullopt;
  FrameTimecode first = found_.front();
  found_.pop_front();
  return first;
}

// The header's timecode is that of the group's first picture in display order. All earlier groups
// are displayed before it, so its place there is the place of the header in coded order. (The
// decoder puts it on whatever frame it gives out next.)
void FrameTimecodes::visit_packet(const AVPacket& packet) {
  if (carrier_ == TimecodeCarrier::GroupOfPictures) {
    const auto size = static_cast<std::size_t>(packet.size);
    try {
      if (const std::optional<GopTimecode> gop = find_gop_timecode({packet.data, size}))
        found_.push_back({pictures_, timecode_of(*gop, rate_.nominal)});
    } catch (const Exception& error) {
      refuse(name_, pictures_, error);
    }
  }
  ++pictures_;
  if ((packet.flags & AV_PKT_FLAG_DISCARD) != 0) ++discarded_;
}

void FrameTimecodes::visit_frame(const AVFrame& frame) {
  if (carrier_ == TimecodeCarrier::Frame) {
    try {
      if (const std::optional<unsigned int> word = find_word(frame))
        found_.push_back({frames_, Timecode(rate_.nominal, *word)});
    } catch (const Exception& error) {
      refuse(name_, frames_, error);
    }
  }
  ++frames_;
}

}  // namespace Korvane::Tool
