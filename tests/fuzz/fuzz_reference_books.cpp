// The encyclopedia's mini-book file: what is read, written again, reads back the same.
#include "FuzzSupport.h"
#include "core/paths.h"
#include "reference/ReferenceFiles.h"

using namespace zy;

ZY_FUZZ_HARNESS(reference_books) {
  fuzz::Env& e = fuzz::env();
  const std::string path = e.file("Reference/" + std::string(kZythMbEnc));
  fuzz::writeAll(path, std::string(reinterpret_cast<const char*>(data), size));
  try {
    const std::string first = encodeMiniBookFile(readMiniBookFile(path));
    fuzz::writeAll(path, first);
    fuzz::check(encodeMiniBookFile(readMiniBookFile(path)) == first, "the mini-book file changes on a second trip");
  } catch (const ReferenceReadError&) {
  } catch (const Terminated&) {
  }
  return 0;
}
