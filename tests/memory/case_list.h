// Cases of exported operations that run out of memory: each covers one exported name.

#ifndef KV_ENGINE_TESTS_MEMORY_CASE_LIST_H
#define KV_ENGINE_TESTS_MEMORY_CASE_LIST_H

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "memory/exhaustion.h"
#include "memory/names.h"
#include "memory/values_text.h"

namespace Korvane::MemoryTests {

// `covered` is the operation's name as the demangler writes it; all constructors of one signature
// and all destructors of a class have one name each.
struct Case {
  std::string covered;
  std::function<void()> run;
};

using Cases = std::vector<Case>;

// The cases of one class each in the folders of src.
void add_foundation_cases(Cases& cases);
void add_sample_cases(Cases& cases);
void add_setting_cases(Cases& cases);
void add_source_cases(Cases& cases);
void add_stream_cases(Cases& cases);
void add_timecode_cases(Cases& cases);
void add_track_cases(Cases& cases);

// `check` looks at what `operation` leaves of the subject without memory.
template <typename Subject>
void add_case(Cases& cases, std::string name, std::function<Subject()> make,
              std::function<void(Subject&)> operation, std::function<void(Subject&)> check,
              Failing as = Failing::AsBadAlloc) {
  cases.push_back({std::move(name), [=] {
                     AttemptOn<Subject> attempt(make, operation, check);
                     exhaust(attempt, as);
                   }});
}

// A function that changes no object.
inline void add_function_case(Cases& cases, std::string name, std::function<void()> operation,
                              Failing as = Failing::AsBadAlloc) {
  add_case<int>(
      cases, std::move(name), [] { return 0; }, [operation](int& /*none*/) { operation(); },
      [](int& /*none*/) {}, as);
}

template <typename Result, typename... Parameters, typename... Arguments>
void add_function_case(Cases& cases, const char* name, Result (*function)(Parameters...),
                       Arguments... arguments) {
  add_function_case(cases, name + parameter_names<Parameters...>(),
                    [=] { static_cast<void>(function(static_cast<Parameters>(arguments)...)); });
}

// Adds the cases of a class. `make` returns an object on which its operations are to be run. What
// the getters give, and what was added by reading(), is what must be as before when memory ran out.
template <typename Class>
class ClassCases {
 public:
  using Make = std::function<Class()>;
  using Operation = std::function<void(Class&)>;
  using Reader = std::function<std::string(Class&)>;

  ClassCases(Cases& cases, Make make) : cases_(cases), make_(std::move(make)) {}

  // `reader` gives a text of something that can be seen of an object.
  void reading(Reader reader) { readers_->push_back(std::move(reader)); }

  // `operation` without memory leaves the object as it was.
  void operation(std::string name, Operation operation) {
    const auto as_before = [make = make_, readers = readers_](Class& subject) {
      Class unchanged = make();
      EXPECT_EQ(seen(*readers, unchanged), seen(*readers, subject));
    };
    operation_leaving(std::move(name), std::move(operation), as_before);
  }

  // `operation` without memory leaves an object that `check` takes for right.
  void operation_leaving(std::string name, Operation operation, Operation check) {
    add_case<Class>(cases_, std::move(name), make_, std::move(operation), std::move(check));
  }

  template <typename Result, typename Owner>
  void getter(const char* name, Result (Owner::*get)() const) {
    add_getter(member_name<Owner>(name, true), get);
  }
  template <typename Result, typename Owner>
  void getter(const char* name, Result (Owner::*get)()) {
    add_getter(member_name<Owner>(name), get);
  }

  template <typename Result, typename Owner, typename First, typename... Rest,
            typename... Arguments>
  void method(const char* name, Result (Owner::*call)(First, Rest...) const,
              Arguments... arguments) {
    add_method(member_name<Owner, First, Rest...>(name, true), call, arguments...);
  }
  template <typename Result, typename Owner, typename First, typename... Rest,
            typename... Arguments>
  void method(const char* name, Result (Owner::*call)(First, Rest...), Arguments... arguments) {
    add_method(member_name<Owner, First, Rest...>(name), call, arguments...);
  }

  // A getter and its setter, with the value to set.
  template <typename Value, typename Owner>
  void property(const char* name, Value (Owner::*get)() const, void (Owner::*set)(Value),
                Value value) {
    getter(name, get);
    method(name, set, value);
  }

  // A constructor of these parameters, and the destructor behind it.
  template <typename... Parameters, typename... Arguments>
  void constructor(Arguments... arguments) {
    operation(constructor_name<Class, Parameters...>(), [=](Class& /*unused*/) {
      [[maybe_unused]] const Class made(static_cast<Parameters>(arguments)...);
    });
  }

  // Copy construction, assignment of `make_other()` and destruction.
  template <typename MakeOther>
  void copying(MakeOther make_other) {
    copy_construction();
    const auto other = std::make_shared<const Class>(make_other());
    operation(member_name<Class, const Class&>("operator="),
              [other](Class& subject) { subject = *other; });
    if constexpr (!std::is_trivially_destructible_v<Class>) destruction();
  }

  void copy_construction() {
    operation(constructor_name<Class, const Class&>(),
              [](Class& subject) { const Class copy(subject); });
  }

  void destruction() {
    using Owned = std::unique_ptr<Class>;
    add_case<Owned>(
        cases_, destructor_name<Class>(), [make = make_] { return Owned(new Class(make())); },
        [](Owned& owned) { owned.reset(); }, [](Owned& /*owned*/) {});
  }

 private:
  using Readers = std::vector<Reader>;

  static std::string seen(const Readers& readers, Class& subject) {
    std::string text;
    for (const auto& reader : readers) text += reader(subject) + ", ";
    return text;
  }

  template <typename Getter>
  void add_getter(std::string name, Getter get) {
    reading([get](Class& subject) { return text_of((subject.*get)()); });
    operation(std::move(name), [get](Class& subject) { static_cast<void>((subject.*get)()); });
  }

  template <typename Method, typename... Arguments>
  void add_method(std::string name, Method call, Arguments... arguments) {
    operation(std::move(name),
              [=](Class& subject) { static_cast<void>((subject.*call)(arguments...)); });
  }

  Cases& cases_;
  Make make_;
  std::shared_ptr<Readers> readers_ = std::make_shared<Readers>();
};

template <typename Make>
ClassCases(Cases&, Make) -> ClassCases<std::invoke_result_t<Make>>;

// The members of an interface, which its copyable concrete class calls.
template <typename Interface, typename Concrete>
void add_interface_cases(Cases& cases) {
  const auto add = [&](std::string name, std::function<void(Concrete&)> operation) {
    add_case<Concrete>(
        cases, std::move(name), [] { return Concrete(); }, std::move(operation), [](Concrete&) {});
  };
  add(constructor_name<Interface>(), [](Concrete&) { const Concrete made; });
  add(constructor_name<Interface, const Interface&>(),
      [](Concrete& original) { const Concrete copy(original); });
  add(member_name<Interface, const Interface&>("operator="), [](Concrete& original) {
    const Concrete other;
    original = other;
  });
  add(destructor_name<Interface>(), [](Concrete& original) {
    alignas(Concrete) unsigned char place[sizeof(Concrete)];
    const Interface* const copy = new (place) Concrete(original);
    copy->~Interface();
  });
  if constexpr (std::is_same_v<Interface, Media::MediaSample> ||
                std::is_same_v<Interface, Media::ExtendedMediaSample>) {
    add(constructor_name<Interface, Interface&&>(),
        [](Concrete& original) { const Concrete moved(std::move(original)); });
    add(member_name<Interface, Interface&&>("operator="),
        [](Concrete& original) { original = Concrete(); });
  }
}

}  // namespace Korvane::MemoryTests
#endif  // KV_ENGINE_TESTS_MEMORY_CASE_LIST_H
