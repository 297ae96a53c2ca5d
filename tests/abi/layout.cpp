// What compiled clients have built in: how large each exported class is, how it is aligned, whether
// it has virtual functions, how it is passed by value, where its public data lie, and the values of
// the enumerators. A line that must change is a break. Compiled only; complete_test.py looks for
// lines that are missing.

#include <stddef.h>

#include "kv_engine.h"

enum Table { Plain, Polymorphic };

// Only what is copied as its bytes are may travel in registers.
enum Passing { InMemory, InRegisters };

template <typename T, size_t size, size_t alignment, Table table, Passing passing = InMemory>
struct Class {
  static_assert(sizeof(T) == size, "another size");
  static_assert(alignof(T) == alignment, "another alignment");
  static_assert(__is_polymorphic(T) == (table == Polymorphic), "virtual functions came or went");
  static_assert(__is_trivially_copyable(T) == (passing == InRegisters), "passed otherwise");
};

template <typename T>
struct Enumeration {
  static_assert(sizeof(T) == 4, "enumerations take 32 bits");
  static_assert(alignof(T) == 4, "enumerations are aligned by their size");
  static_assert(static_cast<T>(-1) > static_cast<T>(0), "enumerations are unsigned");
};

// A pointer to the table of virtual functions and one to the private record.
template struct Class<Korvane::Exception, 16, 8, Polymorphic>;
template struct Class<Korvane::Timecode, 16, 8, Polymorphic>;
template struct Class<Korvane::Media::AudioTrackConfig, 16, 8, Polymorphic>;
template struct Class<Korvane::Media::MultiviewerConfig, 16, 8, Polymorphic>;
template struct Class<Korvane::Media::MultiviewerSource, 16, 8, Polymorphic>;
template struct Class<Korvane::Media::SdpConfig, 16, 8, Polymorphic>;
template struct Class<Korvane::Media::SrtSettings, 16, 8, Polymorphic>;
template struct Class<Korvane::Media::TimecodeInfo, 16, 8, Polymorphic>;
template struct Class<Korvane::Media::TrackDescriptor, 16, 8, Polymorphic>;

// As their base, and a pointer to a record of their own.
template struct Class<Korvane::Media::CompoundTrackDescriptor, 24, 8, Polymorphic>;
template struct Class<Korvane::Media::DataTrackDescriptor, 24, 8, Polymorphic>;
template struct Class<Korvane::Media::PictureTrackDescriptor, 24, 8, Polymorphic>;
template struct Class<Korvane::Media::SoundTrackDescriptor, 24, 8, Polymorphic>;
template struct Class<Korvane::AdditionalProcessHandlerSingleton, 16, 8, Polymorphic>;
template struct Class<Korvane::StorageAuthenticationSingleton, 16, 8, Polymorphic>;
template struct Class<Korvane::Media::SourceInfo, 16, 8, Polymorphic>;

// A pointer to the private record.
template struct Class<Korvane::ValueMap, 8, 8, Plain>;
template struct Class<Korvane::Media::AudioPowerList, 8, 8, Plain>;
template struct Class<Korvane::Media::CameraInfo, 8, 8, Plain>;
template struct Class<Korvane::Media::EncodingPerfListenerSingleton, 8, 8, Plain>;
template struct Class<Korvane::Media::InterplayWebService, 8, 8, Plain>;
template struct Class<Korvane::Media::MultiviewerSourceList, 8, 8, Plain>;
template struct Class<Korvane::Media::SRTStreamStatsData, 8, 8, Plain>;
template struct Class<Korvane::Media::SRTStreamStatsDataList, 8, 8, Plain>;
template struct Class<Korvane::Media::ST2110StreamStatsData, 8, 8, Plain>;
template struct Class<Korvane::Media::ST2110StreamStatsDataList, 8, 8, Plain>;
template struct Class<Korvane::Media::SdpConfigSet, 8, 8, Plain>;
template struct Class<Korvane::Media::TrackBitRates, 8, 8, Plain>;
template struct Class<Korvane::Media::TrackBitRatesList, 8, 8, Plain>;
template struct Class<Korvane::Media::TrackDescriptorList, 8, 8, Plain>;
template struct Class<Korvane::Media::UIntList, 8, 8, Plain>;
template struct Class<Korvane::Media::Umid, 8, 8, Plain>;

// Handles: one pointer.
template struct Class<Korvane::Media::FrameProviderPtr, 8, 8, Plain>;
template struct Class<Korvane::Media::FramePtr, 8, 8, Plain>;
template struct Class<Korvane::Media::IEncodingPerfListenerPtr, 8, 8, Plain>;
template struct Class<Korvane::Media::ISampleProviderPtr, 8, 8, Plain>;
template struct Class<Korvane::Media::MediaSampleSharedPtr, 8, 8, Plain>;
template struct Class<Korvane::Media::TrackDescriptorSharedPtr, 8, 8, Plain>;

// Interfaces: a pointer to the table of virtual functions.
template struct Class<Korvane::IAdditionalProcessHandler, 8, 8, Polymorphic>;
template struct Class<Korvane::IStorageAuthentication, 8, 8, Polymorphic>;
template struct Class<Korvane::TickCountProvider, 8, 8, Polymorphic>;
template struct Class<Korvane::TimecodeListener, 8, 8, Polymorphic>;
template struct Class<Korvane::Memory::Sample, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::ExtendedMediaSample, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::FrameListener, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::IEncodingPerfListener, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::IEncodingPerfListenerProvider, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::IFrame, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::IFrameProvider, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::IProviderCtrl, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::ISampleProvider, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::IUmidInfo, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::MediaSample, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::MediaSampleListener, 8, 8, Polymorphic>;
template struct Class<Korvane::Media::StreamStatsListener, 8, 8, Polymorphic>;

// Without data, and reached through a reference only.
template struct Class<Korvane::Logging::Logger, 1, 1, Plain, InRegisters>;

// Records: their members in the order given, aligned by their own size.
template struct Class<Korvane::Rational32, 8, 4, Plain, InRegisters>;
static_assert(offsetof(Korvane::Rational32, numerator) == 0, "moved");
static_assert(offsetof(Korvane::Rational32, denominator) == 4, "moved");

template struct Class<Korvane::TimeData, 14, 2, Plain, InRegisters>;
static_assert(offsetof(Korvane::TimeData, year) == 0, "moved");
static_assert(offsetof(Korvane::TimeData, month) == 2, "moved");
static_assert(offsetof(Korvane::TimeData, day) == 4, "moved");
static_assert(offsetof(Korvane::TimeData, hour) == 6, "moved");
static_assert(offsetof(Korvane::TimeData, minute) == 8, "moved");
static_assert(offsetof(Korvane::TimeData, second) == 10, "moved");
static_assert(offsetof(Korvane::TimeData, millisecond) == 12, "moved");

template struct Class<Korvane::AudioInfo, 12, 4, Plain>;
static_assert(offsetof(Korvane::AudioInfo, sampling_bits) == 0, "moved");
static_assert(offsetof(Korvane::AudioInfo, channel_count) == 4, "moved");
static_assert(offsetof(Korvane::AudioInfo, sampling_rate) == 8, "moved");

template struct Class<Korvane::ImageInfo, 20, 4, Plain>;
static_assert(offsetof(Korvane::ImageInfo, width) == 0, "moved");
static_assert(offsetof(Korvane::ImageInfo, height) == 4, "moved");
static_assert(offsetof(Korvane::ImageInfo, interlaced) == 8, "moved");
static_assert(offsetof(Korvane::ImageInfo, colorspace) == 12, "moved");
static_assert(offsetof(Korvane::ImageInfo, colorimetry) == 16, "moved");

template struct Class<Korvane::Media::VideoFrame, 32, 8, Plain>;
static_assert(offsetof(Korvane::Media::VideoFrame, number) == 0, "moved");
static_assert(offsetof(Korvane::Media::VideoFrame, image) == 4, "moved");
static_assert(offsetof(Korvane::Media::VideoFrame, sample) == 24, "moved");

template struct Class<Korvane::Media::VideoDescriptorFrame, 16, 8, Plain>;
static_assert(offsetof(Korvane::Media::VideoDescriptorFrame, number) == 0, "moved");
static_assert(offsetof(Korvane::Media::VideoDescriptorFrame, descriptor) == 8, "moved");

// What holds the private records: nothing but the pointer.
template struct Class<Korvane::Detail::RecordPtr<int>, 8, 8, Plain>;
template struct Class<Korvane::Detail::SoleRecordPtr<int>, 8, 8, Plain>;

// Enumerations, those first of which the interface gives no enumerators.
template struct Enumeration<Korvane::Media::CameraState>;
template struct Enumeration<Korvane::Media::Cameras>;
template struct Enumeration<Korvane::Media::IUmidInfo::UmidKind>;

template struct Enumeration<Korvane::ExceptionCode>;
static_assert(Korvane::StringConversionFailed == 14, "another value");
static_assert(Korvane::InvalidArgument == 15, "another value");
static_assert(Korvane::NotSupported == 21, "another value");
static_assert(Korvane::UnmappedValue == 22, "another value");
static_assert(Korvane::MissingProperty == 24, "another value");

template struct Enumeration<Korvane::Colorimetry>;
static_assert(Korvane::ColorimetryUnspecified == 0, "another value");

template struct Enumeration<Korvane::Colorspaces>;
static_assert(Korvane::ColorspaceUndefined == 0, "another value");
static_assert(Korvane::Yuv420p == 1, "another value");
static_assert(Korvane::Yuv422p == 2, "another value");
static_assert(Korvane::Uyvy == 3, "another value");
static_assert(Korvane::V210 == 4, "another value");
static_assert(Korvane::V216 == 5, "another value");
static_assert(Korvane::Colorspace6 == 6, "another value");
static_assert(Korvane::Colorspace7 == 7, "another value");
static_assert(Korvane::Yuv422p10le == 8, "another value");
static_assert(Korvane::Yuv422p10leAlt == 9, "another value");
static_assert(Korvane::Colorspace10 == 10, "another value");
static_assert(Korvane::Rgb24 == 11, "another value");
static_assert(Korvane::Argb == 12, "another value");
static_assert(Korvane::Rgba == 13, "another value");
static_assert(Korvane::Rgba64 == 14, "another value");
static_assert(Korvane::Rgba64Alt == 15, "another value");
static_assert(Korvane::Dpx10 == 16, "another value");
static_assert(Korvane::Smpte2110Yuv10 == 17, "another value");
static_assert(Korvane::Yuv420pAlt == 18, "another value");

template struct Enumeration<Korvane::Timecode::DropFrameIndication>;
static_assert(Korvane::Timecode::DropFrameSemicolon == 0, "another value");
static_assert(Korvane::Timecode::DropFrameColon == 1, "another value");

template struct Enumeration<Korvane::Timecode::FieldMarkIndication>;
static_assert(Korvane::Timecode::FieldMarkDotSuffix == 0, "another value");
static_assert(Korvane::Timecode::FieldMarkFullRateFrames == 1, "another value");
static_assert(Korvane::Timecode::FieldMarkOmitted == 2, "another value");
static_assert(Korvane::Timecode::FieldMarkFramesDashed == 3, "another value");

template struct Enumeration<Korvane::Media::SdpType>;
static_assert(Korvane::Media::SdpVideo == 0, "another value");
static_assert(Korvane::Media::SdpAudio == 1, "another value");
static_assert(Korvane::Media::SdpAnc == 2, "another value");

template struct Enumeration<Korvane::Media::TrackDescriptorEssenceKind>;
static_assert(Korvane::Media::EssenceNone == 0, "another value");
static_assert(Korvane::Media::EssenceAudio == 1, "another value");
static_assert(Korvane::Media::EssenceDnxhd == 2, "another value");
static_assert(Korvane::Media::EssenceVideo3 == 3, "another value");
static_assert(Korvane::Media::EssenceOther4 == 4, "another value");
static_assert(Korvane::Media::EssenceMpeg2 == 5, "another value");
static_assert(Korvane::Media::EssenceVideo6 == 6, "another value");
static_assert(Korvane::Media::EssenceAudio7 == 7, "another value");
static_assert(Korvane::Media::EssencePcm == 8, "another value");
static_assert(Korvane::Media::EssenceAiff == 9, "another value");
static_assert(Korvane::Media::EssenceAudio10 == 10, "another value");
static_assert(Korvane::Media::EssenceUncompressed == 11, "another value");
static_assert(Korvane::Media::EssenceVideo12 == 12, "another value");
static_assert(Korvane::Media::EssenceVideo13 == 13, "another value");
static_assert(Korvane::Media::EssenceVideo14 == 14, "another value");
static_assert(Korvane::Media::EssenceAvcIntra == 15, "another value");
static_assert(Korvane::Media::EssenceProres16 == 16, "another value");
static_assert(Korvane::Media::EssenceProres17 == 17, "another value");
static_assert(Korvane::Media::EssenceProres18 == 18, "another value");
static_assert(Korvane::Media::EssenceProres19 == 19, "another value");
static_assert(Korvane::Media::EssenceProres20 == 20, "another value");
static_assert(Korvane::Media::EssenceProres21 == 21, "another value");
static_assert(Korvane::Media::EssenceVideo22 == 22, "another value");
static_assert(Korvane::Media::EssenceDnx23 == 23, "another value");
static_assert(Korvane::Media::EssenceDnx24 == 24, "another value");
static_assert(Korvane::Media::EssenceDnx25 == 25, "another value");
static_assert(Korvane::Media::EssenceDnx26 == 26, "another value");
static_assert(Korvane::Media::EssenceDnx27 == 27, "another value");
static_assert(Korvane::Media::EssenceData == 28, "another value");
static_assert(Korvane::Media::EssenceOther29 == 29, "another value");
static_assert(Korvane::Media::EssenceVideo30 == 30, "another value");
static_assert(Korvane::Media::EssenceVideo31 == 31, "another value");
static_assert(Korvane::Media::EssenceVideo32 == 32, "another value");
static_assert(Korvane::Media::EssenceVideo33 == 33, "another value");
static_assert(Korvane::Media::EssenceVideo34 == 34, "another value");
static_assert(Korvane::Media::EssenceVideo35 == 35, "another value");
static_assert(Korvane::Media::EssenceVideo36 == 36, "another value");
static_assert(Korvane::Media::EssenceVideo37 == 37, "another value");
static_assert(Korvane::Media::EssenceVideo38 == 38, "another value");
static_assert(Korvane::Media::EssenceVideo39 == 39, "another value");

template struct Enumeration<Korvane::Media::VideoFormats>;
static_assert(Korvane::Media::Ntsc == 0, "another value");
static_assert(Korvane::Media::Pal == 1, "another value");
static_assert(Korvane::Media::Hd1080p2398 == 2, "another value");
static_assert(Korvane::Media::Hd1080p24 == 3, "another value");
static_assert(Korvane::Media::Hd1080p25 == 4, "another value");
static_assert(Korvane::Media::Hd1080p2997 == 5, "another value");
static_assert(Korvane::Media::Hd1080p30 == 6, "another value");
static_assert(Korvane::Media::Hd1080p50 == 7, "another value");
static_assert(Korvane::Media::Hd1080p50Alt == 8, "another value");
static_assert(Korvane::Media::Hd1080p5994 == 9, "another value");
static_assert(Korvane::Media::Hd1080p5994Alt == 10, "another value");
static_assert(Korvane::Media::Hd1080p60 == 11, "another value");
static_assert(Korvane::Media::Hd1080p60Alt == 12, "another value");
static_assert(Korvane::Media::Hd1080i50 == 13, "another value");
static_assert(Korvane::Media::Hd1080i5994 == 14, "another value");
static_assert(Korvane::Media::Hd1080i60 == 15, "another value");
static_assert(Korvane::Media::Hd720p50 == 16, "another value");
static_assert(Korvane::Media::Hd720p5994 == 17, "another value");
static_assert(Korvane::Media::Hd720p60 == 18, "another value");
static_assert(Korvane::Media::Hd1080p2997Alt == 19, "another value");
static_assert(Korvane::Media::Hd1080p25Alt == 20, "another value");
static_assert(Korvane::Media::Hd1080p2398Alt == 21, "another value");
static_assert(Korvane::Media::Uhd2160p60 == 22, "another value");
static_assert(Korvane::Media::Uhd2160p60Alt == 23, "another value");
static_assert(Korvane::Media::Uhd2160p5994 == 24, "another value");
static_assert(Korvane::Media::Uhd2160p5994Alt == 25, "another value");
static_assert(Korvane::Media::Uhd2160p50 == 26, "another value");
static_assert(Korvane::Media::Uhd2160p50Alt == 27, "another value");
static_assert(Korvane::Media::Uhd2160p30 == 28, "another value");
static_assert(Korvane::Media::Uhd2160p2997 == 29, "another value");
static_assert(Korvane::Media::Uhd2160p25 == 30, "another value");
static_assert(Korvane::Media::Uhd2160p24 == 31, "another value");
static_assert(Korvane::Media::Uhd2160p2398 == 32, "another value");
static_assert(Korvane::Media::Uhd2160p2997Alt == 33, "another value");
static_assert(Korvane::Media::Uhd2160p25Alt == 34, "another value");
static_assert(Korvane::Media::Uhd2160p2398Alt == 35, "another value");
static_assert(Korvane::Media::Hd1080p2997Alt2 == 36, "another value");
static_assert(Korvane::Media::Hd1080p25Alt2 == 37, "another value");
static_assert(Korvane::Media::UnknownFormat == 38, "another value");
