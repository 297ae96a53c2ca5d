// A unique material identifier (UMID, SMPTE ST 330): 32 bytes, or 64 when extended by the source
// pack of where, when and by whom. Any other number of bytes is kept as well; callers know the
// length of the identifiers that they use. A value: copies are deep and independent. Not
// synchronised.

#ifndef KV_ENGINE_MEDIA_UMID_H
#define KV_ENGINE_MEDIA_UMID_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"

namespace Korvane {
namespace Media {

struct UmidPrivate;

class KV_ENGINE_API Umid {
 public:
  // Takes two hexadecimal digits for each byte and passes over everything else, wherever it stands:
  // of a prefix 0x the 0 remains, and makes the digits of whole bytes odd in number. Digits are
  // those of ASCII, of either case. Without any digit there are no bytes. An odd number of digits
  // raises std::out_of_range "invalid string position", and a null text InvalidArgument "Text must
  // not be null".
  Umid(const wchar_t* text);

  Umid(const Umid& other);
  Umid& operator=(const Umid& other);
  ~Umid();

  // The first byte, those that follow stand behind it; null when there are none. Valid until the
  // UMID is assigned to or ends.
  const unsigned char* value() const;

  // The byte at `index`, counted from 0. The index is not checked: it must lie within the bytes.
  unsigned char& operator[](int index);
  unsigned char operator[](int index) const;

  // Two lower-case digits for each byte and nothing between them. Valid until the next call, an
  // assignment or the end of the UMID. Though const, it writes into the object: calls on one UMID
  // must not overlap.
  const wchar_t* c_str() const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<UmidPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_UMID_H
