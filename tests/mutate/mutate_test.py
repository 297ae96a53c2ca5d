"""tools/mutate tells the mutants of a tiny project apart as anyone who reads its lines can, keeps what it
found, runs survivors again when a test is added, and refuses a list of equivalents that is wrong."""

import argparse
import json
import pathlib
import shutil
import subprocess
import sys

CMAKE = """\
cmake_minimum_required(VERSION 3.25)
project(tiny CXX)
enable_testing()
add_library(tiny SHARED src/rules/rules.cpp)
target_include_directories(tiny PUBLIC src)
add_subdirectory(tests/rules)
"""

TESTS_CMAKE = """\
add_executable(rules_test rules_test.cpp)
target_link_libraries(rules_test PRIVATE tiny)
add_test(NAME rules COMMAND rules_test)
set_tests_properties(rules PROPERTIES LABELS library)
"""

HEADER = """\
int twice(int n);
bool is_large(int n);
int at_most_nine(int n);
long long countdown(long long n);

constexpr int seven() { return 7; }
"""

SOURCE = """\
#include "rules/rules.h"

static_assert(seven() == 7);
int days_of[1];

int twice(int n) { return n + n; }  // 0 + 0 /* and "1 < 2" */

bool is_large(int n) {
#ifdef _WIN32
  return n > 1000;
#else
  return n > 100;
#endif
}

int at_most_nine(int n) {
  if (n > 9) return 9;
  return n;
}

long long countdown(long long n) {
  while (n != 0) --n;
  return n;
}

const char* text() { return "0 < 1 && true"; }
"""

# 0 is its own double, so nothing tells + from - yet.
TEST = """\
#include "rules/rules.h"
int main() {
  const bool right = twice(0) == 0 && is_large(101) && !is_large(100) && at_most_nine(12) == 9 &&
                     at_most_nine(3) == 3 && countdown(2) == 0;
  return right ? 0 : 1;
}
"""

EXPECTED = {
    ("constexpr int seven() { return 7; }", "constexpr int seven() { return 8; }"): "proofread",
    ("constexpr int seven() { return 7; }", "constexpr int seven() { ; }"): "invalid",
    ("int days_of[1];", "int days_of[2];"): "survived",
    ("TWICE", "int twice(int n) { return n - n; }"): "survived",
    ("TWICE", "int twice(int n) { ; }"): "killed",
    ("return n > 100;", "return n >= 100;"): "killed",
    ("return n > 100;", "return n <= 100;"): "killed",
    ("return n > 100;", "return n > 101;"): "killed",
    ("return n > 100;", ";"): "killed",
    ("if (n > 9) return 9;", "if (n >= 9) return 9;"): "survived",
    ("if (n > 9) return 9;", "if (n <= 9) return 9;"): "killed",
    ("if (n > 9) return 9;", "if (!(n > 9)) return 9;"): "killed",
    ("if (n > 9) return 9;", "if (n > 10) return 9;"): "survived",
    ("if (n > 9) return 9;", "if (n > 9) return 10;"): "killed",
    ("if (n > 9) return 9;", "if (n > 9) ;"): "killed",
    ("return n; 1/2", ";"): "killed",
    ("while (n != 0) --n;", "while (n == 0) --n;"): "killed",
    ("while (n != 0) --n;", "while (n != 1) --n;"): "killed",
    ("while (n != 0) --n;", "while (n != 0) ++n;"): "killed",
    ("while (n != 0) --n;", "while (n != 0) ;"): "killed",
    ("return n; 2/2", ";"): "killed",
    ("TEXT", 'const char* text() { ; }'): "survived",
}

EQUIVALENTS = """\
# as in tools/mutate --help
src/rules/rules.cpp @@ int days_of[1]; @@ int days_of[2]; @@ nothing reads it
src/rules/rules.cpp @@ if (n > 9) return 9; @@ if (n >= 9) return 9; @@ 9 either way
src/rules/rules.cpp @@ const char* text() { return "0 < 1 && true"; } @@ const char* text() { ; } @@ never called
"""


def check(expected, found, what):
    if expected != found:
        sys.exit(f"{what}: expected {expected}, got {found}")


class Project:
    def __init__(self, tool, folder):
        self.tool = tool
        self.folder = folder
        shutil.rmtree(folder, ignore_errors=True)
        self.write("CMakeLists.txt", CMAKE)
        self.write("tests/rules/CMakeLists.txt", TESTS_CMAKE)
        self.write("src/rules/rules.h", HEADER)
        self.write("src/rules/rules.cpp", SOURCE)
        self.write("tests/rules/rules_test.cpp", TEST)
        subprocess.run(["cmake", "-S", folder, "-B", folder / "build" / "dev"], check=True,
                       stdout=subprocess.DEVNULL)

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def run(self, *options):
        """Returns the exit code, what was printed, and the results by line and mutated line."""
        report = self.folder / "report.json"
        report.unlink(missing_ok=True)
        done = subprocess.run([sys.executable, self.tool, "--root", self.folder, "--jobs", "2",
                               "--json", report, *options],
                              text=True, check=False, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        results = {}
        if report.exists():
            for each in json.loads(report.read_text()):
                line = each["before"]
                if line.startswith("int twice"):
                    line = "TWICE"
                if line.startswith("const char*"):
                    line = "TEXT"
                place = each["place"].partition(" ")[2]
                after = each["after"].partition("  //")[0]
                results[(f"{line} {place}".strip(), after)] = each["result"]
        return done.returncode, done.stdout, results


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--tool", required=True)
    parser.add_argument("--folder", required=True, type=pathlib.Path)
    arguments = parser.parse_args()
    project = Project(arguments.tool, arguments.folder)

    code, output, _ = project.run("--tests", arguments.folder / "build")
    check((1, True), (code, "is no build of the tests" in output), f"without a build of the tests\n{output}")

    code, output, results = project.run()
    for key in EXPECTED | results:
        check(EXPECTED.get(key), results.get(key), f"{key}\n{output}")
    check(1, code, "exit code while mutants survive")
    check(False, "A sample" in output, "all that were tried are called a sample")

    code, output, results = project.run()
    check(EXPECTED, results, "results of a second run")
    check(False, " tried, " in output, "the second run tries a mutant again")

    project.write("tests/rules/rules_test.cpp",
                  TEST.replace("twice(0) == 0", "twice(0) == 0 && twice(3) == 6 && at_most_nine(10) == 9"))
    project.write("tools/mutate.equivalent", EQUIVALENTS)
    code, output, results = project.run()
    check("killed", results[("TWICE", "int twice(int n) { return n - n; }")], "after a test of 3")
    check("killed", results[("if (n > 9) return 9;", "if (n > 10) return 9;")], "after a test of 10")
    check("equivalent", results[("int days_of[1];", "int days_of[2];")], "one that is listed")
    check(True, " of 5 tried" in output, f"survivors run again\n{output}")
    check(0, code, f"exit code when all are killed\n{output}")

    code, output, results = project.run("--limit", "3")
    check(3, len(results), "size of a sample")
    check(True, "A sample: 3 of 22" in output, f"says that it is a sample\n{output}")

    project.write("tools/mutate.equivalent", EQUIVALENTS.replace("n >= 9", "n >= 8"))
    code, output, _ = project.run("--percent", "0")
    check((1, True), (code, "no such mutant" in output), f"a line of the list without a mutant\n{output}")

    project.write("tools/mutate.equivalent", EQUIVALENTS.replace("n >= 9) return 9;", "n <= 9) return 9;"))
    code, output, _ = project.run("--percent", "0")
    check((1, True), (code, "not equivalent" in output), f"one that a test kills\n{output}")


if __name__ == "__main__":
    main()
