// Verbs over the program core and the recipe store: version, defaults, scan, dump, new, delete.
#include "app/cli/Cli.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/RecipeStore.h"

namespace zy::cli {
namespace {

int verbVersion(Context& c) {
  c.line(versionText());
  return EXIT_DONE;
}

int verbDefaults(Context& c) {
  for (const DefaultKey& k : defaultKeys()) c.line(std::string(k.key) + "=" + defaultValueText(c.wb.defaults, k));
  return EXIT_DONE;
}

int verbScan(Context& c) {
  bool ok = scanRecipes(c.wb, [&](long n, const RecipeRecord& r) { c.line(itos(n) + "\t" + trim(r.recipeName)); });
  return ok ? EXIT_DONE : EXIT_REPORTED;
}

std::string shown(const std::string& text) {
  std::string t = replaceAll(trim(text), "\r\n", "\\n");
  t = replaceAll(t, "\n", "\\n");
  return replaceAll(t, "\r", "\\n");
}

void dumpRecord(const Context& c, const RecipeRecord& r) {
  auto i = [&](const char* n, long v) { c.line(std::string(n) + "=" + itos(v)); };
  auto d = [&](const std::string& n, double v) { c.line(n + "=" + plainText(v)); };
  auto t = [&](const std::string& n, const std::string& v) { c.line(n + "=" + shown(v)); };
  auto idx = [](const char* n, size_t k) { return std::string(n) + "[" + std::to_string(k) + "]"; };
  i("controlStart", r.controlStart);
  i("recipeNo", r.recipeNo);
  i("recipeType", r.recipeType);
  i("unitType", r.unitType);
  i("itemCount", r.itemCount);
  t("recipeName", r.recipeName);
  t("beerStyle", r.beerStyle);
  d("boilVolume", r.boilVolume);
  d("fermentVolume", r.fermentVolume);
  i("volumeUnits", r.volumeUnits);
  d("color", r.color);
  i("bitterness", r.bitterness);
  d("originalGravity", r.originalGravity);
  d("finalGravity", r.finalGravity);
  d("alcohol", r.alcohol);
  d("boilTime", r.boilTime);
  i("mashType", r.mashType);
  for (size_t k = 0; k < 13; ++k) d(idx("mashStepTemp", k), r.mashStepTemp[k]);
  for (size_t k = 0; k < 13; ++k) d(idx("mashStepTime", k), r.mashStepTime[k]);
  for (size_t k = 0; k < 13; ++k) t(idx("mashStepComment", k), r.mashStepComment[k]);
  d("mashWaterRate", r.mashWaterRate);
  d("mashWaterVolume", r.mashWaterVolume);
  d("mashEfficiency", r.mashEfficiency);
  for (size_t k = 0; k < 13; ++k) d(idx("mashStepReserved1", k), r.mashStepReserved1[k]);
  for (size_t k = 0; k < 13; ++k) d(idx("mashStepReserved2", k), r.mashStepReserved2[k]);
  i("mashReservedCode", r.mashReservedCode);
  d("spargeVolume", r.spargeVolume);
  i("spargeVolumeUnits", r.spargeVolumeUnits);
  d("spargeTemp", r.spargeTemp);
  d("spargeRate", r.spargeRate);
  for (size_t k = 0; k < 3; ++k) d(idx("fermentTime", k), r.fermentTime[k]);
  for (size_t k = 0; k < 3; ++k) c.line(idx("fermentTimeUnits", k) + "=" + itos(r.fermentTimeUnits[k]));
  for (size_t k = 0; k < 3; ++k) d(idx("fermentTemp", k), r.fermentTemp[k]);
  for (size_t k = 0; k < 3; ++k) c.line(idx("fermentVessel", k) + "=" + itos(r.fermentVessel[k]));
  i("commentCount", r.commentCount);
  i("container", r.container);
  i("carbonation", r.carbonation);
  t("primingComment", r.primingComment);
  t("dateCreated", r.dateCreated);
  t("idCode", r.idCode);
  t("labelName", r.labelName);
  i("agingCount", r.agingCount);
  i("agingUnits", r.agingUnits);
  d("agingTemp", r.agingTemp);
  t("reservedText", r.reservedText);
  i("controlEnd", r.controlEnd);
}

void dumpItem(const Context& c, int k, const RecipeItemRecord& it) {
  std::string p = "item[" + std::to_string(k) + "].";
  auto i = [&](const char* n, long v) { c.line(p + n + "=" + itos(v)); };
  auto d = [&](const char* n, double v) { c.line(p + n + "=" + plainText(v)); };
  auto t = [&](const char* n, const std::string& v) { c.line(p + n + "=" + shown(v)); };
  i("controlStart", it.controlStart);
  i("recipeNo", it.recipeNo);
  i("itemKind", it.itemKind);
  t("itemName", it.itemName);
  d("quantity", it.quantity);
  i("quantityUnits", it.quantityUnits);
  d("unitCost", it.unitCost);
  d("rating", it.rating);
  d("detail", it.detail);
  i("mashFlag", it.mashFlag);
  t("itemReserved", it.itemReserved);
  i("controlEnd", it.controlEnd);
}

int verbDump(Context& c) {
  long n;
  if (c.args.size() != 1 || !parseWhole(c.args[0], n) || n < 1) return c.usage("dump N");
  if (!requireStoredRecipe(c, "dump", n) || !loadRecipe(c.wb, n)) return EXIT_REPORTED;
  const CurrentRecipe& cur = c.wb.recipe;
  dumpRecord(c, cur.rec);
  int count = std::max(0, std::min(cur.rec.itemCount, kMaxRecipeItems));
  for (int k = 0; k < count; ++k) dumpItem(c, k, cur.items[k]);
  c.line("comment=" + shown(cur.comment));
  return EXIT_DONE;
}

int verbNew(Context& c) {
  if (c.args.empty()) return c.usage("new NAME");
  std::string name;
  for (const std::string& a : c.args) name += (name.empty() ? "" : " ") + a;
  newRecipeRecord(c.wb);
  long slot = findNextRecipeSlot(c.wb);
  if (slot < 1) return EXIT_REPORTED;
  c.wb.recipe.rec.recipeNo = static_cast<int>(slot);
  c.wb.recipe.rec.recipeName = trim(name).substr(0, 60);
  if (!saveCurrentRecipe(c.wb)) return EXIT_REPORTED;
  c.line(itos(slot));
  return EXIT_DONE;
}

int verbDelete(Context& c) {
  long n;
  if (c.args.size() != 1 || !parseWhole(c.args[0], n) || n < 1) return c.usage("delete N");
  return deleteRecipe(c.wb, n) ? EXIT_DONE : EXIT_REPORTED;
}

VerbRegistrar r1("version", "version", verbVersion);
VerbRegistrar r2("defaults", "defaults", verbDefaults);
VerbRegistrar r3("scan", "scan", verbScan);
VerbRegistrar r4("dump", "dump N", verbDump);
VerbRegistrar r5("new", "new NAME", verbNew);
VerbRegistrar r6("delete", "delete N", verbDelete);

}  // namespace
}  // namespace zy::cli
