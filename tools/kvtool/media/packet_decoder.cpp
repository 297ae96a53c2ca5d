#include "media/packet_decoder.h"

#include <utility>

#include "failure.h"

namespace Korvane::Tool {
namespace {

// Every picture counts, also one that lacks its references, and nobody looks at it.
void decode_roughly(AVCodecContext& codec) {
  codec.flags |= AV_CODEC_FLAG_OUTPUT_CORRUPT;
  codec.flags2 |= AV_CODEC_FLAG2_SHOW_ALL;
  codec.skip_loop_filter = AVDISCARD_ALL;
  codec.skip_idct = AVDISCARD_ALL;
}

}  // namespace

PacketDecoder::PacketDecoder(const MediaFile& file, const AVStream& stream, PacketVisitor visit)
    : packets_(file, stream), visit_(std::move(visit)), frame_(required(av_frame_alloc())) {
  const AVCodecParameters& parameters = *stream.codecpar;
  const AVCodec* const decoder = avcodec_find_decoder(parameters.codec_id);
  codec_ = required(avcodec_alloc_context3(decoder));
  codec_->pkt_timebase = stream.time_base;
  decode_roughly(*codec_);
  if (decoder == nullptr || avcodec_parameters_to_context(codec_.get(), &parameters) < 0 ||
      avcodec_open2(codec_.get(), decoder, nullptr) < 0)
    throw InputError(file.name() + ": stream " + std::to_string(stream.index) +
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

// One packet of the stream, or the end.
void PacketDecoder::feed() {
  const AVPacket* const packet = packets_.next();
  if (packet != nullptr && visit_) visit_(*packet);
  avcodec_send_packet(codec_.get(), packet);
}

}  // namespace Korvane::Tool
