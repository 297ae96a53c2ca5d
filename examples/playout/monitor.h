// The host's end: a short playout buffer, and a check of each frame that leaves it.

#ifndef KV_ENGINE_EXAMPLES_PLAYOUT_MONITOR_H
#define KV_ENGINE_EXAMPLES_PLAYOUT_MONITOR_H

#include <array>
#include <deque>
#include <string>
#include <vector>

#include "kv_engine.h"
#include "meters.h"

namespace Playout {

class Monitor : public Korvane::Media::FrameListener {
 public:
  // Frames that follow on each other.
  struct Run {
    Korvane::Timecode first;
    Korvane::Timecode last;
    unsigned int frames;
  };

  struct Faults {
    unsigned int timecodes = 0;  // missing, or not the one after the former
    unsigned int times = 0;      // presented at another time than the frame's
    unsigned int pictures = 0;   // with other colours than 75% bars
    unsigned int samples = 0;    // of another size than their descriptor or duration says
  };

  // Keeps the frame for a while, and plays the oldest one when the buffer is full.
  void frame_received(const Korvane::Media::FramePtr& frame) noexcept override;

  // Plays what is still in the buffer; no handle is left then.
  void play_out();

  const std::vector<Run>& runs() const { return runs_; }
  const Faults& faults() const { return faults_; }
  // What the module calls the signals of the first frame, where it tells.
  const std::vector<std::string>& signals() const { return signals_; }
  const std::array<Rgb, 8>& bars() const { return bars_; }
  const ToneMeter& left() const { return left_; }
  const ToneMeter& right() const { return right_; }

 private:
  void play_oldest();
  void check_timecode(const Korvane::Media::IFrame& frame);
  void check_time(const Korvane::Media::IFrame& frame, const Korvane::Media::MediaSample& sample);
  void check_picture(const Korvane::Media::MediaSample& picture,
                     const Korvane::Media::TrackDescriptor& track);
  void check_sound(const Korvane::Media::MediaSample& sound);

  std::deque<Korvane::Media::FramePtr> buffer_;
  std::vector<Run> runs_;
  std::vector<std::string> signals_;
  Faults faults_;
  std::array<Rgb, 8> bars_{};  // of the last picture
  ToneMeter left_, right_;
};

}  // namespace Playout
#endif  // KV_ENGINE_EXAMPLES_PLAYOUT_MONITOR_H
