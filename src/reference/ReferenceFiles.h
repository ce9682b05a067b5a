#pragma once
// The three reference files of the encyclopedia, read as streams of 8-bit characters in which
// every number is a run of decimal digits of fixed width:
//   Zyth.enc     the topic store, one record a topic, fetched by its byte position;
//   ZythTOC.enc  the table of contents: byte position and index title of each topic;
//   ZythMB.enc   the mini-books: name, description and chapters (positions into Zyth.enc).
// This header holds the record types, the encoders used by the reference builder and the
// low-level reader used by the browser.
#include <cstdio>
#include <string>
#include <vector>

namespace zy {

// Limits that the fixed widths of the formats impose.
constexpr size_t kMaxTitleLength = 99;         // 2 digits
constexpr size_t kMaxBodyLength = 99999;       // 5 digits
constexpr size_t kMaxTopicImages = 2;          // the browser holds two pictures a topic
constexpr size_t kMaxAlsoSee = 99;             // 2 digits
constexpr size_t kMaxDescriptionLength = 999;  // 3 digits
constexpr size_t kMaxChapters = 99;            // 2 digits
constexpr size_t kMaxBooks = 999;              // 3 digits
constexpr long kMaxTopicPosition = 99999999;   // 8 digits

struct TopicImage {
  std::string file;     // picture file in the Reference folder
  std::string caption;  // text under the picture
};

// One topic of Zyth.enc.
struct TopicRecord {
  std::string title;
  std::string body;  // HTML fragment
  std::vector<TopicImage> images;
  std::vector<std::string> alsoSee;  // titles of related topics
};

struct TocEntry {
  long position = 0;  // byte position in Zyth.enc, counting from 0
  std::string indexTitle;
};

struct ChapterEntry {
  long position = 0;  // byte position of the topic in Zyth.enc, counting from 0
  std::string title;
};

struct MiniBookRecord {
  std::string name;
  std::string description;  // HTML shown when the book is selected
  std::vector<ChapterEntry> chapters;
};

// A decimal number of a fixed width, zero-padded ("007").
std::string fixedDigits(long value, int width);

// Encoders: the exact bytes of each record or file. They assume the limits above were checked.
std::string encodeTopicRecord(const TopicRecord& t);
// The whole ZythTOC.enc: header "011" + two header fields of 4 characters, then the entries.
std::string encodeTocFile(const std::vector<TocEntry>& entries);
// The whole ZythMB.enc: header "011" + two header fields of 4 characters, the book count, books.
std::string encodeMiniBookFile(const std::vector<MiniBookRecord>& books);
// The leading text of Zyth.enc before the first topic (positions count past it).
std::string topicStoreHeader();

// A failure while reading a reference file: the error number the error routine knows it by
// (62 input past end of file, 13 a length field that is not a number, 53 file not found) and
// the platform's description.
struct ReferenceReadError {
  int number;
  std::string description;
};

// A reference file open for reading, positioned by seeks. Reads throw ReferenceReadError.
class ReferenceReader {
 public:
  ReferenceReader() = default;
  ~ReferenceReader();
  ReferenceReader(const ReferenceReader&) = delete;
  ReferenceReader& operator=(const ReferenceReader&) = delete;

  // Throws ReferenceReadError 53 when the file cannot be opened.
  void open(const std::string& path);
  void close();
  bool isOpen() const { return f_ != nullptr; }
  const std::string& path() const { return path_; }

  // Byte position counting from 0.
  void seek(long position);
  long tell() const;
  bool atEnd();

  // A fixed-width decimal field; 13 when it is not a number, 62 past the end.
  long readNumber(int width);
  // Exactly n characters; 62 past the end.
  std::string readText(long n);

 private:
  std::FILE* f_ = nullptr;
  std::string path_;
};

// Whole-file readers (tests, the builder's self-check, the command line).
// Each throws ReferenceReadError on a malformed file.
TopicRecord readTopicAt(ReferenceReader& store, long position);
std::vector<TocEntry> readTocFile(const std::string& path);
std::vector<MiniBookRecord> readMiniBookFile(const std::string& path);

}  // namespace zy
