"""Small files of the names that the examples of kvtool have, for tests of its help and its JSON."""

import json
import os
import pathlib
import struct
import wave

SDP = """v=0
o=- 1 1 IN IP4 192.168.1.2
s=camera
t=0 0
"""
MEDIA = {
    "video": "m=video 5000 RTP/AVP 96\nc=IN IP4 239.1.1.1/32\na=rtpmap:96 raw/90000\n",
    "audio": "m=audio 5002 RTP/AVP 97\nc=IN IP4 239.1.1.2/32\na=rtpmap:97 L24/48000/2\n",
    "anc": "m=video 5004 RTP/AVP 100\nc=IN IP4 239.1.1.3/32\na=rtpmap:100 smpte291/90000\n",
}
WALL = {"edit_rate": "30000/1001", "sources": [
    {"id": 1, "channel_id": "CAM 1", "width": 960, "height": 540, "x_offset": 0, "y_offset": 0},
    {"id": 2, "channel_id": "CAM 2", "width": 960, "height": 540, "x_offset": 100, "y_offset": 0}]}


def ltc_samples(labels):
    """Longitudinal timecode (SMPTE ST 12-1) at 25 frames and 48000 samples per second, as 16-bit samples."""
    samples, level = [], 12000
    for hours, minutes, seconds, frames in labels:
        digits = [frames % 10, frames // 10, seconds % 10, seconds // 10, minutes % 10, minutes // 10,
                  hours % 10, hours // 10]
        word = sum(digit << (8 * i) for i, digit in enumerate(digits)) | 0xBFFC << 64
        for bit in range(80):
            level = -level
            samples += [level] * 12
            level = -level if word >> bit & 1 else level
            samples += [level] * 12
    return struct.pack(f"<{len(samples)}h", *samples)


def write_tape(path, labels):
    with wave.open(str(path), "wb") as tape:
        tape.setnchannels(1)
        tape.setsampwidth(2)
        tape.setframerate(48000)
        tape.writeframes(ltc_samples(labels))


def make_inputs(folder, clips):
    """Makes the files in `folder`, and goes there."""
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    clips = pathlib.Path(clips).resolve()
    os.chdir(folder)
    for name in ("clip.mxf", "clip.mov", "clip-with-gap.mxf"):
        pathlib.Path(name).unlink(missing_ok=True)
        pathlib.Path(name).symlink_to(clips / name.replace("clip.mov", "tmcd.mov"))
    texts = {"list.txt": "10:00:00:00\n10:00:00:01\n", "jump.txt": "10:00:00:00\n10:00:00:05\n",
             "words.txt": "40000000\n40000001\n", "wall.json": json.dumps(WALL), "secret.txt": "a secret of the test\n",
             "stream.sdp": SDP + MEDIA["video"] + MEDIA["audio"],
             **{f"{essence}.sdp": SDP + text for essence, text in MEDIA.items()}}
    for name, text in texts.items():
        pathlib.Path(name).write_text(text, encoding="utf-8")
    write_tape("tape.wav", [(10, 0, 0, frame) for frame in range(20)])
    write_tape("jump.wav", [(10, 0, second, frame) for second in (0, 7) for frame in range(10)])
