// What `kvtool gaps` prints: discontinuities while they are found, the totals at the end.

#ifndef KV_TOOLS_KVTOOL_GAP_REPORT_H
#define KV_TOOLS_KVTOOL_GAP_REPORT_H

#include <memory>
#include <ostream>
#include <string>

#include "difference_log.h"
#include "ink.h"
#include "temporary_file.h"

namespace Korvane::Tool {

struct GapTotals {
  std::string name;  // of the input
  std::string kind;
  unsigned short rate;
  unsigned long long count = 0;
  unsigned long long gaps = 0;
  std::string first = {};
  std::string last = {};
};

class GapReport {
 public:
  virtual ~GapReport();
  virtual void gap(const std::string& unit, unsigned long long position, const Difference& gap) = 0;
  virtual void finish(const GapTotals& totals) = 0;
};

// A line a gap, at once.
class GapText : public GapReport {
 public:
  GapText(std::ostream& out, Ink ink) : out_(out), ink_(ink) {}
  void gap(const std::string& unit, unsigned long long position, const Difference& gap) override;
  void finish(const GapTotals& totals) override;

 private:
  std::ostream& out_;
  Ink ink_;
};

// One JSON document, printed at the end; until then the gaps wait in a temporary file.
class GapJson : public GapReport {
 public:
  explicit GapJson(std::ostream& out) : out_(out) {}
  void gap(const std::string& unit, unsigned long long position, const Difference& gap) override;
  void finish(const GapTotals& totals) override;

 private:
  std::ostream& out_;
  TemporaryFile waiting_;
  bool any_ = false;
};

}  // namespace Korvane::Tool
#endif  // KV_TOOLS_KVTOOL_GAP_REPORT_H
