#include "umid_command.h"

#include <algorithm>

#include "failure.h"
#include "printable.h"
#include "table.h"
#include "umid_reading.h"

namespace Korvane::Tool {
namespace {

// In digits, two for each byte: SMPTE ST 330.
constexpr std::size_t kBasicDigits = 64;
constexpr std::size_t kExtendedDigits = 128;
constexpr std::size_t kLabelDigits = 24;
constexpr const char* kLabelStart = "060a2b34010101";

struct UmidReport {
  std::string text;
  std::string digits;    // that mean the identifier
  std::string umid;      // as the library writes it
  bool misread = false;  // by the library, from the text as it was given
  std::optional<std::string> read_as;
};

bool is_hexadecimal(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

[[noreturn]] void refuse_umid(const std::string& text, const std::string& digits) {
  throw InputError(in_quotes(text) +
                   " is no UMID (expected 64 hexadecimal digits, or 128 with a source pack; it "
                   "has " +
                   std::to_string(std::count_if(digits.begin(), digits.end(), is_hexadecimal)) +
                   ')');
}

UmidReport report_of(const std::string& text) {
  UmidReport report;
  report.text = text;
  report.digits = umid_digits_of(text);
  const std::optional<std::string> umid = read_umid(report.digits);
  if (!umid || (umid->size() != kBasicDigits && umid->size() != kExtendedDigits))
    refuse_umid(text, report.digits);
  report.umid = *umid;
  report.misread = report.digits != text;
  if (report.misread) report.read_as = read_umid(text);
  return report;
}

bool is_extended(const UmidReport& report) { return report.umid.size() == kExtendedDigits; }

Integer number_at(const UmidReport& report, std::size_t digit, std::size_t digits) {
  return std::stoll(report.umid.substr(digit, digits), nullptr, 16);
}

// What contradicts the standard, though the library takes it; may be empty.
std::string warning_of(const UmidReport& report) {
  if (!report.umid.starts_with(kLabelStart))
    return "the label is not that of a UMID (expected " + std::string(kLabelStart) +
           " at its start)";
  const Integer expected = is_extended(report) ? 51 : 19;
  const Integer length = number_at(report, kLabelDigits, 2);
  if (length == expected) return {};
  return "the length byte says " + std::to_string(length) + " (expected " +
         std::to_string(expected) + ", the bytes behind it)";
}

Cell text_or_none(const std::string& text) { return text.empty() ? Cell() : Cell(text); }

Table table_of(const std::vector<UmidReport>& reports) {
  Table table{{"text", "umid", "bytes", "kind", "label", "instance", "material", "source_pack",
               "warning", "misread", "read_as", "use_instead"},
              {}};
  for (const UmidReport& report : reports)
    table.rows.push_back(
        {report.text, report.umid, static_cast<Integer>(report.umid.size() / 2),
         std::string(is_extended(report) ? "extended" : "basic"),
         report.umid.substr(0, kLabelDigits), number_at(report, 26, 6), report.umid.substr(32, 32),
         text_or_none(report.umid.substr(kBasicDigits)), text_or_none(warning_of(report)),
         report.misread, report.read_as ? Cell(*report.read_as) : Cell(),
         report.misread ? Cell(report.digits) : Cell()});
  return table;
}

void write_field(std::ostream& out, std::string name, const std::string& value) {
  name.resize(13, ' ');
  if (!value.empty()) out << "  " << name << value << '\n';
}

std::string describe_misreading(const UmidReport& report) {
  if (!report.misread) return {};
  return "the library " +
         (report.read_as ? "reads " + *report.read_as : "does not read this text") +
         ", as it takes characters of the prefix for digits; give it \"" +
         printable_name(report.digits) + '"';
}

void write_umid_text(std::ostream& out, const UmidReport& report) {
  out << printable_name(report.text) << '\n';
  write_field(out, "umid", report.umid);
  write_field(out, "bytes", std::to_string(report.umid.size() / 2));
  write_field(out, "kind", is_extended(report) ? "extended" : "basic");
  write_field(out, "label", report.umid.substr(0, kLabelDigits));
  write_field(out, "instance", std::to_string(number_at(report, 26, 6)));
  write_field(out, "material", report.umid.substr(32, 32));
  write_field(out, "source pack", report.umid.substr(kBasicDigits));
  write_field(out, "warning", warning_of(report));
  write_field(out, "misread", describe_misreading(report));
}

}  // namespace

const char* umid_footer() {
  return R"(Digits may be of either case and kept apart by anything that is no digit. The forms
urn:smpte:umid:... and 0x... are described too, but the library would misread them: the e
and d of the name and the 0 of 0x count as digits. The right text is then given, and the
exit code is 1.

Examples:
  kvtool umid 060a2b340101010501010d1313000000a1b2c3d4e5f60718293a4b5c6d7e8f90
  kvtool umid urn:smpte:umid:060a2b34.01010105.01010d13.13000000.a1b2c3d4.e5f60718.293a4b5c.6d7e8f90
  kvtool umid 0x060A2B340101010501010D1313000000A1B2C3D4E5F60718293A4B5C6D7E8F90 --json

JSON:
  A list with the keys text, umid, bytes, kind (basic, extended), label, instance,
  material, source_pack (null in a basic one), warning (null, or what contradicts SMPTE ST
  330), misread, read_as (what the library reads; null when that is nothing, and when the
  text is not misread), use_instead (null, or the right text).

Exit codes:
  0  done
  1  a text is no UMID, or the library would misread it
  2  wrong usage)";
}

int run_umid(const UmidOptions& options, Streams& streams) {
  std::vector<UmidReport> reports;
  for (const std::string& text : options.texts) reports.push_back(report_of(text));
  if (options.json)
    write_json(streams.out, table_of(reports));
  else
    for (const UmidReport& report : reports) {
      if (&report != &reports.front()) streams.out << '\n';
      write_umid_text(streams.out, report);
    }
  const bool misread = std::any_of(reports.begin(), reports.end(),
                                   [](const UmidReport& report) { return report.misread; });
  return misread ? BadInput : Done;
}

}  // namespace Korvane::Tool
