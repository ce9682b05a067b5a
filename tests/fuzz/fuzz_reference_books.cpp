// The encyclopedia's mini-book file: what is read, written again, reads back the same.
#include "FuzzSupport.h"
#include "core/paths.h"
#include "reference/ReferenceFiles.h"

using namespace zy;

ZY_FUZZ_HARNESS(reference_books) {
  return fuzz::fileRoundTrip<ReferenceReadError>(
      fuzz::env().file("Reference/" + std::string(kZythMbEnc)), data, size,
      [](const std::string& path) { return encodeMiniBookFile(readMiniBookFile(path)); }, "the mini-book file");
}
