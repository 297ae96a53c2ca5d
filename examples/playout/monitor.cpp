#include "monitor.h"

#include <cstddef>
#include <cstdlib>

namespace Playout {
namespace {

using Korvane::Rational32;
using Korvane::Timecode;
using Korvane::Media::FramePtr;
using Korvane::Media::IFrame;
using Korvane::Media::MediaSample;
using Korvane::Media::TrackDescriptor;

constexpr std::size_t kBufferedFrames = 12;

// clang-format off
constexpr std::array<Rgb, 8> kBars = {{
    {75, 75, 75}, {75, 75, 0}, {0, 75, 75}, {0, 75, 0},
    {75, 0, 75}, {75, 0, 0}, {0, 0, 75}, {0, 0, 0},
}};
// clang-format on

unsigned int number_under(const TrackDescriptor& track, const char* key) {
  const char* const text = track.get_key_value(key);
  return text != nullptr ? static_cast<unsigned int>(std::strtoul(text, nullptr, 10)) : 0;
}

// What an extended sample tells of its signal; null for the others.
const char* signal_of(const MediaSample& sample) {
  const auto* const extended = dynamic_cast<const Korvane::Media::ExtendedMediaSample*>(&sample);
  return extended != nullptr ? extended->property("signal") : nullptr;
}

// A sample of 16-bit PCM, low byte first, in parts of full scale.
double pcm16(const unsigned char* bytes) {
  const int value = bytes[0] | bytes[1] << 8;
  return (value < 32768 ? value : value - 65536) / 32768.0;
}

}  // namespace

// No exception may leave a listener: where memory ran out, the process ends.
void Monitor::frame_received(const FramePtr& frame) noexcept {
  buffer_.push_back(frame);
  if (buffer_.size() > kBufferedFrames) play_oldest();
}

void Monitor::play_out() {
  while (!buffer_.empty()) play_oldest();
}

void Monitor::play_oldest() {
  const FramePtr frame = buffer_.front();
  buffer_.pop_front();
  check_timecode(*frame.get());
  for (Korvane::size_t i = 0; i < frame->sample_count(); ++i) {
    const Korvane::Media::MediaSampleSharedPtr sample = frame->sample_at(i);
    const char* const signal = frame->number() == 0 ? signal_of(*sample.get()) : nullptr;
    if (signal != nullptr) signals_.emplace_back(signal);
    check_time(*frame.get(), *sample.get());
    if (sample->essence_kind() == Korvane::Media::EssencePcm)
      check_sound(*sample.get());
    else
      check_picture(*sample.get(), *frame->descriptor_at(i));
  }
}

void Monitor::check_timecode(const IFrame& frame) {
  if (frame.timecode() == nullptr) {
    ++faults_.timecodes;
    return;
  }
  const Timecode& timecode = *frame.timecode();
  if (runs_.empty() || frame.is_discontinuous()) {
    runs_.push_back({timecode, timecode, 1});
    left_.restart();
    right_.restart();
    return;
  }
  Run& run = runs_.back();
  Timecode expected = run.last;
  ++expected;
  if (timecode.frame_count() != expected.frame_count()) {
    ++faults_.timecodes;
    Korvane::TimecodeUtils::log_timecode_difference("playout", run.last, timecode);
  }
  run.last = timecode;
  ++run.frames;
}

// The sample must begin where its frame does, and last as long: frame n begins n / (frames per
// second) after the start, counted in whole units of the track.
void Monitor::check_time(const IFrame& frame, const MediaSample& sample) {
  const Rational32 frames = frame.edit_rate();
  const Rational32 units = sample.time_rate();
  const auto begin_of = [&](unsigned long long number) {
    return static_cast<long long>(number) * frames.denominator * units.numerator /
           (static_cast<long long>(frames.numerator) * units.denominator);
  };
  if (sample.presentation_time() != begin_of(frame.number()) ||
      sample.presentation_time() + sample.duration() != begin_of(frame.number() + 1))
    ++faults_.times;
}

void Monitor::check_picture(const MediaSample& picture, const TrackDescriptor& track) {
  const std::size_t width = number_under(track, "width");
  const std::size_t height = number_under(track, "height");
  if (width == 0 || height == 0 || picture.size() != width * height * 2) {
    ++faults_.samples;
    return;
  }
  bool as_expected = true;
  for (const std::size_t line : {std::size_t{0}, height / 2, height - 1}) {
    bars_ = measure_bars(picture.data() + line * width * 2, static_cast<unsigned int>(width));
    as_expected = as_expected && bars_ == kBars;
  }
  if (!as_expected) ++faults_.pictures;
}

void Monitor::check_sound(const MediaSample& sound) {
  if (sound.size() != static_cast<std::size_t>(sound.duration()) * 4) {
    ++faults_.samples;
    return;
  }
  for (std::size_t i = 0; i < sound.size(); i += 4) {
    left_.measure(pcm16(sound.data() + i));
    right_.measure(pcm16(sound.data() + i + 2));
  }
}

}  // namespace Playout
