#pragma once
// Text held as 8-bit (Windows-1252) bytes inside the logic; converted to Unicode only at the edges.
#include <string>
#include <string_view>
#include <vector>

namespace zy {

// trim, ltrim and rtrim remove blanks (spaces) only; trimWhite also tabs, line breaks and NULs.
std::string trim(std::string_view s);
std::string trimWhite(std::string_view s);
std::string ltrim(std::string_view s);
std::string rtrim(std::string_view s);
std::string lower(std::string_view s);   // ASCII and Latin-1 letters of Windows-1252
std::string upper(std::string_view s);
bool iequals(std::string_view a, std::string_view b);
// A key that sorts names as a reader expects: case-blind, and an accented letter beside its plain
// one (M\xE4rzen between Maibock and Munich, K\xF6lsch beside Kolsch).
std::string collationKey(std::string_view s);
bool startsWith(std::string_view s, std::string_view prefix);
std::string replaceAll(std::string s, std::string_view from, std::string_view to);
std::vector<std::string> split(std::string_view s, char sep);

// A fixed text field: cut to n bytes or padded with blanks to n bytes.
std::string fixedText(std::string_view s, size_t n);

// Windows-1252 <-> UTF-8. Characters with no Windows-1252 form become '?'.
std::string cp1252ToUtf8(std::string_view s);
std::string utf8ToCp1252(std::string_view s);
// Text as shown to the user (window or terminal): Windows-1252 converted to UTF-8, except a text
// that is already well-formed UTF-8 beyond ASCII, which is what file names from the system are.
std::string displayUtf8(std::string_view s);

// Integer to text, as the original's Str$/CStr without a leading blank.
std::string itos(long long v);

}  // namespace zy
