#include "ui/QtPrompter.h"

#include <QApplication>
#include <algorithm>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

#include "core/text.h"
#include "ui/dlgSelectFolder.h"

namespace zy {

QString qs(const std::string& text8bit) { return QString::fromStdString(displayUtf8(text8bit)); }
std::string s8(const QString& text) { return utf8ToCp1252(text.toStdString()); }

QString qtFilter(const std::string& filter) {
  std::vector<std::string> parts = split(filter, '|');
  QStringList out;
  for (size_t i = 0; i < parts.size(); i += 2) out << qs(parts[i]);
  return out.join(";;");
}

namespace {
QMessageBox::StandardButton toQt(Answer a) {
  switch (a) {
    case Answer::OK: return QMessageBox::Ok;
    case Answer::Cancel: return QMessageBox::Cancel;
    case Answer::Yes: return QMessageBox::Yes;
    case Answer::No: return QMessageBox::No;
    case Answer::Retry: return QMessageBox::Retry;
    case Answer::Abort: return QMessageBox::Abort;
    case Answer::Ignore: return QMessageBox::Ignore;
  }
  return QMessageBox::Ok;
}
}  // namespace

Answer QtPrompter::message(const std::string& text, const std::string& title, Icon icon, Buttons buttons,
                           Answer defaultAnswer) {
  QMessageBox box(parent_);
  box.setWindowTitle(qs(title));
  // The messages break their lines with carriage return and line feed; the box wants "\n".
  const QString shown = qs(replaceAll(text, "\r\n", "\n"));
  box.setText(shown);
  // The box wraps long lines at a narrow width of its own; a message line of up to about 80
  // characters stays whole.
  if (auto* label = box.findChild<QLabel*>("qt_msgbox_label")) {
    int widest = 0;
    for (const QString& line : shown.split('\n')) widest = std::max(widest, label->fontMetrics().horizontalAdvance(line));
    label->setMinimumWidth(std::min(widest + 8, label->fontMetrics().averageCharWidth() * 80));
  }
  switch (icon) {
    case Icon::Information: box.setIcon(QMessageBox::Information); break;
    case Icon::Warning: box.setIcon(QMessageBox::Warning); break;
    case Icon::Critical: box.setIcon(QMessageBox::Critical); break;
    case Icon::Question: box.setIcon(QMessageBox::Question); break;
    case Icon::None: break;
  }
  QMessageBox::StandardButtons b = QMessageBox::Ok;
  switch (buttons) {
    case Buttons::OK: b = QMessageBox::Ok; break;
    case Buttons::OKCancel: b = QMessageBox::Ok | QMessageBox::Cancel; break;
    case Buttons::YesNo: b = QMessageBox::Yes | QMessageBox::No; break;
    case Buttons::YesNoCancel: b = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel; break;
    case Buttons::RetryCancel: b = QMessageBox::Retry | QMessageBox::Cancel; break;
    case Buttons::AbortRetryIgnore: b = QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore; break;
  }
  box.setStandardButtons(b);
  box.setDefaultButton(toQt(defaultAnswer));
  switch (box.exec()) {
    case QMessageBox::Cancel: return Answer::Cancel;
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    case QMessageBox::Retry: return Answer::Retry;
    case QMessageBox::Abort: return Answer::Abort;
    case QMessageBox::Ignore: return Answer::Ignore;
    default: return Answer::OK;
  }
}

std::optional<std::string> QtPrompter::input(const std::string& prompt, const std::string& title,
                                             const std::string& initial) {
  bool ok = false;
  QString v = QInputDialog::getText(parent_, qs(title), qs(prompt), QLineEdit::Normal, qs(initial), &ok);
  if (!ok) return std::nullopt;
  return s8(v);
}

std::optional<std::string> QtPrompter::openFile(const std::string& title, const std::string& filter,
                                                const std::string& initialPath) {
  QString f = QFileDialog::getOpenFileName(parent_, qs(title), qs(initialPath), qtFilter(filter));
  if (f.isEmpty()) return std::nullopt;
  return QFile::encodeName(f).toStdString();  // a path stays in the file system's encoding
}

std::optional<std::string> QtPrompter::saveFile(const std::string& title, const std::string& filter,
                                                const std::string& initialPath) {
  QString f = QFileDialog::getSaveFileName(parent_, qs(title), qs(initialPath), qtFilter(filter));
  if (f.isEmpty()) return std::nullopt;
  return QFile::encodeName(f).toStdString();  // a path stays in the file system's encoding
}

std::optional<std::string> QtPrompter::chooseFolder(const std::string& title, const std::string& initialPath) {
  return dlgSelectFolder::pick(parent_, title, initialPath);
}

void QtPrompter::beep() { QApplication::beep(); }

}  // namespace zy
