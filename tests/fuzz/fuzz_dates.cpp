// Date reading; a date the program writes ("mmm-dd-yyyy") reads back as the same day.
#include <cstring>

#include "FuzzSupport.h"
#include "core/dates.h"

using namespace zy;

namespace {
void writtenDateReadsBack(double serial) {
  const std::string t = formatDateMDY(serial);
  auto back = parseDate(t);
  fuzz::check(back.has_value(), "the date " + t + " does not read back");
  fuzz::check(formatDateMDY(*back) == t, "the date " + t + " reads back as " + formatDateMDY(*back));
}
}  // namespace

ZY_FUZZ_HARNESS(dates) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  if (auto v = parseDate(text)) {
    writtenDateReadsBack(*v);
    formatDateTime(*v);
    formatDate(*v, "yyyy-mm-dd - ");
  }
  if (size >= 8) {
    double raw;
    std::memcpy(&raw, data, 8);
    writtenDateReadsBack(raw);
    formatDate(raw, text.substr(8, 40));  // the rest as a pattern
  }
  return 0;
}
