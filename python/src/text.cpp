#include "text.h"

#include <cstring>
#include <cwchar>

namespace Korvane::Python {
namespace {

namespace py = pybind11;

py::str owned_text(PyObject* text) {
  if (text == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(text);
}

// The bytes of a str; empty handle for any other object.
py::object encoded(py::handle source, const char* encoding, const char* errors) {
  if (!PyUnicode_Check(source.ptr())) return {};
  auto bytes =
      py::reinterpret_steal<py::object>(PyUnicode_AsEncodedString(source.ptr(), encoding, errors));
  if (!bytes) throw py::error_already_set();
  return bytes;
}

}  // namespace

py::str to_python(const char* text) {
  return owned_text(
      PyUnicode_DecodeUTF8(text, static_cast<Py_ssize_t>(std::strlen(text)), "surrogateescape"));
}

py::str to_python(const wchar_t* text) {
  std::u16string units(text, text + std::wcslen(text));
  int order = PY_LITTLE_ENDIAN != 0 ? -1 : 1;
  return owned_text(PyUnicode_DecodeUTF16(reinterpret_cast<const char*>(units.data()),
                                          static_cast<Py_ssize_t>(2 * units.size()),
                                          "surrogatepass", &order));
}

bool from_python(py::handle source, Narrow& text) {
  const py::object bytes = encoded(source, "utf-8", "surrogateescape");
  if (!bytes) return false;
  text.value.assign(PyBytes_AS_STRING(bytes.ptr()),
                    static_cast<std::size_t>(PyBytes_GET_SIZE(bytes.ptr())));
  if (text.value.find('\0') != std::string::npos) throw py::value_error("embedded null character");
  return true;
}

bool from_python(py::handle source, Wide& text) {
  const py::object bytes = encoded(source, "utf-16-le", "surrogatepass");
  if (!bytes) return false;
  const auto* const data = reinterpret_cast<const unsigned char*>(PyBytes_AS_STRING(bytes.ptr()));
  const auto size = static_cast<std::size_t>(PyBytes_GET_SIZE(bytes.ptr())) / 2;
  text.value.resize(size);
  for (std::size_t i = 0; i < size; ++i)
    text.value[i] = static_cast<wchar_t>(data[2 * i] | data[2 * i + 1] << 8);
  if (text.value.find(L'\0') != std::wstring::npos)
    throw py::value_error("embedded null character");
  return true;
}

}  // namespace Korvane::Python
