// The html verb: a stored recipe as a web page, set up by the stored window settings and the
// options of the run.
#include <gtest/gtest.h>

#include "cli/CliRunner.h"

using namespace zy;
using namespace zy::test;

namespace {

TEST(HtmlVerb, WritesThePageWithTheStoredSettingsAndTheOptions) {
  CliBench b;
  ASSERT_TRUE(storeAmber(b.wb, 1, "Fine Amber", ""));
  const std::string out = b.home.dir.file("amber.htm");
  writeFile(b.home.dir.file("settings.ini"), "[HTMLgen]\r\nHREF Tag=start\r\nTitle Size=1\r\n");
  const CliResult r = b.home.run({"html", "1", out, "--costs", "--ftp", "ftp://x/", "--add-title", "Our",
                                  "--title-loc", "1", "--no-return"});
  EXPECT_EQ(r.all(), "0||");
  const std::string page = readFile(out);
  for (const char* part : {"<A NAME=\"start\"></A>\r\n<H2>Fine Amber Our</H2>\r\n", "HREF=\"ftp://x/amber.zyr\"",
                           "Approx Cost:", "<HR>\r\n\r\n</BODY></HTML>\r\n"})
    EXPECT_NE(page.find(part), std::string::npos) << part;
  EXPECT_EQ(page.find("Return to Top"), std::string::npos);
  // The options are for this run only.
  EXPECT_EQ(readFile(b.home.dir.file("settings.ini")).find("Include Costs"), std::string::npos);
}

TEST(HtmlVerb, RefusalsAndMessages) {
  CliBench b;
  ASSERT_TRUE(storeAmber(b.wb, 1, "Fine Amber", ""));
  const std::string out = b.home.dir.file("a.htm");
  EXPECT_EQ(b.home.run({"html", "1"}).status, 2);
  EXPECT_EQ(b.home.run({"html", "1", out, "--title-size", "3"}).status, 2);
  EXPECT_EQ(b.home.run({"html", "1", out, "--before", ""}).all(),
            "1||[Missing Filename] No File Specified for Before Recipe Title\n");
  EXPECT_EQ(b.home.run({"html", "2", out}).all(), "1||zythara-cli: html: there is no recipe 2\n");
  EXPECT_EQ(b.home.run({"html", "1", out, "--after", b.home.dir.file("none.htm")}).status, 3);
}

}  // namespace
