// Reads one stream of a media file, packet by packet.

#ifndef KV_TOOLS_KVTOOL_MEDIA_PACKET_READER_H
#define KV_TOOLS_KVTOOL_MEDIA_PACKET_READER_H

#include "media/media_file.h"

namespace Korvane::Tool {

class PacketReader {
 public:
  PacketReader(const MediaFile& file, const AVStream& stream);

  // In coded order. Null at the end; otherwise valid until the next call. A packet that the file
  // cuts short is left out.
  const AVPacket* next();

 private:
  const MediaFile& file_;
  int stream_index_;
  LibavPtr<AVPacket> packet_;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_PACKET_READER_H
