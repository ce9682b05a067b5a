// The encyclopedia: the reference files as the builder writes them and the reader reads them, and
// the window's model (history, Also See, search, Go Back and mini-books) over sample files and over
// the encyclopedia as the build stages it.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

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

// The builder writes the three reference files; the browser's reader reads them back.
TEST(ReferenceFiles, RecordsHaveTheirFixedWidthBytes) {
  TopicRecord t{"Hops", "<P>x</P>", {{"hop.png", "A cone"}}, {"Boiling"}};
  EXPECT_EQ(encodeTopicRecord(t), "04Hops0000801<P>x</P>07hop.png06A cone0107Boiling");
  TopicRecord bare{"Malt", "", {}, {}};
  EXPECT_EQ(encodeTopicRecord(bare), "04Malt000000000");

  EXPECT_EQ(encodeTocFile({{0, "Hops"}, {1234, "Malt Extract"}}), "011ZTOC02000000000004Hops0000123412Malt Extract");
  MiniBookRecord b{"Book", "<P>d</P>", {{26, "One"}, {300, "Two"}}};
  EXPECT_EQ(encodeMiniBookFile({b}), "011ZYMB0200001" "02" "04Book" "008<P>d</P>" "0000002603One" "0000030003Two");
}

TEST(ReferenceFiles, BuilderOutputReadsBackTopicByTopic) {
  TempFolder dir;
  const std::string out = dir.file("Reference");
  BuildReport r = buildReference(sampleTopics(), sampleBooks(), out);
  ASSERT_TRUE(r.ok()) << r.errors.front();
  EXPECT_EQ(std::vector<int>({r.topicCount, r.bookCount}), std::vector<int>({4, 1}));

  std::vector<TocEntry> toc = readTocFile(out + "/ZythTOC.enc");
  std::vector<std::string> titles;
  for (const TocEntry& e : toc) titles.push_back(e.indexTitle);
  ASSERT_EQ(titles, (std::vector<std::string>{"Boiling", "Cooling", "Hops", "Yeast"}));
  EXPECT_EQ(toc[0].position, static_cast<long>(topicStoreHeader().size()));

  ReferenceReader store;
  store.open(out + "/Zyth.enc");
  TopicRecord boil = readTopicAt(store, toc[0].position);
  EXPECT_TRUE(boil.title == "Boiling the Wort" && boil.images.empty());
  EXPECT_EQ(boil.alsoSee, (std::vector<std::string>{"Hops", "cooling", "Nonexistent Topic"}));
  TopicRecord hops = readTopicAt(store, toc[2].position);
  ASSERT_EQ(hops.images.size(), 2u);
  EXPECT_EQ(hops.images[0].file + "|" + hops.images[1].caption + "|" + hops.body,
            "cone.png|Hop bines|<P>Bitterness is measured in ibu.</P>");

  std::vector<MiniBookRecord> books = readMiniBookFile(out + "/ZythMB.enc");
  ASSERT_EQ(books.size(), 1u);
  EXPECT_EQ(std::vector<long>({books[0].chapters[0].position, books[0].chapters[1].position}),
            std::vector<long>({toc[0].position, toc[2].position}));
  EXPECT_EQ(books[0].chapters[0].title, "The Boil");
}

TEST(ReferenceFiles, PagesOfTopicsWithNoneAndTwoPictures) {
  Loaded l;
  ReferenceBrowser& br = l.br;
  ASSERT_EQ(br.trees[TreeAllTopics].size(), 4u);
  EXPECT_EQ(br.trees[TreeAllTopics][0].icon, TopicIcon::Leaf);
  EXPECT_EQ(br.trees[TreeAllTopics][2].icon, TopicIcon::Photo);
  const std::string foot = "<br><br><br><br>\r\n<H6>" + legalLine() + "</H6>\r\n";

  br.selectNode({TreeAllTopics, 0, -1});
  EXPECT_EQ(br.page, "<H1>Boiling the Wort</H1>\r\n<P>A rolling boil for sixty minutes.</P>\r\n" + foot);
  EXPECT_EQ(br.lblTitle + " " + itos(br.lblTitleTag), "Boiling the Wort " + itos(br.trees[TreeAllTopics][0].tagValue()));
  EXPECT_EQ(br.trees[TreeAllTopics][0].tag, itos(static_cast<long>(topicStoreHeader().size()) + 1));

  br.selectNode({TreeAllTopics, 2, -1});
  const std::string pics = l.bench.dir.path() + "/Reference/";
  EXPECT_EQ(br.page, "<H1>Hops</H1>\r\n"
                     "<TABLE ALIGN=left BORDER=5>\r\n<TR><TD ALIGN=CENTER><IMG SRC=\"" + pics + "cone.png\">\r\n"
                     "<TR><TD ALIGN=CENTER><B>A hop cone</B>\r\n</TABLE>\r\n"
                     "<TABLE ALIGN=left BORDER=5>\r\n<TR><TD ALIGN=CENTER><IMG SRC=\"" + pics + "field.png\">\r\n"
                     "<TR><TD ALIGN=CENTER><B>Hop bines</B>\r\n</TABLE>\r\n"
                     "<P>Bitterness is measured in ibu.</P>\r\n" + foot);
}

TEST(ReferenceFiles, BuilderRefusesSourcesThatBreakTheFormatAndNamesThem) {
  TempFolder dir;
  const std::string out = dir.file("Reference");
  std::vector<TopicSource> topics = sampleTopics();
  topics[0].title = std::string(100, 'T');
  topics[1].body = std::string(100000, 'b');
  topics[2].alsoSee.assign(100, "Boiling");
  BuildReport r = buildReference(topics, sampleBooks(), out);
  EXPECT_EQ(r.errors,
            (std::vector<std::string>{
                "topics/Boiling.txt: the title is 100 characters long; at most 99 fit in the reference files",
                "topics/Cooling.txt: the body is 100000 characters long; at most 99999 fit in the reference files",
                "topics/Hops.txt: 100 also-see entries; at most 99 fit in the reference files"}));
  EXPECT_FALSE(std::filesystem::exists(out + "/Zyth.enc"));

  // Exactly at the limits it builds.
  topics = sampleTopics();
  topics[0].title = std::string(99, 'T');
  topics[1].body = std::string(99999, 'b');
  topics[2].alsoSee.assign(99, "Boiling");
  EXPECT_TRUE(buildReference(topics, sampleBooks(), out).ok());

  // A chapter that points at nothing, three pictures, a duplicate index title.
  topics = sampleTopics();
  topics[3].images.push_back({"a.png", "a"});
  topics[3].images.push_back({"b.png", "b"});
  topics.push_back(topic("Other Hops", "HOPS", "<P>again</P>"));
  std::vector<BookSource> books = sampleBooks();
  books[0].chapters.push_back({"Water", "Water"});
  r = buildReference(topics, books, out);
  EXPECT_EQ(r.errors, (std::vector<std::string>{
                          "topics/Yeast.txt: 3 pictures; a topic holds at most 2",
                          "topics/HOPS.txt: the index title \"HOPS\" is taken already by topics/Hops.txt",
                          "books/first.txt: the chapter \"Water\" points at \"Water\", which is no topic"}));
}

TEST(ReferenceFiles, AlsoSeeTitlesThatMatchNoTopicAreWarnedAbout) {
  TempFolder dir;
  BuildReport r = buildReference(sampleTopics(), sampleBooks(), dir.file("Reference"), {dir.file("images")});
  ASSERT_TRUE(r.ok());
  std::vector<std::string> expected = {
      "topics/Boiling.txt: the also-see title \"Nonexistent Topic\" matches no topic",
      "topics/Cooling.txt: the also-see title \"No Such Topic\" matches no topic",
      "topics/Hops.txt: the picture \"cone.png\" is not in " + dir.file("images"),
      "topics/Hops.txt: the picture \"field.png\" is not in " + dir.file("images"),
      "topics/Yeast.txt: the picture \"yeast.png\" is not in " + dir.file("images"),
  };
  EXPECT_EQ(r.warnings, expected);
}

// The shipped sources are held to a clean encyclopedia: each broken link or name fails the build.
TEST(ReferenceFiles, StrictBuildRefusesEachBrokenSource) {
  TempFolder dir;
  const std::string images = dir.file("images");
  makeFolders(images);
  for (const char* f : {"cone.png", "field.png", "yeast.png"}) writeFile(images + "/" + f, "png");
  auto clean = [] {
    std::vector<TopicSource> t = sampleTopics();
    t[0].title = "Boiling";
    t[0].alsoSee = {"Hops", "cooling"};
    t[1].alsoSee.clear();
    return t;
  };
  struct Case {
    std::function<void(std::vector<TopicSource>&, std::vector<BookSource>&)> breakIt;
    std::string error;
  } cases[] = {
      {[](auto&, auto&) {}, ""},
      {[](auto& t, auto&) { t[1].alsoSee = {"Chilling"}; },
       "topics/Cooling.txt: the also-see title \"Chilling\" matches no topic"},
      {[](auto& t, auto&) { t[3].images[0].file = "cells.png"; },
       "topics/Yeast.txt: the picture \"cells.png\" is not in " + images},
      {[](auto&, auto& b) { b[0].chapters.push_back({"Water", "Water"}); },
       "books/first.txt: the chapter \"Water\" points at \"Water\", which is no topic"},
      {[](auto& t, auto&) { t[3].images[0].caption = std::string(100, 'c'); },
       "topics/Yeast.txt: the caption of \"yeast.png\" is 100 characters long; at most 99 fit in the reference files"},
      {[](auto& t, auto&) { t[2].title = "Hops and Hopping"; },
       "topics/Hops.txt: the title \"Hops and Hopping\" differs from its index title \"Hops\""},
  };
  for (const Case& c : cases) {
    std::vector<TopicSource> topics = clean();
    std::vector<BookSource> books = sampleBooks();
    c.breakIt(topics, books);
    BuildReport r = buildReference(topics, books, dir.file("Reference"), {images}, BuildChecks::Strict);
    EXPECT_EQ(r.errors, c.error.empty() ? std::vector<std::string>{} : std::vector<std::string>{c.error});
    EXPECT_TRUE(r.warnings.empty());
  }
}

TEST(ReferenceFiles, SourceTextsAreParsedAndConvertedTo8Bit) {
  BuildReport r;
  TopicSource t = parseTopicSource("x.txt",
                                   "Title: Mash at 67 \xC2\xB0""C\r\nIndex: Mash\nOrder: 5\n"
                                   "Image: tun.png | The tun\nAlso See: Sparging\n---\n\n<P>One</P>\n<P>Two</P>\n\n",
                                   r);
  EXPECT_TRUE(r.ok());
  ASSERT_EQ(t.images.size(), 1u);
  EXPECT_EQ(t.title + "|" + t.indexTitle + "|" + std::to_string(t.order) + "|" + t.images[0].file + "|" +
                t.images[0].caption + "|" + t.alsoSee.at(0) + "|" + t.body,
            "Mash at 67 \xB0""C|Mash|5|tun.png|The tun|Sparging|<P>One</P>\r\n<P>Two</P>");
  EXPECT_EQ(t.alsoSee.size(), 1u);

  BookSource b = parseBookSource("b.txt", "Book: Basics\nChapter: Mash\nChapter: The Sparge | Sparging\n---\nAbout.", r);
  EXPECT_TRUE(r.ok());
  ASSERT_EQ(b.chapters.size(), 2u);
  EXPECT_EQ(b.chapters[0].topic + "|" + b.chapters[1].title + "|" + b.chapters[1].topic, "Mash|The Sparge|Sparging");

  parseTopicSource("bad.txt", "Title: A\nColour: red\n<P>no separator</P>", r);
  ASSERT_EQ(r.errors.size(), 3u);
  EXPECT_EQ(r.errors[0] + "|" + r.errors[1],
            "bad.txt: no line \"---\" between the header and the body|bad.txt: unknown header line \"colour\"");
}

TEST(ReferenceFiles, ShippedSourcesBuildCleanly) {
  TempFolder dir;
  // Pictures drawn at build time are taken from the staged folder.
  BuildReport r = buildReferenceFromFolder(std::string(ZY_SOURCE_DIR) + "/data/reference", dir.file("Reference"),
                                           {std::string(ZY_STAGE_DIR) + "/Reference"});
  for (const std::string& e : r.errors) ADD_FAILURE() << e;
  for (const std::string& w : r.warnings) ADD_FAILURE() << w;
  EXPECT_TRUE(r.topicCount >= 30 && r.bookCount >= 2);
}

TEST(ReferenceFiles, MalformedFilesGoToTheErrorRoutine) {
  Bench b;
  // A missing topic store ends the program with error 53.
  ReferenceBrowser br(*b.wb);
  EXPECT_THROW(br.openTopicStore(), Terminated);
  EXPECT_EQ(shownLines(b.prompter),
            std::vector<std::string>{"Terminating: " + b.dir.path() + "/Reference/Zyth.enc Not Found in frmMain!Form_Load"});

  // A length field that is not a number: an unknown error.
  ASSERT_TRUE(buildReference(sampleTopics(), sampleBooks(), b.wb->folder.referenceFolder()).ok());
  writeFile(b.wb->folder.referenceFile("ZythTOC.enc"), "011ZTOC02000000002x04Hops");
  ReferenceBrowser br2(*b.wb);
  br2.openTopicStore();
  EXPECT_THROW(br2.loadEncyclopediaTopics(), Terminated);
  EXPECT_EQ(shownLines(b.prompter).back(),
            "Terminate Program: Error #13(Type mismatch) in frmMain!loadEncyclopediaTopics at Line 0");

  // Input past the end of the file.
  writeFile(b.wb->folder.referenceFile("ZythTOC.enc"), "011ZTOC02000000002");
  EXPECT_THROW(br2.loadEncyclopediaTopics(), Terminated);
  EXPECT_EQ(b.prompter.shown.back().text, "Error #62(Input past end of file) in frmMain!loadEncyclopediaTopics at Line 0");
}

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
  EXPECT_EQ(l.texts(TreeAlsoSee), (Texts{"Hops", "Cooling"}));
  EXPECT_EQ(br.lblTitle + "|" + alsoSee(), "Hops|* A&lso See|Boiling the Wort|back");
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
  EXPECT_EQ(alsoSee() + "|" + std::to_string(br.trees[TreeAlsoSee].size()), "* A&lso See|Cooling|-|0");

  // No entries at all: the tab unmarked, the list and its label emptied.
  br.selectNode({TreeAllTopics, 3, -1});
  EXPECT_EQ(alsoSee() + "|" + std::to_string(br.trees[TreeAlsoSee].size()) + "|" + std::to_string(br.lblAlsoSeeTopicTag),
            "  A&lso See||-|0|0");
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
      EXPECT_TRUE(std::filesystem::is_regular_file(std::filesystem::path(b.wb->folder.referenceFolder()) / img.file))
          << name << ": " << img.file;
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
