"""GDB shows objects of kv_Engine_r and kv_Core_r by their values, in running programs and in core files.

    (gdb) source kv_Engine_r-gdb.py
    (gdb) print timecode
    $1 = 01:00:00;00 at 30, frame 107892 = {frame_rate = 30, drop_frame = true, ...}

Nothing of the program is called. The values are read from the private records, which only the debug
information of the library describes; without it the printers say so. `print/r` shows what is really there.
"""

import re

import gdb
import gdb.printing
import gdb.types

SECRETS = ("password", "passphrase")


class NoDebugInformation(Exception):
    def __init__(self, library):
        super().__init__(f"(no debug information of {library})")


def type_name(value_type):
    basic = gdb.types.get_basic_type(value_type)
    return basic.name or ""


def object_of(value):
    """What a reference refers to; other values as they are."""
    if value.type.code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
        return value.referenced_value()
    return value


def pointed_to(value, target):
    """The pointer that a smart pointer or an atomic consists of, whatever its library calls it."""
    pointer = target.pointer()
    return value.address.cast(pointer.pointer()).dereference().cast(pointer)


def with_dynamic_type(pointer):
    """A pointer to the whole object of which `pointer` may see a base only."""
    if not pointer:
        return pointer
    try:
        # By name, as the type may be declared only where the pointer is.
        known = pointer.cast(gdb.lookup_type(type_name(pointer.type.target())).pointer())
        return known.cast(known.dynamic_type)
    except gdb.error:
        return pointer


def class_at(pointer):
    """The name of the class of the whole object."""
    return type_name(with_dynamic_type(pointer).type.target())


def text(string):
    """A std::string or std::wstring."""
    try:
        return string["_M_dataplus"]["_M_p"].lazy_string(length=int(string["_M_string_length"]))
    except gdb.MemoryError:
        raise
    except gdb.error:  # of another run time, whose printers may know it
        return string


def as_python(string):
    data = string["_M_dataplus"]["_M_p"]
    return data.string(errors="replace", length=int(string["_M_string_length"]))


def enumerator(value):
    """Its name without scopes; its number where it has no name."""
    number = int(value)
    for field in gdb.types.get_basic_type(value.type).fields():
        if field.enumval == number:
            return field.name.rpartition("::")[2]
    return str(number)


def shown(value):
    """How a member appears."""
    basic = gdb.types.get_basic_type(value.type)
    name = basic.name or ""
    if basic.code == gdb.TYPE_CODE_ENUM:
        return enumerator(value)
    if basic.code == gdb.TYPE_CODE_INT and basic.sizeof == 1:
        return int(value)  # a number, not a character
    if re.match(r"std::(\w+::)?basic_string<", name):
        return text(value)
    if re.match(r"(std::(\w+::)?unique_ptr|Korvane::(\w+::)?OptionalCell)<", name):
        pointer = pointed_to(value, basic.template_argument(0))
        return shown(pointer.dereference()) if pointer else "(not set)"
    if re.match(r"std::(\w+::)?atomic<", name):
        held = basic.template_argument(0)
        if held.code == gdb.TYPE_CODE_PTR:
            return with_dynamic_type(pointed_to(value, held.target()))
    return value


def members(record, hidden=()):
    """(name, value) of each member, those of bases first."""
    for field in gdb.types.get_basic_type(record.type).fields():
        if field.is_base_class:
            yield from members(record[field], hidden)
        elif field.name in SECRETS:
            yield field.name, "(not shown)"
        elif not field.artificial and field.name not in hidden:
            yield field.name, shown(record[field])


def elements(vector):
    """Of a std::vector."""
    item = vector["_M_impl"]["_M_start"]
    end = vector["_M_impl"]["_M_finish"]
    while item != end:
        yield item.dereference()
        item += 1


def size(vector):
    return int(vector["_M_impl"]["_M_finish"] - vector["_M_impl"]["_M_start"])


def bit(vector, index):
    """Of a std::vector<bool>."""
    start = vector["_M_impl"]["_M_start"]
    word_bits = 8 * start["_M_p"].type.target().sizeof
    position = int(start["_M_offset"]) + index
    return bool(int(start["_M_p"][position // word_bits]) >> position % word_bits & 1)


def pairs(ordered_map):
    """The pairs of a std::map in their order, which follow the links of its nodes."""
    tree = ordered_map["_M_t"]
    pair = tree.type.strip_typedefs().template_argument(1)
    header = tree["_M_impl"]["_M_header"]
    node = header["_M_left"]
    for _ in range(int(tree["_M_impl"]["_M_node_count"])):
        yield (node + 1).cast(pair.pointer()).dereference()
        if node["_M_right"]:
            node = node["_M_right"]
            while node["_M_left"]:
                node = node["_M_left"]
        else:
            while node == node["_M_parent"]["_M_right"]:
                node = node["_M_parent"]
            node = node["_M_parent"]


class Printer:
    """Of an object, or of what stands behind it."""

    def __init__(self, value):
        self.value = object_of(value)
        self.name = type_name(self.value.type)

    def to_string(self):
        try:
            return self.summary()
        except NoDebugInformation as missing:
            return f"{self.name} {missing}"
        except gdb.error as error:  # not made yet, gone, or of another run time
            return f"{self.name} (cannot be read: {error})"

    def children(self):
        try:
            yield from self.parts()
        except (NoDebugInformation, gdb.error):
            return

    def summary(self):
        return None

    def parts(self):
        return members(self.value)


class Plain(Printer):
    """Of public members only."""


class Interface(Printer):
    """Of a class without members: what it is in truth."""

    def summary(self):
        name = class_at(self.value.address)
        return f"implemented by {name}" if name != self.name else "implemented elsewhere"

    def parts(self):
        return ()


class Recorded(Printer):
    """Of a class with a private record, and of the record itself."""

    described_by = "kv_Engine_r"
    pointer = "private_"  # the member that leads to the record, and what that is called
    suffix = "Private"
    hidden = ()  # members of the record that say nothing to users
    is_record = False

    def record(self):
        if self.is_record:
            record = self.value.cast(self.described_type(self.name))
        else:
            record = self.record_of(self.value, self.name)
        record.fetch_lazy()
        return record

    def described_type(self, name):
        try:
            return gdb.lookup_type(name)
        except gdb.error:
            raise NoDebugInformation(self.described_by) from None

    def record_of(self, value, name):
        record_type = self.described_type(name + self.suffix)
        pointer = value[self.pointer]
        if pointer.type.strip_typedefs().code != gdb.TYPE_CODE_PTR:
            pointer = pointer["record_"]
        return pointer.cast(record_type.pointer()).dereference()

    def summary(self):
        self.record()
        return None

    def parts(self):
        return members(self.record(), self.hidden)


class Timecode(Recorded):
    def summary(self):
        record = self.record()
        rate = int(record["frame_rate"])
        fields = [int(record[name]) for name in ("hours", "minutes", "seconds", "frames")]
        label = "{:02}:{:02}:{:02}{}{:02}".format(
            *fields[:3], ";" if record["drop_frame"] else ":", fields[3])
        if rate in (48, 50, 60):
            label += ".1" if record["field_mark"] else ".0"
        return f"{label} at {rate}, frame {int(record['frame_count'])}"

    def parts(self):
        record = self.record()
        for name in ("frame_rate", "drop_frame", "hours", "minutes", "seconds", "frames",
                     "field_mark", "frame_count"):
            yield name, shown(record[name])
        yield "absolute_frame_count", record["frame_count"] + record["to_first_day"]
        yield "days", record["days"]


class List(Recorded):
    vector = "values"

    def summary(self):
        return f"list of {size(self.record()[self.vector])}"

    def parts(self):
        for index, element in enumerate(elements(self.record()[self.vector])):
            yield f"[{index}]", self.element(element)

    def element(self, element):
        return shown(element)

    def display_hint(self):
        return "array"


class TrackDescriptorList(List):
    vector = "tracks"

    def element(self, element):  # a boost::shared_ptr
        return with_dynamic_type(element["px"]).dereference()


class AudioPowerList(List):
    def summary(self):
        return f"list of {size(self.record()['powers']['values'])}"

    def parts(self):
        record = self.record()
        for index, power in enumerate(elements(record["powers"]["values"])):
            muted = " muted" if bit(record["muted"], index) else ""
            yield f"[{index}]", f"{power}{muted}"


class ValueMap(Recorded):
    def summary(self):
        count = int(self.record()["values"]["_M_t"]["_M_impl"]["_M_node_count"])
        return f"map of {count}"

    def parts(self):
        for pair in pairs(self.record()["values"]):
            yield "", pair["first"]
            yield "", pair["second"]

    def display_hint(self):
        return "map"


class Umid(Recorded):
    def summary(self):
        digits = "".join(f"{int(byte):02x}" for byte in elements(self.record()["bytes"]))
        return f"{digits} ({len(digits) // 2} bytes)"

    def parts(self):
        return ()


class TrackDescriptor(Recorded):
    """Of the base and of each kind, which has a record of its own."""

    BASE = "Korvane::Media::TrackDescriptor"

    def __init__(self, value):
        super().__init__(value)
        if self.name == self.BASE:  # one of the library's kinds?
            whole = with_dynamic_type(self.value.address).dereference()
            name = type_name(whole.type)
            if CLASSES.get(name) is TrackDescriptor:
                self.value, self.name = whole, name

    def summary(self):
        self.record()
        return None if self.is_record else self.name.rpartition("::")[2]

    def parts(self):
        if not self.is_record and self.name != self.BASE:
            base = self.value.cast(gdb.lookup_type(self.BASE))
            yield from self.described(self.record_of(base, self.BASE))
        yield from self.described(self.record())

    @staticmethod
    def described(record):
        yield from members(record, ("key_values",))
        if gdb.types.has_field(record.type, "key_values"):
            for pair in pairs(record["key_values"]):
                yield f'key_values["{as_python(pair["first"])}"]', text(pair["second"])


class Singleton(Recorded):
    hidden = ("fallback",)

    def summary(self):
        _, registered = next(self.parts())
        return f"forwards to {class_at(registered)}" if registered else "forwards to nothing"


class CoreException(Recorded):
    described_by = "kv_Core_r"
    pointer = "state_"
    suffix = "State"

    def summary(self):
        record = self.record()
        return enumerator(record["code"])

    def parts(self):
        record = self.record()
        yield "code", shown(record["code"])
        yield "message", pointed_to(record["message"], gdb.lookup_type("char")).lazy_string()


class Handle(Recorded):
    """What is held, and the number of handles that share it."""

    pointer = "impl_"
    suffix = "::Impl"

    def summary(self):
        record = self.record()
        held = record["object_"]
        if not held or not record["count_"]:
            return "holds nothing"
        count = pointed_to(record["count_"]["counter_"], gdb.lookup_type("unsigned int"))
        return f"{class_at(held)}, count {int(count.dereference())}"

    def parts(self):
        held = self.record()["object_"]
        yield "get()", with_dynamic_type(held)
        if held and CLASSES.get(class_at(held)) is TrackDescriptor:
            yield "*get()", with_dynamic_type(held).dereference()


class VideoDescriptorFrame(Plain):
    def parts(self):
        yield from members(self.value, ("descriptor",))
        descriptor = self.value["descriptor"]
        yield "descriptor", with_dynamic_type(descriptor)
        if descriptor:
            yield "*descriptor", with_dynamic_type(descriptor).dereference()


class Rational(Plain):
    def summary(self):
        return f"{int(self.value['numerator'])}/{int(self.value['denominator'])}"

    def parts(self):
        return ()


class TimeData(Plain):
    def summary(self):
        names = ("year", "month", "day", "hour", "minute", "second", "millisecond")
        values = [int(self.value[name]) for name in names]
        return "{:04}-{:02}-{:02} {:02}:{:02}:{:02}.{:03}".format(*values)

    def parts(self):
        return ()


# Every exported class.
CLASSES = {
    "Korvane::AdditionalProcessHandlerSingleton": Singleton,
    "Korvane::AudioInfo": Plain,
    "Korvane::Exception": CoreException,
    "Korvane::IAdditionalProcessHandler": Interface,
    "Korvane::IStorageAuthentication": Interface,
    "Korvane::ImageInfo": Plain,
    "Korvane::Media::AudioPowerList": AudioPowerList,
    "Korvane::Media::AudioTrackConfig": List,
    "Korvane::Media::CameraInfo": Recorded,
    "Korvane::Media::CompoundTrackDescriptor": TrackDescriptor,
    "Korvane::Media::DataTrackDescriptor": TrackDescriptor,
    "Korvane::Media::EncodingPerfListenerSingleton": Singleton,
    "Korvane::Media::ExtendedMediaSample": Interface,
    "Korvane::Media::FrameListener": Interface,
    "Korvane::Media::FrameProviderPtr": Handle,
    "Korvane::Media::FramePtr": Handle,
    "Korvane::Media::IEncodingPerfListener": Interface,
    "Korvane::Media::IEncodingPerfListenerProvider": Interface,
    "Korvane::Media::IEncodingPerfListenerPtr": Handle,
    "Korvane::Media::IFrame": Interface,
    "Korvane::Media::IFrameProvider": Interface,
    "Korvane::Media::IProviderCtrl": Interface,
    "Korvane::Media::ISampleProvider": Interface,
    "Korvane::Media::ISampleProviderPtr": Handle,
    "Korvane::Media::IUmidInfo": Interface,
    "Korvane::Media::InterplayWebService": Recorded,
    "Korvane::Media::MediaSample": Interface,
    "Korvane::Media::MediaSampleListener": Interface,
    "Korvane::Media::MediaSampleSharedPtr": Handle,
    "Korvane::Media::MultiviewerConfig": Recorded,
    "Korvane::Media::MultiviewerSource": Recorded,
    "Korvane::Media::MultiviewerSourceList": List,
    "Korvane::Media::PictureTrackDescriptor": TrackDescriptor,
    "Korvane::Media::SRTStreamStatsData": Recorded,
    "Korvane::Media::SRTStreamStatsDataList": List,
    "Korvane::Media::ST2110StreamStatsData": Recorded,
    "Korvane::Media::ST2110StreamStatsDataList": List,
    "Korvane::Media::SdpConfig": Recorded,
    "Korvane::Media::SdpConfigSet": Recorded,
    "Korvane::Media::SoundTrackDescriptor": TrackDescriptor,
    "Korvane::Media::SourceInfo": Recorded,
    "Korvane::Media::SrtSettings": Recorded,
    "Korvane::Media::StreamStatsListener": Interface,
    "Korvane::Media::TimecodeInfo": Recorded,
    "Korvane::Media::TrackBitRates": Recorded,
    "Korvane::Media::TrackBitRatesList": List,
    "Korvane::Media::TrackDescriptor": TrackDescriptor,
    "Korvane::Media::TrackDescriptorList": TrackDescriptorList,
    "Korvane::Media::TrackDescriptorSharedPtr": Handle,
    "Korvane::Media::UIntList": List,
    "Korvane::Media::Umid": Umid,
    "Korvane::Media::VideoDescriptorFrame": VideoDescriptorFrame,
    "Korvane::Media::VideoFrame": Plain,
    "Korvane::Memory::Sample": Interface,
    "Korvane::Rational32": Rational,
    "Korvane::StorageAuthenticationSingleton": Singleton,
    "Korvane::TickCountProvider": Interface,
    "Korvane::TimeData": TimeData,
    "Korvane::Timecode": Timecode,
    "Korvane::TimecodeListener": Interface,
    "Korvane::ValueMap": ValueMap,
}

RECORDS = {name + printer.suffix: printer for name, printer in CLASSES.items()
           if issubclass(printer, Recorded)}


class Printers(gdb.printing.PrettyPrinter):
    """Listed by `info pretty-printer`, each switched off by `disable pretty-printer`."""

    def __init__(self):
        super().__init__("kv_Engine_r", [gdb.printing.SubPrettyPrinter(name) for name in CLASSES])
        self.switches = {switch.name: switch for switch in self.subprinters}

    def __call__(self, value):
        name = type_name(value.type)
        printer = CLASSES.get(name)
        if printer is not None:
            return printer(value) if self.switches[name].enabled else None
        printer = RECORDS.get(name)
        if printer is not None:
            of_record = printer(value)
            of_record.is_record = True
            return of_record
        if re.match(r"Korvane::Detail::(Sole)?RecordPtr<", name):
            record = object_of(value)["record_"]
            return self(record.dereference()) if record else None
        return None


gdb.printing.register_pretty_printer(gdb.current_objfile(), Printers(), replace=True)
