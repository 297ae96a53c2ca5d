// Opens a module at run time, plays its source through a short buffer, and checks what it got:
//
//   example_playout [MODULE]
//
// What a module hands out is destroyed by code of the module, whoever lets go of it last. Hence the
// order in play(): stop and close the source, give up the provider, the frames and the descriptors;
// only when play() has returned is the module closed.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <vector>

#include "counted.h"
#include "dynamic_library.h"
#include "encoder_listeners.h"
#include "kv_engine.h"
#include "module.h"
#include "monitor.h"
#include "summary.h"

namespace Playout {
namespace {

using Korvane::Media::FrameProviderPtr;
using Korvane::Media::FramePtr;
using Korvane::Media::IFrameProvider;
using Korvane::Media::TrackDescriptorSharedPtr;

constexpr unsigned int kFramesPlayedAgain = 25;

// Hands every frame up to the end to `listener`, and answers how many there were.
unsigned int read_to_end(IFrameProvider& source, Korvane::Media::FrameListener& listener) {
  unsigned int frames = 0;
  for (FramePtr frame = source.read_frame(); frame.get() != nullptr; frame = source.read_frame()) {
    listener.frame_received(frame);
    ++frames;
  }
  return frames;
}

// Whether everything was as it should be. No object of the module is left then.
bool play(const DynamicLibrary& module) {
  const auto new_frame_provider =
      module.function<decltype(playout_new_frame_provider)>("playout_new_frame_provider");
  const auto object_counts =
      module.function<decltype(playout_object_counts)>("playout_object_counts");

  EncoderListeners encoders;
  Monitor monitor;
  std::vector<TrackDescriptorSharedPtr> tracks;

  FrameProviderPtr source(new_frame_provider());
  source->open("tone-and-bars");
  const long long length = source->frame_count();
  const Korvane::Rational32 edit_rate = source->edit_rate();
  for (Korvane::size_t i = 0; i < source->track_count(); ++i)
    tracks.push_back(source->track_at(i)->clone());  // its own end with close()

  source->start();
  unsigned int frames = read_to_end(*source.get(), monitor);
  if (source->seek(frames - kFramesPlayedAgain)) frames += read_to_end(*source.get(), monitor);
  source->stop();
  source->close();

  source.reset();      // the last handle: the provider is destroyed
  monitor.play_out();  // the frames that are still in the buffer outlive it

  std::printf("source     tone-and-bars, %lld frames, %d/%d per second\n", length,
              edit_rate.numerator, edit_rate.denominator);
  for (const TrackDescriptorSharedPtr& track : tracks) print_track(*track.get());
  print_signals(monitor);
  std::printf("encoded    %llu frames, %llu bytes\n", encoders.totals().frames,
              encoders.totals().bytes);
  bool good = print_faults(monitor.faults()) && monitor.left().clicks() == 0 &&
              monitor.right().clicks() == 0;

  const auto track_count = static_cast<unsigned int>(tracks.size());
  tracks.clear();

  ObjectCounts counts;
  object_counts(&counts);
  std::printf("objects of  expected  created  destroyed\n");
  std::printf("the module\n");
  good = print_count("providers", 1, counts.providers) && good;
  good = print_count("descriptors", 2 * track_count, counts.descriptors) && good;  // and our copies
  good = print_count("frames", frames, counts.frames) && good;
  good = print_count("samples", frames * track_count, counts.samples) && good;
  std::printf("the host\n");
  good = print_count("listeners", 1, Counted<EncoderListener>::count()) && good;
  return good;
}

}  // namespace
}  // namespace Playout

int main(int argc, char** argv) {
  try {
    const std::filesystem::path path =
        argc > 1 ? argv[1] : Playout::program_folder() / PLAYOUT_MODULE;
    const Playout::DynamicLibrary module(path);
    return Playout::play(module) ? 0 : 1;
  } catch (const Korvane::Exception& exception) {  // part of the core: it may outlive the module
    std::fprintf(stderr, "playout: %s\n", exception.message());
  } catch (const std::exception& exception) {
    std::fprintf(stderr, "playout: %s\n", exception.what());
  }
  return 1;
}
