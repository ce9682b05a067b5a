#include "reference/ReferenceFiles.h"

#include <cerrno>
#include <cstring>

namespace zy {

namespace {
const char* const kCrLf = "\r\n";

[[noreturn]] void pastEnd() { throw ReferenceReadError{62, "Input past end of file"}; }
[[noreturn]] void notANumber() { throw ReferenceReadError{13, "Type mismatch"}; }

void appendCounted(std::string& out, const std::string& text, int width) {
  out += fixedDigits(static_cast<long>(text.size()), width);
  out += text;
}
}  // namespace

std::string fixedDigits(long value, int width) {
  if (value < 0) value = 0;
  std::string s = std::to_string(value);
  if (static_cast<int>(s.size()) < width) s.insert(0, static_cast<size_t>(width) - s.size(), '0');
  return s;
}

std::string topicStoreHeader() { return std::string("Zythara 2 Reference Topics") + kCrLf; }

std::string encodeTopicRecord(const TopicRecord& t) {
  std::string out;
  appendCounted(out, t.title, 2);
  out += fixedDigits(static_cast<long>(t.body.size()), 5);
  out += fixedDigits(static_cast<long>(t.images.size()), 2);
  out += t.body;
  for (const TopicImage& img : t.images) {
    appendCounted(out, img.file, 2);
    appendCounted(out, img.caption, 2);
  }
  out += fixedDigits(static_cast<long>(t.alsoSee.size()), 2);
  for (const std::string& a : t.alsoSee) appendCounted(out, a, 2);
  return out;
}

std::string encodeTocFile(const std::vector<TocEntry>& entries) {
  std::string out = "011ZTOC0200";
  for (const TocEntry& e : entries) {
    out += fixedDigits(e.position, 8);
    appendCounted(out, e.indexTitle, 2);
  }
  return out;
}

std::string encodeMiniBookFile(const std::vector<MiniBookRecord>& books) {
  std::string out = "011ZYMB0200";
  out += fixedDigits(static_cast<long>(books.size()), 3);
  for (const MiniBookRecord& b : books) {
    out += fixedDigits(static_cast<long>(b.chapters.size()), 2);
    appendCounted(out, b.name, 2);
    appendCounted(out, b.description, 3);
    for (const ChapterEntry& c : b.chapters) {
      out += fixedDigits(c.position, 8);
      appendCounted(out, c.title, 2);
    }
  }
  return out;
}

// --- ReferenceReader ---

ReferenceReader::~ReferenceReader() { close(); }

void ReferenceReader::open(const std::string& path) {
  close();
  path_ = path;
  f_ = std::fopen(path.c_str(), "rb");
  if (!f_) {
    int err = errno;
    if (err == ENOENT || err == ENOTDIR) throw ReferenceReadError{53, "File not found"};
    if (err == EACCES || err == EPERM) throw ReferenceReadError{70, "Permission denied"};
    throw ReferenceReadError{53, std::strerror(err)};
  }
}

void ReferenceReader::close() {
  if (f_) std::fclose(f_);
  f_ = nullptr;
}

void ReferenceReader::seek(long position) {
  if (!f_) throw ReferenceReadError{52, "Bad file name or number"};
  if (position < 0) throw ReferenceReadError{63, "Bad record number"};
  if (std::fseek(f_, position, SEEK_SET) != 0) pastEnd();
}

long ReferenceReader::tell() const { return f_ ? std::ftell(f_) : 0; }

bool ReferenceReader::atEnd() {
  if (!f_) return true;
  int c = std::fgetc(f_);
  if (c == EOF) return true;
  std::ungetc(c, f_);
  return false;
}

long ReferenceReader::readNumber(int width) {
  std::string digits = readText(width);
  long v = 0;
  for (char ch : digits) {
    if (ch < '0' || ch > '9') notANumber();
    v = v * 10 + (ch - '0');
  }
  return v;
}

std::string ReferenceReader::readText(long n) {
  if (!f_) throw ReferenceReadError{52, "Bad file name or number"};
  if (n <= 0) return {};
  std::string s(static_cast<size_t>(n), '\0');
  size_t got = std::fread(s.data(), 1, s.size(), f_);
  if (got != s.size()) pastEnd();
  return s;
}

// --- whole-file readers ---

TopicRecord readTopicAt(ReferenceReader& store, long position) {
  TopicRecord t;
  store.seek(position);
  t.title = store.readText(store.readNumber(2));
  long bodyLength = store.readNumber(5);
  long images = store.readNumber(2);
  t.body = store.readText(bodyLength);
  for (long i = 0; i < images; ++i) {
    TopicImage img;
    img.file = store.readText(store.readNumber(2));
    img.caption = store.readText(store.readNumber(2));
    t.images.push_back(img);
  }
  long also = store.readNumber(2);
  for (long i = 0; i < also; ++i) t.alsoSee.push_back(store.readText(store.readNumber(2)));
  return t;
}

std::vector<TocEntry> readTocFile(const std::string& path) {
  ReferenceReader r;
  r.open(path);
  long header = r.readNumber(3);
  r.readText(4);
  r.readText(4);
  r.seek(header);
  std::vector<TocEntry> out;
  while (!r.atEnd()) {
    TocEntry e;
    e.position = r.readNumber(8);
    e.indexTitle = r.readText(r.readNumber(2));
    out.push_back(e);
  }
  return out;
}

std::vector<MiniBookRecord> readMiniBookFile(const std::string& path) {
  ReferenceReader r;
  r.open(path);
  long header = r.readNumber(3);
  r.seek(header);
  long count = r.readNumber(3);
  std::vector<MiniBookRecord> out;
  for (long b = 0; b < count; ++b) {
    MiniBookRecord book;
    long chapters = r.readNumber(2);
    book.name = r.readText(r.readNumber(2));
    book.description = r.readText(r.readNumber(3));
    for (long c = 0; c < chapters; ++c) {
      ChapterEntry e;
      e.position = r.readNumber(8);
      e.title = r.readText(r.readNumber(2));
      book.chapters.push_back(e);
    }
    out.push_back(book);
  }
  return out;
}

}  // namespace zy
