// Names of operations as the demangler writes them.

#ifndef KV_ENGINE_TESTS_MEMORY_NAMES_H
#define KV_ENGINE_TESTS_MEMORY_NAMES_H

#include <cxxabi.h>

#include <cstdlib>
#include <string>
#include <type_traits>
#include <typeinfo>

namespace Korvane::MemoryTests {

// `name` itself when it is none that the compiler made.
inline std::string demangled(const char* name) {
  char* const text = abi::__cxa_demangle(name, nullptr, nullptr, nullptr);
  std::string result = text != nullptr ? text : name;
  std::free(text);
  return result;
}

template <typename Type>
std::string type_name() {
  using Referred = std::remove_reference_t<Type>;
  using Plain = std::remove_const_t<Referred>;
  std::string name = demangled(typeid(Plain).name());
  if (std::is_const_v<Referred>) name += " const";
  if (std::is_lvalue_reference_v<Type>) name += '&';
  if (std::is_rvalue_reference_v<Type>) name += "&&";
  return name;
}

template <typename... Parameters>
std::string parameter_names() {
  std::string names;
  ((names += (names.empty() ? "" : ", ") + type_name<Parameters>()), ...);
  return '(' + names + ')';
}

// The name of a class without its namespaces.
template <typename Class>
std::string last_name() {
  const std::string name = type_name<Class>();
  return name.substr(name.rfind(':') + 1);
}

template <typename Class, typename... Parameters>
std::string constructor_name() {
  return type_name<Class>() + "::" + last_name<Class>() + parameter_names<Parameters...>();
}

template <typename Class>
std::string destructor_name() {
  return type_name<Class>() + "::~" + last_name<Class>() + "()";
}

template <typename Class, typename... Parameters>
std::string member_name(const char* name, bool is_const = false) {
  return type_name<Class>() + "::" + name + parameter_names<Parameters...>() +
         (is_const ? " const" : "");
}

}  // namespace Korvane::MemoryTests
#endif  // KV_ENGINE_TESTS_MEMORY_NAMES_H
