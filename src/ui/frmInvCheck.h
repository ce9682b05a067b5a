#pragma once
// "Check Inventory": each ingredient of the open recipe against the stock of its kind, with
// what is on hand, what the recipe needs (in the stock's unit where both are weights) and what
// is short; the shortfalls go to the shopping list with one button.
#include <QWidget>
#include <functional>
#include <vector>

#include "inventory/StockCheck.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

class QLabel;
class QPushButton;
class QTreeWidget;

namespace zy {

class frmInvCheck : public QWidget {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Check Inventory";
  frmInvCheck(Workbench& wb, RecipeEditor& editor, QWidget* parent = nullptr);

  // Checks the editor's ingredients again.
  void refresh();
  // "Add Shortages to Shopping List": the count added.
  int cmdAddShort_Click();

  std::vector<StockCheckRow> rows;
  QTreeWidget* lvCheck = nullptr;
  QLabel* lblSummary = nullptr;
  QPushButton *cmdAddShort = nullptr, *cmdRefresh = nullptr, *cmdClose = nullptr, *cmdHelp = nullptr;
  // After shortages went to the shopping list: the owner shows it.
  std::function<void()> shoppingChanged;
  // Opens a page of the help (F1, the Help button).
  std::function<void(const QString& page)> showHelpTopic;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  Workbench& wb_;
  RecipeEditor& editor_;
};

}  // namespace zy
