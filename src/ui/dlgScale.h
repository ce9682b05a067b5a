#pragma once
// "Scale Recipe Quantities": a new fermentation volume and a unit system for the open recipe,
// over the ScaleDialog model.
#include <QDialog>
#include <array>
#include <functional>

#include "recipes/ScaleDialog.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace zy {

class RecipeEditor;

class dlgScale : public QDialog {
  Q_OBJECT
 public:
  explicit dlgScale(RecipeEditor& editor, QWidget* parent = nullptr);

  // Fills the boxes from the editor's recipe (each time the dialog is opened).
  void load();
  // OK: the model rescales the editor; true when it did (the dialog then closes).
  bool cmdOK_Click();

  // Called after a rescale, so that the editor repaints.
  std::function<void()> applied;
  // Opens a page of the help (F1, the Help button).
  std::function<void(const QString& page)> showHelpTopic;

  ScaleDialog model;
  QLineEdit* txtVolume = nullptr;
  QComboBox* cboVolume = nullptr;
  std::array<QRadioButton*, 3> optUnits{};
  QPushButton *cmdOK = nullptr, *cmdCancel = nullptr, *cmdHelp = nullptr;

 private:
  void refresh();
  RecipeEditor& editor_;
};

}  // namespace zy
