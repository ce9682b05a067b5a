#include "core/textfile.h"

#include <cstdio>

#include "core/settings.h"

namespace zy {

std::optional<std::string> readTextBytes(const std::string& path, size_t limit) {
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f) return std::nullopt;
  std::string bytes;
  char buf[4096];
  size_t n;
  while (bytes.size() < limit && (n = std::fread(buf, 1, sizeof buf, f)) > 0) bytes.append(buf, n);
  std::fclose(f);
  return bytes;
}

std::string crlfText(const std::string& text, bool dropNuls) {
  std::string out;
  out.reserve(text.size() + text.size() / 20);
  for (size_t i = 0; i < text.size(); ++i) {
    const char ch = text[i];
    if (ch == '\r') {
      out += "\r\n";
      if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else if (ch == '\n') {
      out += "\r\n";
    } else if (ch != '\0' || !dropNuls) {
      out += ch;
    }
  }
  return out;
}

bool writeTextBytes(const std::string& path, const std::string& text) {
  std::FILE* f = std::fopen(path.c_str(), "wb");
  bool ok = f && std::fwrite(text.data(), 1, text.size(), f) == text.size();
  if (f && std::fclose(f) != 0) ok = false;
  return ok;
}

void rememberTextFolder(SettingsStore& store, const std::string& section, const std::string& path) {
  const size_t cut = path.find_last_of("/\\");
  store.write(section, "File Path", cut == std::string::npos ? std::string() : path.substr(0, cut));
}

}  // namespace zy
