#include "memory/case_list.h"

namespace Korvane::MemoryTests {
namespace {

using Media::AudioPowerList;
using Media::AudioTrackConfig;
using Media::CameraInfo;
using Media::Cameras;
using Media::CameraState;
using Media::InterplayWebService;
using Media::MultiviewerConfig;
using Media::MultiviewerSource;
using Media::MultiviewerSourceList;

const char* const kOld = "a text that is too long for a short buffer";
const char* const kNew = "another text that is too long for the buffer of the former one";
const wchar_t* const kWideOld = L"a text that is too long for a short buffer";
const wchar_t* const kWideNew = L"another text that is too long for the buffer of the former one";

constexpr auto kCamera = static_cast<Cameras>(1);
constexpr auto kState = static_cast<CameraState>(2);

void add_lists(Cases& cases) {
  ClassCases powers(cases, [] {
    AudioPowerList made;
    made.add_value(-1.5, true);
    made.add_value(-2.5, false);
    return made;
  });
  powers.constructor<>();
  powers.copying([] { return AudioPowerList(); });
  powers.getter("size", &AudioPowerList::size);
  powers.method("add_value", &AudioPowerList::add_value, -3.5, true);
  powers.method("track_at", &AudioPowerList::track_at, Korvane::size_t{0});
  powers.method("track_muted_at", &AudioPowerList::track_muted_at, Korvane::size_t{0});
  powers.reading([](const AudioPowerList& read) {
    return text_of(read.track_at(1)) + ' ' + text_of(read.track_muted_at(0)) +
           text_of(read.track_muted_at(1)) + text_of(read.track_muted_at(2));
  });

  ClassCases channels(cases, [] {
    AudioTrackConfig made;
    made.add_source_channel(7);
    made.add_source_channel(8);
    return made;
  });
  channels.constructor<>();
  channels.copying([] { return AudioTrackConfig(); });
  channels.getter("source_channel_count", &AudioTrackConfig::source_channel_count);
  channels.method("add_source_channel", &AudioTrackConfig::add_source_channel, 9U);
  channels.method("source_channel_for_index", &AudioTrackConfig::source_channel_for_index, 1U);
  channels.method("source_channel_for_index", &AudioTrackConfig::source_channel_for_index, 2U);
  channels.reading(
      [](const AudioTrackConfig& read) { return text_of(read.source_channel_for_index(1)); });
}

void add_camera(Cases& cases) {
  ClassCases info(cases, [] { return CameraInfo(kCamera, kState, true, kOld); });
  info.constructor<>();
  info.constructor<Cameras>(kCamera);
  info.constructor<Cameras, CameraState>(kCamera, kState);
  info.constructor<Cameras, CameraState, bool, const char*>(kCamera, kState, true, kNew);
  info.constructor<Cameras, CameraState, bool, const char*>(kCamera, kState, true, nullptr);
  info.copying([] { return CameraInfo(kCamera, kState, false, kNew); });
  info.getter("camera", &CameraInfo::camera);
  info.getter("state", &CameraInfo::state);
  info.method("state", &CameraInfo::state, static_cast<CameraState>(1));
  info.property("recording", &CameraInfo::recording, &CameraInfo::recording, false);
  info.property("clip_name", &CameraInfo::clip_name, &CameraInfo::clip_name, kNew);
  info.method("update_info", &CameraInfo::update_info, static_cast<CameraState>(1), false, kNew);
  const CameraInfo other(kCamera, kState, true, kNew);
  info.method("operator==", &CameraInfo::operator==, other);
  info.method("operator!=", &CameraInfo::operator!=, other);
}

void add_web_service(Cases& cases) {
  ClassCases service(cases,
                     [] { return InterplayWebService(kOld, 80, kOld, kOld, kOld, true, 30); });
  service.constructor<const char*, int, const char*, const char*, const char*, bool, int>(
      kNew, 443, kNew, kNew, kNew, false, 60);
  service.copying([] { return InterplayWebService(kNew, 443, kNew, kNew, kNew, false, 60); });
  service.getter("server", &InterplayWebService::server);
  service.getter("port", &InterplayWebService::port);
  service.getter("workgroup", &InterplayWebService::workgroup);
  service.getter("user", &InterplayWebService::user);
  service.getter("password", &InterplayWebService::password);
  service.getter("use_https", &InterplayWebService::use_https);
  service.getter("timeout", &InterplayWebService::timeout);
  service.getter("base_url", &InterplayWebService::base_url);
}

void add_multiviewer_config(Cases& cases) {
  const Rational32 rate = {25, 1};
  ClassCases config(cases, [=] { return MultiviewerConfig(kWideOld, 1, 2, 3, rate, true); });
  config.constructor<>();
  config.constructor<const wchar_t*, int, int, int, Rational32, bool>(kWideNew, 1, 2, 3, rate,
                                                                      false);
  config.copying([] { return MultiviewerConfig(); });
  config.getter("server_address", &MultiviewerConfig::server_address);
  config.getter("port", &MultiviewerConfig::port);
  config.getter("width", &MultiviewerConfig::width);
  config.getter("height", &MultiviewerConfig::height);
  config.getter("keep_aspect_ratio", &MultiviewerConfig::keep_aspect_ratio);
  config.getter("edit_rate", &MultiviewerConfig::edit_rate);
  const MultiviewerConfig other(kWideOld, 1, 2, 3, rate, false);
  config.method("operator==", &MultiviewerConfig::operator==, other);
  config.method("operator!=", &MultiviewerConfig::operator!=, other);
}

void add_multiviewer_sources(Cases& cases) {
  ClassCases source(cases, [] { return MultiviewerSource(1, kWideOld, 2, 3, 4, 5, true); });
  source.constructor<int, const wchar_t*, int, int, int, int, bool>(1, kWideNew, 2, 3, 4, 5, true);
  source.copying([] { return MultiviewerSource(9, kWideNew, 8, 7, 6, 5, false); });
  source.getter("id", &MultiviewerSource::id);
  source.getter("channel_id", &MultiviewerSource::channel_id);
  source.getter("width", &MultiviewerSource::width);
  source.getter("height", &MultiviewerSource::height);
  source.getter("x_offset", &MultiviewerSource::x_offset);
  source.getter("y_offset", &MultiviewerSource::y_offset);
  source.getter("use_audio", &MultiviewerSource::use_audio);
  const MultiviewerSource other(1, kWideNew, 2, 3, 4, 5, false);
  source.method("operator==", &MultiviewerSource::operator==, other);
  source.method("operator!=", &MultiviewerSource::operator!=, other);

  const auto make_list = [] {
    MultiviewerSourceList made;
    made.add_source(MultiviewerSource(1, kWideOld, 2, 3, 4, 5, true));
    made.add_source(MultiviewerSource(2, kWideOld, 2, 3, 4, 5, true));
    return made;
  };
  ClassCases list(cases, make_list);
  list.constructor<>();
  list.copying([] { return MultiviewerSourceList(); });
  list.getter("size", &MultiviewerSourceList::size);
  list.method("add_source", &MultiviewerSourceList::add_source, other);
  list.method("source_at", &MultiviewerSourceList::source_at, Korvane::size_t{1});
  list.method("source_at", &MultiviewerSourceList::source_at, Korvane::size_t{2});
  list.method("operator==", &MultiviewerSourceList::operator==, make_list());
  list.reading([](const MultiviewerSourceList& read) { return text_of(read.source_at(1)); });
}

}  // namespace

void add_setting_cases(Cases& cases) {
  add_lists(cases);
  add_camera(cases);
  add_web_service(cases);
  add_multiviewer_config(cases);
  add_multiviewer_sources(cases);
}

}  // namespace Korvane::MemoryTests
