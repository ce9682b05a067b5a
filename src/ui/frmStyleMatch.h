#pragma once
// "Matching Beer Styles": the styles the open recipe fits, or misses by no more than ten percent,
// over StyleMatchModel. Opened from the recipe editor; rebuilt each time it is shown.
#include <QWidget>
#include <functional>
#include <string>

#include "recipes/RecipeEditor.h"
#include "styles/StyleMatch.h"
#include "workbench/Workbench.h"

class QPushButton;
class QTreeWidget;

namespace zy {

class frmStyleMatch : public QWidget {
  Q_OBJECT
 public:
  frmStyleMatch(Workbench& wb, RecipeEditor& editor, QWidget* parent = nullptr);

  // Rebuilds the list from the recipe editor's values (done on every show).
  void refresh();

  // After "Set Recipe to Selected Style" has put the style into the editor: the owner repaints
  // the recipe editor.
  std::function<void()> styleSet;
  // A double click on a style: the owner shows it in the style browser. When unset, the window
  // opens a style browser of its own.
  std::function<void(const std::string& styleName)> openStyleBrowser;

  StyleMatchModel model;
  QTreeWidget* lvStyle = nullptr;
  QPushButton* cmdSetRecipe = nullptr;
  QPushButton* cmdClose = nullptr;
  QPushButton* cmdHelp = nullptr;

  static constexpr const char* kSection = "Style Match";

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  // Return takes the selected style, as the window's default button; Esc closes.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void repaintList();
  void cmdSetRecipe_Click();
  void rowDoubleClicked(int row);

  Workbench& wb_;
  RecipeEditor& editor_;
  QWidget* ownBrowser_ = nullptr;
  bool placed_ = false;
};

}  // namespace zy
