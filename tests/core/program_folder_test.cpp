#include <gtest/gtest.h>

#include "core/paths.h"
#include "support/TestSupport.h"

using namespace zy;
using namespace zy::test;

TEST(ProgramFolder, AChosenFolderGetsTheShippedFilesButNoRecipes) {
  TempFolder shipped, home;
  ProgramFolder s(shipped.path());
  s.ensureFolders();
  makeFolders(shipped.file("Help"));
  writeFile(s.referenceFile("Zyth.enc"), "topics");
  writeFile(s.referenceFile("hop-cone.png"), "png");
  writeFile(shipped.file("Help/index.html"), "<html>");
  writeFile(s.dataFile("ZYStyle.dat"), "styles");
  writeFile(s.dataFile("ZYCategory.dat"), "categories");
  writeFile(s.dataFile("ZYRecipe.dat"), "the build tree's own recipes");

  // The executable's folder holds the encyclopedia: it is the program folder unless one is named.
  EXPECT_EQ(chooseProgramFolder("", shipped.path()), shipped.path());
  const std::string mine = home.file("Brewing");
  EXPECT_EQ(chooseProgramFolder(mine, shipped.path()), mine);
  ProgramFolder m(mine);
  EXPECT_EQ(readFile(m.referenceFile("Zyth.enc")) + "|" + readFile(m.referenceFile("hop-cone.png")) + "|" +
                readFile(home.file("Brewing/Help/index.html")) + "|" + readFile(m.dataFile("ZYStyle.dat")),
            "topics|png|<html>|styles");
  EXPECT_FALSE(fileExists(m.dataFile("ZYRecipe.dat")));

  // A folder that has its files keeps them: nothing is copied over the brewer's edits.
  writeFile(m.dataFile("ZYStyle.dat"), "my styles");
  writeFile(s.referenceFile("Zyth.enc"), "newer topics");
  chooseProgramFolder(mine, shipped.path());
  EXPECT_EQ(readFile(m.dataFile("ZYStyle.dat")) + "|" + readFile(m.referenceFile("Zyth.enc")), "my styles|topics");
}
