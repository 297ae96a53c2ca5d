// Operations in any order on handles of every class: each object lives as long as a handle to it.
// Seen at the end: each beginning of a sequence is a sequence too.

#include <array>
#include <deque>

#include "input.h"
#include "support/watched.h"

namespace {

using Korvane::expect;
using Korvane::Input;

constexpr int kNone = -1;

// Handles, and of each the number of the object that it should hold.
template <typename Kind>
class Model {
 public:
  using Handle = typename Kind::Handle;
  using Object = typename Kind::Object;

  void run(Input& input) {
    while (input.has_operation()) step(input);
    check();
  }

 private:
  struct Held {
    Handle handle;
    int object = kNone;
  };

  Object* make_object() {
    watches_.emplace_back();
    objects_.push_back(new typename Kind::Concrete(watches_.back()));
    return objects_.back();
  }

  int newest() const { return static_cast<int>(objects_.size()) - 1; }

  void step(Input& input) {
    const unsigned int operation = input.take_below(32);
    Held& one = held_[operation % 4];
    const Held& other = held_[input.take_below(4)];
    switch (operation / 4) {
      case 0:
        one.handle.reset();
        one.object = kNone;
        break;
      case 1:
        one.handle.reset(make_object());
        one.object = newest();
        break;
      case 2:
        one.handle = Handle(make_object());
        one.object = newest();
        break;
      case 3: {
        const Handle copy(other.handle);  // NOLINT(performance-unnecessary-copy-initialization)
        const int object = other.object;
        one.handle.reset();
        one.handle = copy;
        one.object = object;
        break;
      }
      case 4:
        one.handle = Handle();
        one.object = kNone;
        break;
      default:
        one.handle = other.handle;
        one.object = other.object;
    }
  }

  void check() const {
    for (const Held& held : held_) {
      expect(held.handle.get() == (held.object == kNone ? nullptr : object(held.object)));
      expect(held.handle.operator->() == held.handle.get());
    }
    for (int i = 0; i <= newest(); ++i) {
      bool is_held = false;
      for (const Held& held : held_) is_held = is_held || held.object == i;
      expect(watches_[static_cast<std::size_t>(i)].destroyed == (is_held ? 0 : 1));
    }
  }

  Object* object(int number) const { return objects_[static_cast<std::size_t>(number)]; }

  std::deque<Korvane::Watch> watches_;  // before the handles, whose objects tell them of their end
  std::deque<Object*> objects_;
  std::array<Held, 4> held_;
};

template <typename Kind>
void run(Input& input) {
  Model<Kind>().run(input);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Input input(data, size);
  switch (input.take_below(6)) {
    case 0:
      run<Korvane::SharedFrame>(input);
      break;
    case 1:
      run<Korvane::SharedFrameProvider>(input);
      break;
    case 2:
      run<Korvane::SharedSampleProvider>(input);
      break;
    case 3:
      run<Korvane::SharedPerfListener>(input);
      break;
    case 4:
      run<Korvane::SharedSample>(input);
      break;
    default:
      run<Korvane::SharedDescriptor>(input);
  }
  return 0;
}
