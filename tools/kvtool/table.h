// A table of values and the three ways to print it.

#ifndef KV_TOOLS_KVTOOL_TABLE_H
#define KV_TOOLS_KVTOOL_TABLE_H

#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "ink.h"

namespace Korvane::Tool {

using Integer = long long;

// Empty where there is no value.
using Cell = std::variant<std::monostate, bool, Integer, double, std::string>;

struct Table {
  std::vector<std::string> columns;     // as JSON keys: "edit_rate"
  std::vector<std::vector<Cell>> rows;  // each as long as `columns`
};

// "yes", "1920", "0.25", "16/9"; "-" for no value. A double has as many digits as tell it from
// others.
std::string text_of(const Cell& cell);

// Headings, then a line a row, each begun with `indent`; numbers stand to the right.
void write_text(std::ostream& out, const Table& table, const std::string& indent = "",
                Ink ink = {});

// RFC 4180 but for the ends of lines, which are line feeds. No value is an empty field. A row alone
// serves tables that grow while they are written.
void write_csv(std::ostream& out, const Table& table);
void write_csv_row(std::ostream& out, const std::vector<Cell>& row);

// A list of objects; no value is null.
void write_json(std::ostream& out, const Table& table);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_TABLE_H
