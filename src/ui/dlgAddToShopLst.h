#pragma once
// "Add to Shopping List": the quantity and cost of one item, with up-down buttons that step by
// the increments of its kind. Also "Edit Shopping List Entry" for a row already on the list.
#include <QDialog>
#include <functional>

#include "inventory/ShoppingList.h"
#include "workbench/Workbench.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zy {

class UpDown;

class dlgAddToShopLst : public QDialog {
  Q_OBJECT
 public:
  explicit dlgAddToShopLst(Workbench& wb, QWidget* parent = nullptr);

  // Prepares the dialog for the item the caller names (a negative unit index shows "Undefined").
  void addToShoppingList(int category, const std::string& name, double quantity, int unitIndex, double unitCost);
  // Prepares it for a row of the list.
  void editEntry(size_t row);
  // OK as the button runs it: the row goes to the list, which is kept; false when a box holds
  // no number (the dialog stays open).
  bool cmdOK_Click();

  AddToShopForm form;
  QLineEdit *txtItem = nullptr, *txtQty = nullptr, *txtUnitCost = nullptr;
  UpDown *udcQty = nullptr, *udcUnitCost = nullptr;
  QLabel* lblUnits = nullptr;
  QCheckBox* chkAddToItem = nullptr;
  QPushButton *cmdOK = nullptr, *cmdCancel = nullptr, *cmdHelp = nullptr;

  // After an item went to the list.
  std::function<void()> added;
  // Opens a page of the help (F1, the Help button).
  std::function<void(const QString& page)> showHelpTopic;

 private:
  void showForm();
  void takeForm();
  Workbench& wb_;
};

}  // namespace zy
