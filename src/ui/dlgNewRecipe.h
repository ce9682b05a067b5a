#pragma once
// "New Recipe": a recipe started from a beer style. The brewer picks the kind of mash; OK makes
// the recipe and opens the malt formulator on a grain bill for the style.
#include <QDialog>
#include <array>
#include <functional>

#include "recipes/NewRecipe.h"
#include "workbench/Workbench.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace zy {

class dlgNewRecipe : public QDialog {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "New Recipe";
  static constexpr const char* kHelpPage = "new-recipe.html";

  dlgNewRecipe(Workbench& wb, int styleRow, QWidget* parent = nullptr);

  // OK: `create` makes the recipe and opens the formulator; the dialog closes when it did.
  void cmdOK_Click();

  // Set by the holder of the windows: runs the model's OK with the editor and the formulator,
  // true when a recipe was made.
  std::function<bool(NewRecipeDialog&)> create;
  std::function<void(const QString& page)> openHelp;

  NewRecipeDialog model;

  QLabel* lblStyle = nullptr;
  std::array<QRadioButton*, 3> optMash{};  // in the order of the choices
  QLineEdit* txtMashEff = nullptr;
  QPushButton *cmdOK = nullptr, *cmdCancel = nullptr, *cmdHelp = nullptr;

 protected:
  void done(int result) override;

 private:
  void refresh();
  Workbench& wb_;
};

}  // namespace zy
