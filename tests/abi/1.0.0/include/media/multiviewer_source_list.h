// The tiles of one multiviewer layout in the order in which they were added. Nothing checks that
// they lie in the picture, keep apart or have different ids. A value: copies are deep and
// independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_MULTIVIEWER_SOURCE_LIST_H
#define KV_ENGINE_MEDIA_MULTIVIEWER_SOURCE_LIST_H

#include "foundation/comparison.h"
#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "foundation/types.h"

namespace Korvane {
namespace Media {

class MultiviewerSource;
struct MultiviewerSourceListPrivate;

class KV_ENGINE_API MultiviewerSourceList {
 public:
  // Empty.
  MultiviewerSourceList();

  MultiviewerSourceList(const MultiviewerSourceList& other);
  MultiviewerSourceList& operator=(const MultiviewerSourceList& other);
  ~MultiviewerSourceList();

  // Appends a copy. Without memory for it the list stays as it was.
  void add_source(MultiviewerSource source);

  size_t size() const;

  // A copy of the tile at `index`, counted from 0. Raises InvalidArgument "Invalid position for
  // Multiviewer Source List" when `index` is not below size().
  MultiviewerSource source_at(size_t index) const;

  // Whether the same tiles stand in the same order. Published without const, and without !=.
  bool operator==(const MultiviewerSourceList& other);

  // For C++20, which finds the operator ambiguous between two objects that may be changed.
  template <typename Left, typename Right>
  friend Detail::Equality<MultiviewerSourceList, Left, Right> operator==(Left&& left,
                                                                         Right&& right) {
    return left.operator==(right);
  }

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<MultiviewerSourceListPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_MULTIVIEWER_SOURCE_LIST_H
