// KV_CORE_API marks what kv_Core_r exports.

#ifndef KV_CORE_EXPORT_H
#define KV_CORE_EXPORT_H

#if !defined(_WIN32)
#define KV_CORE_API __attribute__((visibility("default")))
#elif !defined(KV_CORE_BUILDING)
#define KV_CORE_API __declspec(dllimport)
#elif defined(_MSC_VER)
#define KV_CORE_API __declspec(dllexport)
#else
#define KV_CORE_API  // MinGW exports by list: dllexport would show foreign type information
#endif

#endif  // KV_CORE_EXPORT_H
