#include "media/packet_decoder.h"

#include <new>
#include <utility>

#include "failure.h"

namespace Korvane::Tool {
namespace {

template <typename Object>
LibavPtr<Object> required(Object* object) {
  if (object == nullptr) throw std::bad_alloc();
  return LibavPtr<Object>(object);
}

// Every picture counts, also one that lacks its references, and nobody looks at it.
void decode_roughly(AVCodecContext& codec) {
  codec.flags |= AV_CODEC_FLAG_OUTPUT_CORRUPT;
  codec.flags2 |= AV_CODEC_FLAG2_SHOW_ALL;
  codec.skip_loop_filter = AVDISCARD_ALL;
  codec.skip_idct = AVDISCARD_ALL;
}

}  // namespace

PacketDecoder::PacketDecoder(const MediaFile& file, const AVStream& stream, PacketVisitor visit)
    : file_(file),
      stream_index_(stream.index),
      visit_(std::move(visit)),
      packet_(required(av_packet_alloc())),
      frame_(required(av_frame_alloc())) {
  const AVCodecParameters& parameters = *stream.codecpar;
  const AVCodec* const decoder = avcodec_find_decoder(parameters.codec_id);
  codec_ = required(avcodec_alloc_context3(decoder));
  codec_->pkt_timebase = stream.time_base;
  decode_roughly(*codec_);
  if (decoder == nullptr || avcodec_parameters_to_context(codec_.get(), &parameters) < 0 ||
      avcodec_open2(codec_.get(), decoder, nullptr) < 0)
    throw InputError(file.name() + ": stream " + std::to_string(stream_index_) +
                     " cannot be decoded (its codec is " + avcodec_get_name(parameters.codec_id) +
                     ')');
}

const AVFrame* PacketDecoder::next() {
  while (true) {
    const int result = avcodec_receive_frame(codec_.get(), frame_.get());
    if (result == 0) return frame_.get();
    if (result == AVERROR_EOF) return nullptr;
    feed();
  }
}

// One packet of the stream, or the end. A packet that the file cuts short is left out.
void PacketDecoder::feed() {
  while (av_read_frame(&file_.format(), packet_.get()) >= 0) {
    const bool wanted =
        packet_->stream_index == stream_index_ && (packet_->flags & AV_PKT_FLAG_CORRUPT) == 0;
    if (wanted) {
      if (visit_) visit_(*packet_);
      avcodec_send_packet(codec_.get(), packet_.get());
    }
    av_packet_unref(packet_.get());
    if (wanted) return;
  }
  avcodec_send_packet(codec_.get(), nullptr);
}

}  // namespace Korvane::Tool
