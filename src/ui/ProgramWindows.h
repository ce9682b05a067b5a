#pragma once
// The program's windows beside the main window, each created once on first use and then hidden
// and shown: the holder registers their openers with the main window and with the recipe editor,
// wires the windows to one another, and closes them all when the main window closes.
#include <QObject>
#include <QPointer>
#include <memory>
#include <string>

#include "workbench/Workbench.h"

namespace zy {

class frmMain;
class frmRecipeList;
class frmRecipe;
class dlgScale;
class frmFermentation;
class frmComments;
class frmRecReader;
class frmHopsUtilization;
class frmUnitMashData;
class frmStyleMatch;
class frmBeerStyles;
class frmWaterMgmt;
class frmWaterTreatment;
class frmMash;
class frmAdvMaltFormulator;
class frmStarter;
class frmInventory;
class frmShoppingLst;
class frmInvCheck;
class frmBatchLogList;

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
  frmHopsUtilization& hopsUtilization();
  frmUnitMashData& unitMashData();
  frmStyleMatch& styleMatch();
  frmBeerStyles& beerStyles();
  frmWaterMgmt& waterMgmt();
  frmWaterTreatment& waterTreatment();
  frmMash& mash();
  frmAdvMaltFormulator& maltFormulator();
  frmStarter& starter();
  frmInventory& inventory();
  frmShoppingLst& shoppingList();
  frmInvCheck& invCheck();
  frmBatchLogList& batchLogList();

  // What the menus and buttons do.
  void showRecipeList();
  // The editor repaints from its model (with its companions) and comes forward.
  void showRecipe();
  void openScale();
  void showFermentation();
  void showComments();
  void showRecReader();
  void showHopsUtilization();
  void showUnitMashData();
  void showStyleMatch();
  // The filter dialog, then the editor's style list rebuilt keeping the recipe's style.
  void openStyleFilter();
  // The style browser, on the named style when one is given.
  void showBeerStyles(const std::string& styleName = "");
  // The brewing calculators, each filled from the open recipe when it is shown.
  void showCalculator(QWidget& w);
  // A new recipe for the style of row `styleRow`: the dialog, then the editor and the malt
  // formulator on the style's grain bill.
  void openNewRecipe(int styleRow);
  // The inventory; `toPickIngredients` opens it in its "Add To Recipe" mode for the editor.
  void showInventory(bool toPickIngredients);
  void showShoppingList();
  // The editor's whole recipe goes to the shopping list, which comes forward.
  void addRecipeToShoppingList();
  void showInvCheck();
  // The logs of the open recipe (once it has been saved).
  void showBatchLogList();
  // "Control HTML Generation", modal over `over`, on the current recipe. From the editor, changes
  // not yet saved are offered a save first, so that the page shows them.
  void openGenHTML(QWidget* over, bool fromEditor);
  // Closes every window that was created (they close for good while appClosing is set).
  void closeAll();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void showHelpTopic(const QString& page);
  void openProperties(QWidget* over);
  // A calculator handed a result to the recipe: the editor and its companions repaint.
  void recipeChangedByTool();
  void closeCalculators();

  Workbench& wb_;
  frmMain& main_;
  std::unique_ptr<frmRecipeList> recipeList_;
  std::unique_ptr<frmRecipe> recipe_;
  std::unique_ptr<frmHopsUtilization> hopsUtilization_;
  std::unique_ptr<frmBeerStyles> beerStyles_;
  // These three are owned by the editor's window, which they belong to.
  QPointer<dlgScale> scale_;
  QPointer<frmFermentation> fermentation_;
  QPointer<frmComments> comments_;
  QPointer<frmRecReader> recReader_;
  QPointer<frmUnitMashData> unitMashData_;
  QPointer<frmStyleMatch> styleMatch_;
  // The calculators belong to the editor's window too.
  QPointer<frmWaterMgmt> waterMgmt_;
  QPointer<frmWaterTreatment> waterTreatment_;
  QPointer<frmMash> mash_;
  QPointer<frmAdvMaltFormulator> maltFormulator_;
  QPointer<frmStarter> starter_;
  std::unique_ptr<frmInventory> inventory_;
  std::unique_ptr<frmShoppingLst> shoppingList_;
  std::unique_ptr<frmInvCheck> invCheck_;
  QPointer<frmBatchLogList> batchLogList_;
};

}  // namespace zy
