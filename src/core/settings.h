#pragma once
// The per-user settings store: (section, key) -> text, read with a fallback.
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zy {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::string read(const std::string& section, const std::string& key, const std::string& fallback) const = 0;
  virtual void write(const std::string& section, const std::string& key, const std::string& value) = 0;
};

// An INI-style text file, one "[Section]" head per section and "Key=Value" lines, kept in
// Windows-1252; line breaks and backslashes in a value are written as \n, \r and \\. Sections
// and keys are matched without regard to case. Reading forgives a hand-edited file: blanks around
// heads and keys, comment lines (";" or "#"), a byte order mark, and a key given twice (the last
// value counts). Each write rewrites the file (through a temporary file, so that a failed write
// never leaves half a file).
class FileSettingsStore : public SettingsStore {
 public:
  explicit FileSettingsStore(std::string path);
  std::string read(const std::string& section, const std::string& key, const std::string& fallback) const override;
  // A key that a later read would take for something else (a section head, a comment, a value) is
  // refused: write() then stores nothing. refusal() gives the reason, empty when the key can be kept.
  void write(const std::string& section, const std::string& key, const std::string& value) override;
  static std::string refusal(const std::string& section, const std::string& key);
  const std::string& path() const { return path_; }
  // Holds writes in memory until the matching end (the Apply of many keys at once).
  void beginBatch() { ++batch_; }
  void endBatch();

 private:
  void load();
  void save() const;
  std::string path_;
  // Sections and keys in the order first written.
  std::vector<std::pair<std::string, std::vector<std::pair<std::string, std::string>>>> data_;
  int batch_ = 0;
  bool dirty_ = false;
};

// A store in memory only, for tests.
class MemorySettingsStore : public SettingsStore {
 public:
  std::string read(const std::string& section, const std::string& key, const std::string& fallback) const override;
  void write(const std::string& section, const std::string& key, const std::string& value) override;
  int writeCount = 0;
  std::map<std::pair<std::string, std::string>, std::string> values;
};

// Typed reading helpers: a missing or unreadable number gives the fallback.
long readLong(const SettingsStore& s, const std::string& section, const std::string& key, long fallback);
double readDouble(const SettingsStore& s, const std::string& section, const std::string& key, double fallback);

}  // namespace zy
