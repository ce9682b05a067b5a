#pragma once
// The program-wide state, created once at start-up and passed by reference: the program folder,
// the settings and defaults, the ports, the error routine and the current recipe. Tests build a
// fresh one over a temporary folder.
#include <functional>
#include <string>

#include "core/defaults.h"
#include "core/errorlog.h"
#include "core/paths.h"
#include "core/ports.h"
#include "core/settings.h"
#include "calculators/HopsUtilization.h"
#include "inventory/InventoryStore.h"
#include "inventory/ShoppingList.h"
#include "recipes/RecipeList.h"
#include "recipes/RecipeRecords.h"
#include "styles/StyleTables.h"

namespace zy {

class Workbench {
 public:
  Workbench(const std::string& programFolder, SettingsStore& settings, Prompter& prompter, const Clock& clock);
  Workbench(const Workbench&) = delete;
  Workbench& operator=(const Workbench&) = delete;

  // Reads the "Defaults" section into `defaults`.
  void loadDefaults();

  ProgramFolder folder;
  SettingsStore& settings;
  Prompter& prompter;
  const Clock& clock;
  ErrorLog errors;
  Defaults defaults;

  // The current recipe: what the list, the editor, the reports and the exports work on.
  CurrentRecipe recipe;
  // Where findNextRecipeSlot resumes its search (at least 1, kept between calls).
  long recipeSlotPosition = 1;
  // Called at the end of saveCurrentRecipe, to refresh the recipe tree.
  std::function<void()> refreshRecipeTree;

  // The beer style tables and the style chosen for the open recipe (LoadBeerStyles).
  StyleTables styles;
  // The hops utilization curve and its gravity adjustment (LoadHopsUtilization).
  HopsUtilization hops;
  // The recipe list's model: the tree of recipes, its sort mode and currentRecipeKey.
  RecipeList recipeList;
  // The five stock lists (the inventory window's working copy) and the shopping list.
  Inventory inventory;
  ShoppingList shopping;

  // Set when the main window starts to close: a child window's close only hides it (so that it
  // keeps its state between uses) unless this is set.
  bool appClosing = false;
};

}  // namespace zy
