// One tile of a multiviewer: which channel it shows, where and how large. A value: copies are deep
// and independent. Not synchronised. Numbers are kept as given, negative ones too.

#ifndef KV_ENGINE_MEDIA_MULTIVIEWER_SOURCE_H
#define KV_ENGINE_MEDIA_MULTIVIEWER_SOURCE_H

#include "foundation/comparison.h"
#include "foundation/export.h"
#include "foundation/record_ptr.h"

namespace Korvane {
namespace Media {

struct MultiviewerSourcePrivate;

class KV_ENGINE_API MultiviewerSource {
 public:
  // Keeps a copy of the channel's identifier. Raises InvalidArgument "Text must not be null".
  MultiviewerSource(int id, const wchar_t* channel_id, int width, int height, int x_offset,
                    int y_offset, bool use_audio);

  MultiviewerSource(const MultiviewerSource& other);
  MultiviewerSource& operator=(const MultiviewerSource& other);
  virtual ~MultiviewerSource();

  // Of the tile.
  int id() const;

  // Of the channel that the tile shows. Valid until the object is assigned to or ends.
  const wchar_t* channel_id() const;

  // Of the tile, in pixels.
  int width() const;
  int height() const;

  // The left and top edge of the tile in the composed picture, in pixels.
  int x_offset() const;
  int y_offset() const;

  // Whether the channel contributes its audio.
  bool use_audio() const;

  // Whether all fields are equal, the channel code unit by code unit. Published without const.
  bool operator==(const MultiviewerSource& other);
  bool operator!=(const MultiviewerSource& other);

  // For C++20, which finds the operator ambiguous between two objects that may be changed.
  template <typename Left, typename Right>
  friend Detail::Equality<MultiviewerSource, Left, Right> operator==(Left&& left, Right&& right) {
    return left.operator==(right);
  }

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<MultiviewerSourcePrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_MULTIVIEWER_SOURCE_H
