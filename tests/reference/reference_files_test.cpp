// The builder writes the three reference files; the browser's reader reads them back.
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
  Bench b;
  ASSERT_TRUE(buildReference(sampleTopics(), sampleBooks(), b.wb->folder.referenceFolder()).ok());
  ReferenceBrowser br(*b.wb);
  br.openTopicStore();
  br.loadEncyclopediaTopics();
  ASSERT_EQ(br.trees[TreeAllTopics].size(), 4u);
  EXPECT_EQ(br.trees[TreeAllTopics][0].icon, TopicIcon::Leaf);
  EXPECT_EQ(br.trees[TreeAllTopics][2].icon, TopicIcon::Photo);
  const std::string foot = "<br><br><br><br>\r\n<H6>" + legalLine() + "</H6>\r\n";

  br.selectNode({TreeAllTopics, 0, -1});
  EXPECT_EQ(br.page, "<H1>Boiling the Wort</H1>\r\n<P>A rolling boil for sixty minutes.</P>\r\n" + foot);
  EXPECT_EQ(br.lblTitle + " " + itos(br.lblTitleTag), "Boiling the Wort " + itos(br.trees[TreeAllTopics][0].tagValue()));
  EXPECT_EQ(br.trees[TreeAllTopics][0].tag, itos(static_cast<long>(topicStoreHeader().size()) + 1));

  br.selectNode({TreeAllTopics, 2, -1});
  const std::string pics = b.dir.path() + "/Reference/";
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
  BuildReport r = buildReference(sampleTopics(), sampleBooks(), dir.file("Reference"), dir.file("images"));
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
    BuildReport r = buildReference(topics, books, dir.file("Reference"), images, BuildChecks::Strict);
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
  BuildReport r = buildReferenceFromFolder(std::string(ZY_SOURCE_DIR) + "/data/reference", dir.file("Reference"));
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

}  // namespace
}  // namespace zy::test
