#include "memory/case_list.h"
#include "support/watched.h"

namespace Korvane::MemoryTests {
namespace {

// A copyable concrete class of each interface.
struct ProcessHandler final : IAdditionalProcessHandler {
  void set_new_process(int /*process*/) override {}
};
struct StorageHandler final : IStorageAuthentication {
  void authenticate_storage(const wchar_t* /*storage*/) override {}
};
struct Ticks final : TickCountProvider {
  unsigned long long tick_count() const override { return 42; }
};

void add_containers(Cases& cases) {
  using Media::UIntList;
  ClassCases list(cases, [] {
    UIntList made;
    made.add_value(1);
    made.add_value(2);
    return made;
  });
  list.constructor<>();
  list.copying([] { return UIntList(); });
  list.getter("size", &UIntList::size);
  list.method("add_value", &UIntList::add_value, 3U);
  list.method("value_at", &UIntList::value_at, Korvane::size_t{1});
  list.reading([](const UIntList& read) { return text_of(read.value_at(1)); });

  ClassCases map(cases, [] {
    ValueMap made;
    made.value_for_key(1, 10);
    made.value_for_key(-1, 20);
    return made;
  });
  map.constructor<>();
  map.copying([] { return ValueMap(); });
  map.getter("size", &ValueMap::size);
  map.method("value_for_key", static_cast<int (ValueMap::*)(int) const>(&ValueMap::value_for_key),
             1);
  map.method("value_for_key",
             static_cast<void (ValueMap::*)(int, int) const>(&ValueMap::value_for_key), 3, 30);
  map.reading([](const ValueMap& read) {
    return text_of(read.value_for_key(1)) + ' ' + text_of(read.value_for_key(3));
  });
}

// A handle that holds an object, and another object.
template <typename Kind>
struct Given {
  using Handle = typename Kind::Handle;
  using Object = typename Kind::Object;

  static Object* make_object() {
    static Watch watch;
    return new typename Kind::Concrete(watch);
  }

  Handle handle = Handle(make_object());
  std::unique_ptr<Object> object{make_object()};
};

// These take the object, and delete it when memory runs out. Reset gives up the old one first.
template <typename Kind>
void add_taking_an_object(Cases& cases, bool reset_is_const) {
  using Handle = typename Kind::Handle;
  using Object = typename Kind::Object;
  using GivenKind = Given<Kind>;
  const auto make = [] { return GivenKind(); };
  add_case<GivenKind>(
      cases, constructor_name<Handle, Object*>(), make,
      [](GivenKind& given) { const Handle made(given.object.release()); },
      [](GivenKind& given) { EXPECT_NE(nullptr, given.handle.get()); });
  add_case<GivenKind>(
      cases, member_name<Handle, Object*>("reset", reset_is_const), make,
      [](GivenKind& given) { given.handle.reset(given.object.release()); },
      [](GivenKind& given) {
        EXPECT_EQ(nullptr, given.handle.get());
        given.handle = Handle(GivenKind::make_object());
        EXPECT_NE(nullptr, given.handle.get());
      });
}

// Assignment and reset give up the old object before they need memory: without it the handle holds
// nothing.
template <typename Kind>
void add_handle(Cases& cases) {
  using Handle = typename Kind::Handle;
  constexpr bool kOfDescriptor = std::is_same_v<Handle, Media::TrackDescriptorSharedPtr>;
  const auto make = [] { return Handle(Given<Kind>::make_object()); };
  const auto holds_nothing = [](const Handle& handle) { EXPECT_EQ(nullptr, handle.get()); };
  ClassCases handle(cases, make);
  handle.reading([](const Handle& read) -> std::string { return read.get() ? "object" : "none"; });
  handle.template constructor<>();
  handle.copy_construction();
  handle.operation_leaving(
      member_name<Handle, const Handle&>("operator="),
      [other = make()](Handle& target) { target = other; }, holds_nothing);
  handle.destruction();
  add_taking_an_object<Kind>(cases, kOfDescriptor);
  handle.operation_leaving(
      member_name<Handle>("reset", kOfDescriptor), [](Handle& target) { target.reset(); },
      holds_nothing);
  handle.operation(member_name<Handle>("get", true),
                   [](Handle& target) { static_cast<void>(target.get()); });
  handle.operation(member_name<Handle>("operator->", true),
                   [](Handle& target) { static_cast<void>(target.operator->()); });
  if constexpr (kOfDescriptor) handle.method("operator==", &Handle::operator==, make());
}

// The first call makes the instance, which stays; one without memory leaves nothing behind.
template <typename Singleton>
void first_call() {
  for (long failing = 1; failing < 10; ++failing) {
    const long live = Allocations::counters().live();
    Outcome outcome = Outcome::Done;
    {
      const Allocations::Failure failure(failing);
      outcome = outcome_of([] { Singleton::instance(); });
    }
    if (outcome == Outcome::Done) return;
    EXPECT_EQ(live, Allocations::counters().live());
  }
  ADD_FAILURE() << "no instance with 8 allocations";
}

// A copy that is not destroyed: that would free the record, which it shares with the instance.
template <typename Singleton>
union UndestroyedCopy {
  UndestroyedCopy() : singleton(Singleton::instance()) {}
  UndestroyedCopy(const UndestroyedCopy&) = delete;
  UndestroyedCopy& operator=(const UndestroyedCopy&) = delete;
  ~UndestroyedCopy() {}  // NOLINT(modernize-use-equals-default): not the copy
  Singleton singleton;
};

template <typename Singleton>
void add_singleton(Cases& cases) {
  cases.push_back({member_name<Singleton>("instance"), first_call<Singleton>});
  cases.push_back({constructor_name<Singleton>(), first_call<Singleton>});
  using Copy = UndestroyedCopy<Singleton>;
  add_function_case(cases, constructor_name<Singleton, const Singleton&>(),
                    [] { const Copy copy; });
  add_function_case(cases, member_name<Singleton, const Singleton&>("operator="), [] {
    Copy copy;
    copy.singleton = static_cast<const Singleton&>(Singleton::instance());
  });
}

// Of a copy; the instance is of no use afterwards, so these come last.
template <typename Singleton>
void add_end_of_singleton(Cases& cases) {
  cases.push_back({destructor_name<Singleton>(), [] {
                     UndestroyedCopy<Singleton> copy;
                     const long live = Allocations::counters().live();
                     {
                       const Allocations::Failure failure(1);
                       copy.singleton.~Singleton();
                     }
                     EXPECT_EQ(live - 1, Allocations::counters().live());
                   }});
}

template <typename Singleton, typename Result, typename Parameter>
void add_call(Cases& cases, const char* name, Result (Singleton::*call)(Parameter),
              Parameter argument) {
  add_function_case(cases, member_name<Singleton, Parameter>(name),
                    [=] { static_cast<void>((Singleton::instance().*call)(argument)); });
}

template <typename Singleton, typename Result, typename Parameter>
void add_call(Cases& cases, const char* name, Result (Singleton::*call)(Parameter) const,
              Parameter argument) {
  add_function_case(cases, member_name<Singleton, Parameter>(name, true),
                    [=] { static_cast<void>((Singleton::instance().*call)(argument)); });
}

void add_singletons(Cases& cases) {
  using Processes = AdditionalProcessHandlerSingleton;
  using Storages = StorageAuthenticationSingleton;
  using Listeners = Media::EncodingPerfListenerSingleton;
  static ProcessHandler process_handler;
  static StorageHandler storage_handler;
  add_singleton<Processes>(cases);
  add_call<Processes, void, IAdditionalProcessHandler*>(
      cases, "set_handler_listener", &Processes::set_handler_listener, &process_handler);
  add_call(cases, "set_new_process", &Processes::set_new_process, 7);
  add_singleton<Storages>(cases);
  add_call<Storages, void, IStorageAuthentication*>(cases, "set_storage_authentication_listener",
                                                    &Storages::set_storage_authentication_listener,
                                                    &storage_handler);
  add_call<Storages, void, const wchar_t*>(cases, "authenticate_storage",
                                           &Storages::authenticate_storage, L"storage");
  add_singleton<Listeners>(cases);
  add_call<Listeners, void, Media::IEncodingPerfListenerProvider*>(
      cases, "encoding_perf_listener_provider", &Listeners::encoding_perf_listener_provider,
      nullptr);
  add_call<Listeners, Media::IEncodingPerfListenerPtr, const char*>(
      cases, "new_encoding_perf_listener", &Listeners::new_encoding_perf_listener, "encoder");
  add_end_of_singleton<Processes>(cases);
  add_end_of_singleton<Storages>(cases);
  add_end_of_singleton<Listeners>(cases);
}

}  // namespace

void add_foundation_cases(Cases& cases) {
  add_containers(cases);
  add_handle<SharedFrame>(cases);
  add_handle<SharedFrameProvider>(cases);
  add_handle<SharedSampleProvider>(cases);
  add_handle<SharedPerfListener>(cases);
  add_handle<SharedSample>(cases);
  add_handle<SharedDescriptor>(cases);
  add_interface_cases<IAdditionalProcessHandler, ProcessHandler>(cases);
  add_interface_cases<IStorageAuthentication, StorageHandler>(cases);
  add_interface_cases<TickCountProvider, Ticks>(cases);
  add_singletons(cases);
}

}  // namespace Korvane::MemoryTests
