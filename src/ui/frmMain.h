#pragma once
// The encyclopedia window, the program's home: five topic trees on the tab strip tabTopics, the
// topic page in webTopic, the menus and the toolbar that lead to the rest of the program. The
// state and the procedures are those of ReferenceBrowser; this view forwards clicks and repaints.
#include <QMainWindow>
#include <QPrinter>
#include <array>
#include <functional>
#include <memory>
#include <string>

#include "reference/HttpFetch.h"
#include "reference/ReferenceBrowser.h"
#include "workbench/Startup.h"
#include "workbench/Workbench.h"

class QAction;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTabBar;
class QTextBrowser;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;
class QStatusBar;

namespace zy {

class frmHelp;

class frmMain : public QMainWindow {
  Q_OBJECT
 public:
  explicit frmMain(Workbench& wb, QWidget* parent = nullptr);
  ~frmMain() override;

  // The load sequence, every step in its fixed order. `commandLine` is the trimmed command line
  // (the recipe exchange file to import), empty for none.
  void load(const std::string& commandLine);
  const LoadSequence& loadSequence() const { return sequence_; }
  // Shows the window as its settings left it (normal or maximised).
  void showFromSettings();

  ReferenceBrowser& browser() { return browser_; }
  Workbench& workbench() { return wb_; }

  // The windows that other parts of the program add. An entry whose window is not there stays
  // disabled. `recipeList` also serves the command-line import.
  enum class Child { RecipeList, Inventory, BeerStyles, ShoppingList };
  void setChildOpener(Child which, std::function<void()> open);
  // Opens the child window when this build has it; false when it has not.
  bool openChild(Child which);

  // The update check's network port and browser launcher (tests replace them).
  void setHttpFetch(HttpFetch* http) { http_ = http; }
  std::function<void(const std::string&)> openBrowser;
  // Ends the event loop when the window closes (off in tests).
  bool quitOnClose = true;
  // The record number of the recipe imported from the command line, 0 for none.
  long importedRecipe = 0;

  frmHelp* help();
  void showHelp(int where);  // 0 contents, 1 index, 2 search

  // Repaints every control from the model.
  void refreshFromModel();

  // Controls, by their names.
  QTabBar* tabTopics = nullptr;
  std::array<QTreeWidget*, kTopicTreeCount> tvwTopics{};
  QTextBrowser* webTopic = nullptr;
  QLabel* lblTitle = nullptr;
  QPushButton* cmdGoBack = nullptr;
  QWidget* picSearch = nullptr;
  QLineEdit* txtSearch = nullptr;
  QPushButton* cmdSearch = nullptr;
  QPushButton* cmdClear = nullptr;
  QLabel* lblSearch = nullptr;
  QWidget* picAlsoSee = nullptr;
  QLabel* lblAlsoSeeTopic = nullptr;
  QPushButton* cmdAlsoSee = nullptr;
  QToolBar* tbToolBar = nullptr;
  QStatusBar* sbStatusBar = nullptr;
  QLabel* lblStatusCount = nullptr;

  QAction *mnuFileBackupDB = nullptr, *mnuFileRestoreDB = nullptr, *mnuFileProperties = nullptr,
          *mnuFilePageSetup = nullptr, *mnuFilePrint = nullptr, *mnuFileExit = nullptr;
  QAction *mnuViewToolbar = nullptr, *mnuViewStatusBar = nullptr, *mnuViewRecipeList = nullptr,
          *mnuViewInventory = nullptr, *mnuViewBeerStyles = nullptr, *mnuViewShoppingList = nullptr,
          *mnuViewQuillmark = nullptr;
  QAction *mnuHelpContents = nullptr, *mnuHelpIndex = nullptr, *mnuHelpSearch = nullptr, *mnuHelpAbout = nullptr;
  // Toolbar buttons by key.
  QAction *tbPrint = nullptr, *tbRecipes = nullptr, *tbInventory = nullptr, *tbStyles = nullptr,
          *tbShopping = nullptr, *tbHelp = nullptr;

 public slots:
  void mnuFileBackupDB_Click();
  void mnuFileRestoreDB_Click();
  void mnuFileProperties_Click();
  void mnuFilePageSetup_Click();
  void mnuFilePrint_Click();
  void mnuViewQuillmark_Click();
  void mnuHelpAbout_Click();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildMenus();
  void buildToolbar();
  QWidget* buildTopicPanel();
  QWidget* buildPagePanel();
  void syncTree(int tree);
  void fillTree(int tree);
  void nodeSelected(int tree, QTreeWidgetItem* item);
  void tabChanged(int tab);
  void showPage();
  void showLabelEntry();
  void restoreWindowSettings();
  void commandLineImport(const std::string& path);
  void updateCheck();
  WindowPlacement currentPlacement() const;
  void linkClicked(const QUrl& url);

  Workbench& wb_;
  ReferenceBrowser browser_;
  LoadSequence sequence_;
  std::unique_ptr<HttpFetch> ownHttp_;
  HttpFetch* http_ = nullptr;
  std::array<std::function<void()>, 4> openers_;
  std::array<std::vector<std::string>, kTopicTreeCount> shown_;  // what each tree shows
  frmHelp* help_ = nullptr;
  QStackedWidget* stack_ = nullptr;
  QPrinter printer_;
  WindowPlacement placement_;
  bool syncing_ = false;
  QTreeWidgetItem* pressed_ = nullptr;
};

}  // namespace zy
