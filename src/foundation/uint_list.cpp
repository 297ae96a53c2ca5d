#include "foundation/uint_list.h"

#include "foundation/list_record.h"

namespace Korvane::Media {

struct UIntListPrivate : ListRecord<unsigned int> {};

UIntList::UIntList() : private_(new UIntListPrivate) {}

UIntList::UIntList(const UIntList& other) = default;

UIntList& UIntList::operator=(const UIntList& other) = default;

UIntList::~UIntList() = default;

void UIntList::add_value(unsigned int value) { private_->add(value); }

size_t UIntList::size() const { return private_->size(); }

const unsigned int* UIntList::value_at(size_t index) const { return private_->find(index); }

}  // namespace Korvane::Media
