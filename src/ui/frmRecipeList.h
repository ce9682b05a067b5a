#pragma once
// The recipe list ("Recipe List"): the tree of every stored recipe, grouped by the chosen sort,
// with its menus and toolbar. The state and the procedures are the RecipeList model's (the
// workbench's recipeList); this view shows the model's tree and forwards the user's commands.
#include <QMainWindow>
#include <array>
#include <functional>

#include "recipes/RecipeList.h"
#include "workbench/Workbench.h"

class QAction;
class QLabel;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace zy {

class frmRecipeList : public QMainWindow {
  Q_OBJECT
 public:
  static constexpr const char* kCaption = "Recipe List";
  explicit frmRecipeList(Workbench& wb, QWidget* parent = nullptr);
  ~frmRecipeList() override;

  // What the window asks of the recipe editor (set by the holder of the windows).
  std::function<RecipeOpenHooks()> editorHooks;
  std::function<void()> showEditor;                  // the editor repaints and comes forward
  std::function<void(const QString&)> showHelpTopic;  // a page of the help
  std::function<void(int)> showHelp;                 // 0 contents, 1 index, 2 search
  std::function<void()> openProperties;
  // Opens "Control HTML Generation" modally over the list, on the recipe just loaded.
  std::function<void()> openGenHTML;
  // The View menu's other windows; without an opener the entry stays disabled.
  enum class View { Inventory, BeerStyles };
  void setViewOpener(View which, std::function<void()> open);

  RecipeList& model() { return wb_.recipeList; }
  // Shows the model's tree again (after a rebuild, an add, a delete or a save).
  void refreshTree();
  QTreeWidgetItem* itemOf(const std::string& key) const;

  // The commands, as the menus and buttons run them.
  void tvRecipes_DblClick(QTreeWidgetItem* item);
  void mnuFileNew_Click();
  void mnuFileImport_Click();
  void mnuFileExport_Click();
  void mnuFileGenHTML_Click();
  void mnuFileFind_Click();
  void mnuFileDelete_Click();
  void mnuSortBy_Click(int index);
  void mnuSortLogCount_Click();
  // Find's search: selects the next match in the tree.
  bool findNext(const std::string& part);

  QTreeWidget* tvRecipes = nullptr;
  QLabel* lblTitle = nullptr;
  QToolBar* tbToolBar = nullptr;
  QAction *mnuFileNew = nullptr, *mnuFileImport = nullptr, *mnuFileExport = nullptr, *mnuFileFind = nullptr,
          *mnuFileDelete = nullptr, *mnuFilePageSetup = nullptr, *mnuFilePreview = nullptr,
          *mnuFilePrintNow = nullptr, *mnuFileGenHTML = nullptr, *mnuFileProperties = nullptr,
          *mnuFileExit = nullptr, *mnuInventory = nullptr, *mnuBeerStyles = nullptr, *mnuSortLogCount = nullptr,
          *mnuHelpContents = nullptr, *mnuHelpIndex = nullptr, *mnuHelpSearch = nullptr;
  std::array<QAction*, 5> mnuSortBy{};
  // Toolbar buttons by key.
  QAction *tbNew = nullptr, *tbOpen = nullptr, *tbExport = nullptr, *tbPreview = nullptr, *tbPrint = nullptr,
          *tbGenHTML = nullptr, *tbDelete = nullptr, *tbFind = nullptr, *tbSortasc = nullptr, *tbSortdes = nullptr,
          *tbHelp = nullptr;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildMenus();
  void buildToolbar();
  void selectionChanged();
  // The enabled states of tvRecipes_Click on the menus and buttons.
  void showEnabledStates();
  RecipeOpenHooks hooks() const;

  Workbench& wb_;
  std::array<std::function<void()>, 2> viewOpeners_;
  bool refreshing_ = false;
};

}  // namespace zy
