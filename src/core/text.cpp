#include "core/text.h"

#include <cstdint>

namespace zy {

namespace {
bool isBlank(char c) { return c == ' '; }
bool isWhite(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\0'; }

// Unicode code points of the bytes 0x80..0x9F in Windows-1252 (0 where the byte is undefined).
const char32_t kHigh[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void putUtf8(std::string& out, char32_t cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (cp >> 18));
    out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}
}  // namespace

std::string ltrim(std::string_view s) {
  size_t i = 0;
  while (i < s.size() && isBlank(s[i])) ++i;
  return std::string(s.substr(i));
}

std::string rtrim(std::string_view s) {
  size_t n = s.size();
  while (n > 0 && isBlank(s[n - 1])) --n;
  return std::string(s.substr(0, n));
}

std::string trim(std::string_view s) { return ltrim(rtrim(s)); }

std::string trimWhite(std::string_view s) {
  size_t b = 0, e = s.size();
  while (b < e && isWhite(s[b])) ++b;
  while (e > b && isWhite(s[e - 1])) --e;
  return std::string(s.substr(b, e - b));
}

std::string lower(std::string_view s) {
  std::string r(s);
  for (char& c : r) {
    auto u = static_cast<unsigned char>(c);
    if ((u >= 'A' && u <= 'Z') || (u >= 0xC0 && u <= 0xDE && u != 0xD7)) c = static_cast<char>(u + 32);
  }
  return r;
}

std::string upper(std::string_view s) {
  std::string r(s);
  for (char& c : r) {
    auto u = static_cast<unsigned char>(c);
    if ((u >= 'a' && u <= 'z') || (u >= 0xE0 && u <= 0xFE && u != 0xF7)) c = static_cast<char>(u - 32);
  }
  return r;
}

std::string collationKey(std::string_view s) {
  // Windows-1252 letters 0xC0..0xFF folded to their plain letters (lower case).
  static const char* const kFold[64] = {
      "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i", "i",
      "d", "n", "o", "o", "o", "o", "o", "\xD7", "o", "u", "u", "u", "u", "y", "th", "ss",
      "a", "a", "a", "a", "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i", "i",
      "d", "n", "o", "o", "o", "o", "o", "\xF7", "o", "u", "u", "u", "u", "y", "th", "y"};
  std::string k;
  k.reserve(s.size());
  for (char c : s) {
    auto u = static_cast<unsigned char>(c);
    if (u >= 0xC0) k += kFold[u - 0xC0];
    else if (u == 0x8A || u == 0x9A) k += 's';
    else if (u == 0x8E || u == 0x9E) k += 'z';
    else if (u == 0x8C || u == 0x9C) k += "oe";
    else if (u == 0x9F) k += 'y';
    else if (u >= 'A' && u <= 'Z') k += static_cast<char>(u + 32);
    else k += c;
  }
  return k;
}

bool iequals(std::string_view a, std::string_view b) { return a.size() == b.size() && lower(a) == lower(b); }

bool startsWith(std::string_view s, std::string_view prefix) { return s.substr(0, prefix.size()) == prefix; }

std::string replaceAll(std::string s, std::string_view from, std::string_view to) {
  if (from.empty()) return s;
  size_t pos = 0;
  while ((pos = s.find(from, pos)) != std::string::npos) {
    s.replace(pos, from.size(), to);
    pos += to.size();
  }
  return s;
}

std::vector<std::string> split(std::string_view s, char sep) {
  std::vector<std::string> out;
  size_t start = 0;
  for (;;) {
    size_t p = s.find(sep, start);
    if (p == std::string_view::npos) {
      out.emplace_back(s.substr(start));
      return out;
    }
    out.emplace_back(s.substr(start, p - start));
    start = p + 1;
  }
}

std::string fixedText(std::string_view s, size_t n) {
  std::string r(s.substr(0, n));
  r.resize(n, ' ');
  return r;
}

std::string cp1252ToUtf8(std::string_view s) {
  std::string out;
  out.reserve(s.size() + s.size() / 8);
  for (char ch : s) {
    auto u = static_cast<unsigned char>(ch);
    char32_t cp = u;
    if (u >= 0x80 && u < 0xA0) cp = kHigh[u - 0x80] ? kHigh[u - 0x80] : u;
    putUtf8(out, cp);
  }
  return out;
}

std::string utf8ToCp1252(std::string_view s) {
  std::string out;
  out.reserve(s.size());
  size_t i = 0;
  while (i < s.size()) {
    auto c = static_cast<unsigned char>(s[i]);
    char32_t cp;
    size_t len;
    if (c < 0x80) { cp = c; len = 1; }
    else if ((c >> 5) == 6) { cp = c & 0x1F; len = 2; }
    else if ((c >> 4) == 14) { cp = c & 0x0F; len = 3; }
    else if ((c >> 3) == 30) { cp = c & 0x07; len = 4; }
    else { out += '?'; ++i; continue; }  // a stray byte: not UTF-8
    if (i + len > s.size()) { out += '?'; break; }
    bool ok = true;
    for (size_t k = 1; k < len; ++k) {
      auto cc = static_cast<unsigned char>(s[i + k]);
      if ((cc >> 6) != 2) { ok = false; break; }
      cp = (cp << 6) | (cc & 0x3F);
    }
    if (!ok) { out += '?'; ++i; continue; }
    i += len;
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) { out += static_cast<char>(cp); continue; }
    char mapped = '?';
    for (int k = 0; k < 32; ++k)
      if (kHigh[k] == cp) { mapped = static_cast<char>(0x80 + k); break; }
    out += mapped;
  }
  return out;
}

namespace {
bool isMultibyteUtf8(std::string_view s) {
  bool multibyte = false;
  for (size_t i = 0; i < s.size();) {
    auto c = static_cast<unsigned char>(s[i]);
    size_t len = c < 0x80 ? 1 : (c >> 5) == 6 ? 2 : (c >> 4) == 14 ? 3 : (c >> 3) == 30 ? 4 : 0;
    if (len == 0 || i + len > s.size() || (len == 2 && c < 0xC2)) return false;
    for (size_t k = 1; k < len; ++k)
      if ((static_cast<unsigned char>(s[i + k]) >> 6) != 2) return false;
    multibyte = multibyte || len > 1;
    i += len;
  }
  return multibyte;
}
}  // namespace

std::string displayUtf8(std::string_view s) { return isMultibyteUtf8(s) ? std::string(s) : cp1252ToUtf8(s); }

std::string itos(long long v) { return std::to_string(v); }

}  // namespace zy
