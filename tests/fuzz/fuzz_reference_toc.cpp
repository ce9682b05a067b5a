// The encyclopedia's table of contents: what is read, written again, reads back the same.
#include "FuzzSupport.h"
#include "core/paths.h"
#include "reference/ReferenceFiles.h"

using namespace zy;

ZY_FUZZ_HARNESS(reference_toc) {
  return fuzz::fileRoundTrip<ReferenceReadError>(
      fuzz::env().file("Reference/" + std::string(kZythTocEnc)), data, size,
      [](const std::string& path) { return encodeTocFile(readTocFile(path)); }, "the table of contents");
}
