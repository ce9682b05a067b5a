#pragma once
// The shopping list window: one row per item with its estimated cost and the running total,
// the CSV import and export, and the edit, delete and clear commands, over the workbench's
// ShoppingList. Every change is kept in Data/ at once.
#include <QMainWindow>
#include <functional>

#include "workbench/Workbench.h"

class QAction;
class QCheckBox;
class QLabel;
class QTreeWidget;

namespace zy {

class dlgAddToShopLst;

class frmShoppingLst : public QMainWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Shopping List";
  explicit frmShoppingLst(Workbench& wb, QWidget* parent = nullptr);

  // Rebuilds the rows and the total from the list.
  void refreshFromModel();
  // The selected row of the list, -1 when none.
  int selectedRow() const;
  void selectRow(int row);

  // Commands as the menus run them.
  void mnuEditItem_Click();
  void mnuEditDelete_Click();
  void mnuEditClear_Click();
  void mnuFileImp_Click(bool replace);
  void mnuFileExport_Click();

  std::function<void(const QString&)> showHelpTopic;

  QTreeWidget* lvShopList = nullptr;
  QLabel* lblTotalCost = nullptr;
  QCheckBox* chkRound = nullptr;
  QAction *mnuFileImpReplace = nullptr, *mnuFileImpAdd = nullptr, *mnuFileExport = nullptr,
          *mnuFilePageSetup = nullptr, *mnuFilePreview = nullptr, *mnuFilePrint = nullptr, *mnuFileClose = nullptr;
  QAction *mnuEditItem = nullptr, *mnuEditDelete = nullptr, *mnuEditClear = nullptr;
  QAction *tbDelete = nullptr, *tbPrint = nullptr, *tbPreview = nullptr, *tbClose = nullptr, *tbHelp = nullptr;
  dlgAddToShopLst* editDialog = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void changed();
  void showSelectionState();
  Workbench& wb_;
};

}  // namespace zy
