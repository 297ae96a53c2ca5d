// The same four things done with each library: timecodes made, copied and printed; a label read;
// eight keys set and copied; an object shared by two handles. Each runs in a process of its own
// with its 1st, 2nd, ... allocation failing, is told of it as the library tells, and frees what it
// made.

#include <gst/gst.h>
#include <gst/video/gstvideotimecode.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <new>

extern "C" {
#include <libavutil/buffer.h>
#include <libavutil/dict.h>
#include <libavutil/timecode.h>
}

#include "kv_engine.h"
#include "oracles/beside_others.h"
#include "support/failing_malloc.h"

namespace Korvane {
namespace {

constexpr const char* kText = "01:02:03;04";
constexpr const char* kKeys[] = {
    "title", "language of the sound", "camera", "reel", "scene", "take", "maker", "place"};
constexpr const char* kValue = "a value that is too long for a short buffer";

void our_timecodes() {
  const Timecode timecode(30, 1, 2, 3, 4, true, false);
  const Timecode copy(timecode);
  copy.c_str(Timecode::DropFrameSemicolon, Timecode::FieldMarkDotSuffix);
}

void our_text() {
  TimecodeUtils::load_timecode_from_string(30, kText, Timecode::DropFrameSemicolon,
                                           Timecode::FieldMarkDotSuffix);
}

void our_keys() {
  Media::PictureTrackDescriptor track;
  for (const char* key : kKeys) track.add_key_value(key, kValue);
  const Media::PictureTrackDescriptor copy(track);
}

void our_handle() {
  const Media::TrackDescriptorSharedPtr track(new Media::DataTrackDescriptor);
  const Media::TrackDescriptorSharedPtr copy(track);
}

template <void (*operation)()>
void until_no_memory() {
  try {
    operation();
  } catch (const std::bad_alloc&) {
    return;
  }
}

void libavutil_timecodes() {
  AVTimecode timecode = {};
  char text[AV_TIMECODE_STR_SIZE];
  if (av_timecode_init_from_components(&timecode, kRealRate, AV_TIMECODE_FLAG_DROPFRAME, 1, 2, 3, 4,
                                       nullptr) == 0)
    av_timecode_make_string(&timecode, text, 0);
}

void libavutil_text() {
  AVTimecode timecode = {};
  av_timecode_init_from_string(&timecode, kRealRate, kText, nullptr);
}

void libavutil_keys() {
  AVDictionary* keys = nullptr;
  AVDictionary* copy = nullptr;
  bool done = true;
  for (const char* key : kKeys) done = done && av_dict_set(&keys, key, kValue, 0) >= 0;
  if (done) av_dict_copy(&copy, keys, 0);
  av_dict_free(&copy);
  av_dict_free(&keys);
}

void libavutil_handle() {
  AVBufferRef* buffer = av_buffer_alloc(64);
  AVBufferRef* copy = buffer != nullptr ? av_buffer_ref(buffer) : nullptr;
  av_buffer_unref(&copy);
  av_buffer_unref(&buffer);
}

void gstreamer_timecodes() {
  GstVideoTimeCode* const timecode = gst_video_time_code_new(
      kRealRate.num, kRealRate.den, nullptr, GST_VIDEO_TIME_CODE_FLAGS_DROP_FRAME, 1, 2, 3, 4, 0);
  GstVideoTimeCode* const copy = gst_video_time_code_copy(timecode);
  g_free(gst_video_time_code_to_string(copy));
  gst_video_time_code_free(copy);
  gst_video_time_code_free(timecode);
}

void gstreamer_text() {
  GstVideoTimeCode* const timecode = gst_video_time_code_new_from_string(kText);
  if (timecode != nullptr) gst_video_time_code_free(timecode);
}

void gstreamer_keys() {
  GstStructure* const keys = gst_structure_new_empty("keys");
  for (const char* key : kKeys) gst_structure_set(keys, key, G_TYPE_STRING, kValue, nullptr);
  GstStructure* const copy = gst_structure_copy(keys);
  gst_structure_free(copy);
  gst_structure_free(keys);
}

void gstreamer_handle() {
  GstBuffer* const buffer = gst_buffer_new_allocate(nullptr, 64, nullptr);
  if (buffer == nullptr) return;
  gst_buffer_unref(gst_buffer_ref(buffer));
  gst_buffer_unref(buffer);
}

using Operation = void (*)();
constexpr int kOperations = 4;
constexpr Operation kRuns[kLibraryCount][kOperations] = {
    {until_no_memory<our_timecodes>, until_no_memory<our_text>, until_no_memory<our_keys>,
     until_no_memory<our_handle>},
    {libavutil_timecodes, libavutil_text, libavutil_keys, libavutil_handle},
    {gstreamer_timecodes, gstreamer_text, gstreamer_keys, gstreamer_handle},
    {},  // libltc has none of them
};

enum class End { Well, Leaking, Early };

// In a process of its own, which says nothing.
End run_alone(Operation operation, long failing) {
  const pid_t child = fork();
  if (child == 0) {
    if (std::freopen("/dev/null", "w", stderr) == nullptr) std::abort();
    const long live = FailingMalloc::live();
    FailingMalloc::fail(failing);
    operation();
    FailingMalloc::fail(0);
    _exit(FailingMalloc::live() == live ? 0 : 1);
  }
  int status = 0;
  if (child < 0 || waitpid(child, &status, 0) != child) std::abort();
  if (!WIFEXITED(status)) return End::Early;
  return WEXITSTATUS(status) == 0 ? End::Well : End::Leaking;
}

}  // namespace

MemoryCounts run_without_memory() {
  MemoryCounts counts = {};
  for (std::size_t library = 0; library < kLibraryCount; ++library) {
    for (const Operation operation : kRuns[library]) {
      if (operation == nullptr) continue;
      operation();  // what is made once for the whole process
      const long before = FailingMalloc::asked();
      operation();
      const long needed = FailingMalloc::asked() - before;
      for (long failing = 1; failing <= needed; ++failing) {
        const End end = run_alone(operation, failing);
        counts.ended[library].add(end == End::Early);
        counts.leaked[library].add(end == End::Leaking);
      }
    }
  }
  return counts;
}

}  // namespace Korvane
