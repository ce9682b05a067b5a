#pragma once
// The style browser: every loaded style by category, source and name, narrowed to one source;
// the selected style's five ranges drawn as bars with the open recipe's values marked, and its
// comment. Custom styles and categories are added, changed and deleted here through
// StyleEditor, which saves each change at once.
#include <QMainWindow>
#include <array>
#include <functional>
#include <optional>
#include <string>

#include "reports/ReportCatalog.h"
#include "styles/StyleEditor.h"
#include "workbench/Workbench.h"

class QAction;
class QComboBox;
class QLabel;
class QPushButton;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

namespace zy {

class frmBeerStyles : public QMainWindow {
  Q_OBJECT
 public:
  explicit frmBeerStyles(Workbench& wb, QWidget* parent = nullptr);

  // Selects the first list entry whose name equals `name` exactly, scrolls it into view and
  // shows its details; nothing happens when no entry has that name.
  void showStyle(const std::string& name);
  // The same for the list entry of a table row.
  void showStyle(int row);
  // Rebuilds the list from the tables (after a load of the styles), keeping the selection.
  void refreshList();
  // The table row of the selected entry, -1 for none.
  int selectedRow() const;

  // The open recipe's values, marked on the bars; no marks when unset or when no recipe is open.
  std::function<std::optional<RecipeStyleValues>()> recipeValues;
  // "New Recipe" from the selected style; the entry is disabled while this is unset.
  std::function<void(int styleRow)> newRecipe;
  // After each saved change of the styles (the recipe editor rebuilds its style list).
  std::function<void()> stylesChanged;

  StyleEditor editor;
  QComboBox* cboSource = nullptr;
  QTreeWidget* lvStyles = nullptr;
  QLabel* lblStyleName = nullptr;
  QLabel* lblStyleInfo = nullptr;
  // The five range bars; each one's tool tip tells its range and the recipe's value.
  std::array<QWidget*, 5> bars{};
  QTextBrowser* txtComments = nullptr;
  QPushButton *cmdNew = nullptr, *cmdChange = nullptr, *cmdDelete = nullptr, *cmdNewRecipe = nullptr;
  QAction *mnuFileNewStyle = nullptr, *mnuFileChangeStyle = nullptr, *mnuFileDeleteStyle = nullptr,
          *mnuFileNewRecipe = nullptr, *mnuFileClose = nullptr, *mnuToolsCategories = nullptr,
          *mnuToolsStats = nullptr, *mnuHelpContents = nullptr;
  // The printed style: the selected one, or every style of its category.
  QAction *mnuFilePageSetup = nullptr, *mnuFilePreview = nullptr, *mnuFilePreviewCategory = nullptr,
          *mnuFilePrint = nullptr;
  ReportRequest reportRequest(bool wholeCategory) const;

  static constexpr const char* kNewRecipeTip = "Comes with the brewing calculators";

 public slots:
  void newStyle();
  void changeStyle();
  void deleteStyle();
  void editCategories();
  void showStatistics();

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void showDetails();
  void updateCommands();
  void changed(int selectRow);

  Workbench& wb_;
  bool placed_ = false;
};

}  // namespace zy
