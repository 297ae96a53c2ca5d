#include <gtest/gtest.h>

#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

TEST(NoMedia, CommandsThatNeedItSaySo) {
  const ScratchFile file("any");
  expect_refused(2, "this build has no media support, which probe needs",
                 run_tool({"probe", file.path()}));
  expect_refused(2, "this build has no media support, which srt needs",
                 run_tool({"srt", "--listen", "9000"}));
  expect_refused(2, "this build has no media support, which sdp needs",
                 run_tool({"sdp", file.path()}));
  expect_refused(2, "this build has no media support, which gaps --input media needs",
                 run_tool({"gaps", file.path(), "--input", "media"}));
  expect_refused(2, "this build has no media support, which gaps --input ltc needs",
                 run_tool({"gaps", file.path(), "--input", "ltc", "--rate", "25"}));
}

}  // namespace
}  // namespace Korvane::Tool
