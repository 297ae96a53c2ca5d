#include "media/track_bit_rates.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>
#include <utility>

namespace Korvane::Media::TrackBitRatesTests {
namespace {

static_assert(sizeof(TrackBitRates) == sizeof(void*));
static_assert(!std::is_polymorphic_v<TrackBitRates>);
// Compiles only while the getter of the kind is not const and that of the rate is.
[[maybe_unused]] constexpr TrackDescriptorEssenceKind (TrackBitRates::*kKind)() =
    &TrackBitRates::essence_kind;
[[maybe_unused]] constexpr unsigned int (TrackBitRates::*kRate)() const = &TrackBitRates::bit_rate;

void expect_fields(TrackBitRates rates, TrackDescriptorEssenceKind kind, unsigned int bit_rate) {
  EXPECT_EQ(kind, rates.essence_kind());
  EXPECT_EQ(bit_rate, rates.bit_rate());
}

TEST(TrackBitRates, IsZeroAtFirst) { expect_fields(TrackBitRates(), EssenceNone, 0); }

TEST(TrackBitRates, StoresAnythingUnchecked) {
  const auto no_kind = static_cast<TrackDescriptorEssenceKind>(0xFFFFFFFFU);
  expect_fields(TrackBitRates(EssencePcm, 1152000), EssencePcm, 1152000);
  expect_fields(TrackBitRates(no_kind, std::numeric_limits<unsigned int>::max()), no_kind,
                4294967295U);
}

TEST(TrackBitRates, SetsEachFieldApart) {
  TrackBitRates rates(EssencePcm, 1);
  rates.essence_kind(EssenceMpeg2);
  expect_fields(rates, EssenceMpeg2, 1);
  rates.bit_rate(50000000);
  expect_fields(rates, EssenceMpeg2, 50000000);
}

TEST(TrackBitRates, CopiesAreIndependent) {
  TrackBitRates source(EssencePcm, 1152000);
  const TrackBitRates copy(source);
  TrackBitRates assigned(EssenceDnxhd, 145);
  assigned = source;
  const TrackBitRates moved(std::move(source));
  expect_fields(source, EssencePcm, 1152000);  // NOLINT(bugprone-use-after-move): moving copies
  source.essence_kind(EssenceAiff);
  source.bit_rate(2);
  expect_fields(copy, EssencePcm, 1152000);
  expect_fields(assigned, EssencePcm, 1152000);
  expect_fields(moved, EssencePcm, 1152000);
}

TEST(TrackBitRates, AssignmentToItselfDoesNothing) {
  TrackBitRates rates(EssencePcm, 1152000);
  const TrackBitRates& same = rates;
  rates = same;
  expect_fields(rates, EssencePcm, 1152000);
}

}  // namespace
}  // namespace Korvane::Media::TrackBitRatesTests
