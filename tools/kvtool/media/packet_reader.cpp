#include "media/packet_reader.h"

namespace Korvane::Tool {

PacketReader::PacketReader(const MediaFile& file, const AVStream& stream)
    : file_(file), stream_index_(stream.index), packet_(required(av_packet_alloc())) {}

const AVPacket* PacketReader::next() {
  av_packet_unref(packet_.get());
  while (av_read_frame(&file_.format(), packet_.get()) >= 0) {
    if (packet_->stream_index == stream_index_ && (packet_->flags & AV_PKT_FLAG_CORRUPT) == 0)
      return packet_.get();
    av_packet_unref(packet_.get());
  }
  return nullptr;
}

}  // namespace Korvane::Tool
