// Walks through the frames of a video stream and hands out the timecodes that they carry.

#ifndef KV_TOOLS_KVTOOL_MEDIA_FRAME_TIMECODES_H
#define KV_TOOLS_KVTOOL_MEDIA_FRAME_TIMECODES_H

#include <deque>
#include <optional>
#include <string>

#include "media/packet_decoder.h"
#include "media/packet_reader.h"
#include "rate.h"
#include "timecode/timecode.h"

namespace Korvane::Tool {

struct FrameTimecode {
  unsigned long long frame;  // counted from 0 in display order
  Timecode value;
};

enum class TimecodeCarrier { Frame, GroupOfPictures };

class FrameTimecodes {
 public:
  // `file` must outlive it. Raises InputError.
  FrameTimecodes(const MediaFile& file, AVStream& stream, const Rate& rate);

  // In the order of the frames; nothing at the end. Raises InputError for what is no timecode.
  std::optional<FrameTimecode> next();

  TimecodeCarrier carrier() const { return carrier_; }

  // All frames once next() has given nothing.
  unsigned long long frames_read() const { return decoder_ ? frames_ : pictures_ - discarded_; }

  // Frames that are in the file but, by its edit list, not part of the programme.
  unsigned long long frames_discarded() const { return discarded_; }

 private:
  // By one frame or packet. Answers whether there was one.
  bool advance();
  void visit_packet(const AVPacket& packet);
  void visit_frame(const AVFrame& frame);

  // What `read` finds for `frame`.
  template <typename Read>
  void add(unsigned long long frame, Read read);

  const std::string& name_;
  Rate rate_;
  TimecodeCarrier carrier_;
  unsigned long long pictures_ = 0;  // in coded order
  unsigned long long frames_ = 0;    // in display order, where they are decoded
  unsigned long long discarded_ = 0;
  std::deque<FrameTimecode> found_;
  std::optional<PacketReader> packets_;   // where packets tell everything,
  std::optional<PacketDecoder> decoder_;  // and elsewhere this
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_FRAME_TIMECODES_H
