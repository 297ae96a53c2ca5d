// Names of operations as the demangler writes them.

#ifndef KV_ENGINE_TESTS_MEMORY_NAMES_H
#define KV_ENGINE_TESTS_MEMORY_NAMES_H

#include <cxxabi.h>

#include <cstdlib>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <vector>

namespace Korvane::MemoryTests {

// `name` itself when it is none that the compiler made.
inline std::string demangled(const char* name) {
  char* const text = abi::__cxa_demangle(name, nullptr, nullptr, nullptr);
  std::string result = text != nullptr ? text : name;
  std::free(text);
  return result;
}

enum class Reference { None, Lvalue, Rvalue };

inline std::string type_name(const std::type_info& plain, bool is_const, Reference reference) {
  constexpr const char* kMarks[] = {"", "&", "&&"};
  return demangled(plain.name()) + (is_const ? " const" : "") + kMarks[static_cast<int>(reference)];
}

template <typename Type>
std::string type_name() {
  using Referred = std::remove_reference_t<Type>;
  return type_name(typeid(std::remove_const_t<Referred>), std::is_const_v<Referred>,
                   std::is_lvalue_reference_v<Type>   ? Reference::Lvalue
                   : std::is_rvalue_reference_v<Type> ? Reference::Rvalue
                                                      : Reference::None);
}

inline std::string in_parentheses(const std::vector<std::string>& types) {
  std::string names;
  for (const std::string& type : types) names += (names.empty() ? "" : ", ") + type;
  return '(' + names + ')';
}

template <typename... Parameters>
std::string parameter_names() {
  return in_parentheses({type_name<Parameters>()...});
}

// The name of a class without its namespaces.
inline std::string last_name(const std::string& name) { return name.substr(name.rfind(':') + 1); }

inline std::string member_name(const std::string& type, const std::string& name,
                               const std::string& parameters, bool is_const = false) {
  return type + "::" + name + parameters + (is_const ? " const" : "");
}

template <typename Class, typename... Parameters>
std::string constructor_name() {
  const std::string type = type_name<Class>();
  return member_name(type, last_name(type), parameter_names<Parameters...>());
}

template <typename Class>
std::string destructor_name() {
  const std::string type = type_name<Class>();
  return member_name(type, '~' + last_name(type), "()");
}

template <typename Class, typename... Parameters>
std::string member_name(const char* name, bool is_const = false) {
  return member_name(type_name<Class>(), name, parameter_names<Parameters...>(), is_const);
}

}  // namespace Korvane::MemoryTests
#endif  // KV_ENGINE_TESTS_MEMORY_NAMES_H
