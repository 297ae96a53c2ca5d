// A track of pictures. Attributes are absent until they are set, as track_descriptor.h tells;
// colour space and colorimetry are never absent.

#ifndef KV_ENGINE_MEDIA_PICTURE_TRACK_DESCRIPTOR_H
#define KV_ENGINE_MEDIA_PICTURE_TRACK_DESCRIPTOR_H

#include "foundation/export.h"
#include "foundation/rational32.h"
#include "foundation/record_ptr.h"
#include "foundation/virtual_slots.h"
#include "media/colorimetry.h"
#include "media/colorspaces.h"
#include "media/track_descriptor.h"

namespace Korvane {
namespace Media {

struct PictureTrackDescriptorPrivate;

class KV_ENGINE_API PictureTrackDescriptor : public TrackDescriptor {
 public:
  // Every attribute absent, essence kind EssenceNone, colour space and colorimetry 0.
  PictureTrackDescriptor();

  PictureTrackDescriptor(const PictureTrackDescriptor& other);
  PictureTrackDescriptor& operator=(const PictureTrackDescriptor& other);
  ~PictureTrackDescriptor() override;

  TrackDescriptor* clone() const override;

  // Pixels.
  KV_ENGINE_SLOTS(virtual void width(unsigned int value), virtual unsigned int* width() const);

  // Lines of the frame.
  KV_ENGINE_SLOTS(virtual void height(unsigned int value), virtual unsigned int* height() const);

  // Lines of one field. Setting height or interlaced derives it: the height, halved and rounded
  // down when interlaced. Absent until the height is set; every later set of either derives it
  // anew, in a new place.
  virtual unsigned int* field_height() const;

  // Whether a frame is made of two fields.
  KV_ENGINE_SLOTS(virtual void interlaced(bool value), virtual bool* interlaced() const);

  // Of the picture as displayed, not of a pixel: 16/9.
  KV_ENGINE_SLOTS(virtual void aspect_ratio(Rational32 value),
                  virtual Rational32* aspect_ratio() const);

  // Bits per second. Published with a const setter, as are the three that follow: they change the
  // descriptor all the same.
  KV_ENGINE_SLOTS(virtual void bit_rate(unsigned int value) const,
                  virtual unsigned int* bit_rate() const);

  // Bits per component.
  KV_ENGINE_SLOTS(virtual void component_depth(unsigned int value) const,
                  virtual unsigned int* component_depth() const);

  // How raw pixels lie in memory; never absent.
  KV_ENGINE_SLOTS(virtual void colorspace(Colorspaces value) const,
                  virtual Colorspaces colorspace() const);

  // How colours are meant; never absent.
  KV_ENGINE_SLOTS(virtual void colorimetry(Colorimetry value) const,
                  virtual Colorimetry colorimetry() const);

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<PictureTrackDescriptorPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_PICTURE_TRACK_DESCRIPTOR_H
