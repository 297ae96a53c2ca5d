// Tables with one row for each value of an enumeration that counts from 0. Each row begins with its
// value, `key`, so that the table proves its own order.

#ifndef KV_ENGINE_SRC_TRACKS_ENUM_TABLE_H
#define KV_ENGINE_SRC_TRACKS_ENUM_TABLE_H

namespace Korvane {

// Whether there is a row for each value up to `last`, in their order.
template <typename Row, typename Enum, unsigned int kCount>
constexpr bool is_complete(const Row (&rows)[kCount], Enum last) {
  for (unsigned int i = 0; i < kCount; ++i)
    if (rows[i].key != static_cast<Enum>(i)) return false;
  return kCount - 1 == last;
}

// Null when the table has no row for `key`.
template <typename Row, typename Enum, unsigned int kCount>
constexpr const Row* find_row(const Row (&rows)[kCount], Enum key) {
  const auto index = static_cast<unsigned int>(key);
  return index < kCount ? &rows[index] : nullptr;
}

}  // namespace Korvane
#endif  // KV_ENGINE_SRC_TRACKS_ENUM_TABLE_H
