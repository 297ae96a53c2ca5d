#include "media/interplay_web_service.h"

#include <string>

#include "foundation/required_text.h"

namespace Korvane::Media {
namespace {

// std::to_string groups no digits, whatever the locale.
std::string make_base_url(const char* server, int port, bool use_https) {
  return std::string(use_https ? "https://" : "http://") + server + ':' + std::to_string(port);
}

}  // namespace

struct InterplayWebServicePrivate {
  std::string server;
  int port;
  std::string workgroup;
  std::string user;
  std::string password;
  bool use_https;
  std::string base_url;
  int timeout;
};

InterplayWebService::InterplayWebService(const char* server, int port, const char* workgroup,
                                         const char* user, const char* password, bool use_https,
                                         int timeout)
    : private_(new InterplayWebServicePrivate{
          required_text(server), port, required_text(workgroup), required_text(user),
          required_text(password), use_https, make_base_url(server, port, use_https), timeout}) {}

InterplayWebService::InterplayWebService(const InterplayWebService& other) = default;

InterplayWebService& InterplayWebService::operator=(const InterplayWebService& other) = default;

InterplayWebService::~InterplayWebService() = default;

const char* InterplayWebService::server() const { return private_->server.c_str(); }

int InterplayWebService::port() const { return private_->port; }

const char* InterplayWebService::workgroup() const { return private_->workgroup.c_str(); }

const char* InterplayWebService::user() const { return private_->user.c_str(); }

const char* InterplayWebService::password() const { return private_->password.c_str(); }

bool InterplayWebService::use_https() const { return private_->use_https; }

int InterplayWebService::timeout() const { return private_->timeout; }

const char* InterplayWebService::base_url() const { return private_->base_url.c_str(); }

}  // namespace Korvane::Media
