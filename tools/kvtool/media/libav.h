// The C headers, and owners for what they allocate.

#ifndef KV_TOOLS_KVTOOL_MEDIA_LIBAV_H
#define KV_TOOLS_KVTOOL_MEDIA_LIBAV_H

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/error.h>
#include <libavutil/frame.h>
#include <libavutil/log.h>
#include <libavutil/mem.h>
}

#include <memory>
#include <new>
#include <string>

namespace Korvane::Tool {

struct LibavDeleter {
  void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
  void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
  void operator()(AVPacket* packet) const { av_packet_free(&packet); }
  void operator()(AVFrame* frame) const { av_frame_free(&frame); }
  void operator()(AVIOContext* io) const {
    av_freep(&io->buffer);
    avio_context_free(&io);
  }
};

template <typename Object>
using LibavPtr = std::unique_ptr<Object, LibavDeleter>;

// What av_..._alloc() gave. Raises std::bad_alloc when that is nothing.
template <typename Object>
LibavPtr<Object> required(Object* object) {
  if (object == nullptr) throw std::bad_alloc();
  return LibavPtr<Object>(object);
}

inline std::string libav_reason(int error) {
  char text[AV_ERROR_MAX_STRING_SIZE] = {};
  av_strerror(error, text, sizeof text);
  return text;
}

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_LIBAV_H
