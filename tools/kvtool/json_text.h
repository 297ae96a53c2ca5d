// A JSON text whose values know where they stand, so that the user can be shown the bad one.

#ifndef KV_TOOLS_KVTOOL_JSON_TEXT_H
#define KV_TOOLS_KVTOOL_JSON_TEXT_H

#include <string>
#include <vector>

namespace Korvane::Tool {

enum class JsonKind { Null, Flag, Whole, Real, Text, List, Object };

struct JsonValue {
  JsonKind kind = JsonKind::Null;
  std::size_t position = 0;  // in bytes
  std::string source;        // as it is written; of lists and objects the first character
  bool flag = false;
  long long integer = 0;          // numbers beyond it are of kind Real
  std::string text;               // UTF-8
  std::vector<JsonValue> values;  // of lists and objects
  std::vector<JsonValue> names;   // of an object: one for each of its values, of kind Text
};

class JsonText {
 public:
  // `name` is that of the file, for messages. Raises InputError when `text` is no JSON.
  JsonText(std::string name, std::string text);

  const JsonValue& root() const { return root_; }

  // Raises InputError: "NAME: line L, column C: VALUE COMPLAINT (expected EXPECTED)".
  [[noreturn]] void refuse(const JsonValue& value, const std::string& complaint,
                           const std::string& expected) const;

 private:
  std::string name_;
  std::string text_;
  JsonValue root_;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_JSON_TEXT_H
