#pragma once
// The splash window: the program's name and version while the main window loads. A click
// anywhere on it cuts the wait short.
#include <QWidget>

namespace zy {

class frmSplash : public QWidget {
  Q_OBJECT
 public:
  explicit frmSplash(QWidget* parent = nullptr);
  // Set by a click anywhere on the window.
  bool splashDone = false;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace zy
