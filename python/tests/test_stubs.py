"""The type stubs have the names, arguments and attributes of the module, and nothing else. And what the module
tells of itself."""

import ast
import inspect
import os
import pathlib
import re
import sys
import unittest

import korvane

STUBS = pathlib.Path(os.environ["KV_STUBS"]).resolve()

# What Python or pybind11 gives every class.
GIVEN = {"__doc__", "__module__", "__new__", "__init__", "__dict__", "__weakref__", "__entries",
         "__pybind11_module_local_v4_gcc_libstdcpp_cxxabi1018__"}


def signature(arguments):
    names = [argument.arg for argument in arguments.posonlyargs + arguments.args + arguments.kwonlyargs]
    return [name for name in names if name != "self"]


class Stub:
    """One class of the stubs."""

    def __init__(self, node):
        self.bases = [base.id for base in node.bases]
        self.functions, self.static, self.attributes, self.setters, self.classes = {}, set(), set(), set(), {}
        self.constants = set()
        for item in node.body:
            if isinstance(item, ast.ClassDef):
                self.classes[item.name] = Stub(item)
            elif isinstance(item, ast.AnnAssign):
                self.constants.add(item.target.id)
            elif isinstance(item, ast.FunctionDef):
                self.function(item)

    def function(self, item):
        decorators = [ast.unparse(decorator) for decorator in item.decorator_list]
        if "property" in decorators:
            self.attributes.add(item.name)
        elif f"{item.name}.setter" in decorators:
            self.setters.add(item.name)
        else:
            self.functions.setdefault(item.name, []).append(signature(item.args))
            if "staticmethod" in decorators:
                self.static.add(item.name)

    def names(self):
        return (set(self.functions) | self.attributes | self.constants | set(self.classes)) - {"__init__"}


TREE = ast.parse(STUBS.read_text(encoding="utf-8"))
CLASSES = {node.name: Stub(node) for node in TREE.body if isinstance(node, ast.ClassDef)}


def public(scope):
    return {name for name in vars(scope) if name not in GIVEN and not name.startswith("__pybind11")}


def overloads(function):
    """The names of the arguments of each overload, from its docstring."""
    found = []
    for line in re.findall(r"^(?:\d+\. )?\w+\((.*)\) -> .+$", function.__doc__ or "", re.M):
        line = re.sub(r"\[[^]]*\]", "", line)
        names = [part.partition(":")[0].strip() for part in line.split(",") if part]
        found.append([name for name in names if name != "self"])
    return found


class Stubs(unittest.TestCase):
    def check_class(self, name, real, stub):
        with self.subTest(name=name):
            if hasattr(real, "__members__"):
                self.assertEqual(stub.bases, ["_Enumeration"])
                self.assertEqual(stub.constants, set(real.__members__))
                return
            self.assertEqual(public(real), stub.names())
            for member in public(real):
                self.check_member(member, vars(real)[member], getattr(real, member), stub)
            bases = [base.__name__ for base in real.__bases__ if base.__name__ in vars(korvane)]
            self.assertEqual(bases, [base for base in stub.bases if base in vars(korvane)])
            made = overloads(real.__init__)
            if made and real is not korvane.InterplayWebService:  # its copy is made by the same function
                self.assertEqual(made, stub.functions["__init__"])

    def check_member(self, name, plain, value, stub):
        if isinstance(plain, property):
            self.assertIn(name, stub.attributes)
            self.assertEqual(plain.fset is not None, name in stub.setters, name)
        elif inspect.isclass(value):
            self.check_class(name, value, stub.classes[name])
        elif name in stub.functions:
            self.assertEqual(isinstance(plain, staticmethod), name in stub.static, name)
            if not name.startswith("__"):  # of operators the arguments have no names
                self.assertEqual(overloads(value), stub.functions[name], name)
        else:
            self.assertIn(name, stub.constants)

    def test_every_name_of_the_module_and_no_other(self):
        names = {name for name in vars(korvane) if not name.startswith("__")}
        self.assertEqual(names, set(CLASSES) - {"_Enumeration"})
        for name in names:
            self.check_class(name, getattr(korvane, name), CLASSES[name])

    def test_the_base_of_enumerations(self):
        for name in CLASSES["_Enumeration"].names():
            self.assertTrue(hasattr(korvane.VideoFormats, name), name)

    def test_classes_that_compare_have_no_hash(self):
        for name, stub in CLASSES.items():
            if name.startswith("_"):
                continue
            compares = "__eq__" in vars(getattr(korvane, name)) and not hasattr(getattr(korvane, name), "__members__")
            record = name in ("Rational32", "TimeData")  # constant
            self.assertEqual("__hash__" in stub.constants, compares and not record, name)


# What engine modules implement, the handles and singletons through which they meet, records with a handle
# or a pointer in them, and the exception, which is korvane.Error.
NOT_IN_PYTHON = """
    AdditionalProcessHandlerSingleton EncodingPerfListenerSingleton Exception ExtendedMediaSample FrameListener
    FrameProviderPtr FramePtr IAdditionalProcessHandler IEncodingPerfListener IEncodingPerfListenerProvider
    IEncodingPerfListenerPtr IFrame IFrameProvider IProviderCtrl ISampleProvider ISampleProviderPtr
    IStorageAuthentication MediaSample MediaSampleListener MediaSampleSharedPtr Sample
    StorageAuthenticationSingleton StreamStatsListener TickCountProvider TimecodeListener
    TrackDescriptorSharedPtr VideoDescriptorFrame VideoFrame BothChangeable SoleRecordPtr RecordPtr
    """.split()


class Completeness(unittest.TestCase):
    def test_every_name_that_a_header_declares(self):
        sys.path.insert(0, str(STUBS.parent))
        import docstrings

        docs, enumerators = {}, {}
        for folder in ("include", "core/include"):
            for path in docstrings.exported_headers(STUBS.parent.parent / folder):
                docstrings.Header(docs, enumerators).read(path.read_text(encoding="utf-8").split("\n"))
        keys = [key for key in docs if key.split(".")[0] not in NOT_IN_PYTHON]
        missing = []
        for key in [*keys, *(f"{key}.{name}" for key, names in enumerators.items() for name, _, _ in names)]:
            scope = korvane
            for name in key.split("."):
                scope = getattr(scope, name, None) if scope is not None else None
            if scope is None:
                missing.append(key)
        # Of an interface, whose class SourceInfo has them; and Logger has static functions here.
        allowed = {f"IUmidInfo.{name}" for name in ("umid_kind", "tape_mob_id", "master_mob_id", "source_mob_id")}
        self.assertEqual(set(missing), allowed | {"Logger.instance"})
        self.assertGreater(len(keys), 300)


class Docstrings(unittest.TestCase):
    def test_they_are_the_comments_of_the_headers(self):
        for thing, text in (
            (korvane.Timecode.add, "Steps by frames, or by days of the present rate and counting; both signs."),
            (korvane.Timecode.add_days, "Steps by frames, or by days of the present rate"),
            (korvane.Timecode, "Time-of-day label of a video frame, as SMPTE ST 12-1 counts it"),
            (korvane.VideoFormatsHelper, "What each video format means"),
            (korvane.AudioInfo.sampling_rate, "samples per second and channel"),
            (korvane.MultiviewerSource.height, "Of the tile, in pixels."),
            (korvane.SRTStreamStatsData.ms_rtt, "Round-trip time. [milliseconds, instant, both]"),
            (korvane.PictureTrackDescriptor.width, "Pixels."),
            (korvane.TrackBitRatesList.track_at, "None when `index`, counted from 0, is not below the size."),
            (korvane.VideoFormats, "UnknownFormat : when nothing matches; no mapping takes it"),
        ):
            with self.subTest(text=text):
                self.assertIn(text, thing.__doc__.replace("\n", " "))

    def test_they_speak_of_nothing_that_python_has_not(self):
        for name in vars(korvane):
            scope = getattr(korvane, name)
            for member in [scope, *(vars(scope).values() if inspect.isclass(scope) else ())]:
                text = re.sub(r'"[^"]*"', "", getattr(member, "__doc__", None) or "")
                for foreign in ("Korvane::", "std::string", "alid until", "null", "ublished"):
                    self.assertNotIn(foreign, text, f"{name} {member}")


if __name__ == "__main__":
    unittest.main()
