// Recomputing a 25-item recipe in the editor model after a quantity change.
#include <benchmark/benchmark.h>

#include "core/measures.h"
#include "core/ports.h"
#include "core/settings.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "workbench/Workbench.h"

namespace {

struct Fixture {
  zy::MemorySettingsStore settings;
  zy::ConsolePrompter prompter{stderr, true};
  zy::FixedClock clock{47000.0};
  zy::Workbench wb{"/tmp/zythara-bench-unused", settings, prompter, clock};
  zy::RecipeEditor editor{wb};
  int maltRow = 0;

  Fixture() {
    zy::newRecipeRecord(wb);
    wb.recipe.rec.mashType = 2;
    editor.initRecipeForm();
    editor.populateRecipeForm();
    for (int k = 0; k < 10; ++k)
      editor.AddIngredient(zy::KIND_MALT, "Malt " + std::to_string(k), 1.0 + k * 0.25, k % 4, 1.10, 1.030 + k * 0.001,
                           2.0 + k, k % 2 ? -1 : 0);
    for (int k = 0; k < 8; ++k)
      editor.AddIngredient(zy::KIND_HOPS, "Hops " + std::to_string(k), 0.25 + k * 0.1, zy::UNIT_OZ, 1.25, 4.0 + k,
                           5.0 + k * 11, 0);
    for (int k = 0; k < 3; ++k) editor.AddIngredient(zy::KIND_OTHER, "Other " + std::to_string(k), 1, 5, 0.5, 0, 0, 0);
    for (int k = 0; k < 4; ++k)
      editor.AddIngredient(zy::KIND_YEAST, "Yeast " + std::to_string(k), 1, 0, 4.0, 0.70 + k * 0.02, 0, 0);
    editor.rescaled();
    maltRow = 3;
    editor.selectRow(maltRow);
  }
};

// A malt quantity typed into the edit strip: the cell, colour and gravity, bitterness (the
// gravity adjustment is on), cost, the style flags and the colour sample.
void BM_RecomputeAfterMaltQuantity(benchmark::State& state) {
  Fixture f;
  bool flip = false;
  for (auto _ : state) {
    f.editor.setQuantity(flip ? "5.5" : "6.25");
    flip = !flip;
    benchmark::DoNotOptimize(f.editor.sheet.lblOG.data());
  }
}
BENCHMARK(BM_RecomputeAfterMaltQuantity)->Unit(benchmark::kMicrosecond);

// All three calculations over the whole table.
void BM_RecomputeAll(benchmark::State& state) {
  Fixture f;
  for (auto _ : state) {
    f.editor.rescaled();
    benchmark::DoNotOptimize(f.editor.sheet.lblIBU.data());
  }
}
BENCHMARK(BM_RecomputeAll)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
