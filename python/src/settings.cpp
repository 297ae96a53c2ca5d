#include "binding.h"
#include "media/camera_info.h"
#include "media/camera_state.h"
#include "media/cameras.h"
#include "media/interplay_web_service.h"
#include "media/multiviewer_config.h"
#include "media/multiviewer_source.h"

namespace Korvane::Python {
namespace {

using Media::CameraInfo;
using Media::Cameras;
using Media::CameraState;
using Media::InterplayWebService;
using Media::MultiviewerConfig;
using Media::MultiviewerSource;

void bind_cameras(py::module_& module) {
  enumeration<Cameras>(module, "", "Cameras");
  enumeration<CameraState>(module, "", "CameraState");

  Class<CameraInfo> type(module, "CameraInfo");
  type.constructor<>();
  type.def(py::init<Cameras>(), py::arg("camera"));
  type.def(py::init<Cameras, CameraState>(), py::arg("camera"), py::arg("state"));
  type.def(py::init([](Cameras camera, CameraState state, bool recording, const Narrow& clip_name) {
             return CameraInfo(camera, state, recording, clip_name.value.c_str());
           }),
           py::arg("camera"), py::arg("state"), flag("recording"), py::arg("clip_name"));
  type.copies()
      .equality()
      .getter("camera", &CameraInfo::camera)
      .property("state", &CameraInfo::state, &CameraInfo::state)
      .property("recording", &CameraInfo::recording, &CameraInfo::recording)
      .read_write(
          "clip_name", [](const CameraInfo& self) { return to_python(self.clip_name()); },
          [](CameraInfo& self, const Narrow& value) { self.clip_name(value.value.c_str()); })
      .method(
          "update_info",
          [](CameraInfo& self, CameraState state, bool recording, const Narrow& clip_name) {
            self.update_info(state, recording, clip_name.value.c_str());
          },
          py::arg("state"), flag("recording"), py::arg("clip_name"))
      .repr({"camera", "state", "recording", "clip_name"});
}

void bind_multiviewer(py::module_& module) {
  Class<MultiviewerConfig> config(module, "MultiviewerConfig");
  config.constructor<>();
  config.def(py::init([](const Wide& server_address, int port, int width, int height,
                         const Rational32& edit_rate, bool keep_aspect_ratio) {
               return MultiviewerConfig(server_address.value.c_str(), port, width, height,
                                        edit_rate, keep_aspect_ratio);
             }),
             py::arg("server_address"), py::arg("port"), py::arg("width"), py::arg("height"),
             py::arg("edit_rate"), flag("keep_aspect_ratio"));
  config.copies()
      .equality()
      .text("server_address", &MultiviewerConfig::server_address)
      .getter("port", &MultiviewerConfig::port)
      .getter("width", &MultiviewerConfig::width)
      .getter("height", &MultiviewerConfig::height)
      .getter("keep_aspect_ratio", &MultiviewerConfig::keep_aspect_ratio)
      .getter("edit_rate", &MultiviewerConfig::edit_rate)
      .repr({"server_address", "port", "width", "height", "edit_rate", "keep_aspect_ratio"});

  Class<MultiviewerSource>(module, "MultiviewerSource")
      .factory(
          [](int id, const Wide& channel_id, int width, int height, int x_offset, int y_offset,
             bool use_audio) {
            return MultiviewerSource(id, channel_id.value.c_str(), width, height, x_offset,
                                     y_offset, use_audio);
          },
          py::arg("id"), py::arg("channel_id"), py::arg("width"), py::arg("height"),
          py::arg("x_offset"), py::arg("y_offset"), flag("use_audio"))
      .copies()
      .equality()
      .getter("id", &MultiviewerSource::id)
      .text("channel_id", &MultiviewerSource::channel_id)
      .getter("width", &MultiviewerSource::width)
      .getter("height", &MultiviewerSource::height)
      .getter("x_offset", &MultiviewerSource::x_offset)
      .getter("y_offset", &MultiviewerSource::y_offset)
      .getter("use_audio", &MultiviewerSource::use_audio)
      .repr({"id", "channel_id", "width", "height", "x_offset", "y_offset", "use_audio"});
}

// Python's own reading of arguments: that of pybind11 shows all of them, the password too, when one
// is of another type.
InterplayWebService service_from(const py::args& arguments, const py::kwargs& keywords) {
  if (arguments.size() == 1 && keywords.empty() &&
      py::isinstance<InterplayWebService>(arguments[0]))
    return arguments[0].cast<InterplayWebService>();
  constexpr const char* kNames[] = {"server",   "port",      "workgroup", "user",
                                    "password", "use_https", "timeout",   nullptr};
  PyObject* server = nullptr;
  PyObject* workgroup = nullptr;
  PyObject* user = nullptr;
  PyObject* password = nullptr;
  PyObject* use_https = nullptr;
  int port = 0;
  int timeout = 0;
  if (PyArg_ParseTupleAndKeywords(arguments.ptr(), keywords.ptr(), "UiUUUO!i:InterplayWebService",
                                  const_cast<char**>(kNames),  // never written
                                  &server, &port, &workgroup, &user, &password, &PyBool_Type,
                                  &use_https, &timeout) == 0)
    throw py::error_already_set();
  Narrow texts[4];
  PyObject* const given[4] = {server, workgroup, user, password};
  for (int i = 0; i < 4; ++i) from_python(given[i], texts[i]);
  return {texts[0].value.c_str(),
          port,
          texts[1].value.c_str(),
          texts[2].value.c_str(),
          texts[3].value.c_str(),
          use_https == Py_True,
          timeout};
}

void bind_web_service(py::module_& module) {
  Class<InterplayWebService> type(module, "InterplayWebService");
  {
    py::options options;
    options.disable_function_signatures();  // it would say (*args, **kwargs)
    const std::string signature =
        "__init__(self: korvane.InterplayWebService, server: str, port: int, workgroup: str, "
        "user: str, password: str, use_https: bool, timeout: int) -> None\n\n";
    type.def(py::init(&service_from), (signature + doc(type.name(), "__init__")).c_str());
  }
  type.copy_functions()
      .text("server", &InterplayWebService::server)
      .getter("port", &InterplayWebService::port)
      .text("workgroup", &InterplayWebService::workgroup)
      .text("user", &InterplayWebService::user)
      .text("password", &InterplayWebService::password)
      .getter("use_https", &InterplayWebService::use_https)
      .getter("timeout", &InterplayWebService::timeout)
      .text("base_url", &InterplayWebService::base_url)
      .repr({"server", "port", "workgroup", "user", "use_https", "timeout"});  // no password
}

}  // namespace

void bind_settings(py::module_& module) {
  bind_cameras(module);
  bind_multiviewer(module);
  bind_web_service(module);
}

}  // namespace Korvane::Python
