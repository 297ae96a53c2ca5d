#include <cwchar>
#include <stdexcept>

#include "binding.h"
#include "media/i_umid_info.h"
#include "media/source_info.h"
#include "media/umid.h"

namespace Korvane::Python {
namespace {

using Media::IUmidInfo;
using Media::SourceInfo;
using Media::Umid;

// The library leaves the length to its callers; its text tells.
std::size_t size_of(const Umid& umid) { return std::wcslen(umid.c_str()) / 2; }

py::bytes bytes_of(const Umid& umid) {
  const std::size_t size = size_of(umid);
  return size == 0 ? py::bytes() : py::bytes(reinterpret_cast<const char*>(umid.value()), size);
}

int position_in(const Umid& umid, const py::object& index) {
  return static_cast<int>(checked_index(index, size_of(umid)));
}

// An odd number of digits is a wrong text here, not a wrong index.
Umid umid_from(const Wide& text) {
  try {
    return Umid(text.value.c_str());
  } catch (const std::out_of_range& error) {
    throw py::value_error(error.what());
  }
}

void bind_umid(py::module_& module) {
  Class<Umid>(module, "Umid")
      .factory(&umid_from, py::arg("text"))
      .copies()
      .read_only("value", bytes_of)
      .method("c_str", [](const Umid& self) { return to_python(self.c_str()); })
      .def("__str__", [](const Umid& self) { return to_python(self.c_str()); })
      .def("__repr__",
           [](const Umid& self) { return py::str("Umid({!r})").format(to_python(self.c_str())); })
      .def("__bytes__", bytes_of)
      .def("__len__", size_of)
      .def("__getitem__",
           [](const Umid& self, const py::object& index) { return self[position_in(self, index)]; })
      .def("__setitem__", [](Umid& self, const py::object& index,
                             unsigned char value) { self[position_in(self, index)] = value; })
      .def("__iter__", [](const Umid& self) { return py::iter(bytes_of(self)); });
}

py::object copy_of(const Umid* umid) {
  if (umid == nullptr) return py::none();
  return py::cast(Umid(*umid));
}

void bind_source_info(py::module_& module) {
  Class<IUmidInfo> interface(module, "IUmidInfo");
  enumeration<IUmidInfo::UmidKind>(interface, "IUmidInfo", "UmidKind");

  const auto tape = [](const SourceInfo& self) { return copy_of(self.tape_mob_id()); };
  const auto master = [](const SourceInfo& self) { return copy_of(self.master_mob_id()); };
  const auto source = [](const SourceInfo& self) { return copy_of(self.source_mob_id()); };
  Class<SourceInfo, IUmidInfo>(module, "SourceInfo")
      .constructor<IUmidInfo::UmidKind>(py::arg("kind"))
      .getter("umid_kind", &SourceInfo::umid_kind)
      .read_write("tape_mob_id", tape,
                  [](SourceInfo& self, const Umid& id) { self.tape_mob_id(id); })
      .read_write("master_mob_id", master,
                  [](SourceInfo& self, const Umid& id) { self.master_mob_id(id); })
      .read_write("source_mob_id", source,
                  [](SourceInfo& self, const Umid& id) { self.source_mob_id(id); })
      .getter("has_tape_mob_id", &SourceInfo::has_tape_mob_id)
      .getter("has_master_mob_id", &SourceInfo::has_master_mob_id)
      .getter("has_source_mob_id", &SourceInfo::has_source_mob_id)
      .read_write(
          "tape_name", [](const SourceInfo& self) { return to_python(self.tape_name()); },
          [](SourceInfo& self, const Wide& name) { self.tape_name(name.value.c_str()); })
      .getter("has_tape_name", &SourceInfo::has_tape_name)
      .repr({"umid_kind", "tape_mob_id", "master_mob_id", "source_mob_id", "tape_name"});
}

}  // namespace

void bind_umids(py::module_& module) {
  bind_umid(module);
  bind_source_info(module);
}

}  // namespace Korvane::Python
