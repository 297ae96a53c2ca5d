#include "run.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <exception>

#include "core/exception.h"
#include "failure.h"
#include "gaps_command.h"
#include "media_inputs.h"
#include "multiviewer_command.h"
#include "table_command.h"
#include "timecode_command.h"
#include "umid_command.h"

namespace Korvane::Tool {
namespace {

constexpr const char* kRateHelp =
    "Frame rate: 24, 25, 30, 50, 60, 23.976, 29.97, 59.94, 24000/1001, 30000/1001 or 60000/1001";

constexpr const char* kToolFooter =
    R"(Results go to standard output, everything else to standard error.
Exit codes: 0 done, 1 the input is bad or discontinuous, 2 wrong usage.

Examples:
  kvtool timecode '00:59:58;00' --rate 30 --drop
  kvtool gaps list.txt --rate 25
  kvtool probe clip.mxf
  kvtool formats --width 3840 --rate 60000/1001
  kvtool umid 060a2b340101010501010d1313000000a1b2c3d4e5f60718293a4b5c6d7e8f90

"kvtool COMMAND --help" tells more of each command.)";

constexpr const char* kTimecodeFooter = R"(EXPR is one of
  a label        10:00:00:12, 10:00:00;12; at 50 and 60 with the field mark as in
                 10:00:00:12.1, without it frames count at full rate
  a frame count  1500, -1 (beyond a day and below zero, too)
  a word         0x10000012: up to 8 digits a 32-bit ST 12 word, 9 to 16 the 64-bit one
  a clock time   10:00:00 or 10:00:00.480
With --drop a ":" before the frames is read as ";".

Examples:
  kvtool timecode '00:59:59;29' --rate 29.97 --drop --add 1
  kvtool timecode 10:00:00:25 --rate 50 --json
  kvtool timecode 10:00:75:00 --rate 25 --repair
  kvtool timecode 90000 --rate 25 --format '%HHh%MMm%SSs'

JSON keys: label, labels (dot_suffix, full_rate and omitted: how the field mark is
written; ..._colon: with ":" in place of ";"), frame_rate, edit_rate, drop_frame,
frame_number (in the second, at full rate), field_mark, frame_count,
absolute_frame_count (within the day), day, milliseconds, st12_32, st12_64.)";

constexpr const char* kGapsFooter = R"(Inputs:
  text     a label a line; blank lines and white space at the end do not count
  st12     a 32-bit ST 12 word a line in hexadecimal, with or without 0x
  st12-64  a 64-bit ST 12 word a line likewise
  ltc      audio whose first channel is longitudinal timecode, at rate 24, 25 or 30
  media    any media file whose frames carry timecode; needs no --rate
Words and longitudinal timecode tell themselves whether they are drop-frame.

Examples:
  kvtool gaps list.txt --rate 25
  kvtool gaps - --input st12 --rate 29.97 --drop < words.txt
  kvtool gaps tape.wav --input ltc --rate 25 --json
  kvtool gaps clip.mxf --input media

JSON keys: input, kind, rate, count, gap_count, first, last, gaps (each with the
position in "line", "sample" or "frame", expected, actual, and frames: how far actual
lies after expected).)";

constexpr const char* kProbeFooter =
    R"(Shows the UMIDs of the material, file and tape packages of an MXF file and the name of the
reel, and describes every stream as a track, with what the file itself states, and the raw
layouts that its pictures could be carried in; reads the timecodes of every frame of
the first video stream. Exit code 1 when a video has no timecode, is shorter than it says,
or when a timecode does not follow from the one before; a file of sound alone is fine.

Examples:
  kvtool probe clip.mxf
  kvtool probe clip.mov --json

JSON keys: file, container (format, name), video (a list: stream, codec, profile, width,
height, frame_rate, timecode_rate), source (null, or: master_mob_id, source_mob_id,
tape_mob_id, tape_name, null in it for what the file does not state), tracks (a list: stream, kind, codec, profile,
descriptor, null in it for what the file does not state; of pictures video_format,
image_info, layouts; of sound audio_info), frames (null when none are read), timecode
(null, or: stored with text and where, start, end, both with the keys of "kvtool timecode
--json"), frame_timecodes (null, or: carrier, count, list of frame and timecode,
differences with frame, expected, actual, frames), start_difference (null, or: container,
first_frame). All of it stands in the schema share/kv_Engine_r/probe.schema.json.)";

constexpr const char* kSdpFooter =
    R"(Reads the description of a stream whose essences travel apart (SMPTE ST 2110) from one
file, or from one for each essence, and lists where its video, audio and ancillary data are
sent. Essences are told by their encodings: raw and jxsv are video; L16, L24 and AM824
audio; smpte291 ancillary data. Of essences that are sent over two paths (a=group:DUP) the
first path is taken.

Examples:
  kvtool sdp stream.sdp
  kvtool sdp video.sdp audio.sdp anc.sdp --json

JSON: a list of three with the keys essence (video, audio, anc), and ip_address, port,
encoding, file, line, which are null for an essence that is not described.)";

constexpr const char* kSrtFooter =
    R"(Receives an SRT stream, drops what comes, and shows the protocol's own statistics of the
connection: a line for each sample, with --csv every field of it, with --json all samples
when it is done. The exit code is 1 when the connection ends before N samples, and without
--count always when it ends. Samples are kept for two days at most.

Fields have libsrt's counters, all 35 of them. Since the sample before: pkt_* and
mbps_send_rate, snd_duration (microseconds), bitrate (megabits per second received). Since
the connection began: timestamp (milliseconds), packets_sent, packets_received,
packets_lost (of the receiver), packets_retransmitted (of the sender). As they are now:
ms_rtt, latency (of the receiver, milliseconds), pkt_send_period (microseconds), windows,
bandwidths and buffers. As nothing is sent, what only a sender counts is 0: packets_sent,
packets_retransmitted, pkt_snd_loss, pkt_retrans, pkt_recv_ack, pkt_recv_nak,
mbps_send_rate, snd_duration, pkt_snd_drop, pkt_snd_buffer, ms_snd_buffer.

Examples:
  kvtool srt --connect 192.168.1.20:9000
  kvtool srt --listen 9000 --passphrase-file secret.txt --period 1
  kvtool srt --connect encoder:9000 --count 12 --csv > hour.csv)";

void add_timecode(CLI::App& app, TimecodeOptions& options) {
  CLI::App& command = *app.add_subcommand("timecode", "Show one timecode in every form");
  command.add_option("EXPR", options.expression, "Label, frame count, word or clock time")
      ->required()
      ->type_name("");
  command.add_option("--rate", options.rate, kRateHelp)->required()->type_name("RATE");
  command.add_flag("--drop", options.drop_frame, "Count drop-frame (rates 30 and 60)");
  command.add_flag("--repair", options.repair,
                   "Read a label leniently, and tell where strict reading differs");
  command.add_option("--add", options.add, "Step by so many frames")->type_name("N");
  command.add_option("--add-minutes", options.add_minutes, "Step by so many minutes")
      ->type_name("N");
  command.add_option("--days", options.days, "Step by so many days")->type_name("N");
  CLI::Option* const format = command.add_option(
      "--format", options.format, "Print only PATTERN with %HH, %MM, %SS and %FF replaced");
  format->type_name("PATTERN");
  command.add_flag("--json", options.json, "Print JSON")->excludes(format);
  command.footer(kTimecodeFooter);
}

void add_gaps(CLI::App& app, GapsOptions& options) {
  CLI::App& command = *app.add_subcommand("gaps", "Find the discontinuities of a sequence");
  command.add_option("FILE", options.file, "What to read; - is standard input, the default")
      ->type_name("");
  command.add_option("--input", options.input, "Kind of input, text by default")
      ->type_name("KIND")
      ->check(CLI::IsMember({"text", "st12", "st12-64", "ltc", "media"}));
  command.add_option("--rate", options.rate, kRateHelp)->type_name("RATE");
  command.add_flag("--drop", options.drop_frame, "Count drop-frame (rates 30 and 60)");
  command.add_flag("--field-mark", options.field_mark,
                   "st12-64: read the field mark where most words hold parity");
  command.add_flag("--json", options.json, "Print JSON");
  command.footer(kGapsFooter);
}

void add_probe(CLI::App& app, ProbeOptions& options) {
  CLI::App& command = *app.add_subcommand("probe", "Show the tracks and timecodes of a media file");
  command.add_option("FILE", options.file, "Media file")->required()->type_name("");
  command.add_flag("--json", options.json, "Print JSON");
  command.footer(kProbeFooter);
}

void add_table(CLI::App& app, const TableSubject& subject, TableRequest& request) {
  CLI::App& command = *app.add_subcommand(subject.command, subject.description);
  for (const TableOption& option : subject.options)
    command
        .add_option_function<std::string>(
            option.name,
            [&request, &option](const std::string& text) { request.given[option.name] = text; },
            option.help)
        ->type_name(option.type_name);
  CLI::Option* const csv = command.add_flag("--csv", request.csv, "Print comma-separated values");
  command.add_flag("--json", request.json, "Print JSON")->excludes(csv);
  command.footer(subject.footer);
}

void add_umid(CLI::App& app, UmidOptions& options) {
  CLI::App& command = *app.add_subcommand("umid", "Show what identifiers of material say");
  command.add_option("TEXT", options.texts, "UMID in hexadecimal digits")
      ->required()
      ->type_name("");
  command.add_flag("--json", options.json, "Print JSON");
  command.footer(umid_footer());
}

void add_multiviewer(CLI::App& app, MultiviewerOptions& options) {
  CLI::App& command = *app.add_subcommand("multiviewer", "Check and draw a multiviewer layout");
  command.add_option("LAYOUT", options.file, "Layout in JSON; - is standard input")
      ->required()
      ->type_name("");
  command.add_option("--svg", options.svg, "Draw it into this file, too")->type_name("FILE");
  command.footer(multiviewer_footer());
}

void add_sdp(CLI::App& app, SdpOptions& options) {
  CLI::App& command = *app.add_subcommand("sdp", "Show the endpoints of ST 2110 descriptions");
  command.add_option("FILE", options.files, "Session description; - is standard input")
      ->required()
      ->type_name("");
  command.add_flag("--json", options.json, "Print JSON");
  command.footer(kSdpFooter);
}

void add_srt(CLI::App& app, SrtOptions& options) {
  CLI::App& command = *app.add_subcommand("srt", "Show the statistics of an SRT connection");
  CLI::Option* const connect =
      command.add_option("--connect", options.connect, "Call the sender there");
  connect->type_name("HOST:PORT");
  command.add_option("--listen", options.listen, "Wait for a sender there")
      ->type_name("PORT")
      ->excludes(connect);
  command.add_option("--passphrase-file", options.passphrase_file, "Decrypt by its first line")
      ->type_name("FILE");
  command.add_option("--period", options.period, "Seconds between samples, 5 by default")
      ->type_name("N")
      ->check(CLI::Range(1U, 86400U));
  command.add_option("--count", options.count, "End after N samples")
      ->type_name("N")
      ->check(CLI::Range(1U, 172800U));
  command.add_option("--wait", options.wait, "Seconds to wait for the connection, 30 by default")
      ->type_name("N")
      ->check(CLI::Range(1U, 86400U));
  CLI::Option* const csv = command.add_flag("--csv", options.csv, "Print comma-separated values");
  command.add_flag("--json", options.json, "Print JSON")->excludes(csv);
  command.footer(kSrtFooter);
}

// "a, b or c".
std::string command_names(CLI::App& app) {
  const std::vector<CLI::App*> commands = app.get_subcommands({});
  std::string names;
  for (const CLI::App* const command : commands) {
    if (!names.empty()) names += command == commands.back() ? " or " : ", ";
    names += command->get_name();
  }
  return names;
}

void say(Streams& streams, std::string line) {
  std::replace(line.begin(), line.end(), '\n', ' ');
  streams.err << "kvtool: " << line << '\n';
}

int parse_and_run(const std::vector<std::string>& args, Streams& streams) {
  CLI::App app("Shows and checks the timecodes and tracks of broadcast material.", "kvtool");
  app.set_version_flag("--version", "kvtool " KVTOOL_VERSION);
  app.require_subcommand(0, 1);
  app.footer(kToolFooter);
  TimecodeOptions timecode;
  GapsOptions gaps;
  ProbeOptions probe;
  UmidOptions umid;
  MultiviewerOptions multiviewer;
  SdpOptions sdp;
  SrtOptions srt;
  add_timecode(app, timecode);
  add_gaps(app, gaps);
  add_probe(app, probe);
  const TableSubject* const subjects[] = {&formats_subject(), &colorspaces_subject(),
                                          &essence_subject()};
  TableRequest table;
  for (const TableSubject* const subject : subjects) add_table(app, *subject, table);
  add_umid(app, umid);
  add_multiviewer(app, multiviewer);
  add_sdp(app, sdp);
  add_srt(app, srt);

  try {
    app.parse(std::vector<std::string>(args.rbegin(), args.rend()));
  } catch (const CLI::CallForHelp&) {
    streams.out << app.help();
    return Done;
  } catch (const CLI::CallForVersion& version) {
    streams.out << version.what() << '\n';
    return Done;
  } catch (const CLI::ParseError& error) {
    throw UsageError(std::string(error.what()) + " (see kvtool --help)");
  }
  if (app.got_subcommand("timecode")) return run_timecode(timecode, streams);
  if (app.got_subcommand("gaps")) return run_gaps(gaps, streams);
  if (app.got_subcommand("probe")) return run_probe(probe, streams);
  if (app.got_subcommand("umid")) return run_umid(umid, streams);
  if (app.got_subcommand("multiviewer")) return run_multiviewer(multiviewer, streams);
  if (app.got_subcommand("sdp")) return run_sdp(sdp, streams);
  if (app.got_subcommand("srt")) return run_srt(srt, streams);
  for (const TableSubject* const subject : subjects)
    if (app.got_subcommand(subject->command)) return run_table(*subject, table, streams);
  throw UsageError("no command given (expected " + command_names(app) + "; see kvtool --help)");
}

}  // namespace

int run(const std::vector<std::string>& args, Streams& streams) {
  try {
    const int code = parse_and_run(args, streams);
    if (streams.out.flush()) return code;
    say(streams, "the results cannot be written to standard output");
  } catch (const UsageError& error) {
    say(streams, error.what());
    return WrongUsage;
  } catch (const Exception& error) {
    say(streams, error.message());
  } catch (const std::exception& error) {
    say(streams, error.what());
  }
  return BadInput;
}

}  // namespace Korvane::Tool
