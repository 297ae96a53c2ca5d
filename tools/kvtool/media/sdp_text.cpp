#include "media/sdp_text.h"

#include <arpa/inet.h>
#include <gst/sdp/gstsdpmessage.h>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <sstream>
#include <string_view>

#include "failure.h"
#include "printable.h"

namespace Korvane::Tool {
namespace {

struct MessageDeleter {
  void operator()(GstSDPMessage* message) const { gst_sdp_message_free(message); }
};
using MessagePtr = std::unique_ptr<GstSDPMessage, MessageDeleter>;

// The parser does not tell where what it read stands.
struct SdpLine {
  std::size_t number = 0;  // 0: there is none
  std::string text;
};

struct SdpSection {
  SdpLine medium;
  SdpLine connection;  // its own, otherwise the session's
};

[[noreturn]] void refuse_line(const std::string& file, const SdpLine& line,
                              const std::string& complaint, const std::string& expected) {
  throw InputError(file + ": line " + std::to_string(line.number) + ": " + in_quotes(line.text) +
                   ' ' + complaint + " (expected " + expected + ')');
}

void check_form(const std::string& file, const SdpLine& line) {
  if (line.number == 1 && line.text != "v=0")
    refuse_line(file, line, "begins no session description", "v=0");
  if (line.text.size() < 2 || line.text[0] < 'a' || line.text[0] > 'z' || line.text[1] != '=')
    refuse_line(file, line, "is no line of a session description", "a letter and \"=\"");
}

std::vector<SdpLine> split_lines(const std::string& file, const std::string& text) {
  std::vector<SdpLine> lines;
  std::istringstream in(text);
  std::size_t number = 0;
  for (std::string line; std::getline(in, line);) {
    if (line.ends_with('\r')) line.pop_back();
    ++number;
    if (line.empty() && number > 1) continue;
    lines.push_back({number, line});
    check_form(file, lines.back());
  }
  if (lines.empty()) refuse_line(file, {1, ""}, "begins no session description", "v=0");
  return lines;
}

std::vector<SdpSection> sections_of(const std::vector<SdpLine>& lines) {
  SdpLine session_connection;
  std::vector<SdpSection> sections;
  for (const SdpLine& line : lines) {
    if (line.text.starts_with("m=")) sections.push_back({line, {}});
    if (!line.text.starts_with("c=")) continue;
    SdpLine& connection = sections.empty() ? session_connection : sections.back().connection;
    if (connection.number == 0) connection = line;
  }
  for (SdpSection& section : sections)
    if (section.connection.number == 0) section.connection = session_connection;
  return sections;
}

MessagePtr parse_message(const std::string& file, const std::string& text) {
  GstSDPMessage* message = nullptr;
  if (gst_sdp_message_new(&message) != GST_SDP_OK) throw std::bad_alloc();
  MessagePtr owner(message);
  const auto* const bytes = reinterpret_cast<const guint8*>(text.data());
  if (gst_sdp_message_parse_buffer(bytes, static_cast<guint>(text.size()), message) != GST_SDP_OK)
    throw InputError(file + ": cannot be read (expected a session description)");
  return owner;
}

std::string text_of(const char* text) { return text != nullptr ? text : ""; }

bool same_name(std::string_view a, std::string_view b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char x, char y) { return lower(x) == lower(y); });
}

// The encoding name of the first payload type: "96 raw/90000" gives "raw". Empty without one.
std::string encoding_of(const GstSDPMedia& media) {
  const std::string format = text_of(gst_sdp_media_get_format(&media, 0)) + ' ';
  for (guint i = 0;; ++i) {
    const char* const value = gst_sdp_media_get_attribute_val_n(&media, "rtpmap", i);
    if (value == nullptr) return {};
    const std::string map = value;
    if (map.starts_with(format)) return map.substr(format.size(), map.find('/') - format.size());
  }
}

struct Essence {
  std::string_view medium;
  std::string_view encoding;
  Media::SdpType type;
};

// SMPTE ST 2110-20, -22, -40, -30 (two) and -31.
constexpr Essence kEssences[] = {
    {"video", "raw", Media::SdpVideo},    {"video", "jxsv", Media::SdpVideo},
    {"video", "smpte291", Media::SdpAnc}, {"audio", "L16", Media::SdpAudio},
    {"audio", "L24", Media::SdpAudio},    {"audio", "AM824", Media::SdpAudio},
};

Media::SdpType type_of(const std::string& file, const SdpLine& line, const GstSDPMedia& media,
                       const std::string& encoding) {
  const std::string medium = text_of(gst_sdp_media_get_media(&media));
  if (medium != "video" && medium != "audio")
    refuse_line(file, line, "is no essence of SMPTE ST 2110", "m=video or m=audio");
  for (const Essence& essence : kEssences)
    if (essence.medium == medium && same_name(essence.encoding, encoding)) return essence.type;
  refuse_line(file, line,
              encoding.empty() ? "has no a=rtpmap for its payload type"
                               : "has the encoding " + in_quotes(encoding),
              medium == "video" ? "raw, jxsv or smpte291" : "L16, L24 or AM824");
}

// The parser takes 5004x for 5004 and x for 0.
int port_of(const std::string& file, const SdpLine& line, const GstSDPMedia& media) {
  const guint port = gst_sdp_media_get_port(&media);
  std::istringstream words(line.text);
  std::string medium;
  std::string written;
  words >> medium >> written;
  if (port < 1 || port > 65535 || written.substr(0, written.find('/')) != std::to_string(port))
    refuse_line(file, line, "has no port to send to", "1 to 65535");
  return static_cast<int>(port);
}

bool is_address(int family, const std::string& text) {
  std::array<unsigned char, 16> bytes{};
  return inet_pton(family, text.c_str(), bytes.data()) == 1 &&
         std::any_of(bytes.begin(), bytes.end(), [](unsigned char byte) { return byte != 0; });
}

std::string address_of(const std::string& file, const SdpSection& section,
                       const GstSDPMessage& message, const GstSDPMedia& media) {
  if (section.connection.number == 0)
    refuse_line(file, section.medium, "has no address", "a c= line for it or for the session");
  const GstSDPConnection* const connection = gst_sdp_media_connections_len(&media) > 0
                                                 ? gst_sdp_media_get_connection(&media, 0)
                                                 : gst_sdp_message_get_connection(&message);
  const std::string family = text_of(connection->addrtype);
  std::string address = text_of(connection->address);
  const bool is_known =
      text_of(connection->nettype) == "IN" && ((family == "IP4" && is_address(AF_INET, address)) ||
                                               (family == "IP6" && is_address(AF_INET6, address)));
  if (!is_known)
    refuse_line(file, section.connection, "has no address to send to",
                "such as c=IN IP4 239.10.0.1/64");
  return address;
}

// Whether `mid` stands behind another in a group of duplicates.
bool is_second_path(const GstSDPMessage& message, const GstSDPMedia& media) {
  const char* const mid = gst_sdp_media_get_attribute_val(&media, "mid");
  if (mid == nullptr) return false;
  for (guint i = 0;; ++i) {
    const char* const group = gst_sdp_message_get_attribute_val_n(&message, "group", i);
    if (group == nullptr) return false;
    std::istringstream words(group);
    std::string semantics;
    std::string first;
    words >> semantics >> first;
    for (std::string word; semantics == "DUP" && words >> word;)
      if (word == mid) return true;
  }
}

}  // namespace

std::vector<SdpMedium> read_sdp(const std::string& file, const std::string& text) {
  const std::vector<SdpLine> lines = split_lines(file, text);
  const std::vector<SdpSection> sections = sections_of(lines);
  if (sections.empty())
    refuse_line(file, lines.back(), "is the last line, without any medium", "m=video or m=audio");
  const MessagePtr message = parse_message(file, text);
  if (gst_sdp_message_medias_len(message.get()) != sections.size())
    throw InputError(file + ": cannot be read (expected a session description)");

  std::vector<SdpMedium> media;
  for (guint i = 0; i < sections.size(); ++i) {
    const GstSDPMedia& parsed = *gst_sdp_message_get_media(message.get(), i);
    const SdpLine& line = sections[i].medium;
    const std::string encoding = encoding_of(parsed);
    const Media::SdpType type = type_of(file, line, parsed, encoding);
    const int port = port_of(file, line, parsed);
    media.push_back({type, address_of(file, sections[i], *message, parsed), port, encoding, file,
                     line.number, is_second_path(*message, parsed)});
  }
  return media;
}

}  // namespace Korvane::Tool
