#pragma once
// The model of the encyclopedia window frmMain: the five topic trees of the tab strip
// tabTopics, the page shown in webTopic, the history, the Also See list, the search and Go Back.
// The view builds the controls, forwards clicks to the procedures here and repaints from the
// fields; it keeps no state of its own.
//
// Zyth.enc stays open from openTopicStore() until closeTopicStore() (the window's unload); a
// click costs one seek. Its read position is part of the state: the also-see entries of the
// topic last shown are read from where loadTopicText left off, which is why the search puts
// the position back when it is done.
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "reference/ReferenceFiles.h"
#include "workbench/Workbench.h"

namespace zy {

// Icons of tree nodes, by their keys "Photo", "Leaf", "ClosedBook", "OpenBook".
enum class TopicIcon { Photo, Leaf, ClosedBook, OpenBook };
const char* iconKey(TopicIcon icon);

struct TopicNode {
  std::string text;  // 8-bit
  TopicIcon icon = TopicIcon::Leaf;
  // A topic: its position in Zyth.enc plus 1, as text. A mini-book root: "0 " + description.
  std::string tag;
  std::vector<TopicNode> children;  // the chapters of a mini-book root
  bool expanded = false;

  // The leading number of the tag (0 for a mini-book root).
  long tagValue() const;
  bool isBookRoot() const { return tagValue() <= 0; }
};

// The trees, in the order of the tabs.
enum TopicTree { TreeAllTopics = 0, TreeMiniBooks = 1, TreeHistory = 2, TreeAlsoSee = 3, TreeSearch = 4 };
constexpr int kTopicTreeCount = 5;
// The keys of the tabs: "All Topics", "Mini-Books", "History", "Also See", "Search".
extern const char* const kTopicTabKeys[kTopicTreeCount];
// The captions the tabs start with.
extern const char* const kTopicTabCaptions[kTopicTreeCount];
constexpr const char* kAlsoSeeCaptionPending = "* A&lso See";
constexpr const char* kAlsoSeeCaptionEmpty = "  A&lso See";
constexpr int kMaxHistoryNodes = 100;

// The program's legal notice, one line, shown at the foot of every page and in the About box.
const std::string& legalLine();

// A node's place: the tree, its index in the tree, and for a chapter its index below the root.
struct NodeRef {
  int tree = TreeAllTopics;
  int index = -1;
  int child = -1;
};

class ReferenceBrowser {
 public:
  explicit ReferenceBrowser(Workbench& wb);
  ~ReferenceBrowser();
  ReferenceBrowser(const ReferenceBrowser&) = delete;
  ReferenceBrowser& operator=(const ReferenceBrowser&) = delete;

  // Step 2 of the window's load: opens Reference/Zyth.enc and keeps it open. A missing file is
  // error 53, which ends the program through the error routine.
  void openTopicStore();
  void closeTopicStore();
  bool topicStoreOpen() const { return store_.isOpen(); }

  // Fill tree 0 from ZythTOC.enc, and tree 1 from ZythMB.enc.
  void loadEncyclopediaTopics();
  void loadMiniBooks();
  // After the trees are loaded: the current tab is "All Topics" and the first topic is shown with
  // addToHistory and flagAlsoSee true. Nothing happens when tree 0 is empty.
  void showFirstTopic();

  // Shows the topic at the one-based position `offset`: builds `page`, sets `lblTitle`, takes
  // the history entry, enables cmdGoBack and cmdAlsoSee, and with flagAlsoSee refreshes the
  // Also See tab.
  void loadTopicText(long offset, bool addToHistory, bool flagAlsoSee);
  // Reads the remaining also-see entries of the topic last shown into tree 3.
  void loadAlsoSee();
  // The page of a mini-book root (tree 1, index `book`).
  void showMiniBook(int book);
  void searchForPhrase(const std::string& phrase);

  // Events of the window.
  void selectNode(const NodeRef& ref);  // a node selected in one of the trees
  void setExpanded(int book, bool expanded);  // a mini-book root opened or closed: its icon
  void cmdGoBack();
  void cmdAlsoSee();   // "Refresh Also See..."
  void clickAlsoSeeTopic();  // a click on lblAlsoSeeTopic
  void cmdSearch();    // runs the search on the trimmed txtSearch
  void cmdClear();
  void selectTab(int tab);
  // The view asks for these when it lays out the tab: picSearch with tab 4, picAlsoSee with 3.
  bool searchPanelVisible() const { return currentTab == TreeSearch; }
  bool alsoSeePanelVisible() const { return currentTab == TreeAlsoSee; }

  // A node by its place, or nullptr.
  const TopicNode* node(const NodeRef& ref) const;
  // The first topic of tree 0 whose text equals `indexTitle` without regard to case; -1 if none.
  int findTopic(const std::string& indexTitle) const;

  // The state of the window. Texts are 8-bit.
  std::array<std::vector<TopicNode>, kTopicTreeCount> trees;
  std::array<std::string, kTopicTreeCount> tabCaptions;
  int currentTab = TreeAllTopics;
  std::string page;  // the HTML page shown in webTopic; never written to a file
  std::string lblTitle;
  long lblTitleTag = 0;
  std::string lblAlsoSeeTopic;  // shown under the label "Original Topic:"
  long lblAlsoSeeTopicTag = 0;
  std::string txtSearch;
  std::string lblSearch;
  bool cmdGoBackEnabled = false;
  bool cmdAlsoSeeEnabled = false;
  int currentHistory = -1;  // index in tree 2 of the entry now shown; -1 for none
  long alsoSeeRemaining = 0;

  // Hooks for the view: the page changed (navigate to about:blank, then set the page); the
  // search started (repaint so that "Searching..." shows).
  std::function<void()> pageChanged;
  std::function<void()> searchStarted;

 private:
  void readFailed(const ReferenceReadError& e, const std::string& functionName, const std::string& file);
  // The icon of the topic at a zero-based position, read from the store.
  TopicIcon iconAt(long position);
  void showPage(std::string html);

  Workbench& wb_;
  ReferenceReader store_;
};

}  // namespace zy
