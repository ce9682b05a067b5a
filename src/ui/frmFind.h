#pragma once
// The small find dialog: a name or part of one, and "Find Next" that selects the next match in
// the window that opened it. The window says what is searched (its mode) and does the search;
// the dialog stays open so that the next match is one more press away.
#include <QDialog>
#include <functional>
#include <string>

class QLabel;
class QLineEdit;
class QPushButton;

namespace zy {

class frmFind : public QDialog {
  Q_OBJECT
 public:
  enum class Mode { Recipe, Inventory };
  // `findNext` searches for the text (8-bit) and returns whether it found one.
  frmFind(Mode mode, std::function<bool(const std::string&)> findNext, QWidget* parent = nullptr);

  Mode mode() const { return mode_; }
  // Runs the search for the text in the box.
  bool cmdFind_Click();

  QLabel* lblFind = nullptr;
  QLineEdit* txtFind = nullptr;
  QPushButton* cmdFind = nullptr;
  QPushButton* cmdCancel = nullptr;
  QPushButton* cmdHelp = nullptr;
  // Opens a page of the help (F1, the Help button).
  std::function<void(const QString& page)> showHelpTopic;

 private:
  Mode mode_;
  std::function<bool(const std::string&)> findNext_;
};

}  // namespace zy
