#include "media/multiviewer_source.h"

#include <string>

#include "foundation/required_text.h"

namespace Korvane::Media {

struct MultiviewerSourcePrivate {
  int id;
  std::wstring channel_id;
  int width;
  int height;
  int x_offset;
  int y_offset;
  bool use_audio;
};

MultiviewerSource::MultiviewerSource(int id, const wchar_t* channel_id, int width, int height,
                                     int x_offset, int y_offset, bool use_audio)
    : private_(new MultiviewerSourcePrivate{id, required_text(channel_id), width, height, x_offset,
                                            y_offset, use_audio}) {}

MultiviewerSource::MultiviewerSource(const MultiviewerSource& other) = default;

MultiviewerSource& MultiviewerSource::operator=(const MultiviewerSource& other) = default;

MultiviewerSource::~MultiviewerSource() = default;

int MultiviewerSource::id() const { return private_->id; }

const wchar_t* MultiviewerSource::channel_id() const { return private_->channel_id.c_str(); }

int MultiviewerSource::width() const { return private_->width; }

int MultiviewerSource::height() const { return private_->height; }

int MultiviewerSource::x_offset() const { return private_->x_offset; }

int MultiviewerSource::y_offset() const { return private_->y_offset; }

bool MultiviewerSource::use_audio() const { return private_->use_audio; }

bool MultiviewerSource::operator==(const MultiviewerSource& other) {
  const MultiviewerSourcePrivate& mine = *private_;
  const MultiviewerSourcePrivate& theirs = *other.private_;
  return mine.id == theirs.id && mine.channel_id == theirs.channel_id &&
         mine.width == theirs.width && mine.height == theirs.height &&
         mine.x_offset == theirs.x_offset && mine.y_offset == theirs.y_offset &&
         mine.use_audio == theirs.use_audio;
}

bool MultiviewerSource::operator!=(const MultiviewerSource& other) { return !operator==(other); }

}  // namespace Korvane::Media
