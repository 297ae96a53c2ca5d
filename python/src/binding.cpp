#include "binding.h"

#include <algorithm>
#include <stdexcept>

namespace Korvane::Python {

const char* doc(const std::string& scope, const char* name) {
  const std::string key = scope + "." + name;
  const auto all = docstrings();
  const auto found = std::lower_bound(
      all.begin(), all.end(), key,
      [](const Docstring& entry, const std::string& wanted) { return entry.key < wanted; });
  if (found == all.end() || found->key != key)
    throw std::logic_error("no exported header declares " + key);
  return found->text;
}

py::str repr_of(const py::object& object, const std::vector<const char*>& attributes) {
  std::string text = py::cast<std::string>(py::type::of(object).attr("__name__")) + "(";
  const char* separator = "";
  for (const char* const name : attributes) {
    const py::object value = object.attr(name);
    if (value.is_none()) continue;
    text += separator + std::string(name) + "=" + py::cast<std::string>(py::repr(value));
    separator = ", ";
  }
  return py::str(text + ")");
}

std::size_t checked_index(const py::object& index, std::size_t size) {
  Py_ssize_t position = PyNumber_AsSsize_t(index.ptr(), PyExc_IndexError);
  if (position == -1 && PyErr_Occurred() != nullptr) throw py::error_already_set();
  if (position < 0) position += static_cast<Py_ssize_t>(size);
  if (position < 0 || static_cast<std::size_t>(position) >= size)
    throw py::index_error("list index out of range");
  return static_cast<std::size_t>(position);
}

void print_as_made(py::object& type) {
  const auto print = [](const py::object& self) {
    const py::object of = py::type::of(self);
    const py::object members = of.attr("__members__");
    for (const auto entry : py::reinterpret_borrow<py::dict>(members))
      if (entry.second.equal(self))
        return py::str("{}.{}").format(of.attr("__qualname__"), entry.first);
    return py::str("{}({})").format(of.attr("__qualname__"), py::int_(self));
  };
  for (const char* const method : {"__repr__", "__str__"})
    type.attr(method) = py::cpp_function(print, py::name(method), py::is_method(type));
}

}  // namespace Korvane::Python
