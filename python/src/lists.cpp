#include "binding.h"
#include "foundation/uint_list.h"
#include "foundation/value_map.h"
#include "media/audio_power_list.h"
#include "media/audio_track_config.h"
#include "media/multiviewer_source.h"
#include "media/multiviewer_source_list.h"
#include "media/srt_stream_stats_data.h"
#include "media/srt_stream_stats_data_list.h"
#include "media/st2110_stream_stats_data.h"
#include "media/st2110_stream_stats_data_list.h"
#include "media/track_bit_rates.h"
#include "media/track_bit_rates_list.h"
#include "media/track_descriptor.h"
#include "media/track_descriptor_list.h"

namespace Korvane::Python {
namespace {

using Media::AudioPowerList;
using Media::AudioTrackConfig;
using Media::MultiviewerSource;
using Media::MultiviewerSourceList;
using Media::TrackDescriptor;
using Media::TrackDescriptorList;
using Media::UIntList;

// The item as C++ answers it: None past the end.
template <typename List, typename Item>
void answer_none(Class<List>& type, const char* name, const Sequence<List, Item>& sequence) {
  const auto* const shared = &sequence;
  type.method(
      name,
      [shared](const List& list, std::size_t index) -> py::object {
        if (index >= shared->count(list)) return py::none();
        return shared->at(list, index);
      },
      py::arg("index"));
}

// A list of records, added by add_value(value) or add_track(track).
template <typename List, typename Record, void (List::*Add)(Record),
          const std::remove_cvref_t<Record>* (List::*At)(size_t) const>
void bind_records(py::module_& module, const char* name, const char* add, const char* argument,
                  const char* at) {
  using Item = const std::remove_cvref_t<Record>&;
  static const Sequence<List, Item> sequence = {
      "size",
      add,
      argument,
      [](List& list, Item item) { (list.*Add)(item); },
      [](const List& list) { return list.size(); },
      [](const List& list, std::size_t index) {
        return py::cast(std::remove_cvref_t<Record>(*(list.*At)(index)));
      }};
  Class<List> type(module, name);
  as_sequence(type, sequence);
  answer_none(type, at, sequence);
}

void bind_uint_list(py::module_& module) {
  static const Sequence<UIntList, unsigned int> sequence = {
      "size",
      "add_value",
      "value",
      [](UIntList& list, unsigned int value) { list.add_value(value); },
      [](const UIntList& list) { return list.size(); },
      [](const UIntList& list, std::size_t index) {
        return py::object(py::int_(*list.value_at(index)));
      }};
  Class<UIntList> type(module, "UIntList");
  as_sequence(type, sequence);
  answer_none(type, "value_at", sequence);
}

// Its items are clones, each of the class that was added.
void bind_descriptors(py::module_& module) {
  static const Sequence<TrackDescriptorList, const TrackDescriptor&> sequence = {
      "size",
      "add_track",
      "descriptor",
      [](TrackDescriptorList& list, const TrackDescriptor& track) { list.add_track(track); },
      [](const TrackDescriptorList& list) { return list.size(); },
      [](const TrackDescriptorList& list, std::size_t index) {
        return py::cast(list.track_at(index)->clone(), py::return_value_policy::take_ownership);
      }};
  Class<TrackDescriptorList> type(module, "TrackDescriptorList");
  as_sequence(type, sequence);
  answer_none(type, "track_at", sequence);
}

void bind_multiviewer_sources(py::module_& module) {
  using List = MultiviewerSourceList;
  static const Sequence<List, const MultiviewerSource&> sequence = {
      "size",
      "add_source",
      "source",
      [](List& list, const MultiviewerSource& source) { list.add_source(source); },
      [](const List& list) { return list.size(); },
      [](const List& list, std::size_t index) { return py::cast(list.source_at(index)); }};
  Class<List> type(module, "MultiviewerSourceList");
  as_sequence(type, sequence);
  type.equality().method("source_at", &List::source_at, py::arg("index"));
}

void bind_audio_track(py::module_& module) {
  using List = AudioTrackConfig;
  static const Sequence<List, unsigned int> sequence = {
      nullptr,
      "add_source_channel",
      "channel",
      [](List& list, unsigned int channel) { list.add_source_channel(channel); },
      [](const List& list) -> std::size_t { return list.source_channel_count(); },
      [](const List& list, std::size_t index) {
        return py::object(
            py::int_(list.source_channel_for_index(static_cast<unsigned int>(index))));
      }};
  Class<List> type(module, "AudioTrackConfig");
  as_sequence(type, sequence);
  type.getter("source_channel_count", &List::source_channel_count)
      .method("source_channel_for_index", &List::source_channel_for_index, py::arg("index"));
}

// As a sequence its items are pairs (power, muted).
void bind_audio_power(py::module_& module) {
  using List = AudioPowerList;
  using Reading = std::pair<double, bool>;
  static const Sequence<List, Reading> sequence = {
      "size",
      nullptr,
      nullptr,
      [](List& list, Reading reading) { list.add_value(reading.first, reading.second); },
      [](const List& list) { return list.size(); },
      [](const List& list, std::size_t index) {
        return py::object(py::make_tuple(*list.track_at(index), list.track_muted_at(index)));
      }};
  Class<List> type(module, "AudioPowerList");
  as_sequence(type, sequence);
  type.method("add_value", &List::add_value, py::arg("power"), flag("muted"))
      .method(
          "track_at",
          [](const List& list, std::size_t index) -> py::object {
            const double* const power = list.track_at(index);
            if (power == nullptr) return py::none();
            return py::float_(*power);
          },
          py::arg("index"))
      .method("track_muted_at", &List::track_muted_at, py::arg("index"));
}

void bind_value_map(py::module_& module) {
  Class<ValueMap>(module, "ValueMap")
      .constructor<>()
      .copies()
      .method("size", &ValueMap::size)
      .method("value_for_key", py::overload_cast<int>(&ValueMap::value_for_key, py::const_),
              py::arg("key"))
      .method("value_for_key", py::overload_cast<int, int>(&ValueMap::value_for_key, py::const_),
              py::arg("key"), py::arg("value"))
      .def("__len__", &ValueMap::size);
}

}  // namespace

void bind_lists(py::module_& module) {
  bind_uint_list(module);
  bind_value_map(module);
  bind_descriptors(module);
  using Media::SRTStreamStatsDataList;
  using Media::ST2110StreamStatsDataList;
  using Media::TrackBitRatesList;
  bind_records<TrackBitRatesList, const Media::TrackBitRates&, &TrackBitRatesList::add_track,
               &TrackBitRatesList::track_at>(module, "TrackBitRatesList", "add_track", "track",
                                             "track_at");
  bind_records<SRTStreamStatsDataList, Media::SRTStreamStatsData,
               &SRTStreamStatsDataList::add_value, &SRTStreamStatsDataList::value_at>(
      module, "SRTStreamStatsDataList", "add_value", "value", "value_at");
  bind_records<ST2110StreamStatsDataList, Media::ST2110StreamStatsData,
               &ST2110StreamStatsDataList::add_value, &ST2110StreamStatsDataList::value_at>(
      module, "ST2110StreamStatsDataList", "add_value", "value", "value_at");
  bind_multiviewer_sources(module);
  bind_audio_track(module);
  bind_audio_power(module);
}

}  // namespace Korvane::Python
