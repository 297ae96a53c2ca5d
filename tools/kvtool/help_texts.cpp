#include "help_texts.h"

namespace Korvane::Tool {

const char* const kToolFooter =
    R"(Results go to standard output, everything else to standard error. Colours appear on a
terminal only, and not where NO_COLOR is set. The JSON of each command has a schema,
share/kv_Engine_r/COMMAND.schema.json.

Examples:
  kvtool timecode '00:59:58;00' --rate 30 --drop
  kvtool gaps list.txt --rate 25
  kvtool probe clip.mxf
  kvtool formats --width 3840 --rate 60000/1001
  kvtool umid 060a2b340101010501010d1313000000a1b2c3d4e5f60718293a4b5c6d7e8f90

Exit codes:
  0  done
  1  the input is bad or discontinuous
  2  wrong usage

"kvtool COMMAND --help" tells more of each command.)";

const char* const kTimecodeFooter = R"(EXPR:
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

JSON:
  An object with the keys label, labels (dot_suffix, full_rate and omitted: how the field
  mark is written; ..._colon: with ":" in place of ";"), frame_rate, edit_rate, drop_frame,
  frame_number (in the second, at full rate), field_mark, frame_count,
  absolute_frame_count (within the day), day, milliseconds, st12_32, st12_64.

Exit codes:
  0  done
  1  EXPR is no timecode at that rate
  2  wrong usage)";

const char* const kGapsFooter = R"(Inputs:
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

JSON:
  An object with the keys input, kind, rate, count, gap_count, first, last, gaps (each with
  the position in "line", "sample" or "frame", expected, actual, and frames: how far actual
  lies after expected).

Exit codes:
  0  every timecode follows from the one before
  1  a gap was found, or the input is bad
  2  wrong usage)";

const char* const kProbeFooter =
    R"(Shows the UMIDs of the material, file and tape packages of an MXF file and the name of the
reel, and describes every stream as a track, with what the file itself states, and the raw
layouts that its pictures could be carried in; reads the timecodes of every frame of
the first video stream.

Examples:
  kvtool probe clip.mxf
  kvtool probe clip.mov --json

JSON:
  An object with the keys file, container (format, name), video (a list: stream, codec,
  profile, width, height, frame_rate, timecode_rate), source (null, or: master_mob_id,
  source_mob_id, tape_mob_id, tape_name, null in it for what the file does not state),
  tracks (a list: stream, kind, codec, profile, descriptor, null in it for what the file
  does not state; of pictures video_format, image_info, layouts; of sound audio_info),
  frames (null when none are read), timecode (null, or: stored with text and where, start,
  end, both with the keys of "kvtool timecode --json"), frame_timecodes (null, or: carrier,
  count, list of frame and timecode, differences with frame, expected, actual, frames),
  start_difference (null, or: container, first_frame).

Exit codes:
  0  done, also for a file of sound alone
  1  a video has no timecode or is shorter than it says, a timecode does not follow from the
     one before, or the file cannot be read
  2  wrong usage)";

const char* const kSdpFooter =
    R"(Reads the description of a stream whose essences travel apart (SMPTE ST 2110) from one
file, or from one for each essence, and lists where its video, audio and ancillary data are
sent. Essences are told by their encodings: raw and jxsv are video; L16, L24 and AM824
audio; smpte291 ancillary data. Of essences that are sent over two paths (a=group:DUP) the
first path is taken.

Examples:
  kvtool sdp stream.sdp
  kvtool sdp video.sdp audio.sdp anc.sdp --json

JSON:
  A list of three with the keys essence (video, audio, anc), and ip_address, port,
  encoding, file, line, which are null for an essence that is not described.

Exit codes:
  0  done
  1  a description is bad, or an essence is described twice
  2  wrong usage)";

const char* const kSrtFooter =
    R"(Receives an SRT stream, drops what comes, and shows the protocol's own statistics of the
connection: a line for each sample, with --csv every field of it, with --json all samples
when it is done. Samples are kept for two days at most.

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
  kvtool srt --connect encoder:9000 --count 720 --csv > hour.csv

JSON:
  A list with an object for each sample, which has the 35 fields as keys.

Exit codes:
  0  N samples were taken
  1  there was no connection, or it ended before that (without --count whenever it ends)
  2  wrong usage)";

}  // namespace Korvane::Tool
