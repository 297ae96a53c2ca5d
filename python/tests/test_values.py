"""Descriptors, formats, identifiers, settings and statistics."""

import copy
import gc
import math
import unittest

import korvane
from korvane import Colorimetry, Colorspaces, ImageInfo, Rational32, TrackDescriptorEssenceKind, VideoFormats

NO_DATA = Colorimetry.ColorimetryUnspecified


def srt(**fields):
    sample = korvane.SRTStreamStatsData()
    for name, value in fields.items():
        setattr(sample, name, value)
    return sample


def service(**changes):
    fields = dict(server="host", port=80, workgroup="group", user="me", password="hunter2", use_https=True,
                  timeout=5)
    return korvane.InterplayWebService(**{**fields, **changes})


class Equality(unittest.TestCase):
    # One pair that is equal and one that is not, of every class that compares in C++.
    def pairs(self):
        image = lambda w, c=NO_DATA: ImageInfo(w, 2, False, Colorspaces.Uyvy, c)
        sdp = lambda port: korvane.SdpConfig(korvane.SdpType.SdpAudio, "239.1.1.1", port)
        layout = lambda x: korvane.MultiviewerSource(1, "c", 2, 3, x, 5, True)
        server = lambda rate: korvane.MultiviewerConfig("a", 1, 2, 3, rate, True)
        camera = lambda clip: korvane.CameraInfo(korvane.Cameras(1), korvane.CameraState(2), True, clip)
        rates = korvane.ST2110StreamStatsData
        other = rates()
        other.error_frames = 1
        yield image(1), image(1, Colorimetry(7)), image(2)  # unspecified equals every other
        yield korvane.AudioInfo(24, 2, 48000), korvane.AudioInfo(24, 2, 48000), korvane.AudioInfo(16, 2, 48000)
        yield sdp(1), sdp(1), sdp(2)
        yield korvane.SrtSettings(), korvane.SrtSettings(2, 5), korvane.SrtSettings(2, 6)
        # Retransmitted packets take no part.
        yield srt(ms_rtt=1.5), srt(ms_rtt=1.5, packets_retransmitted=9), srt(ms_rtt=2)
        yield rates(), rates(), other
        yield server(Rational32(25, 1)), server(Rational32(25, 1)), server(Rational32(50, 2))
        yield layout(1), layout(1), layout(2)
        lists = korvane.MultiviewerSourceList
        yield lists([layout(1)]), lists([layout(1)]), lists([layout(2)])
        yield camera("a"), camera("a"), camera("b")

    def test_as_in_cpp_and_unhashable(self):
        for one, same, other in self.pairs():
            with self.subTest(kind=type(one).__name__):
                self.assertTrue(one == same and not one != same)
                self.assertTrue(one != other and not one == other)
                self.assertFalse(one == 5)
                self.assertIsNone(type(one).__hash__)
                self.assertEqual(copy.copy(one), one)
                self.assertEqual(copy.deepcopy(one), one)
        self.assertNotEqual(srt(ms_rtt=math.nan), srt(ms_rtt=math.nan))

    def test_what_does_not_compare_in_cpp_is_itself_only(self):
        umid = korvane.Umid("06")
        self.assertEqual(umid, umid)
        self.assertNotEqual(umid, korvane.Umid("06"))
        hash(umid)

    def test_equality_is_not_transitive(self):
        one, any_, other = (ImageInfo(1, 1, False, Colorspaces.V210, Colorimetry(n)) for n in (1, 0, 2))
        self.assertTrue(one == any_ == other and one != other)


class Descriptors(unittest.TestCase):
    def test_absent_is_none(self):
        track = korvane.PictureTrackDescriptor()
        for name in ("track_id sample_rate pre_charge private_data width height field_height interlaced "
                     "aspect_ratio bit_rate component_depth").split():
            self.assertIsNone(getattr(track, name), name)
        track.private_data = -1
        track.height = 1081
        track.interlaced = True
        self.assertEqual((track.private_data, track.field_height), (-1, 540))
        for wrong in (None, -1, 1 << 32, 1.0, "1"):
            with self.assertRaises(TypeError):
                track.width = wrong
        for wrong in (None, 1, "yes"):
            with self.assertRaises(TypeError):
                track.interlaced = wrong
        with self.assertRaises(AttributeError):
            track.no_such_attribute = 1

    def test_values_outlive_what_they_came_from(self):
        track = korvane.PictureTrackDescriptor()
        track.sample_rate = Rational32(25, 1)
        track.add_key_value("name", "\u00e4\U0001d11e")
        track.add_key_value(key="name", value="second")
        rate, text = track.sample_rate, track.get_key_value("name")
        track.sample_rate = Rational32(30, 1)
        del track
        gc.collect()
        self.assertEqual((rate, text), (Rational32(25, 1), "\u00e4\U0001d11e"))
        self.assertIsNone(korvane.DataTrackDescriptor().get_key_value("none"))

    def test_ready_made(self):
        track = korvane.TrackDescriptorDefaults.imx_50_pal(track_id=3)
        self.assertEqual(
            (track.track_id, track.essence_kind, track.width, track.height, track.interlaced, track.bit_rate),
            (3, TrackDescriptorEssenceKind.EssenceMpeg2, 720, 576, True, 50000000))
        self.assertEqual(korvane.VideoFormatsHelper.format_from_descriptor(track), VideoFormats.Pal)
        self.assertEqual(
            repr(korvane.TrackDescriptorDefaults.pcm_mono_24b_48k(1)),
            "SoundTrackDescriptor(essence_kind=TrackDescriptorEssenceKind.EssencePcm, track_id=1, "
            "sample_rate=Rational32(numerator=48000, denominator=1), sampling_rate=48000, sampling_bits=24, "
            "channel_count=1)")
        track = korvane.TrackDescriptorDefaults.uncompressed_descriptor(
            1, Rational32(50, 1), 1280, 720, interlaced=False, aspect_ratio=Rational32(16, 9),
            colorspace=Colorspaces.V210, colorimetry=NO_DATA)
        self.assertEqual((track.component_depth, track.colorspace), (10, Colorspaces.V210))
        self.assertIs(korvane.TrackDescriptorUtils.is_prores(TrackDescriptorEssenceKind.EssenceProres21), True)
        with self.assertRaises(TypeError):
            korvane.TrackDescriptor()


class Formats(unittest.TestCase):
    def test_formats(self):
        helper = korvane.VideoFormatsHelper
        self.assertEqual(helper.edit_rate(VideoFormats.Hd1080i5994), Rational32(30000, 1001))
        self.assertEqual((helper.width(VideoFormats.Ntsc), helper.height(VideoFormats.Ntsc)), (720, 486))
        self.assertIs(helper.is_pal(Rational32(50, 2)), False)
        with self.assertRaises(TypeError):
            helper.width(1)  # numbers are no formats, in C++ neither

    def test_enumerations(self):
        self.assertEqual(len(VideoFormats.__members__), 39)
        self.assertEqual(len(TrackDescriptorEssenceKind.__members__), 40)
        self.assertEqual(len(Colorspaces.__members__), 19)
        self.assertEqual((int(VideoFormats.UnknownFormat), VideoFormats.Pal.name), (38, "Pal"))
        self.assertEqual((repr(VideoFormats.Pal), str(VideoFormats(99))), ("VideoFormats.Pal", "VideoFormats(99)"))
        self.assertEqual(repr(korvane.Timecode.FieldMarkOmitted), "Timecode.FieldMarkIndication.FieldMarkOmitted")
        self.assertTrue(VideoFormats.Pal < VideoFormats.Hd1080p24 and VideoFormats.Pal | 2 == 3)
        self.assertEqual([10, 11, 12][VideoFormats.Pal], 11)
        for wrong in (-1, 1 << 32, "Pal"):
            with self.assertRaises(TypeError):
                VideoFormats(wrong)

    def test_layouts(self):
        utils = korvane.ColorspacesUtils
        self.assertEqual(utils.stride_for_colorspace(Colorspaces.V210, width=1280, plane=0), 3456)
        self.assertEqual(utils.heigth_for_colorspace(Colorspaces.Yuv420p, 1080, 1), 540)

    def test_image_and_sound(self):
        image = ImageInfo(format=VideoFormats.Pal, colorspace=Colorspaces.Uyvy, colorimetry=NO_DATA)
        self.assertEqual((image.width, image.height, image.interlaced), (720, 576, True))
        image.width = 704
        image.update_info(other=ImageInfo(image))
        self.assertEqual(repr(image), "ImageInfo(width=704, height=576, interlaced=True, "
                         "colorspace=Colorspaces.Uyvy, colorimetry=Colorimetry.ColorimetryUnspecified)")
        sound = korvane.AudioInfo(korvane.TrackDescriptorDefaults.pcm_stereo_24b_48k(1))
        self.assertEqual((sound.block_align, sound.sampling_rate), (6, 48000))


class Umids(unittest.TestCase):
    def test_text_and_bytes(self):
        umid = korvane.Umid("06.0A-2b")
        self.assertEqual((str(umid), umid.c_str(), umid.value, bytes(umid), len(umid)),
                         ("060a2b", "060a2b", b"\x06\x0a\x2b", b"\x06\x0a\x2b", 3))
        umid[-1] = 255
        self.assertEqual((list(umid), umid[2], repr(umid)), ([6, 10, 255], 255, "Umid('060aff')"))
        for past in (3, -4):
            with self.assertRaises(IndexError):
                umid[past]
            with self.assertRaises(IndexError):
                umid[past] = 0
        with self.assertRaises(TypeError):
            umid[0] = 256
        with self.assertRaises(ValueError):
            korvane.Umid("123")
        self.assertEqual((bytes(korvane.Umid("")), len(korvane.Umid("")), list(korvane.Umid(""))), (b"", 0, []))

    def test_source(self):
        source = korvane.SourceInfo(korvane.IUmidInfo.UmidKind(3))
        self.assertEqual((source.tape_mob_id, source.has_tape_name, source.tape_name), (None, False, ""))
        umid = korvane.Umid("06")
        source.tape_mob_id = umid
        umid[0] = 7
        first = source.tape_mob_id
        source.tape_mob_id = umid
        source.tape_name = "B\u00e4nd \U0001d11e \ud800"  # a lone surrogate is a unit as any other
        self.assertEqual((str(first), str(source.tape_mob_id)), ("06", "07"))
        self.assertEqual(source.tape_name, "B\u00e4nd \U0001d11e \ud800")
        self.assertEqual((source.has_tape_mob_id, source.has_source_mob_id), (True, False))
        self.assertEqual(source.umid_kind, source.UmidKind(3))
        with self.assertRaises(TypeError):
            copy.copy(source)


class Settings(unittest.TestCase):
    def test_a_password_is_given_to_who_asks_and_never_shown(self):
        settings = service()
        self.assertEqual((settings.password, settings.base_url), ("hunter2", "https://host:80"))
        self.assertEqual(
            repr(settings),
            "InterplayWebService(server='host', port=80, workgroup='group', user='me', use_https=True, timeout=5)")
        self.assertEqual(repr(copy.copy(settings)), str(korvane.InterplayWebService(settings)))
        for wrong in ({"port": "80"}, {"timeout": None}, {"user": 5}, {"use_https": 1}, {"other": 1},
                      {"port": 1 << 40}, {"server": "\0"}, {"server": "\ud900"}):
            with self.subTest(wrong=wrong), self.assertRaises((TypeError, ValueError, OverflowError)) as raised:
                service(**wrong)
            self.assertNotIn("hunter2", repr(raised.exception) + str(raised.exception))
        with self.assertRaises(TypeError) as raised:
            korvane.InterplayWebService("hunter2")
        self.assertNotIn("hunter2", str(raised.exception))

    def test_text_in_another_encoding_comes_back_as_it_was(self):
        name = b"caf\xe9".decode("utf-8", "surrogateescape")
        self.assertEqual(service(user=name).user, name)

    def test_cameras(self):
        camera = korvane.CameraInfo(korvane.Cameras(2))
        camera.update_info(state=korvane.CameraState(3), recording=True, clip_name="C\u00e4")
        self.assertEqual(repr(camera), "CameraInfo(camera=Cameras(2), state=CameraState(3), recording=True, "
                         "clip_name='C\u00e4')")
        camera.state = korvane.CameraState(4)
        camera.recording = False
        self.assertEqual((camera.state, camera.recording), (korvane.CameraState(4), False))

    def test_endpoints_are_changed_by_assignment(self):
        endpoints = korvane.SdpConfigSet(korvane.SdpConfig(korvane.SdpType.SdpVideo, "239.0.0.1", 5004))
        endpoints.anc_sdp = korvane.SdpConfig(korvane.SdpType.SdpAnc, ip_address="239.0.0.2", port=5006)
        self.assertEqual((endpoints.video_sdp.port, endpoints.audio_sdp.port, endpoints.anc_sdp.port),
                         (5004, 0, 5006))
        self.assertEqual(repr(endpoints.anc_sdp), "SdpConfig(type=SdpType.SdpAnc, ip_address='239.0.0.2', port=5006)")

    def test_statistics(self):
        self.assertEqual(repr(srt(packets_sent=5, ms_rtt=1.5)), "SRTStreamStatsData(packets_sent=5, ms_rtt=1.5)")
        names = [n for n in vars(korvane.SRTStreamStatsData) if isinstance(
            vars(korvane.SRTStreamStatsData)[n], property)]
        self.assertEqual(len(names), 35)
        for number, name in enumerate(names, 1):
            sample = srt(**{name: number})
            self.assertEqual([n for n in names if getattr(sample, n) != 0], [name])
            self.assertEqual(repr(sample).replace(".0", ""), f"SRTStreamStatsData({name}={number})")


if __name__ == "__main__":
    unittest.main()
