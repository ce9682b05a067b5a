#pragma once
// The category editor: the brewer's own (Custom) categories, added, changed and deleted. Each
// change is saved at once; the published categories stay as they are.
#include <QDialog>

#include "styles/StyleEditor.h"
#include "workbench/Workbench.h"

class QLineEdit;
class QListWidget;
class QPushButton;

namespace zy {

class dlgBeerCategories : public QDialog {
  Q_OBJECT
 public:
  dlgBeerCategories(Workbench& wb, StyleEditor& editor, QWidget* parent = nullptr);

  // True once a change was saved (the browser then rebuilds its list).
  bool changedAny = false;

  QListWidget* lstCategories = nullptr;
  QLineEdit *txtId = nullptr, *txtCategory = nullptr, *txtSubCategory = nullptr;
  QPushButton *cmdNew = nullptr, *cmdSave = nullptr, *cmdDelete = nullptr, *cmdClose = nullptr;

 private:
  void fillList(int selectRow);
  void showSelected();
  void save();
  void remove();

  Workbench& wb_;
  StyleEditor& editor_;
};

}  // namespace zy
