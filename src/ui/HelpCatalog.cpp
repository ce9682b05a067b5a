#include "ui/HelpCatalog.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>

namespace zy {

namespace {

QString readText(const QString& path) {
  QFile f(path);
  if (!f.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(f.readAll());
}

QString titleOf(const QString& html, const QString& fallback) {
  static const QRegularExpression re("<title>(.*?)</title>", QRegularExpression::CaseInsensitiveOption |
                                                                QRegularExpression::DotMatchesEverythingOption);
  auto m = re.match(html);
  if (!m.hasMatch()) return fallback;
  QTextDocument d;
  d.setHtml(m.captured(1));
  return d.toPlainText().simplified();
}

QStringList keywordsOf(const QString& html) {
  static const QRegularExpression re("<meta\\s+name=\"keywords\"\\s+content=\"([^\"]*)\"",
                                     QRegularExpression::CaseInsensitiveOption);
  auto m = re.match(html);
  if (!m.hasMatch()) return {};
  QStringList out;
  for (const QString& k : m.captured(1).split(';')) {
    QString t = k.trimmed();
    if (!t.isEmpty()) out << t;
  }
  return out;
}

}  // namespace

bool HelpCatalog::load(const QString& folder) {
  folder_ = folder;
  contents_.clear();
  index_.clear();
  pages_.clear();
  QDir dir(folder);
  for (const QString& name : dir.entryList({"*.html"}, QDir::Files, QDir::Name)) {
    HelpPage p;
    p.file = name;
    p.html = readText(dir.filePath(name));
    p.title = titleOf(p.html, name);
    QTextDocument d;
    d.setHtml(p.html);
    p.plainText = d.toPlainText().toLower();
    for (const QString& k : keywordsOf(p.html)) {
      // "keyword#anchor" points into the page.
      int hash = k.indexOf('#');
      HelpIndexEntry e;
      e.keyword = hash < 0 ? k : k.left(hash).trimmed();
      e.target = hash < 0 ? name : name + k.mid(hash);
      e.pageTitle = p.title;
      index_ << e;
    }
    pages_.insert(name, p);
  }
  std::stable_sort(index_.begin(), index_.end(), [](const HelpIndexEntry& a, const HelpIndexEntry& b) {
    int c = QString::compare(a.keyword, b.keyword, Qt::CaseInsensitive);
    return c != 0 ? c < 0 : QString::compare(a.pageTitle, b.pageTitle, Qt::CaseInsensitive) < 0;
  });

  // contents.txt: one entry a line, "Title|page.html#anchor", two blanks of indent a level.
  const QStringList lines = readText(dir.filePath("contents.txt")).split('\n');
  for (const QString& raw : lines) {
    QString line = raw;
    line.remove('\r');
    if (line.trimmed().isEmpty() || line.trimmed().startsWith('#')) continue;
    int indent = 0;
    while (indent < line.size() && line[indent] == ' ') ++indent;
    QStringList parts = line.trimmed().split('|');
    HelpContentsEntry e;
    e.title = parts.value(0).trimmed();
    e.target = parts.value(1).trimmed();
    e.depth = indent / 2;
    if (!e.title.isEmpty()) contents_ << e;
  }
  return !pages_.isEmpty();
}

const HelpPage* HelpCatalog::page(const QString& file) const {
  auto it = pages_.find(file.section('#', 0, 0));
  return it == pages_.end() ? nullptr : &it.value();
}

QStringList HelpCatalog::queryTerms(const QString& query) {
  QStringList terms;
  static const QRegularExpression re("\"([^\"]+)\"|(\\S+)");
  auto it = re.globalMatch(query.toLower());
  while (it.hasNext()) {
    auto m = it.next();
    QString t = m.captured(1).isEmpty() ? m.captured(2) : m.captured(1).simplified();
    if (!t.isEmpty()) terms << t;
  }
  return terms;
}

QList<HelpSearchHit> HelpCatalog::search(const QString& query) const {
  QList<HelpSearchHit> hits;
  const QStringList terms = queryTerms(query);
  if (terms.isEmpty()) return hits;
  for (const HelpPage& p : pages_) {
    int score = 0;
    bool all = true;
    for (const QString& t : terms) {
      int n = p.plainText.count(t);
      if (n == 0) {
        all = false;
        break;
      }
      score += n;
      if (p.title.toLower().contains(t)) score += 10;  // a word of the title weighs more
    }
    if (all) hits << HelpSearchHit{p.file, p.title, score};
  }
  std::stable_sort(hits.begin(), hits.end(), [](const HelpSearchHit& a, const HelpSearchHit& b) {
    if (a.score != b.score) return a.score > b.score;
    return QString::compare(a.title, b.title, Qt::CaseInsensitive) < 0;
  });
  return hits;
}

}  // namespace zy
