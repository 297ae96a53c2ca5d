// An open media file or stream.

#ifndef KV_TOOLS_KVTOOL_MEDIA_MEDIA_FILE_H
#define KV_TOOLS_KVTOOL_MEDIA_MEDIA_FILE_H

#include <string>

#include "input.h"
#include "media/libav.h"

namespace Korvane::Tool {

class MediaFile {
 public:
  // `input` must outlive it. Raises InputError when it is no media file.
  explicit MediaFile(Input& input);

  AVFormatContext& format() const { return *format_; }

  // For messages.
  const std::string& name() const { return name_; }

  unsigned long long bytes_read() const;

  // The first stream of `type` that is no cover picture. Raises InputError naming `what` when there
  // is none.
  AVStream& first_stream(AVMediaType type, const std::string& what) const;

 private:
  std::string name_;
  LibavPtr<AVIOContext> io_;
  LibavPtr<AVFormatContext> format_;  // closed before the input that it reads
};

bool is_cover_picture(const AVStream& stream);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_MEDIA_MEDIA_FILE_H
