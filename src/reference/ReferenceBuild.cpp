#include "reference/ReferenceBuild.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "core/paths.h"
#include "core/text.h"

namespace fs = std::filesystem;

namespace zy {

namespace {

std::string utf8(const std::string& text8bit) { return cp1252ToUtf8(text8bit); }

// Converts UTF-8 source text to 8-bit; a character with no 8-bit form is an error.
std::string to8bit(const std::string& sourceFile, const std::string& what, const std::string& text,
                   BuildReport& report) {
  std::string out = utf8ToCp1252(text);
  if (std::count(out.begin(), out.end(), '?') != std::count(text.begin(), text.end(), '?'))
    report.errors.push_back(sourceFile + ": the " + what +
                            " holds a character that the reference files cannot store (Windows-1252 only)");
  return out;
}

struct Parsed {
  std::vector<std::pair<std::string, std::string>> fields;  // key (lower case), value (UTF-8)
  std::string body;                                        // UTF-8, LF line ends
  bool hasSeparator = false;
};

Parsed splitSource(const std::string& text) {
  Parsed p;
  std::string t = replaceAll(text, "\r\n", "\n");
  if (startsWith(t, "\xEF\xBB\xBF")) t.erase(0, 3);
  std::vector<std::string> lines = split(t, '\n');
  size_t i = 0;
  for (; i < lines.size(); ++i) {
    std::string line = trimWhite(lines[i]);
    if (line == "---") {
      p.hasSeparator = true;
      ++i;
      break;
    }
    if (line.empty() || line[0] == '#') continue;
    size_t colon = line.find(':');
    if (colon == std::string::npos) {
      p.fields.emplace_back("", line);
      continue;
    }
    p.fields.emplace_back(lower(trimWhite(line.substr(0, colon))), trimWhite(line.substr(colon + 1)));
  }
  // The body: the rest, without leading and trailing empty lines.
  size_t first = i, last = lines.size();
  while (first < last && trimWhite(lines[first]).empty()) ++first;
  while (last > first && trimWhite(lines[last - 1]).empty()) --last;
  for (size_t k = first; k < last; ++k) {
    if (k > first) p.body += "\n";
    p.body += lines[k];
  }
  return p;
}

std::string crlf(const std::string& lf) { return replaceAll(lf, "\n", "\r\n"); }

std::pair<std::string, std::string> splitBar(const std::string& value) {
  size_t bar = value.find('|');
  if (bar == std::string::npos) return {trimWhite(value), {}};
  return {trimWhite(value.substr(0, bar)), trimWhite(value.substr(bar + 1))};
}

int readOrder(const std::string& sourceFile, const std::string& value, BuildReport& report) {
  std::string v = trimWhite(value);
  bool ok = !v.empty() && v.size() < 9 &&
            std::all_of(v.begin() + (v[0] == '-' ? 1 : 0), v.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (!ok) {
    report.errors.push_back(sourceFile + ": the order \"" + value + "\" is not a whole number");
    return 1000;
  }
  return std::stoi(v);
}

void checkLength(const std::string& sourceFile, const std::string& what, const std::string& text, size_t limit,
                 BuildReport& report) {
  if (text.size() > limit)
    report.errors.push_back(sourceFile + ": the " + what + " is " + std::to_string(text.size()) +
                            " characters long; at most " + std::to_string(limit) + " fit in the reference files");
}

bool writeWhole(const std::string& path, const std::string& bytes) {
  std::ofstream f(path, std::ios::binary | std::ios::trunc);
  if (!f) return false;
  f.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return static_cast<bool>(f);
}

// The first of the folders that holds the picture; empty when none does.
fs::path findPicture(const std::vector<std::string>& dirs, const std::string& file) {
  std::error_code ec;
  for (const std::string& d : dirs)
    if (fs::is_regular_file(fs::path(d) / file, ec)) return fs::path(d) / file;
  return {};
}

std::string inFolders(const std::vector<std::string>& dirs) {
  std::string s;
  for (const std::string& d : dirs) s += (s.empty() ? "" : " or ") + d;
  return s;
}

std::string readWhole(const std::string& path) {
  std::ifstream f(path, std::ios::binary);
  std::stringstream ss;
  ss << f.rdbuf();
  return ss.str();
}

}  // namespace

TopicSource parseTopicSource(const std::string& sourceFile, const std::string& text, BuildReport& report) {
  TopicSource t;
  t.sourceFile = sourceFile;
  Parsed p = splitSource(text);
  if (!p.hasSeparator)
    report.errors.push_back(sourceFile + ": no line \"---\" between the header and the body");
  for (const auto& [key, value] : p.fields) {
    if (key == "title") {
      t.title = to8bit(sourceFile, "title", value, report);
    } else if (key == "index") {
      t.indexTitle = to8bit(sourceFile, "index title", value, report);
    } else if (key == "order") {
      t.order = readOrder(sourceFile, value, report);
    } else if (key == "image") {
      auto [file, caption] = splitBar(value);
      t.images.push_back({to8bit(sourceFile, "picture name", file, report),
                          to8bit(sourceFile, "picture caption", caption, report)});
    } else if (key == "also see") {
      t.alsoSee.push_back(to8bit(sourceFile, "also-see title", value, report));
    } else {
      report.errors.push_back(sourceFile + ": unknown header line \"" + (key.empty() ? value : key) + "\"");
    }
  }
  if (t.indexTitle.empty()) t.indexTitle = t.title;
  t.body = to8bit(sourceFile, "body", crlf(p.body), report);
  return t;
}

BookSource parseBookSource(const std::string& sourceFile, const std::string& text, BuildReport& report) {
  BookSource b;
  b.sourceFile = sourceFile;
  Parsed p = splitSource(text);
  if (!p.hasSeparator)
    report.errors.push_back(sourceFile + ": no line \"---\" between the header and the description");
  for (const auto& [key, value] : p.fields) {
    if (key == "book") {
      b.name = to8bit(sourceFile, "book name", value, report);
    } else if (key == "order") {
      b.order = readOrder(sourceFile, value, report);
    } else if (key == "chapter") {
      auto [shown, topic] = splitBar(value);
      ChapterSource c;
      c.title = to8bit(sourceFile, "chapter title", shown, report);
      c.topic = topic.empty() ? c.title : to8bit(sourceFile, "chapter topic", topic, report);
      b.chapters.push_back(c);
    } else {
      report.errors.push_back(sourceFile + ": unknown header line \"" + (key.empty() ? value : key) + "\"");
    }
  }
  b.description = to8bit(sourceFile, "description", crlf(p.body), report);
  return b;
}

BuildReport buildReference(std::vector<TopicSource> topics, std::vector<BookSource> books, const std::string& outDir,
                           const std::vector<std::string>& imageDirs, BuildChecks checks) {
  BuildReport report;
  const bool strict = checks == BuildChecks::Strict;
  std::vector<std::string>& brokenLinks = strict ? report.errors : report.warnings;

  // Topics: each field within its fixed width.
  std::map<std::string, const TopicSource*> byIndex;
  for (const TopicSource& t : topics) {
    const std::string& f = t.sourceFile;
    if (trim(t.title).empty()) report.errors.push_back(f + ": the topic has no title");
    checkLength(f, "title", t.title, kMaxTitleLength, report);
    checkLength(f, "index title", t.indexTitle, kMaxTitleLength, report);
    checkLength(f, "body", t.body, kMaxBodyLength, report);
    if (t.images.size() > kMaxTopicImages)
      report.errors.push_back(f + ": " + std::to_string(t.images.size()) + " pictures; a topic holds at most " +
                              std::to_string(kMaxTopicImages));
    for (const TopicImage& img : t.images) {
      if (img.file.empty()) report.errors.push_back(f + ": a picture line names no file");
      if (img.file.find_first_of("/\\") != std::string::npos)
        report.errors.push_back(f + ": the picture \"" + utf8(img.file) +
                                "\" must be a plain file name in the Reference folder");
      checkLength(f, "picture name \"" + utf8(img.file) + "\"", img.file, kMaxTitleLength, report);
      checkLength(f, "caption of \"" + utf8(img.file) + "\"", img.caption, kMaxTitleLength, report);
    }
    if (t.alsoSee.size() > kMaxAlsoSee)
      report.errors.push_back(f + ": " + std::to_string(t.alsoSee.size()) + " also-see entries; at most " +
                              std::to_string(kMaxAlsoSee) + " fit in the reference files");
    for (const std::string& a : t.alsoSee) {
      if (a.empty()) report.errors.push_back(f + ": an also-see line names no topic");
      checkLength(f, "also-see title \"" + utf8(a) + "\"", a, kMaxTitleLength, report);
    }
    if (strict && t.title != t.indexTitle)
      report.errors.push_back(f + ": the title \"" + utf8(t.title) + "\" differs from its index title \"" +
                              utf8(t.indexTitle) + "\"");
    auto [it, fresh] = byIndex.emplace(lower(t.indexTitle), &t);
    if (!fresh)
      report.errors.push_back(f + ": the index title \"" + utf8(t.indexTitle) + "\" is taken already by " +
                              it->second->sourceFile);
  }

  // Also-see titles are matched against the index titles, as the browser does.
  for (const TopicSource& t : topics)
    for (const std::string& a : t.alsoSee)
      if (!a.empty() && !byIndex.count(lower(a)))
        brokenLinks.push_back(t.sourceFile + ": the also-see title \"" + utf8(a) + "\" matches no topic");

  // A picture that is not there would show as a broken image.
  std::error_code ec;
  if (strict && !imageDirs.empty())
    for (const TopicSource& t : topics)
      for (const TopicImage& img : t.images)
        if (!img.file.empty() && findPicture(imageDirs, img.file).empty())
          report.errors.push_back(t.sourceFile + ": the picture \"" + utf8(img.file) + "\" is not in " +
                                  inFolders(imageDirs));

  // Books.
  if (books.size() > kMaxBooks)
    report.errors.push_back("there are " + std::to_string(books.size()) + " mini-books; at most " +
                            std::to_string(kMaxBooks) + " fit in the reference files");
  auto findTopicFor = [&](const std::string& name) -> const TopicSource* {
    auto it = byIndex.find(lower(name));
    if (it != byIndex.end()) return it->second;
    for (const TopicSource& t : topics)
      if (lower(t.title) == lower(name)) return &t;
    return nullptr;
  };
  for (const BookSource& b : books) {
    const std::string& f = b.sourceFile;
    if (trim(b.name).empty()) report.errors.push_back(f + ": the mini-book has no name");
    checkLength(f, "book name", b.name, kMaxTitleLength, report);
    checkLength(f, "description", b.description, kMaxDescriptionLength, report);
    if (b.chapters.size() > kMaxChapters)
      report.errors.push_back(f + ": " + std::to_string(b.chapters.size()) + " chapters; at most " +
                              std::to_string(kMaxChapters) + " fit in the reference files");
    if (b.chapters.empty()) report.warnings.push_back(f + ": the mini-book has no chapters");
    for (const ChapterSource& c : b.chapters) {
      checkLength(f, "chapter title \"" + utf8(c.title) + "\"", c.title, kMaxTitleLength, report);
      if (!findTopicFor(c.topic))
        report.errors.push_back(f + ": the chapter \"" + utf8(c.title) + "\" points at \"" + utf8(c.topic) +
                                "\", which is no topic");
    }
  }
  if (!report.ok()) return report;

  // The order of the topic list and of the books.
  std::stable_sort(topics.begin(), topics.end(), [](const TopicSource& a, const TopicSource& b) {
    if (a.order != b.order) return a.order < b.order;
    return lower(a.indexTitle) < lower(b.indexTitle);
  });
  std::stable_sort(books.begin(), books.end(), [](const BookSource& a, const BookSource& b) {
    if (a.order != b.order) return a.order < b.order;
    return lower(a.name) < lower(b.name);
  });

  std::string store = topicStoreHeader();
  std::vector<TocEntry> toc;
  std::map<std::string, long> positionByIndex, positionByTitle;
  for (const TopicSource& t : topics) {
    long position = static_cast<long>(store.size());
    if (position > kMaxTopicPosition) {
      report.errors.push_back(t.sourceFile + ": the topic store grows past the 8-digit positions");
      return report;
    }
    TopicRecord r{t.title, t.body, t.images, t.alsoSee};
    store += encodeTopicRecord(r);
    toc.push_back({position, t.indexTitle});
    positionByIndex.emplace(lower(t.indexTitle), position);
    positionByTitle.emplace(lower(t.title), position);
  }
  std::vector<MiniBookRecord> mb;
  for (const BookSource& b : books) {
    MiniBookRecord r{b.name, b.description, {}};
    for (const ChapterSource& c : b.chapters) {
      auto it = positionByIndex.find(lower(c.topic));
      long position = it != positionByIndex.end() ? it->second : positionByTitle.at(lower(c.topic));
      r.chapters.push_back({position, c.title});
    }
    mb.push_back(std::move(r));
  }

  fs::create_directories(outDir, ec);
  const std::string zyth = (fs::path(outDir) / kZythEnc).string();
  const std::string tocPath = (fs::path(outDir) / kZythTocEnc).string();
  const std::string mbPath = (fs::path(outDir) / kZythMbEnc).string();
  if (!writeWhole(zyth, store) || !writeWhole(tocPath, encodeTocFile(toc)) ||
      !writeWhole(mbPath, encodeMiniBookFile(mb))) {
    report.errors.push_back(outDir + ": the reference files could not be written");
    return report;
  }

  // Pictures go beside the files.
  std::set<std::string> copied;
  for (const TopicSource& t : topics) {
    for (const TopicImage& img : t.images) {
      if (imageDirs.empty() || !copied.insert(img.file).second) continue;
      fs::path from = findPicture(imageDirs, img.file);
      if (from.empty()) {
        report.warnings.push_back(t.sourceFile + ": the picture \"" + utf8(img.file) + "\" is not in " +
                                  inFolders(imageDirs));
        continue;
      }
      fs::copy_file(from, fs::path(outDir) / img.file, fs::copy_options::overwrite_existing, ec);
      if (ec) report.errors.push_back(t.sourceFile + ": the picture \"" + utf8(img.file) + "\" could not be copied");
      else ++report.imageCount;
    }
  }

  // Read back what was written, as the browser will.
  try {
    std::vector<TocEntry> back = readTocFile(tocPath);
    ReferenceReader r;
    r.open(zyth);
    for (const TocEntry& e : back) readTopicAt(r, e.position);
    readMiniBookFile(mbPath);
    if (back.size() != toc.size()) report.errors.push_back(tocPath + ": read back with a different topic count");
  } catch (const ReferenceReadError& e) {
    report.errors.push_back(outDir + ": the written files do not read back (" + e.description + ")");
  }
  report.topicCount = static_cast<int>(topics.size());
  report.bookCount = static_cast<int>(books.size());
  return report;
}

BuildReport buildReferenceFromFolder(const std::string& sourceDir, const std::string& outDir,
                                     const std::vector<std::string>& pictureDirs) {
  BuildReport report;
  auto listTexts = [&](const std::string& sub) {
    std::vector<std::string> files;
    std::error_code ec;
    fs::path dir = fs::path(sourceDir) / sub;
    if (!fs::is_directory(dir, ec)) return files;
    for (const auto& e : fs::directory_iterator(dir, ec))
      if (e.is_regular_file() && e.path().extension() == ".txt") files.push_back(e.path().string());
    std::sort(files.begin(), files.end());
    return files;
  };
  std::vector<TopicSource> topics;
  std::vector<BookSource> books;
  for (const std::string& f : listTexts("topics")) topics.push_back(parseTopicSource(f, readWhole(f), report));
  for (const std::string& f : listTexts("books")) books.push_back(parseBookSource(f, readWhole(f), report));
  if (topics.empty()) report.errors.push_back(sourceDir + "/topics: no topic sources (*.txt)");
  if (!report.ok()) return report;
  std::vector<std::string> imageDirs{(fs::path(sourceDir) / "images").string()};
  imageDirs.insert(imageDirs.end(), pictureDirs.begin(), pictureDirs.end());
  BuildReport built = buildReference(std::move(topics), std::move(books), outDir, imageDirs, BuildChecks::Strict);
  built.warnings.insert(built.warnings.begin(), report.warnings.begin(), report.warnings.end());
  return built;
}

}  // namespace zy
