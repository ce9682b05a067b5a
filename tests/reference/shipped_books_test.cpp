// The staged mini-books and pictures: every book a readable length, every named picture on disk.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/paths.h"
#include "reference/ReferenceFiles.h"

namespace fs = std::filesystem;

namespace zy::test {
namespace {

const fs::path kStaged = fs::path(ZY_STAGE_DIR) / "Reference";

TEST(ShippedBooks, EachBookHasFiveToFifteenChapters) {
  std::vector<MiniBookRecord> books = readMiniBookFile((kStaged / kZythMbEnc).string());
  EXPECT_GE(books.size(), 8u);
  for (const MiniBookRecord& b : books) {
    EXPECT_GE(b.chapters.size(), 5u) << b.name;
    EXPECT_LE(b.chapters.size(), 15u) << b.name;
    EXPECT_FALSE(b.description.empty()) << b.name;
  }
}

TEST(ShippedBooks, AtLeastFifteenTopicsShowPicturesThatExist) {
  ReferenceReader store;
  store.open((kStaged / kZythEnc).string());
  int withPictures = 0;
  for (const TocEntry& e : readTocFile((kStaged / kZythTocEnc).string())) {
    TopicRecord t = readTopicAt(store, e.position);
    for (const TopicImage& img : t.images)
      EXPECT_GT(fs::file_size(kStaged / img.file), 1000u) << e.indexTitle << ": " << img.file;
    withPictures += !t.images.empty();
  }
  EXPECT_GE(withPictures, 15);
}

}  // namespace
}  // namespace zy::test
