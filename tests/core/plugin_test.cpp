// Exceptions cross the borders of core, engine, a module opened at run time and the program.

#include <gtest/gtest.h>

#include <memory>

#include "core/exception.h"
#include "support/dynamic_library.h"
#include "support/raises.h"
#include "timecode/timecode.h"

namespace Korvane {
namespace {

class Plugin : public ::testing::Test {
 protected:
  void SetUp() override { library_ = std::make_unique<DynamicLibrary>(KV_TEST_PLUGIN); }

  void call(const char* name) const { library_->function<void()>(name)(); }

  std::unique_ptr<DynamicLibrary> library_;
};

TEST_F(Plugin, ARaiseOfTheEngineIsCaughtByTypeInTheProgram) {
  EXPECT_TRUE(
      raises(NotSupported, "Frame rate not supported.", [&] { call("plugin_raise_from_engine"); }));
}

TEST_F(Plugin, ARaiseOfTheCoreIsCaughtByTypeInTheProgram) {
  EXPECT_TRUE(
      raises(MissingProperty, "text of the plug-in", [&] { call("plugin_raise_from_core"); }));
}

TEST_F(Plugin, AThrowOfThePluginIsCaughtByTypeInTheProgram) {
  EXPECT_TRUE(
      raises(UnmappedValue, "thrown by the plug-in", [&] { call("plugin_raise_directly"); }));
}

TEST_F(Plugin, ARaiseOfTheProgramIsCaughtByTypeInThePlugin) {
  auto* const plugin_catch = library_->function<unsigned int(void (*)())>("plugin_catch");
  EXPECT_EQ(15U, plugin_catch([] { exception_throw(InvalidArgument, "x", true); }));
  EXPECT_EQ(21U, plugin_catch([] { Timecode(48, false); }));
  EXPECT_EQ(0U, plugin_catch([] {}));
}

TEST_F(Plugin, TheMessageOutlivesThePlugin) {
  std::unique_ptr<Exception> kept;
  try {
    call("plugin_raise_from_core");
  } catch (const Exception& exception) {
    kept = std::make_unique<Exception>(exception);
  }
  library_.reset();
  ASSERT_NE(nullptr, kept);
  EXPECT_STREQ("text of the plug-in", kept->message());
  EXPECT_EQ(MissingProperty, kept->code());
}

}  // namespace
}  // namespace Korvane
