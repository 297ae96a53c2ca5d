// kvtool formats, colorspaces and essence: the library's tables, made of its own answers.

#ifndef KV_TOOLS_KVTOOL_TABLE_COMMAND_H
#define KV_TOOLS_KVTOOL_TABLE_COMMAND_H

#include <map>
#include <span>
#include <string>

#include "streams.h"
#include "table.h"

namespace Korvane::Tool {

struct TableRequest {
  std::map<std::string, std::string> given;  // by option: {"--width", "1920"}
  bool json = false;
  bool csv = false;
};

// What an option takes.
enum class TableValue {
  Number,
  Rate,    // as parse_rate() reads it
  Listed,  // what stands in the column
  YesNo,
};

struct TableOption {
  const char* name;
  const char* column;  // keeps the rows with the value in this column; null: an input of build()
  TableValue value;
  const char* type_name;
  const char* help;
};

struct TableSubject {
  const char* command;
  const char* description;
  const char* footer;
  std::span<const TableOption> options;
  // Raises UsageError.
  Table (*build)(const TableRequest& request);
};

const TableSubject& formats_subject();
const TableSubject& colorspaces_subject();
const TableSubject& essence_subject();

// A whole number of those limits. Raises UsageError.
unsigned int parse_number(const std::string& option, const std::string& text, unsigned int lowest,
                          unsigned int highest);

int run_table(const TableSubject& subject, const TableRequest& request, Streams& streams);

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_TABLE_COMMAND_H
