#pragma once
// A new recipe open in the editor with the reader over it, and the grid's item rows as text.
#include "reader/RecipeReader.h"
#include "recipes/RecipeEditor.h"
#include "recipes/RecipeStore.h"
#include "support/TestSupport.h"

namespace zy::test {

struct ReaderBench {
  Bench b;
  Workbench& wb = *b.wb;
  RecipeEditor e{wb};
  RecipeReader r{e};
  ReaderBench() {
    newRecipeRecord(wb);
    e.initRecipeForm();
    e.populateRecipeForm();
  }
  // Every item row as "kind|name|qty|unit|rating|detail|mash".
  std::vector<std::string> rows() const {
    const IngredientTable& g = e.sheet.grid;
    std::vector<std::string> out;
    for (int row = 0; row < g.totalRow(); ++row) {
      if (!g.isItemRow(row)) continue;
      std::string s = std::to_string(g.kindOfRow(row));
      for (int c = COL_NAME; c <= COL_MASH; ++c) s += c == COL_COST ? "" : "|" + g.cell(row, c);
      out.push_back(s);
    }
    return out;
  }
};

}  // namespace zy::test
