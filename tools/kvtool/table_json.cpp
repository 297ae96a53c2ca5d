#include <nlohmann/json.hpp>

#include "table.h"

namespace Korvane::Tool {
namespace {

nlohmann::ordered_json cell_json(const Cell& cell) {
  if (const bool* const flag = std::get_if<bool>(&cell)) return *flag;
  if (const auto* const number = std::get_if<long long>(&cell)) return *number;
  if (const double* const number = std::get_if<double>(&cell)) return *number;
  if (const std::string* const text = std::get_if<std::string>(&cell)) return *text;
  return nullptr;
}

}  // namespace

// Text of the user's that is not UTF-8 does not keep the rest from being read.
void write_json(std::ostream& out, const Table& table) {
  nlohmann::ordered_json list = nlohmann::ordered_json::array();
  for (const std::vector<Cell>& row : table.rows) {
    nlohmann::ordered_json object;
    for (std::size_t i = 0; i < row.size(); ++i) object[table.columns[i]] = cell_json(row[i]);
    list.push_back(std::move(object));
  }
  out << list.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

}  // namespace Korvane::Tool
