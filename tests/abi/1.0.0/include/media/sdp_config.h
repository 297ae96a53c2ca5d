// Where one essence of a stream is sent to: an endpoint as a session description (SDP, RFC 8866)
// states it in its connection data and its media description. No SDP text is read or written here,
// and nothing is checked: any address text, port and type is kept as it is. An endpoint is changed
// by assignment alone. A value: copies are deep and independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_SDP_CONFIG_H
#define KV_ENGINE_MEDIA_SDP_CONFIG_H

#include "foundation/comparison.h"
#include "foundation/export.h"
#include "foundation/record_ptr.h"
#include "media/sdp_type.h"

namespace Korvane {
namespace Media {

struct SdpConfigPrivate;

class KV_ENGINE_API SdpConfig {
 public:
  // No address, port 0.
  SdpConfig(SdpType type);

  // Copies the zero-terminated address. Raises InvalidArgument "Text must not be null".
  SdpConfig(SdpType type, const wchar_t* ip_address, int port);

  SdpConfig(const SdpConfig& other);
  SdpConfig& operator=(const SdpConfig& other);
  virtual ~SdpConfig();

  // Published without const.
  SdpType type();

  // 0 when none was given.
  int port() const;

  // Never null; empty when none was given. Valid until this object is assigned to or ends.
  const wchar_t* ip_address() const;

  // Equal when port, address and type are. Addresses are compared as text, case included: two ways
  // to write one address differ. Published without const.
  bool operator==(const SdpConfig& other);
  bool operator!=(const SdpConfig& other);

  // For C++20, which finds the operator ambiguous between two objects that may be changed.
  template <typename Left, typename Right>
  friend Detail::Equality<SdpConfig, Left, Right> operator==(Left&& left, Right&& right) {
    return left.operator==(right);
  }

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<SdpConfigPrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_SDP_CONFIG_H
