#pragma once
// The help window: the program's own HTML help with its contents tree, keyword index and
// full-text search beside the page.
#include <QMainWindow>

#include "ui/HelpCatalog.h"

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QTabWidget;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;
class QLabel;
class QPushButton;

namespace zy {

class frmHelp : public QMainWindow {
  Q_OBJECT
 public:
  explicit frmHelp(const QString& helpFolder, QWidget* parent = nullptr);

  // The three ways in, as the Help menus offer them.
  void showContents();
  void showIndex(const QString& keyword = {});
  void showSearch(const QString& query = {});
  // Opens a page ("page.html" or "page.html#anchor").
  void showTopic(const QString& target);

  const HelpCatalog& catalog() const { return catalog_; }
  QString currentPage() const;

  // Controls, named for the tests.
  QTabWidget* tabs = nullptr;
  QTreeWidget* tvContents = nullptr;
  QLineEdit* txtIndex = nullptr;
  QListWidget* lstIndex = nullptr;
  QLineEdit* txtSearch = nullptr;
  QPushButton* cmdSearch = nullptr;
  QLabel* lblSearch = nullptr;
  QListWidget* lstSearch = nullptr;
  QTextBrowser* webHelp = nullptr;

 public slots:
  void runSearch();

 private:
  void buildContents();
  void filterIndex(const QString& text);
  void openIndexItem(QListWidgetItem* item);
  void printPage();
  void syncContents();

  HelpCatalog catalog_;
  bool syncing_ = false;
};

}  // namespace zy
