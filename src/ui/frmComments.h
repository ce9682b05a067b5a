#pragma once
// The comment window of the open recipe: when it was created, its ID code and label name, and
// the free comment text, which can be read from and written to a text file. The fields are the
// editor's; every change marks the recipe changed.
#include <QMainWindow>
#include <functional>

#include "workbench/Workbench.h"

class QAction;
class QLineEdit;
class QPlainTextEdit;

namespace zy {

class RecipeEditor;

class frmComments : public QMainWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = "Comments";
  frmComments(Workbench& wb, RecipeEditor& editor, QWidget* parent = nullptr);

  void refreshFromModel();
  void mnuFileImport_Click();
  void mnuFileExport_Click();
  // "Smart Instructions": the written procedure replaces an empty comment; otherwise the user
  // chooses to replace it, to append to it, or to keep it.
  void mnuFileSmart_Click();
  std::function<void()> changed;  // the editor repaints its save button
  std::function<void(const QString&)> showHelpTopic;

  QLineEdit *txtDateCreated = nullptr, *txtIdCode = nullptr, *txtLabelName = nullptr;
  QPlainTextEdit* txtComment = nullptr;
  QAction *mnuFileImport = nullptr, *mnuFileExport = nullptr, *mnuSmartInstructions = nullptr,
          *mnuFileClose = nullptr, *mnuHelpContents = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  Workbench& wb_;
  RecipeEditor& editor_;
  bool painting_ = false;
};

}  // namespace zy
