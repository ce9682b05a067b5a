// The html verb: a stored recipe as a web page, set up by the stored window settings and the
// options of the run (which are not kept).
#include <gtest/gtest.h>

#include "cli/CliRunner.h"

using namespace zy;
using namespace zy::test;

TEST(HtmlVerb, StoredSettingsOptionsAndRefusals) {
  CliBench b;
  ASSERT_TRUE(storeAmber(b.wb, 1, "Fine Amber", ""));
  const std::string out = b.home.dir.file("amber.htm");
  writeFile(b.home.dir.file("settings.ini"), "[HTMLgen]\r\nHREF Tag=start\r\nTitle Size=1\r\n");
  EXPECT_EQ(b.home.run({"html", "1", out, "--costs", "--ftp", "ftp://x/", "--add-title", "Our", "--title-loc", "1",
                        "--no-return"}).all(), "0||");
  const std::string page = readFile(out);
  for (const char* part : {"<A NAME=\"start\"></A>\r\n<H2>Fine Amber Our</H2>\r\n", "HREF=\"ftp://x/amber.zyr\"",
                           "Approx Cost:", "<HR>\r\n\r\n</BODY></HTML>\r\n"})
    EXPECT_NE(page.find(part), std::string::npos) << part;
  EXPECT_EQ(page.find("Return to Top"), std::string::npos);
  EXPECT_EQ(readFile(b.home.dir.file("settings.ini")).find("Include Costs"), std::string::npos);

  EXPECT_EQ(b.home.run({"html", "1", out, "--title-size", "3"}).status, 2);
  EXPECT_EQ(b.home.run({"html", "1", out, "--before", ""}).all(),
            "1||[Missing Filename] No File Specified for Before Recipe Title\n");
  // A file to insert that is not there ends the program before the page is opened.
  const std::string other = b.home.dir.file("other.htm");
  EXPECT_EQ(b.home.run({"html", "1", other, "--after", b.home.dir.file("none.htm")}).status, 3);
  EXPECT_EQ(readFile(other), "");
}
