#include "media/camera_info.h"

#include <string>

#include "foundation/required_text.h"

namespace Korvane::Media {

struct CameraInfoPrivate {
  Cameras camera{};
  CameraState state{};
  bool recording = false;
  std::string clip_name;
};

CameraInfo::CameraInfo() : private_(new CameraInfoPrivate) {}

CameraInfo::CameraInfo(Cameras camera) : CameraInfo(camera, CameraState{}) {}

CameraInfo::CameraInfo(Cameras camera, CameraState state) : CameraInfo(camera, state, false, "") {}

CameraInfo::CameraInfo(Cameras camera, CameraState state, bool recording, const char* clip_name)
    : private_(new CameraInfoPrivate{camera, state, recording, required_text(clip_name)}) {}

CameraInfo::CameraInfo(const CameraInfo& other) = default;

CameraInfo& CameraInfo::operator=(const CameraInfo& other) = default;

CameraInfo::~CameraInfo() = default;

Cameras CameraInfo::camera() { return private_->camera; }

CameraState CameraInfo::state() { return private_->state; }
void CameraInfo::state(CameraState value) { private_->state = value; }

bool CameraInfo::recording() const { return private_->recording; }
void CameraInfo::recording(bool value) { private_->recording = value; }

const char* CameraInfo::clip_name() const { return private_->clip_name.c_str(); }
void CameraInfo::clip_name(const char* value) { private_->clip_name = required_text(value); }

void CameraInfo::update_info(CameraState state, bool recording, const char* clip_name) {
  private_->clip_name = required_text(clip_name);  // first, since only this can fail
  private_->state = state;
  private_->recording = recording;
}

bool CameraInfo::operator==(const CameraInfo& other) const {
  const CameraInfoPrivate& mine = *private_;
  const CameraInfoPrivate& theirs = *other.private_;
  return mine.camera == theirs.camera && mine.state == theirs.state &&
         mine.recording == theirs.recording && mine.clip_name == theirs.clip_name;
}

bool CameraInfo::operator!=(const CameraInfo& other) const { return !operator==(other); }

}  // namespace Korvane::Media
