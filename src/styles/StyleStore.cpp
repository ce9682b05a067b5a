#include "styles/StyleStore.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "core/records.h"
#include "core/text.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {

constexpr const char* kLoaderName = "LoadBeerStyles";
constexpr const char* kSaverName = "saveBeerStyles";
// Loaded files stop at these counts; the row past them is the one the limit report names.
constexpr int kCategoryLimit = kCategoryTableRows - 1;  // 50
constexpr int kStyleLimit = kStyleTableRows - 1;        // 250

// The most a table can take from its file: 51 category records; 251 style records each with the
// longest comment block. Nothing past that is ever looked at, so a huge file is not read whole.
constexpr size_t kCategoryReadLimit = kCategoryTableRows * kCategoryRecordLength;
constexpr size_t kStyleReadLimit = kStyleTableRows * (kStyleRecordLength + 2 + 32767);

// Opens a style file as the loader does (a missing file is created empty) and reads it, up to
// `limit` bytes.
std::string readStyleFile(const std::string& path, size_t limit) {
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f && errno == ENOENT) {
    f = std::fopen(path.c_str(), "w+b");
    if (!f) throw fileErrorFromErrno(errno, path);
    std::fclose(f);
    return {};
  }
  if (!f) throw fileErrorFromErrno(errno, path);
  std::string bytes;
  char buf[65536];
  size_t n;
  while (bytes.size() < limit && (n = std::fread(buf, 1, std::min(sizeof buf, limit - bytes.size()), f)) > 0)
    bytes.append(buf, n);
  const bool failed = std::ferror(f) != 0;
  const int err = errno;
  std::fclose(f);
  if (failed) throw fileErrorFromErrno(err, path);
  return bytes;
}

// The loader reads on into the row behind the limit report, and that row lies past the table's
// end: a failure the error routine does not know, which ends the program. The report is made
// here, before any such read, so nothing past the table is ever touched.
[[noreturn]] void tableOverrun(ErrorLog& errors, int row) {
  errors.reportError(ERR_SUBSCRIPT, row, kLoaderName, "", "Subscript out of range");
  throw Terminated(ERR_SUBSCRIPT);  // the routine ends the process; never gets here
}

void loadCategories(StyleTables& t, const std::string& path, ErrorLog& errors) {
  const std::string bytes = readStyleFile(path, kCategoryReadLimit);
  size_t pos = 0;
  while (pos + kCategoryRecordLength <= bytes.size()) {
    const int row = t.BeerCategoryCount;
    BeerCategoryRecord& r = t.BeerCategories[static_cast<size_t>(row)];
    r = unpackCategoryRecord(std::string_view(bytes).substr(pos, kCategoryRecordLength));
    pos += kCategoryRecordLength;
    // A row with bad codes is reported, yet counted and kept.
    if (r.controlStart != kControlStart || r.controlEnd != kControlEnd)
      errors.reportError(ERR_CATEGORY_CODE, 0, kLoaderName, path);
    r.categoryIndex = row;  // keys are row positions; the file's key is never trusted
    ++t.BeerCategoryCount;
    if (t.BeerCategoryCount > kCategoryLimit) {
      errors.reportError(ERR_MAX_CATEGORIES, 0, kLoaderName, path);
      tableOverrun(errors, t.BeerCategoryCount);
    }
  }
}

void loadStyles(StyleTables& t, const std::string& path, ErrorLog& errors) {
  const std::string bytes = readStyleFile(path, kStyleReadLimit);
  size_t pos = 0;
  while (pos + kStyleRecordLength <= bytes.size()) {
    const int row = t.BeerStyleCount;
    BeerStyleRecord& r = t.BeerStyles[static_cast<size_t>(row)];
    r = unpackStyleRecord(std::string_view(bytes).substr(pos, kStyleRecordLength));
    pos += kStyleRecordLength;
    if (r.controlStart != kControlStart || r.controlEnd != kControlEnd)
      errors.reportError(ERR_STYLE_CODE, 0, kLoaderName, path);
    // The comment block: a 16-bit count, then that many bytes; a count below 1 means none. A
    // block cut short by the end of the file gives what is there.
    if (pos + 2 <= bytes.size()) {
      const int n = getI16(bytes, pos);
      pos += 2;
      if (n >= 1) {
        const size_t take = std::min(static_cast<size_t>(n), bytes.size() - pos);
        r.comments = trim(std::string_view(bytes).substr(pos, take));
        pos += take;
      }
    } else {
      pos = bytes.size();
    }
    r.styleIndex = row;
    ++t.BeerStyleCount;
    if (t.BeerStyleCount > kStyleLimit) {
      // Too many styles are reported with the code of a corrupted style, as they always were.
      errors.reportError(ERR_STYLE_CODE, 0, kLoaderName, path);
      tableOverrun(errors, t.BeerStyleCount);
    }
  }
}

// Writes bytes to `path` whole; throws FileError (and leaves no file) on any failure.
void writeNewFile(const std::string& path, const std::string& bytes) {
  std::FILE* f = std::fopen(path.c_str(), "wb");
  if (!f) throw fileErrorFromErrno(errno, path);
  const bool wrote = std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
  int err = errno;
  const bool flushed = std::fflush(f) == 0;
  if (wrote && !flushed) err = errno;
  const bool closed = std::fclose(f) == 0;
  if (wrote && flushed && !closed) err = errno;
  if (!wrote || !flushed || !closed) {
    std::remove(path.c_str());
    throw fileErrorFromErrno(err ? err : EIO, path);
  }
}

}  // namespace

bool LoadBeerStyles(StyleTables& t, const ProgramFolder& folder, ErrorLog& errors) {
  t.BeerCategories.fill(BeerCategoryRecord{});
  t.BeerStyles.fill(BeerStyleRecord{});
  t.BeerCategoryCount = 0;
  t.BeerStyleCount = 0;
  // Each file is a step of its own: a categories file that cannot be read still lets the styles
  // load (their categories then read "<None>").
  bool loaded = true;
  try {
    loadCategories(t, folder.dataFile(kCategoryFile), errors);
  } catch (const FileError& e) {
    errors.reportFileError(e, 0, kLoaderName);
    loaded = false;
  }
  try {
    loadStyles(t, folder.dataFile(kStyleFile), errors);
  } catch (const FileError& e) {
    errors.reportFileError(e, 0, kLoaderName);
    loaded = false;
  }
  return loaded;
}

bool LoadBeerStyles(Workbench& wb) { return LoadBeerStyles(wb.styles, wb.folder, wb.errors); }

void writeStyleFiles(StyleTables& t, const std::string& categoryPath, const std::string& stylePath) {
  std::string cats;
  const int nc = std::clamp(t.BeerCategoryCount, 0, kCategoryTableRows);
  for (int i = 0; i < nc; ++i) {
    BeerCategoryRecord& r = t.BeerCategories[static_cast<size_t>(i)];
    r.category = trim(r.category);
    if (r.category.empty()) continue;  // a blank name is a row that is not written
    r.controlStart = kControlStart;
    r.controlEnd = kControlEnd;
    cats += packCategoryRecord(r);
  }
  std::string styles;
  const int ns = std::clamp(t.BeerStyleCount, 0, kStyleTableRows);
  for (int i = 0; i < ns; ++i) {
    BeerStyleRecord& r = t.BeerStyles[static_cast<size_t>(i)];
    r.styleName = trim(r.styleName);
    if (r.styleName.empty()) continue;  // a deleted style
    r.controlStart = kControlStart;
    r.controlEnd = kControlEnd;
    styles += packStyleRecord(r);
    styles += packStyleComment(trim(r.comments));
  }
  // Both files are written beside the old ones first; the old ones are replaced only when both
  // new ones are complete, so a failure never leaves the user without styles.
  const std::string catNew = categoryPath + ".new", styleNew = stylePath + ".new";
  writeNewFile(catNew, cats);
  try {
    writeNewFile(styleNew, styles);
  } catch (...) {
    std::remove(catNew.c_str());
    throw;
  }
  if (std::rename(catNew.c_str(), categoryPath.c_str()) != 0) {
    const int err = errno;
    std::remove(catNew.c_str());
    std::remove(styleNew.c_str());
    throw fileErrorFromErrno(err, categoryPath);
  }
  if (std::rename(styleNew.c_str(), stylePath.c_str()) != 0) {
    const int err = errno;
    std::remove(styleNew.c_str());
    throw fileErrorFromErrno(err, stylePath);
  }
}

bool saveBeerStyles(StyleTables& t, const ProgramFolder& folder, ErrorLog& errors) {
  try {
    writeStyleFiles(t, folder.dataFile(kCategoryFile), folder.dataFile(kStyleFile));
  } catch (const FileError& e) {
    errors.reportFileError(e, 0, kSaverName);
    return false;
  }
  return true;
}

bool saveBeerStyles(Workbench& wb) { return saveBeerStyles(wb.styles, wb.folder, wb.errors); }

StyleBrowserEntry styleBrowserEntry(const StyleTables& t, int row) {
  StyleBrowserEntry e;
  e.row = row;
  e.key = std::string(1, 'B');
  e.key += itos(row);
  if (row < 0 || row >= kStyleTableRows) return e;
  const BeerStyleRecord& s = t.BeerStyles[static_cast<size_t>(row)];
  e.categoryText = categoryLabel(t, s.categoryIndex, true);
  e.sourceName = styleSourceName(s.source);
  e.styleName = trim(s.styleName);
  return e;
}

}  // namespace zy
