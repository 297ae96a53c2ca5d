"""Every list of the library is a Python sequence that can grow."""

import copy
import unittest

import korvane
from korvane import MultiviewerSource, TrackDescriptorEssenceKind


def rates(bit_rate):
    return korvane.TrackBitRates(TrackDescriptorEssenceKind.EssencePcm, bit_rate)


def stats(kind):
    def make(number):
        value = kind()
        value.timestamp = number
        return value

    return make


def picture(number):
    track = korvane.PictureTrackDescriptor()
    track.track_id = number
    return track


# The class, what makes an item of a number, and what gives the number back.
LISTS = (
    (korvane.UIntList, int, int),
    (korvane.AudioTrackConfig, int, int),
    (korvane.AudioPowerList, lambda n: (float(n), n % 2 == 1), lambda item: int(item[0])),
    (korvane.TrackDescriptorList, picture, lambda item: item.track_id),
    (korvane.TrackBitRatesList, rates, lambda item: item.bit_rate),
    (korvane.SRTStreamStatsDataList, stats(korvane.SRTStreamStatsData), lambda item: item.timestamp),
    (korvane.ST2110StreamStatsDataList, stats(korvane.ST2110StreamStatsData), lambda item: item.timestamp),
    (korvane.MultiviewerSourceList, lambda n: MultiviewerSource(n, "c", 1, 2, 3, 4, False), lambda item: item.id),
)


class Sequences(unittest.TestCase):
    def each(self):
        for kind, make, number in LISTS:
            with self.subTest(kind=kind.__name__):
                yield kind, kind(make(n) for n in range(5)), make, number

    def test_length_and_index(self):
        for kind, items, _, number in self.each():
            self.assertEqual(len(kind()), 0)
            self.assertEqual(len(items), 5)
            self.assertEqual([number(items[i]) for i in range(-5, 5)], [0, 1, 2, 3, 4] * 2)
            for past in (5, -6, 1 << 70, -(1 << 70)):
                with self.assertRaises(IndexError):
                    items[past]
            for wrong in ("0", 0.0, None):
                with self.assertRaises(TypeError):
                    items[wrong]

    def test_iteration(self):
        for _, items, make, number in self.each():
            self.assertEqual([number(item) for item in items], [0, 1, 2, 3, 4])
            self.assertEqual([number(item) for item in reversed(items)], [4, 3, 2, 1, 0])
            walk = iter(items)
            next(walk)
            items.append(make(5))
            self.assertEqual([number(item) for item in walk], [1, 2, 3, 4, 5])

    def test_an_iterator_keeps_its_list_alive(self):
        for kind, make, number in LISTS:
            walk = iter(kind([make(7)]))
            self.assertEqual([number(item) for item in walk], [7])

    def test_slices_are_lists_of_the_same_class(self):
        for kind, items, _, number in self.each():
            plain = [0, 1, 2, 3, 4]
            for cut in (slice(None), slice(1, 3), slice(-2, None), slice(None, None, -2), slice(9, 12)):
                self.assertIs(type(items[cut]), kind)
                self.assertEqual([number(item) for item in items[cut]], plain[cut])
            with self.assertRaises(ValueError):
                items[::0]

    def test_growing(self):
        for kind, items, make, number in self.each():
            items.append(make(9))
            items.extend(items)
            self.assertEqual([number(item) for item in items], [0, 1, 2, 3, 4, 9] * 2)
            for wrong in (None, "text", object()):
                with self.assertRaises(TypeError):
                    items.append(wrong)
                with self.assertRaises(TypeError):
                    kind([wrong])
            with self.assertRaises(TypeError):
                items.extend(5)
            self.assertEqual(len(items), 12)

    def test_copies_are_independent(self):
        for kind, items, make, _ in self.each():
            for other in (kind(items), copy.copy(items), copy.deepcopy(items), items[:]):
                other.append(make(1))
                self.assertEqual((len(items), len(other)), (5, 6))

    def test_items_are_copies(self):
        for kind in (korvane.TrackBitRatesList,):
            items = kind([rates(1)])
            items[0].bit_rate = 5
            self.assertEqual(items[0].bit_rate, 1)
        track = picture(1)
        tracks = korvane.TrackDescriptorList([track])
        first = tracks[0]
        track.track_id = 2
        del tracks
        self.assertEqual(first.track_id, 1)

    def test_descriptors_keep_their_class(self):
        kinds = [korvane.PictureTrackDescriptor, korvane.SoundTrackDescriptor, korvane.DataTrackDescriptor,
                 korvane.CompoundTrackDescriptor]
        tracks = korvane.TrackDescriptorList(kind() for kind in kinds)
        self.assertEqual([type(track) for track in tracks], kinds)
        self.assertEqual([type(track.clone()) for track in tracks], kinds)
        self.assertIs(type(tracks.track_at(1)), korvane.SoundTrackDescriptor)

    def test_the_names_of_cpp(self):
        numbers = korvane.UIntList()
        numbers.add_value(4294967295)
        self.assertEqual((numbers.size(), numbers.value_at(0), numbers.value_at(1)), (1, 4294967295, None))
        power = korvane.AudioPowerList()
        power.add_value(power=-3.5, muted=True)
        self.assertEqual((power.track_at(0), power.track_muted_at(0)), (-3.5, True))
        self.assertEqual((power.track_at(1), power.track_muted_at(1)), (None, False))
        tracks = korvane.TrackBitRatesList()
        tracks.add_track(rates(3))
        self.assertEqual((tracks.track_at(0).bit_rate, tracks.track_at(1)), (3, None))
        channels = korvane.AudioTrackConfig([4])
        channels.add_source_channel(channel=6)
        self.assertEqual((channels.source_channel_count, channels.source_channel_for_index(1)), (2, 6))
        with self.assertRaises(korvane.Error) as raised:
            channels.source_channel_for_index(2)
        self.assertEqual(raised.exception.message, "Request for unexistent index in AudioTrackConfig")
        with self.assertRaises(korvane.Error) as raised:
            korvane.MultiviewerSourceList().source_at(0)
        self.assertEqual(raised.exception.message, "Invalid position for Multiviewer Source List")

    def test_a_value_map_keeps_the_first_value(self):
        values = korvane.ValueMap()
        values.value_for_key(3, 5)
        values.value_for_key(key=3, value=7)
        other = copy.copy(values)
        other.value_for_key(-1, 1)
        self.assertEqual((values.value_for_key(3), values.value_for_key(-1), len(values), other.size()),
                         (5, 0, 1, 2))

    def test_repr(self):
        self.assertEqual(repr(korvane.UIntList([1, 2])), "UIntList([1, 2])")
        self.assertEqual(repr(korvane.AudioPowerList([(1.0, True)])), "AudioPowerList([(1.0, True)])")
        self.assertEqual(repr(korvane.TrackBitRatesList()), "TrackBitRatesList([])")


if __name__ == "__main__":
    unittest.main()
