// Number reading (lenient and strict) and every format pattern of the program; the plain text of
// any finite double reads back strictly as a finite double, and its plain text again the same.
#include <cmath>
#include <cstring>

#include "FuzzSupport.h"
#include "core/numfmt.h"

using namespace zy;

namespace {
const char* const kPatterns[] = {"0.0#", "0.000", "0.0", "0", "0.00", "Currency", "0; ; ", "0;\\1\\0\\0;\\1\\0\\0",
                                 "0.00;\\0\\.\\4\\0;\\0\\.\\4\\0", "(0%)", "#0.0", "0.#", "#,##0.00", "0%",
                                 "Fixed", "Standard", "Percent", "0.0;-0.0; ", "\"x\"0.0\" y\""};

void plainTextReadsBack(double v) {
  if (!std::isfinite(v)) return;
  const std::string t = plainText(v);
  auto back = strictValue(t);
  fuzz::check(back.has_value(), "the plain text " + t + " does not read back");
  fuzz::check(plainText(*back) == t, "the plain text " + t + " reads back as " + plainText(*back));
}
}  // namespace

ZY_FUZZ_HARNESS(numbers) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const double lenient = lenientValue(text);
  for (const char* p : kPatterns) {
    formatNumber(lenient, p);
    formatNumber(lenient, text.substr(0, 40));  // the text itself as a pattern
  }
  if (auto v = strictValue(text)) plainTextReadsBack(*v);
  strictInt16(text);
  plainTextReadsBack(lenient);
  if (size >= 8) {
    double raw;
    std::memcpy(&raw, data, 8);
    plainTextReadsBack(raw);
    for (const char* p : kPatterns) formatNumber(raw, p);
    roundHalfAway(raw, static_cast<int>(size % 16));
  }
  return 0;
}
