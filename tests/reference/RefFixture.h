#pragma once
// Reference files for the tests, written by the builder's library code into a Reference folder.
#include <string>
#include <vector>

#include "reference/ReferenceBuild.h"

namespace zy::test {

inline TopicSource topic(const std::string& title, const std::string& index, const std::string& body,
                         std::vector<TopicImage> images = {}, std::vector<std::string> alsoSee = {},
                         int order = 1000) {
  TopicSource t;
  t.sourceFile = "topics/" + index + ".txt", t.title = title, t.indexTitle = index, t.body = body;
  t.images = std::move(images), t.alsoSee = std::move(alsoSee), t.order = order;
  return t;
}

// Four topics, in list order: Boiling (no picture; also see Hops, Cooling and a title that
// matches nothing), Cooling (no picture; also see only titles that match nothing), Hops (two
// pictures; also see Boiling), Yeast (one picture, no also-see; two paragraphs). One book.
inline std::vector<TopicSource> sampleTopics() {
  return {
      topic("Boiling the Wort", "Boiling", "<P>A rolling boil for sixty minutes.</P>", {},
            {"Hops", "cooling", "Nonexistent Topic"}),
      topic("Cooling", "Cooling", "<P>Chill fast to pitching temperature.</P>", {}, {"No Such Topic"}),
      topic("Hops", "Hops", "<P>Bitterness is measured in ibu.</P>",
            {{"cone.png", "A hop cone"}, {"field.png", "Hop bines"}}, {"Boiling"}),
      topic("Yeast", "Yeast", "<P>Yeast eats sugar.</P><P>It makes alcohol.</P>", {{"yeast.png", "Cells"}}),
  };
}

inline std::vector<BookSource> sampleBooks() {
  BookSource b;
  b.sourceFile = "books/first.txt", b.name = "First Brew", b.description = "<P>Start here.</P>";
  b.chapters = {{"The Boil", "Boiling"}, {"Hops", "Hops"}};
  return {b};
}

}  // namespace zy::test
