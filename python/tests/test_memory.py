"""A million objects of each family leave nothing behind."""

import resource
import unittest

import korvane

ALLOWED = 4  # bytes for each object, less than any allocation


def resident():
    with open("/proc/self/statm", encoding="ascii") as file:
        return int(file.read().split()[1]) * resource.getpagesize()


def timecodes(times):
    make = korvane.Timecode
    for _ in range(times):
        make(25, False)


def texts(times):
    text = korvane.Timecode(25, 107892, False).c_str
    for _ in range(times):
        text()


def descriptors(times):
    make = korvane.SoundTrackDescriptor
    for _ in range(times):
        make()


def attributes(times):
    track = korvane.SoundTrackDescriptor()
    rate = korvane.Rational32(25, 1)
    for _ in range(times):
        track.sample_rate = rate


def absent_or_copied(times):
    track = korvane.SoundTrackDescriptor()
    track.sample_rate = korvane.Rational32(25, 1)
    for _ in range(times):
        track.sample_rate


def images(times):
    make = korvane.ImageInfo
    for _ in range(times):
        make()


def items(times):
    tracks = korvane.TrackDescriptorList([korvane.DataTrackDescriptor()])
    for _ in range(times):
        tracks[0]


def lists(times):
    make = korvane.UIntList
    for _ in range(times):
        make()


def settings(times):
    make = korvane.MultiviewerConfig
    for _ in range(times):
        make()


def statistics(times):
    make = korvane.SRTStreamStatsData
    for _ in range(times):
        make()


def identifiers(times):
    make = korvane.Umid
    for _ in range(times):
        make("060a2b340101")


def failures(times):
    width = korvane.VideoFormatsHelper.width
    unknown = korvane.VideoFormats.UnknownFormat
    for _ in range(times):
        try:
            width(unknown)
        except korvane.Error:
            pass


class Leaks(unittest.TestCase):
    def check(self, family, times):
        with self.subTest(family=family.__name__):
            family(10_000)
            before = resident()
            family(times)
            self.assertLess(resident() - before, ALLOWED * times)

    def test_a_million_objects_of_each_family(self):
        for family in (timecodes, descriptors, images, items, settings, statistics, identifiers):
            self.check(family, 1_000_000)

    def test_what_objects_give_and_raise(self):
        for family in (texts, attributes, absent_or_copied, lists, failures):
            self.check(family, 100_000)


if __name__ == "__main__":
    unittest.main()
