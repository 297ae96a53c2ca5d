#include "core/exception.h"

#include "binding.h"
#include "core/exception_code.h"
#include "core/logger.h"

namespace Korvane::Python {
namespace {

// Lives as long as the process: the translator below may be called until its end.
PyObject* error_type = nullptr;

constexpr const char* kErrorDoc =
    "A failure that the library reports. `code` is an ExceptionCode, `message` the fixed text, "
    "which is "
    "also the text of the error.";

void raise_error(const Exception& exception) {
  const py::object error = py::reinterpret_borrow<py::object>(error_type)(
      exception.code(), to_python(exception.message()));
  PyErr_SetObject(error_type, error.ptr());
}

// One that other codes and copies of the module than this one understand: args are (code, message).
void make_error_type(py::module_& module) {
  const py::object property = py::module_::import("builtins").attr("property");
  const auto argument = [&property](Py_ssize_t index, const char* text) {
    return property(py::cpp_function([index](const py::object& self) -> py::object {
                      return py::object(self.attr("args"))[py::int_(index)];
                    }),
                    py::none(), py::none(), text);
  };
  py::dict members;
  members["code"] = argument(0, "An ExceptionCode, named or not.");
  members["message"] = argument(1, "The text of the failure.");
  error_type =
      PyErr_NewExceptionWithDoc("korvane.Error", kErrorDoc, PyExc_Exception, members.ptr());
  if (error_type == nullptr) throw py::error_already_set();
  py::object type = py::reinterpret_borrow<py::object>(error_type);
  type.attr("__str__") =
      py::cpp_function([](const py::object& self) { return py::object(self.attr("message")); },
                       py::name("__str__"), py::is_method(type));
  module.attr("Error") = type;
}

// The Python function that receives the lines of the log; null while none does. Changed with the
// interpreter held, and read by the sink, which holds it too.
PyObject* log_sink = nullptr;

void pass_line(void* /*context*/, const char* text) {
  const py::gil_scoped_acquire held;
  if (log_sink == nullptr) return;
  const py::object sink = py::reinterpret_borrow<py::object>(log_sink);
  try {
    sink(to_python(text));
  } catch (py::error_already_set& error) {
    error.discard_as_unraisable("korvane.Logger.set_sink");
  }
}

// Without the interpreter while the log's own lock is taken: a line of another thread may hold that
// and wait for the interpreter.
void set_log_sink(void (*sink)(void* context, const char* text)) {
  const py::gil_scoped_release released;
  Logging::Logger::instance().set_sink(sink, nullptr);
}

void set_sink(const py::object& sink) {
  if (!sink.is_none() && PyCallable_Check(sink.ptr()) == 0)
    throw py::type_error("a sink is a function of one text, or None");
  if (sink.is_none()) set_log_sink(nullptr);
  const auto former = py::reinterpret_steal<py::object>(log_sink);
  log_sink = sink.is_none() ? nullptr : py::object(sink).release().ptr();
  if (!sink.is_none()) set_log_sink(pass_line);
}

struct LoggerScope {};

}  // namespace

void bind_error(py::module_& module) {
  enumeration<ExceptionCode>(module, "", "ExceptionCode");
  make_error_type(module);
  // NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is that of pybind11
  py::register_exception_translator([](std::exception_ptr raised) {
    try {
      if (raised) std::rethrow_exception(raised);
    } catch (const Exception& exception) {
      raise_error(exception);
    }
  });

  py::class_<LoggerScope>(module, "Logger", doc("Logger", "__doc__"))
      .def_static(
          "info",
          [](const Narrow& text) {
            const py::gil_scoped_release released;
            Logging::Logger::instance().info(text.value.c_str());
          },
          py::arg("text"), doc("Logger", "info"))
      .def_static("set_sink", set_sink, py::arg("sink"), doc("Logger", "set_sink"));
  // Before the interpreter ends, after which no line can reach Python.
  py::module_::import("atexit").attr("register")(py::cpp_function([] { set_sink(py::none()); }));
}

}  // namespace Korvane::Python
