"""Failures as Python sees them, and the log."""

import copy
import os
import pickle
import subprocess
import sys
import unittest

import korvane
from korvane import ExceptionCode, Timecode


class Errors(unittest.TestCase):
    def failure(self):
        with self.assertRaises(korvane.Error) as raised:
            Timecode(30, 0, 1, 0, 0, drop_frame=True, field_mark=False)
        return raised.exception

    def test_code_and_message(self):
        error = self.failure()
        text = "Frames 0 and 1 not valid on minutes non-divisable per 10 for drop frame rates."
        self.assertIsInstance(error, Exception)
        self.assertIs(type(error.code), ExceptionCode)
        self.assertEqual(error.code, ExceptionCode.InvalidArgument)
        self.assertEqual(error.code, 15)
        self.assertEqual((error.message, str(error)), (text, text))
        self.assertEqual(repr(error), f"Error(ExceptionCode.InvalidArgument, '{text}')")

    def test_an_error_can_be_copied_and_pickled(self):
        error = self.failure()
        for other in (copy.copy(error), pickle.loads(pickle.dumps(error))):
            self.assertEqual((other.code, other.message), (error.code, error.message))

    def test_every_code(self):
        kinds = korvane.Colorspaces
        for code, call in (
            (ExceptionCode.NotSupported, lambda: Timecode(48, False)),
            (ExceptionCode.UnmappedValue, lambda: korvane.ColorspacesUtils.planes_for_colorspace(kinds(99))),
            (ExceptionCode.MissingProperty, lambda: korvane.VideoFormatsHelper.format_from_descriptor(
                korvane.PictureTrackDescriptor())),
        ):
            with self.subTest(code=code), self.assertRaises(korvane.Error) as raised:
                call()
            self.assertEqual(raised.exception.code, code)

    def test_no_memory_is_memory_error(self):
        # In a process of its own, which may take little more than it has.
        program = """
import resource, korvane
text = "x" * (64 << 20)
with open("/proc/self/statm") as file: pages = int(file.read().split()[0])
limit = pages * resource.getpagesize() + (96 << 20)
resource.setrlimit(resource.RLIMIT_AS, (limit, limit))
camera = korvane.CameraInfo()
camera.clip_name = "kept"
try:
    camera.clip_name = text
except MemoryError:
    print("MemoryError", camera.clip_name)
"""
        run = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True, check=True)
        self.assertEqual(run.stdout, "MemoryError kept\n")

    def test_text_that_cpp_would_cut_is_refused(self):
        for call in (
            lambda: korvane.Umid("06\0"),
            lambda: setattr(korvane.CameraInfo(), "clip_name", "a\0b"),
            lambda: korvane.TimecodeUtils.string_to_timecode("00:00:00:00\0", 25, False),
        ):
            with self.assertRaisesRegex(ValueError, "embedded null character"):
                call()


class Log(unittest.TestCase):
    def tearDown(self):
        korvane.Logger.set_sink(None)

    def difference(self):
        korvane.TimecodeUtils.log_timecode_difference("tape", Timecode(25, 0, False), Timecode(25, 2, False))

    def test_lines_reach_the_sink(self):
        lines = []
        korvane.Logger.set_sink(lines.append)
        self.difference()
        korvane.Logger.info("\u00e4")
        self.assertEqual(lines, [
            "tape: Found timecode difference, expected: 00:00:00:01 actual: 00:00:00:02", "\u00e4"])

    def test_a_sink_is_let_go(self):
        lines = []
        sink = lambda text: lines.append(text)
        korvane.Logger.set_sink(sink)
        before = sys.getrefcount(sink)
        korvane.Logger.set_sink(lines.append)
        self.assertEqual(sys.getrefcount(sink), before - 1)
        for wrong in (5, "text"):
            with self.assertRaises(TypeError):
                korvane.Logger.set_sink(wrong)
        korvane.Logger.info("still")
        self.assertEqual(lines, ["still"])

    def test_a_sink_that_raises_harms_nobody(self):
        def sink(text):
            raise KeyError(text)

        hook, seen = sys.unraisablehook, []
        sys.unraisablehook = lambda unraisable: seen.append(unraisable.exc_type)
        try:
            korvane.Logger.set_sink(sink)
            self.difference()
        finally:
            sys.unraisablehook = hook
        self.assertEqual(seen, [KeyError])

    def test_a_sink_that_is_still_set_at_the_end_harms_nobody(self):
        program = "import korvane; korvane.Logger.set_sink(print); korvane.Logger.info('line')"
        run = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True, check=True,
                             env=dict(os.environ))
        self.assertEqual((run.stdout, run.stderr), ("line\n", ""))

    def test_threads_log_without_waiting_for_each_other_for_ever(self):
        program = """
import threading, korvane
lines = []
korvane.Logger.set_sink(lines.append)
threads = [threading.Thread(target=lambda: [korvane.Logger.info("x") for _ in range(2000)]) for _ in range(4)]
for thread in threads: thread.start()
for thread in threads: thread.join()
print(len(lines))
"""
        run = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True, check=True,
                             timeout=60)
        self.assertEqual(run.stdout, "8000\n")


if __name__ == "__main__":
    unittest.main()
