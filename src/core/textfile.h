#pragma once
// A comment's text going to and from a plain text file: read and written as 8-bit bytes, as the
// comment itself is held, with its lines ending in CR LF.
#include <cstddef>
#include <optional>
#include <string>

namespace zy {

class SettingsStore;

// The file's bytes, at most about `limit` of them (read in blocks of 4096); nothing when the file
// cannot be opened.
std::optional<std::string> readTextBytes(const std::string& path, size_t limit = std::string::npos);
// Every line end (CR LF, a lone CR, a lone LF) made CR LF; with `dropNuls` NUL bytes are left out.
std::string crlfText(const std::string& text, bool dropNuls = false);
// Writes `text` as it is; false when the file could not be written whole.
bool writeTextBytes(const std::string& path, const std::string& text);
// Keeps the folder of `path` as "File Path" in `section`, where the next file dialog opens.
void rememberTextFolder(SettingsStore& store, const std::string& section, const std::string& path);

}  // namespace zy
