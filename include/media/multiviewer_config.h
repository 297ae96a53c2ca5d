// Where the picture that a multiviewer composes goes, and its raster. A value: copies are deep and
// independent. Not synchronised. Numbers are kept as given, negative ones too.

#ifndef KV_ENGINE_MEDIA_MULTIVIEWER_CONFIG_H
#define KV_ENGINE_MEDIA_MULTIVIEWER_CONFIG_H

#include "foundation/comparison.h"
#include "foundation/export.h"
#include "foundation/rational32.h"
#include "foundation/record_ptr.h"

namespace Korvane {
namespace Media {

struct MultiviewerConfigPrivate;

class KV_ENGINE_API MultiviewerConfig {
 public:
  // An empty address, port 0, 1920 x 1080 at 0/1, without keeping aspect ratios.
  MultiviewerConfig();

  // Keeps a copy of the address. Raises InvalidArgument "Text must not be null".
  MultiviewerConfig(const wchar_t* server_address, int port, int width, int height,
                    Rational32 edit_rate, bool keep_aspect_ratio);

  MultiviewerConfig(const MultiviewerConfig& other);
  MultiviewerConfig& operator=(const MultiviewerConfig& other);
  virtual ~MultiviewerConfig();

  // Of the endpoint that receives the picture. Valid until the object is assigned to or ends.
  const wchar_t* server_address() const;

  // Of the same endpoint; any number is kept.
  int port() const;

  // Of the composed picture, in pixels.
  int width() const;
  int height() const;

  // Whether tiles keep the aspect ratio of their channel when they are scaled.
  bool keep_aspect_ratio() const;

  // Composed pictures per second. Published without const.
  Rational32 edit_rate();

  // Whether all fields are equal: the address code unit by code unit, the edit rate field by field,
  // so that 50/2 differs from 25/1. Published without const.
  bool operator==(const MultiviewerConfig& other);
  bool operator!=(const MultiviewerConfig& other);

  // For C++20, which finds the operator ambiguous between two objects that may be changed.
  template <typename Left, typename Right>
  friend Detail::Equality<MultiviewerConfig, Left, Right> operator==(Left&& left, Right&& right) {
    return left.operator==(right);
  }

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<MultiviewerConfigPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_MULTIVIEWER_CONFIG_H
