#include "core/numfmt.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace zy {

namespace {

// The value's magnitude as decimal digits: intPart and fracPart rounded to `decimals` places,
// half away from zero, working on the 15 significant digits of the value.
struct Decimal {
  bool negative = false;
  std::string intDigits;   // no leading zeros; empty for 0
  std::string fracDigits;  // exactly `decimals` digits
  bool isZero() const {
    for (char c : intDigits) if (c != '0') return false;
    for (char c : fracDigits) if (c != '0') return false;
    return true;
  }
};

Decimal toDecimal(double value, int decimals) {
  Decimal d;
  d.negative = std::signbit(value) && value != 0.0;
  double a = std::fabs(value);
  if (!std::isfinite(a)) a = 0.0;
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.14e", a);
  // buf: d.dddddddddddddde+XX
  std::string digits;
  const char* p = buf;
  for (; *p && *p != 'e'; ++p)
    if (*p >= '0' && *p <= '9') digits += *p;
  int exp10 = *p == 'e' ? std::atoi(p + 1) : 0;
  // value = 0.digits * 10^(exp10+1); the decimal point sits after (exp10+1) digits.
  int pointPos = exp10 + 1;
  if (a == 0.0) { digits = "0"; pointPos = 1; }
  // Digits to keep: pointPos + decimals.
  int keep = pointPos + decimals;
  std::string kept;
  bool roundUp = false;
  if (keep < 0) {
    kept = "";
  } else {
    if (keep < static_cast<int>(digits.size())) {
      roundUp = digits[keep] >= '5';
      kept = digits.substr(0, keep);
    } else {
      kept = digits + std::string(keep - digits.size(), '0');
    }
  }
  if (roundUp) {
    int i = static_cast<int>(kept.size()) - 1;
    while (i >= 0 && kept[i] == '9') { kept[i] = '0'; --i; }
    if (i >= 0) kept[i]++;
    else { kept.insert(kept.begin(), '1'); ++pointPos; }
  }
  // Split into integer and fraction digits.
  int intLen = pointPos;
  std::string intDigits, fracDigits;
  if (intLen <= 0) {
    fracDigits = std::string(-intLen, '0') + kept;
  } else {
    intDigits = kept.substr(0, std::min<size_t>(intLen, kept.size()));
    if (static_cast<int>(intDigits.size()) < intLen) intDigits += std::string(intLen - intDigits.size(), '0');
    if (static_cast<int>(kept.size()) > intLen) fracDigits = kept.substr(intLen);
  }
  fracDigits.resize(decimals, '0');
  size_t nz = intDigits.find_first_not_of('0');
  intDigits = nz == std::string::npos ? "" : intDigits.substr(nz);
  d.intDigits = intDigits;
  d.fracDigits = fracDigits;
  return d;
}

struct Section {
  std::string prefix, suffix;
  int intMin = 0;        // '0' placeholders before the point
  bool hasPoint = false;
  int fracMin = 0;       // '0' placeholders after the point
  int fracMax = 0;       // all placeholders after the point
  bool percent = false;
  bool grouping = false;
  bool hasDigits = false;
};

Section parseSection(std::string_view s) {
  Section sec;
  bool inDigits = false, afterDigits = false, afterPoint = false;
  for (size_t i = 0; i < s.size(); ++i) {
    char c = s[i];
    std::string lit;
    if (c == '\\' && i + 1 < s.size()) {
      lit = std::string(1, s[++i]);
    } else if (c == '"') {
      size_t e = s.find('"', i + 1);
      if (e == std::string_view::npos) e = s.size();
      lit = std::string(s.substr(i + 1, e - i - 1));
      i = e;
    } else if ((c == '0' || c == '#') && !afterDigits) {
      inDigits = true;
      sec.hasDigits = true;
      if (afterPoint) {
        ++sec.fracMax;
        if (c == '0') sec.fracMin = sec.fracMax;
      } else if (c == '0') {
        ++sec.intMin;
      }
      continue;
    } else if (c == '.' && !afterDigits && !afterPoint) {
      sec.hasPoint = true;
      afterPoint = true;
      inDigits = true;
      sec.hasDigits = true;
      continue;
    } else if (c == ',' && inDigits && !afterPoint) {
      sec.grouping = true;
      continue;
    } else if (c == '%') {
      sec.percent = true;
      lit = "%";
    } else {
      lit = std::string(1, c);
    }
    if (inDigits) { inDigits = false; afterDigits = true; }
    if (afterDigits) sec.suffix += lit;
    else sec.prefix += lit;
  }
  return sec;
}

std::string group(const std::string& intDigits) {
  std::string out;
  int n = static_cast<int>(intDigits.size());
  for (int i = 0; i < n; ++i) {
    out += intDigits[i];
    int rest = n - 1 - i;
    if (rest > 0 && rest % 3 == 0) out += ',';
  }
  return out;
}

std::string formatSection(double magnitude, const Section& sec, bool negative) {
  if (!sec.hasDigits) return sec.prefix + sec.suffix;
  double v = sec.percent ? magnitude * 100.0 : magnitude;
  Decimal d = toDecimal(v, sec.fracMax);
  std::string frac = d.fracDigits;
  while (static_cast<int>(frac.size()) > sec.fracMin && !frac.empty() && frac.back() == '0') frac.pop_back();
  std::string intDigits = d.intDigits;
  if (static_cast<int>(intDigits.size()) < sec.intMin)
    intDigits = std::string(sec.intMin - intDigits.size(), '0') + intDigits;
  if (sec.grouping) intDigits = group(intDigits);
  std::string num = intDigits;
  if (sec.hasPoint) num += "." + frac;
  bool neg = negative && !d.isZero();
  return (neg ? "-" : "") + sec.prefix + num + sec.suffix;
}

bool allBlank(std::string_view s) {
  for (char c : s) if (c != ' ') return false;
  return true;
}

std::vector<std::string> splitSections(std::string_view pattern) {
  std::vector<std::string> out(1);
  bool quoted = false;
  for (size_t i = 0; i < pattern.size(); ++i) {
    char c = pattern[i];
    if (c == '\\' && i + 1 < pattern.size()) {
      out.back() += c;
      out.back() += pattern[++i];
    } else if (c == '"') {
      quoted = !quoted;
      out.back() += c;
    } else if (c == ';' && !quoted) {
      out.emplace_back();
    } else {
      out.back() += c;
    }
  }
  return out;
}

std::string currency(double value) {
  Decimal d = toDecimal(value, 2);
  std::string s = "$" + group(d.intDigits.empty() ? "0" : d.intDigits) + "." + d.fracDigits;
  if (d.negative && !d.isZero()) return "(" + s + ")";
  return s;
}

}  // namespace

double roundHalfAway(double value, int decimals) {
  Decimal d = toDecimal(value, decimals);
  std::string text = (d.negative ? "-" : "") + (d.intDigits.empty() ? std::string("0") : d.intDigits) + "." +
                     d.fracDigits + "0";
  return std::strtod(text.c_str(), nullptr);
}

std::string formatNumber(double value, std::string_view pattern) {
  if (pattern == "Currency") return currency(value);
  if (pattern == "Fixed") return formatNumber(value, "0.00");
  if (pattern == "Standard") return formatNumber(value, "#,##0.00");
  if (pattern == "Percent") return formatNumber(value, "0.00%");
  if (!std::isfinite(value)) value = 0.0;
  std::vector<std::string> secs = splitSections(pattern);
  if (secs.size() > 3) secs.resize(3);
  const std::string* chosen = &secs[0];
  bool withSign = true;
  if (value < 0 && secs.size() >= 2 && !secs[1].empty()) {
    chosen = &secs[1];
    withSign = false;
  } else if (value == 0 && secs.size() >= 3 && !secs[2].empty()) {
    chosen = &secs[2];
  }
  if (chosen != &secs[0] && allBlank(*chosen)) return "";
  return formatSection(std::fabs(value), parseSection(*chosen), withSign && value < 0);
}

std::string plainText(double value) {
  if (!std::isfinite(value)) return "0";
  if (value == 0.0) return "0";
  double a = std::fabs(value);
  char buf[64];
  if (a >= 1e15 || a < 1e-4) {
    // 15 significant digits; where 15 round past the largest double (1.79769313486232E+308 would
    // read back as no number at all), all 17, which read back as this very double, so that its
    // text, written again, is the same.
    std::snprintf(buf, sizeof buf, "%.14E", value);
    if (!std::isfinite(std::strtod(buf, nullptr))) std::snprintf(buf, sizeof buf, "%.16E", value);
    std::string s(buf);
    size_t e = s.find('E');
    std::string mant = s.substr(0, e), ex = s.substr(e + 1);
    if (mant.find('.') != std::string::npos) {
      while (mant.back() == '0') mant.pop_back();
      if (mant.back() == '.') mant.pop_back();
    }
    char sign = ex[0];
    int n = std::atoi(ex.c_str() + 1);
    std::snprintf(buf, sizeof buf, "%sE%c%02d", mant.c_str(), sign, n);
    return buf;
  }
  std::snprintf(buf, sizeof buf, "%.15g", value);
  std::string s(buf);
  if (s.find('e') != std::string::npos) {
    // %.15g chose an exponent for a value we show in fixed form.
    int decimals = 15 - 1 - static_cast<int>(std::floor(std::log10(a)));
    if (decimals < 0) decimals = 0;
    std::snprintf(buf, sizeof buf, "%.*f", decimals, value);
    s = buf;
    if (s.find('.') != std::string::npos) {
      while (s.back() == '0') s.pop_back();
      if (s.back() == '.') s.pop_back();
    }
  }
  return s;
}

double lenientValue(std::string_view text) {
  std::string t;
  t.reserve(text.size());
  for (char c : text)
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') t += c;
  size_t i = 0;
  if (t.size() >= 2 && t[0] == '&' && (t[1] == 'H' || t[1] == 'h' || t[1] == 'O' || t[1] == 'o')) {
    int base = (t[1] == 'H' || t[1] == 'h') ? 16 : 8;
    long long v = 0;
    for (i = 2; i < t.size(); ++i) {
      int dgt;
      char c = t[i];
      if (c >= '0' && c <= '9') dgt = c - '0';
      else if (base == 16 && c >= 'a' && c <= 'f') dgt = c - 'a' + 10;
      else if (base == 16 && c >= 'A' && c <= 'F') dgt = c - 'A' + 10;
      else break;
      if (dgt >= base) break;
      v = v * base + dgt;
      if (v > 0xFFFFFFFFLL) break;
    }
    return static_cast<double>(v);
  }
  std::string num;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) num += t[i++];
  bool digits = false;
  while (i < t.size() && t[i] >= '0' && t[i] <= '9') { num += t[i++]; digits = true; }
  if (i < t.size() && t[i] == '.') {
    num += t[i++];
    while (i < t.size() && t[i] >= '0' && t[i] <= '9') { num += t[i++]; digits = true; }
  }
  if (!digits) return 0.0;
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E' || t[i] == 'd' || t[i] == 'D')) {
    size_t j = i + 1;
    std::string ex = "e";
    if (j < t.size() && (t[j] == '+' || t[j] == '-')) ex += t[j++];
    bool exDigits = false;
    while (j < t.size() && t[j] >= '0' && t[j] <= '9') { ex += t[j++]; exDigits = true; }
    if (exDigits) num += ex;
  }
  double v = std::strtod(num.c_str(), nullptr);
  return std::isfinite(v) ? v : 0.0;
}

std::optional<double> strictValue(std::string_view text) {
  std::string t(text);
  size_t b = t.find_first_not_of(" \t");
  if (b == std::string::npos) return std::nullopt;
  t = t.substr(b, t.find_last_not_of(" \t") - b + 1);
  bool negative = false;
  if (t.size() >= 2 && t.front() == '(' && t.back() == ')') {
    negative = true;
    t = t.substr(1, t.size() - 2);
  }
  std::string num;
  size_t i = 0;
  auto skipMoney = [&] { if (i < t.size() && t[i] == '$') ++i; };
  skipMoney();
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) {
    if (t[i] == '-') negative = !negative;
    ++i;
  }
  skipMoney();
  bool digits = false;
  while (i < t.size() && ((t[i] >= '0' && t[i] <= '9') || (t[i] == ',' && digits))) {
    if (t[i] != ',') num += t[i];
    digits = digits || t[i] != ',';
    ++i;
  }
  if (i < t.size() && t[i] == '.') {
    num += t[i++];
    while (i < t.size() && t[i] >= '0' && t[i] <= '9') { num += t[i++]; digits = true; }
  }
  if (!digits) return std::nullopt;
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
    size_t j = i + 1;
    std::string ex = "e";
    if (j < t.size() && (t[j] == '+' || t[j] == '-')) ex += t[j++];
    bool exDigits = false;
    while (j < t.size() && t[j] >= '0' && t[j] <= '9') { ex += t[j++]; exDigits = true; }
    if (!exDigits) return std::nullopt;
    num += ex;
    i = j;
  }
  if (i != t.size()) return std::nullopt;
  double v = std::strtod(num.c_str(), nullptr);
  if (!std::isfinite(v)) return std::nullopt;
  return negative ? -v : v;
}

std::optional<int> strictInt16(std::string_view text) {
  auto v = strictValue(text);
  if (!v) return std::nullopt;
  double r = std::nearbyint(*v);  // the default rounding mode: halves to even
  if (r < -32768.0 || r > 32767.0) return std::nullopt;
  return static_cast<int>(r);
}

}  // namespace zy
