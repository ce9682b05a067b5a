#pragma once
// The reference builder: turns the readable sources of the encyclopedia (one text file a topic,
// one a mini-book, pictures beside them) into Zyth.enc, ZythTOC.enc and ZythMB.enc.
//
// A topic source (data/reference/topics/*.txt, UTF-8):
//   Title: Mashing
//   Index: Mashing                      (optional; the title when absent; shipped topics keep
//                                       the two the same, so the list and the page agree)
//   Order: 10                           (optional; lower comes first, default 1000)
//   Image: mash-tun.png | The caption   (up to two)
//   Also See: Sparging                  (any number of lines, up to 99)
//   ---
//   <P>The body, HTML, to the end of the file.</P>
//
// A mini-book source (data/reference/books/*.txt):
//   Book: Your First Extract Brew
//   Order: 1
//   Chapter: Sanitation                 (the index title or title of a topic)
//   Chapter: Shown Title | Topic Title  (a chapter title of its own)
//   ---
//   description HTML (at most 999 characters)
//
// Topics are written in the order (Order, index title without regard to case); that is the
// order of the topic list. Books are written by (Order, name).
#include <string>
#include <vector>

#include "reference/ReferenceFiles.h"

namespace zy {

struct TopicSource {
  std::string sourceFile;  // named in messages
  std::string title;       // 8-bit text
  std::string indexTitle;
  int order = 1000;
  std::string body;
  std::vector<TopicImage> images;
  std::vector<std::string> alsoSee;
};

struct ChapterSource {
  std::string title;  // shown in the book
  std::string topic;  // index title or title of the topic it opens
};

struct BookSource {
  std::string sourceFile;
  std::string name;
  int order = 1000;
  std::string description;
  std::vector<ChapterSource> chapters;
};

struct BuildReport {
  std::vector<std::string> errors;    // each names its source file; nothing is written when any
  std::vector<std::string> warnings;  // each names its source file
  int topicCount = 0, bookCount = 0, imageCount = 0;
  bool ok() const { return errors.empty(); }
};

// Parses a source text (UTF-8, converted to 8-bit). Problems are added to `report`.
TopicSource parseTopicSource(const std::string& sourceFile, const std::string& text, BuildReport& report);
BookSource parseBookSource(const std::string& sourceFile, const std::string& text, BuildReport& report);

// How strictly the sources are held to a clean encyclopedia. Lenient builds what the file format
// can hold (the browser copes with an also-see title that matches nothing, a topic listed under a
// name of its own, a missing picture) and warns; Strict, for the shipped sources, refuses those too.
enum class BuildChecks { Lenient, Strict };

// Checks everything and, when no error was found, writes the three files into `outDir`
// (created when missing). `imageDirs`, when given, are where pictures are taken from, the first
// folder that holds a picture winning: each picture named by a topic is copied into `outDir`; a
// missing one is a warning (an error when Strict). Strict also refuses an also-see title that
// matches no index title and a title that differs from its index title, so that the page heading
// and the topic list agree.
BuildReport buildReference(std::vector<TopicSource> topics, std::vector<BookSource> books,
                           const std::string& outDir, const std::vector<std::string>& imageDirs = {},
                           BuildChecks checks = BuildChecks::Lenient);

// Reads sourceDir/topics/*.txt and sourceDir/books/*.txt, pictures from sourceDir/images and then
// from each of `pictureDirs` (those drawn at build time), and builds as above, strictly: this is
// what the program ships.
BuildReport buildReferenceFromFolder(const std::string& sourceDir, const std::string& outDir,
                                     const std::vector<std::string>& pictureDirs = {});

}  // namespace zy
