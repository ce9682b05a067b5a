#include "core/dates.h"

#include <cctype>
#include <cmath>
#include <cstdio>
#include <vector>

#include "core/text.h"

namespace zy {

const char* const kMonthNames[12] = {"January", "February", "March",     "April",   "May",      "June",
                                     "July",    "August",   "September", "October", "November", "December"};

namespace {
// Days from 1970-01-01 of a civil date (proleptic Gregorian).
long long daysFromCivil(long long y, unsigned m, unsigned d) {
  y -= m <= 2;
  const long long era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<long long>(doe) - 719468;
}

void civilFromDays(long long z, int& y, int& m, int& d) {
  z += 719468;
  const long long era = (z >= 0 ? z : z - 146096) / 146097;
  const unsigned doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  long long yy = static_cast<long long>(yoe) + era * 400;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  y = static_cast<int>(yy + (m <= 2));
}

const long long kEpochOffset = daysFromCivil(1899, 12, 30);

int daysInMonth(int y, int m) {
  static const int n[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (m == 2 && ((y % 4 == 0 && y % 100 != 0) || y % 400 == 0)) return 29;
  return n[m - 1];
}

int monthFromName(const std::string& word) {
  if (word.size() < 3) return 0;
  std::string w = lower(word);
  for (int i = 0; i < 12; ++i) {
    std::string full = lower(kMonthNames[i]);
    if (full.compare(0, w.size(), w) == 0 && w.size() <= full.size()) return i + 1;
  }
  if (w == "sept") return 9;
  return 0;
}

int expandYear(int y, size_t digits) {
  if (digits <= 2) return y < 30 ? 2000 + y : 1900 + y;
  return y;
}
}  // namespace

double serialFromCivil(int year, int month, int day, int hour, int minute, int second) {
  double days = static_cast<double>(daysFromCivil(year, month, day) - kEpochOffset);
  double frac = (hour * 3600.0 + minute * 60.0 + second) / 86400.0;
  return days >= 0 ? days + frac : days - frac;
}

CivilDate civilFromSerial(double serial) {
  CivilDate c;
  // Dates run from the year 100 to 9999; a serial outside them (a damaged record) shows as day 0.
  if (!std::isfinite(serial) || serial < -657434.0 || serial >= 2958466.0) serial = 0;
  double whole = std::trunc(serial);
  double frac = std::fabs(serial - whole);
  long long secs = std::llround(frac * 86400.0);
  if (secs >= 86400) { secs -= 86400; whole += serial >= 0 ? 1 : -1; }
  civilFromDays(static_cast<long long>(whole) + kEpochOffset, c.year, c.month, c.day);
  c.hour = static_cast<int>(secs / 3600);
  c.minute = static_cast<int>((secs / 60) % 60);
  c.second = static_cast<int>(secs % 60);
  return c;
}

std::string formatDate(double serial, std::string_view p) {
  CivilDate c = civilFromSerial(serial);
  std::string out;
  bool lastWasHour = false;
  auto two = [](int v) { char b[8]; std::snprintf(b, sizeof b, "%02d", v); return std::string(b); };
  bool twelveHour = p.find("AM/PM") != std::string_view::npos;
  for (size_t i = 0; i < p.size();) {
    auto at = [&](std::string_view tok) { return p.substr(i, tok.size()) == tok; };
    int hour = c.hour;
    if (twelveHour) { hour = c.hour % 12; if (hour == 0) hour = 12; }
    if (at("yyyy")) {  // always four digits, so that a year below 1000 reads back (0999)
      char b[16];
      std::snprintf(b, sizeof b, "%04d", c.year);
      out += b;
      i += 4;
      lastWasHour = false;
    }
    else if (at("yy")) { out += two(c.year % 100); i += 2; lastWasHour = false; }
    else if (at("mmmm")) { out += kMonthNames[c.month - 1]; i += 4; lastWasHour = false; }
    else if (at("mmm")) { out += std::string(kMonthNames[c.month - 1]).substr(0, 3); i += 3; lastWasHour = false; }
    else if (at("mm")) { out += two(lastWasHour ? c.minute : c.month); i += 2; lastWasHour = false; }
    else if (at("m")) { out += std::to_string(lastWasHour ? c.minute : c.month); i += 1; lastWasHour = false; }
    else if (at("dd")) { out += two(c.day); i += 2; lastWasHour = false; }
    else if (at("d")) { out += std::to_string(c.day); i += 1; lastWasHour = false; }
    else if (at("hh")) { out += two(hour); i += 2; lastWasHour = true; }
    else if (at("h")) { out += std::to_string(hour); i += 1; lastWasHour = true; }
    else if (at("nn")) { out += two(c.minute); i += 2; lastWasHour = false; }
    else if (at("ss")) { out += two(c.second); i += 2; }
    else if (at("AM/PM")) { out += c.hour < 12 ? "AM" : "PM"; i += 5; }
    else { out += p[i]; ++i; }
  }
  return out;
}

std::string formatDateMDY(double serial) { return formatDate(serial, "mmm-dd-yyyy"); }

std::string formatDateTime(double serial) { return formatDate(serial, "m/d/yyyy h:nn:ss AM/PM"); }

std::optional<double> parseDate(std::string_view text) {
  // Break the text into words (letters) and numbers, remembering the separators.
  struct Tok { bool number; std::string text; };
  std::vector<Tok> toks;
  std::string t = trim(text);
  int hour = 0, minute = 0, second = 0;
  // A time part: h:mm[:ss] [AM|PM] at the end.
  size_t colon = t.find(':');
  if (colon != std::string::npos) {
    size_t start = t.rfind(' ', colon);
    if (start == std::string::npos) return std::nullopt;
    std::string timePart = trim(t.substr(start + 1));
    t = trim(t.substr(0, start));
    std::string lowerTime = lower(timePart);
    bool pm = lowerTime.find("pm") != std::string::npos;
    bool am = lowerTime.find("am") != std::string::npos;
    std::vector<std::string> parts = split(trim(replaceAll(replaceAll(lowerTime, "pm", ""), "am", "")), ':');
    if (parts.size() < 2 || parts.size() > 3) return std::nullopt;
    try {
      hour = std::stoi(parts[0]);
      minute = std::stoi(parts[1]);
      second = parts.size() == 3 ? std::stoi(parts[2]) : 0;
    } catch (...) {
      return std::nullopt;
    }
    if (pm && hour < 12) hour += 12;
    if (am && hour == 12) hour = 0;
    if (hour > 23 || minute > 59 || second > 59 || hour < 0 || minute < 0 || second < 0) return std::nullopt;
  }
  for (size_t i = 0; i < t.size();) {
    unsigned char c = static_cast<unsigned char>(t[i]);
    if (std::isdigit(c)) {
      size_t j = i;
      while (j < t.size() && std::isdigit(static_cast<unsigned char>(t[j]))) ++j;
      toks.push_back({true, t.substr(i, j - i)});
      i = j;
    } else if (std::isalpha(c)) {
      size_t j = i;
      while (j < t.size() && std::isalpha(static_cast<unsigned char>(t[j]))) ++j;
      toks.push_back({false, t.substr(i, j - i)});
      i = j;
    } else if (c == ' ' || c == '-' || c == '/' || c == ',' || c == '.') {
      ++i;
    } else {
      return std::nullopt;
    }
  }
  if (toks.size() != 3) return std::nullopt;
  int y = 0, m = 0, d = 0;
  size_t yDigits = 4;
  auto num = [](const Tok& k) { return k.text.size() > 6 ? -1 : std::stoi(k.text); };
  if (!toks[0].number && toks[1].number && toks[2].number) {  // Oct-05-1998, October 5, 1998
    m = monthFromName(toks[0].text);
    d = num(toks[1]);
    y = num(toks[2]);
    yDigits = toks[2].text.size();
  } else if (toks[0].number && !toks[1].number && toks[2].number) {  // 5 Oct 1998
    d = num(toks[0]);
    m = monthFromName(toks[1].text);
    y = num(toks[2]);
    yDigits = toks[2].text.size();
  } else if (toks[0].number && toks[1].number && toks[2].number) {
    if (toks[0].text.size() == 4) {  // 1998-10-05
      y = num(toks[0]);
      m = num(toks[1]);
      d = num(toks[2]);
    } else {  // 10/5/1998
      m = num(toks[0]);
      d = num(toks[1]);
      y = num(toks[2]);
      yDigits = toks[2].text.size();
    }
  } else {
    return std::nullopt;
  }
  if (yDigits != 4 && yDigits > 2) return std::nullopt;
  y = expandYear(y, yDigits);
  if (m < 1 || m > 12 || y < 100 || y > 9999 || d < 1 || d > daysInMonth(y, m)) return std::nullopt;
  return serialFromCivil(y, m, d, hour, minute, second);
}

}  // namespace zy
