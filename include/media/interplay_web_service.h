// How to reach an Interplay web service of media asset management, and as whom. What was given at
// construction stays; a changed setting means a new object. A value: copies are deep and
// independent. Not synchronised.

#ifndef KV_ENGINE_MEDIA_INTERPLAY_WEB_SERVICE_H
#define KV_ENGINE_MEDIA_INTERPLAY_WEB_SERVICE_H

#include "foundation/export.h"
#include "foundation/record_ptr.h"

namespace Korvane {
namespace Media {

struct InterplayWebServicePrivate;

class KV_ENGINE_API InterplayWebService {
 public:
  // Keeps copies of the texts, unchecked and in whatever encoding. A null one raises
  // InvalidArgument "Text must not be null". The unit of `timeout` is that of the code that reads
  // it.
  InterplayWebService(const char* server, int port, const char* workgroup, const char* user,
                      const char* password, bool use_https, int timeout);

  InterplayWebService(const InterplayWebService& other);
  InterplayWebService& operator=(const InterplayWebService& other);
  ~InterplayWebService();

  // All texts are valid until the object is assigned to or ends.

  // The host: a name or an address.
  const char* server() const;
  int port() const;
  const char* workgroup() const;
  const char* user() const;

  // In plain text, as given. Nothing in this library prints it or puts it into another text.
  const char* password() const;

  // Whether base_url() begins with "https://".
  bool use_https() const;

  // How long a request may take, in the unit of the code that makes it.
  int timeout() const;

  // Scheme and authority of a URL (RFC 3986): "http://" or "https://", the server as given, a colon
  // and the port in decimal, also the usual one; neither path nor slash at the end. The server is
  // not escaped: an IPv6 address needs its brackets.
  const char* base_url() const;

 private:
  KV_ENGINE_PRIVATE_MEMBER Detail::RecordPtr<InterplayWebServicePrivate> private_;
};

}  // namespace Media
}  // namespace Korvane
#endif  // KV_ENGINE_MEDIA_INTERPLAY_WEB_SERVICE_H
