// Properties over random integers:
//
//   TEST(Abs, IsNeverNegative) {
//     for_all([](int value) -> ::testing::AssertionResult {
//       return ::testing::AssertionResult(std::llabs(value) >= 0);
//     });
//   }
//
// Each property is called with 100000 sets of arguments: small numbers, numbers of every length,
// and the limits of their type. With KV_HAS_RAPIDCHECK, RapidCheck draws them, anew in each run,
// and on failure reports the smallest arguments that it finds and the RC_PARAMS that repeat the
// run. Without it, the arguments are the same in each run.

#ifndef KV_ENGINE_TESTS_SUPPORT_PROPERTY_H
#define KV_ENGINE_TESTS_SUPPORT_PROPERTY_H

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <ostream>
#include <string>
#include <tuple>

#ifdef KV_HAS_RAPIDCHECK
#include <rapidcheck.h>

#include <sstream>
#else
#include <array>
#include <random>
#endif

namespace Korvane {
namespace Detail {

constexpr int kCases = 100000;

// An argument; it prints as a number also where it is a character type.
template <typename Integer>
struct Drawn {
  Integer value;
};

template <typename Integer>
std::ostream& operator<<(std::ostream& out, const Drawn<Integer>& drawn) {
  return out << +drawn.value;
}

}  // namespace Detail
}  // namespace Korvane

#ifdef KV_HAS_RAPIDCHECK

// One in ten is at a limit of its type or beside it; RapidCheck on its own hardly ever gets there.
template <typename Integer>
struct rc::Arbitrary<Korvane::Detail::Drawn<Integer>> {
  static Gen<Korvane::Detail::Drawn<Integer>> arbitrary() {
    using Limits = std::numeric_limits<Integer>;
    return gen::map(
        gen::weightedOneOf<Integer>({{9, gen::arbitrary<Integer>()},
                                     {1, gen::element<Integer>(Limits::min(), Limits::min() + 1,
                                                               Limits::max() - 1, Limits::max())}}),
        [](Integer value) { return Korvane::Detail::Drawn<Integer>{value}; });
  }
};

namespace Korvane {
namespace Detail {

inline void check_cases(const std::function<rc::detail::CaseResult()>& one_case) {
  rc::detail::TestParams parameters = rc::detail::configuration().testParams;
  parameters.maxSuccess = kCases;
  const auto result = rc::detail::checkTestable(one_case, rc::detail::TestMetadata(), parameters);
  if (result.template is<rc::detail::SuccessResult>()) return;
  std::ostringstream report;
  rc::detail::printResultMessage(result, report);
  ADD_FAILURE() << report.str() << "\nRepeat with RC_PARAMS=\"seed=" << parameters.seed << '"';
}

// Draws inside the case, so that RapidCheck is instantiated for each type of argument only, and not
// for each list of them.
template <typename... Integers>
void check(const std::function<::testing::AssertionResult(Integers...)>& property) {
  check_cases([&] {
    using Result = rc::detail::CaseResult;
    const std::tuple<Drawn<Integers>...> drawn = {*rc::gen::arbitrary<Drawn<Integers>>()...};
    const ::testing::AssertionResult holds =
        std::apply([&](const auto&... arguments) { return property(arguments.value...); }, drawn);
    return holds ? Result(Result::Type::Success) : Result(Result::Type::Failure, holds.message());
  });
}

}  // namespace Detail
}  // namespace Korvane

#else

namespace Korvane {
namespace Detail {

using Source = std::mt19937_64;

template <typename Integer>
Integer draw(Source& source) {
  using Limits = std::numeric_limits<Integer>;
  constexpr std::array<Integer, 4> kEdges = {Limits::min(), Limits::min() + 1, Limits::max() - 1,
                                             Limits::max()};
  const auto choice = source() % 10;
  if (choice == 0) return kEdges[source() % kEdges.size()];

  // As many bits as chance will have, so that small numbers are not rare.
  const unsigned long long bits = source() >> source() % 64;
  const auto value = static_cast<Integer>(bits);
  return std::numeric_limits<Integer>::is_signed && choice % 2 == 0 ? static_cast<Integer>(~value)
                                                                    : value;
}

template <typename... Integers>
void check(const std::function<::testing::AssertionResult(Integers...)>& property) {
  Source source(20010921);
  for (int i = 0; i < kCases; ++i) {
    const std::tuple<Drawn<Integers>...> drawn = {Drawn<Integers>{draw<Integers>(source)}...};
    const ::testing::AssertionResult holds =
        std::apply([&](const auto&... arguments) { return property(arguments.value...); }, drawn);
    if (holds) continue;
    ADD_FAILURE() << "case " << i << ", arguments " << ::testing::PrintToString(drawn) << ": "
                  << holds.message();
    return;
  }
}

}  // namespace Detail
}  // namespace Korvane

#endif

namespace Korvane {

// `property` takes integers and returns a ::testing::AssertionResult.
template <typename Property>
void for_all(const Property& property) {
  Detail::check(std::function(property));
}

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_SUPPORT_PROPERTY_H
