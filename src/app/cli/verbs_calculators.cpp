// Verbs over the brewing calculators' models: water (the water volume report), treatment (the
// ion totals of the salts), mash (the mash list), formulate (the malt formulator's solver),
// starter (starter and kraeusening volumes) and new-from-style (a new recipe from a style).
#include <cmath>

#include "app/cli/Cli.h"
#include "calculators/HopsUtilization.h"
#include "calculators/MaltFormulator.h"
#include "calculators/MashSchedule.h"
#include "calculators/Starter.h"
#include "calculators/WaterManagement.h"
#include "calculators/WaterTreatment.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/NewRecipe.h"
#include "recipes/RecipeEditor.h"
#include "styles/StyleStore.h"

namespace zy::cli {
namespace {

// Options after the recipe number: "--name value" pairs (a flag without a value where `flags`
// names it). False on anything else.
struct Options {
  std::vector<std::pair<std::string, std::string>> list;
  bool has(const std::string& name) const {
    for (const auto& [n, v] : list)
      if (n == name) return true;
    return false;
  }
  std::string get(const std::string& name, const std::string& fallback = {}) const {
    std::string r = fallback;
    for (const auto& [n, v] : list)
      if (n == name) r = v;
    return r;
  }
};

bool parseOptions(const std::vector<std::string>& args, size_t from, const std::vector<std::string>& valued,
                  const std::vector<std::string>& flags, Options& o) {
  for (size_t i = from; i < args.size(); ++i) {
    const std::string& a = args[i];
    bool known = false;
    for (const std::string& f : flags)
      if (a == f) o.list.emplace_back(a, ""), known = true;
    for (const std::string& v : valued)
      if (!known && a == v && i + 1 < args.size()) o.list.emplace_back(a, args[++i]), known = true;
    if (!known) return false;
  }
  return true;
}

// A number option: the whole text must be a number.
bool numberOption(const Options& o, const std::string& name, double& v) {
  if (!o.has(name)) return true;
  auto x = strictValue(o.get(name));
  if (!x) return false;
  v = *x;
  return true;
}

bool flagOption(const Options& o, const std::string& name, bool& v) {
  if (!o.has(name)) return true;
  const std::string t = o.get(name);
  if (t != "0" && t != "1") return false;
  v = t == "1";
  return true;
}

// Opens recipe args[0] in the editor, with the tables the editor computes with.
int openRecipe(Context& c, RecipeEditor& editor, const char* verb, const std::string& usage) {
  return openStoredRecipe(c, editor, c.args.empty() ? std::string() : c.args[0], verb, usage);
}

int verbWater(Context& c) {
  const std::string usage =
      "water N [--hold-initial 0|1] [--hold-final 0|1] [--full-boil 0|1] [--add-kettle V] [--add-primary V]";
  Options o;
  if (!parseOptions(c.args, 1, {"--hold-initial", "--hold-final", "--full-boil", "--add-kettle", "--add-primary"}, {}, o))
    return c.usage(usage);
  RecipeEditor editor(c.wb);
  if (int s = openRecipe(c, editor, "water", usage); s != EXIT_DONE) return s;
  WaterManagement w(editor);
  w.load();
  double kettle = -1, primary = -1;
  if (!flagOption(o, "--hold-initial", w.chkHoldInitialVolume) || !flagOption(o, "--hold-final", w.chkHoldFinalVolume) ||
      !flagOption(o, "--full-boil", w.chkFullBoil) || !numberOption(o, "--add-kettle", kettle) ||
      !numberOption(o, "--add-primary", primary))
    return c.usage(usage);
  if (kettle >= 0) w.txtAddToKettle = formatNumber(kettle, "0.0");
  if (primary >= 0) w.txtAddToPrimary = formatNumber(primary, "0.0");
  w.computeWaterVolumes();
  c.line(WaterManagement::kReportTitle);
  for (const WaterReportLine& l : w.report) c.line(l.text());
  return EXIT_DONE;
}

int verbTreatment(Context& c) {
  const std::string usage = "treatment N [--water NAME] [--tsp i=Q ...]";
  Options o;
  if (!parseOptions(c.args, 1, {"--water", "--tsp"}, {}, o)) return c.usage(usage);
  RecipeEditor editor(c.wb);
  if (int s = openRecipe(c, editor, "treatment", usage); s != EXIT_DONE) return s;
  WaterTreatment t(editor);
  t.load();
  if (o.has("--water")) {
    int found = -1;
    for (size_t k = 0; k < famousWaters().size(); ++k)
      if (lower(famousWaters()[k].name) == lower(trim(o.get("--water")))) found = static_cast<int>(k);
    if (found < 0) {
      std::fprintf(c.err, "zythara-cli: treatment: there is no water %s\n", o.get("--water").c_str());
      return EXIT_USAGE;
    }
    t.selectFamous(found);
  }
  for (const auto& [name, value] : o.list) {
    if (name != "--tsp") continue;
    const size_t eq = value.find('=');
    long i;
    auto q = eq == std::string::npos ? std::nullopt : strictValue(value.substr(eq + 1));
    if (!q || !parseWhole(value.substr(0, eq), i) || i < 1 || i > kChemicalCount) return c.usage(usage);
    t.setTsp(static_cast<int>(i), formatNumber(lenientValue(t.txtTsp[static_cast<size_t>(i)]) + *q, "0.0; ; "));
  }
  for (int row : {WaterTreatment::ROW_TOTALS, WaterTreatment::ROW_RANGE}) {
    const auto& cells = t.grdTotals[static_cast<size_t>(row)];
    std::string line = trim(cells[0]);
    for (size_t j = 1; j < cells.size(); ++j) line += "\t" + cells[j];
    c.line(line);
  }
  return EXIT_DONE;
}

int verbMash(Context& c) {
  const std::string usage = "mash N [--mode 0|1]";
  Options o;
  if (!parseOptions(c.args, 1, {"--mode"}, {}, o)) return c.usage(usage);
  const std::string mode = o.get("--mode", "1");
  if (mode != "0" && mode != "1") return c.usage(usage);
  RecipeEditor editor(c.wb);
  if (int s = openRecipe(c, editor, "mash", usage); s != EXIT_DONE) return s;
  MashSchedule m(editor);
  m.load();
  m.optTime(mode == "0" ? MashSchedule::FROM_START : MashSchedule::EACH_TEMP);
  for (const MashEntry& e : m.lvMash) c.line(e.time + "\t" + e.temp + "\t" + e.comment);
  return EXIT_DONE;
}

int verbFormulate(Context& c) {
  const std::string usage = "formulate N --og G --color C [--coarse]";
  Options o;
  if (!parseOptions(c.args, 1, {"--og", "--color"}, {"--coarse"}, o) || !o.has("--og") || !o.has("--color"))
    return c.usage(usage);
  double og = 0, color = 0;
  if (!numberOption(o, "--og", og) || !numberOption(o, "--color", color)) return c.usage(usage);
  RecipeEditor editor(c.wb);
  if (int s = openRecipe(c, editor, "formulate", usage); s != EXIT_DONE) return s;
  MaltFormulator f(editor);
  f.load();
  f.txtTargetOG = formatNumber(og, "0.000");
  f.txtTargetColor = formatNumber(color, "0.0");
  f.coarse = o.has("--coarse");
  if (!f.mnuComputeOGColor()) return EXIT_REPORTED;
  for (const FormulatorMalt& m : f.lvMalts)
    c.line(m.name + "\t" + m.quantity + "\t" + listText(measures().weightUnits, m.unit) + "\t" + m.computedPct);
  c.line("OG\t" + f.txtCompOG);
  c.line("Color\t" + f.txtCompColor);
  return EXIT_DONE;
}

int verbStarter(Context& c) {
  const std::string usage = "starter --volume V --unit U --unit-type T --gravity G --level L";
  Options o;
  if (!parseOptions(c.args, 0, {"--volume", "--unit", "--unit-type", "--gravity", "--level"}, {}, o)) return c.usage(usage);
  double volume = 0, gravity = 0, type = 0, level = 1;
  if (!o.has("--volume") || !numberOption(o, "--volume", volume) || !numberOption(o, "--gravity", gravity) ||
      !numberOption(o, "--unit-type", type) || !numberOption(o, "--level", level) || type < 0 || type > 2 || level < 0 ||
      level > 2)
    return c.usage(usage);
  // The volume unit by its code or its name.
  long unit = US_GAL_CONST;
  const std::string u = o.get("--unit", "1");
  if (!parseWhole(u, unit)) unit = findInList(measures().volumeUnits, 7, u, -1);
  if (unit < 0 || unit > 7) return c.usage(usage);
  RecipeEditor editor(c.wb);
  editor.initRecipeForm();
  c.wb.recipe.rec.unitType = static_cast<int>(type);
  c.wb.recipe.rec.volumeUnits = static_cast<int>(unit);
  editor.sheet.txtFermentVolume = formatNumber(volume, "0.0");
  editor.sheet.lblOG = formatNumber(gravity, "0.000");
  StarterCalculator s(editor);
  s.load();
  s.setLevel(static_cast<int>(level));
  c.line(s.lblYbox);
  c.line(s.lblKbox);
  return EXIT_DONE;
}

int verbNewFromStyle(Context& c) {
  const std::string usage = "new-from-style STYLE [--choice 0|1|2]";
  if (c.args.empty()) return c.usage(usage);
  Options o;
  if (!parseOptions(c.args, 1, {"--choice"}, {}, o)) return c.usage(usage);
  const std::string choice = o.get("--choice", "0");
  if (choice != "0" && choice != "1" && choice != "2") return c.usage(usage);
  if (!LoadBeerStyles(c.wb)) return EXIT_REPORTED;
  LoadHopsUtilization(c.wb.hops, c.wb.settings);
  int row = -1;
  for (int k = 0; k < c.wb.styles.BeerStyleCount && row < 0; ++k)
    if (lower(trim(c.wb.styles.BeerStyles[static_cast<size_t>(k)].styleName)) == lower(trim(c.args[0]))) row = k;
  if (row < 0) {
    std::fprintf(c.err, "zythara-cli: new-from-style: there is no style %s\n", displayUtf8(c.args[0]).c_str());
    return EXIT_USAGE;
  }
  RecipeEditor editor(c.wb);
  editor.initRecipeForm();
  MaltFormulator f(editor);
  NewRecipeDialog d(c.wb);
  d.setStyle(row);
  d.setChoice(choice[0] - '0');
  const long slot = d.cmdOK(editor, f);
  if (slot < 1) return EXIT_REPORTED;
  if (f.mnuComputeOGColor()) f.mnuFileExport();
  if (!editor.mnuFileSave_Click()) return EXIT_REPORTED;
  c.line(itos(slot));
  for (const FormulatorMalt& m : f.lvMalts)
    c.line(m.name + "\t" + m.quantity + "\t" + listText(measures().weightUnits, m.unit) + "\t" + m.color + "\t" +
           m.extraction + "\t" + m.computedPct);
  return EXIT_DONE;
}

VerbRegistrar r1("water", "water N [--hold-initial 0|1] [--hold-final 0|1] [--full-boil 0|1] [--add-kettle V] [--add-primary V]",
                 verbWater);
VerbRegistrar r2("treatment", "treatment N [--water NAME] [--tsp i=Q ...]", verbTreatment);
VerbRegistrar r3("mash", "mash N [--mode 0|1]", verbMash);
VerbRegistrar r4("formulate", "formulate N --og G --color C [--coarse]", verbFormulate);
VerbRegistrar r5("starter", "starter --volume V --unit U --unit-type T --gravity G --level L", verbStarter);
VerbRegistrar r6("new-from-style", "new-from-style STYLE [--choice 0|1|2]", verbNewFromStyle);

}  // namespace
}  // namespace zy::cli
