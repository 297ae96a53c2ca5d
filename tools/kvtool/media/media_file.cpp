#include "media/media_file.h"

#include <algorithm>
#include <cstring>
#include <span>

#include "failure.h"
#include "printable.h"

namespace Korvane::Tool {
namespace {

constexpr int kBlockSize = 65536;

int read_block(void* context, std::uint8_t* block, int size) {
  Input& input = *static_cast<Input*>(context);
  input.tell_read();
  std::istream& in = input.stream();
  in.read(reinterpret_cast<char*>(block), size);
  return in.gcount() > 0 ? static_cast<int>(in.gcount()) : AVERROR_EOF;
}

std::int64_t seek(void* context, std::int64_t offset, int whence) {
  std::istream& in = static_cast<Input*>(context)->stream();
  in.clear();
  const std::istream::pos_type here = in.tellg();
  switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE: {
      in.seekg(0, std::ios::end);
      const std::int64_t size = in.tellg();
      in.seekg(here);
      return size;
    }
    case SEEK_SET:
      in.seekg(offset, std::ios::beg);
      break;
    case SEEK_CUR:
      in.seekg(offset, std::ios::cur);
      break;
    case SEEK_END:
      in.seekg(offset, std::ios::end);
      break;
    default:
      return AVERROR(EINVAL);
  }
  return in ? static_cast<std::int64_t>(in.tellg()) : AVERROR(EIO);
}

LibavPtr<AVIOContext> open_io(Input& input) {
  auto* const block = static_cast<unsigned char*>(av_malloc(kBlockSize));
  if (block == nullptr) throw std::bad_alloc();
  LibavPtr<AVIOContext> io(avio_alloc_context(block, kBlockSize, 0, &input, read_block, nullptr,
                                              input.size() ? seek : nullptr));
  if (io == nullptr) {
    av_free(block);
    throw std::bad_alloc();
  }
  return io;
}

// Plain text passes for a recording of a text terminal.
bool is_text(const AVFormatContext& format) {
  return std::strcmp(format.iformat->name, "tty") == 0;
}

}  // namespace

MediaFile::MediaFile(Input& input) : name_(printable_name(input.name())), io_(open_io(input)) {
  av_log_set_level(AV_LOG_QUIET);
  AVFormatContext* format = avformat_alloc_context();
  if (format == nullptr) throw std::bad_alloc();
  format->pb = io_.get();
  // A playlist must not make the tool open other files or hosts.
  format->protocol_whitelist = av_strdup("");
  int error = avformat_open_input(&format, input.path().c_str(), nullptr, nullptr);
  format_.reset(format);  // null after a failure
  if (error >= 0) error = avformat_find_stream_info(format, nullptr);
  if (error >= 0 && is_text(*format)) error = AVERROR_INVALIDDATA;
  if (error < 0) throw InputError(name_ + ": " + libav_reason(error) + " (expected a media file)");
}

unsigned long long MediaFile::bytes_read() const {
  return static_cast<unsigned long long>(std::max<std::int64_t>(0, io_->bytes_read));
}

AVStream& MediaFile::first_stream(AVMediaType type, const std::string& what) const {
  for (AVStream* const stream : std::span(format_->streams, format_->nb_streams))
    if (stream->codecpar->codec_type == type && !is_cover_picture(*stream)) return *stream;
  throw InputError(name_ + ": no " + what + " stream (expected a media file with " + what + ')');
}

bool is_cover_picture(const AVStream& stream) {
  return (stream.disposition & AV_DISPOSITION_ATTACHED_PIC) != 0;
}

}  // namespace Korvane::Tool
