#include "ui/HelpButton.h"
#include "ui/CalcWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QRegularExpressionValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>

#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/frmHelp.h"
#include "ui/WindowPlacement.h"

namespace zy {

namespace {
// Selects a box's whole text when it gains the focus, as the calculators' boxes do.
class SelectAllOnFocus : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() == QEvent::FocusIn)
      if (auto* box = qobject_cast<QLineEdit*>(o)) QTimer::singleShot(0, box, &QLineEdit::selectAll);
    return false;
  }
};
}  // namespace

CalcWindow::CalcWindow(Workbench& wb, const char* section, const char* helpPage, QSize defaultSize, QWidget* parent)
    : QWidget(parent, Qt::Window), wb_(wb), section_(section), helpPage_(helpPage), defaultSize_(defaultSize) {
  auto* f1 = new QShortcut(QKeySequence::HelpContents, this);
  connect(f1, &QShortcut::activated, this, &CalcWindow::showHelp);
}

QPushButton* CalcWindow::button(const QString& text, const char* name, const QString& tip) {
  auto* b = new QPushButton(text, this);
  b->setObjectName(name);
  b->setToolTip(tip);
  return b;
}

QLineEdit* CalcWindow::numberBox(const char* name, const QString& tip, int width) {
  auto* e = new QLineEdit(this);
  e->setObjectName(name);
  e->setToolTip(tip);
  e->setMaximumWidth(width);
  e->setAlignment(Qt::AlignRight);
  e->setValidator(numberKeys(e));
  static SelectAllOnFocus* filter = nullptr;
  if (!filter) filter = new SelectAllOnFocus(qApp);
  e->installEventFilter(filter);
  return e;
}

void CalcWindow::resultReached() {
  if (applied) applied();
}

void CalcWindow::showHelp() { showHelpPage(this, wb_, openHelp, helpPage_); }

void CalcWindow::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    if (!placed_) {
      placed_ = true;
      restoreWindowPlacement(*this, wb_.settings, section_, defaultSize_, QPoint(80, 80), minimumSize());
    }
    opening();
  }
  QWidget::showEvent(event);
}

void CalcWindow::closeEvent(QCloseEvent* event) {
  // While the program closes the question still comes, but nothing keeps the window open.
  if (isVisible() && !mayClose() && !wb_.appClosing) {
    event->ignore();
    return;
  }
  if (isVisible()) saveWindowPlacement(*this, wb_.settings, section_);
  hideUnlessAppClosing(*this, wb_, event);
}

void CalcWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QWidget::keyPressEvent(event);
}

QValidator* numberKeys(QObject* parent) {
  // Any text made of a number's keys is let through, an empty one too, so that leaving a box
  // always reformats it.
  return new QRegularExpressionValidator(QRegularExpression("-?[0-9]*\\.?[0-9]*"), parent);
}

void setBoxText(QLineEdit* box, const std::string& text8bit) {
  const QString t = qs(text8bit);
  if (box->text() != t) box->setText(t);
}

}  // namespace zy
