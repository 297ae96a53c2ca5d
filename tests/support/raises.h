// EXPECT_TRUE(raises(NotSupported, "Frame rate not supported.", [] { Timecode(48, false); }));

#ifndef KV_ENGINE_TESTS_SUPPORT_RAISES_H
#define KV_ENGINE_TESTS_SUPPORT_RAISES_H

#include <gtest/gtest.h>

#include <cstring>

#include "core/exception.h"

namespace Korvane {

// Whether `operation` raises an Exception of exactly this code and text.
template <typename Operation>
::testing::AssertionResult raises(ExceptionCode code, const char* message, Operation&& operation) {
  try {
    operation();
  } catch (const Exception& raised) {
    if (raised.code() == code && std::strcmp(raised.message(), message) == 0)
      return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "raised " << static_cast<unsigned int>(raised.code())
                                         << " \"" << raised.message() << '"';
  } catch (const std::exception& raised) {
    return ::testing::AssertionFailure() << "raised std::exception: " << raised.what();
  }
  return ::testing::AssertionFailure() << "raised nothing";
}

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_SUPPORT_RAISES_H
