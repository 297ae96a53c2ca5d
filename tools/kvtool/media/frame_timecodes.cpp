#include "media/frame_timecodes.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <span>

#include "core/exception.h"
#include "failure.h"
#include "media/gop_header.h"

namespace Korvane::Tool {
namespace {

bool is_mpeg(AVCodecID codec) {
  return codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO;
}

// A packet of these is a frame, and no timecode stands in what only a decoder understands. All
// others are decoded: H.264 and HEVC carry timecodes in what they code, others may.
constexpr AVCodecID kToldByPackets[] = {
    AV_CODEC_ID_DNXHD,      AV_CODEC_ID_DVVIDEO, AV_CODEC_ID_JPEG2000, AV_CODEC_ID_MPEG1VIDEO,
    AV_CODEC_ID_MPEG2VIDEO, AV_CODEC_ID_PRORES,  AV_CODEC_ID_RAWVIDEO, AV_CODEC_ID_V210};

bool is_told_by_packets(AVCodecID codec) {
  return std::find(std::begin(kToldByPackets), std::end(kToldByPackets), codec) !=
         std::end(kToldByPackets);
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

std::optional<Timecode> timecode_of(const std::optional<unsigned int>& word, unsigned short rate) {
  if (!word) return std::nullopt;
  return Timecode(rate, *word);
}

std::optional<Timecode> timecode_of(const std::optional<GopTimecode>& gop, unsigned short rate) {
  if (!gop) return std::nullopt;
  const bool pairs = rate == 50 || rate == 60;
  const auto frames = static_cast<unsigned char>(pairs ? gop->pictures / 2 : gop->pictures);
  const bool second = pairs && gop->pictures % 2 != 0;
  return Timecode(rate, gop->hours, gop->minutes, gop->seconds, frames, gop->drop_frame, second);
}

}  // namespace

FrameTimecodes::FrameTimecodes(const MediaFile& file, AVStream& stream, const Rate& rate)
    : name_(file.name()),
      rate_(rate),
      carrier_(is_mpeg(stream.codecpar->codec_id) ? TimecodeCarrier::GroupOfPictures
                                                  : TimecodeCarrier::Frame) {
  if (is_told_by_packets(stream.codecpar->codec_id))
    packets_.emplace(file, stream);
  else
    decoder_.emplace(file, stream, [this](const AVPacket& packet) { visit_packet(packet); });
}

std::optional<FrameTimecode> FrameTimecodes::next() {
  while (found_.empty())
    if (!advance()) return std::nullopt;
  FrameTimecode first = found_.front();
  found_.pop_front();
  return first;
}

bool FrameTimecodes::advance() {
  if (decoder_) {
    const AVFrame* const frame = decoder_->next();
    if (frame != nullptr) visit_frame(*frame);
    return frame != nullptr;
  }
  const AVPacket* const packet = packets_->next();
  if (packet != nullptr) visit_packet(*packet);
  return packet != nullptr;
}

// The header's timecode is that of the group's first picture in display order. All earlier groups
// are displayed before it, so its place there is the place of the header in coded order. (The
// decoder puts it on whatever frame it gives out next.)
void FrameTimecodes::visit_packet(const AVPacket& packet) {
  if (carrier_ == TimecodeCarrier::GroupOfPictures)
    add(pictures_, [&] {
      const auto size = static_cast<std::size_t>(packet.size);
      return timecode_of(find_gop_timecode({packet.data, size}), rate_.nominal);
    });
  ++pictures_;
  if ((packet.flags & AV_PKT_FLAG_DISCARD) != 0) ++discarded_;
}

void FrameTimecodes::visit_frame(const AVFrame& frame) {
  add(frames_, [&] { return timecode_of(find_word(frame), rate_.nominal); });
  ++frames_;
}

template <typename Read>
void FrameTimecodes::add(unsigned long long frame, Read read) {
  try {
    if (const std::optional<Timecode> timecode = read()) found_.push_back({frame, *timecode});
  } catch (const Exception& error) {
    throw InputError(name_ + ": frame " + std::to_string(frame) + " carries no valid timecode (" +
                     error.message() + ')');
  }
}

}  // namespace Korvane::Tool
