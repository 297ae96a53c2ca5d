// Operations in any order on objects of every list: each holds what a vector would, and none
// shares anything with another. Seen at the end: each beginning of a sequence is a sequence too.

#include <array>
#include <map>
#include <vector>

#include "input.h"
#include "kv_engine.h"

namespace {

using Korvane::expect;
using Korvane::Input;
using Korvane::ValueMap;
namespace Media = Korvane::Media;

// One for each list: a list of numbers, as which all their values can be seen.
struct Numbers {
  using List = Media::UIntList;
  static void add(List& list, unsigned int value) { list.add_value(value); }
  static bool is_at(const List& list, std::size_t index, unsigned int value) {
    return *list.value_at(index) == value;
  }
  static bool is_end(const List& list, std::size_t index) {
    return list.value_at(index) == nullptr;
  }
  static void add_own(List& list, std::size_t index) { list.add_value(*list.value_at(index)); }
};

struct Powers {
  using List = Media::AudioPowerList;
  static void add(List& list, unsigned int value) { list.add_value(value, value % 2 == 1); }
  static bool is_at(const List& list, std::size_t index, unsigned int value) {
    return *list.track_at(index) == value && list.track_muted_at(index) == (value % 2 == 1);
  }
  static bool is_end(const List& list, std::size_t index) {
    return list.track_at(index) == nullptr && !list.track_muted_at(index);
  }
  static void add_own(List& list, std::size_t index) {
    list.add_value(*list.track_at(index), list.track_muted_at(index));
  }
};

template <typename Call>
bool is_refused(const Call& call) {
  try {
    call();
  } catch (const Korvane::Exception& exception) {
    return exception.code() == Korvane::InvalidArgument;
  }
  return false;
}

struct Channels {
  struct List : Media::AudioTrackConfig {
    std::size_t size() const { return source_channel_count(); }
  };
  static void add(List& list, unsigned int value) { list.add_source_channel(value); }
  static bool is_at(const List& list, std::size_t index, unsigned int value) {
    return list.source_channel_for_index(static_cast<unsigned int>(index)) == value;
  }
  static bool is_end(const List& list, std::size_t index) {
    return is_refused([&] { list.source_channel_for_index(static_cast<unsigned int>(index)); });
  }
  static void add_own(List& list, std::size_t index) {
    list.add_source_channel(list.source_channel_for_index(static_cast<unsigned int>(index)));
  }
};

struct Tiles {
  using List = Media::MultiviewerSourceList;
  static void add(List& list, unsigned int value) {
    const std::wstring channel(value % 40, L'x');
    list.add_source(
        Media::MultiviewerSource(static_cast<int>(value), channel.c_str(), 1, 2, 3, 4, true));
  }
  static bool is_at(const List& list, std::size_t index, unsigned int value) {
    const Media::MultiviewerSource tile = list.source_at(index);
    return tile.id() == static_cast<int>(value) &&
           tile.channel_id() == std::wstring(value % 40, L'x');
  }
  static bool is_end(const List& list, std::size_t index) {
    return is_refused([&] { list.source_at(index); });
  }
  static void add_own(List& list, std::size_t index) { list.add_source(list.source_at(index)); }
};

// Of both kinds of statistics.
template <typename DataList, typename Data>
struct Statistics {
  using List = DataList;
  static void add(List& list, unsigned int value) {
    Data data;
    data.timestamp(value);
    list.add_value(data);
  }
  static bool is_at(const List& list, std::size_t index, unsigned int value) {
    return list.value_at(index)->timestamp() == value;
  }
  static bool is_end(const List& list, std::size_t index) {
    return list.value_at(index) == nullptr;
  }
  static void add_own(List& list, std::size_t index) { list.add_value(*list.value_at(index)); }
};

struct BitRates {
  using List = Media::TrackBitRatesList;
  static void add(List& list, unsigned int value) {
    list.add_track(Media::TrackBitRates(Media::EssencePcm, value));
  }
  static bool is_at(const List& list, std::size_t index, unsigned int value) {
    return list.track_at(index)->bit_rate() == value;
  }
  static bool is_end(const List& list, std::size_t index) {
    return list.track_at(index) == nullptr;
  }
  static void add_own(List& list, std::size_t index) { list.add_track(*list.track_at(index)); }
};

struct Tracks {
  using List = Media::TrackDescriptorList;
  static void add(List& list, unsigned int value) {
    Media::SoundTrackDescriptor track;
    track.track_id(value);
    list.add_track(track);
  }
  static bool is_at(const List& list, std::size_t index, unsigned int value) {
    return *list.track_at(index)->track_id() == value;
  }
  static bool is_end(const List& list, std::size_t index) {
    return list.track_at(index) == nullptr;
  }
  static void add_own(List& list, std::size_t index) { list.add_track(*list.track_at(index)); }
};

template <typename Kind>
struct Pair {
  typename Kind::List list;
  std::vector<unsigned int> model;
};

template <typename Kind>
void check(const Pair<Kind>& pair) {
  expect(pair.list.size() == pair.model.size());
  for (std::size_t i = 0; i < pair.model.size(); ++i)
    expect(Kind::is_at(pair.list, i, pair.model[i]));
  expect(Kind::is_end(pair.list, pair.model.size()));
  expect(Kind::is_end(pair.list, 0xFFFFFFFF));
}

template <typename Kind>
void add(Pair<Kind>& pair, unsigned int value) {
  Kind::add(pair.list, value);
  pair.model.push_back(value);
}

template <typename Kind>
void run_list(Input& input) {
  std::array<Pair<Kind>, 2> pairs;
  while (input.has_operation()) {
    const unsigned int operation = input.take_below(16);
    Pair<Kind>& one = pairs[operation % 2];
    const Pair<Kind>& other = pairs[input.take_below(2)];
    switch (operation / 2) {
      case 0:
        one = other;
        break;
      case 1:
        one = Pair<Kind>();
        break;
      case 2: {
        Pair<Kind> copy(other);
        add(copy, input.take<std::uint8_t>());
        one = copy;
        break;
      }
      case 3: {
        if (one.model.empty()) break;
        const std::size_t index = input.take_below(256) % one.model.size();
        Kind::add_own(one.list, index);
        const unsigned int value = one.model[index];
        one.model.push_back(value);
        break;
      }
      default:
        add(one, input.take<std::uint8_t>());
    }
  }
  for (const Pair<Kind>& pair : pairs) check(pair);
}

struct MapPair {
  ValueMap map;
  std::map<int, int> model;
};

// Every key that is there, and its neighbours, which may not be.
void check_map(const MapPair& pair) {
  expect(pair.map.size() == pair.model.size());
  for (const auto& [key, value] : pair.model) {
    expect(pair.map.value_for_key(key) == value);
    for (const int neighbour : {key - 1, key + 1}) {
      const auto found = pair.model.find(neighbour);
      expect(pair.map.value_for_key(neighbour) == (found != pair.model.end() ? found->second : 0));
    }
  }
}

// The first value of a key stays.
void run_map(Input& input) {
  std::array<MapPair, 2> pairs;
  while (input.has_operation()) {
    const unsigned int operation = input.take_below(8);
    MapPair& one = pairs[operation % 2];
    const MapPair& other = pairs[input.take_below(2)];
    const auto key = input.take<signed char>();
    if (operation < 2) {
      one = other;
    } else {
      const auto value = input.take<signed char>();
      one.map.value_for_key(key, value);
      one.model.emplace(key, value);
    }
  }
  for (const MapPair& pair : pairs) check_map(pair);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  switch (input.take_below(9)) {
    case 0:
      run_list<Numbers>(input);
      break;
    case 1:
      run_list<Powers>(input);
      break;
    case 2:
      run_list<Channels>(input);
      break;
    case 3:
      run_list<Tiles>(input);
      break;
    case 4:
      run_list<Statistics<Media::SRTStreamStatsDataList, Media::SRTStreamStatsData>>(input);
      break;
    case 5:
      run_list<Statistics<Media::ST2110StreamStatsDataList, Media::ST2110StreamStatsData>>(input);
      break;
    case 6:
      run_list<BitRates>(input);
      break;
    case 7:
      run_list<Tracks>(input);
      break;
    default:
      run_map(input);
  }
  return 0;
}
