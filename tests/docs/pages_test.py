#!/usr/bin/env python3
"""pages_test.py SOURCE KVTOOL: what the pages in docs/pages say, against the sources and the library."""
import json
import pathlib
import re
import subprocess
import sys
import unittest

SOURCE, KVTOOL = pathlib.Path(sys.argv[1]), sys.argv[2]
LITERALS = r'(?:"(?:[^"\\\n]|\\.)*"\s*)+'


def page(name):
    return (SOURCE / "docs/pages" / f"{name}.md").read_text(encoding="utf-8")


def rows(text):
    """The cells of every table row but heads and rules."""
    lines = text.splitlines()
    for line, following in zip(lines, lines[1:] + [""]):
        if line.startswith("|") and not line.startswith("|-") and not following.startswith("|-"):
            yield [cell.strip() for cell in line.strip("|").split("|")]


def joined(literals):
    return "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', literals))


def sources():
    for path in sorted([*SOURCE.glob("src/**/*.cpp"), *SOURCE.glob("src/**/*.h"), *SOURCE.glob("core/src/*")]):
        text = re.sub(r"(?m)//.*$|^\s*#.*$", "", path.read_text(encoding="utf-8"))
        yield re.sub(r"static_assert\(.*?\);", "", text, flags=re.DOTALL)


class Errors(unittest.TestCase):
    """docs/pages/errors.md has every text that is raised, and no other, under its code."""

    def setUp(self):
        self.code_of, code = {}, ""
        for line in page("errors").splitlines():
            if line.startswith("## "):
                code = line.split()[-1]
            elif line.startswith('| "'):
                self.code_of[line.split("|")[1].strip()[1:-1]] = code

    def test_every_text_of_the_sources(self):
        texts = {joined(match.group()) for text in sources() for match in re.finditer(LITERALS, text)}
        # Sentences, not the pieces of a log line, which begin or end with what joins them.
        raised = {text for text in texts if " " in text and text[0] not in " :" and text[-1] != " "}
        self.assertGreater(len(raised), 40)
        self.assertEqual(sorted(raised), sorted(self.code_of))

    def test_texts_stand_under_their_code(self):
        seen = 0
        for text in sources():
            for match in re.finditer(rf"\b(\w+),\s*({LITERALS}),\s*true\)", text):
                seen += 1
                self.assertEqual(match.group(1), self.code_of[joined(match.group(2))], match.group(2))
            # What fault_of() finds is raised by its caller.
            for match in re.finditer(rf"\breturn\s+({LITERALS});", text):
                if joined(match.group(1)) in self.code_of:
                    seen += 1
                    self.assertEqual("InvalidArgument", self.code_of[joined(match.group(1))])
        self.assertGreater(seen, 14)

    def test_codes_have_their_values(self):
        header = (SOURCE / "core/include/core/exception_code.h").read_text(encoding="utf-8")
        values = dict(re.findall(r"^  (\w+) = (\d+)", header, re.MULTILINE))
        self.assertEqual(values, {name: value for value, name in re.findall(r"^## (\d+) (\w+)$", page("errors"),
                                                                           re.MULTILINE)})


class WhichFrame(unittest.TestCase):
    """The library answers each row of the table in docs/pages/which-frame.md."""

    def ask(self, rate, count):
        command = [KVTOOL, "timecode", "--json", "--rate", rate.split("&")[0], *["--drop"] * ("drop" in rate), "--",
                   count]
        return json.loads(subprocess.run(command, check=True, capture_output=True, text=True).stdout)

    def test_each_row(self):
        table = [row for row in rows(page("which-frame")) if len(row) == 7]
        self.assertEqual(8, len(table))
        for rate, label, mark, number, count, day, _ in table:
            with self.subTest(rate=rate, count=count):
                told = self.ask(rate, count)
                self.assertEqual((label, mark == "yes", int(number), int(day)),
                                 (told["labels"]["dot_suffix"], told["field_mark"], told["frame_number"], told["day"]))

    def test_the_forms_of_frame_49(self):
        told = self.ask("50", "49")
        text = page("which-frame")
        self.assertIn(f"FieldMarkDotSuffix)` | {told['labels']['dot_suffix']} |", text)
        self.assertIn(f"FieldMarkFullRateFrames)` | {told['labels']['full_rate']} |", text)
        self.assertIn(f"FieldMarkOmitted)` | {told['labels']['omitted']},", text)
        self.assertIn(f"`to_12m()` | {told['st12_32']}:", text)

    def test_the_picture_of_drop_frame(self):
        drawing = (SOURCE / "docs/pages/drop-frame.svg").read_text(encoding="utf-8")
        at = {}  # the texts of each column, from the top
        for x, y, text in re.findall(r'<text x="(\d+)" y="(\d+)" text-anchor="middle">([\d:;]+)</text>', drawing):
            at.setdefault((int(y) > 150, int(x)), []).append(text)
        columns = [texts for texts in at.values() if len(texts) == 3]
        self.assertEqual(8, len(columns))
        for count, clock, frames in columns:
            self.assertEqual(clock + frames, self.ask("30&drop", count)["label"])
        self.assertEqual(["1798", "1799", "1800", "1801", "17980", "17981", "17982", "17983"],
                         sorted((column[0] for column in columns), key=int))


class SrtCounters(unittest.TestCase):
    def test_units_kinds_and_sides_are_those_of_the_header(self):
        header = (SOURCE / "include/media/srt_stream_stats_data.h").read_text(encoding="utf-8")
        fields = []
        for comment, name in re.findall(r"((?:  // [^\n]*\n)+)  (?:unsigned long long|double) (\w+)\(\) const;", header):
            marks = re.search(r"\[(.*)\]", " ".join(comment.replace("//", " ").split())).group(1)
            unit, kind, side = marks.rsplit(", ", 2)
            fields.append([f"`{name}`", unit.split(" where ")[0], kind, side])
        self.assertEqual(35, len(fields))
        self.assertEqual(fields, [row[:4] for row in rows(page("srt-counters"))])


class FirstProgram(unittest.TestCase):
    def test_is_that_of_the_readme_with_its_output(self):
        readme = (SOURCE / "README.md").read_text(encoding="utf-8")
        program = re.search(r"```cpp\n.*?```", readme, re.DOTALL).group()
        output = re.search(r"```text\n.*?```", readme, re.DOTALL).group()
        self.assertIn(program, page("getting-started"))
        self.assertIn(output, page("getting-started"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
