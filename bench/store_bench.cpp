// The recipe store on big files: scanning 30,000 recipes, and loading the last recipe when its
// items are scattered over 100,000 item records.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "core/records.h"
#include "recipes/RecipeStore.h"
#include "workbench/Workbench.h"

namespace {

struct NullPrompter : zy::Prompter {
  zy::Answer message(const std::string&, const std::string&, zy::Icon, zy::Buttons, zy::Answer a) override { return a; }
  std::optional<std::string> input(const std::string&, const std::string&, const std::string&) override { return {}; }
  std::optional<std::string> openFile(const std::string&, const std::string&, const std::string&) override { return {}; }
  std::optional<std::string> saveFile(const std::string&, const std::string&, const std::string&) override { return {}; }
  std::optional<std::string> chooseFolder(const std::string&, const std::string&) override { return {}; }
};

struct BigStore {
  std::string root;
  zy::MemorySettingsStore settings;
  NullPrompter prompter;
  zy::SystemClock clock;
  std::unique_ptr<zy::Workbench> wb;
  static constexpr int kRecipes = 30000;
  static constexpr int kItems = 100000;

  BigStore() {
    root = (std::filesystem::temp_directory_path() / "zythara-bench-store").string();
    std::filesystem::remove_all(root);
    zy::ProgramFolder(root).ensureFolders();
    wb = std::make_unique<zy::Workbench>(root, settings, prompter, clock);
    wb->loadDefaults();
    std::FILE* r = std::fopen(wb->folder.dataFile(zy::kRecipeFile).c_str(), "wb");
    for (int n = 1; n <= kRecipes; ++n) {
      zy::RecipeRecord rec;
      rec.recipeNo = n;
      rec.recipeName = "Recipe " + std::to_string(n % 977);
      rec.itemCount = n == kRecipes ? 25 : 0;
      std::string b = rec.encode();
      std::fwrite(b.data(), 1, b.size(), r);
    }
    std::fclose(r);
    // The last recipe's 25 items lie spread over the whole items file, the last one at its end.
    std::FILE* it = std::fopen(wb->folder.dataFile(zy::kRecipeItemsFile).c_str(), "wb");
    for (int n = 1; n <= kItems; ++n) {
      zy::RecipeItemRecord item;
      item.recipeNo = (n % (kItems / 25) == 0) ? kRecipes : 1 + n % (kRecipes - 1);
      item.itemName = "Item";
      std::string b = item.encode();
      std::fwrite(b.data(), 1, b.size(), it);
    }
    std::fclose(it);
    std::fclose(std::fopen(wb->folder.dataFile(zy::kCommentFile).c_str(), "wb"));
  }
  ~BigStore() { std::filesystem::remove_all(root); }
};

BigStore& store() {
  static BigStore s;
  return s;
}

void BM_ScanRecipes(benchmark::State& state) {
  auto& s = store();
  for (auto _ : state) {
    long count = 0;
    zy::scanRecipes(*s.wb, [&](long, const zy::RecipeRecord&) { ++count; });
    benchmark::DoNotOptimize(count);
    if (count != BigStore::kRecipes) state.SkipWithError("wrong count");
  }
}
BENCHMARK(BM_ScanRecipes)->Unit(benchmark::kMillisecond);

void BM_LoadLastRecipe(benchmark::State& state) {
  auto& s = store();
  for (auto _ : state) {
    bool ok = zy::loadRecipe(*s.wb, BigStore::kRecipes);
    if (!ok || s.wb->recipe.rec.itemCount != 25) state.SkipWithError("load failed");
  }
}
BENCHMARK(BM_LoadLastRecipe)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
