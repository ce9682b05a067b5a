#pragma once
// Number formats and number reading.
//
// formatNumber implements the patterns the program shows numbers with: digit placeholders
// "0" and "#", one decimal point, "%" (value times 100), "," grouping, literals escaped with
// a backslash or quoted, and up to three sections (positive;negative;zero). A section made of
// blanks only prints nothing. The named format "Currency" is the US money form: $1,234.50 and
// ($1.25) for a negative. Rounding is half away from zero on the value's decimal text at 15
// significant digits, so 2.675 shown with two decimals is 2.68.
#include <optional>
#include <string>
#include <string_view>

namespace zy {

std::string formatNumber(double value, std::string_view pattern);

// The plain text of a number: up to 15 significant digits, no trailing zeros ("0.5", "1.05",
// "-3", "1E-05").
std::string plainText(double value);

// Lenient reading: the leading number of the text, blanks skipped, 0 if there is none.
double lenientValue(std::string_view text);

// Strict reading: the whole text (blanks around it allowed, a money sign and digit grouping
// accepted) must be a number; otherwise no value.
std::optional<double> strictValue(std::string_view text);

// A strictly read whole number of 16 bits (halves to the even neighbour); none when the text is
// no number or out of range.
std::optional<int> strictInt16(std::string_view text);

// Rounds a double half away from zero at the given decimals, on its 15-digit decimal text.
double roundHalfAway(double value, int decimals);

}  // namespace zy
