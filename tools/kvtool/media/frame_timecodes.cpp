#include "media/frame_timecodes.h"

#include <cstring>
#include <span>

#include "core/exception.h"
#include "failure.h"
#include "media/gop_header.h"

namespace Korvane::Tool {
namespace {

bool is_mpeg(AVCodecID codec) {
  return codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO;
}

// A packet is a frame there, and no timecode stands in what only a decoder understands.
bool tells_by_packets(AVCodecID codec) {
  const AVCodecDescriptor* const descriptor = avcodec_descriptor_get(codec);
  const bool intra_only =
      descriptor != nullptr && (descriptor->props & AV_CODEC_PROP_INTRA_ONLY) != 0;
  return is_mpeg(codec) || intra_only;
}

// The data are the number of words and the words; their bytes stand the other way round than in
// the library's.
std::optional<unsigned int> first_word(const std::uint8_t* data, std::size_t size) {
  std::uint32_t words[2] = {};
  if (data == nullptr || size < sizeof words) return std::nullopt;
  std::memcpy(words, data, sizeof words);
  if (words[0] == 0) return std::nullopt;
  const std::uint32_t word = words[1];
  return word >> 24U | (word >> 8U & 0xFF00U) | (word << 8U & 0xFF0000U) | word << 24U;
}

std::optional<unsigned int> find_word(const AVFrame& frame) {
  const AVFrameSideData* const data = av_frame_get_side_data(&frame, AV_FRAME_DATA_S12M_TIMECODE);
  return data != nullptr ? first_word(data->data, data->size) : std::nullopt;
}

std::optional<unsigned int> find_word(const AVPacket& packet) {
  std::size_t size = 0;
  const std::uint8_t* const data =
      av_packet_get_side_data(&packet, AV_PKT_DATA_S12M_TIMECODE, &size);
  return first_word(data, size);
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
  if (tells_by_packets(stream.codecpar->codec_id))
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

// By one frame or packet. Answers whether there was one.
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
std::optional<Timecode> FrameTimecodes::timecode_in(const AVPacket& packet) const {
  if (carrier_ == TimecodeCarrier::Frame) return timecode_of(find_word(packet), rate_.nominal);
  const auto size = static_cast<std::size_t>(packet.size);
  return timecode_of(find_gop_timecode({packet.data, size}), rate_.nominal);
}

void FrameTimecodes::visit_packet(const AVPacket& packet) {
  if (packets_) add(pictures_, [&] { return timecode_in(packet); });
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
