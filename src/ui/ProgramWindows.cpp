#include "ui/ProgramWindows.h"

#include <QEvent>
#include <QInputDialog>

#include "ui/dlgFilterBeerStyles.h"
#include "ui/dlgNewRecipe.h"
#include "ui/frmAdvMaltFormulator.h"
#include "ui/frmMash.h"
#include "ui/frmStarter.h"
#include "ui/frmWaterMgmt.h"
#include "ui/frmWaterTreatment.h"
#include "ui/dlgScale.h"
#include "ui/frmBeerStyles.h"
#include "ui/frmHopsUtilization.h"
#include "ui/frmStyleMatch.h"
#include "ui/frmUnitMashData.h"
#include "ui/frmBatchLogList.h"
#include "ui/frmComments.h"
#include "ui/frmFermentation.h"
#include "ui/frmGenHTML.h"
#include "ui/frmHelp.h"
#include "ui/frmInvCheck.h"
#include "ui/frmInventory.h"
#include "ui/frmShoppingLst.h"
#include "inventory/InventoryStartup.h"
#include "ui/frmMain.h"
#include "ui/frmProperties.h"
#include "ui/frmRecReader.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"
#include "ui/QtPrompter.h"
#include "ui/ReportActions.h"
#include "ui/frmPreview.h"
#include "core/text.h"
#include "recipes/RecipeReport.h"

namespace zy {

namespace {
void bringForward(QWidget& w) {
  if (w.isMinimized()) w.showNormal();
  else w.show();
  w.raise();
  w.activateWindow();
}
}  // namespace

ProgramWindows::ProgramWindows(Workbench& wb, frmMain& main) : wb_(wb), main_(main) {
  main.setChildOpener(frmMain::Child::RecipeList, [this] { showRecipeList(); });
  main.setChildOpener(frmMain::Child::BeerStyles, [this] { showBeerStyles(); });
  main.setChildOpener(frmMain::Child::Inventory, [this] { showInventory(false); });
  main.setChildOpener(frmMain::Child::ShoppingList, [this] { showShoppingList(); });
  main.installEventFilter(this);
  // The reports' preview and printing, with their help in the help window.
  installReportActions(wb, [this](const QString& page) { showHelpTopic(page); });
}

ProgramWindows::~ProgramWindows() {
  uninstallReportActions();
  // The editor's window takes its companions with it; the list forgets the tree's refresh.
  beerStyles_.reset();
  hopsUtilization_.reset();
  invCheck_.reset();
  inventory_.reset();
  shoppingList_.reset();
  recipe_.reset();
  recipeList_.reset();
}

frmRecipeList& ProgramWindows::recipeList() {
  if (!recipeList_) {
    recipeList_ = std::make_unique<frmRecipeList>(wb_);
    frmRecipeList& l = *recipeList_;
    l.editorHooks = [this] { return recipe().editor().openHooks(); };
    l.showEditor = [this] { showRecipe(); };
    l.showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
    l.showHelp = [this](int where) { main_.showHelp(where); };
    l.openProperties = [this] { openProperties(recipeList_.get()); };
    l.openGenHTML = [this] { openGenHTML(recipeList_.get(), false); };
    l.setViewOpener(frmRecipeList::View::BeerStyles, [this] { showBeerStyles(); });
  }
  return *recipeList_;
}

frmRecipe& ProgramWindows::recipe() {
  if (!recipe_) {
    recipe_ = std::make_unique<frmRecipe>(wb_);
    frmRecipe& r = *recipe_;
    r.openScale = [this] { openScale(); };
    r.openFermentation = [this] { showFermentation(); };
    r.openComments = [this] { showComments(); };
    r.setToolOpener(RecipeTool::RecipeReader, [this] { showRecReader(); });
    r.openProperties = [this] { openProperties(recipe_.get()); };
    r.openGenHTML = [this] { openGenHTML(recipe_.get(), true); };
    r.showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
    r.showHelp = [this](int where) { main_.showHelp(where); };
    r.setToolOpener(RecipeTool::HopsUtilization, [this] { showHopsUtilization(); });
    r.setToolOpener(RecipeTool::UnitMashData, [this] { showUnitMashData(); });
    r.setToolOpener(RecipeTool::StyleMatch, [this] { showStyleMatch(); });
    r.setToolOpener(RecipeTool::StyleFilter, [this] { openStyleFilter(); });
    r.setToolOpener(RecipeTool::WaterMgmt, [this] { showCalculator(waterMgmt()); });
    r.setToolOpener(RecipeTool::WaterTreatment, [this] { showCalculator(waterTreatment()); });
    r.setToolOpener(RecipeTool::MashInfo, [this] { showCalculator(mash()); });
    r.setToolOpener(RecipeTool::MaltFormulator, [this] { showCalculator(maltFormulator()); });
    r.setToolOpener(RecipeTool::Starter, [this] { showCalculator(starter()); });
    r.setToolOpener(RecipeTool::BeerStyles, [this] {
      showBeerStyles(recipe_->editor().cboBeerStyleText);
    });
    r.setToolOpener(RecipeTool::BatchLog, [this] { showBatchLogList(); });
    r.setToolOpener(RecipeTool::PrintPreview,
                    [this] { previewReport(recipe_.get(), recipeReportRequest(recipe_->editor())); });
    r.setToolOpener(RecipeTool::Print, [this] { printReportNow(recipe_.get(), recipeReportRequest(recipe_->editor())); });
    r.setToolOpener(RecipeTool::PageSetup, [this] { pageSetup(recipe_.get()); });
    // A change in the fermentation window shows on the editor's save button.
    FermentationForm& f = r.editor().fermentation;
    f.onChanged = [&r] {
      r.editor().recChanged();
      r.refreshSaveButton();
    };
    r.setToolOpener(RecipeTool::InventoryLists, [this] { showInventory(false); });
    r.setToolOpener(RecipeTool::FromInventory, [this] { showInventory(true); });
    r.setToolOpener(RecipeTool::ShopListAdd, [this] { addRecipeToShoppingList(); });
    r.setToolOpener(RecipeTool::ShopListCheck, [this] { showInvCheck(); });
    r.setToolOpener(RecipeTool::ShopListDisplay, [this] { showShoppingList(); });
    // The companions close with the editor.
    connect(&r, &frmRecipe::closed, this, [this] {
      if (fermentation_) fermentation_->close();
      if (comments_) comments_->close();
      if (recReader_) recReader_->close();
      if (styleMatch_) styleMatch_->close();
      if (unitMashData_) unitMashData_->close();
      if (batchLogList_) batchLogList_->close();
      closeCalculators();
    });
  }
  return *recipe_;
}

dlgScale& ProgramWindows::scale() {
  if (!scale_) {
    scale_ = new dlgScale(recipe().editor(), &recipe());
    scale_->applied = [this] { showRecipe(); };
    scale_->showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  }
  return *scale_;
}

frmFermentation& ProgramWindows::fermentation() {
  if (!fermentation_) {
    fermentation_ = new frmFermentation(wb_, recipe().editor().fermentation, &recipe());
    fermentation_->showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  }
  return *fermentation_;
}

frmComments& ProgramWindows::comments() {
  if (!comments_) {
    comments_ = new frmComments(wb_, recipe().editor(), &recipe());
    comments_->changed = [this] { recipe().refreshSaveButton(); };
    comments_->showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  }
  return *comments_;
}

frmRecReader& ProgramWindows::recReader() {
  if (!recReader_) {
    recReader_ = new frmRecReader(wb_, recipe().editor(), &recipe());
    // The editor and its companions show what was read; the reader stays in front.
    recReader_->extracted = [this] {
      recipe().refreshFromModel();
      if (fermentation_) fermentation_->refreshFromModel();
      if (comments_) comments_->refreshFromModel();
    };
    recReader_->showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  }
  return *recReader_;
}

frmHopsUtilization& ProgramWindows::hopsUtilization() {
  if (!hopsUtilization_) {
    // The curve is program-wide: the window stands on its own. A new curve takes effect at the
    // open recipe's next bitterness computation, so nothing is recomputed on Accept.
    hopsUtilization_ = std::make_unique<frmHopsUtilization>(wb_);
    hopsUtilization_->openHelp = [this](const QString& page) { showHelpTopic(page); };
  }
  return *hopsUtilization_;
}

frmUnitMashData& ProgramWindows::unitMashData() {
  if (!unitMashData_) {
    unitMashData_ = new frmUnitMashData(wb_, recipe().editor(), &recipe());
    unitMashData_->setWindowFlag(Qt::Window);
    unitMashData_->applied = [this] { recipe().refreshFromModel(); };
    unitMashData_->openHelp = [this](const QString& page) { showHelpTopic(page); };
  }
  return *unitMashData_;
}

frmStyleMatch& ProgramWindows::styleMatch() {
  if (!styleMatch_) {
    styleMatch_ = new frmStyleMatch(wb_, recipe().editor(), &recipe());
    styleMatch_->setWindowFlag(Qt::Window);
    styleMatch_->styleSet = [this] { recipe().refreshFromModel(); };
    styleMatch_->openStyleBrowser = [this](const std::string& name) { showBeerStyles(name); };
  }
  return *styleMatch_;
}

frmBeerStyles& ProgramWindows::beerStyles() {
  if (!beerStyles_) {
    beerStyles_ = std::make_unique<frmBeerStyles>(wb_);
    frmBeerStyles& b = *beerStyles_;
    // The open recipe's values are marked on the range bars while the editor shows a recipe.
    b.recipeValues = [this]() -> std::optional<RecipeStyleValues> {
      if (!recipe_ || !recipe_->isVisible()) return std::nullopt;
      return recipe_->editor().styleValues();
    };
    b.newRecipe = [this](int row) { openNewRecipe(row); };
    // A changed style table: the editor's list is rebuilt and keeps the recipe's style.
    b.stylesChanged = [this] {
      if (!recipe_) return;
      recipe_->editor().cmdFilterClosed();
      recipe_->refreshFromModel();
    };
  }
  return *beerStyles_;
}

frmWaterMgmt& ProgramWindows::waterMgmt() {
  if (!waterMgmt_) {
    waterMgmt_ = new frmWaterMgmt(wb_, recipe().editor(), &recipe());
    waterMgmt_->applied = [this] { recipeChangedByTool(); };
    waterMgmt_->openHelp = [this](const QString& page) { showHelpTopic(page); };
  }
  return *waterMgmt_;
}

frmWaterTreatment& ProgramWindows::waterTreatment() {
  if (!waterTreatment_) {
    waterTreatment_ = new frmWaterTreatment(wb_, recipe().editor(), &recipe());
    waterTreatment_->applied = [this] { recipeChangedByTool(); };
    waterTreatment_->openHelp = [this](const QString& page) { showHelpTopic(page); };
  }
  return *waterTreatment_;
}

frmMash& ProgramWindows::mash() {
  if (!mash_) {
    mash_ = new frmMash(wb_, recipe().editor(), &recipe());
    mash_->applied = [this] { recipeChangedByTool(); };
    mash_->openHelp = [this](const QString& page) { showHelpTopic(page); };
    mash_->openUnitMashData = [this] { showUnitMashData(); };
  }
  return *mash_;
}

frmAdvMaltFormulator& ProgramWindows::maltFormulator() {
  if (!maltFormulator_) {
    maltFormulator_ = new frmAdvMaltFormulator(wb_, recipe().editor(), &recipe());
    maltFormulator_->applied = [this] { recipeChangedByTool(); };
    maltFormulator_->openHelp = [this](const QString& page) { showHelpTopic(page); };
    // Malts come from the inventory's malt list, picked by name.
    maltFormulator_->setAddFromInventory([this](MaltFormulator& m) {
      const InventoryList& malts = wb_.inventory.list(INV_MALT);
      if (malts.empty()) {
        wb_.prompter.message("There are no malts in the inventory", "Add To Recipe", Icon::Information, Buttons::OK);
        return;
      }
      QStringList names;
      for (const InventoryRow& row : malts.rows) names << qs(trim(row.cells.empty() ? std::string() : row.cells[0]));
      bool ok = false;
      const QString chosen =
          QInputDialog::getItem(maltFormulator_, "Add To Recipe", "Malt from the inventory:", names, 0, false, &ok);
      const qsizetype at = names.indexOf(chosen);
      if (ok && at >= 0) m.addInventoryMalt(INV_MALT, inventoryItemFromRow(INV_MALT, malts.rows[static_cast<size_t>(at)]));
    });
  }
  return *maltFormulator_;
}

frmStarter& ProgramWindows::starter() {
  if (!starter_) {
    starter_ = new frmStarter(wb_, recipe().editor(), &recipe());
    starter_->applied = [this] { recipeChangedByTool(); };
    starter_->openHelp = [this](const QString& page) { showHelpTopic(page); };
  }
  return *starter_;
}

// A hidden calculator fills itself from the recipe as it shows; one already open keeps what the
// brewer has typed in it and only comes forward.
void ProgramWindows::showCalculator(QWidget& w) { bringForward(w); }

void ProgramWindows::recipeChangedByTool() {
  if (!recipe_) return;
  recipe_->refreshFromModel();
  if (fermentation_) fermentation_->refreshFromModel();
  if (comments_) comments_->refreshFromModel();
}

void ProgramWindows::closeCalculators() {
  for (QWidget* w : std::initializer_list<QWidget*>{waterMgmt_, waterTreatment_, mash_, maltFormulator_, starter_})
    if (w) w->close();
}

void ProgramWindows::openNewRecipe(int styleRow) {
  dlgNewRecipe dlg(wb_, styleRow, beerStyles_ ? static_cast<QWidget*>(beerStyles_.get()) : nullptr);
  dlg.openHelp = [this](const QString& page) { showHelpTopic(page); };
  dlg.create = [this](NewRecipeDialog& m) {
    frmRecipe& r = recipe();
    frmAdvMaltFormulator& f = maltFormulator();
    // A formulator still open on the old recipe is closed first (it may ask to export, and
    // Cancel there ends the action).
    f.close();
    if (f.isVisible()) return false;
    const RecipeOpenHooks hooks = r.editor().openHooks();
    if (m.cmdOK(r.editor(), f.model, inventoryMaltFinder(wb_.inventory), &hooks) < 1) return false;
    showRecipe();
    f.keepModelAtNextShow();
    bringForward(f);
    return true;
  };
  dlg.exec();
}

// Each of these windows fills itself from the model when it is shown; one that is open already
// takes the recipe as it now stands.
void ProgramWindows::showHopsUtilization() { bringForward(hopsUtilization()); }

void ProgramWindows::showUnitMashData() {
  frmUnitMashData& u = unitMashData();
  if (u.isVisible()) u.load();
  bringForward(u);
}

void ProgramWindows::showStyleMatch() {
  frmStyleMatch& m = styleMatch();
  if (m.isVisible()) m.refresh();
  bringForward(m);
}

void ProgramWindows::openStyleFilter() {
  dlgFilterBeerStyles dlg(wb_, &recipe());
  dlg.exec();
  // Whatever the answer, the list is rebuilt by the filter as it now stands and the recipe keeps
  // its style even where the filter hides it.
  recipe().editor().cmdFilterClosed();
  recipe().refreshFromModel();
}

void ProgramWindows::showBeerStyles(const std::string& styleName) {
  frmBeerStyles& b = beerStyles();
  b.refreshList();
  if (!styleName.empty()) b.showStyle(styleName);
  bringForward(b);
}

frmInventory& ProgramWindows::inventory() {
  if (!inventory_) {
    inventory_ = std::make_unique<frmInventory>(wb_);
    frmInventory& w = *inventory_;
    w.showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
    w.recipeChanged = [this] {
      if (recipe_) recipe_->refreshFromModel();
    };
    w.shoppingChanged = [this] {
      if (shoppingList_) shoppingList_->refreshFromModel();
    };
  }
  return *inventory_;
}

frmShoppingLst& ProgramWindows::shoppingList() {
  if (!shoppingList_) {
    shoppingList_ = std::make_unique<frmShoppingLst>(wb_);
    shoppingList_->showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  }
  return *shoppingList_;
}

frmInvCheck& ProgramWindows::invCheck() {
  if (!invCheck_) {
    invCheck_ = std::make_unique<frmInvCheck>(wb_, recipe().editor());
    invCheck_->shoppingChanged = [this] { showShoppingList(); };
    invCheck_->showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  }
  return *invCheck_;
}

void ProgramWindows::showInventory(bool toPickIngredients) {
  frmInventory& w = inventory();
  w.setAddToRecipe(toPickIngredients ? &recipe().editor() : nullptr);
  w.refreshFromModel();
  bringForward(w);
}

void ProgramWindows::showShoppingList() {
  frmShoppingLst& w = shoppingList();
  w.refreshFromModel();
  bringForward(w);
}

void ProgramWindows::addRecipeToShoppingList() {
  wb_.shopping.addRecipe(recipe().editor().sheet.grid);
  keepShoppingList(wb_);
  showShoppingList();
}

void ProgramWindows::showInvCheck() {
  frmInvCheck& w = invCheck();
  w.refresh();
  bringForward(w);
}

frmBatchLogList& ProgramWindows::batchLogList() {
  if (!batchLogList_) {
    batchLogList_ = new frmBatchLogList(wb_, recipe().editor(), &recipe());
    batchLogList_->showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  }
  return *batchLogList_;
}

void ProgramWindows::showBatchLogList() {
  frmBatchLogList& l = batchLogList();
  if (l.loadForOpenRecipe()) bringForward(l);
}

void ProgramWindows::showRecipeList() { bringForward(recipeList()); }

void ProgramWindows::showRecipe() {
  frmRecipe& r = recipe();
  r.refreshFromModel();
  if (fermentation_) fermentation_->refreshFromModel();
  if (comments_) comments_->refreshFromModel();
  bringForward(r);
}

void ProgramWindows::openScale() {
  dlgScale& d = scale();
  d.load();
  d.exec();
}

void ProgramWindows::showFermentation() {
  frmFermentation& f = fermentation();
  f.refreshFromModel();
  bringForward(f);
}

void ProgramWindows::showComments() {
  frmComments& c = comments();
  c.refreshFromModel();
  bringForward(c);
}

void ProgramWindows::showRecReader() { bringForward(recReader()); }

void ProgramWindows::openGenHTML(QWidget* over, bool fromEditor) {
  if (fromEditor && recipe_ && recipe_->editor().recipeChanged()) {
    const Answer a = wb_.prompter.message("The recipe has changes that are not saved." "\r\n"
                                          "Save it first, so that the web page shows them?",
                                          "Generate HTML", Icon::Question, Buttons::YesNoCancel, Answer::Yes);
    if (a == Answer::Cancel) return;
    if (a == Answer::Yes && !recipe_->mnuFileSave_Click()) return;
  }
  frmGenHTML dlg(wb_, over);
  dlg.showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  dlg.exec();
}

void ProgramWindows::closeAll() {
  if (frmPreview* preview = previewWindow(false)) preview->close();
  if (recReader_) recReader_->close();
  if (beerStyles_) beerStyles_->close();
  closeCalculators();
  if (hopsUtilization_) hopsUtilization_->close();
  if (styleMatch_) styleMatch_->close();
  if (unitMashData_) unitMashData_->close();
  if (invCheck_) invCheck_->close();
  if (inventory_) inventory_->close();
  if (shoppingList_) shoppingList_->close();
  if (batchLogList_) batchLogList_->close();
  if (comments_) comments_->close();
  if (fermentation_) fermentation_->close();
  if (scale_) scale_->close();
  if (recipe_) recipe_->close();
  if (recipeList_) recipeList_->close();
}

bool ProgramWindows::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &main_ && event->type() == QEvent::Close) {
    // The main window closes: every window closes for good.
    wb_.appClosing = true;
    closeAll();
  }
  return QObject::eventFilter(watched, event);
}

void ProgramWindows::showHelpTopic(const QString& page) {
  frmHelp* h = main_.help();
  h->showTopic(page);
  bringForward(*h);
}

void ProgramWindows::openProperties(QWidget* over) {
  frmProperties dlg(wb_, over);
  dlg.exec();
}

}  // namespace zy
