#pragma once
// What the window tests share: a small encyclopedia written into a test's program folder, a
// local HTTP server, and helpers to drive widgets as a person would.
#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTcpServer>
#include <functional>
#include <string>
#include <vector>

class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

namespace zy::test {

// Writes Reference/Zyth.enc, ZythTOC.enc and ZythMB.enc into `root`:
//   "Barley Malt"  one picture, also see "Mashing", "Hops", "Nothing Like This"
//   "Hops"         no picture, no also see
//   "Mashing"      two pictures, also see "Barley Malt"
//   "Yeast"        no picture
// and one mini-book "First Brew" with the chapters "Hops" and "Yeast".
void writeTestReference(const std::string& root);

// Copies the program's help pages (data/help of the sources) into root/Help.
void copyHelpPages(const std::string& root);

// A one-thread HTTP server on 127.0.0.1 answering GETs from a table of paths.
class LocalHttpServer : public QObject {
 public:
  LocalHttpServer();
  quint16 port() const { return server_.serverPort(); }
  QString url(const QString& path) const;
  // path -> body answered with 200; a path not in the table gets 404.
  QMap<QString, QByteArray> files;
  int requests = 0;

 private:
  QTcpServer server_;
};

// A click on a tree item, the way the mouse does it.
void clickItem(QTreeWidget* tree, QTreeWidgetItem* item);
// Runs `action` as soon as a modal window is open (for the dialogs a menu command opens).
void whenModalOpens(const std::function<void(QWidget*)>& action);

// The access keys (Alt+letter) of a window that are given twice, one line per clash:
// "frmMain: Alt+H: &History | &Help". The window's own keys are its menu titles, tab captions,
// buttons, group boxes and labels with a buddy that are shown in it (of a tab widget, the page in
// front only); each menu's entries are a set of their own.
std::vector<std::string> accessKeyClashes(QWidget* window);

// True when `path` holds a picture of more than one colour (written, and not blank).
bool pictureIsNotBlank(const QString& path);

// Once the pending events have painted it, saves a picture of `w` as dir/name.png and checks that
// the file was written and is not one colour.
void saveScreenshot(QWidget& w, const QString& dir, const QString& name);

}  // namespace zy::test
