#include "recipes/SmartInstructions.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <vector>

#include "calculators/WaterManagement.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

const char* const kSmartReplaceQuestion =
    "Do you want to replace the existing Comment with a New Comment?\r\n"
    "      Yes - Replace Comment\r\n"
    "      No  - Append New Comment\r\n"
    "      Cancel - Don't Do Anything";

namespace {

const char* const kBreak = "\r\n\r\n";

bool has(const std::string& text, const char* word) { return text.find(word) != std::string::npos; }

bool hasAny(const std::string& text, std::initializer_list<const char*> words) {
  return std::any_of(words.begin(), words.end(), [&](const char* w) { return has(text, w); });
}

// A list of names as the sentences read it: "a, b and the c".
struct NameList {
  std::vector<std::string> names;
  bool used() const { return !names.empty(); }
  void add(const std::string& n) { names.push_back(n); }
  std::string text() const {
    std::string s;
    for (size_t i = 0; i < names.size(); ++i) {
      if (i > 0) s += i + 1 == names.size() ? " and the " : ", ";
      s += names[i];
    }
    return s;
  }
};

struct Classified {
  NameList crystal, mash, frozen, juice, berry, extract, salt, peel, wood, spice, unknown, longHops, steepHops;
  double crystalQty = 0, mashWeight = 0;
  int longestBoil = 0, shortestBoil = 32000;
  bool hasYeast = false, hasIrishMoss = false, hasGelatin = false, hasPolyclar = false;
};

Classified classify(const RecipeEditor& editor) {
  const IngredientTable& g = editor.sheet.grid;
  const Measures& m = measures();
  const int maltUnit = std::clamp(editor.wb.defaults.maltUnits, 0, 3);
  Classified c;
  for (int r = g.headerRow(KIND_MALT) + 1; r < g.sectionEnd(KIND_MALT); ++r) {
    const std::string name = trim(g.cell(r, COL_NAME)), low = lower(name);
    const double qty = cellValue(g.cell(r, COL_QTY));
    if (hasAny(low, {"crystal", "cara-pil"})) {
      c.crystal.add(name);
      c.crystalQty += qty;
    } else if (g.cell(r, COL_MASH) == "Yes") {
      c.mash.add(name);
      c.mashWeight += qty * m.weightConvert[std::clamp(g.unitCode(r), 0, 3)][maltUnit];
    } else if (has(low, "frozen")) {
      c.frozen.add(name);
    } else if (has(low, "juice")) {
      c.juice.add(name);
    } else if (hasAny(low, {"berry", "berries", "currant", "cherry", "cherries"})) {
      c.berry.add(name);
    } else {
      c.extract.add(name);
    }
  }
  std::vector<std::pair<int, std::string>> hops;  // whole boil minutes, name
  for (int r = g.headerRow(KIND_HOPS) + 1; r < g.sectionEnd(KIND_HOPS); ++r) {
    const std::string name = trim(g.cell(r, COL_NAME));
    const double minutes = std::trunc(std::clamp(cellValue(g.cell(r, COL_DETAIL)), -32768.0, 32767.0));
    const int boil = static_cast<int>(minutes);
    c.longestBoil = std::max(c.longestBoil, boil);
    c.shortestBoil = std::min(c.shortestBoil, boil);
    hops.emplace_back(boil, name);
    if (boil == 0) c.steepHops.add(trim(g.cell(r, COL_QTY)) + " " + trim(g.cell(r, COL_UNITS)) + " " + name);
  }
  for (const auto& [boil, name] : hops)
    if (boil == c.longestBoil) c.longHops.add(name);
  static const std::initializer_list<const char*> spices = {"vanilla", "cinnamon", "cinammon", "ginger", "cloves",
                                                            "root",    "bark",     "spice",    "spruce"};
  for (int r = g.headerRow(KIND_OTHER) + 1; r < g.sectionEnd(KIND_OTHER); ++r) {
    const std::string name = trim(g.cell(r, COL_NAME)), low = lower(name);
    // Finings only set flags: they have sentences of their own.
    bool fining = false;
    if (has(low, "irish")) c.hasIrishMoss = fining = true;
    if (has(low, "gelatin")) c.hasGelatin = fining = true;
    if (has(low, "polyclar")) c.hasPolyclar = fining = true;
    const bool spice = hasAny(low, spices);
    if (spice && has(low, "frozen"))
      c.frozen.add(name);
    else if (has(low, "juice"))
      c.juice.add(name);
    else if (hasAny(low, {"gypsum", "chalk", "salt", "epsom", "calcium", "chloride", "sulfate"}))
      c.salt.add(name);
    else if (has(low, "peel"))
      c.peel.add(name);
    else if (hasAny(low, {"oak", "wood", "chips"}))
      c.wood.add(name);
    else if (spice)
      c.spice.add(name);
    else if (!fining)
      c.unknown.add(name);
  }
  c.hasYeast = g.itemCount(KIND_YEAST) > 0;
  return c;
}

std::string compose(RecipeEditor& editor) {
  Workbench& wb = editor.wb;
  const Defaults& d = wb.defaults;
  RecipeRecord& rec = wb.recipe.rec;
  const WaterAdditions water = computeWaterAdditions(waterBalanceInputs(editor), d, wb.errors);

  // 1 and 2: the classes and their lists.
  const Classified c = classify(editor);
  const std::string crystal = c.crystal.text(), mash = c.mash.text(), frozen = c.frozen.text(),
                    juice = c.juice.text(), berry = c.berry.text(), extract = c.extract.text(),
                    salt = c.salt.text(), peel = c.peel.text(), wood = c.wood.text(), spice = c.spice.text(),
                    unknown = c.unknown.text(), longHops = c.longHops.text(), steepHops = c.steepHops.text();
  const int grainClasses = (c.mash.used() ? 1 : 0) | (c.crystal.used() ? 2 : 0) | (c.extract.used() ? 4 : 0);
  const bool metric = rec.unitType == METRIC_MEASURES;
  const bool noMash = rec.mashType == 0;

  // 3. Advice for an extract recipe with a real grain bill; repairs of impossible mash data.
  if (noMash) {
    if (c.mashWeight > 0.5)
      wb.prompter.message(
          "The recipe uses enough mashable grains so you should consider converting to at least a Partial Mash "
          "Recipe",
          kSmartInstructionsTitle, Icon::Information);
  } else {
    if (rec.mashWaterRate < 0 || rec.mashWaterRate > 3) rec.mashWaterRate = d.mashPerLbs;
    if (rec.spargeRate <= 0 || rec.spargeRate >= 3) rec.spargeRate = d.spargeRate;
    if (rec.spargeTemp < 10) rec.spargeTemp = d.spargeTemp;
  }

  // 4. A small grain bed is rinsed rather than sparged.
  const bool smallMash = c.mashWeight < 2.0;

  // 5. Water to steep the grains in: about two quarts, or eight liters, a pound.
  const double perUnit = metric ? 8.0 : 4.0;
  long steep = static_cast<long>(std::trunc(std::clamp(c.crystalQty * perUnit + 0.4, -1e9, 1e9)));
  if (steep == 0) steep = 1;
  const std::string steepWater = itos(steep) + (metric ? " Liter" : " Quart") + (steep > 1 ? "s" : "");

  const std::string boilVolume = trim(editor.sheet.txtInitalBoilVolume);
  const std::string fermentVolume = trim(editor.sheet.txtFermentVolume);
  const std::string units = editor.lblVolumeUnits;
  const std::string spargeTemp = formatNumber(rec.spargeTemp, "0");
  const bool salts = c.salt.used();
  bool halved = false;
  const bool topUpKettle = noMash || water.kettleTopUp > 0.11;

  const std::string crackCrystal =
      "Lightly crack the " + crystal + " and mix it with about " + steepWater + " of cold water in the boiling kettle.  ";
  const std::string heatGrains = std::string("Heat the mixture until it just starts to boil and then remove the grains.") + kBreak;
  const std::string mashIt = "Lightly crack the " + mash + ", mash according to the mash schedule.  ";
  const std::string spargeIt =
      "Sparge the grains with " + spargeTemp + " degree water.  " + "Transfer the sweet wort to your kettle." + kBreak;
  const std::string rinseFirst = "After the mash, strain the mash liquid into your kettle.  ";
  const std::string rinseRest = "Next, pour the sparge water (at " + spargeTemp +
                                " degrees) over the mash grains and let sit for 5 minutes, stirring occasionally.  " +
                                "Strain the liquid into your kettle, leaving the grains behind.  ";
  const std::string addToLevel =
      "Add enough cold water to the kettle to bring the water level to " + boilVolume + " " + units + ".  ";

  std::string t;
  auto saltsInMash = [&] {
    if (!salts) return;
    t += "Dissolve about half of the " + salt + " in the mash water and the other half in the sparge water.  ";
    halved = true;
  };
  auto saltsInSteep = [&] {
    if (!salts) return;
    t += "Dissolve about half of the " + salt + " in with the water and malt mixture.  ";
    halved = true;
  };
  auto saltsInKettle = [&] {
    if (!salts) return;
    t += halved ? "Dissolve the other half of the " + salt + " in the kettle.  " : "Dissolve the " + salt + " in the kettle.  ";
  };
  auto fillKettle = [&] {
    if (topUpKettle)
      t += "Next, add cold water to the kettle to bring the volume up to " + boilVolume + " " + units + ".  ";
  };
  // The mash with crystal malt: stirred into a small bed before its rinse, or added before the
  // sparge of a large one.
  auto mashWithCrystal = [&] {
    if (smallMash) {
      t += rinseFirst + "Mix the " + crystal + " with the mash grains.  " + rinseRest;
    } else {
      saltsInMash();
      t += "Before sparging the mash, lightly crack the " + crystal + " and combine it with the mash grains.  ";
      t += spargeIt;
    }
  };

  // 6. The opening, by the classes of grain.
  switch (grainClasses) {
    case 0: return std::string();
    case 1:
      t += mashIt;
      saltsInMash();
      t += spargeIt;
      fillKettle();
      break;
    case 2:
      t += crackCrystal;
      saltsInSteep();
      t += heatGrains + addToLevel;
      saltsInKettle();
      break;
    case 3:
      t += mashIt;
      mashWithCrystal();
      fillKettle();
      if (smallMash) saltsInKettle();
      break;
    case 4:
      t += salts ? "Dissolve the " + extract + " in " + boilVolume + " " + units +
                       " of brewing water and then stir in the " + salt + ".  "
                 : "Dissolve the " + extract + " in " + boilVolume + " " + units + " of brewing water.  ";
      break;
    case 5:
      if (noMash) {
        t += "Lightly crack the " + mash + " and mix it with about " + steepWater + " of cold water in the boiling kettle.  ";
        saltsInSteep();
        t += heatGrains;
      } else {
        t += mashIt;
        if (smallMash) {
          t += rinseFirst + rinseRest;
        } else {
          saltsInMash();
          t += spargeIt;
        }
      }
      t += "Next, ";
      if (topUpKettle) t += "add cold water to the kettle to bring the volume up to " + boilVolume + " " + units + " and ";
      t += "dissolve the " + extract + " in the brew water.  ";
      saltsInKettle();
      break;
    case 6:
      t += crackCrystal;
      saltsInSteep();
      t += heatGrains + addToLevel;
      saltsInKettle();
      t += "Stir and dissolve the " + extract + " into the brew water in the kettle.  ";
      break;
    default:  // 7: all three
      if (noMash) {
        t += "Lightly crack the " + mash + (c.crystal.names.size() > 1 ? ", " : " and ") + crystal +
             " and mix it with about " + steepWater + " of cold water in the boiling kettle.  " + heatGrains;
      } else {
        t += mashIt;
        mashWithCrystal();
      }
      fillKettle();
      t += "Stir and dissolve the " + extract + " in the brew water.  ";
      saltsInKettle();
      break;
  }

  // 7. The boil.
  if (c.longestBoil > 0) {
    const int boilTime = static_cast<int>(std::trunc(std::clamp(cellValue(editor.txtBoilTime), -32768.0, 32767.0)));
    const std::string longest = itos(c.longestBoil);
    if (cellValue(boilVolume) > d.kettleCapacity)
      t += "You may need to boil the wort in more than one pot since you end up with more than " +
           plainText(d.kettleCapacity) + " gallons of liquid.  ";
    if (boilTime > c.longestBoil) {
      t += "Boil the wort for " + itos(boilTime - c.longestBoil) + " minutes before adding any hops.  ";
      if (c.shortestBoil >= c.longestBoil)
        t += "Add the " + longHops + " hops to the wort and boil for " + longest + " minutes.  ";
      else
        t += "Next, add the " + longHops + " hops and boil this mixture for " + longest +
             " minutes.  Be sure to add the remaining hops in the list at the times indicated before the end of the "
             "boil.  ";
      t += "The total boil time should be " + itos(boilTime) + " minutes.  ";
    } else if (c.shortestBoil >= c.longestBoil) {
      t += "Add the " + longHops + " hops to the wort and boil for " + longest + " minutes.  ";
    } else {
      t += "Boil the wort for " + longest + " minutes with the " + longHops +
           " hops and add the remaining hops in the list at the times indicated before the end of the boil.  ";
    }
    if (c.spice.used()) t += "Add the " + spice + " during the last 15 minutes of the boil for flavor and aroma.  ";
    if (c.hasIrishMoss) t += "Add the Irish Moss during the last 10-15 minutes of the boil.  ";
    if (c.peel.used())
      t += "Add the " + peel + " during the last 10 minutes of the boil for flavor and aroma.  Be sure to get only the "
                               "colored part of the " +
           peel + ", try to get as little of the white part as possible.  ";
    if (c.steepHops.used())
      t += "Add the " + steepHops +
           " after you turn off the heat.  Let it steep for about 5 minutes before straining the wort into the "
           "fermenter.  ";
  }

  // 8. Berries steep in the cooling wort.
  if (c.berry.used())
    t += std::string(kBreak) + "Crush the " + berry +
         " lightly, so that the skin is broken on each.  Once the boil is completed, allow the wort to cool to "
         "approximately 170 degrees F.  Add the " +
         berry + " to the cooling wort and let it stand for about 1 hour.";

  // 9 to 14. Cooling and the fermenter.
  if (c.longHops.used()) t += kBreak;
  t += !c.steepHops.used() && !c.berry.used() ? "After the boil, cool " : "Cool ";
  t += "the mixture and transfer it your fermentation vessel.  ";
  if (c.frozen.used())
    t += "Now, add the " + frozen +
         " into the primary fermenter (be sure to defrost them first and make sure they don't have any preservatives "
         "since this could slow, or even stop, the yeast action).  ";
  if (c.juice.used())
    t += "Now, pour the " + juice +
         " into the primary fermenter (be sure it doesn't have any preservatives since this could slow, or even "
         "stop, the yeast action).  ";
  if (water.fermenterTopUp > 0.11 || (noMash && cellValue(fermentVolume) >= cellValue(boilVolume)))
    t += "Add enough cold water to make " + fermentVolume + " " + units + " in the fermenter.  ";
  if (c.berry.used()) t += "Include the " + berry + ", the hops and everything into your fermenter.  ";
  if (c.hasYeast) t += "Pitch the yeast when the mixture is cool.";
  if (c.berry.used()) t += "  Once primary fermentation has completed, skim off any floating berries and rack into secondary.";

  // 15. Wood belongs in the secondary.
  const FermentationForm& f = editor.fermentation;
  const bool secondary = lenientValue(f.txtValue[1]) > 0;
  if (c.wood.used()) {
    if (!secondary)
      wb.prompter.message("Wood Chips are typically used in the Secondary fermentation, this recipe doesn't call for one.",
                          kSmartInstructionsTitle, Icon::Information);
    t += std::string(kBreak) + "Don't forget to add the " + wood + " when you rack your brew to the secondary fermenter.";
  }

  // 16. Aging or lagering.
  const long agingCount = f.chkAge ? static_cast<long>(std::trunc(std::clamp(lenientValue(f.txtAgeValue), 0.0, 32767.0))) : 0;
  if (agingCount > 0) {
    t += std::string(kBreak) + "After the primary ";
    if (secondary) t += "and secondary ";
    t += editor.cboRecipeType == 1 ? "fermentation, lager the beer for at least " : "fermentation, age the beer for at least ";
    t += itos(agingCount) + " " + listText(measures().timeUnits, f.cboAgeUnits);
    if (!trim(f.txtAgeTemp).empty()) t += " at " + trim(f.txtAgeTemp) + " degrees.";
  }

  // 17 to 19. Finings and what the text could not place.
  if (c.hasGelatin)
    t += std::string(kBreak) +
         "Dissolve the gelatin in very warm water.  Add to the fermented beer with the priming, just before bottling.";
  if (c.hasPolyclar) t += std::string(kBreak) + "Add the polyclar to your fermented beer once most of the yeast has settled.";
  if (c.unknown.used()) t += std::string(kBreak) + "*** No specific instructions given for: " + unknown + ".";
  return t;
}

}  // namespace

std::string generateSmartInstructions(RecipeEditor& editor) {
  try {
    return compose(editor);
  } catch (const Terminated&) {
    throw;
  } catch (const std::exception& e) {
    editor.wb.prompter.message(std::string("INTERNAL ERROR: ") + e.what(), "Zythara Internal Error", Icon::Critical);
    return std::string();
  }
}

bool applySmartInstructions(RecipeEditor& editor, std::string& current) {
  const std::string text = generateSmartInstructions(editor);
  if (trim(current).empty()) {
    current = text;
    return true;
  }
  switch (editor.wb.prompter.message(kSmartReplaceQuestion, kSmartInstructionsTitle, Icon::Question,
                                     Buttons::YesNoCancel, Answer::Yes)) {
    case Answer::Yes: current = text; return true;
    case Answer::No: current += "\r\n\r\n" + text; return true;
    default: return false;
  }
}

}  // namespace zy
