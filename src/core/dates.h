#pragma once
// Dates as the files keep them: a double counting days since 1899-12-30, the fraction being
// the time of day.
#include <optional>
#include <string>
#include <string_view>

namespace zy {

struct CivilDate {
  int year = 1899, month = 12, day = 30;
  int hour = 0, minute = 0, second = 0;
};

double serialFromCivil(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);
CivilDate civilFromSerial(double serial);

// Formats by a pattern of the tokens yyyy, yy, mmmm, mmm, mm, m, dd, d, hh, h, nn, ss, AM/PM;
// anything else is copied. "mm" right after an hour token means minutes.
std::string formatDate(double serial, std::string_view pattern);

// "mmm-dd-yyyy", as a recipe's creation date is kept (Oct-05-1998).
std::string formatDateMDY(double serial);
// The date and time as the error log writes it: 11/22/2026 3:04:05 PM.
std::string formatDateTime(double serial);

// Reads "Oct-05-1998", "10/5/1998", "10-05-1998", "October 5, 1998", "5 Oct 1998",
// "1998-10-05" and an optional time after the date. Two-digit years fall in 1930..2029.
// No value when the text is no date.
std::optional<double> parseDate(std::string_view text);

extern const char* const kMonthNames[12];

}  // namespace zy
