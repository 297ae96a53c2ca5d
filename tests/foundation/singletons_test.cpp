#include <gtest/gtest.h>

#include <new>
#include <string>
#include <type_traits>
#include <vector>

#include "support/watched.h"

namespace Korvane {
namespace {

struct ProcessHandler final : IAdditionalProcessHandler {
  void set_new_process(int process) override { processes.push_back(process); }
  std::vector<int> processes;
};

struct StorageHandler final : IStorageAuthentication {
  void authenticate_storage(const wchar_t* storage) override { storages.push_back(storage); }
  std::vector<const wchar_t*> storages;
};

struct PerfListenerProvider final : Media::IEncodingPerfListenerProvider {
  Media::IEncodingPerfListenerPtr new_encoding_perf_listener(const char* name) override {
    names.emplace_back(name);
    auto* const listener = new WatchedPerfListener(watch);
    last = listener;
    return Media::IEncodingPerfListenerPtr(listener);
  }
  Watch watch;
  std::vector<std::string> names;
  const void* last = nullptr;
};

// Registers for the time of a test.
template <typename Register>
class Registration {
 public:
  explicit Registration(Register clear) : clear_(clear) {}
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;
  ~Registration() { clear_(); }

 private:
  Register clear_;
};

template <typename Singleton, bool kPolymorphic>
void expect_the_shape_of_a_singleton() {
  static_assert(sizeof(Singleton) == (kPolymorphic ? 2 : 1) * sizeof(void*));
  static_assert(std::is_polymorphic_v<Singleton> == kPolymorphic);
  static_assert(!std::is_default_constructible_v<Singleton>);
  static_assert(std::is_copy_constructible_v<Singleton> && std::is_copy_assignable_v<Singleton>);
  static_assert(std::is_destructible_v<Singleton>);
  EXPECT_EQ(&Singleton::instance(), &Singleton::instance());
}

TEST(AdditionalProcessHandlerSingleton, IsOneObject) {
  expect_the_shape_of_a_singleton<AdditionalProcessHandlerSingleton, true>();
  static_assert(std::is_base_of_v<IAdditionalProcessHandler, AdditionalProcessHandlerSingleton>);
}

TEST(AdditionalProcessHandlerSingleton, ForwardsToTheRegisteredListenerOnly) {
  const auto& singleton = AdditionalProcessHandlerSingleton::instance();
  IAdditionalProcessHandler& events = AdditionalProcessHandlerSingleton::instance();
  const Registration cleared([&] { singleton.set_handler_listener(nullptr); });
  ProcessHandler first;
  ProcessHandler second;
  events.set_new_process(1);  // dropped
  singleton.set_handler_listener(&first);
  events.set_new_process(2);
  events.set_new_process(-3);
  singleton.set_handler_listener(&second);
  events.set_new_process(4);
  singleton.set_handler_listener(nullptr);
  events.set_new_process(5);  // dropped
  EXPECT_EQ((std::vector<int>{2, -3}), first.processes);
  EXPECT_EQ((std::vector<int>{4}), second.processes);
}

TEST(StorageAuthenticationSingleton, IsOneObject) {
  expect_the_shape_of_a_singleton<StorageAuthenticationSingleton, true>();
  static_assert(std::is_base_of_v<IStorageAuthentication, StorageAuthenticationSingleton>);
}

TEST(StorageAuthenticationSingleton, PassesThePointerUnread) {
  const auto& singleton = StorageAuthenticationSingleton::instance();
  IStorageAuthentication& events = StorageAuthenticationSingleton::instance();
  const Registration cleared([&] { singleton.set_storage_authentication_listener(nullptr); });
  StorageHandler handler;
  const wchar_t* const storage = L"\\\\storage\\media";
  events.authenticate_storage(storage);  // dropped
  singleton.set_storage_authentication_listener(&handler);
  events.authenticate_storage(storage);
  events.authenticate_storage(nullptr);
  singleton.set_storage_authentication_listener(nullptr);
  events.authenticate_storage(storage);  // dropped
  EXPECT_EQ((std::vector<const wchar_t*>{storage, nullptr}), handler.storages);
}

TEST(EncodingPerfListenerSingleton, IsOneObject) {
  expect_the_shape_of_a_singleton<Media::EncodingPerfListenerSingleton, false>();
}

TEST(EncodingPerfListenerSingleton, WithoutAProviderGivesANewListenerThatIgnoresEverything) {
  auto& singleton = Media::EncodingPerfListenerSingleton::instance();
  Media::IEncodingPerfListenerPtr first = singleton.new_encoding_perf_listener("encoder");
  Media::IEncodingPerfListenerPtr second = singleton.new_encoding_perf_listener("encoder");
  ASSERT_NE(nullptr, first.get());
  ASSERT_NE(nullptr, second.get());
  EXPECT_NE(first.get(), second.get());
  first->frame_encoded(1, 2, 3);
  first->frame_dropped(4);
  EXPECT_NE(nullptr, singleton.new_encoding_perf_listener(nullptr).get());
}

TEST(EncodingPerfListenerSingleton, AsksTheRegisteredProvider) {
  auto& singleton = Media::EncodingPerfListenerSingleton::instance();
  const Registration cleared([&] { singleton.encoding_perf_listener_provider(nullptr); });
  PerfListenerProvider provider;
  singleton.encoding_perf_listener_provider(&provider);
  {
    const Media::IEncodingPerfListenerPtr listener = singleton.new_encoding_perf_listener("A");
    EXPECT_EQ(provider.last, listener.get());
    EXPECT_EQ(0, provider.watch.destroyed);
  }
  EXPECT_EQ(1, provider.watch.destroyed);
  singleton.encoding_perf_listener_provider(nullptr);
  EXPECT_NE(nullptr, singleton.new_encoding_perf_listener("B").get());
  EXPECT_EQ((std::vector<std::string>{"A"}), provider.names);
}

// Destroying a copy would free what the instance uses, so these copies are never destroyed.
template <typename Singleton>
Singleton& undestroyed_copy(const Singleton& original) {
  alignas(Singleton) static unsigned char storage[sizeof(Singleton)];
  return *new (storage) Singleton(original);
}

TEST(Singletons, CopiesShareTheRegistration) {
  ProcessHandler process_handler;
  auto& processes = undestroyed_copy(AdditionalProcessHandlerSingleton::instance());
  processes.set_handler_listener(&process_handler);
  AdditionalProcessHandlerSingleton::instance().set_new_process(8);
  processes = AdditionalProcessHandlerSingleton::instance();
  processes.set_new_process(9);
  processes.set_handler_listener(nullptr);
  AdditionalProcessHandlerSingleton::instance().set_new_process(10);
  EXPECT_EQ((std::vector<int>{8, 9}), process_handler.processes);

  StorageHandler storage_handler;
  auto& storages = undestroyed_copy(StorageAuthenticationSingleton::instance());
  storages.set_storage_authentication_listener(&storage_handler);
  StorageAuthenticationSingleton::instance().authenticate_storage(L"a");
  storages = StorageAuthenticationSingleton::instance();
  storages.set_storage_authentication_listener(nullptr);
  EXPECT_EQ(1U, storage_handler.storages.size());

  PerfListenerProvider provider;
  auto& listeners = undestroyed_copy(Media::EncodingPerfListenerSingleton::instance());
  listeners.encoding_perf_listener_provider(&provider);
  Media::EncodingPerfListenerSingleton::instance().new_encoding_perf_listener("C");
  listeners = Media::EncodingPerfListenerSingleton::instance();
  listeners.encoding_perf_listener_provider(nullptr);
  EXPECT_EQ((std::vector<std::string>{"C"}), provider.names);
}

struct Ticks final : TickCountProvider {
  unsigned long long tick_count() const override { return 42; }
};

TEST(TickCountProvider, IsAnInterfaceOfOneOperation) {
  static_assert(std::is_abstract_v<TickCountProvider>);
  static_assert(std::has_virtual_destructor_v<TickCountProvider>);
  static_assert(sizeof(TickCountProvider) == sizeof(void*));
  const Ticks ticks;
  const TickCountProvider& provider = ticks;
  EXPECT_EQ(42U, provider.tick_count());
}

}  // namespace
}  // namespace Korvane
