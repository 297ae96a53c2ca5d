// Equality as clients write it, of every class that has it: what each operator allows compiles in
// each language version, without a warning.

#include "kv_engine.h"

namespace {

template <typename T>
T&& moved(T& object) {
  return static_cast<T&&>(object);
}

// For every class: the left side may be changed.
template <typename T>
bool equal(T& left, T& right, const T& fixed) {
  return left == right && left == moved(right) && left == fixed && moved(left) == right &&
         moved(left) == moved(right) && moved(left) == fixed;
}

// For classes with operator!=.
template <typename T>
bool unequal(T& left, T& right, const T& fixed) {
  return left != right && left != moved(right) && left != fixed && moved(left) != right &&
         moved(left) != moved(right) && moved(left) != fixed;
}

// For classes whose operators are const.
template <typename T>
bool fixed_left(T& other, const T& left, const T& right) {
  return left == right && left != right && left == other && left != other && left == moved(other) &&
         left != moved(other);
}

}  // namespace

template <typename T>
struct OnlyEqual {
  static bool compare(T& left, T& right) { return equal<T>(left, right, right); }
};

template <typename T>
struct Published {
  static bool compare(T& left, T& right) {
    return equal<T>(left, right, right) && unequal<T>(left, right, right);
  }
};

template <typename T>
struct PublishedConst {
  static bool compare(T& left, T& right) {
    return Published<T>::compare(left, right) && fixed_left<T>(left, left, right);
  }
};

// A client's own class keeps its own operators.
class OwnConfig : public Korvane::Media::SdpConfig {
 public:
  OwnConfig();
};

struct Own {};
Own operator==(const OwnConfig& left, const OwnConfig& right);
Own operator!=(const OwnConfig& left, const OwnConfig& right);

Own compare_own(OwnConfig& left, OwnConfig& right);
Own compare_own(OwnConfig& left, OwnConfig& right) {
  static_cast<void>(left != right);
  return left == right;
}

// A null pointer becomes a handle, as published.
bool compare_with_pointer(Korvane::Media::TrackDescriptorSharedPtr& handle);
bool compare_with_pointer(Korvane::Media::TrackDescriptorSharedPtr& handle) {
  return handle == nullptr;
}

template struct OnlyEqual<Korvane::Media::MultiviewerSourceList>;
template struct OnlyEqual<Korvane::Media::TrackDescriptorSharedPtr>;
template struct Published<Korvane::Media::MultiviewerConfig>;
template struct Published<Korvane::Media::MultiviewerSource>;
template struct Published<Korvane::Media::SdpConfig>;
template struct Published<Korvane::Media::SrtSettings>;
template struct Published<Korvane::Timecode>;
template struct PublishedConst<Korvane::AudioInfo>;
template struct PublishedConst<Korvane::ImageInfo>;
template struct PublishedConst<Korvane::Media::CameraInfo>;
template struct PublishedConst<Korvane::Media::SRTStreamStatsData>;
template struct PublishedConst<Korvane::Media::ST2110StreamStatsData>;
