// The encyclopedia's topic store: a topic read at any position, written again, reads back the same.
#include "FuzzSupport.h"
#include "core/paths.h"
#include "reference/ReferenceFiles.h"

using namespace zy;

ZY_FUZZ_HARNESS(reference_topics) {
  fuzz::Env& e = fuzz::env();
  const std::string path = e.file("Reference/" + std::string(kZythEnc));
  const std::string copy = e.file("topic-again.enc");
  const std::string input(reinterpret_cast<const char*>(data), size);
  fuzz::writeAll(path, input);
  // The first byte picks a position in the rest of the file.
  const long position = size > 0 ? static_cast<long>(data[0]) % static_cast<long>(size) : 0;
  try {
    ReferenceReader store;
    store.open(path);
    const std::string first = encodeTopicRecord(readTopicAt(store, position));
    store.close();
    fuzz::writeAll(copy, first);
    ReferenceReader again;
    again.open(copy);
    fuzz::check(encodeTopicRecord(readTopicAt(again, 0)) == first, "a topic changes on a second trip");
  } catch (const ReferenceReadError&) {
  } catch (const Terminated&) {
  }
  return 0;
}
