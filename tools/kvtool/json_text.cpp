#include "json_text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string_view>

#include "failure.h"
#include "printable.h"

namespace Korvane::Tool {
namespace {

constexpr std::size_t kDeepest = 64;  // lists and objects in each other

// Counts what the parser has taken.
class CountingIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  CountingIterator(const char* at, std::size_t& taken) : at_(at), taken_(&taken) {}
  reference operator*() const { return *at_; }
  CountingIterator& operator++() {
    ++at_;
    ++*taken_;
    return *this;
  }
  CountingIterator operator++(int) {
    const CountingIterator before = *this;
    ++*this;
    return before;
  }
  bool operator==(const CountingIterator& other) const { return at_ == other.at_; }

 private:
  const char* at_;
  std::size_t* taken_;
};

std::string place_of(const std::string& name, std::string_view text, std::size_t position) {
  const std::string_view before = text.substr(0, position);
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const std::size_t line_start = before.rfind('\n') + 1;  // 0 on the first line
  return printable_name(name) + ": line " + std::to_string(line) + ", column " +
         std::to_string(before.size() - line_start + 1);
}

// What the parser's own sentence says at its end; it has no other place for it.
std::string expected_by_parser(std::string_view sentence) {
  constexpr std::string_view kMark = "expected ";
  const std::size_t at = sentence.rfind(kMark);
  const bool stated = at != std::string_view::npos && sentence.substr(0, at).ends_with("; ");
  return stated ? std::string(sentence.substr(at + kMark.size())) : "JSON";
}

// Builds the tree of values from the parser's events.
class TreeBuilder {
 public:
  TreeBuilder(const std::string& name, std::string_view text, const std::size_t& taken)
      : name_(name), text_(text), taken_(taken), end_(text.starts_with("\xEF\xBB\xBF") ? 3 : 0) {}

  JsonValue root;

  bool null() { return add(scalar(JsonKind::Null)); }
  bool boolean(bool flag) {
    JsonValue value = scalar(JsonKind::Flag);
    value.flag = flag;
    return add(std::move(value));
  }
  bool number_integer(long long integer) {
    JsonValue value = scalar(JsonKind::Whole);
    value.integer = integer;
    return add(std::move(value));
  }
  bool number_unsigned(unsigned long long integer) {
    constexpr unsigned long long kLargest = std::numeric_limits<long long>::max();
    return integer <= kLargest ? number_integer(static_cast<long long>(integer))
                               : add(scalar(JsonKind::Real));
  }
  bool number_float(double, const std::string&) { return add(scalar(JsonKind::Real)); }
  bool string(const std::string& text) {
    JsonValue value = scalar(JsonKind::Text);
    value.text = text;
    return add(std::move(value));
  }
  bool key(const std::string& text) {
    JsonValue value = scalar(JsonKind::Text);
    value.text = text;
    open_.back()->names.push_back(std::move(value));
    return true;
  }
  bool start_object(std::size_t) { return open(JsonKind::Object); }
  bool start_array(std::size_t) { return open(JsonKind::List); }
  bool end_object() { return close(); }
  bool end_array() { return close(); }
  bool binary(const std::vector<std::uint8_t>&) { return false; }  // JSON has none

  // The parser's own token may begin far before the one that is bad.
  bool parse_error(std::size_t read, const std::string& token,
                   const nlohmann::detail::exception& error) {
    const std::string expected = " (expected " + expected_by_parser(error.what()) + ')';
    if (read > text_.size() || (read == text_.size() && token.empty()))
      throw InputError(place_of(name_, text_, text_.size()) + ": the text ends too early" +
                       expected);
    const std::size_t start = std::min(next_position(), read - 1);
    const std::size_t word_end =
        std::min(text_.find_first_of(" \t\r\n:,[]{}\"", read), text_.size());
    const std::size_t end = is_in_word(text_[start]) ? word_end : read;
    throw InputError(place_of(name_, text_, start) + ": " +
                     in_quotes(text_.substr(start, end - start)) + " is no JSON here" + expected);
  }

 private:
  static bool is_in_word(char c) {
    return std::string_view(" \t\r\n:,[]{}\"").find(c) == std::string_view::npos;
  }

  // Behind what was taken last and what separates it from the next.
  std::size_t next_position() const {
    return std::min(text_.find_first_not_of(" \t\r\n:,", end_), text_.size());
  }

  JsonValue scalar(JsonKind kind) {
    JsonValue value;
    value.kind = kind;
    value.position = next_position();
    end_ = taken_;
    // The parser looks at the character behind a number.
    if (kind == JsonKind::Whole || kind == JsonKind::Real)
      end_ = std::min(text_.find_first_not_of("+-.0123456789Ee", value.position), text_.size());
    value.source = text_.substr(value.position, end_ - value.position);
    return value;
  }

  bool add(JsonValue value) {
    if (open_.empty())
      root = std::move(value);
    else
      open_.back()->values.push_back(std::move(value));
    return true;
  }

  bool open(JsonKind kind) {
    const JsonValue value = scalar(kind);
    if (open_.size() == kDeepest)
      throw InputError(place_of(name_, text_, value.position) +
                       ": lists and objects lie too deep (expected at most " +
                       std::to_string(kDeepest) + " in each other)");
    JsonValue* const parent = open_.empty() ? nullptr : open_.back();
    add(value);
    open_.push_back(parent == nullptr ? &root : &parent->values.back());
    return true;
  }

  bool close() {
    end_ = taken_;
    open_.pop_back();
    return true;
  }

  const std::string& name_;
  std::string_view text_;
  const std::size_t& taken_;
  std::size_t end_;  // of what was taken last
  std::vector<JsonValue*> open_;
};

}  // namespace

JsonText::JsonText(std::string name, std::string text)
    : name_(std::move(name)), text_(std::move(text)) {
  std::size_t taken = 0;
  TreeBuilder builder(name_, text_, taken);
  const char* const begin = text_.data();
  nlohmann::json::sax_parse(CountingIterator(begin, taken),
                            CountingIterator(begin + text_.size(), taken), &builder);
  root_ = std::move(builder.root);
}

void JsonText::refuse(const JsonValue& value, const std::string& complaint,
                      const std::string& expected) const {
  const bool is_text = value.kind == JsonKind::Text;
  throw InputError(place_of(name_, text_, value.position) + ": " +
                   in_quotes(is_text ? value.text : value.source) + ' ' + complaint +
                   " (expected " + expected + ')');
}

}  // namespace Korvane::Tool
