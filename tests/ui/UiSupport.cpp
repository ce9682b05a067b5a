#include "ui/UiSupport.h"

#include <QApplication>
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

}  // namespace zy::test
