// The private record of an exported list: its values in the order in which they were added.

#ifndef KV_ENGINE_FOUNDATION_LIST_RECORD_H
#define KV_ENGINE_FOUNDATION_LIST_RECORD_H

#include <cstddef>
#include <vector>

namespace Korvane {

template <typename Value>
struct ListRecord {
  std::vector<Value> values;

  // `value` may lie in the list itself.
  void add(const Value& value) { values.push_back(value); }

  std::size_t size() const { return values.size(); }

  // Null for an index past the end. Valid until the next add.
  const Value* find(std::size_t index) const {
    return index < values.size() ? &values[index] : nullptr;
  }
};

}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_LIST_RECORD_H
