#pragma once
// "Beer Style Statistics": how many categories and styles are loaded, by source.
#include <QDialog>

#include "styles/StyleMatch.h"
#include "workbench/Workbench.h"

class QLabel;
class QPushButton;

namespace zy {

class dlgBeerStyleStats : public QDialog {
  Q_OBJECT
 public:
  dlgBeerStyleStats(Workbench& wb, QWidget* parent = nullptr);
  // The counts of the tables as they are now (done on every show).
  void refresh();

  QLabel *lblCategories = nullptr, *lblTotal = nullptr, *lblCustom = nullptr, *lblAOB = nullptr, *lblBJCP = nullptr;
  QPushButton* OKButton = nullptr;

  static constexpr const char* kSection = "Style Statistics";

 protected:
  void showEvent(QShowEvent* event) override;
  void done(int result) override;

 private:
  Workbench& wb_;
  bool placed_ = false;
};

}  // namespace zy
