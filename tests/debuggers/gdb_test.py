"""GDB shows the objects of objects.cpp as transcript.txt has it: in the running program, in its core file,
and says so where the library has no debug information. Every exported class is among them."""

import argparse
import difflib
import os
import pathlib
import re
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
PROMPT = "(gdb) print "

# Reached through a reference only, and without members.
NOTHING_TO_SHOW = {"Korvane::Logging::Logger"}

STRIPPED = """\
(gdb) print timecode
Korvane::Timecode (no debug information of kv_Engine_r)
(gdb) print reference
Korvane::Timecode (no debug information of kv_Engine_r)
(gdb) print picture
Korvane::Media::PictureTrackDescriptor (no debug information of kv_Engine_r)
(gdb) print uints
Korvane::Media::UIntList (no debug information of kv_Engine_r)
(gdb) print value_map
Korvane::ValueMap (no debug information of kv_Engine_r)
(gdb) print web_service
Korvane::Media::InterplayWebService (no debug information of kv_Engine_r)
(gdb) print sample_ptr
Korvane::Media::MediaSampleSharedPtr (no debug information of kv_Engine_r)
(gdb) print perf_singleton
Korvane::Media::EncodingPerfListenerSingleton (no debug information of kv_Engine_r)
(gdb) print exception
Korvane::Exception (no debug information of kv_Core_r)
(gdb) print rational
30000/1001
"""

SETTINGS = ["set debuginfod enabled off", "set width 0", "set pagination off",
            "set print pretty on", "set print elements 200", "set print repeats 200"]
TO_THE_OBJECTS = ["break Host::everything_is_made", "run", "up"]


def expressions(transcript):
    return [line[len(PROMPT):] for line in transcript.splitlines() if line.startswith(PROMPT)]


def prints(transcript):
    for expression in expressions(transcript):
        yield f"echo {PROMPT}{expression}\\n"
        yield f"print {expression}"


def run_gdb(arguments, name, commands, files, libraries):
    """What GDB answers to `commands`."""
    script = arguments.work / f"{name}.gdb"
    script.write_text("\n".join([*SETTINGS, f"source {arguments.printers}", *commands, ""]),
                      encoding="utf-8")
    environment = {**os.environ, "LC_ALL": "C.UTF-8", "LD_LIBRARY_PATH": str(libraries)}
    result = subprocess.run([arguments.gdb, "-nx", "-batch", "-x", script, *files],
                            env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, encoding="utf-8", check=False)
    if result.returncode != 0 or PROMPT not in result.stdout:
        sys.exit(f"{name}: GDB failed ({result.returncode}):\n{result.stdout}")
    return result.stdout[result.stdout.index(PROMPT):]


def normal(text):
    """Without what differs from run to run."""
    text = re.sub(r"^\$\d+ = ", "", text, flags=re.M)
    text = re.sub(r" +$", "", text, flags=re.M)
    return re.sub(r"0x[0-9a-f]{6,}", "0xADDRESS", text)


def differences(name, expected, found):
    return list(difflib.unified_diff(expected.splitlines(), normal(found).splitlines(),
                                     f"{name}: expected", f"{name}: found", lineterm=""))


def build(arguments):
    program = arguments.work / "objects"
    subprocess.run([arguments.compiler, "-std=c++11", "-g", "-O0", "-Wall", "-Wextra", "-Wpedantic",
                    "-Wno-unused", *(f"-I{root}" for root in arguments.include),
                    HERE / "objects.cpp", "-o", program, *arguments.libraries], check=True)
    return program


def without_debug_information(arguments):
    folder = arguments.work / "stripped"
    folder.mkdir(exist_ok=True)
    for library in arguments.libraries:
        subprocess.run([arguments.objcopy, "--strip-debug", library, folder / library.name],
                       check=True)
    return folder


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--gdb", required=True)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--objcopy", required=True)
    parser.add_argument("--printers", required=True)
    parser.add_argument("--include", action="append", required=True)
    parser.add_argument("--library", dest="libraries", action="append", required=True,
                        type=pathlib.Path, help="under the name by which programs load it")
    parser.add_argument("--layout", required=True, type=pathlib.Path)
    parser.add_argument("--work", required=True, type=pathlib.Path)
    arguments = parser.parse_args()
    arguments.work.mkdir(parents=True, exist_ok=True)

    program = build(arguments)
    libraries = arguments.libraries[0].parent
    text = (HERE / "transcript.txt").read_text(encoding="utf-8")
    transcript = text[text.index(PROMPT):]
    core = arguments.work / "core"
    core.unlink(missing_ok=True)

    # The classes after the transcript, then a core file for the second look.
    answer = run_gdb(arguments, "live", [
        *TO_THE_OBJECTS, *prints(transcript), f"source {HERE / 'shown_class.py'}",
        *(f"python shown_class({expression!r})" for expression in expressions(transcript)),
        f"generate-core-file {core}"], [program], libraries)
    live, _, rest = answer.partition("shown class ")
    errors = differences("live", transcript, live)
    shown = set(re.findall(r"^(?:shown class )?(Korvane::[\w:]+)$", rest, flags=re.M))
    exported = set(re.findall(r"struct Class<([\w:]+),",
                              arguments.layout.read_text(encoding="utf-8"))) - NOTHING_TO_SHOW
    errors += [f"{name} is shown by no printer" for name in sorted(exported - shown)]
    if not exported:
        errors.append("no class is exported")

    answer = run_gdb(arguments, "core", ["up", *prints(transcript)], [program, core], libraries)
    errors += differences("core file", transcript, answer)

    answer = run_gdb(arguments, "stripped", [*TO_THE_OBJECTS, *prints(STRIPPED)], [program],
                     without_debug_information(arguments))
    errors += differences("stripped", STRIPPED, answer)

    print("\n".join(errors), file=sys.stderr)
    print(f"{len(expressions(transcript))} objects of {len(exported)} classes")
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main())
