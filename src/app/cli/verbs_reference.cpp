// Verbs over the encyclopedia and the File menu of the main window: topics, topic, search,
// books, backup, restore, check-update.
#include "app/cli/Cli.h"
#include "core/text.h"
#include "reference/Backup.h"
#include "reference/HttpFetch.h"
#include "reference/ReferenceBrowser.h"
#include "reference/UpdateCheck.h"

namespace zy::cli {
namespace {

std::string joined(const std::vector<std::string>& args) {
  std::string s;
  for (const std::string& a : args) s += (s.empty() ? "" : " ") + a;
  return s;
}

// The browser as the window's load leaves it: the store open, both trees filled.
void loadBrowser(ReferenceBrowser& b) {
  b.openTopicStore();
  b.loadEncyclopediaTopics();
  b.loadMiniBooks();
}

int verbTopics(Context& c) {
  ReferenceBrowser b(c.wb);
  loadBrowser(b);
  for (const TopicNode& n : b.trees[TreeAllTopics]) c.line(n.text);
  return EXIT_DONE;
}

int verbTopic(Context& c) {
  if (c.args.empty()) return c.usage("topic TITLE");
  const std::string title = joined(c.args);
  ReferenceBrowser b(c.wb);
  loadBrowser(b);
  int i = b.findTopic(title);
  if (i < 0) {
    std::fprintf(c.err, "zythara-cli: no topic has the index title %s\n", displayUtf8(title).c_str());
    return EXIT_REPORTED;
  }
  b.selectNode({TreeAllTopics, i, -1});
  c.print(b.page);
  return EXIT_DONE;
}

int verbSearch(Context& c) {
  if (c.args.empty()) return c.usage("search PHRASE");
  ReferenceBrowser b(c.wb);
  loadBrowser(b);
  b.txtSearch = joined(c.args);
  b.cmdSearch();
  if (b.lblSearch.empty()) return EXIT_REPORTED;  // nothing entered
  c.line(b.lblSearch);
  for (const TopicNode& n : b.trees[TreeSearch]) c.line(n.text);
  return EXIT_DONE;
}

int verbBooks(Context& c) {
  ReferenceBrowser b(c.wb);
  loadBrowser(b);
  for (const TopicNode& book : b.trees[TreeMiniBooks]) {
    c.line(book.text);
    for (const TopicNode& ch : book.children) c.line("  " + ch.text);
  }
  return EXIT_DONE;
}

// The arguments reach the verbs as 8-bit text; a folder is a path of the file system, whose
// names are UTF-8.
int outcomeStatus(BackupOutcome o) {
  return (o == BackupOutcome::Done || o == BackupOutcome::Cancelled) ? EXIT_DONE : EXIT_REPORTED;
}

int verbBackup(Context& c) {
  if (c.args.size() > 1) return c.usage("backup [DIR]");
  const std::string given = c.args.empty() ? std::string() : c.pathArg(0);
  FolderPicker pick = [&](const std::string& title, const std::string& initial) -> std::optional<std::string> {
    (void)title;
    if (given.empty()) return initial;  // the proposed dated folder, confirmed
    makeFolders(given);
    return given;
  };
  return outcomeStatus(backupAllDatabases(c.wb, pick));
}

int verbRestore(Context& c) {
  if (c.args.size() != 1) return c.usage("restore DIR");
  const std::string given = c.pathArg(0);
  FolderPicker pick = [&](const std::string&, const std::string&) -> std::optional<std::string> { return given; };
  return outcomeStatus(restoreAllDatabases(c.wb, pick));
}

int verbCheckUpdate(Context& c) {
  if (c.args.size() > 1) return c.usage("check-update [URL]");
  SocketHttpFetch http;
  UpdateResult r = checkForUpdate(c.wb, http, c.args.empty() ? std::string() : c.pathArg(0));
  switch (r.outcome) {
    case UpdateOutcome::NotDue: c.line("not due"); break;
    case UpdateOutcome::Newer: c.line("newer " + r.remoteVersion); break;
    case UpdateOutcome::Current: c.line("current"); break;
    case UpdateOutcome::Unavailable: c.line("unavailable"); break;
  }
  return EXIT_DONE;
}

VerbRegistrar r1("topics", "topics", verbTopics);
VerbRegistrar r2("topic", "topic TITLE", verbTopic);
VerbRegistrar r3("search", "search PHRASE", verbSearch);
VerbRegistrar r4("books", "books", verbBooks);
VerbRegistrar r5("backup", "backup [DIR]", verbBackup);
VerbRegistrar r6("restore", "restore DIR", verbRestore);
VerbRegistrar r7("check-update", "check-update [URL]", verbCheckUpdate);

}  // namespace
}  // namespace zy::cli
