#include "core/settings.h"

#include <cstdio>
#include <filesystem>

#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

FileSettingsStore::FileSettingsStore(std::string path) : path_(std::move(path)) { load(); }

void FileSettingsStore::load() {
  std::FILE* f = std::fopen(path_.c_str(), "rb");
  if (!f) return;
  std::string all;
  char buf[8192];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) all.append(buf, n);
  std::fclose(f);
  std::string section;
  for (std::string lineText : split(all, '\n')) {
    if (!lineText.empty() && lineText.back() == '\r') lineText.pop_back();
    if (lineText.empty() || lineText[0] == ';' || lineText[0] == '#') continue;
    if (lineText[0] == '[') {
      size_t e = lineText.find(']');
      section = lineText.substr(1, e == std::string::npos ? std::string::npos : e - 1);
      continue;
    }
    size_t eq = lineText.find('=');
    if (eq == std::string::npos || section.empty()) continue;
    std::string key = lineText.substr(0, eq);
    std::string value = lineText.substr(eq + 1);
    // Line breaks inside a value are kept escaped.
    value = replaceAll(replaceAll(replaceAll(value, "\\n", "\n"), "\\r", "\r"), "\\\\", "\\");
    bool stored = false;
    for (auto& [sec, keys] : data_) {
      if (!iequals(sec, section)) continue;
      keys.emplace_back(key, value);
      stored = true;
      break;
    }
    if (!stored) data_.push_back({section, {{key, value}}});
  }
}

std::string FileSettingsStore::read(const std::string& section, const std::string& key,
                                    const std::string& fallback) const {
  for (const auto& [sec, keys] : data_) {
    if (!iequals(sec, section)) continue;
    for (auto it = keys.rbegin(); it != keys.rend(); ++it)
      if (iequals(it->first, key)) return it->second;
  }
  return fallback;
}

void FileSettingsStore::write(const std::string& section, const std::string& key, const std::string& value) {
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
  std::FILE* f = std::fopen(tmp.c_str(), "wb");
  if (!f) return;  // an unwritable settings file loses only preferences
  bool ok = true;
  for (const auto& [sec, keys] : data_) {
    ok = ok && std::fprintf(f, "[%s]\n", sec.c_str()) > 0;
    for (const auto& [k, v] : keys) {
      std::string esc = replaceAll(replaceAll(replaceAll(v, "\\", "\\\\"), "\n", "\\n"), "\r", "\\r");
      ok = ok && std::fprintf(f, "%s=%s\n", k.c_str(), esc.c_str()) >= 0;
    }
    ok = ok && std::fprintf(f, "\n") > 0;
  }
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
  return v ? static_cast<long>(*v) : fallback;
}

double readDouble(const SettingsStore& s, const std::string& section, const std::string& key, double fallback) {
  auto v = strictValue(s.read(section, key, ""));
  return v ? *v : fallback;
}

}  // namespace zy
