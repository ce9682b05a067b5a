#pragma once
// The editor of one custom style: name, ID, category, the five ranges and the comment. OK hands
// the boxes to StyleEditor, which checks and saves them; a refused form keeps the dialog open.
#include <QDialog>
#include <array>

#include "styles/StyleEditor.h"
#include "workbench/Workbench.h"

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace zy {

class dlgBeerStyleEdit : public QDialog {
  Q_OBJECT
 public:
  // `row` -1 adds a style, else changes that row; the boxes start from `form`.
  dlgBeerStyleEdit(Workbench& wb, StyleEditor& editor, int row, const StyleForm& form, QWidget* parent = nullptr);

  // The row the style was stored in after OK, -1 before.
  int savedRow = -1;

  QLineEdit* txtName = nullptr;
  QLineEdit* txtId = nullptr;
  QComboBox* cboCategory = nullptr;
  std::array<QLineEdit*, 10> txtRange{};
  QPlainTextEdit* txtComments = nullptr;
  QPushButton* cmdOK = nullptr;
  QPushButton* cmdCancel = nullptr;

 private:
  void ok();
  Workbench& wb_;
  StyleEditor& editor_;
  int row_;
};

}  // namespace zy
