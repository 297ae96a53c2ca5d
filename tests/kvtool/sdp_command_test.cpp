// Descriptions as ST 2110 devices send them, with the endpoints that stand in them.

#include <gtest/gtest.h>

#include "kvtool/tool_run.h"

namespace Korvane::Tool {
namespace {

const std::string kSession =
    "v=0\r\n"
    "o=- 1443716955 1443716955 IN IP4 192.168.1.10\r\n"
    "s=Camera 1\r\n"
    "t=0 0\r\n";

const std::string kVideo =
    "m=video 20000 RTP/AVP 96\r\n"
    "c=IN IP4 239.10.0.1/64\r\n"
    "a=source-filter: incl IN IP4 239.10.0.1 192.168.1.10\r\n"
    "a=rtpmap:96 raw/90000\r\n"
    "a=fmtp:96 sampling=YCbCr-4:2:2; width=1920; height=1080; exactframerate=25; depth=10; "
    "TCS=SDR; colorimetry=BT709; PM=2110GPM; SSN=ST2110-20:2017; TP=2110TPN;\r\n"
    "a=ts-refclk:ptp=IEEE1588-2008:39-A7-94-FF-FE-07-CB-D0:37\r\n"
    "a=mediaclk:direct=0\r\n";

const std::string kAudio =
    "m=audio 30000 RTP/AVP 97\r\n"
    "c=IN IP6 ff15::101\r\n"
    "a=rtpmap:97 L24/48000/2\r\n"
    "a=fmtp:97 channel-order=SMPTE2110.(ST)\r\n"
    "a=ptime:1\r\n";

const std::string kAnc =
    "m=video 40000 RTP/AVP 100\r\n"
    "a=rtpmap:100 smpte291/90000\r\n"
    "a=fmtp:100 VPID_Code=132;\r\n";

TEST(SdpCommand, ReadsOneFileOfThreeEssences) {
  const std::string text = kSession + "c=IN IP4 239.10.0.9/64\r\n" + kVideo + kAudio + kAnc;
  const ToolResult result = run_tool({"sdp", "-", "--json"}, text);
  EXPECT_EQ(0, result.code);
  EXPECT_EQ("", result.err);
  EXPECT_EQ(R"([
  {
    "essence": "video",
    "ip_address": "239.10.0.1",
    "port": 20000,
    "encoding": "raw",
    "file": "standard input",
    "line": 6
  },
  {
    "essence": "audio",
    "ip_address": "ff15::101",
    "port": 30000,
    "encoding": "L24",
    "file": "standard input",
    "line": 13
  },
  {
    "essence": "anc",
    "ip_address": "239.10.0.9",
    "port": 40000,
    "encoding": "smpte291",
    "file": "standard input",
    "line": 18
  }
]
)",
            result.out);
}

TEST(SdpCommand, ReadsAFileForEachEssenceInAnyOrder) {
  const ScratchFile video(kSession + kVideo, ".sdp");
  const ScratchFile audio(kSession + kAudio, ".sdp");
  const ScratchFile anc(kSession + "c=IN IP4 239.10.0.9/64\r\n" + kAnc, ".sdp");
  const ToolResult result = run_tool({"sdp", anc.path(), audio.path(), video.path()});
  EXPECT_EQ(0, result.code);
  std::istringstream words(result.out.substr(result.out.find('\n')));
  const std::string expected[] = {"video", "239.10.0.1", "20000", "raw",      video.path(), "5",
                                  "audio", "ff15::101",  "30000", "L24",      audio.path(), "5",
                                  "anc",   "239.10.0.9", "40000", "smpte291", anc.path(),   "6"};
  for (const std::string& word : expected) {
    std::string found;
    words >> found;
    EXPECT_EQ(word, found);
  }
}

TEST(SdpCommand, AnEssenceThatIsNotDescribedHasNoEndpoint) {
  const ToolResult result = run_tool({"sdp", "-"}, kSession + kAudio);
  EXPECT_EQ(0, result.code);
  EXPECT_NE(std::string::npos, result.out.find("\nvideo    -           ")) << result.out;
  EXPECT_NE(std::string::npos, result.out.find("\naudio    ff15::101   ")) << result.out;
  EXPECT_NE(std::string::npos, result.out.find("\nanc      -           ")) << result.out;
}

TEST(SdpCommand, TakesTheFirstOfTwoPaths) {
  std::string second = kVideo + "a=mid:two\r\n";
  second.replace(second.find("239.10.0.1"), 10, "239.20.0.1");
  const std::string text = kSession + "a=group:DUP one two\r\n" + kVideo + "a=mid:one\r\n" + second;
  const ToolResult result = run_tool({"sdp", "-"}, text);
  EXPECT_EQ(0, result.code) << result.err;
  EXPECT_NE(std::string::npos, result.out.find("\nvideo    239.10.0.1  20000")) << result.out;
  EXPECT_EQ(std::string::npos, result.out.find("239.20.0.1"));
}

TEST(SdpCommand, ASecondEndpointOfAnEssenceIsRefused) {
  const ScratchFile first(kSession + kVideo, ".sdp");
  expect_refused(1,
                 "standard input: line 5: a second video endpoint (expected one, which " +
                     first.path() + " has in line 5)",
                 run_tool({"sdp", first.path(), "-"}, kSession + kVideo));
}

struct BadDescription {
  std::string text;
  const char* line;  // without "standard input: "
};

std::string replaced(std::string text, const std::string& part, const std::string& other) {
  return text.replace(text.find(part), part.size(), other);
}

TEST(SdpCommand, BadDescriptionsAreOneLineWithTheirPlace) {
  const std::string good = kSession + kVideo;
  const BadDescription descriptions[] = {
      {"", "line 1: \"\" begins no session description (expected v=0)"},
      {"\n", "line 1: \"\" begins no session description (expected v=0)"},
      {"{\"v\": 0}", "line 1: \"{\"v\": 0}\" begins no session description (expected v=0)"},
      {kSession + "hello\n",
       "line 5: \"hello\" is no line of a session description (expected a letter and \"=\")"},
      {kSession,
       "line 4: \"t=0 0\" is the last line, without any medium (expected m=video or m=audio)"},
      {replaced(good, "m=video", "m=application"),
       "line 5: \"m=application 20000 RTP/AVP 96\" is no essence of SMPTE ST 2110 (expected "
       "m=video or m=audio)"},
      {replaced(good, "raw/90000", "H264/90000"),
       "line 5: \"m=video 20000 RTP/AVP 96\" has the encoding \"H264\" (expected raw, jxsv or "
       "smpte291)"},
      {replaced(good, "rtpmap:96", "rtpmap:97"),
       "line 5: \"m=video 20000 RTP/AVP 96\" has no a=rtpmap for its payload type (expected raw, "
       "jxsv or smpte291)"},
      {replaced(kSession + kAudio, "L24/48000/2", "opus/48000/2"),
       "line 5: \"m=audio 30000 RTP/AVP 97\" has the encoding \"opus\" (expected L16, L24 or "
       "AM824)"},
      {replaced(good, "20000", "0"),
       "line 5: \"m=video 0 RTP/AVP 96\" has no port to send to (expected 1 to 65535)"},
      {replaced(good, "20000", "65536"),
       "line 5: \"m=video 65536 RTP/AVP 96\" has no port to send to (expected 1 to 65535)"},
      {replaced(good, "20000", "-5"),
       "line 5: \"m=video -5 RTP/AVP 96\" has no port to send to (expected 1 to 65535)"},
      {replaced(good, "20000", "2000x"),
       "line 5: \"m=video 2000x RTP/AVP 96\" has no port to send to (expected 1 to 65535)"},
      {replaced(good, "c=IN IP4 239.10.0.1/64\r\n", ""),
       "line 5: \"m=video 20000 RTP/AVP 96\" has no address (expected a c= line for it or for the "
       "session)"},
      {replaced(good, "239.10.0.1", "239.10.0"),
       "line 6: \"c=IN IP4 239.10.0/64\" has no address to send to (expected such as c=IN IP4 "
       "239.10.0.1/64)"},
      {replaced(good, "239.10.0.1", "0.0.0.0"),
       "line 6: \"c=IN IP4 0.0.0.0/64\" has no address to send to (expected such as c=IN IP4 "
       "239.10.0.1/64)"},
      {replaced(good, "IP4 239.10.0.1", "IP6 239.10.0.1"),
       "line 6: \"c=IN IP6 239.10.0.1/64\" has no address to send to (expected such as c=IN IP4 "
       "239.10.0.1/64)"},
      {replaced(good, "239.10.0.1/64", "camera"),
       "line 6: \"c=IN IP4 camera\" has no address to send to (expected such as c=IN IP4 "
       "239.10.0.1/64)"},
      {replaced(good, "c=IN IP4 239.10.0.1/64", "c="),
       "line 6: \"c=\" has no address to send to (expected such as c=IN IP4 239.10.0.1/64)"},
  };
  for (const BadDescription& description : descriptions) {
    SCOPED_TRACE(description.line);
    expect_refused(1, std::string("standard input: ") + description.line,
                   run_tool({"sdp", "-"}, description.text));
  }
}

TEST(SdpCommand, MissingAndEndlessFilesAreRefused) {
  expect_refused(1, "no-such.sdp: no such file (expected a readable file)",
                 run_tool({"sdp", "no-such.sdp"}));
  expect_refused(
      1, "standard input: too long (expected a session description of at most 1048576 bytes)",
      run_tool({"sdp", "-"}, std::string(1048577, '\n')));
}

}  // namespace
}  // namespace Korvane::Tool
