// The text of a basic UMID, both ways.

#include <algorithm>
#include <boost/algorithm/hex.hpp>
#include <iterator>
#include <string>
#include <vector>

#include "media/umid.h"
#include "side.h"

namespace Korvane {
namespace {

constexpr const char* kDigits = "060a2b340101010501010d1313000000a1b2c3d4e5f60718293a4b5c6d7e8f90";
constexpr const wchar_t* kWideDigits =
    L"060a2b340101010501010d1313000000a1b2c3d4e5f60718293a4b5c6d7e8f90";

std::vector<unsigned char> bytes() {
  std::vector<unsigned char> result;
  boost::algorithm::unhex(kDigits, std::back_inserter(result));
  return result;
}

// As most programs write it.
std::string print_by_table(const std::vector<unsigned char>& bytes) {
  constexpr const char* kTable = "0123456789abcdef";
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const unsigned char byte : bytes) {
    text += kTable[byte >> 4U];
    text += kTable[byte & 15U];
  }
  return text;
}

const bool kPrint[] = {
    measure("umid_print/ours", [umid = Media::Umid(kWideDigits)] { return umid.c_str(); }),
    measure("umid_print/table", [held = bytes()] { return print_by_table(held); }),
};

const bool kParse[] = {
    measure("umid_parse/ours", [] { return *Media::Umid(kWideDigits).value(); }),
    measure("umid_parse/boost::algorithm::unhex", [] { return *bytes().data(); }),
};

}  // namespace
}  // namespace Korvane
