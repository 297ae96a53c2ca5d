// A module that the test opens at run time, as a host opens its plug-ins.

#include "core/exception.h"
#include "timecode/timecode.h"

#ifdef _WIN32
#define KV_TEST_EXPORT extern "C" __declspec(dllexport)
#else
#define KV_TEST_EXPORT extern "C" __attribute__((visibility("default")))
#endif

KV_TEST_EXPORT void plugin_raise_from_engine() { Korvane::Timecode(48, false); }

KV_TEST_EXPORT void plugin_raise_from_core() {
  Korvane::exception_throw(Korvane::MissingProperty, "text of the plug-in", true);
}

KV_TEST_EXPORT void plugin_raise_directly() {
  throw Korvane::Exception(Korvane::UnmappedValue, "thrown by the plug-in");
}

// The code of what `operation` raises, caught by type in here; 0 when it raises nothing.
KV_TEST_EXPORT unsigned int plugin_catch(void (*operation)()) {
  try {
    operation();
  } catch (const Korvane::Exception& exception) {
    return static_cast<unsigned int>(exception.code());
  }
  return 0;
}
