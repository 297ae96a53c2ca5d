#include "table.h"

#include <algorithm>
#include <charconv>

namespace Korvane::Tool {
namespace {

constexpr std::size_t kGap = 2;

std::string heading(std::string column) {
  std::replace(column.begin(), column.end(), '_', ' ');
  return column;
}

bool holds_number(const Cell& cell) {
  return std::holds_alternative<Integer>(cell) || std::holds_alternative<double>(cell);
}

struct ColumnLayout {
  std::size_t width;
  bool to_the_right;
};

ColumnLayout layout_of_column(const Table& table, std::size_t column) {
  ColumnLayout layout{table.columns[column].size(), false};
  for (const std::vector<Cell>& row : table.rows) {
    layout.width = std::max(layout.width, text_of(row[column]).size());
    layout.to_the_right = layout.to_the_right || holds_number(row[column]);
  }
  return layout;
}

std::string row_text(const std::vector<std::string>& texts,
                     const std::vector<ColumnLayout>& layouts) {
  std::string line;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::string blanks(layouts[i].width - texts[i].size(), ' ');
    if (i != 0) line.append(kGap, ' ');
    line += layouts[i].to_the_right ? blanks + texts[i] : texts[i] + blanks;
  }
  return line.substr(0, line.find_last_not_of(' ') + 1);
}

std::string csv_field(const Cell& cell) {
  if (std::holds_alternative<std::monostate>(cell)) return "";
  if (const bool* const flag = std::get_if<bool>(&cell)) return *flag ? "true" : "false";
  std::string text = text_of(cell);
  if (text.find_first_of("\",\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

template <typename Values, typename Text>
void write_csv_line(std::ostream& out, const Values& values, const Text& text) {
  const char* separator = "";
  for (const auto& value : values) {
    out << separator << text(value);
    separator = ",";
  }
  out << '\n';
}

}  // namespace

std::string text_of(const Cell& cell) {
  if (const bool* const flag = std::get_if<bool>(&cell)) return *flag ? "yes" : "no";
  if (const auto* const number = std::get_if<long long>(&cell)) return std::to_string(*number);
  if (const double* const number = std::get_if<double>(&cell)) {
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, *number).ptr};
  }
  const std::string* const text = std::get_if<std::string>(&cell);
  return text != nullptr ? *text : "-";
}

void write_text(std::ostream& out, const Table& table, const std::string& indent, Ink ink) {
  std::vector<ColumnLayout> layouts;
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < table.columns.size(); ++i) {
    layouts.push_back(layout_of_column(table, i));
    texts.push_back(heading(table.columns[i]));
  }
  out << indent << ink.heading(row_text(texts, layouts)) << '\n';
  for (const std::vector<Cell>& row : table.rows) {
    std::transform(row.begin(), row.end(), texts.begin(), text_of);
    out << indent << row_text(texts, layouts) << '\n';
  }
}

void write_csv(std::ostream& out, const Table& table) {
  write_csv_line(out, table.columns, [](const std::string& column) { return column; });
  for (const std::vector<Cell>& row : table.rows) write_csv_row(out, row);
}

void write_csv_row(std::ostream& out, const std::vector<Cell>& row) {
  write_csv_line(out, row, csv_field);
}

}  // namespace Korvane::Tool
