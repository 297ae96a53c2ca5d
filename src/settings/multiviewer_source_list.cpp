#include "media/multiviewer_source_list.h"

#include <algorithm>

#include "core/exception.h"
#include "foundation/list_record.h"
#include "media/multiviewer_source.h"

namespace Korvane::Media {

struct MultiviewerSourceListPrivate : ListRecord<MultiviewerSource> {};

MultiviewerSourceList::MultiviewerSourceList() : private_(new MultiviewerSourceListPrivate) {}

MultiviewerSourceList::MultiviewerSourceList(const MultiviewerSourceList& other) = default;

MultiviewerSourceList& MultiviewerSourceList::operator=(const MultiviewerSourceList& other) =
    default;

MultiviewerSourceList::~MultiviewerSourceList() = default;

// NOLINTNEXTLINE(performance-unnecessary-value-param): published by value
void MultiviewerSourceList::add_source(MultiviewerSource source) { private_->add(source); }

size_t MultiviewerSourceList::size() const { return private_->size(); }

MultiviewerSource MultiviewerSourceList::source_at(size_t index) const {
  const MultiviewerSource* const source = private_->find(index);
  exception_enforce(source != nullptr, InvalidArgument,
                    "Invalid position for Multiviewer Source List", true);
  return *source;
}

bool MultiviewerSourceList::operator==(const MultiviewerSourceList& other) {
  return std::ranges::equal(
      private_->values, other.private_->values,
      [](MultiviewerSource& mine, const MultiviewerSource& theirs) { return !(mine != theirs); });
}

}  // namespace Korvane::Media
