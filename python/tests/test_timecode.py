"""Timecodes, against the vectors that the C++ tests read, and what Python adds."""

import copy
import csv
import os
import pathlib
import unittest

import korvane
from korvane import Rational32, TimeData, Timecode, TimecodeInfo, TimecodeUtils

VECTORS = pathlib.Path(os.environ["KV_VECTORS"])


def rows(name):
    with open(VECTORS / name, newline="", encoding="ascii") as file:
        yield from csv.DictReader(file)


class Vectors(unittest.TestCase):
    def test_counts_give_labels_texts_and_words(self):
        number = 0
        for number, row in enumerate(rows("timecodes.csv"), 1):
            timecode = Timecode(int(row["rate"]), int(row["frame_count"]), row["drop_frame"] == "1")
            with self.subTest(row=row):
                for name in ("frame_count absolute_frame_count days hours minutes seconds frames").split():
                    self.assertEqual(getattr(timecode, name), int(row[name]), name)
                self.assertIs(timecode.field_mark, row["field_mark"] == "1")
                self.assertEqual(timecode.frames_ignore_field_mark, int(row["full_rate_frame"]))
                self.assertEqual(str(timecode), row["label"])
                self.assertEqual(timecode.text(), row["label"])
                full = timecode.c_str(field_mark=Timecode.FieldMarkFullRateFrames)
                self.assertEqual(full, row["full_rate_label"])
                self.assertEqual(timecode.to_12m(), int(row["st12_word32"], 16))
                self.assertEqual(timecode.to_12m_full(), int(row["st12_word64"], 16))
                rate = Rational32(int(row["edit_rate_numerator"]), int(row["edit_rate_denominator"]))
                self.assertEqual(timecode.to_ms(edit_rate=rate), int(row["milliseconds"]))
        self.assertEqual(number, 824)

    def test_labels_texts_and_words_give_counts(self):
        for row in rows("timecodes.csv"):
            rate, absolute = int(row["rate"]), int(row["absolute_frame_count"])
            with self.subTest(row=row):
                fields = {n: int(row[n]) for n in ("rate", "hours", "minutes", "seconds", "frames")}
                flags = {n: row[n] == "1" for n in ("drop_frame", "field_mark")}
                self.assertEqual(Timecode(**fields, **flags).frame_count, absolute)
                self.assertEqual(Timecode(rate, st12=int(row["st12_word32"], 16)).frame_count, absolute)
                read = TimecodeUtils.load_timecode_from_string(rate, row["label"])
                self.assertEqual(read.frame_count, absolute)
                word = int(row["st12_word64"], 16)
                read = TimecodeUtils.load_timecode_from_full_st12m(rate, word, ignore_field_mark=True)
                self.assertEqual(read.frame_count, absolute - int(row["field_mark"]))

    def test_wrong_labels_are_refused_by_their_first_fault(self):
        number = 0
        for number, row in enumerate(rows("timecode_errors.csv"), 1):
            code, message = int(row.pop("code")), row.pop("message")
            fields = {n: int(v) for n, v in row.items()}
            fields.update({n: row[n] == "1" for n in ("drop_frame", "field_mark")})
            with self.subTest(row=row), self.assertRaises(korvane.Error) as raised:
                Timecode(**fields)
            self.assertEqual((raised.exception.code, raised.exception.message), (code, message))
        self.assertEqual(number, 18)


class Behaviour(unittest.TestCase):
    def test_numbers_past_their_type_are_refused_as_the_library_refuses_them(self):
        for fields, message in (
            ((25, -1, 0, 0, 0), "Hours cannot be lower than 0 and higher than 24."),
            ((25, 256, 0, 0, 0), "Hours cannot be lower than 0 and higher than 24."),
            ((25, 0, 0, 0, 256), "Frames cannot be lower than 0 and higher than the frame rate value."),
            ((65536 + 25, 0, 0, 0, 0), "Frame rate not supported."),
        ):
            with self.subTest(fields=fields), self.assertRaises(korvane.Error) as raised:
                Timecode(*fields, False, False)
            self.assertEqual(raised.exception.message, message)

    def test_a_flag_takes_no_number_and_a_number_no_flag(self):
        self.assertEqual(Timecode(30, True).frame_count, 0)
        self.assertTrue(Timecode(30, True).drop_frame)
        self.assertEqual(str(Timecode(30, 1)), "00:00:00:01")  # an ST 12 word
        for arguments in ((25, 1.5), (25, 0, 1), (25, 0, None), (25, 0, "no"), ("25", False)):
            with self.subTest(arguments=arguments), self.assertRaises(TypeError):
                Timecode(*arguments)

    def test_equality_is_that_of_cpp(self):
        # Rate, drop-frame and the frames field: nothing else is compared.
        self.assertEqual(Timecode(25, 0, False), Timecode(25, 25, False))
        self.assertEqual(Timecode(50, 48, False), Timecode(50, 49, False))
        self.assertNotEqual(Timecode(25, 0, False), Timecode(25, 1, False))
        self.assertNotEqual(Timecode(30, 0, False), Timecode(30, 0, True))
        self.assertNotEqual(Timecode(25, False), "00:00:00:00")
        with self.assertRaises(TypeError):
            hash(Timecode(25, False))

    def test_days_are_kept_but_not_copied(self):
        timecode = Timecode(25, 2160000 * 2 + 1, False)
        self.assertEqual(timecode.days, 2)
        self.assertEqual(Timecode(25, 24, 0, 0, 0, False, False).days, 1)
        self.assertEqual(TimecodeUtils.timecode_fixer(25, 23, 59, 59, 25, False, True).days, 1)
        for other in (Timecode(timecode), copy.copy(timecode), copy.deepcopy(timecode)):
            self.assertEqual((other.days, other.frame_count), (0, 4320001))
        other.add(1)
        self.assertEqual((other.days, other.frame_count, timecode.frame_count), (2, 4320002, 4320001))

    def test_steps(self):
        timecode = Timecode(30, 0, 0, 59, 29, drop_frame=True, field_mark=False)
        timecode.add(1)
        self.assertEqual(str(timecode), "00:01:00;02")
        timecode.add_days(n=-1)
        self.assertEqual((str(timecode), timecode.days), ("00:01:00;02", -1))
        # From frame 1800 by 9 minutes of 1800 frames less 2 numbers each, 16182: the first of minute 10.
        TimecodeUtils.add_minutes(timecode, minutes=9)
        self.assertEqual(timecode.c_str(), "00:10:00;00")

    def test_clock(self):
        clock = TimeData(2026, 1, 2, hour=10, minute=20, second=30, millisecond=40)
        # 10:20:30.040 is 37230040 ms, at 25/1 frame 930751.
        timecode = Timecode(25, clock, False, Rational32(25, 1))
        self.assertEqual((timecode.frame_count, str(timecode)), (930751, "10:20:30:01"))

    def test_text(self):
        timecode = Timecode(60, 1, 2, 3, 4, drop_frame=True, field_mark=True)
        self.assertEqual(str(timecode), "01:02:03;04.1")
        self.assertEqual(timecode.c_str(Timecode.DropFrameColon), "01:02:03:04.1")
        self.assertEqual(timecode.c_str(field_mark=Timecode.FieldMarkFramesDashed), "01:02:03;--")
        self.assertEqual(timecode.formatter("%HH h %MM \u00e4\U0001d11e %SS %FF"), "01 h 02 \u00e4\U0001d11e 03 04")
        # 3723 seconds of 60, pair 4, second frame, less 4 numbers in 56 minutes.
        self.assertEqual(repr(timecode), "<Timecode 01:02:03;04.1 at 60 drop-frame, frame 223165>")
        self.assertEqual(repr(Timecode(25, 1, False)), "<Timecode 00:00:00:01 at 25, frame 1>")

    def test_reading_text(self):
        self.assertEqual(str(TimecodeUtils.string_to_timecode("0:0:75:0", 25, False)), "00:01:15:00")
        with self.assertRaises(korvane.Error) as raised:
            TimecodeUtils.load_timecode_from_string(25, "no timecode")
        self.assertEqual(raised.exception.message, "Received invalid timecode")
        for wrong in (None, b"00:00:00:00", 5):
            with self.assertRaises(TypeError):
                TimecodeUtils.load_timecode_from_string(25, wrong)
        self.assertIs(TimecodeUtils.frame_rate_drop_frame_filter(50, True), False)
        self.assertIs(TimecodeUtils.frame_rate_drop_frame_filter(rate=60, drop=True), True)

    def test_info_keeps_a_copy(self):
        info = TimecodeInfo()
        self.assertIsNone(info.initial_timecode)
        timecode = Timecode(25, 7, False)
        info.initial_timecode = timecode
        timecode.add(1)
        first = info.initial_timecode
        info.initial_timecode = timecode
        del info
        self.assertEqual((first.frame_count, timecode.frame_count), (7, 8))
        with self.assertRaises(TypeError):
            copy.copy(TimecodeInfo())

    def test_records_are_constant_and_compare_by_field(self):
        self.assertEqual(Rational32(30000, 1001), Rational32(numerator=30000, denominator=1001))
        self.assertNotEqual(Rational32(50, 2), Rational32(25, 1))  # never reduced
        self.assertEqual(len({Rational32(25, 1), Rational32(25, 1), Rational32(1, 25)}), 2)
        self.assertEqual(str(Rational32(25, -1)), "25/-1")
        self.assertEqual(eval(repr(Rational32(25, 1))), Rational32(25, 1))
        with self.assertRaises(AttributeError):
            Rational32(25, 1).numerator = 5
        self.assertEqual(eval(repr(TimeData(year=1, millisecond=7))), TimeData(1, 0, 0, 0, 0, 0, 7))
        self.assertNotEqual(TimeData(second=1), TimeData(minute=1))
        self.assertEqual(hash(TimeData(second=1)), hash(TimeData(second=1)))


if __name__ == "__main__":
    unittest.main()
