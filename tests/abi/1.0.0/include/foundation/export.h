// KV_ENGINE_API marks what kv_Engine_r exports, KV_ENGINE_HIDDEN a class inside an exported one
// that is not exported with it. KV_ENGINE_PRIVATE_MEMBER stands before a private member of an
// exported class that is a template: no client touches it, so MSVC need not warn (C4251).

#ifndef KV_ENGINE_FOUNDATION_EXPORT_H
#define KV_ENGINE_FOUNDATION_EXPORT_H

#if !defined(_WIN32)
#define KV_ENGINE_API __attribute__((visibility("default")))
#elif !defined(KV_ENGINE_BUILDING)
#define KV_ENGINE_API __declspec(dllimport)
#elif defined(_MSC_VER)
#define KV_ENGINE_API __declspec(dllexport)
#else
#define KV_ENGINE_API  // MinGW exports by list: dllexport would show foreign type information
#endif

#if !defined(_WIN32)
#define KV_ENGINE_HIDDEN __attribute__((visibility("hidden")))
#else
#define KV_ENGINE_HIDDEN
#endif

#if defined(_MSC_VER)
#define KV_ENGINE_PRIVATE_MEMBER __pragma(warning(suppress : 4251))
#else
#define KV_ENGINE_PRIVATE_MEMBER
#endif

#endif  // KV_ENGINE_FOUNDATION_EXPORT_H
