// How objects compare whose operator== was published without const. C++20 also tries `right ==
// left` and finds two objects that may be changed ambiguous; a friend that takes just these
// decides.

#ifndef KV_ENGINE_FOUNDATION_COMPARISON_H
#define KV_ENGINE_FOUNDATION_COMPARISON_H

namespace Korvane {
namespace Detail {

// Of parameters Left&& and Right&&: bool where both are a T that may be changed, with a name or
// without. Nothing else, so that neither conversions nor operators of derived classes are touched.
template <typename T, typename Left, typename Right>
struct BothChangeable {};

template <typename T>
struct BothChangeable<T, T&, T&> {
  using Result = bool;
};

template <typename T>
struct BothChangeable<T, T&, T> {
  using Result = bool;
};

template <typename T>
struct BothChangeable<T, T, T&> {
  using Result = bool;
};

template <typename T>
struct BothChangeable<T, T, T> {
  using Result = bool;
};

template <typename T, typename Left, typename Right>
using Equality = typename BothChangeable<T, Left, Right>::Result;

}  // namespace Detail
}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_COMPARISON_H
