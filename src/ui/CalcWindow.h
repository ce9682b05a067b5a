#pragma once
// What the brewing calculators' windows share: each is created once and then hidden and shown,
// keeps its place on the screen in a settings section of its own, asks its closing question
// through its model, closes on Escape and opens its help page on F1.
#include <QSize>
#include <QWidget>
#include <functional>

#include "workbench/Workbench.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QValidator;

namespace zy {

class frmHelp;

class CalcWindow : public QWidget {
  Q_OBJECT
 public:
  CalcWindow(Workbench& wb, const char* section, const char* helpPage, QSize defaultSize, QWidget* parent);

  // Called after the window handed a result to the recipe (the editor repaints).
  std::function<void()> applied;
  // Opens a help page; when unset the window opens a help window of its own.
  std::function<void(const QString& page)> openHelp;
  void showHelp();

 protected:
  // The closing question; false keeps the window open.
  virtual bool mayClose() { return true; }
  // Runs at each showing, before the window appears: the model is filled from the recipe.
  virtual void opening() {}

  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  QPushButton* button(const QString& text, const char* name, const QString& tip);
  // A box for a number: its whole text is selected when it gains the focus.
  QLineEdit* numberBox(const char* name, const QString& tip, int width = 70);
  void resultReached();

  Workbench& wb_;

 private:
  const char* section_;
  const char* helpPage_;
  QSize defaultSize_;
  bool placed_ = false;
};

// Only the keys of a number get into a box, as in every number box of the program.
QValidator* numberKeys(QObject* parent);

// Sets a box's text only when it differs, so that the caret of a box being typed in stays put.
void setBoxText(QLineEdit* box, const std::string& text8bit);

}  // namespace zy
