// What one camera reports: its state, whether it records, and into which clip. A value: copies are
// deep and independent. Not synchronised. Without memory for a text the object stays as it was.

#ifndef KV_ENGINE_MEDIA_CAMERA_INFO_H
#define KV_ENGINE_MEDIA_CAMERA_INFO_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "media/camera_state.h"
#include "media/cameras.h"

namespace Korvane {
namespace Media {

struct CameraInfoPrivate;

class KV_ENGINE_API CameraInfo {
 public:
  // What is not given is 0: camera and state 0, not recording, an empty clip name. Each operation
  // that takes a clip name keeps a copy and raises InvalidArgument "Text must not be null".
  CameraInfo();
  CameraInfo(Cameras camera);
  CameraInfo(Cameras camera, CameraState state);
  CameraInfo(Cameras camera, CameraState state, bool recording, const char* clip_name);

  CameraInfo(const CameraInfo& other);
  CameraInfo& operator=(const CameraInfo& other);
  ~CameraInfo();

  // As given at construction. Published without const.
  Cameras camera();

  // The getter is published without const.
  CameraState state();
  void state(CameraState value);

  // Whether the camera records now.
  bool recording() const;
  void recording(bool value);

  // Of the clip that is being recorded. Valid until the name is set again, the object is assigned
  // to or ends.
  const char* clip_name() const;
  void clip_name(const char* value);

  // All that changes, at once.
  void update_info(CameraState state, bool recording, const char* clip_name);

  // Whether all fields are equal, the clip name byte by byte.
  bool operator==(const CameraInfo& other) const;
  bool operator!=(const CameraInfo& other) const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<CameraInfoPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_CAMERA_INFO_H
