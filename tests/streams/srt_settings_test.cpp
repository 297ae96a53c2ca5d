#include "media/srt_settings.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

namespace Korvane::Media::SrtSettingsTests {
namespace {

static_assert(sizeof(SrtSettings) == 2 * sizeof(void*));
static_assert(std::has_virtual_destructor_v<SrtSettings>);
static_assert(std::is_same_v<decltype(&SrtSettings::days_to_preserve_stats),
                             unsigned short (SrtSettings::*)() const>);
static_assert(
    std::is_same_v<decltype(&SrtSettings::polling_period), unsigned int (SrtSettings::*)() const>);
static_assert(
    std::is_same_v<decltype(&SrtSettings::operator==), bool (SrtSettings::*)(const SrtSettings&)>);
static_assert(
    std::is_same_v<decltype(&SrtSettings::operator!=), bool (SrtSettings::*)(const SrtSettings&)>);

void expect_fields(const SrtSettings& settings, unsigned short days, unsigned int period) {
  EXPECT_EQ(days, settings.days_to_preserve_stats());
  EXPECT_EQ(period, settings.polling_period());
}

// Both operators, in both directions.
void expect_equality(bool equal, SrtSettings a, SrtSettings b) {
  const SrtSettings& const_a = a;
  const SrtSettings& const_b = b;
  EXPECT_EQ(equal, a == const_b);
  EXPECT_EQ(equal, b == const_a);
  EXPECT_EQ(!equal, a != const_b);
  EXPECT_EQ(!equal, b != const_a);
}

TEST(SrtSettings, KeepsFor2DaysAndPollsEvery5AtFirst) { expect_fields(SrtSettings(), 2, 5); }

TEST(SrtSettings, StoresAnythingUnchecked) {
  expect_fields(SrtSettings(0, 0), 0, 0);
  expect_fields(SrtSettings(30, 60), 30, 60);
  expect_fields(SrtSettings(65535, std::numeric_limits<unsigned int>::max()), 65535, 4294967295U);
}

TEST(SrtSettings, CopiesAreIndependent) {
  SrtSettings source(7, 70);
  const SrtSettings copy(source);
  SrtSettings assigned;
  assigned = source;
  const SrtSettings moved(std::move(source));
  expect_fields(source, 7, 70);  // NOLINT(bugprone-use-after-move): moving copies
  source = SrtSettings(1, 10);
  expect_fields(source, 1, 10);
  expect_fields(copy, 7, 70);
  expect_fields(assigned, 7, 70);
  expect_fields(moved, 7, 70);
}

TEST(SrtSettings, AssignmentToItselfDoesNothing) {
  SrtSettings settings(7, 70);
  const SrtSettings& same = settings;
  settings = same;
  expect_fields(settings, 7, 70);
}

TEST(SrtSettings, IsEqualWhenBothFieldsAre) {
  expect_equality(true, SrtSettings(), SrtSettings(2, 5));
  expect_equality(true, SrtSettings(7, 70), SrtSettings(7, 70));
  expect_equality(false, SrtSettings(7, 70), SrtSettings(8, 70));
  expect_equality(false, SrtSettings(7, 70), SrtSettings(7, 71));
  expect_equality(false, SrtSettings(2, 5), SrtSettings(5, 2));
}

class CountedSettings final : public SrtSettings {
 public:
  explicit CountedSettings(int& ended) : ended_(ended) {}
  CountedSettings(const CountedSettings&) = delete;
  CountedSettings& operator=(const CountedSettings&) = delete;
  ~CountedSettings() override { ++ended_; }

 private:
  int& ended_;
};

TEST(SrtSettings, DerivedClassesEndThroughIt) {
  int ended = 0;
  std::unique_ptr<SrtSettings>(new CountedSettings(ended)).reset();
  EXPECT_EQ(1, ended);
}

}  // namespace
}  // namespace Korvane::Media::SrtSettingsTests
