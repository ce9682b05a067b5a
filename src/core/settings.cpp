#include "core/settings.h"

#include <cstdio>
#include <filesystem>

#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

FileSettingsStore::FileSettingsStore(std::string path) : path_(std::move(path)) { load(); }

namespace {
const std::string kWhite(" \t\r\n\0", 5);

// In the file a value keeps its line breaks and backslashes escaped, as \n, \r and \\.
std::string escapeValue(const std::string& v) {
  std::string out;
  out.reserve(v.size());
  for (char c : v) {
    if (c == '\\') out += "\\\\";
    else if (c == '\n') out += "\\n";
    else if (c == '\r') out += "\\r";
    else out += c;
  }
  return out;
}

std::string unescapeValue(const std::string& v) {
  std::string out;
  out.reserve(v.size());
  for (size_t i = 0; i < v.size(); ++i) {
    if (v[i] == '\\' && i + 1 < v.size()) {
      char n = v[i + 1];
      if (n == 'n' || n == 'r' || n == '\\') {
        out += n == 'n' ? '\n' : n == 'r' ? '\r' : '\\';
        ++i;
        continue;
      }
    }
    out += v[i];
  }
  return out;
}
}  // namespace

void FileSettingsStore::load() {
  std::FILE* f = std::fopen(path_.c_str(), "rb");
  if (!f) return;
  std::string all;
  char buf[8192];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) all.append(buf, n);
  std::fclose(f);
  // A file saved by a text editor may start with a UTF-8 byte order mark.
  if (startsWith(all, "\xEF\xBB\xBF")) all.erase(0, 3);
  std::string section;
  for (std::string lineText : split(all, '\n')) {
    if (!lineText.empty() && lineText.back() == '\r') lineText.pop_back();
    // The line start skips the same white space as the trimming of a key does (blanks, tabs,
    // stray carriage returns and zero bytes), so that a "[" behind such a byte is still a head.
    size_t first = lineText.find_first_not_of(kWhite);
    if (first == std::string::npos || lineText[first] == ';' || lineText[first] == '#') continue;
    if (lineText[first] == '[') {
      size_t e = lineText.find(']', first);
      section = trim(lineText.substr(first + 1, e == std::string::npos ? std::string::npos : e - first - 1));
      continue;
    }
    size_t eq = lineText.find('=');
    if (eq == std::string::npos || section.empty()) continue;
    std::string key = trimWhite(lineText.substr(0, eq));
    if (key.empty()) continue;
    std::string value = unescapeValue(lineText.substr(eq + 1));
    // A key given twice (a hand-edited file) counts once, with its last value.
    auto sec = data_.begin();
    while (sec != data_.end() && !iequals(sec->first, section)) ++sec;
    if (sec == data_.end()) {
      data_.push_back({section, {}});
      sec = data_.end() - 1;
    }
    auto kv = sec->second.begin();
    while (kv != sec->second.end() && !iequals(kv->first, key)) ++kv;
    if (kv == sec->second.end()) sec->second.emplace_back(key, value);
    else kv->second = value;
  }
}

std::string FileSettingsStore::read(const std::string& section, const std::string& key,
                                    const std::string& fallback) const {
  for (const auto& [sec, keys] : data_) {
    if (!iequals(sec, section)) continue;
    for (const auto& kv : keys)
      if (iequals(kv.first, key)) return kv.second;
  }
  return fallback;
}

std::string FileSettingsStore::refusal(const std::string& section, const std::string& key) {
  const std::string where = "\"" + key + "\" of section \"" + section + "\"";
  if (trim(section).empty() || trim(section) != section || section.find_first_of("]\n") != std::string::npos)
    return "The section name \"" + section +
           "\" cannot be kept in the settings file: it must not be empty, begin or end with a blank, nor hold "
           "\"]\" or a line break.";
  const std::string k = trimWhite(key);
  if (k.empty() || k != key) return "The key " + where + " cannot be kept in the settings file: a key must not be empty "
                                     "nor begin or end with blanks, tabs, line breaks or zero bytes.";
  if (k[0] == '[' || k[0] == ';' || k[0] == '#')
    return "The key " + where + " cannot be kept in the settings file: a key beginning with \"" + k.substr(0, 1) +
           "\" would be read back as a section head or a comment.";
  if (k.find_first_of("=\n") != std::string::npos)
    return "The key " + where + " cannot be kept in the settings file: a key must not hold \"=\" or a line break.";
  return {};
}

void FileSettingsStore::write(const std::string& section, const std::string& key, const std::string& value) {
  // A key the file cannot hold would change its meaning on the next read: it is not written.
  if (!refusal(section, key).empty()) return;
  bool done = false;
  for (auto& [sec, keys] : data_) {
    if (!iequals(sec, section)) continue;
    for (auto& kv : keys)
      if (iequals(kv.first, key)) { kv.second = value; done = true; break; }
    if (!done) keys.emplace_back(key, value);
    done = true;
    break;
  }
  if (!done) data_.push_back({section, {{key, value}}});
  dirty_ = true;
  if (batch_ == 0) save();
}

void FileSettingsStore::endBatch() {
  if (batch_ > 0 && --batch_ == 0 && dirty_) save();
}

void FileSettingsStore::save() const {
  namespace fs = std::filesystem;
  std::error_code ec;
  fs::path p(path_);
  if (p.has_parent_path()) fs::create_directories(p.parent_path(), ec);
  std::string tmp = path_ + ".new";
  std::string text;
  for (const auto& [sec, keys] : data_) {
    text += "[" + sec + "]\n";
    for (const auto& [k, v] : keys)
      if (refusal(sec, k).empty()) text += k + "=" + escapeValue(v) + "\n";
    text += "\n";
  }
  std::FILE* f = std::fopen(tmp.c_str(), "wb");
  if (!f) return;  // an unwritable settings file loses only preferences
  bool ok = std::fwrite(text.data(), 1, text.size(), f) == text.size();
  ok = (std::fclose(f) == 0) && ok;
  if (ok) fs::rename(tmp, path_, ec);
  else fs::remove(tmp, ec);
}

std::string MemorySettingsStore::read(const std::string& section, const std::string& key,
                                      const std::string& fallback) const {
  auto it = values.find({lower(section), lower(key)});
  return it == values.end() ? fallback : it->second;
}

void MemorySettingsStore::write(const std::string& section, const std::string& key, const std::string& value) {
  ++writeCount;
  values[{lower(section), lower(key)}] = value;
}

long readLong(const SettingsStore& s, const std::string& section, const std::string& key, long fallback) {
  auto v = strictValue(s.read(section, key, ""));
  // A hand-edited number too big for a window position is no position at all.
  if (!v || *v < -2147483648.0 || *v > 2147483647.0) return fallback;
  return static_cast<long>(*v);
}

double readDouble(const SettingsStore& s, const std::string& section, const std::string& key, double fallback) {
  auto v = strictValue(s.read(section, key, ""));
  return v ? *v : fallback;
}

}  // namespace zy
