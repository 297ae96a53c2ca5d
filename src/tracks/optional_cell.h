// One optional attribute of a private record: absent, or a value in a cell of its own, so that a
// getter can hand out a pointer to it. Copying copies the value into a new cell.

#ifndef KV_ENGINE_SRC_TRACKS_OPTIONAL_CELL_H
#define KV_ENGINE_SRC_TRACKS_OPTIONAL_CELL_H

#include <memory>

namespace Korvane::Media {

template <typename T>
class OptionalCell {
 public:
  OptionalCell() = default;
  OptionalCell(const OptionalCell& other)
      : cell_(other.cell_ ? std::make_unique<T>(*other.cell_) : nullptr) {}
  OptionalCell& operator=(const OptionalCell&) = delete;
  ~OptionalCell() = default;

  // Null while absent.
  T* get() const { return cell_.get(); }

  // The new cell comes in before the old one goes; without memory for it the old one stays.
  void set(T value) { cell_ = std::make_unique<T>(value); }

  void swap(OptionalCell& other) noexcept { cell_.swap(other.cell_); }

 private:
  std::unique_ptr<T> cell_;
};

}  // namespace Korvane::Media
#endif  // KV_ENGINE_SRC_TRACKS_OPTIONAL_CELL_H
