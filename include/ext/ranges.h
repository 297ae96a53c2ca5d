// Range-for and the standard algorithms over every list of the library. Header-only, C++17; in
// C++20 the lists are random access ranges.
//
//   for (const Korvane::Media::TrackDescriptor& track : descriptors) ...
//   std::count_if(begin(samples), end(samples), is_late);    // found beside the list
//
// What an iterator gives:
//   UIntList                            const unsigned int&
//   TrackDescriptorList                 const TrackDescriptor&
//   TrackBitRatesList                   const TrackBitRates&
//   SRTStreamStatsDataList              const SRTStreamStatsData&
//   ST2110StreamStatsDataList           const ST2110StreamStatsData&
//   AudioPowerList                      Ext::AudioPower, a power and whether the track is muted
//   AudioTrackConfig                    unsigned int, a source channel
//   MultiviewerSourceList               MultiviewerSource, a copy for each access
// Nothing is changed through an iterator. Iterators of the last three give values, so that C++17
// algorithms see input iterators in them (C++20 ones see random access); they step by any number
// all the same.
//
// An iterator holds a pointer to the list and an index: it stays valid while the list lives, also
// when elements are added, and may be used up to the end that was asked for. ValueMap has no range:
// it does not tell its keys.

#ifndef KV_ENGINE_EXT_RANGES_H
#define KV_ENGINE_EXT_RANGES_H

#include <cstddef>
#include <iterator>
#include <memory>
#include <type_traits>

#include "foundation/uint_list.h"
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

namespace Korvane::Ext {

// One reading of an AudioPowerList.
struct AudioPower {
  double power;
  bool muted;
};

namespace Detail {

// How each list gives the element at an index below its size.
struct ElementOf {
  static const unsigned int& at(const Media::UIntList& list, std::size_t index) {
    return *list.value_at(index);
  }
  static const Media::TrackDescriptor& at(const Media::TrackDescriptorList& list,
                                          std::size_t index) {
    return *list.track_at(index);
  }
  static const Media::TrackBitRates& at(const Media::TrackBitRatesList& list, std::size_t index) {
    return *list.track_at(index);
  }
  static const Media::SRTStreamStatsData& at(const Media::SRTStreamStatsDataList& list,
                                             std::size_t index) {
    return *list.value_at(index);
  }
  static const Media::ST2110StreamStatsData& at(const Media::ST2110StreamStatsDataList& list,
                                                std::size_t index) {
    return *list.value_at(index);
  }
  static AudioPower at(const Media::AudioPowerList& list, std::size_t index) {
    return {*list.track_at(index), list.track_muted_at(index)};
  }
  static unsigned int at(const Media::AudioTrackConfig& list, std::size_t index) {
    return list.source_channel_for_index(static_cast<unsigned int>(index));
  }
  static Media::MultiviewerSource at(const Media::MultiviewerSourceList& list, std::size_t index) {
    return list.source_at(index);
  }
};

// Keeps a value alive while a member of it is asked for.
template <typename T>
class Arrow {
 public:
  explicit Arrow(T value) : value_(value) {}
  const T* operator->() const { return std::addressof(value_); }

 private:
  T value_;
};

}  // namespace Detail

// Where a list is read from. Compare iterators of one list only.
template <typename List>
class ListIterator {
 public:
  using reference = decltype(Detail::ElementOf::at(std::declval<const List&>(), 0));
  using value_type = std::remove_cv_t<std::remove_reference_t<reference>>;
  using difference_type = std::ptrdiff_t;
  using pointer = std::conditional_t<std::is_reference_v<reference>, const value_type*,
                                     Detail::Arrow<value_type>>;
  using iterator_category =
      std::conditional_t<std::is_reference_v<reference>, std::random_access_iterator_tag,
                         std::input_iterator_tag>;
  using iterator_concept = std::random_access_iterator_tag;  // of C++20

  // Of no list.
  ListIterator() = default;
  ListIterator(const List& list, std::size_t index) : list_(std::addressof(list)), index_(index) {}

  reference operator*() const { return Detail::ElementOf::at(*list_, index_); }
  reference operator[](difference_type n) const { return *(*this + n); }
  pointer operator->() const {
    if constexpr (std::is_reference_v<reference>)
      return std::addressof(**this);
    else
      return pointer(**this);
  }

  ListIterator& operator+=(difference_type n) {
    index_ = static_cast<std::size_t>(static_cast<difference_type>(index_) + n);
    return *this;
  }
  ListIterator& operator-=(difference_type n) { return *this += -n; }
  ListIterator& operator++() { return *this += 1; }
  ListIterator& operator--() { return *this -= 1; }
  ListIterator operator++(int) {
    const ListIterator before = *this;
    ++*this;
    return before;
  }
  ListIterator operator--(int) {
    const ListIterator before = *this;
    --*this;
    return before;
  }

  friend ListIterator operator+(ListIterator at, difference_type n) { return at += n; }
  friend ListIterator operator+(difference_type n, ListIterator at) { return at += n; }
  friend ListIterator operator-(ListIterator at, difference_type n) { return at -= n; }
  friend difference_type operator-(const ListIterator& left, const ListIterator& right) {
    return static_cast<difference_type>(left.index_) - static_cast<difference_type>(right.index_);
  }
  friend bool operator==(const ListIterator& left, const ListIterator& right) {
    return left.index_ == right.index_;
  }
  friend bool operator!=(const ListIterator& left, const ListIterator& right) {
    return left.index_ != right.index_;
  }
  friend bool operator<(const ListIterator& left, const ListIterator& right) {
    return left.index_ < right.index_;
  }
  friend bool operator>(const ListIterator& left, const ListIterator& right) {
    return left.index_ > right.index_;
  }
  friend bool operator<=(const ListIterator& left, const ListIterator& right) {
    return left.index_ <= right.index_;
  }
  friend bool operator>=(const ListIterator& left, const ListIterator& right) {
    return left.index_ >= right.index_;
  }

 private:
  const List* list_ = nullptr;
  std::size_t index_ = 0;
};

namespace Detail {

template <typename List>
std::size_t length(const List& list) {
  return list.size();
}
inline std::size_t length(const Media::AudioTrackConfig& list) {
  return list.source_channel_count();
}

template <typename List>
ListIterator<List> first(const List& list) {
  return {list, 0};
}

template <typename List>
ListIterator<List> past(const List& list) {
  return {list, length(list)};
}

}  // namespace Detail
}  // namespace Korvane::Ext

// Beside the lists, where range-for looks for them. Of lists that may be changed, too: C++20 takes
// no conversion to const. Neither lets the elements be changed.
namespace Korvane::Media {

inline Ext::ListIterator<UIntList> begin(const UIntList& list) { return Ext::Detail::first(list); }
inline Ext::ListIterator<UIntList> end(const UIntList& list) { return Ext::Detail::past(list); }
inline Ext::ListIterator<UIntList> begin(UIntList& list) { return Ext::Detail::first(list); }
inline Ext::ListIterator<UIntList> end(UIntList& list) { return Ext::Detail::past(list); }

inline Ext::ListIterator<TrackDescriptorList> begin(const TrackDescriptorList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<TrackDescriptorList> end(const TrackDescriptorList& list) {
  return Ext::Detail::past(list);
}
inline Ext::ListIterator<TrackDescriptorList> begin(TrackDescriptorList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<TrackDescriptorList> end(TrackDescriptorList& list) {
  return Ext::Detail::past(list);
}

inline Ext::ListIterator<TrackBitRatesList> begin(const TrackBitRatesList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<TrackBitRatesList> end(const TrackBitRatesList& list) {
  return Ext::Detail::past(list);
}
inline Ext::ListIterator<TrackBitRatesList> begin(TrackBitRatesList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<TrackBitRatesList> end(TrackBitRatesList& list) {
  return Ext::Detail::past(list);
}

inline Ext::ListIterator<SRTStreamStatsDataList> begin(const SRTStreamStatsDataList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<SRTStreamStatsDataList> end(const SRTStreamStatsDataList& list) {
  return Ext::Detail::past(list);
}
inline Ext::ListIterator<SRTStreamStatsDataList> begin(SRTStreamStatsDataList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<SRTStreamStatsDataList> end(SRTStreamStatsDataList& list) {
  return Ext::Detail::past(list);
}

inline Ext::ListIterator<ST2110StreamStatsDataList> begin(const ST2110StreamStatsDataList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<ST2110StreamStatsDataList> end(const ST2110StreamStatsDataList& list) {
  return Ext::Detail::past(list);
}
inline Ext::ListIterator<ST2110StreamStatsDataList> begin(ST2110StreamStatsDataList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<ST2110StreamStatsDataList> end(ST2110StreamStatsDataList& list) {
  return Ext::Detail::past(list);
}

inline Ext::ListIterator<AudioPowerList> begin(const AudioPowerList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<AudioPowerList> end(const AudioPowerList& list) {
  return Ext::Detail::past(list);
}
inline Ext::ListIterator<AudioPowerList> begin(AudioPowerList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<AudioPowerList> end(AudioPowerList& list) {
  return Ext::Detail::past(list);
}

inline Ext::ListIterator<AudioTrackConfig> begin(const AudioTrackConfig& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<AudioTrackConfig> end(const AudioTrackConfig& list) {
  return Ext::Detail::past(list);
}
inline Ext::ListIterator<AudioTrackConfig> begin(AudioTrackConfig& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<AudioTrackConfig> end(AudioTrackConfig& list) {
  return Ext::Detail::past(list);
}

inline Ext::ListIterator<MultiviewerSourceList> begin(const MultiviewerSourceList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<MultiviewerSourceList> end(const MultiviewerSourceList& list) {
  return Ext::Detail::past(list);
}
inline Ext::ListIterator<MultiviewerSourceList> begin(MultiviewerSourceList& list) {
  return Ext::Detail::first(list);
}
inline Ext::ListIterator<MultiviewerSourceList> end(MultiviewerSourceList& list) {
  return Ext::Detail::past(list);
}

}  // namespace Korvane::Media
#endif  // KV_ENGINE_EXT_RANGES_H
