// Verbs over the batch log: logs (the logs of a recipe, as its list of logs shows them) and
// log-show (one log, every field as the log window shows it, with the sums of the mash).
#include "app/cli/Cli.h"
#include "batchlog/BatchLogEditor.h"
#include "calculators/HopsUtilization.h"
#include "core/measures.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "styles/StyleStore.h"

namespace zy::cli {
namespace {

bool wholeArg(Context& c, long& n) {
  return c.args.size() == 1 && parseWhole(c.args[0], n) && n >= 1 && n <= 2147483647L;
}

int verbLogs(Context& c) {
  long n;
  if (!wholeArg(c, n) || n > 32767) return c.usage("logs N");
  BatchLogList list;
  if (!list.loadBatchLogList(c.wb, static_cast<int>(n))) return EXIT_REPORTED;
  for (const BatchLogEntry& e : list.entries)
    c.line(itos(e.recordNo) + "\t" + e.batchNo + "\t" + e.dateBrewed + "\t" + e.status);
  return EXIT_DONE;
}

std::string oneLine(const std::string& text) {
  std::string t = replaceAll(text, "\r\n", "\\n");
  t = replaceAll(t, "\n", "\\n");
  return replaceAll(t, "\r", "\\n");
}

int verbLogShow(Context& c) {
  long n;
  if (!wholeArg(c, n)) return c.usage("log-show R");
  Workbench& wb = c.wb;
  BatchLogList list;
  BatchLogEditor editor(wb, list);
  auto rec = list.openBatchLog(wb, n);
  if (!rec) return EXIT_REPORTED;

  // The target and the unit labels come from the log's recipe, opened as the editor shows it.
  RecipeEditor recipe(wb);
  LogRecipeContext ctx;
  if (recipeSlotState(wb, rec->recipeNo) == RecipeSlot::Stored) {
    LoadBeerStyles(wb);
    LoadHopsUtilization(wb.hops, wb.settings);
    recipe.initRecipeForm();
    if (recipe.openRecipe(rec->recipeNo)) {
      ctx.grid = &recipe.sheet.grid;
      ctx.mashEfficiency = wb.recipe.rec.mashEfficiency;
      ctx.unitType = wb.recipe.rec.unitType;
      ctx.volumeUnitName = listText(measures().volumeUnits, wb.recipe.rec.volumeUnits);
    }
  }
  editor.setRecipe(ctx);
  editor.showLog(*rec);

  auto f = [&](const std::string& name, const std::string& value) { c.line(name + "=" + oneLine(value)); };
  auto idx = [](const char* name, size_t k) { return std::string(name) + "[" + std::to_string(k) + "]"; };
  f("record", itos(n));
  f("recipeNo", itos(rec->recipeNo));
  f("recipeName", ctx.grid ? trim(wb.recipe.rec.recipeName) : std::string());
  f("batchNo", editor.lblBatchNo);
  f("dateBrewed", editor.txtDateBrewed);
  f("status", statusName(editor.cboLogStatus));
  for (size_t k = 0; k < editor.lvMash.size(); ++k) {
    f(idx("mashTime", k), editor.lvMash[k].minutes);
    f(idx("mashTemp", k), editor.lvMash[k].temp);
    f(idx("mashInfusion", k), editor.lvMash[k].infusion);
  }
  f("spargeVolume", editor.txtSpargeVol);
  f("spargeTemp", editor.txtSpargeTemp);
  f("boilVolume", editor.txtBoilVol);
  f("mashGravity", editor.txtMashGravity);
  f("mashGravityTemp", editor.txtMashTemp);
  f("adjustedMashGravity", editor.lblAdjSG1);
  f("boilTime", editor.txtBoilTime);
  f("kraeuseningWort", editor.txtKraeusen);
  f("fermentVolume", editor.txtFermVol);
  f("fermentGravity", editor.txtFinalGravity);
  f("fermentGravityTemp", editor.txtFGTemp);
  f("adjustedFermentGravity", editor.lblAdjSG2);
  f("pitchingTemp", editor.txtPitchTemp);
  f("readingCount", itos(static_cast<long long>(editor.lvReading.size())));
  for (size_t k = 0; k < editor.lvReading.size(); ++k) {
    const ReadingRow& r = editor.lvReading[k];
    f(idx("readingType", k), r.type);
    f(idx("readingDate", k), r.date);
    f(idx("readingTemp", k), r.temp);
    f(idx("readingGravity", k), r.gravity);
    f(idx("readingNote", k), r.note);
  }
  f("bottlingDate", editor.txtDateCond);
  f("agedIn", editor.cboAgedIn);
  f("conditioning", editor.cboCondition);
  f("conditionDetails", editor.txtCondDetails);
  f("comments", editor.txtComments);
  f("mashVolume", editor.txtMashVol);
  f("grainsMashed", editor.txtLbsGrain);
  for (size_t k = 0; k < 2; ++k) {
    f(idx("quantity", k), editor.txtQuantity[k]);
    f(idx("capacity", k), editor.txtCapacity[k]);
    const int u = editor.cboContainerUnits[k];
    f(idx("containerUnits", k), u >= 0 ? containerUnitNames()[static_cast<size_t>(u)] : std::string());
  }
  f("weightUnits", editor.lblWeightUnits);
  f("tempUnits", editor.lblTempUnits);
  f("mashExtractionPoints", editor.lblQualPts);
  f("targetExtraction", editor.lblTargetExt);
  f("mashEfficiency", editor.actualEfficiency());
  return EXIT_DONE;
}

VerbRegistrar r1("logs", "logs N", verbLogs);
VerbRegistrar r2("log-show", "log-show R", verbLogShow);

}  // namespace
}  // namespace zy::cli
