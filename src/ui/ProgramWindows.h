#pragma once
// The program's windows beside the main window, each created once on first use and then hidden
// and shown: the holder registers their openers with the main window and with the recipe editor,
// wires the windows to one another, and closes them all when the main window closes.
#include <QObject>
#include <QPointer>
#include <memory>

#include "workbench/Workbench.h"

namespace zy {

class frmMain;
class frmRecipeList;
class frmRecipe;
class dlgScale;
class frmFermentation;
class frmComments;
class frmRecReader;

class ProgramWindows : public QObject {
  Q_OBJECT
 public:
  // Registers the openers with `main`; call before the main window's load, so that a recipe
  // file named on the command line opens the recipe list.
  ProgramWindows(Workbench& wb, frmMain& main);
  ~ProgramWindows() override;

  // One accessor per window: created on first use.
  frmRecipeList& recipeList();
  frmRecipe& recipe();
  dlgScale& scale();
  frmFermentation& fermentation();
  frmComments& comments();
  frmRecReader& recReader();

  // What the menus and buttons do.
  void showRecipeList();
  // The editor repaints from its model (with its companions) and comes forward.
  void showRecipe();
  void openScale();
  void showFermentation();
  void showComments();
  void showRecReader();
  // Closes every window that was created (they close for good while appClosing is set).
  void closeAll();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showHelpTopic(const QString& page);
  void openProperties(QWidget* over);

  Workbench& wb_;
  frmMain& main_;
  std::unique_ptr<frmRecipeList> recipeList_;
  std::unique_ptr<frmRecipe> recipe_;
  // These three are owned by the editor's window, which they belong to.
  QPointer<dlgScale> scale_;
  QPointer<frmFermentation> fermentation_;
  QPointer<frmComments> comments_;
  QPointer<frmRecReader> recReader_;
};

}  // namespace zy
