// Replays every harness over its checked-in corpus: the seeds and every input that ever failed.
#include <gtest/gtest.h>

#include <filesystem>

#include "FuzzSupport.h"

namespace fs = std::filesystem;

TEST(FuzzCorpus, EveryHarnessPassesItsWholeCorpus) {
  const fs::path corpus = fs::path(ZY_SOURCE_DIR) / "tests" / "fuzz" / "corpus";
  ASSERT_GE(zy::fuzz::registry().size(), 17u);
  for (const auto& h : zy::fuzz::registry()) {
    std::vector<fs::path> inputs;
    for (const auto& e : fs::directory_iterator(corpus / h.name)) inputs.push_back(e.path());
    EXPECT_FALSE(inputs.empty()) << h.name << " has no corpus";
    for (const auto& p : inputs) {
      const std::string bytes = zy::fuzz::readAll(p.string());
      try {
        h.fn(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
      } catch (const std::exception& ex) {
        ADD_FAILURE() << h.name << " on " << p.filename() << ": " << ex.what();
      }
    }
  }
}
