#include <gtest/gtest.h>

#include "calculators/CalcBench.h"
#include "calculators/Starter.h"

using namespace zy;
using namespace zy::test;

TEST(StarterCalculator, ResultsByUnitSystem) {
  // Unit system, volume unit, volume, gravity and carbonation level; the two results shown and
  // whether the kraeusening volume can be added. 5 gallons: 16 ounces of starter, and
  // 5 * 12.8 * 0.04 / 0.05 = 51.2 of young beer; 20 liters: 0.5 liters, and 5.283 gallons * 0.1 *
  // 0.8 back in liters, 1.6; in British units the conversion pair shows, unformatted.
  struct Case {
    int unitType, volumeUnit;
    const char *volume, *gravity;
    int level;
    const char *starter, *kraeusen;
    bool enabled;
  };
  const char* us = "Yeast Starter Volume = 16 US Fl Oz";
  const std::vector<Case> cases = {
      {US_MEASURES, US_GAL_CONST, "5.0", "1.050", 1, us, " Kraeusening Volume = 51 US Fl Oz", true},
      {US_MEASURES, US_GAL_CONST, "5.0", "1.050", 2, us, " Kraeusening Volume = 60 US Fl Oz", true},
      {US_MEASURES, US_GAL_CONST, "5.0", "1.000", 1, us, " Kraeusening Volume = N/A", false},
      {US_MEASURES, US_GAL_CONST, "0.0", "1.050", 1, "Yeast Starter Volume = N/A", " Kraeusening Volume = N/A", false},
      {METRIC_MEASURES, LITER_CONST, "20.0", "1.050", 1, "Yeast Starter Volume = 0.5 Liters",
       " Kraeusening Volume = 1.6 Liters", true},
      {IMPERIAL_MEASURES, IMPERIAL_GAL_CONST, "5.0", "1.050", 0, "Yeast Starter Volume = 15.35 Imp Fl Oz",
       " Kraeusening Volume = 42.4000000000126 Imp Fl Oz", true},
  };
  for (const Case& c : cases) {
    CalcBench cb;
    cb.open({}, [&](RecipeRecord& r) {
      r.unitType = c.unitType;
      r.volumeUnits = c.volumeUnit;
    });
    StarterCalculator s(cb.editor);
    s.load();
    s.setVolume(c.volume);
    s.setGravity(c.gravity);
    s.setLevel(c.level);
    EXPECT_EQ(s.lblYbox + "|" + s.lblKbox, std::string(c.starter) + "|" + c.kraeusen) << c.volume << " " << c.gravity;
    EXPECT_EQ(s.cmdAddKraeusenEnabled, c.enabled) << c.volume << " " << c.gravity;
  }
}

TEST(StarterCalculator, AddToRecipeWritesThePrimingCommentAndTheComment) {
  CalcBench cb;
  cb.open({makeItem(KIND_YEAST, "American Ale", 0, 0)});
  cb.editor.sheet.grid.setCell(cb.editor.sheet.grid.headerRow(KIND_YEAST) + 1, COL_UNITS, "");
  StarterCalculator s(cb.editor);
  s.load();
  s.setGravity("1.050");
  s.cmdAddKraeusen();
  EXPECT_EQ(cb.editor.fermentation.txtConditioning, "Use 51 US Fl Oz for Medium carbonation.");
  s.cmdAddYeast();
  EXPECT_EQ(cb.editor.comments.comment, "Yeast Starter Volume: 16 US Fl Oz\r\n");
  const int yeast = cb.editor.sheet.grid.headerRow(KIND_YEAST) + 1;
  EXPECT_EQ(cb.editor.sheet.grid.cell(yeast, COL_QTY) + " " + cb.editor.sheet.grid.cell(yeast, COL_UNITS), "1 Packet");
  EXPECT_TRUE(cb.editor.recipeChanged());
  EXPECT_EQ(shownLines(cb.b.prompter),
            (std::vector<std::string>{
                "Starter/Kraeusening: Use 51 US Fl Oz for Medium carbonation. added to \n"
                "Fermentation/Priming Instructions Window",
                "Starter/Kraeusening: Yeast Starter Volume: 16 US Fl Oz added to Comments Window"}));
}
