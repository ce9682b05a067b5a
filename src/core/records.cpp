#include "core/records.h"

#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace zy {

namespace {
template <typename T>
void putRaw(std::string& rec, size_t off, T v) {
  if (rec.size() < off + sizeof(T)) rec.resize(off + sizeof(T), ' ');
  unsigned char b[sizeof(T)];
  std::memcpy(b, &v, sizeof(T));  // the host is little-endian (x86-64, ARM64)
  for (size_t i = 0; i < sizeof(T); ++i) rec[off + i] = static_cast<char>(b[i]);
}
template <typename T>
T getRaw(std::string_view rec, size_t off) {
  T v{};
  if (rec.size() < off + sizeof(T)) return v;
  std::memcpy(&v, rec.data() + off, sizeof(T));
  return v;
}
static_assert(sizeof(double) == 8 && sizeof(float) == 4);
}  // namespace

void putI16(std::string& rec, size_t off, int v) { putRaw<int16_t>(rec, off, static_cast<int16_t>(v)); }
void putI32(std::string& rec, size_t off, int32_t v) { putRaw<int32_t>(rec, off, v); }
void putF32(std::string& rec, size_t off, float v) { putRaw<float>(rec, off, v); }
void putF64(std::string& rec, size_t off, double v) { putRaw<double>(rec, off, v); }
void putText(std::string& rec, size_t off, size_t len, std::string_view text) {
  if (rec.size() < off + len) rec.resize(off + len, ' ');
  for (size_t i = 0; i < len; ++i) rec[off + i] = i < text.size() ? text[i] : ' ';
}
int16_t getI16(std::string_view rec, size_t off) { return getRaw<int16_t>(rec, off); }
int32_t getI32(std::string_view rec, size_t off) { return getRaw<int32_t>(rec, off); }
float getF32(std::string_view rec, size_t off) { return getRaw<float>(rec, off); }
double getF64(std::string_view rec, size_t off) { return getRaw<double>(rec, off); }
std::string getText(std::string_view rec, size_t off, size_t len) {
  if (off >= rec.size()) return std::string(len, ' ');
  std::string s(rec.substr(off, len));
  s.resize(len, ' ');
  return s;
}

bool controlCodesValid(std::string_view rec) {
  return rec.size() >= 4 && getI16(rec, 0) == kControlStart && getI16(rec, rec.size() - 2) == kControlEnd;
}

FileError fileErrorFromErrno(int err, const std::string& path) {
  switch (err) {
    case ENOENT: {
      // A missing folder is "path not found"; a missing file in an existing folder "file not found".
      std::string dir = path.substr(0, path.find_last_of('/') == std::string::npos ? 0 : path.find_last_of('/'));
      struct stat st{};
      if (!dir.empty() && (stat(dir.c_str(), &st) != 0 || !S_ISDIR(st.st_mode)))
        return {76, "Path not found", path};
      return {53, "File not found", path};
    }
    case ENOTDIR: return {76, "Path not found", path};
    case EACCES:
    case EPERM:
    case EROFS: return {70, "Permission denied", path};
    case ENOSPC:
    case EDQUOT: return {61, "Disk full", path};
    case ENOMEM: return {7, "Out of memory", path};
    case EBUSY:
    case ETXTBSY: return {55, "File already open", path};
    case EIO: return {71, "Disk not ready", path};
    case EISDIR: return {75, "Path/File access error", path};
    default: return {57, std::string("Device I/O error: ") + std::strerror(err), path};
  }
}

RecordFile::RecordFile(const std::string& path, size_t recordLength) : path_(path), len_(recordLength) {
  f_ = std::fopen(path.c_str(), "r+b");
  int err = errno;
  if (!f_ && err == ENOENT) {
    f_ = std::fopen(path.c_str(), "w+b");  // a missing file is created empty
    err = errno;
  } else if (!f_) {
    f_ = std::fopen(path.c_str(), "rb");  // read-only media: reading still works
    readOnly_ = f_ != nullptr;
  }
  if (!f_) throw fileErrorFromErrno(err, path);
  struct stat st{};
  if (fstat(fileno(f_), &st) == 0 && S_ISDIR(st.st_mode)) {
    std::fclose(f_);
    f_ = nullptr;
    throw FileError{75, "Path/File access error", path};
  }
  count_ = static_cast<long>(st.st_size / static_cast<off_t>(len_));
}

RecordFile::~RecordFile() {
  if (f_) std::fclose(f_);
}

void RecordFile::fillBuffer(long n) {
  const long chunk = len_ >= 1024 ? 64 : 512;
  long want = std::min(chunk, count_ - n + 1);
  buf_.resize(static_cast<size_t>(want) * len_);
  if (lastWasWrite_) std::fflush(f_);
  lastWasWrite_ = false;
  bufFirst_ = n;
  bufCount_ = 0;
  if (std::fseek(f_, static_cast<long>((n - 1) * static_cast<long>(len_)), SEEK_SET) != 0) return;
  size_t got = std::fread(buf_.data(), 1, buf_.size(), f_);
  bufCount_ = static_cast<long>(got / len_);
}

bool RecordFile::read(long n, std::string& rec) {
  if (n < 1 || n > count_) return false;
  if (n < bufFirst_ || n >= bufFirst_ + bufCount_) fillBuffer(n);
  if (n < bufFirst_ || n >= bufFirst_ + bufCount_) return false;
  rec.assign(buf_.data() + (n - bufFirst_) * len_, len_);
  return true;
}

void RecordFile::write(long n, std::string_view rec) {
  if (n < 1 || n > count_ + 1) throw FileError{63, "Bad record number", path_};
  if (readOnly_) throw FileError{70, "Permission denied", path_};
  std::string r(rec.substr(0, len_));
  r.resize(len_, ' ');
  if (std::fseek(f_, static_cast<long>((n - 1) * static_cast<long>(len_)), SEEK_SET) != 0 ||
      std::fwrite(r.data(), 1, len_, f_) != len_)
    throw fileErrorFromErrno(errno, path_);
  lastWasWrite_ = true;
  if (n > count_) count_ = n;
  // Keep the read-ahead buffer true to the file.
  if (n >= bufFirst_ && n < bufFirst_ + bufCount_) std::memcpy(buf_.data() + (n - bufFirst_) * len_, r.data(), len_);
}

void RecordFile::flush() {
  if (f_ && std::fflush(f_) != 0) throw fileErrorFromErrno(errno, path_);
}

}  // namespace zy
