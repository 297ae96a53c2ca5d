// Reads one stream of a media file, frame by frame.

#ifndef KV_TOOLS_KVTOOL_MEDIA_PACKET_DECODER_H
#define KV_TOOLS_KVTOOL_MEDIA_PACKET_DECODER_H

#include <functional>

#include "media/packet_reader.h"

namespace Korvane::Tool {

class PacketDecoder {
 public:
  using PacketVisitor = std::function<void(const AVPacket&)>;

  // `visit` sees every packet before it is decoded. Raises InputError when there is no decoder.
  PacketDecoder(const MediaFile& file, const AVStream& stream, PacketVisitor visit = nullptr);

  // In display order. Null at the end; otherwise valid until the next call. What cannot be decoded
  // is left out.
  const AVFrame* next();

 private:
  void feed();

  PacketReader packets_;
  PacketVisitor visit_;
  LibavPtr<AVCodecContext> codec_;
  LibavPtr<AVFrame> frame_;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_PACKET_DECODER_H
