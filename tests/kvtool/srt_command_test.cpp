// Two SRT sockets on the loopback; and the counters of the protocol as a row of the table.

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <srt/srt.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <nlohmann/json.hpp>
#include <thread>

#include "ext/srt.h"
#include "kvtool/tool_run.h"
#include "media/srt_statistics.h"

namespace Korvane::Tool {
namespace {

TEST(SrtStatistics, ColumnsHaveTheCountersInTheOrderOfTheRecord) {
  CBytePerfMon counters{};
  counters.msTimeStamp = 101;
  counters.pktSentTotal = 102;
  counters.pktRecvTotal = 103;
  counters.msRTT = 104;
  counters.pktRcvLossTotal = 105;
  counters.mbpsRecvRate = 106;
  counters.msRcvTsbPdDelay = 107;
  counters.pktRetransTotal = 108;
  counters.pktSndLoss = 109;
  counters.pktRcvLoss = 110;
  counters.pktRetrans = 111;
  counters.pktSentACK = 112;
  counters.pktRecvACK = 113;
  counters.pktSentNAK = 114;
  counters.pktRecvNAK = 115;
  counters.mbpsSendRate = 116;
  counters.usSndDuration = 117;
  counters.pktReorderDistance = 118;
  counters.pktRcvAvgBelatedTime = 119;
  counters.pktRcvBelated = 120;
  counters.pktSndDrop = 121;
  counters.pktRcvUndecrypt = 122;
  counters.usPktSndPeriod = 123;
  counters.pktFlowWindow = 124;
  counters.pktCongestionWindow = 125;
  counters.pktFlightSize = 126;
  counters.mbpsBandwidth = 127;
  counters.mbpsMaxBW = 128;
  counters.byteMSS = 129;
  counters.pktSndBuf = 130;
  counters.msSndBuf = 131;
  counters.msSndTsbPdDelay = 132;
  counters.pktRcvBuf = 133;
  counters.msRcvBuf = 134;
  counters.pktReorderTolerance = 135;
  const std::vector<Cell> row = srt_row(Ext::from_srt(counters));
  ASSERT_EQ(35U, row.size());
  ASSERT_EQ(35U, srt_table().columns.size());
  for (std::size_t i = 0; i < row.size(); ++i)
    EXPECT_EQ(std::to_string(101 + i), text_of(row[i])) << srt_table().columns[i];
}

class SrtSession {
 public:
  SrtSession() {
    srt_setloglevel(0);
    srt_startup();
  }
  SrtSession(const SrtSession&) = delete;
  SrtSession& operator=(const SrtSession&) = delete;
  ~SrtSession() { srt_cleanup(); }
};

sockaddr_in loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

int free_port() {
  const int socket = ::socket(AF_INET, SOCK_DGRAM, 0);
  sockaddr_in address = loopback(0);
  socklen_t length = sizeof address;
  EXPECT_EQ(0, bind(socket, reinterpret_cast<sockaddr*>(&address), length));
  EXPECT_EQ(0, getsockname(socket, reinterpret_cast<sockaddr*>(&address), &length));
  close(socket);
  return ntohs(address.sin_port);
}

constexpr const char* kPassphrase = "a secret of the test";

// Listens on a port of its own and sends packets of 1316 bytes to whoever comes.
class Sender {
 public:
  explicit Sender(bool encrypted, std::chrono::milliseconds duration = std::chrono::minutes(1))
      : listener_(srt_create_socket()), duration_(duration) {
    if (encrypted)
      srt_setsockflag(listener_, SRTO_PASSPHRASE, kPassphrase,
                      static_cast<int>(std::string(kPassphrase).size()));
    sockaddr_in address = loopback(0);
    int length = sizeof address;
    EXPECT_EQ(0, srt_bind(listener_, reinterpret_cast<sockaddr*>(&address), length));
    EXPECT_EQ(0, srt_getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length));
    EXPECT_EQ(0, srt_listen(listener_, 1));
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { send(); });
  }
  Sender(const Sender&) = delete;
  Sender& operator=(const Sender&) = delete;
  ~Sender() { stop(); }

  std::string place() const { return "127.0.0.1:" + std::to_string(port_); }

  // How many packets it has given away at its end.
  unsigned int stop() {
    done_ = true;
    srt_close(listener_);
    if (thread_.joinable()) thread_.join();
    return offered_;
  }

 private:
  void send() {
    const SRTSOCKET peer = srt_accept(listener_, nullptr, nullptr);
    if (peer == SRT_INVALID_SOCK) return;
    const std::string packet(1316, 'x');
    const auto end = std::chrono::steady_clock::now() + duration_;
    while (!done_ && std::chrono::steady_clock::now() < end) {
      ++offered_;
      if (srt_sendmsg2(peer, packet.data(), 1316, nullptr) < 0) break;
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    srt_close(peer);
  }

  SRTSOCKET listener_;
  std::chrono::milliseconds duration_;
  int port_ = 0;
  std::atomic<bool> done_ = false;
  unsigned int offered_ = 0;
  std::thread thread_;
};

void expect_traffic(const nlohmann::json& samples, unsigned int offered) {
  ASSERT_EQ(2U, samples.size());
  const nlohmann::json& first = samples[0];
  const nlohmann::json& last = samples[1];
  EXPECT_EQ(35U, last.size());
  EXPECT_GT(first["packets_received"], 0);
  EXPECT_GT(last["packets_received"], first["packets_received"]);
  EXPECT_LE(last["packets_received"], offered);
  EXPECT_GE(last["timestamp"], first["timestamp"].get<int>() + 900);
  EXPECT_EQ(0, last["packets_sent"]);
  EXPECT_EQ(0, last["pkt_rcv_undecrypt"]);
  EXPECT_EQ(1500, last["byte_mss"]);  // the default
  EXPECT_EQ(120.0, last["latency"]);  // the default
  EXPECT_GT(last["bitrate"], 0.1);    // at most 200 packets a second, 2.1 megabits
  EXPECT_LT(last["bitrate"], 5);
}

TEST(SrtCommand, CountsWhatASenderSends) {
  const SrtSession session;
  Sender sender(false);
  const ToolResult result =
      run_tool({"srt", "--connect", sender.place(), "--period", "1", "--count", "2", "--json"});
  const unsigned int offered = sender.stop();
  EXPECT_EQ(0, result.code) << result.err;
  expect_traffic(nlohmann::json::parse(result.out), offered);
}

TEST(SrtCommand, CountsAnEncryptedStreamAndNeverPrintsThePassphrase) {
  const SrtSession session;
  const ScratchFile secret(std::string(kPassphrase) + "\n");
  Sender sender(true);
  const ToolResult result = run_tool({"srt", "--connect", sender.place(), "--passphrase-file",
                                      secret.path(), "--period", "1", "--count", "2", "--json"});
  const unsigned int offered = sender.stop();
  EXPECT_EQ(0, result.code) << result.err;
  expect_traffic(nlohmann::json::parse(result.out), offered);
  EXPECT_EQ(std::string::npos, (result.out + result.err).find(kPassphrase));
}

TEST(SrtCommand, AWrongPassphraseIsRefusedWithoutPrintingIt) {
  const SrtSession session;
  const ScratchFile secret("another secret\n");
  const Sender sender(true);
  const ToolResult result =
      run_tool({"srt", "--connect", sender.place(), "--passphrase-file", secret.path()});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ("", result.out);
  EXPECT_TRUE(result.err.starts_with("kvtool: " + sender.place() + ": no connection: "))
      << result.err;
  EXPECT_EQ(std::string::npos, result.err.find("secret"));
}

TEST(SrtCommand, ShowsATableAndSaysWhenTheSenderEnds) {
  const SrtSession session;
  const Sender sender(false, std::chrono::milliseconds(2500));
  const ToolResult result = run_tool({"srt", "--connect", sender.place(), "--period", "1"});
  EXPECT_EQ(1, result.code);
  EXPECT_TRUE(result.out.starts_with("    time s    rtt ms      Mb/s    received ")) << result.out;
  const auto samples = std::count(result.out.begin(), result.out.end(), '\n') - 1;
  EXPECT_GE(samples, 1);  // a slow machine may miss the second
  EXPECT_LE(samples, 2);
  EXPECT_EQ("kvtool: the connection ended after " + std::to_string(samples) + " samples\n",
            result.err);
}

TEST(SrtCommand, ListensForASender) {
  const SrtSession session;
  const int port = free_port();
  std::thread sender([port] {
    const SRTSOCKET socket = srt_create_socket();
    const sockaddr_in address = loopback(port);
    if (srt_connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) >= 0)
      for (int i = 0; i < 400; ++i) {
        if (srt_sendmsg2(socket, "12345678", 8, nullptr) < 0) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
      }
    srt_close(socket);
  });
  const ToolResult result =
      run_tool({"srt", "--listen", std::to_string(port), "--period", "1", "--count", "1", "--csv"});
  sender.join();
  EXPECT_EQ(0, result.code) << result.err;
  EXPECT_TRUE(result.out.starts_with("timestamp,packets_sent,packets_received,")) << result.out;
  EXPECT_EQ(2, std::count(result.out.begin(), result.out.end(), '\n'));
}

TEST(SrtCommand, BadUsageIsOneLine) {
  const std::string either = "srt needs either --connect HOST:PORT or --listen PORT";
  expect_refused(2, either, run_tool({"srt"}));
  for (const std::string place : {"9000", ":9000", "host:", "host:0", "host:65536", "host:x"})
    expect_refused(
        2,
        "--connect \"" + place + "\" is not supported (expected HOST:PORT, ports from 1 to 65535)",
        run_tool({"srt", "--connect", place}));
  expect_refused(2, "--listen \"x\" is not supported (expected PORT, ports from 1 to 65535)",
                 run_tool({"srt", "--listen", "x"}));
  const ScratchFile secret("short\n");
  expect_refused(1, secret.path() + ": a passphrase of 5 bytes (expected 10 to 79)",
                 run_tool({"srt", "--connect", "127.0.0.1:1", "--passphrase-file", secret.path()}));
}

TEST(SrtCommand, NobodyThereIsOneLine) {
  const ToolResult result = run_tool({"srt", "--connect", "127.0.0.1:1", "--wait", "1"});
  EXPECT_EQ(1, result.code);
  EXPECT_EQ("", result.out);
  EXPECT_TRUE(result.err.starts_with("kvtool: 127.0.0.1:1: no connection: ")) << result.err;
}

}  // namespace
}  // namespace Korvane::Tool
