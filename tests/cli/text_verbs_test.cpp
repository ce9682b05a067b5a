#include <gtest/gtest.h>

#include "cli/CliRunner.h"

using namespace zy::test;

TEST(TextVerbs, ReadStoresTheRecipeAndInstructionsDescribeIt) {
  CliHome h;
  writeFile(h.dir.file("ipa.txt"),
            "\"Porch IPA\"\n5 gallons\n9 lbs Pale Malt\n1 lb Crystal 40L\n2 oz Cascade 6% alpha 60 min\n"
            "1 oz Cascade hops, steep\n1 tsp Irish moss\n1 pkg Safale US-05\nPrimary 7 days at 68 in glass\n"
            "3/4 cup corn sugar for priming\n");
  CliResult r = h.run({"read", h.dir.file("ipa.txt")});
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_EQ(r.out,
            "1\n"
            "recipeName=Porch IPA\nboilVolume=5\nfermentVolume=5\nvolumeUnits=1 US Gallons\nboilTime=60\n"
            "item[0]=malt\tPale Malt\t9\tLbs\t1.033\t2\tmash\n"
            "item[1]=malt\tCrystal\t1\tLbs\t1.033\t40\t-\n"
            "item[2]=hops\tCascade\t2\tOz\t6\t60\t-\n"
            "item[3]=hops\tCascade Hops, Steep\t1\tOz\t5\t0\t-\n"
            "item[4]=other\tIrish Moss\t1\tTsp\t0\t0\t-\n"
            "item[5]=yeast\tPkg Safale US-05\t1\tPacket\t0.7\t0\t-\n"
            "stage[0]=7 Days\t68\tGlass\nstage[1]=0 Days\t0\tPlastic\nstage[2]=0 Days\t0\tPlastic\n"
            "primingComment=0.75 Cups - Corn Sugar\n");

  // Mashed grain and crystal take the mash opening even in a recipe without a mash, whose sparge
  // temperature is then not repaired: the text says 0 degrees, and the advice to mash is shown.
  r = h.run({"instructions", "1"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out.substr(0, 122), "Lightly crack the Pale Malt, mash according to the mash schedule.  Before sparging the "
                                  "mash, lightly crack the Crystal and");
  EXPECT_NE(r.out.find("Sparge the grains with 0 degree water.  Transfer the sweet wort to your kettle.\n\nNext,"),
            std::string::npos);
  EXPECT_EQ(r.err, "[Smart Instructions] The recipe uses enough mashable grains so you should consider converting "
                   "to at least a Partial Mash Recipe\n");

  // Reading into a recipe with ingredients asks first; --no keeps them.
  writeFile(h.dir.file("small.txt"), "2 lbs wheat malt\r\n");
  r = h.run({"read", h.dir.file("small.txt"), "--into", "1"}, {"--no"});
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, "[Warning] This Action Will Replace ALL ingredients in the Recipe\n");
  r = h.run({"read", h.dir.file("small.txt"), "--into", "1"});
  EXPECT_EQ(r.status, 0);
  EXPECT_NE(r.out.find("recipeName=Porch IPA\n"), std::string::npos);
  EXPECT_NE(r.out.find("item[0]=malt\tWheat Malt\t2\tLbs\t1.037\t2\tmash\nstage[0]=7 Days"), std::string::npos);
}

TEST(TextVerbs, UsageAndMissingThings) {
  CliHome h;
  const std::vector<std::pair<std::vector<std::string>, int>> cases = {
      {{"instructions", "x"}, 2}, {{"instructions", "3"}, 1}, {{"read", "a", "--into"}, 2}, {{"read", "none.txt"}, 1}};
  for (const auto& [args, status] : cases) EXPECT_EQ(h.run(args).status, status) << args[0] << " " << args.size();
}
