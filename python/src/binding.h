// How classes, enumerations and lists of the library become those of the module. Each name is
// looked up in the docstrings; one that no header declares fails the import.

#ifndef KV_PYTHON_BINDING_H
#define KV_PYTHON_BINDING_H

#include <pybind11/pybind11.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "docstrings.h"
#include "text.h"

namespace Korvane::Python {

namespace py = pybind11;

// The docstring of `scope.name`.
const char* doc(const std::string& scope, const char* name);

// "Class(first=1, second='two')", without what is None.
py::str repr_of(const py::object& object, const std::vector<const char*>& attributes);

// The item of a sequence of `size` that `index` means, negative ones from the end. IndexError.
std::size_t checked_index(const py::object& index, std::size_t size);

// Flags take True and False only; everything else in Python would count as one of them.
inline py::arg flag(const char* name) { return py::arg(name).noconvert(); }

// Lets an enumeration print as what makes it: "VideoFormats.Pal", or "VideoFormats(99)" where there
// is no name.
void print_as_made(py::object& type);

template <typename Enumeration>
void enumeration(py::handle scope, const std::string& scope_name, const char* name) {
  const std::string full_name = scope_name.empty() ? name : scope_name + "." + name;
  py::enum_<Enumeration> type(scope, name, py::arithmetic(), doc(full_name, "__doc__"));
  for (const Enumerator& entry : enumerators())
    if (entry.enumeration == full_name)
      type.value(entry.name, static_cast<Enumeration>(entry.value), entry.text);
  print_as_made(type);
}

template <typename T, typename... Bases>
class Class : public py::class_<T, Bases...> {
 public:
  Class(py::handle scope, const char* name)
      : py::class_<T, Bases...>(scope, name, doc(name, "__doc__")), name_(name) {}

  template <typename... Arguments, typename... Extra>
  Class& constructor(const Extra&... extra) {
    this->def(py::init<Arguments...>(), extra..., doc(name_, "__init__"));
    return *this;
  }

  template <typename Factory, typename... Extra>
  Class& factory(Factory&& make, const Extra&... extra) {
    this->def(py::init(std::forward<Factory>(make)), extra..., doc(name_, "__init__"));
    return *this;
  }

  template <typename Function, typename... Extra>
  Class& method(const char* name, Function&& function, const Extra&... extra) {
    this->def(name, std::forward<Function>(function), extra..., doc(name_, name));
    return *this;
  }

  template <typename Value>
  Class& field(const char* name, Value T::*member) {
    return read_write(
        name, [member](const T& self) { return self.*member; },
        setter<Value>([member](T& self, Value value) { self.*member = value; }));
  }

  template <typename Value>
  Class& constant(const char* name, Value T::*member) {
    this->def_readonly(name, member, doc(name_, name));
    return *this;
  }

  template <typename Value>
  Class& getter(const char* name, Value (T::*get)() const) {
    return read_only(name, [get](const T& self) { return (self.*get)(); });
  }

  template <typename Value>
  Class& getter(const char* name, Value (T::*get)()) {
    return read_only(name, [get](T& self) { return (self.*get)(); });
  }

  template <typename Value>
  Class& property(const char* name, Value (T::*get)() const, void (T::*set)(Value)) {
    return read_write(
        name, [get](const T& self) { return (self.*get)(); },
        setter<Value>([set](T& self, Value value) { (self.*set)(value); }));
  }

  template <typename Value>
  Class& property(const char* name, Value (T::*get)(), void (T::*set)(Value)) {
    return read_write(
        name, [get](T& self) { return (self.*get)(); },
        setter<Value>([set](T& self, Value value) { (self.*set)(value); }));
  }

  // Of a setter that is const.
  template <typename Value>
  Class& property(const char* name, Value (T::*get)() const, void (T::*set)(Value) const) {
    return read_write(
        name, [get](const T& self) { return (self.*get)(); },
        setter<Value>([set](T& self, Value value) { (self.*set)(value); }));
  }

  // An attribute that may be absent: a copy of its value, or None.
  template <typename Value>
  Class& optional(const char* name, Value* (T::*get)() const, void (T::*set)(Value)) {
    return read_write(name, optional_reader(get),
                      setter<Value>([set](T& self, Value value) { (self.*set)(value); }));
  }

  template <typename Value>
  Class& optional(const char* name, Value* (T::*get)() const, void (T::*set)(Value) const) {
    return read_write(name, optional_reader(get),
                      setter<Value>([set](T& self, Value value) { (self.*set)(value); }));
  }

  template <typename Value>
  Class& optional_getter(const char* name, Value* (T::*get)() const) {
    return read_only(name, optional_reader(get));
  }

  template <typename Character>
  Class& text(const char* name, const Character* (T::*get)() const) {
    return read_only(name, [get](const T& self) { return to_python((self.*get)()); });
  }

  // As in C++. Also sets __hash__ to None.
  Class& equality() {
    this->def(
        "__eq__", [](T& left, T& right) { return left == right; }, py::is_operator());
    return *this;
  }

  // The copy constructor, and the functions of Python's module copy.
  Class& copies() {
    this->def(py::init<const T&>(), py::arg("other"), "A copy.");
    return copy_functions();
  }

  Class& copy_functions() {
    this->def("__copy__", [](const T& self) { return T(self); });
    this->def(
        "__deepcopy__", [](const T& self, const py::dict&) { return T(self); }, py::arg("memo"));
    return *this;
  }

  Class& repr(const std::vector<const char*>& attributes) {
    this->def("__repr__",
              [attributes](const py::object& self) { return repr_of(self, attributes); });
    return *this;
  }

  template <typename Get>
  Class& read_only(const char* name, Get get) {
    this->def_property_readonly(name, get, doc(name_, name));
    return *this;
  }

  template <typename Get, typename Set>
  Class& read_write(const char* name, Get get, Set set) {
    this->def_property(name, get, set, doc(name_, name));
    return *this;
  }

  const char* name() const { return name_; }

 private:
  // One of a flag takes True and False only.
  template <typename Value, typename Set>
  py::cpp_function setter(Set set) {
    py::arg value("value");
    value.noconvert(std::is_same_v<Value, bool>);
    return py::cpp_function(set, py::is_method(*this), value);
  }

  template <typename Value>
  static auto optional_reader(Value* (T::*get)() const) {
    return [get](const T& self) -> py::object {
      const Value* const value = (self.*get)();
      if (value == nullptr) return py::none();
      return py::cast(Value(*value));
    };
  }

  const char* name_;
};

// Every operation of a Python sequence but insertion and removal, which the lists of the library do
// not have. Items are copies. `List` has `size()`; Sequence gives an item and takes one.
template <typename List, typename Item>
struct Sequence {
  const char* size;  // the names in C++; null where those operations are bound by hand
  const char* add;
  const char* argument;
  void (*append)(List& list, Item item);
  std::size_t (*count)(const List& list);
  py::object (*at)(const List& list, std::size_t index);  // below the count
};

template <typename List, typename Item>
void append_all(const Sequence<List, Item>& sequence, List& list, const py::iterable& items) {
  const py::list fixed(items);  // which may be this list itself
  for (const py::handle item : fixed) {
    py::detail::make_caster<Item> caster;
    if (item.is_none() || !caster.load(item, true))
      throw py::type_error("an item of another type: " + std::string(Py_TYPE(item.ptr())->tp_name));
    sequence.append(list, py::detail::cast_op<Item>(caster));
  }
}

// `sequence` lives as long as the module.
template <typename List, typename Item>
void as_sequence(Class<List>& type, const Sequence<List, Item>& sequence) {
  const auto* const shared = &sequence;
  type.template constructor<>();
  type.copies();
  type.def(py::init([shared](const py::iterable& items) {
             auto list = std::make_unique<List>();
             append_all(*shared, *list, items);
             return list;
           }),
           py::arg("items"), "The items of another sequence.");
  if (sequence.size != nullptr) type.method(sequence.size, sequence.count);
  if (sequence.add != nullptr)
    type.method(sequence.add, sequence.append, py::arg(sequence.argument));
  type.def("append", sequence.append, py::arg("item"), "Appends a copy.");
  type.def(
      "extend",
      [shared](List& list, const py::iterable& items) { append_all(*shared, list, items); },
      py::arg("items"), "Appends each of them.");
  type.def("__len__", sequence.count);
  type.def("__getitem__", [shared](const py::object& self, const py::object& index) -> py::object {
    const auto& list = self.cast<const List&>();
    const std::size_t size = shared->count(list);
    if (!PySlice_Check(index.ptr())) return shared->at(list, checked_index(index, size));
    Py_ssize_t start = 0;
    Py_ssize_t stop = 0;
    Py_ssize_t step = 0;
    if (PySlice_Unpack(index.ptr(), &start, &stop, &step) != 0) throw py::error_already_set();
    Py_ssize_t left = PySlice_AdjustIndices(static_cast<Py_ssize_t>(size), &start, &stop, step);
    py::list items;
    for (; left > 0; --left, start += step)
      items.append(shared->at(list, static_cast<std::size_t>(start)));
    return py::type::of(self)(items);
  });
  type.def("__iter__", [](const py::object& self) {
    return py::reinterpret_steal<py::object>(PySeqIter_New(self.ptr()));
  });
  type.def("__repr__", [](const py::object& self) {
    return py::str("{}({!r})").format(py::type::of(self).attr("__name__"), py::list(self));
  });
}

// In this order: signatures name only what is there already.
void bind_error(py::module_& module);
void bind_enumerations(py::module_& module);
void bind_timecode(py::module_& module);
void bind_tracks(py::module_& module);
void bind_formats(py::module_& module);
void bind_umids(py::module_& module);
void bind_streams(py::module_& module);
void bind_settings(py::module_& module);
void bind_lists(py::module_& module);

}  // namespace Korvane::Python
#endif  // KV_PYTHON_BINDING_H
