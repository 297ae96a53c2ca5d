#include "table_command.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <vector>

#include "failure.h"
#include "printable.h"
#include "rate.h"
#include "suggestion.h"

namespace Korvane::Tool {
namespace {

[[noreturn]] void refuse_value(const std::string& option, const std::string& text,
                               const std::string& expected) {
  throw UsageError(option + ' ' + in_quotes(text) + " is not supported (expected " + expected +
                   ')');
}

std::size_t index_of(const Table& table, const std::string& column) {
  const auto found = std::find(table.columns.begin(), table.columns.end(), column);
  return static_cast<std::size_t>(found - table.columns.begin());
}

// In the order in which they come.
std::vector<std::string> distinct_texts(const Table& table, std::size_t column) {
  std::vector<std::string> texts;
  for (const std::vector<Cell>& row : table.rows) {
    const std::string* const text = std::get_if<std::string>(&row[column]);
    if (text != nullptr && std::find(texts.begin(), texts.end(), *text) == texts.end())
      texts.push_back(*text);
  }
  return texts;
}

// "a, b or c"; of many, the first alone.
std::string describe_choice(const std::vector<std::string>& texts) {
  constexpr std::size_t kMany = 8;
  if (texts.size() > kMany) return "a name such as " + texts.front();
  return one_of(texts);
}

Cell parse_listed(const TableOption& option, const std::string& text, const Table& table,
                  std::size_t column) {
  const std::vector<std::string> texts = distinct_texts(table, column);
  if (std::find(texts.begin(), texts.end(), text) == texts.end())
    refuse_value(option.name, text,
                 describe_choice(texts) + did_you_mean(nearest_name(text, texts)));
  return text;
}

Cell parse_yes_no(const TableOption& option, const std::string& text) {
  if (text != "yes" && text != "no")
    refuse_value(option.name, text, "yes or no" + did_you_mean(nearest_name(text, {"yes", "no"})));
  return text == "yes";
}

Cell parse_value(const TableOption& option, const std::string& text, const Table& table,
                 std::size_t column) {
  switch (option.value) {
    case TableValue::Number:
      return static_cast<long long>(
          parse_number(option.name, text, 0, std::numeric_limits<unsigned int>::max()));
    case TableValue::Rate:
      return describe(parse_rate(text, false).edit);
    case TableValue::Listed:
      return parse_listed(option, text, table, column);
    case TableValue::YesNo:
      return parse_yes_no(option, text);
  }
  return {};
}

struct Filter {
  std::size_t column;
  Cell value;
};

// All values are read from the whole table, before any row is dropped.
std::vector<Filter> parse_filters(const TableSubject& subject, const TableRequest& request,
                                  const Table& table) {
  std::vector<Filter> filters;
  for (const TableOption& option : subject.options) {
    const auto given = request.given.find(option.name);
    if (option.column == nullptr || given == request.given.end()) continue;
    const std::size_t column = index_of(table, option.column);
    filters.push_back({column, parse_value(option, given->second, table, column)});
  }
  return filters;
}

}  // namespace

unsigned int parse_number(const std::string& option, const std::string& text, unsigned int lowest,
                          unsigned int highest) {
  unsigned int number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end || number < lowest || number > highest)
    refuse_value(
        option, text,
        "a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest));
  return number;
}

int run_table(const TableSubject& subject, const TableRequest& request, Streams& streams) {
  Table table = subject.build(request);
  for (const Filter& filter : parse_filters(subject, request, table))
    std::erase_if(table.rows,
                  [&](const std::vector<Cell>& row) { return row[filter.column] != filter.value; });
  if (request.json)
    write_json(streams.out, table);
  else if (request.csv)
    write_csv(streams.out, table);
  else
    write_text(streams.out, table, "", streams.out_ink);
  return Done;
}

}  // namespace Korvane::Tool
