// Every exported operation runs out of memory. Each fails as a whole, leaks nothing and ends
// nothing; its object is as before, or, where the old value goes before the new one is made, can
// still be assigned and destroyed.

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>

#include "memory/case_list.h"

namespace Korvane::MemoryTests {
namespace {

constexpr const char* kExportedSymbols[] = {
#include "exported_symbols.inc"
};

using AddCases = void (*)(Cases&);

constexpr AddCases kAllCases[] = {add_foundation_cases, add_sample_cases, add_setting_cases,
                                  add_source_cases,     add_stream_cases, add_timecode_cases,
                                  add_track_cases};

void run(AddCases add) {
  const long before = runs;
  Cases cases;
  add(cases);
  for (const Case& each : cases) {
    SCOPED_TRACE(each.covered);
    each.run();
  }
  testing::Test::RecordProperty("runs", std::to_string(runs - before));
}

TEST(Memory, RunsOutInFoundation) { run(add_foundation_cases); }
TEST(Memory, RunsOutInSamples) { run(add_sample_cases); }
TEST(Memory, RunsOutInSettings) { run(add_setting_cases); }
TEST(Memory, RunsOutInSources) { run(add_source_cases); }
TEST(Memory, RunsOutInStreams) { run(add_stream_cases); }
TEST(Memory, RunsOutInTimecodes) { run(add_timecode_cases); }
TEST(Memory, RunsOutInTracks) { run(add_track_cases); }

// Tables of virtual functions and descriptions of types are no operations.
std::set<std::string> exported_operations() {
  std::set<std::string> names;
  for (const char* symbol : kExportedSymbols)
    if (std::string(symbol).rfind("_ZT", 0) != 0) names.insert(demangled(symbol));
  return names;
}

std::set<std::string> covered_operations() {
  Cases cases;
  for (const AddCases add : kAllCases) add(cases);
  std::set<std::string> names;
  for (const Case& each : cases) names.insert(each.covered);
  return names;
}

std::string difference(const std::set<std::string>& a, const std::set<std::string>& b) {
  std::string lines;
  for (const std::string& name : a)
    if (b.count(name) == 0) lines += name + '\n';
  return lines;
}

TEST(Memory, EveryExportedOperationHasACase) {
  const std::set<std::string> exported = exported_operations();
  const std::set<std::string> covered = covered_operations();
  EXPECT_EQ("", difference(exported, covered)) << "no case";
  EXPECT_EQ("", difference(covered, exported)) << "not exported";
  EXPECT_LT(400U, exported.size());
  RecordProperty("operations", std::to_string(exported.size()));
}

}  // namespace
}  // namespace Korvane::MemoryTests
