#pragma once
// The program's help as it lies in the Help folder: HTML pages, a contents file that orders them
// in a tree, and the keywords each page names for the index. The catalog also answers the
// full-text search of the help window.
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace zy {

struct HelpContentsEntry {
  QString title;
  QString target;  // page file name, with an optional "#anchor"
  int depth = 0;   // 0 for a book of the contents, 1 and deeper for its pages
};

struct HelpPage {
  QString file;
  QString title;
  QString html;
  QString plainText;  // lower-cased, for the search
};

struct HelpIndexEntry {
  QString keyword;
  QString target;
  QString pageTitle;
};

struct HelpSearchHit {
  QString file;
  QString title;
  int score = 0;
};

class HelpCatalog {
 public:
  // Reads the folder: "contents.txt" and every "*.html" page. False when the folder holds no
  // pages at all.
  bool load(const QString& folder);
  const QString& folder() const { return folder_; }
  const QList<HelpContentsEntry>& contents() const { return contents_; }
  // Index entries sorted by keyword without regard to case.
  const QList<HelpIndexEntry>& index() const { return index_; }
  const HelpPage* page(const QString& file) const;
  QStringList pageFiles() const { return pages_.keys(); }
  // Pages that hold every word of the query (case-blind); the best match first, then by title.
  // Words in double quotes are taken together as one phrase.
  QList<HelpSearchHit> search(const QString& query) const;
  // The words and phrases of a query as the search takes them.
  static QStringList queryTerms(const QString& query);

 private:
  QString folder_;
  QList<HelpContentsEntry> contents_;
  QList<HelpIndexEntry> index_;
  QMap<QString, HelpPage> pages_;
};

}  // namespace zy
