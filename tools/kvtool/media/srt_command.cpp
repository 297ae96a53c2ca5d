#include <netdb.h>
#include <srt/srt.h>

#include <array>
#include <charconv>
#include <chrono>
#include <iomanip>
#include <memory>
#include <sstream>

#include "ext/srt.h"
#include "failure.h"
#include "input.h"
#include "media/srt_settings.h"
#include "media/srt_statistics.h"
#include "media/srt_stream_stats_data_list.h"
#include "media_inputs.h"
#include "printable.h"

namespace Korvane::Tool {
namespace {

using Clock = std::chrono::steady_clock;

// The library that speaks the protocol starts threads of its own.
class SrtLibrary {
 public:
  SrtLibrary() {
    srt_setloglevel(0);  // emergencies alone
    if (srt_startup() < 0) throw InputError("SRT cannot be started (expected memory for it)");
  }
  SrtLibrary(const SrtLibrary&) = delete;
  SrtLibrary& operator=(const SrtLibrary&) = delete;
  ~SrtLibrary() { srt_cleanup(); }
};

class SrtSocket {
 public:
  explicit SrtSocket(SRTSOCKET socket) : socket_(socket) {}
  SrtSocket(const SrtSocket&) = delete;
  SrtSocket& operator=(const SrtSocket&) = delete;
  ~SrtSocket() {
    if (socket_ != SRT_INVALID_SOCK) srt_close(socket_);
  }
  SRTSOCKET get() const { return socket_; }

 private:
  SRTSOCKET socket_;
};

[[noreturn]] void refuse_srt(const std::string& where, const std::string& reason) {
  throw InputError(printable_name(where) + ": no connection: " + reason +
                   " (expected an SRT peer that sends)");
}

struct AddressDeleter {
  void operator()(addrinfo* list) const { freeaddrinfo(list); }
};
using AddressPtr = std::unique_ptr<addrinfo, AddressDeleter>;

AddressPtr resolve(const std::string& where, const std::string& host, const std::string& port) {
  addrinfo hints{};
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_DGRAM;
  hints.ai_flags = AI_NUMERICSERV | AI_PASSIVE;
  addrinfo* list = nullptr;
  const int error = getaddrinfo(host.empty() ? nullptr : host.c_str(), port.c_str(), &hints, &list);
  if (error != 0) refuse_srt(where, gai_strerror(error));
  return AddressPtr(list);
}

std::string checked_port(const std::string& option, const std::string& text,
                         const std::string& port) {
  unsigned int number = 0;
  const char* const end = port.data() + port.size();
  const auto [stop, error] = std::from_chars(port.data(), end, number);
  if (error != std::errc() || stop != end || number < 1 || number > 65535)
    throw UsageError(option + ' ' + in_quotes(text) + " is not supported (expected " +
                     (option == "--listen" ? "PORT" : "HOST:PORT") + ", ports from 1 to 65535)");
  return port;
}

// "[::1]:9000" is host ::1.
std::pair<std::string, std::string> split_host(const std::string& text) {
  const std::size_t colon = text.rfind(':');
  std::string host = text.substr(0, colon == std::string::npos ? 0 : colon);
  if (host.size() > 2 && host.front() == '[' && host.back() == ']')
    host = host.substr(1, host.size() - 2);
  const std::string port = colon == std::string::npos ? "" : text.substr(colon + 1);
  return {host, checked_port("--connect", text, host.empty() ? "" : port)};
}

template <typename Value>
void set_option(SRTSOCKET socket, SRT_SOCKOPT option, const Value& value) {
  if (srt_setsockflag(socket, option, &value, sizeof value) < 0)
    throw InputError(std::string("SRT cannot be set up: ") + srt_getlasterror_str() +
                     " (expected its usual options)");
}

std::string read_passphrase(const std::string& path, Streams& streams) {
  Input input(path, streams.in);
  std::string line;
  std::getline(input.stream(), line);
  if (line.ends_with('\r')) line.pop_back();
  if (line.size() < 10 || line.size() > 79)
    throw InputError(printable_name(input.name()) + ": a passphrase of " +
                     std::to_string(line.size()) + " bytes (expected 10 to 79)");
  return line;
}

void prepare(SRTSOCKET socket, const std::string& passphrase) {
  constexpr int kReceiveMilliseconds = 50;
  set_option(socket, SRTO_RCVTIMEO, kReceiveMilliseconds);
  if (!passphrase.empty() && srt_setsockflag(socket, SRTO_PASSPHRASE, passphrase.data(),
                                             static_cast<int>(passphrase.size())) < 0)
    throw InputError("SRT refuses the passphrase (expected 10 to 79 bytes)");
}

SRTSOCKET connect_to(const SrtOptions& options, SRTSOCKET socket) {
  const auto [host, port] = split_host(options.connect);
  set_option(socket, SRTO_CONNTIMEO, static_cast<int>(options.wait * 1000));
  const AddressPtr address = resolve(options.connect, host, port);
  if (srt_connect(socket, address->ai_addr, static_cast<int>(address->ai_addrlen)) >= 0)
    return socket;
  const int reason = srt_getrejectreason(socket);
  refuse_srt(options.connect,
             reason != SRT_REJ_UNKNOWN ? srt_rejectreason_str(reason) : srt_getlasterror_str());
}

SRTSOCKET accept_on(const SrtOptions& options, SRTSOCKET listener) {
  const std::string where = "port " + checked_port("--listen", options.listen, options.listen);
  const AddressPtr address = resolve(where, "0.0.0.0", options.listen);
  const auto length = static_cast<int>(address->ai_addrlen);
  if (srt_bind(listener, address->ai_addr, length) < 0 || srt_listen(listener, 1) < 0)
    refuse_srt(where, srt_getlasterror_str());
  const SRTSOCKET listeners[] = {listener};
  const SRTSOCKET accepted =
      srt_accept_bond(listeners, 1, static_cast<std::int64_t>(options.wait) * 1000);
  if (accepted == SRT_INVALID_SOCK)
    refuse_srt(where, "nobody came within " + std::to_string(options.wait) + " seconds");
  return accepted;
}

void write_live_text(std::ostream& out, const Media::SRTStreamStatsData& sample, bool first,
                     Ink ink) {
  if (first)
    out << ink.heading(
               "    time s    rtt ms      Mb/s    received      lost   belated  undecrypted  "
               "buffer "
               "ms")
        << '\n';
  std::ostringstream line;  // leaves the format of `out` as it was
  line << std::fixed << std::setprecision(3) << std::setw(10)
       << static_cast<double>(sample.timestamp()) / 1000 << std::setw(10) << sample.ms_rtt()
       << std::setw(10) << sample.bitrate() << std::setw(12) << sample.packets_received()
       << std::setw(10) << sample.packets_lost() << std::setw(10) << sample.pkt_rcv_belated()
       << std::setw(13) << sample.pkt_rcv_undecrypt() << std::setw(11) << sample.ms_rcv_buffer();
  out << line.str() << '\n';
}

// JSON is written as a whole.
void write_live(Streams& streams, const SrtOptions& options,
                const Media::SRTStreamStatsData& sample, bool first) {
  std::ostream& out = streams.out;
  if (options.csv && first) write_csv(out, srt_table());
  if (options.csv) write_csv_row(out, srt_row(sample));
  if (!options.csv && !options.json) write_live_text(out, sample, first, streams.out_ink);
  out << std::flush;
}

Table sample_table(const Media::SRTStreamStatsDataList& samples) {
  Table table = srt_table();
  for (std::size_t i = 0; i < samples.size(); ++i)
    table.rows.push_back(srt_row(*samples.value_at(i)));
  return table;
}

// Takes and drops what comes until `end`. False when the connection is gone.
bool receive_until(SRTSOCKET socket, Clock::time_point end) {
  std::array<char, 1456> packet{};
  while (Clock::now() < end) {
    const int received = srt_recvmsg(socket, packet.data(), static_cast<int>(packet.size()));
    if (received >= 0) continue;
    const int error = srt_getlasterror(nullptr);
    if (error != SRT_ETIMEOUT && error != SRT_EASYNCRCV) return false;
  }
  return true;
}

// How many samples are taken: as many as asked for, otherwise all that are kept.
unsigned long long wanted_samples(const SrtOptions& options, const Media::SrtSettings& settings) {
  if (options.count != 0) return options.count;
  return settings.days_to_preserve_stats() * 86400ULL / settings.polling_period();
}

// Fewer than wanted when the connection ends.
Media::SRTStreamStatsDataList poll_statistics(SRTSOCKET socket, const SrtOptions& options,
                                              const Media::SrtSettings& settings,
                                              Streams& streams) {
  const unsigned long long count = wanted_samples(options, settings);
  Media::SRTStreamStatsDataList samples;
  Clock::time_point next = Clock::now();
  while (samples.size() < count) {
    next += std::chrono::seconds(settings.polling_period());
    const bool open = receive_until(socket, next);
    CBytePerfMon counters{};
    if (!open || srt_bstats(socket, &counters, 1) < 0) break;
    samples.add_value(Ext::from_srt(counters));
    write_live(streams, options, *samples.value_at(samples.size() - 1), samples.size() == 1);
  }
  return samples;
}

}  // namespace

int run_srt(const SrtOptions& options, Streams& streams) {
  if (options.connect.empty() == options.listen.empty())
    throw UsageError("srt needs either --connect HOST:PORT or --listen PORT");
  if (!options.connect.empty()) split_host(options.connect);
  const std::string passphrase =
      options.passphrase_file.empty() ? "" : read_passphrase(options.passphrase_file, streams);
  const SrtLibrary library;
  const SrtSocket own(srt_create_socket());
  prepare(own.get(), passphrase);
  const bool listens = !options.listen.empty();
  const SrtSocket peer(listens ? accept_on(options, own.get()) : SRT_INVALID_SOCK);
  const SRTSOCKET socket = listens ? peer.get() : connect_to(options, own.get());

  const Media::SrtSettings settings(Media::SrtSettings().days_to_preserve_stats(), options.period);
  const Media::SRTStreamStatsDataList samples = poll_statistics(socket, options, settings, streams);
  if (options.json) write_json(streams.out, sample_table(samples));
  if (samples.size() == wanted_samples(options, settings)) return Done;
  complain(streams, "the connection ended after " + std::to_string(samples.size()) + " samples");
  return BadInput;
}

}  // namespace Korvane::Tool
