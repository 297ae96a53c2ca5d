#include "core/exception.h"

#include <gtest/gtest.h>

#include <exception>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/raises.h"

namespace Korvane {
namespace {

static_assert(sizeof(Exception) == 16);
static_assert(std::has_virtual_destructor_v<Exception>);
static_assert(!std::is_base_of_v<std::exception, Exception>);
static_assert(std::is_nothrow_copy_constructible_v<Exception>);
static_assert(std::is_nothrow_move_constructible_v<Exception>);

TEST(Exception, EnforceReturnsWhenTheConditionHolds) {
  EXPECT_NO_THROW(exception_enforce(true, InvalidArgument, "unused", true));
}

TEST(Exception, EnforceRaisesCodeAndMessage) {
  EXPECT_TRUE(raises(MissingProperty, "no width",
                     [] { exception_enforce(false, MissingProperty, "no width", true); }));
}

TEST(Exception, ThrowRaisesCodeAndMessageWhateverTheFlag) {
  for (const bool flag : {false, true})
    EXPECT_TRUE(raises(NotSupported, "no", [&] { exception_throw(NotSupported, "no", flag); }));
}

TEST(Exception, CodesHaveTheirPublishedValues) {
  EXPECT_EQ(14U, static_cast<unsigned int>(StringConversionFailed));
  EXPECT_EQ(15U, static_cast<unsigned int>(InvalidArgument));
  EXPECT_EQ(21U, static_cast<unsigned int>(NotSupported));
  EXPECT_EQ(22U, static_cast<unsigned int>(UnmappedValue));
  EXPECT_EQ(24U, static_cast<unsigned int>(MissingProperty));
}

TEST(Exception, TheMessageIsACopy) {
  std::string text = "width";
  const Exception exception(InvalidArgument, text.c_str());
  text = "XXXXX";
  EXPECT_STREQ("width", exception.message());
}

TEST(Exception, NullMessageIsEmpty) {
  EXPECT_STREQ("", Exception(InvalidArgument, nullptr).message());
}

TEST(Exception, MovingLeavesTheSourceUsable) {
  Exception source(UnmappedValue, "text");
  const Exception target(std::move(source));
  EXPECT_STREQ("text", source.message());  // NOLINT(bugprone-use-after-move): that is the promise
  EXPECT_EQ(source.message(), target.message()) << "one message, shared";
}

TEST(Exception, MessageLivesAsLongAsAnyCopy) {
  std::vector<Exception> copies;
  {
    const Exception original(InvalidArgument, "kept");
    copies.assign(3, original);
  }
  copies.resize(1, copies[0]);
  EXPECT_STREQ("kept", copies[0].message());
  EXPECT_EQ(InvalidArgument, copies[0].code());
}

TEST(Exception, Assignment) {
  Exception a(InvalidArgument, "a");
  Exception b(NotSupported, "b");
  const Exception& same = a;
  a = same;
  EXPECT_STREQ("a", a.message());
  a = b;
  EXPECT_STREQ("b", a.message());
  b = Exception(MissingProperty, "c");
  EXPECT_STREQ("c", b.message());
  EXPECT_EQ(NotSupported, a.code());
}

TEST(Exception, PassesBetweenThreadsByExceptionPtr) {
  std::exception_ptr pointer;
  std::thread([&] {
    try {
      exception_throw(InvalidArgument, "from another thread", true);
    } catch (...) {
      pointer = std::current_exception();
    }
  }).join();

  std::vector<std::thread> threads;
  std::vector<std::string> seen(8);
  for (std::string& text : seen) {
    threads.emplace_back([&text, pointer] {
      for (int i = 0; i < 1000; ++i) {
        try {
          std::rethrow_exception(pointer);
        } catch (const Exception& exception) {
          Exception copy(exception);
          text = Exception(std::move(copy)).message();
        }
      }
    });
  }
  pointer = nullptr;
  for (std::thread& thread : threads) thread.join();
  for (const std::string& text : seen) EXPECT_EQ("from another thread", text);
}

}  // namespace
}  // namespace Korvane
