// What a camera is doing. The values are known to the engine alone; 0 is where none was told.

#ifndef KV_ENGINE_MEDIA_CAMERA_STATE_H
#define KV_ENGINE_MEDIA_CAMERA_STATE_H

namespace Korvane {
namespace Media {

enum CameraState : unsigned int {};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_CAMERA_STATE_H
