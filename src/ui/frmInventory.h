#pragma once
// The inventory window: the five stock lists on tabs, sortable by any column, with add and edit
// dialogs per kind, delete with a question, comments, find, CSV import and export, "Non Zero
// Only", and an "Add To Recipe" mode when the recipe editor opens it to pick ingredients.
#include <QDialog>
#include <QMainWindow>
#include <functional>
#include <map>

#include "inventory/InventoryWindow.h"
#include "reports/ReportCatalog.h"
#include "workbench/Workbench.h"

class QAction;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabBar;
class QTreeWidget;

namespace zy {

class RecipeEditor;
class frmFind;

// The add and edit dialog of an item; the boxes a kind does not keep are hidden.
class dlgInventoryItem : public QDialog {
  Q_OBJECT
 public:
  explicit dlgInventoryItem(QWidget* parent = nullptr);
  void load(int category, const InventoryItemFields& f, bool adding);
  InventoryItemFields fields() const;

  QLineEdit *txtName = nullptr, *txtQty = nullptr, *txtCost = nullptr, *txtExtract = nullptr, *txtColor = nullptr,
            *txtAlpha = nullptr, *txtAtten = nullptr, *txtType = nullptr, *txtVintage = nullptr,
            *txtReorderThresh = nullptr, *txtReorderQty = nullptr;
  QComboBox* cboUnits = nullptr;
  QCheckBox* chkMash = nullptr;
  QPlainTextEdit* txtComments = nullptr;
  QPushButton *cmdOK = nullptr, *cmdCancel = nullptr;

 private:
  std::map<QWidget*, QLabel*> labels_;
  QGridLayout* grid_ = nullptr;
  std::string comments_;
};

class frmInventory : public QMainWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Inventory";
  explicit frmInventory(Workbench& wb, QWidget* parent = nullptr);

  InventoryWindowModel model;

  // Shows a category (0..4) as a click on its tab does.
  void showCategory(int category);
  // Repaints the list from the model, keeping the selection.
  void refreshFromModel();
  // The list row (index into the category's list) of the selected line, -1 when none.
  long selectedRow() const;
  void selectRow(long row);
  // The recipe editor that "Add To Recipe" hands items to; null leaves the mode off.
  void setAddToRecipe(RecipeEditor* editor);

  // Commands as the menus, buttons and keys run them.
  void mnuEditAdd_Click();
  void mnuEditEdit_Click();
  void mnuEditDelete_Click();
  void mnuEditComments_Click();
  void mnuEditFind_Click();
  void mnuEditShopping_Click();
  bool cmdAddToRecipe_Click();
  void mnuFileImport_Click(bool replace);
  void mnuFileExport_Click();

  // After an item went to the recipe editor or the shopping list: the owner repaints those.
  std::function<void()> recipeChanged, shoppingChanged;
  std::function<void(const QString&)> showHelpTopic;

  QTabBar* tbsInventory = nullptr;
  QTreeWidget* lvInventory = nullptr;
  QLabel* lblCount = nullptr;
  QPushButton *cmdAddToRecipe = nullptr, *cmdClose = nullptr;
  QAction *mnuFileImportReplace = nullptr, *mnuFileImportAdd = nullptr, *mnuFileExport = nullptr,
          *mnuFileClose = nullptr;
  // The printed stock of the category shown, in the rows and order shown.
  QAction *mnuFilePageSetup = nullptr, *mnuFilePreview = nullptr, *mnuFilePrint = nullptr;
  ReportRequest reportRequest();
  QAction *mnuEditAdd = nullptr, *mnuEditEdit = nullptr, *mnuEditDelete = nullptr, *mnuEditComments = nullptr,
          *mnuEditFind = nullptr, *mnuEditShopping = nullptr, *mnuEditAddToRecipe = nullptr;
  QAction* mnuViewNonZero = nullptr;
  dlgInventoryItem* itemDialog = nullptr;
  frmFind* findDialog = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildColumns();
  void showSelectionState();
  void keepColumnWidths();
  Workbench& wb_;
  RecipeEditor* recipeEditor_ = nullptr;
  bool painting_ = false;
};

}  // namespace zy
