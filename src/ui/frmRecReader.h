#pragma once
// The recipe reader ("Recipe Reader"): a text area where a recipe is typed or pasted, one
// ingredient a line, and the command that reads it into the recipe open in the editor. The
// text can be read from and written to a text file.
#include <QMainWindow>
#include <functional>

#include "reader/RecipeReader.h"
#include "workbench/Workbench.h"

class QAction;
class QPlainTextEdit;
class QPushButton;

namespace zy {

class RecipeEditor;

class frmRecReader : public QMainWindow {
  Q_OBJECT
 public:
  static constexpr const char* kSection = RecipeReader::kSection;
  frmRecReader(Workbench& wb, RecipeEditor& editor, QWidget* parent = nullptr);

  RecipeReader& model() { return reader_; }
  void refreshFromModel();

  void mnuFileImport_Click();
  void mnuFileExport_Click();
  void mnuFileExtractRecipe_Click();

  // After a read: the editor and its companions repaint.
  std::function<void()> extracted;
  std::function<void(const QString&)> showHelpTopic;

  QPlainTextEdit* txtComment = nullptr;
  QPushButton* cmdExtract = nullptr;
  QAction *mnuFileImport = nullptr, *mnuFileExport = nullptr, *mnuFileExtractRecipe = nullptr,
          *mnuFileExit = nullptr, *mnuEditUndo = nullptr, *mnuEditCut = nullptr, *mnuEditCopy = nullptr,
          *mnuEditPaste = nullptr, *mnuEditAll = nullptr, *mnuHelpContents = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  Workbench& wb_;
  RecipeReader reader_;
  bool painting_ = false;
};

}  // namespace zy
