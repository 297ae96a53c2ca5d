// A fraction for edit rates, sample rates and aspect ratios: 25 frames per second is 25/1, 29.97 is
// 30000/1001. Kept as given: never reduced, never checked.

#ifndef KV_ENGINE_FOUNDATION_RATIONAL32_H
#define KV_ENGINE_FOUNDATION_RATIONAL32_H

namespace Korvane {

struct Rational32 {
  int numerator;    // frames or samples, or the width of a picture
  int denominator;  // seconds, or its height; 0 is kept, too
};

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_RATIONAL32_H
