// The encyclopedia window's model: history, Also See, search, Go Back and mini-books, over sample
// files and over the encyclopedia as the build stages it.
#include <gtest/gtest.h>

#include <filesystem>

#include "RefFixture.h"
#include "core/text.h"
#include "reference/ReferenceBrowser.h"
#include "reference/ReferenceFiles.h"
#include "support/TestSupport.h"

namespace zy::test {
namespace {

struct Loaded {
  explicit Loaded(std::vector<TopicSource> topics = sampleTopics(), std::vector<BookSource> books = sampleBooks()) {
    BuildReport r = buildReference(std::move(topics), std::move(books), bench.wb->folder.referenceFolder());
    EXPECT_TRUE(r.ok());
    br.openTopicStore();
    br.loadEncyclopediaTopics();
    br.loadMiniBooks();
  }
  static std::vector<std::string> textsOf(const std::vector<TopicNode>& nodes) {
    std::vector<std::string> out;
    for (const TopicNode& n : nodes) out.push_back(n.text);
    return out;
  }
  std::vector<std::string> texts(int tree) const { return textsOf(br.trees[static_cast<size_t>(tree)]); }
  Bench bench;
  ReferenceBrowser br{*bench.wb};
};

using Texts = std::vector<std::string>;

// The topic shown, the current history entry, whether Go Back is on, and the history's length.
std::string historyState(const ReferenceBrowser& br) {
  return br.lblTitle + "|" + std::to_string(br.currentHistory) + "|" + (br.cmdGoBackEnabled ? "back" : "-") + "|" +
         std::to_string(br.trees[TreeHistory].size());
}

TEST(ReferenceBrowser, HistoryKeepsOneNodeForARepeatAndAtMostAHundred) {
  std::vector<TopicSource> many;
  for (int i = 0; i < 102; ++i) {
    std::string n = "Topic " + fixedDigits(i, 3);
    many.push_back(topic(n, n, "<P>" + n + "</P>"));
  }
  Loaded l(many, {});
  ReferenceBrowser& br = l.br;
  const std::vector<TopicNode>& h = br.trees[TreeHistory];
  br.showFirstTopic();
  br.selectNode({TreeAllTopics, 0, -1});  // the same topic again
  EXPECT_EQ(historyState(br), "Topic 000|0|-|1");

  // 101 distinct topics leave 100 nodes: the one at position 100, the oldest but one, went.
  for (int i = 1; i <= 100; ++i) br.selectNode({TreeAllTopics, i, -1});
  EXPECT_EQ(historyState(br), "Topic 100|0|back|100");
  EXPECT_EQ(h[98].text + " " + h.back().text, "Topic 002 Topic 000");
  // Go Back walks to older entries without adding any.
  br.cmdGoBack();
  EXPECT_EQ(historyState(br), "Topic 099|1|back|100");
  // A node chosen in History becomes the current entry; the last one disables Go Back.
  br.selectNode({TreeHistory, 99, -1});
  EXPECT_EQ(historyState(br), "Topic 000|99|-|100");
  br.cmdGoBack();
  EXPECT_EQ(historyState(br), "Topic 000|99|-|100");
  // A topic equal to the newest entry is not added again, even reached from another tree.
  br.selectNode({TreeAllTopics, 100, -1});
  EXPECT_EQ(historyState(br), "Topic 100|0|back|100");
  br.selectNode({TreeAllTopics, 101, -1});
  EXPECT_EQ(h.front().text + " " + h.back().text + " " + std::to_string(h.size()), "Topic 101 Topic 000 100");
}

TEST(ReferenceBrowser, AlsoSeeListsMatchingTopicsAndStaysWhileWalkingIt) {
  Loaded l;
  ReferenceBrowser& br = l.br;
  br.showFirstTopic();  // Boiling: Hops, "cooling", and a title that matches nothing
  EXPECT_EQ(l.texts(TreeAlsoSee), (Texts{"Hops", "Cooling"}));
  // The tab's caption, the topic the list belongs to and whether the button goes back to it.
  auto alsoSee = [&] {
    return br.tabCaptions[TreeAlsoSee] + "|" + br.lblAlsoSeeTopic + "|" + (br.cmdAlsoSeeEnabled ? "back" : "-");
  };
  EXPECT_EQ(alsoSee(), "* A&lso See|Boiling the Wort|-");
  EXPECT_EQ(br.lblAlsoSeeTopicTag, br.trees[TreeAllTopics][0].tagValue());
  EXPECT_TRUE(br.trees[TreeAlsoSee][0].icon == TopicIcon::Photo &&
              br.trees[TreeAlsoSee][0].tag == br.trees[TreeAllTopics][2].tag);

  // Walking through the list leaves it in place; Hops has an entry of its own pending.
  br.selectNode({TreeAlsoSee, 0, -1});
  EXPECT_EQ(br.lblTitle, "Hops");
  EXPECT_EQ(l.texts(TreeAlsoSee), (Texts{"Hops", "Cooling"}));
  EXPECT_EQ(alsoSee(), "* A&lso See|Boiling the Wort|back");
  EXPECT_EQ(l.texts(TreeHistory), (Texts{"Hops", "Boiling the Wort"}));

  // A search in between puts the store back where it was, so the refresh still reads Hops' list.
  br.searchForPhrase("sugar");
  br.cmdAlsoSee();
  EXPECT_EQ(l.texts(TreeAlsoSee), (Texts{"Boiling"}));
  EXPECT_EQ(alsoSee(), "* A&lso See|Hops|-");

  // Back to the original topic by its label: the list is rebuilt, the history untouched.
  br.selectNode({TreeAllTopics, 0, -1});
  br.selectNode({TreeAlsoSee, 1, -1});  // Cooling, whose list matches nothing
  EXPECT_EQ(br.lblTitle, "Cooling");
  br.clickAlsoSeeTopic();
  EXPECT_EQ(br.lblTitle, "Boiling the Wort");
  EXPECT_EQ(l.texts(TreeAlsoSee), (Texts{"Hops", "Cooling"}));
  EXPECT_EQ(l.texts(TreeHistory), (Texts{"Cooling", "Boiling the Wort", "Hops", "Boiling the Wort"}));

  // Only titles that match nothing: an empty list under a marked tab.
  br.selectNode({TreeAllTopics, 1, -1});
  EXPECT_TRUE(br.trees[TreeAlsoSee].empty());
  EXPECT_EQ(alsoSee(), "* A&lso See|Cooling|-");

  // No entries at all: the tab unmarked, the list and its label emptied.
  br.selectNode({TreeAllTopics, 3, -1});
  EXPECT_TRUE(br.trees[TreeAlsoSee].empty());
  EXPECT_EQ(alsoSee() + std::to_string(br.lblAlsoSeeTopicTag), "  A&lso See||-0");
}

TEST(ReferenceBrowser, SearchReadsTitlesThenTheTextBehindTheBodyLength) {
  Loaded l;
  ReferenceBrowser& br = l.br;
  int repaints = 0;
  br.searchStarted = [&] {
    ++repaints;
    EXPECT_EQ(br.lblSearch, "Searching...");
  };
  // On the title; any case; the tree holds the topics' own titles.
  // The count shown and the titles found.
  auto found = [&](const std::string& phrase) {
    br.searchForPhrase(phrase);
    std::string s = br.lblSearch;
    for (const std::string& t : l.texts(TreeSearch)) s += "|" + t;
    return s;
  };
  // On the title, in any case, the tree holding the topics' own titles; on the body ("IBU"
  // matches "ibu"). The image-count digits lead the text searched: "02" finds the topic with
  // two pictures, "00<p>" the two without; the last two characters of a body are never reached,
  // and captions lie behind the body.
  const std::pair<const char*, const char*> searches[] = {
      {"BOIL", "1 Found|Boiling the Wort"}, {"IBU", "1 Found|Hops"}, {"02", "1 Found|Hops"},
      {"00<p>", "2 Found|Boiling the Wort|Cooling"}, {"</p>", "1 Found|Yeast"}, {"hop bines", "None Found"}};
  for (const auto& [phrase, result] : searches) EXPECT_EQ(found(phrase), result) << phrase;
  EXPECT_EQ(repaints, 6);
  found("IBU");
  EXPECT_EQ(br.trees[TreeSearch][0].icon, TopicIcon::Photo);

  // The box: trimmed, and an empty one is refused.
  br.txtSearch = "   ";
  br.cmdSearch();
  EXPECT_EQ(shownLines(l.bench.prompter), std::vector<std::string>{"Topic Search: Nothing Entered for Searching"});
  br.txtSearch = "  yeast ";
  br.cmdSearch();
  EXPECT_EQ(br.lblSearch, "1 Found");
  br.cmdClear();
  EXPECT_TRUE(br.txtSearch + br.lblSearch == "" && br.trees[TreeSearch].empty());
}

TEST(ReferenceBrowser, ASearchHitOnTheTitleDoesNotReadTheBody) {
  Loaded l;
  // Spoil the body length of Cooling: a title hit never reads it, a body search does.
  std::string store = readFile(l.bench.wb->folder.referenceFile("Zyth.enc"));
  long pos = l.br.trees[TreeAllTopics][1].tagValue() - 1;
  store.replace(static_cast<size_t>(pos) + 2 + 7, 5, "xxxxx");
  l.br.closeTopicStore();
  writeFile(l.bench.wb->folder.referenceFile("Zyth.enc"), store);
  l.br.openTopicStore();
  l.br.searchForPhrase("cool");
  EXPECT_EQ(l.br.lblSearch, "1 Found");
  EXPECT_THROW(l.br.searchForPhrase("chill"), Terminated);
  EXPECT_EQ(l.bench.prompter.shown.back().text, "Error #13(Type mismatch) in frmMain!searchForPhrase at Line 0");
}

TEST(ReferenceBrowser, MiniBooksShowTheirPageAndOpenTheirChapters) {
  Loaded l;
  ReferenceBrowser& br = l.br;
  ASSERT_EQ(br.trees[TreeMiniBooks].size(), 1u);
  const TopicNode& root = br.trees[TreeMiniBooks][0];
  EXPECT_EQ(root.text + "|" + root.tag, "First Brew|0 <P>Start here.</P>");
  ASSERT_EQ(root.children.size(), 2u);
  EXPECT_EQ(std::vector<TopicIcon>({root.icon, root.children[0].icon, root.children[1].icon}),
            std::vector<TopicIcon>({TopicIcon::ClosedBook, TopicIcon::Leaf, TopicIcon::Photo}));
  EXPECT_EQ(root.children[1].tag, br.trees[TreeAllTopics][2].tag);
  br.setExpanded(0, true);
  EXPECT_EQ(std::string(iconKey(root.icon)), "OpenBook");

  int navigations = 0;
  br.pageChanged = [&] { ++navigations; };
  br.selectNode({TreeMiniBooks, 0, -1});
  EXPECT_EQ(br.lblTitle, "First Brew");
  EXPECT_EQ(br.page, "<H1>First Brew</H1>\r\n <P>Start here.</P><br><br>\r\n"
                     "&nbsp;&nbsp;&nbsp;The Boil<br>\r\n&nbsp;&nbsp;&nbsp;Hops<br>\r\n"
                     "<br>Double-click on one of the Closed Books on the left to open it and expose the chapters "
                     "in that book.<br>\r\n<br><br><br><br>\r\n<H6>" + legalLine() + "</H6>\r\n");
  EXPECT_TRUE(br.trees[TreeHistory].empty());
  br.selectNode({TreeMiniBooks, 0, 1});
  EXPECT_EQ(l.texts(TreeHistory), Texts{br.lblTitle});
  EXPECT_EQ(br.lblTitle + " " + std::to_string(navigations), "Hops 2");
}

TEST(ReferenceBrowser, AStoreWithThreePicturesShowsTwoAndStillReadsItsAlsoSee) {
  // Written by hand: the builder refuses a third picture, the reader must still cope with one.
  Bench b;
  TopicRecord three{"Three", "<P>x</P>", {{"a.png", "A"}, {"b.png", "B"}, {"c.png", "C"}}, {"other"}};
  TopicRecord other{"Other", "<P>y</P>", {}, {}};
  std::string store = topicStoreHeader();
  const long first = static_cast<long>(store.size());
  store += encodeTopicRecord(three);
  const long second = static_cast<long>(store.size());
  store += encodeTopicRecord(other);
  writeFile(b.wb->folder.referenceFile("Zyth.enc"), store);
  writeFile(b.wb->folder.referenceFile("ZythTOC.enc"), encodeTocFile({{first, "Three"}, {second, "Other"}}));
  ReferenceBrowser br(*b.wb);
  br.openTopicStore();
  br.loadEncyclopediaTopics();
  br.showFirstTopic();
  EXPECT_TRUE(br.page.find("b.png") != std::string::npos && br.page.find("c.png") == std::string::npos);
  size_t tables = 0;
  for (size_t at = br.page.find("<TABLE"); at != std::string::npos; at = br.page.find("<TABLE", at + 1)) ++tables;
  EXPECT_EQ(tables, 2u);
  EXPECT_EQ(Loaded::textsOf(br.trees[TreeAlsoSee]), Texts{"Other"});
  EXPECT_EQ(b.wb->errors.reportCount, 0);
}

// The encyclopedia as the build stages it: every topic read back through the browser, and the
// search finding what a brewer types.
// A bench whose Reference folder holds a copy of the staged files and pictures.
struct StagedBench : Bench {
  StagedBench() {
    const std::filesystem::path staged = std::filesystem::path(ZY_STAGE_DIR) / "Reference";
    for (const auto& e : std::filesystem::directory_iterator(staged))
      std::filesystem::copy_file(e.path(), std::filesystem::path(wb->folder.referenceFolder()) / e.path().filename(),
                    std::filesystem::copy_options::overwrite_existing);
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
      EXPECT_TRUE(std::filesystem::is_regular_file(std::filesystem::path(b.wb->folder.referenceFolder()) / img.file)) << name << ": " << img.file;
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
