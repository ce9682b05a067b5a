#pragma once
// Fixed-length records: fields read and written at their byte offsets (little-endian integers,
// IEEE doubles and singles, blank-padded text), and random-access files of such records,
// numbered from 1.
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

namespace zy {

// Field access on a record buffer.
void putI16(std::string& rec, size_t off, int v);
void putI32(std::string& rec, size_t off, int32_t v);
void putF32(std::string& rec, size_t off, float v);
void putF64(std::string& rec, size_t off, double v);
void putText(std::string& rec, size_t off, size_t len, std::string_view text);
int16_t getI16(std::string_view rec, size_t off);
int32_t getI32(std::string_view rec, size_t off);
float getF32(std::string_view rec, size_t off);
double getF64(std::string_view rec, size_t off);
std::string getText(std::string_view rec, size_t off, size_t len);  // as stored, not trimmed

// Every record of the recipe, style, category and batch log files starts with 200 and ends
// with 299.
constexpr int kControlStart = 200;
constexpr int kControlEnd = 299;
bool controlCodesValid(std::string_view rec);

// A failure of the platform's file layer, carrying the error number the error routine knows it
// by (53 file not found, 61 disk full, 70 permission denied, 76 path not found, ...).
struct FileError {
  int number;
  std::string description;
  std::string path;
};
// The error number and text of the last C library failure (errno).
FileError fileErrorFromErrno(int err, const std::string& path);

// A random-access file of fixed-length records. Opening creates a missing file empty. The record
// count is the file size over the record length; a trailing partial record is not counted.
// Sequential reads are buffered, so that a scan of the whole file costs one pass.
class RecordFile {
 public:
  RecordFile(const std::string& path, size_t recordLength);  // throws FileError
  ~RecordFile();
  RecordFile(const RecordFile&) = delete;
  RecordFile& operator=(const RecordFile&) = delete;

  long count() const { return count_; }
  size_t recordLength() const { return len_; }
  const std::string& path() const { return path_; }
  // Reads record n (1-based) into rec; false beyond the last whole record.
  bool read(long n, std::string& rec);
  // Writes record n (1-based); n may be count()+1 to append. Throws FileError (70 on a file that
  // could be opened for reading only).
  void write(long n, std::string_view rec);
  void flush();

 private:
  void fillBuffer(long n);
  std::string path_;
  size_t len_;
  long count_ = 0;
  std::FILE* f_ = nullptr;
  // Read-ahead buffer of whole records, starting at record bufFirst_.
  std::string buf_;
  long bufFirst_ = 0;
  long bufCount_ = 0;
  bool lastWasWrite_ = false;
  bool readOnly_ = false;
};

}  // namespace zy
