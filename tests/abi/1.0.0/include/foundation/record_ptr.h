// How an exported object owns its private record: one pointer, never null, never moved from. The
// owner declares its destructor (and its copy operations) and defines them in its .cpp, where the
// record is complete. Constness is not passed on: some published const operations change the
// record.

#ifndef KV_ENGINE_FOUNDATION_RECORD_PTR_H
#define KV_ENGINE_FOUNDATION_RECORD_PTR_H

namespace Korvane {
namespace Detail {

// For classes that are not copied: a copy is refused by the compiler.
template <typename Record>
class SoleRecordPtr {
 public:
  explicit SoleRecordPtr(Record* record) : record_(record) {}
  SoleRecordPtr(const SoleRecordPtr&) = delete;
  SoleRecordPtr& operator=(const SoleRecordPtr&) = delete;
  ~SoleRecordPtr() {
    static_cast<void>(sizeof(Record));  // refuses an owner whose destructor is not in its .cpp
    delete record_;
  }

  Record* operator->() const { return record_; }
  Record& operator*() const { return *record_; }

 protected:
  // Takes `record` in place of the present one.
  void replace(Record* record) {
    delete record_;
    record_ = record;
  }

 private:
  Record* record_;
};

// For values: copying copies the record. A failed copy leaves the target as it was.
template <typename Record>
class RecordPtr : public SoleRecordPtr<Record> {
 public:
  explicit RecordPtr(Record* record) : SoleRecordPtr<Record>(record) {}
  RecordPtr(const RecordPtr& other) : SoleRecordPtr<Record>(new Record(*other)) {}
  ~RecordPtr() = default;
  RecordPtr& operator=(const RecordPtr& other) {
    if (this != &other) this->replace(new Record(*other));
    return *this;
  }
};

}  // namespace Detail
}  // namespace Korvane
#endif  // KV_ENGINE_FOUNDATION_RECORD_PTR_H
