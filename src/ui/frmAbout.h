#pragma once
// The about box: the product, its version and the legal line.
#include <QDialog>

class QLabel;

namespace zy {

class frmAbout : public QDialog {
  Q_OBJECT
 public:
  explicit frmAbout(QWidget* parent = nullptr);
  QLabel* lblVersion = nullptr;
  QLabel* lblLegal = nullptr;
};

}  // namespace zy
