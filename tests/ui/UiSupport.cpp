#include "ui/UiSupport.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <filesystem>

#include "core/paths.h"
#include "reference/ReferenceFiles.h"
#include "support/TestSupport.h"

namespace zy::test {

void writeTestReference(const std::string& root) {
  std::vector<TopicRecord> topics(4);
  topics[0] = {"Barley Malt", "<p>Malt gives the wort its sugar.</p>", {{"malt.png", "Pale malt"}},
               {"Mashing", "Hops", "Nothing Like This"}};
  topics[1] = {"Hops", "<p>Hops give bitterness, measured in IBU.</p>", {}, {}};
  topics[2] = {"Mashing", "<p>Hold the mash at 152 F for an hour.</p>",
               {{"mash1.png", "Dough in"}, {"mash2.png", "Mash out"}}, {"Barley Malt"}};
  topics[3] = {"Yeast", "<p>Yeast turns sugar into alcohol.</p>", {}, {}};
  std::string store = topicStoreHeader();
  std::vector<TocEntry> toc;
  for (const TopicRecord& t : topics) {
    toc.push_back({static_cast<long>(store.size()), t.title});
    store += encodeTopicRecord(t);
  }
  MiniBookRecord book;
  book.name = "First Brew";
  book.description = "<p>A first extract batch.</p>";
  book.chapters = {{toc[1].position, "Hops"}, {toc[3].position, "Yeast"}};
  ProgramFolder f(root);
  f.ensureFolders();
  writeFile(f.referenceFile(kZythEnc), store);
  writeFile(f.referenceFile(kZythTocEnc), encodeTocFile(toc));
  writeFile(f.referenceFile(kZythMbEnc), encodeMiniBookFile({book}));
}

void copyHelpPages(const std::string& root) {
  namespace fs = std::filesystem;
  fs::create_directories(fs::path(root) / "Help");
  for (const auto& e : fs::directory_iterator(fs::path(ZY_SOURCE_DIR) / "data" / "help"))
    fs::copy_file(e.path(), fs::path(root) / "Help" / e.path().filename(), fs::copy_options::overwrite_existing);
}

LocalHttpServer::LocalHttpServer() {
  server_.listen(QHostAddress::LocalHost, 0);
  QObject::connect(&server_, &QTcpServer::newConnection, this, [this] {
    while (QTcpSocket* s = server_.nextPendingConnection()) {
      QObject::connect(s, &QTcpSocket::readyRead, s, [this, s] {
        QByteArray request = s->readAll();
        if (!request.contains("\r\n\r\n")) return;
        ++requests;
        QByteArray path = request.split(' ').value(1);
        QByteArray answer;
        auto it = files.find(QString::fromLatin1(path));
        if (it != files.end())
          answer = "HTTP/1.0 200 OK\r\nContent-Type: text/plain\r\nContent-Length: " +
                   QByteArray::number(it->size()) + "\r\n\r\n" + *it;
        else
          answer = "HTTP/1.0 404 Not Found\r\nContent-Length: 9\r\n\r\nNot Found";
        s->write(answer);
        s->disconnectFromHost();
      });
      QObject::connect(s, &QTcpSocket::disconnected, s, &QObject::deleteLater);
    }
  });
}

QString LocalHttpServer::url(const QString& path) const {
  return QString("http://127.0.0.1:%1%2").arg(port()).arg(path);
}

void clickItem(QTreeWidget* tree, QTreeWidgetItem* item) {
  tree->scrollToItem(item);
  QRect r = tree->visualItemRect(item);
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, r.center());
}

void whenModalOpens(const std::function<void(QWidget*)>& action) {
  auto* timer = new QTimer;
  timer->setInterval(20);
  QObject::connect(timer, &QTimer::timeout, [timer, action] {
    if (QWidget* w = QApplication::activeModalWidget()) {
      timer->stop();
      timer->deleteLater();
      action(w);
    }
  });
  timer->start();
}

namespace {

QChar accessKey(const QString& text) {
  for (int i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != '&') continue;
    if (text[i + 1] == '&') {
      ++i;
      continue;
    }
    return text[i + 1].toUpper();
  }
  return {};
}

void addClashes(const QString& scope, const QStringList& captions, std::vector<std::string>& out) {
  QMap<QChar, QStringList> byKey;
  for (const QString& c : captions)
    if (QChar k = accessKey(c); !k.isNull()) byKey[k] << c;
  for (auto it = byKey.cbegin(); it != byKey.cend(); ++it)
    if (it->size() > 1) out.push_back((scope + ": Alt+" + it.key() + ": " + it->join(" | ")).toStdString());
}

void addMenuClashes(QMenu* menu, std::vector<std::string>& out) {
  QStringList entries;
  for (QAction* a : menu->actions()) {
    if (a->isSeparator()) continue;
    entries << a->text();
    if (a->menu()) addMenuClashes(a->menu(), out);
  }
  addClashes(menu->title(), entries, out);
}

}  // namespace

std::vector<std::string> accessKeyClashes(QWidget* window) {
  std::vector<std::string> out;
  auto shown = [window](QWidget* w) { return w->window() == window && w->isVisibleTo(window); };
  QStringList keys;
  for (QMenuBar* bar : window->findChildren<QMenuBar*>()) {
    if (bar->window() != window) continue;
    for (QAction* a : bar->actions()) {
      keys << a->text();
      if (a->menu()) addMenuClashes(a->menu(), out);
    }
  }
  for (QAbstractButton* b : window->findChildren<QAbstractButton*>())
    if (shown(b)) keys << b->text();
  for (QGroupBox* g : window->findChildren<QGroupBox*>())
    if (shown(g)) keys << g->title();
  for (QLabel* l : window->findChildren<QLabel*>())
    if (shown(l) && l->buddy()) keys << l->text();
  for (QTabBar* t : window->findChildren<QTabBar*>())
    if (shown(t))
      for (int i = 0; i < t->count(); ++i) keys << t->tabText(i);
  addClashes(window->objectName(), keys, out);
  return out;
}

bool pictureIsNotBlank(const QString& path) {
  QImage img(path);
  if (img.isNull()) return false;
  const QRgb first = img.pixel(0, 0);
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x)
      if (img.pixel(x, y) != first) return true;
  return false;
}

void saveScreenshot(QWidget& w, const QString& dir, const QString& name) {
  QApplication::processEvents();
  QTest::qWait(50);
  const QString path = QDir(dir).filePath(name + ".png");
  ASSERT_TRUE(w.grab().save(path)) << path.toStdString();
  EXPECT_TRUE(pictureIsNotBlank(path)) << name.toStdString() << " is one colour";
}

}  // namespace zy::test
