#include "foundation/value_map.h"

#include <map>

namespace Korvane {

struct ValueMapPrivate {
  std::map<int, int> values;
};

ValueMap::ValueMap() : private_(new ValueMapPrivate) {}

ValueMap::ValueMap(const ValueMap& other) = default;

ValueMap& ValueMap::operator=(const ValueMap& other) = default;

ValueMap::~ValueMap() = default;

size_t ValueMap::size() const { return private_->values.size(); }

int ValueMap::value_for_key(int key) const {
  const auto found = private_->values.find(key);
  return found != private_->values.end() ? found->second : 0;
}

void ValueMap::value_for_key(int key, int value) const { private_->values.emplace(key, value); }

}  // namespace Korvane
