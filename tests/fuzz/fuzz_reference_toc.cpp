// The encyclopedia's table of contents: what is read, written again, reads back the same.
#include "FuzzSupport.h"
#include "core/paths.h"
#include "reference/ReferenceFiles.h"

using namespace zy;

ZY_FUZZ_HARNESS(reference_toc) {
  fuzz::Env& e = fuzz::env();
  const std::string path = e.file("Reference/" + std::string(kZythTocEnc));
  fuzz::writeAll(path, std::string(reinterpret_cast<const char*>(data), size));
  try {
    const std::string first = encodeTocFile(readTocFile(path));
    fuzz::writeAll(path, first);
    fuzz::check(encodeTocFile(readTocFile(path)) == first, "the table of contents changes on a second trip");
  } catch (const ReferenceReadError&) {
  } catch (const Terminated&) {
  }
  return 0;
}
