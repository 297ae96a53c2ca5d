"""Breaks the interface in one way, in a copy of the headers and of the library, and looks which
checks refuse it: exactly those that are said to. The break "none" is refused by none."""

import argparse
import dataclasses
import json
import pathlib
import shlex
import shutil
import subprocess
import sys


@dataclasses.dataclass
class Break:
    file: str  # below the source folder
    edits: list  # pairs of old and new text, done in turn; the old one stands once in the file
    refused_by: set


def swapped(left, right):
    """The edits that put each of two texts in the place of the other."""
    return [(left, "\0"), (right, left), ("\0", right)]


BREAKS = {
    "none": Break("include/media/umid.h", [], set()),
    "private_record": Break(
        "src/sources/umid.cpp",
        [("std::wstring text;  // what", "std::wstring text; int more = 0;  // what")],
        set()),
    "data_member_more": Break(
        "include/media/umid.h",
        [("RecordPtr<UmidPrivate> private_;", "RecordPtr<UmidPrivate> private_; int more_ = 0;")],
        {"layout", "records", "abidiff"}),
    "data_members_swapped": Break(
        "include/media/audio_info.h",
        swapped("unsigned int channel_count;", "unsigned int sampling_rate;"),
        {"layout", "records", "abidiff"}),
    "slots_swapped": Break(
        "include/media/i_provider_ctrl.h",
        swapped("virtual void start() = 0;", "virtual void stop() = 0;"),
        {"slots", "abidiff"}),
    "slot_more": Break(
        "include/media/sdp_config.h",
        [("virtual ~SdpConfig();", "virtual ~SdpConfig(); virtual int more() const { return 0; }")],
        {"slots", "abidiff"}),
    "value_changed": Break(
        "include/media/sdp_type.h", [("SdpAnc = 2", "SdpAnc = 3")], {"layout", "abidiff"}),
    "enumerator_more": Break(  # allowed; complete_test.py asks for its line
        "include/media/sdp_type.h", [("SdpAnc = 2", "SdpMore = 3, SdpAnc = 2")], set()),
    "export_lost": Break(
        "include/media/srt_settings.h",
        [("unsigned int polling_period() const;",
          "KV_ENGINE_HIDDEN unsigned int polling_period() const;")],
        {"exports", "abidiff"}),
    "export_more": Break(
        "src/foundation/tick_count_provider.cpp",
        [("namespace Korvane {\n",
          "namespace Korvane {\nKV_ENGINE_API int more() { return 0; }\n")],
        {"exports"}),
    "made_protected": Break(
        "include/media/umid.h",
        [("const wchar_t* c_str() const;", "\n protected: const wchar_t* c_str() const;")],
        {"names"}),
}


def change(plant, source, copy):
    """Copies the headers, and the changed file, to `copy`."""
    for folder in ("include", "core/include"):
        shutil.copytree(source / folder, copy / folder)
    text = (source / plant.file).read_text(encoding="utf-8")
    for old, new in plant.edits:
        if text.count(old) != 1:
            sys.exit(f"{plant.file} does not hold once: {old}")
        text = text.replace(old, new)
    target = copy / plant.file
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_text(text, encoding="utf-8")


def dependents(build, file):
    """The object files of the library that are built from `file`."""
    output = subprocess.run(["ninja", "-C", build, "-t", "deps"], check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    found = set()
    for block in output.split("\n\n"):
        lines = block.split("\n")
        if str(file) in (line.strip() for line in lines[1:]):
            found.add(lines[0].partition(":")[0])
    return {name for name in found if "kv_Engine_r_objects" in name}


def build_library(plant, arguments, copy):
    """Compiles what depends on the changed file and links it with all other objects of the build."""
    changed = arguments.source / plant.file
    rebuilt = dependents(arguments.build, changed)
    if not rebuilt:
        sys.exit(f"no source of the library depends on {plant.file}")
    commands = json.loads((arguments.build / "compile_commands.json").read_text(encoding="utf-8"))
    objects = []
    for entry in commands:
        words = shlex.split(entry["command"])
        name = words[words.index("-o") + 1]
        if "kv_Engine_r_objects" not in name:
            continue
        built = arguments.build / name
        if name in rebuilt:
            built = copy / (pathlib.Path(name).name)
            words[words.index("-o") + 1] = str(built)
            if words[-1] == str(changed):
                words[-1] = str(copy / plant.file)
            words[1:1] = ["-w", f"-I{copy}/include", f"-I{copy}/core/include"]
            subprocess.run(words, check=True, cwd=entry["directory"])
        objects.append(built)
    library = copy / "libkv_Engine_r.so.1"
    subprocess.run([words[0], "-shared", "-o", library, *objects, f"-Wl,-soname,{library.name}",
                    f"-Wl,--version-script={arguments.source}/cmake/kv_Engine_r.map",
                    arguments.core], check=True)
    return library


def checks(arguments, copy, library):
    """The command of each check, by name."""
    here = pathlib.Path(__file__).parent
    python = [sys.executable, "-B"]
    roots = ["--root", copy / "include", "--root", copy / "core/include"]
    exports = arguments.source / "cmake/kv_Engine_r.exports"
    return {
        "layout": [arguments.compiler, "-std=c++11", "-fsyntax-only", f"-I{copy}/include",
                   f"-I{copy}/core/include", here / "layout.cpp"],
        "records": [*python, here / "records_test.py", "--clang", arguments.clang, "--target",
                    "x86_64-pc-linux-gnu", *roots, "--expected", here / "records.txt"],
        "slots": [arguments.cmake, "-D", f"CLANGXX={arguments.clang}", "-D",
                  "TARGET=x86_64-pc-windows-msvc", "-D", f"SOURCE_DIR={copy}", "-D",
                  f"WORK_DIR={copy}", "-P", here / "slots_test.cmake"],
        "names": [*python, here / "names_test.py", "--clang", arguments.clang, "--cxxfilt",
                  arguments.cxxfilt, "--undname", arguments.undname, "--nm", arguments.nm,
                  "--client", arguments.client, *roots, "--exports", exports, "--exports",
                  arguments.source / "cmake/kv_Core_r.exports", "--microsoft",
                  here / "microsoft.exports"],
        "exports": [arguments.cmake, "-D", f"LIBRARY={library}", "-D", "FORMAT=elf", "-D",
                    f"OBJDUMP={arguments.objdump}", "-D", f"EXPECTED={exports}", "-P",
                    here / "exports_test.cmake"],
        "abidiff": [arguments.abidiff, "--no-added-syms", arguments.stored, library],
    }


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("name", choices=BREAKS)
    for option in ("source", "build", "work", "core", "stored", "client"):
        parser.add_argument("--" + option, required=True, type=pathlib.Path)
    for option in ("compiler", "clang", "cmake", "cxxfilt", "undname", "nm", "objdump", "abidiff"):
        parser.add_argument("--" + option, required=True)
    arguments = parser.parse_args()

    plant = BREAKS[arguments.name]
    shutil.rmtree(arguments.work, ignore_errors=True)
    change(plant, arguments.source, arguments.work)
    library = build_library(plant, arguments, arguments.work)
    refused_by = set()
    for name, command in checks(arguments, arguments.work, library).items():
        result = subprocess.run(command, check=False, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, text=True)
        print(f"== {name}: {'accepts' if result.returncode == 0 else 'refuses'}")
        print("\n".join(result.stdout.split("\n")[:40]))
        if result.returncode != 0:
            refused_by.add(name)
    if refused_by != plant.refused_by:
        print(f"refused by {sorted(refused_by)}, not by {sorted(plant.refused_by)}")
    return 0 if refused_by == plant.refused_by else 1


if __name__ == "__main__":
    sys.exit(main())
