#pragma once
// "Filter the Beer Styles": which sources and which name text the recipe editor's style list
// offers, over StyleFilterDialog. Modal; nothing is stored until OK.
#include <QDialog>
#include <array>

#include "styles/StyleMatch.h"
#include "workbench/Workbench.h"

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace zy {

class dlgFilterBeerStyles : public QDialog {
  Q_OBJECT
 public:
  dlgFilterBeerStyles(Workbench& wb, QWidget* parent = nullptr);

  // Fills the boxes from the present filter, then runs the dialog.
  int exec() override;
  // The boxes filled from the present filter (exec does this).
  void load();

  StyleFilterDialog model;
  std::array<QCheckBox*, kStyleSourceCount> chkStyle{};
  QLineEdit* txtFilter = nullptr;
  QPushButton* cmdOK = nullptr;
  QPushButton* cmdCancel = nullptr;
  QPushButton* cmdReset = nullptr;
  QPushButton* cmdHelp = nullptr;

  static constexpr const char* kSection = "Style Filter";

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void done(int result) override;

 private:
  void repaint();
  void takeBoxes();

  Workbench& wb_;
  bool placed_ = false;
};

}  // namespace zy
