// What is allocated, and what happens when there is no memory.

#include <gtest/gtest.h>

#include <string>

#include "kv_engine.h"
#include "support/allocations.h"
#include "support/raises.h"
#include "support/without_memory.h"

namespace Korvane::Media::AllocationTests {
namespace {

using Allocations::made_by;

const std::wstring& long_address() {
  static const std::wstring text(200, L'x');
  return text;
}

const wchar_t* const kOldAddress = L"an address too long for a short buffer";

// Where memory runs out in `operation`, what was made must be `as_before`.
template <typename Make, typename Operation, typename AsBefore>
void expect_kept_without_memory(Make&& make, Operation&& operation, AsBefore&& as_before) {
  const long failures = Allocations::run_with_ever_more_memory(
      make, operation, [&](auto& object, bool done) { EXPECT_TRUE(done || as_before(object)); });
  EXPECT_GT(failures, 0) << "nothing was allocated";
}

TEST(StreamAllocations, OneForEachRecord) {
  EXPECT_EQ(1, made_by([] { const SdpConfig config(SdpVideo); }));
  EXPECT_EQ(1, made_by([] { const SrtSettings settings; }));
  EXPECT_EQ(1, made_by([] { const SRTStreamStatsData data; }));
  EXPECT_EQ(1, made_by([] { const ST2110StreamStatsData data; }));
  EXPECT_EQ(1, made_by([] { const TrackBitRates rates; }));
  EXPECT_EQ(1, made_by([] { const SRTStreamStatsDataList list; }));
  EXPECT_EQ(1, made_by([] { const ST2110StreamStatsDataList list; }));
  EXPECT_EQ(1, made_by([] { const TrackBitRatesList list; }));
}

TEST(StreamAllocations, NoneForReadingSettingAndComparing) {
  SdpConfig config(SdpVideo, kOldAddress, 1);
  const SdpConfig same_config(config);
  const SdpConfigSet set;
  SRTStreamStatsData srt;
  ST2110StreamStatsData st2110;
  TrackBitRates rates;
  SRTStreamStatsDataList list;
  list.add_value(srt);
  EXPECT_EQ(0, made_by([&] {
              static_cast<void>(config.ip_address());
              static_cast<void>(config == same_config);
              static_cast<void>(set.anc_sdp().port());
              srt.pkt_reorder_tolerance(srt.timestamp() + 1);
              static_cast<void>(srt == *list.value_at(0));
              st2110.sound_bps_rate(st2110.video_bps_rate() + 1);
              rates.bit_rate(rates.bit_rate() + 1);
            }));
}

TEST(StreamAllocations, WithoutMemoryAnEndpointIsAsBefore) {
  const SdpConfig source(SdpAnc, long_address().c_str(), 7);
  const SdpConfig before(SdpAudio, kOldAddress, 5004);
  expect_kept_without_memory([&] { return before; }, [&](SdpConfig& config) { config = source; },
                             [&](SdpConfig& config) { return config == before; });
  expect_kept_without_memory(
      [&] { return before; },
      [](SdpConfig& config) { config = SdpConfig(SdpVideo, config.ip_address(), 1); },
      [&](SdpConfig& config) { return config == before; });
}

TEST(StreamAllocations, ARefusedAddressLeaksNothing) {
  const long live = Allocations::counters().live();
  EXPECT_TRUE(raises(InvalidArgument, "Text must not be null",
                     [] { const SdpConfig config(SdpVideo, nullptr, 1); }));
  EXPECT_EQ(live, Allocations::counters().live());
}

bool same_set(const SdpConfigSet& a, const SdpConfigSet& b) {
  const SdpConfig& video = b.video_sdp();
  const SdpConfig& audio = b.audio_sdp();
  const SdpConfig& anc = b.anc_sdp();
  return a.video_sdp() == video && a.audio_sdp() == audio && a.anc_sdp() == anc;
}

TEST(StreamAllocations, WithoutMemoryASetOfEndpointsIsAsBefore) {
  const SdpConfig endpoint(SdpAnc, long_address().c_str(), 7);
  const SdpConfigSet source(endpoint, endpoint, endpoint);
  const SdpConfigSet before(SdpConfig(SdpVideo, kOldAddress, 1));
  const auto make = [&] { return before; };
  const auto as_before = [&](const SdpConfigSet& set) { return same_set(set, before); };
  expect_kept_without_memory(
      make, [&](SdpConfigSet& set) { set = source; }, as_before);
  expect_kept_without_memory(
      make,
      [](SdpConfigSet& set) {
        set = SdpConfigSet(set.anc_sdp(), set.video_sdp(), set.audio_sdp());
      },
      as_before);
  expect_kept_without_memory(
      make, [&](SdpConfigSet& set) { set.audio_sdp() = endpoint; }, as_before);
}

TEST(StreamAllocations, WithoutMemoryPlainRecordsAreAsBefore) {
  expect_kept_without_memory(
      [] { return SrtSettings(7, 70); }, [](SrtSettings& settings) { settings = SrtSettings(); },
      [](SrtSettings& settings) {
        return settings.days_to_preserve_stats() == 7 && settings.polling_period() == 70;
      });
  expect_kept_without_memory(
      [] {
        SRTStreamStatsData data;
        data.bitrate(1.5);
        return data;
      },
      [](SRTStreamStatsData& data) { data = SRTStreamStatsData(); },
      [](const SRTStreamStatsData& data) { return data.bitrate() == 1.5; });
  expect_kept_without_memory(
      [] {
        ST2110StreamStatsData data;
        data.sound_bps_rate(1.5);
        return data;
      },
      [](ST2110StreamStatsData& data) { data = ST2110StreamStatsData(); },
      [](const ST2110StreamStatsData& data) { return data.sound_bps_rate() == 1.5; });
  expect_kept_without_memory([] { return TrackBitRates(EssencePcm, 7); },
                             [](TrackBitRates& rates) { rates = TrackBitRates(); },
                             [](TrackBitRates& rates) {
                               return rates.essence_kind() == EssencePcm && rates.bit_rate() == 7;
                             });
}

TrackBitRatesList two_tracks() {
  TrackBitRatesList list;
  list.add_track(TrackBitRates(EssencePcm, 1));
  list.add_track(TrackBitRates(EssencePcm, 2));
  return list;
}

bool are_two_tracks(const TrackBitRatesList& list) {
  return list.size() == 2 && list.track_at(0)->bit_rate() == 1 && list.track_at(1)->bit_rate() == 2;
}

TEST(StreamAllocations, WithoutMemoryBitRatesAreAsBefore) {
  expect_kept_without_memory(
      two_tracks, [](TrackBitRatesList& list) { list.add_track(*list.track_at(1)); },
      are_two_tracks);
  const TrackBitRatesList source(two_tracks());
  expect_kept_without_memory(
      two_tracks, [&](TrackBitRatesList& list) { list = source; }, are_two_tracks);
  expect_kept_without_memory(
      two_tracks, [](TrackBitRatesList& list) { const TrackBitRatesList copy(list); },
      are_two_tracks);
}

// For the two lists of samples.
template <typename List, typename Sample>
void expect_samples_kept_without_memory() {
  const auto two_samples = [] {
    List list;
    Sample sample;
    for (const unsigned int timestamp : {1U, 2U}) {
      sample.timestamp(timestamp);
      list.add_value(sample);
    }
    return list;
  };
  const auto are_two_samples = [](const List& list) {
    return list.size() == 2 && list.value_at(0)->timestamp() == 1 &&
           list.value_at(1)->timestamp() == 2;
  };
  expect_kept_without_memory(
      two_samples, [](List& list) { list.add_value(*list.value_at(1)); }, are_two_samples);
  const List source(two_samples());
  expect_kept_without_memory(
      two_samples, [&](List& list) { list = source; }, are_two_samples);
  expect_kept_without_memory(
      two_samples, [](List& list) { const List copy(list); }, are_two_samples);
  List full;
  for (int i = 0; i < 128; ++i) full.add_value(Sample());
  expect_kept_without_memory([&] { return full; }, [](List& list) { list.add_value(Sample()); },
                             [](const List& list) { return list.size() == 128; });
}

TEST(StreamAllocations, WithoutMemorySamplesAreAsBefore) {
  expect_samples_kept_without_memory<SRTStreamStatsDataList, SRTStreamStatsData>();
  expect_samples_kept_without_memory<ST2110StreamStatsDataList, ST2110StreamStatsData>();
}

// A sample is copied for the call and into the list.
template <typename List, typename Sample>
void expect_room_for_128_samples() {
  List list;
  const Sample sample;
  const auto add = [&](int count) {
    return made_by([&] {
      for (int i = 0; i < count; ++i) list.add_value(sample);
    });
  };
  EXPECT_EQ(1 + 128 * 2, add(128));
  EXPECT_EQ(1 + 128 + 2, add(1)) << "growing copies every sample";
  EXPECT_EQ(127 * 2, add(127));
}

TEST(StreamAllocations, TwoMinutesOfSamplesAreNotCopiedAgain) {
  expect_room_for_128_samples<SRTStreamStatsDataList, SRTStreamStatsData>();
  expect_room_for_128_samples<ST2110StreamStatsDataList, ST2110StreamStatsData>();
}

}  // namespace
}  // namespace Korvane::Media::AllocationTests
