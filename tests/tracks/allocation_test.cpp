// What is allocated, and what happens when there is no memory.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "media/track_descriptor_defaults.h"
#include "media/track_descriptor_list.h"
#include "support/allocations.h"
#include "support/without_memory.h"
#include "tracks/filled_descriptors.h"

namespace Korvane::Media {
namespace {

using Allocations::done_without_memory;
using Allocations::made_by;

TEST(TrackAllocations, OneForEachRecordAndCell) {
  EXPECT_EQ(2, made_by([] { const PictureTrackDescriptor track; }));
  EXPECT_EQ(2, made_by([] { const SoundTrackDescriptor track; }));
  EXPECT_EQ(2, made_by([] { const DataTrackDescriptor track; }));
  EXPECT_EQ(2, made_by([] { const CompoundTrackDescriptor track; }));
  SoundTrackDescriptor track;
  EXPECT_EQ(1, made_by([&] { track.channel_count(2); }));
  EXPECT_EQ(1, made_by([&] { track.channel_count(2); }));
  EXPECT_EQ(5, made_by([&] {
              track.track_id(1);
              const SoundTrackDescriptor copy(track);
            }));
}

TEST(TrackAllocations, NoneForReading) {
  PictureTrackDescriptor track;
  fill(track);
  EXPECT_EQ(0, made_by([&] {
              static_cast<void>(track.essence_kind());
              static_cast<void>(track.track_id());
              static_cast<void>(track.sample_rate());
              static_cast<void>(track.field_height());
              static_cast<void>(track.colorspace());
              static_cast<void>(track.get_key_value("a key that is too long for a short buffer"));
            }));
}

struct Operation {
  const char* name;
  std::function<void(PictureTrackDescriptor&)> run;
};

const std::vector<Operation>& setters() {
  static const std::string long_text(200, 'x');
  static const std::vector<Operation> list = {
      {"track id", [](PictureTrackDescriptor& track) { track.track_id(1); }},
      {"sample rate",
       [](PictureTrackDescriptor& track) {
         track.sample_rate({1, 2});
       }},
      {"pre-charge", [](PictureTrackDescriptor& track) { track.pre_charge(1); }},
      {"private data", [](PictureTrackDescriptor& track) { track.private_data(1); }},
      {"key",
       [](PictureTrackDescriptor& track) {
         track.add_key_value(long_text.c_str(), long_text.c_str());
       }},
      {"known key",
       [](PictureTrackDescriptor& track) { track.add_key_value("language", "other"); }},
      {"width", [](PictureTrackDescriptor& track) { track.width(1); }},
      {"height", [](PictureTrackDescriptor& track) { track.height(1); }},
      {"interlaced", [](PictureTrackDescriptor& track) { track.interlaced(false); }},
      {"aspect ratio",
       [](PictureTrackDescriptor& track) {
         track.aspect_ratio({1, 2});
       }},
      {"bit rate", [](PictureTrackDescriptor& track) { track.bit_rate(1); }},
      {"component depth", [](PictureTrackDescriptor& track) { track.component_depth(1); }},
      {"copy", [](PictureTrackDescriptor& track) { const PictureTrackDescriptor copy(track); }},
      {"clone",
       [](PictureTrackDescriptor& track) {
         const std::unique_ptr<TrackDescriptor> clone(track.clone());
       }},
  };
  return list;
}

TEST(TrackAllocations, WithoutMemoryNothingLeaksAndTheDescriptorIsAsBefore) {
  for (const Operation& operation : setters()) {
    bool done = false;
    for (long failing = 1; !done; ++failing) {
      SCOPED_TRACE(std::string(operation.name) + ", allocation " + std::to_string(failing));
      const long live = Allocations::counters().live();
      {
        PictureTrackDescriptor track;
        fill(track);
        done = done_without_memory([&] { operation.run(track); }, failing);
        EXPECT_TRUE(done || failing < 30);
        if (!done) expect_filled(track);
        EXPECT_EQ(nullptr, done ? nullptr : track.get_key_value(std::string(200, 'x').c_str()));
      }
      EXPECT_EQ(live, Allocations::counters().live());
    }
  }
}

TEST(TrackAllocations, AnAssignmentWithoutMemoryLeavesEachPartWhole) {
  PictureTrackDescriptor source;
  fill(source);
  bool done = false;
  bool parted = false;
  for (long failing = 1; !done; ++failing) {
    SCOPED_TRACE(failing);
    const long live = Allocations::counters().live();
    {
      PictureTrackDescriptor target;
      done = done_without_memory([&] { target = source; }, failing);
      if (target.width() == nullptr) {
        expect_fresh(target);
      } else if (target.track_id() == nullptr) {
        parted = true;
        expect_base_fresh(target);
        fill_base(target);
        expect_filled(target);
      } else {
        EXPECT_TRUE(done);
        expect_filled(target);
      }
    }
    EXPECT_EQ(live, Allocations::counters().live());
  }
  EXPECT_TRUE(parted);
}

TrackDescriptorList two_tracks() {
  TrackDescriptorList list;
  PictureTrackDescriptor track;
  fill(track);
  list.add_track(track);
  list.add_track(DataTrackDescriptor());
  return list;
}

TEST(TrackAllocations, AListWithoutMemoryForATrackIsAsBefore) {
  bool done = false;
  for (long failing = 1; !done; ++failing) {
    SCOPED_TRACE(failing);
    const long live = Allocations::counters().live();
    {
      TrackDescriptorList list = two_tracks();
      const TrackDescriptor* const first = list.track_at(0);
      done = done_without_memory([&] { list.add_track(*first); }, failing);
      EXPECT_EQ(done ? 3U : 2U, list.size());
      EXPECT_EQ(first, list.track_at(0));
    }
    EXPECT_EQ(live, Allocations::counters().live());
  }
}

TEST(TrackAllocations, AListWithoutMemoryForAllTracksOfAnotherIsEmpty) {
  const TrackDescriptorList source = two_tracks();
  bool done = false;
  for (long failing = 1; !done; ++failing) {
    SCOPED_TRACE(failing);
    const long live = Allocations::counters().live();
    {
      TrackDescriptorList target = two_tracks();
      target.add_track(DataTrackDescriptor());
      done = done_without_memory([&] { target = source; }, failing);
      EXPECT_EQ(done ? 2U : 0U, target.size());
    }
    EXPECT_EQ(live, Allocations::counters().live());
  }
}

TEST(TrackAllocations, NoDescriptorIsLostHalfMade) {
  bool done = false;
  for (long failing = 1; !done; ++failing) {
    SCOPED_TRACE(failing);
    const long live = Allocations::counters().live();
    done = done_without_memory(
        [] {
          TrackDescriptorDefaults::v210_1920_1080_60i(1);
          TrackDescriptorDefaults::dnxhd_145_60i(1);
          TrackDescriptorDefaults::pcm_stereo_24b_48k(1);
        },
        failing);
    EXPECT_EQ(live, Allocations::counters().live());
  }
}

}  // namespace
}  // namespace Korvane::Media
