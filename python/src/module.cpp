#include "binding.h"

PYBIND11_MODULE(korvane, module) {
  namespace Python = Korvane::Python;
  module.doc() =
      "The value classes that a broadcast ingest and playout engine and its clients exchange: "
      "timecodes "
      "(SMPTE ST 12-1), track descriptors, formats and colour spaces, statistics of streams, "
      "identifiers "
      "of material (SMPTE ST 330), and settings.\n\n"
      "Names and behaviour are those of the C++ library. What C++ reads and sets by functions of "
      "one name "
      "is an attribute; what a getter gives is a copy, and an absent value is None.";
  module.attr("__version__") = KV_PYTHON_VERSION;
  Python::bind_error(module);
  Python::bind_enumerations(module);
  Python::bind_timecode(module);
  Python::bind_tracks(module);
  Python::bind_formats(module);
  Python::bind_umids(module);
  Python::bind_streams(module);
  Python::bind_settings(module);
  Python::bind_lists(module);
}
