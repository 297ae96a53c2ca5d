#include <gtest/gtest.h>

#include <memory>
#include <type_traits>
#include <utility>

#include "support/watched.h"

namespace Korvane {
namespace {

template <typename Interface>
class InterfaceTest : public testing::Test {};

using Interfaces =
    testing::Types<Memory::Sample, Media::MediaSample, Media::ExtendedMediaSample, Media::IFrame,
                   Media::IProviderCtrl, Media::IFrameProvider, Media::ISampleProvider,
                   Media::FrameListener, Media::MediaSampleListener, Media::StreamStatsListener,
                   Media::IEncodingPerfListener, Media::IEncodingPerfListenerProvider,
                   IAdditionalProcessHandler, IStorageAuthentication, TickCountProvider>;
TYPED_TEST_SUITE(InterfaceTest, Interfaces);

TYPED_TEST(InterfaceTest, HasAVirtualTableOnly) {
  static_assert(std::is_abstract_v<TypeParam>);
  static_assert(std::has_virtual_destructor_v<TypeParam>);
  static_assert(sizeof(TypeParam) == sizeof(void*));
  static_assert(std::is_copy_assignable_v<TypeParam>);
}

TEST(Samples, InheritInOrder) {
  static_assert(std::is_base_of_v<Memory::Sample, Media::MediaSample>);
  static_assert(std::is_base_of_v<Media::MediaSample, Media::ExtendedMediaSample>);
  static_assert(std::is_base_of_v<Media::IProviderCtrl, Media::IFrameProvider>);
}

struct CopyableSample : Media::MediaSample {
  const unsigned char* data() const override { return nullptr; }
  Korvane::size_t size() const override { return mark; }
  unsigned int track_id() const override { return 0; }
  Media::TrackDescriptorEssenceKind essence_kind() const override { return Media::EssenceNone; }
  Rational32 time_rate() const override { return {25, 1}; }
  long long presentation_time() const override { return 0; }
  long long decode_time() const override { return 0; }
  long long duration() const override { return 1; }
  bool is_key_frame() const override { return true; }
  const Timecode* timecode() const override { return nullptr; }
  Korvane::size_t mark = 0;
};

// Assigning the interface alone changes nothing of the class behind it.
TEST(Samples, CopyingAndMovingAnInterfaceCopiesNothing) {
  CopyableSample first;
  first.mark = 1;
  CopyableSample second;
  second.mark = 2;
  Media::MediaSample& a = first;
  Media::MediaSample& b = second;
  a = b;
  EXPECT_EQ(1U, a.size());
  a = std::move(b);
  EXPECT_EQ(1U, a.size());
  const CopyableSample copy(first);
  const CopyableSample moved(std::move(first));
  EXPECT_EQ(1U, copy.size());
  EXPECT_EQ(1U, moved.size());
}

TEST(Samples, DeletingAnExtendedOneThroughTheFirstBaseRunsItsDestructor) {
  Watch watch;
  const Memory::Sample* const sample = new WatchedExtendedSample(watch);
  delete sample;
  EXPECT_EQ(1, watch.destroyed);
}

TEST(Samples, AHandleDeletesAnExtendedOneOnce) {
  Watch watch;
  {
    const Media::MediaSampleSharedPtr first(new WatchedExtendedSample(watch));
    const Media::MediaSampleSharedPtr second(first);  // NOLINT(performance-unnecessary-*)
    EXPECT_EQ(0, watch.destroyed);
  }
  EXPECT_EQ(1, watch.destroyed);
}

TEST(Providers, DeletingAFrameProviderThroughItsControlRunsItsDestructor) {
  Watch watch;
  const Media::IProviderCtrl* const control = new WatchedFrameProvider(watch);
  delete control;
  EXPECT_EQ(1, watch.destroyed);
}

}  // namespace
}  // namespace Korvane
