// ext/compare.h: == of timecodes leaves most of the label out, so a container says what it means.

#include <iostream>
#include <set>
#include <unordered_map>

#include "ext/compare.h"
#include "ext/print.h"

int main() {
  using namespace Korvane;

  const Timecode first(25, 10, 0, 0, 7, false, false);
  const Timecode later(25, 10, 0, 1, 7, false, false);
  std::cout << first << " == " << later << ": " << Ext::equal(first, later) << '\n'
            << "same label: " << Ext::SameLabel()(first, later) << '\n';

  std::unordered_map<Timecode, const char*, Ext::LabelHash, Ext::SameLabel> notes;
  notes[first] = "goal";
  notes[later] = "replay";
  std::cout << notes.size() << " notes, at " << later << ": " << notes.at(later) << '\n';

  const std::set<Timecode, Ext::CountLess> cuts = {later, first};
  std::cout << "first cut: " << *cuts.begin() << '\n';
}
