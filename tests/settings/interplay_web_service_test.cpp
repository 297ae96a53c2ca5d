#include "media/interplay_web_service.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>

#include "support/foreign_locale.h"
#include "support/log_capture.h"
#include "support/raises.h"

namespace Korvane::Media::InterplayWebServiceTests {
namespace {

using Service = InterplayWebService;

static_assert(sizeof(Service) == sizeof(void*));
static_assert(!std::is_polymorphic_v<Service>);
static_assert(!std::is_default_constructible_v<Service>);

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kGreatest = std::numeric_limits<int>::max();

Service service_at(const char* server, int port, bool use_https) {
  return {server, port, "workgroup", "user", "password", use_https, 30};
}

void expect_fields(const Service& service, const char* server, int port, const char* workgroup,
                   const char* user, const char* password, bool use_https, int timeout,
                   const char* base_url) {
  EXPECT_STREQ(server, service.server());
  EXPECT_EQ(port, service.port());
  EXPECT_STREQ(workgroup, service.workgroup());
  EXPECT_STREQ(user, service.user());
  EXPECT_STREQ(password, service.password());
  EXPECT_EQ(use_https, service.use_https());
  EXPECT_EQ(timeout, service.timeout());
  EXPECT_STREQ(base_url, service.base_url());
}

Service filled() { return {"mam.example", 8443, "News", "ingest", "s3cret", true, 30}; }

void expect_filled(const Service& service) {
  expect_fields(service, "mam.example", 8443, "News", "ingest", "s3cret", true, 30,
                "https://mam.example:8443");
}

TEST(InterplayWebService, KeepsWhatItIsGiven) {
  expect_filled(filled());
  expect_fields(Service("", 0, "", "", "", false, -1), "", 0, "", "", "", false, -1, "http://:0");
  expect_fields(Service("a", 1, "b", "c", "d", false, kLeast), "a", 1, "b", "c", "d", false, kLeast,
                "http://a:1");
}

TEST(InterplayWebService, TheBaseUrlIsSchemeServerAndPort) {
  struct Url {
    const char* server;
    int port;
    bool use_https;
    const char* base_url;
  };
  constexpr Url kUrls[] = {
      {"10.1.2.3", 80, false, "http://10.1.2.3:80"},
      {"10.1.2.3", 80, true, "https://10.1.2.3:80"},
      {"10.1.2.3", 443, true, "https://10.1.2.3:443"},
      {"mam", 0, false, "http://mam:0"},
      {"mam", -1, false, "http://mam:-1"},
      {"mam", 8080, true, "https://mam:8080"},
      {"mam", kGreatest, false, "http://mam:2147483647"},
      {"mam", kLeast, true, "https://mam:-2147483648"},
      {"", 80, false, "http://:80"},
      {"", -1, true, "https://:-1"},
      // As given, whatever it is.
      {"MAM.Example/", 1234567, false, "http://MAM.Example/:1234567"},
      {"http://mam", 1, true, "https://http://mam:1"},
      {" a b ", 1, false, "http:// a b :1"},
      {"[2001:db8::1]", 80, false, "http://[2001:db8::1]:80"},
      {"2001:db8::1", 80, false, "http://2001:db8::1:80"},
      {"gr\xC3\xBC\xC3\x9F", 80, false, "http://gr\xC3\xBC\xC3\x9F:80"},
  };
  for (const Url& url : kUrls)
    EXPECT_STREQ(url.base_url, service_at(url.server, url.port, url.use_https).base_url());
}

TEST(InterplayWebService, NoLocaleChangesThePort) {
  const ForeignLocale foreign;
  ASSERT_EQ("1.2.3.4", ForeignLocale::written(1234));
  EXPECT_STREQ("http://mam:65535", service_at("mam", 65535, false).base_url());
  EXPECT_STREQ("https://mam:-2147483648", service_at("mam", kLeast, true).base_url());
}

TEST(InterplayWebService, KeepsCopiesOfTheTexts) {
  const std::string kept(100, 'k');
  std::string text = kept;
  const char* const given = text.c_str();
  const Service service(given, 1, given, given, given, true, 2);
  text.assign(100, 'x');
  expect_fields(service, kept.c_str(), 1, kept.c_str(), kept.c_str(), kept.c_str(), true, 2,
                ("https://" + kept + ":1").c_str());
}

TEST(InterplayWebService, NoTextMayBeNull) {
  const char* const t = "text";
  for (int null = 0; null < 4; ++null)
    EXPECT_TRUE(raises(InvalidArgument, "Text must not be null", [&] {
      const Service service(null == 0 ? nullptr : t, 1, null == 1 ? nullptr : t,
                            null == 2 ? nullptr : t, null == 3 ? nullptr : t, true, 2);
    })) << null;
}

template <typename Value, typename = void>
struct IsPrinted : std::false_type {};
template <typename Value>
struct IsPrinted<
    Value, std::void_t<decltype(std::declval<std::ostream&>() << std::declval<const Value&>())>>
    : std::true_type {};
static_assert(IsPrinted<int>::value);
static_assert(!IsPrinted<Service>::value);

TEST(InterplayWebService, NothingPrintsThePassword) {
  const LogCapture log;
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  Service service = filled();
  service = Service(service);
  const std::string shown = std::string(service.server()) + service.workgroup() + service.user() +
                            service.base_url() + ::testing::PrintToString(service);
  EXPECT_ANY_THROW(Service("mam", 1, "News", nullptr, "s3cret", true, 30));
  EXPECT_EQ("", ::testing::internal::GetCapturedStderr());
  EXPECT_EQ("", ::testing::internal::GetCapturedStdout());
  EXPECT_TRUE(log.lines().empty());
  EXPECT_EQ(std::string::npos, shown.find("s3cret"));
}

TEST(InterplayWebService, CopiesAreDeep) {
  Service original = filled();
  const Service copy(original);
  EXPECT_NE(original.base_url(), copy.base_url());
  EXPECT_NE(original.password(), copy.password());
  original = Service("", 0, "", "", "", false, 0);
  expect_filled(copy);
  original = copy;
  expect_filled(original);
  const Service moved(std::move(original));
  expect_filled(moved);
  expect_filled(original);  // NOLINT(bugprone-use-after-move): moving copies
}

TEST(InterplayWebService, AssignmentToItselfDoesNothing) {
  Service service = filled();
  const Service& same = service;
  const char* const url = service.base_url();
  service = same;
  EXPECT_EQ(url, service.base_url());
  expect_filled(service);
}

TEST(InterplayWebService, TakesItsOwnTexts) {
  Service service = filled();
  service = Service(service.user(), 1, service.password(), service.server(), service.workgroup(),
                    false, 2);
  expect_fields(service, "ingest", 1, "s3cret", "mam.example", "News", false, 2, "http://ingest:1");
}

}  // namespace
}  // namespace Korvane::Media::InterplayWebServiceTests
