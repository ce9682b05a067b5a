// The encyclopedia as the build stages it: every topic read back through the browser, and the
// search finding what a brewer types.
#include <gtest/gtest.h>

#include <filesystem>

#include "reference/ReferenceBrowser.h"
#include "reference/ReferenceFiles.h"
#include "support/TestSupport.h"

namespace fs = std::filesystem;

namespace zy::test {
namespace {

// A bench whose Reference folder holds a copy of the staged files and pictures.
struct StagedBench : Bench {
  StagedBench() {
    const fs::path staged = fs::path(ZY_STAGE_DIR) / "Reference";
    for (const auto& e : fs::directory_iterator(staged))
      fs::copy_file(e.path(), fs::path(wb->folder.referenceFolder()) / e.path().filename(),
                    fs::copy_options::overwrite_existing);
    browser.openTopicStore();
    browser.loadEncyclopediaTopics();
    browser.loadMiniBooks();
  }
  ReferenceBrowser browser{*wb};
};

TEST(ShippedTopics, EveryTopicShowsItsTitleBodyPicturesAndAlsoSee) {
  StagedBench b;
  ReferenceBrowser& br = b.browser;
  const auto& all = br.trees[TreeAllTopics];
  ASSERT_GE(all.size(), 120u);
  ReferenceReader store;
  store.open(b.wb->folder.referenceFile(kZythEnc));
  for (size_t i = 0; i < all.size(); ++i) {
    const std::string name = all[i].text;
    TopicRecord r = readTopicAt(store, all[i].tagValue() - 1);
    br.selectNode({TreeAllTopics, static_cast<int>(i), -1});
    EXPECT_EQ(br.lblTitle, name) << "the page title differs from the list";
    EXPECT_GT(r.body.size(), 1200u) << name;
    EXPECT_NE(br.page.find("<P>"), std::string::npos) << name;
    for (const TopicImage& img : r.images)
      EXPECT_TRUE(fs::is_regular_file(fs::path(b.wb->folder.referenceFolder()) / img.file)) << name << ": " << img.file;
    EXPECT_FALSE(r.alsoSee.empty()) << name;
    EXPECT_EQ(br.trees[TreeAlsoSee].size(), r.alsoSee.size()) << name << ": an also-see title matches no topic";
  }
  for (const TopicNode& book : br.trees[TreeMiniBooks]) {
    EXPECT_FALSE(book.children.empty()) << book.text;
    for (const TopicNode& ch : book.children) {
      bool found = false;
      for (const TopicNode& t : all) found = found || t.tag == ch.tag;
      EXPECT_TRUE(found) << book.text << ": " << ch.text;
    }
  }
}

TEST(ShippedTopics, SearchFindsTheWordsABrewerTypes) {
  StagedBench b;
  const std::pair<const char*, size_t> words[] = {
      {"yeast", 60}, {"IBU", 10}, {"sparge", 15}, {"color", 15}, {"flavor", 40},
      {"sanitize", 15}, {"liter", 50}, {"\xB0""F", 50},
  };
  for (const auto& [word, atLeast] : words) {
    b.browser.searchForPhrase(word);
    EXPECT_GE(b.browser.trees[TreeSearch].size(), atLeast) << word << ": " << b.browser.lblSearch;
  }
  // British spellings are gone, so a search for them finds nothing.
  for (const char* word : {"colour", "flavour", "sanitis", "litre"}) {
    b.browser.searchForPhrase(word);
    EXPECT_EQ(b.browser.lblSearch, "None Found") << word;
  }
}

}  // namespace
}  // namespace zy::test
