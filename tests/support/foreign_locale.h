// A host's global locale that would spoil numbers and digits, while it lives: digits are grouped,
// and every wide character passes for a hexadecimal digit. The C locale groups digits too, where
// the system has one that does.

#ifndef KV_ENGINE_TESTS_SUPPORT_FOREIGN_LOCALE_H
#define KV_ENGINE_TESTS_SUPPORT_FOREIGN_LOCALE_H

#include <clocale>
#include <locale>
#include <sstream>
#include <string>

namespace Korvane {

class ForeignLocale {
 public:
  ForeignLocale() : c_before_(std::setlocale(LC_ALL, nullptr)), before_(make_global()) {
    for (const char* name : {"de_DE.UTF-8", "de_DE", "German_Germany", "en_US.UTF-8"})
      if (std::setlocale(LC_ALL, name) != nullptr) break;
  }
  ForeignLocale(const ForeignLocale&) = delete;
  ForeignLocale& operator=(const ForeignLocale&) = delete;
  ~ForeignLocale() {
    std::locale::global(before_);
    std::setlocale(LC_ALL, c_before_.c_str());
  }

  // As a stream of the global locale writes it.
  static std::string written(int number) {
    std::ostringstream out;
    out << number;
    return out.str();
  }

 private:
  template <typename Character>
  struct Grouped : std::numpunct<Character> {
    Character do_thousands_sep() const override { return Character('.'); }
    std::string do_grouping() const override { return "\1"; }
  };

  struct AllDigits : std::ctype<wchar_t> {
    bool do_is(mask /*kinds*/, wchar_t /*character*/) const override { return true; }
  };

  static std::locale make_global() {
    std::locale foreign(std::locale::classic(), new Grouped<char>);
    foreign = std::locale(foreign, new Grouped<wchar_t>);
    return std::locale::global(std::locale(foreign, new AllDigits));
  }

  std::string c_before_;
  std::locale before_;
};

}  // namespace Korvane
#endif  // KV_ENGINE_TESTS_SUPPORT_FOREIGN_LOCALE_H
