// The cameras that a system knows. The values are known to the engine alone; 0 is where none was
// told.

#ifndef KV_ENGINE_MEDIA_CAMERAS_H
#define KV_ENGINE_MEDIA_CAMERAS_H

namespace Korvane {
namespace Media {

enum Cameras : unsigned int {};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_CAMERAS_H
