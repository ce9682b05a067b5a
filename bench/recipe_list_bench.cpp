// Building the recipe list of 30,000 recipes, many of them with doubled names: the rebuild of the
// tree from ZYRecipe.dat (mnuSortBy_Click) and the adds alone.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "core/dates.h"
#include "core/paths.h"
#include "core/records.h"
#include "core/settings.h"
#include "core/text.h"
#include "recipes/RecipeList.h"
#include "recipes/RecipeRecords.h"
#include "workbench/Workbench.h"

namespace {

using namespace zy;

class QuietPrompter : public Prompter {
 public:
  Answer message(const std::string& text, const std::string&, Icon, Buttons, Answer d) override {
    ++count;
    last = text;
    return d;
  }
  std::optional<std::string> input(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> openFile(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> saveFile(const std::string&, const std::string&, const std::string&) override {
    return std::nullopt;
  }
  std::optional<std::string> chooseFolder(const std::string&, const std::string&) override { return std::nullopt; }
  int count = 0;
  std::string last;
};

constexpr int kRecipes = 30000;

// Names with many doubles. A chain of numbered names holds 31 names before its number no longer
// fits 16 bits (Amber, Amber 1 ... Amber 10, Amber 12, 22, 23, 33, 34 ... 99, 100, 102, 1202,
// 122022), so a name can be doubled 30 times: a fifth of the recipes share 240 names (25 each),
// the rest 800 names (30 each).
std::string benchName(int i) {
  if (i % 5 == 0) {
    int p = (i / 5) % 240;
    return "Popular " + std::string(1, static_cast<char>('A' + p % 26)) + std::string(1, static_cast<char>('a' + p / 26));
  }
  int k = (i * 7919) % 1000;
  return "Brew " + std::string(1, static_cast<char>('A' + k % 26)) +
         std::string(1, static_cast<char>('a' + k / 26 % 26)) + std::string(1, static_cast<char>('a' + k / 676));
}

RecipeRecord benchRecord(int no) {
  RecipeRecord r;
  r.recipeNo = no;
  r.recipeName = benchName(no);
  r.beerStyle = no % 4 == 0 ? "" : "Style " + itos(no % 60);
  r.recipeType = no % 7;
  r.mashType = no % 6;
  r.dateCreated = formatDateMDY(serialFromCivil(1995 + no % 30, 1 + no % 12, 1 + no % 28));
  return r;
}

struct Fixture {
  Fixture() {
    std::string base = std::filesystem::temp_directory_path().string() + "/zybench-XXXXXX";
    std::vector<char> buf(base.begin(), base.end());
    buf.push_back('\0');
    dir = mkdtemp(buf.data());
    ProgramFolder(dir).ensureFolders();
    wb = std::make_unique<Workbench>(dir, settings, prompter, clock);
    wb->loadDefaults();
  }
  ~Fixture() {
    wb.reset();
    std::error_code ec;
    std::filesystem::remove_all(dir, ec);
  }
  void writeRecipes() {
    RecordFile f(wb->folder.dataFile(kRecipeFile), RecipeRecord::kLength);
    for (int no = 1; no <= kRecipes; ++no) f.write(no, benchRecord(no).encode());
    f.flush();
  }
  std::string dir;
  MemorySettingsStore settings;
  QuietPrompter prompter;
  FixedClock clock{serialFromCivil(2026, 11, 22)};
  std::unique_ptr<Workbench> wb;
};

// The rebuild of the tree from the file, as the list window does on a change of sort mode.
void BM_RebuildRecipeList(benchmark::State& state) {
  Fixture fx;
  fx.writeRecipes();
  const int mode = static_cast<int>(state.range(0));
  for (auto _ : state) {
    fx.wb->recipeList.sortMode = -1;
    fx.wb->recipeList.mnuSortBy_Click(*fx.wb, mode);
    benchmark::DoNotOptimize(fx.wb->recipeList.tree.size());
  }
  state.counters["leaves"] = static_cast<double>(kRecipes);
  if (fx.wb->recipeList.tree.tag != itos(kRecipes)) {
    std::fprintf(stderr, "listed %s, messages %d, last %s\n", fx.wb->recipeList.tree.tag.c_str(), fx.prompter.count,
                 fx.prompter.last.c_str());
    state.SkipWithError("not every recipe was listed");
  }
}
BENCHMARK(BM_RebuildRecipeList)->Arg(0)->Arg(1)->Arg(3)->Unit(benchmark::kMillisecond);

// The adds alone, every recipe sharing one name: after 31 names the chain's number no longer fits
// 16 bits, and each further add ends in the message "In AddToRecipeList: Overflow".
void BM_AddOneNameThirtyThousandTimes(benchmark::State& state) {
  Fixture fx;
  for (auto _ : state) {
    RecipeList& list = fx.wb->recipeList;
    list.tree.clear();
    list.sortMode = SORT_BY_NAME;
    for (int no = 1; no <= kRecipes; ++no) {
      fx.wb->recipe.rec = RecipeRecord{};
      fx.wb->recipe.rec.recipeNo = no;
      fx.wb->recipe.rec.recipeName = "Amber";
      list.addToRecipeList(*fx.wb, false);
    }
    benchmark::DoNotOptimize(list.tree.size());
  }
}
BENCHMARK(BM_AddOneNameThirtyThousandTimes)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
