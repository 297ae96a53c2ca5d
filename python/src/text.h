// Text on its way between Python and the library: copied both ways, so that no pointer outlives
// what it points into.

#ifndef KV_PYTHON_TEXT_H
#define KV_PYTHON_TEXT_H

#include <pybind11/pybind11.h>

#include <string>

namespace Korvane::Python {

// UTF-8. Bytes that are none come and go as lone surrogates ("surrogateescape"), as those of file
// names do.
struct Narrow {
  std::string value;
};

// UTF-16, one unit a wchar_t on every platform.
struct Wide {
  std::wstring value;
};

pybind11::str to_python(const char* text);
pybind11::str to_python(const wchar_t* text);

// False when `source` is no str. A NUL, at which the library would take the text to end, raises
// ValueError.
bool from_python(pybind11::handle source, Narrow& text);
bool from_python(pybind11::handle source, Wide& text);

}  // namespace Korvane::Python

namespace pybind11::detail {

template <>
struct type_caster<Korvane::Python::Narrow> {
  PYBIND11_TYPE_CASTER(Korvane::Python::Narrow, const_name("str"));
  bool load(handle source, bool /*convert*/) { return Korvane::Python::from_python(source, value); }
};

template <>
struct type_caster<Korvane::Python::Wide> {
  PYBIND11_TYPE_CASTER(Korvane::Python::Wide, const_name("str"));
  bool load(handle source, bool /*convert*/) { return Korvane::Python::from_python(source, value); }
};

}  // namespace pybind11::detail
#endif  // KV_PYTHON_TEXT_H
