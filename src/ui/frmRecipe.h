#pragma once
// The recipe editor ("Recipe Calculator"): the title frame, the computed characteristics judged
// against the style, the ingredient grid and the edit strip of the selected ingredient, with the
// menus and toolbar that lead to the tools working on the open recipe. Everything it shows is
// the RecipeEditor model's; every change of a box goes to the model, which recomputes, and the
// view repaints from it.
#include <QAbstractTableModel>
#include <QMainWindow>
#include <array>
#include <functional>
#include <map>

#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTableView;
class QToolBar;

namespace zy {

class UpDown;

// The windows other parts of the program bring, opened from the editor's menus and buttons.
enum class RecipeTool {
  HopsUtilization, MashInfo, StyleMatch, StyleFilter, BeerStyles, InventoryLists, FromInventory, WaterMgmt,
  WaterTreatment, MaltFormulator, Starter, RecipeReader, BatchLog, ShopListAdd, ShopListCheck, ShopListDisplay,
  PrintPreview, Print, PageSetup, GenerateLabel, Quillmark, UnitMashData
};
constexpr int kRecipeToolCount = static_cast<int>(RecipeTool::UnitMashData) + 1;

// grdIngredients' model: the editor's ingredient table as it stands, header rows bold on a shaded
// ground, the total row bold.
class IngredientGridModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  explicit IngredientGridModel(const IngredientTable& table, QObject* parent = nullptr)
      : QAbstractTableModel(parent), table_(table) {}
  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : table_.rowCount(); }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : IngredientRow::kColumns;
  }
  QVariant data(const QModelIndex& index, int role) const override;
  // The table changed shape (rows added, removed, moved) or only its texts.
  void reset() {
    beginResetModel();
    endResetModel();
  }
  void textsChanged() { emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1)); }

 private:
  const IngredientTable& table_;
};

class frmRecipe : public QMainWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Recipe";
  explicit frmRecipe(Workbench& wb, QWidget* parent = nullptr);

  RecipeEditor& editor() { return editor_; }
  // Enables the menu entry and button of a tool; without an opener they stay disabled with a tip
  // naming what brings them.
  void setToolOpener(RecipeTool tool, std::function<void()> open);
  // Repaints everything after another window changed the model.
  void refreshFromModel();

  // The editor's own companions and the program's help, set by the holder of the windows.
  std::function<void()> openScale, openFermentation, openComments, openProperties;
  // "Control HTML Generation" over the editor, for the recipe it shows.
  std::function<void()> openGenHTML;
  std::function<void(const QString&)> showHelpTopic;
  std::function<void(int)> showHelp;  // 1 index, 2 search

  // Commands as the menus and buttons run them.
  bool mnuFileSave_Click();
  bool mnuFileSaveAs_Click();
  // Selects a grid row as a click does.
  void selectGridRow(int row);
  // The save button's image and tip, and the title, after the changed flag moved.
  void refreshSaveButton();

  // Controls, by their names.
  QLineEdit* txtTitle = nullptr;
  QComboBox* cboRecipeType = nullptr;
  QComboBox* cboBeerStyle = nullptr;
  QPushButton *cmdSearch = nullptr, *cmdFilter = nullptr, *cmdUnitMash = nullptr;
  QLineEdit *txtFermentVolume = nullptr, *txtInitalBoilVolume = nullptr;
  QLabel *lblFermentUnits = nullptr, *lblBoilUnits = nullptr, *lblUnitType = nullptr, *lblMashType = nullptr,
         *lblMashEff = nullptr, *lblBoilTime = nullptr;
  QLabel *lblOG = nullptr, *lblFG = nullptr, *lblIBU = nullptr, *lblColor = nullptr, *lblAlcohol = nullptr,
         *lblCost = nullptr, *picColor = nullptr;
  std::array<QLabel*, 5> lblTarget{};  // OG, FG, IBU, colour, alcohol
  QTableView* grdIngredients = nullptr;
  IngredientGridModel* gridModel = nullptr;
  QGroupBox* fraEdits = nullptr;
  QLineEdit *txtItem = nullptr, *txtQty = nullptr, *txtCost = nullptr, *txtExtraction = nullptr, *txtColor = nullptr;
  UpDown *udcQty = nullptr, *udcCost = nullptr, *udcExtraction = nullptr, *udcColor = nullptr;
  QComboBox* cboUnits = nullptr;
  QCheckBox* chkMash = nullptr;
  QLabel *lblExtraction = nullptr, *lblColorCaption = nullptr, *lblExtPct = nullptr;
  std::array<QPushButton*, 4> cmdAddNew{};
  QPushButton *cmdAddIngredients = nullptr, *cmdDeleteIngredient = nullptr;
  QToolBar* tbToolBar = nullptr;
  QAction *mnuFileSave = nullptr, *mnuFileSaveAs = nullptr, *mnuFilePageSetup = nullptr, *mnuFilePreview = nullptr,
          *mnuFilePrintNow = nullptr, *mnuFileBatchLog = nullptr, *mnuFileScaleQuantities = nullptr,
          *mnuFileProperties = nullptr, *mnuFileClose = nullptr;
  QAction* mnuFileGenHTML = nullptr;
  QAction *mnuInstructMashInfo = nullptr, *mnuInstructWaterMgmt = nullptr, *mnuInstructFermetationPriming = nullptr,
          *mnuInstructComments = nullptr;
  QAction *mnuToolsHopsUtilization = nullptr, *mnuToolsAdvanced = nullptr, *mnuToolsStarterKraeusening = nullptr,
          *mnuToolsWaterTreatment = nullptr, *mnuToolsRecipeReader = nullptr, *mnuToolsGenerateLabel = nullptr,
          *mnuToolsQuillmark = nullptr;
  QAction *mnuShopListAddRecipe = nullptr, *mnuShopListCheckInventories = nullptr,
          *mnuShopListDisplayList = nullptr;
  QAction *mnuViewInventoryLists = nullptr, *mnuViewBeerStyles = nullptr;
  QAction *mnuHelpContents = nullptr, *mnuHelpIndex = nullptr, *mnuHelpSearch = nullptr;
  QMenu* mnuSort = nullptr;  // the grid's pop-up
  QAction *mnuSortRecipe = nullptr, *mnuSortAlpha = nullptr, *mnuSortUp = nullptr, *mnuSortDown = nullptr;
  QMenu* mnuQty = nullptr;  // the quantity box's pop-up
  std::array<QAction*, 4> mnuQtyNext{}, mnuQtyPrev{};  // whole, half, quarter, tenth
  // Toolbar buttons by key ("Save", "Preview", ... "Help").
  std::map<QString, QAction*> tb;

 signals:
  // The window closed (hidden): its companions close with it.
  void closed();

 protected:
  void closeEvent(QCloseEvent* event) override;
  // The grid and the edit strip by keyboard: Delete, Return and the menu key on the grid; Return
  // and Esc in a box of the strip.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildMenus();
  void buildToolbar();
  QWidget* buildTitleFrame();
  QWidget* buildResults();
  QWidget* buildGrid();
  QWidget* buildEditStrip();
  QAction* toolAction(RecipeTool t, QMenu* menu, const QString& caption);
  void runTool(RecipeTool t);
  void showToolStates();
  void refreshTitle();
  void refreshResults();
  void refreshStrip();
  // After an edit that changed texts only, or the rows.
  void afterEdit(bool rowsChanged = false);

  Workbench& wb_;
  RecipeEditor editor_;
  std::array<std::function<void()>, kRecipeToolCount> openers_;
  std::array<std::vector<QWidget*>, kRecipeToolCount> toolWidgets_;
  std::array<std::vector<QAction*>, kRecipeToolCount> toolActions_;
  bool painting_ = false;
};

}  // namespace zy
