#include "reference/ReferenceBrowser.h"

#include <cctype>

#include "core/text.h"

namespace zy {

namespace {
const char* const kCrLf = "\r\n";
const char* const kFnTopics = "frmMain!loadEncyclopediaTopics";
const char* const kFnBooks = "frmMain!loadMiniBooks";
const char* const kFnTopicText = "frmMain!loadTopicText";
const char* const kFnAlsoSee = "frmMain!loadAlsoSee";
const char* const kFnSearch = "frmMain!searchForPhrase";
const char* const kFnLoad = "frmMain!Form_Load";
}  // namespace

const char* const kTopicTabKeys[kTopicTreeCount] = {"All Topics", "Mini-Books", "History", "Also See", "Search"};
const char* const kTopicTabCaptions[kTopicTreeCount] = {"&All Topics", "&Mini-Books", "His&tory",
                                                        kAlsoSeeCaptionEmpty, "&Search"};

const char* iconKey(TopicIcon icon) {
  switch (icon) {
    case TopicIcon::Photo: return "Photo";
    case TopicIcon::Leaf: return "Leaf";
    case TopicIcon::ClosedBook: return "ClosedBook";
    case TopicIcon::OpenBook: return "OpenBook";
  }
  return "Leaf";
}

const std::string& legalLine() {
  static const std::string line =
      "Zythara 2 Homebrewing Encyclopedia. Copyright \xA9 2026 The Zythara Developers. All Rights Reserved.";
  return line;
}

long TopicNode::tagValue() const {
  size_t i = 0;
  while (i < tag.size() && tag[i] == ' ') ++i;
  long v = 0;
  bool any = false;
  for (; i < tag.size() && std::isdigit(static_cast<unsigned char>(tag[i])); ++i) {
    any = true;
    if (v > 100000000L) return v;  // beyond any position of the store
    v = v * 10 + (tag[i] - '0');
  }
  return any ? v : 0;
}

ReferenceBrowser::ReferenceBrowser(Workbench& wb) : wb_(wb) {
  for (int i = 0; i < kTopicTreeCount; ++i) tabCaptions[static_cast<size_t>(i)] = kTopicTabCaptions[i];
}

ReferenceBrowser::~ReferenceBrowser() { closeTopicStore(); }

void ReferenceBrowser::readFailed(const ReferenceReadError& e, const std::string& functionName,
                                  const std::string& file) {
  wb_.errors.reportError(e.number, 0, functionName, file, e.description);
}

void ReferenceBrowser::openTopicStore() {
  const std::string path = wb_.folder.referenceFile(kZythEnc);
  try {
    store_.open(path);
  } catch (const ReferenceReadError& e) {
    readFailed(e, kFnLoad, path);
  }
}

void ReferenceBrowser::closeTopicStore() { store_.close(); }

void ReferenceBrowser::loadEncyclopediaTopics() {
  const std::string path = wb_.folder.referenceFile(kZythTocEnc);
  std::vector<TopicNode>& tree = trees[TreeAllTopics];
  tree.clear();
  ReferenceReader toc;
  std::string failedFile = path;
  try {
    toc.open(path);
    long header = toc.readNumber(3);
    toc.readText(4);  // two header fields, kept by nobody
    toc.readText(4);
    toc.seek(header);
    while (!toc.atEnd()) {
      failedFile = path;
      long position = toc.readNumber(8);
      std::string indexTitle = toc.readText(toc.readNumber(2));
      failedFile = store_.path();
      store_.seek(position);
      store_.readText(store_.readNumber(2));  // the topic's own title
      store_.readNumber(5);                   // body length
      long images = store_.readNumber(2);
      TopicNode n;
      n.text = indexTitle;
      n.icon = images > 0 ? TopicIcon::Photo : TopicIcon::Leaf;
      n.tag = itos(position + 1);
      tree.push_back(std::move(n));
    }
  } catch (const ReferenceReadError& e) {
    readFailed(e, kFnTopics, failedFile);
  }
}

TopicIcon ReferenceBrowser::iconAt(long position) {
  const std::string tag = itos(position + 1);
  for (const TopicNode& n : trees[TreeAllTopics])
    if (n.tag == tag) return n.icon;
  if (!store_.isOpen()) return TopicIcon::Leaf;
  store_.seek(position);
  store_.readText(store_.readNumber(2));
  store_.readNumber(5);
  return store_.readNumber(2) > 0 ? TopicIcon::Photo : TopicIcon::Leaf;
}

void ReferenceBrowser::loadMiniBooks() {
  const std::string path = wb_.folder.referenceFile(kZythMbEnc);
  std::vector<TopicNode>& tree = trees[TreeMiniBooks];
  tree.clear();
  ReferenceReader mb;
  try {
    mb.open(path);
    long header = mb.readNumber(3);
    mb.seek(header);
    long count = mb.readNumber(3);
    for (long b = 0; b < count; ++b) {
      long chapters = mb.readNumber(2);
      TopicNode root;
      root.text = mb.readText(mb.readNumber(2));
      std::string description = mb.readText(mb.readNumber(3));
      root.icon = TopicIcon::ClosedBook;
      root.tag = "0 " + description;
      for (long c = 0; c < chapters; ++c) {
        long position = mb.readNumber(8);
        TopicNode ch;
        ch.text = mb.readText(mb.readNumber(2));
        ch.tag = itos(position + 1);
        ch.icon = iconAt(position);
        root.children.push_back(std::move(ch));
      }
      tree.push_back(std::move(root));
    }
  } catch (const ReferenceReadError& e) {
    readFailed(e, kFnBooks, path);
  }
}

void ReferenceBrowser::showFirstTopic() {
  selectTab(TreeAllTopics);
  if (trees[TreeAllTopics].empty()) return;
  loadTopicText(trees[TreeAllTopics][0].tagValue(), true, true);
}

void ReferenceBrowser::showPage(std::string html) {
  page = std::move(html);
  if (pageChanged) pageChanged();
}

void ReferenceBrowser::loadTopicText(long offset, bool addToHistory, bool flagAlsoSee) {
  try {
    store_.seek(offset - 1);
    std::string title = store_.readText(store_.readNumber(2));
    lblTitle = title;
    lblTitleTag = offset;
    long bodyLength = store_.readNumber(5);
    long images = store_.readNumber(2);
    std::string body = store_.readText(bodyLength);

    std::string html = "<H1>" + title + "</H1>" + kCrLf;
    const std::string pictureFolder = ProgramFolder::join(wb_.folder.root(), kReferenceFolder);
    for (long i = 0; i < images; ++i) {
      std::string file = store_.readText(store_.readNumber(2));
      std::string caption = store_.readText(store_.readNumber(2));
      if (i >= static_cast<long>(kMaxTopicImages)) continue;  // two pictures are held
      html += std::string("<TABLE ALIGN=left BORDER=5>") + kCrLf;
      html += "<TR><TD ALIGN=CENTER><IMG SRC=\"" + ProgramFolder::join(pictureFolder, file) + "\">" + kCrLf;
      html += "<TR><TD ALIGN=CENTER><B>" + caption + "</B>" + kCrLf;
      html += std::string("</TABLE>") + kCrLf;
    }
    html += body + kCrLf;
    html += std::string("<br><br><br><br>") + kCrLf;
    html += "<H6>" + legalLine() + "</H6>" + kCrLf;

    const TopicIcon icon = images > 0 ? TopicIcon::Photo : TopicIcon::Leaf;
    if (addToHistory) {
      std::vector<TopicNode>& h = trees[TreeHistory];
      if (h.empty() || h.front().text != title) {
        TopicNode n;
        n.text = title;
        n.icon = icon;
        n.tag = itos(offset);
        h.insert(h.begin(), std::move(n));
      }
      currentHistory = 0;
      // Past the limit the node at position 100 goes: the oldest but one.
      if (h.size() > static_cast<size_t>(kMaxHistoryNodes)) h.erase(h.begin() + (kMaxHistoryNodes - 1));
    }
    cmdGoBackEnabled =
        currentHistory >= 0 && currentHistory < static_cast<int>(trees[TreeHistory].size()) - 1;

    alsoSeeRemaining = store_.readNumber(2);
    cmdAlsoSeeEnabled = alsoSeeRemaining > 0;
    if (flagAlsoSee) {
      if (alsoSeeRemaining > 0) {
        tabCaptions[TreeAlsoSee] = kAlsoSeeCaptionPending;
        loadAlsoSee();
      } else {
        tabCaptions[TreeAlsoSee] = kAlsoSeeCaptionEmpty;
        trees[TreeAlsoSee].clear();
        lblAlsoSeeTopic.clear();
        lblAlsoSeeTopicTag = 0;
      }
    }
    showPage(std::move(html));
  } catch (const ReferenceReadError& e) {
    alsoSeeRemaining = 0;
    readFailed(e, kFnTopicText, store_.path());
  }
}

void ReferenceBrowser::loadAlsoSee() {
  std::vector<TopicNode>& also = trees[TreeAlsoSee];
  also.clear();
  try {
    for (; alsoSeeRemaining > 0; --alsoSeeRemaining) {
      std::string wanted = lower(store_.readText(store_.readNumber(2)));
      for (const TopicNode& n : trees[TreeAllTopics]) {
        if (lower(n.text) != wanted) continue;
        TopicNode copy;
        copy.text = n.text;
        copy.icon = n.icon;
        copy.tag = n.tag;
        also.push_back(std::move(copy));
        break;
      }
    }
  } catch (const ReferenceReadError& e) {
    alsoSeeRemaining = 0;
    readFailed(e, kFnAlsoSee, store_.path());
  }
  alsoSeeRemaining = 0;
  lblAlsoSeeTopic = lblTitle;
  lblAlsoSeeTopicTag = lblTitleTag;
  cmdAlsoSeeEnabled = false;
}

void ReferenceBrowser::showMiniBook(int book) {
  if (book < 0 || book >= static_cast<int>(trees[TreeMiniBooks].size())) return;
  const TopicNode& root = trees[TreeMiniBooks][static_cast<size_t>(book)];
  lblTitle = root.text;
  std::string html = "<H1>" + root.text + "</H1>" + kCrLf;
  html += (root.tag.size() > 1 ? root.tag.substr(1) : std::string()) + "<br><br>" + kCrLf;
  for (const TopicNode& ch : root.children) html += "&nbsp;&nbsp;&nbsp;" + ch.text + "<br>" + kCrLf;
  html += std::string("<br>Double-click on one of the Closed Books on the left to open it and expose the "
                      "chapters in that book.<br>") + kCrLf;
  html += std::string("<br><br><br><br>") + kCrLf;
  html += "<H6>" + legalLine() + "</H6>" + kCrLf;
  showPage(std::move(html));
}

const TopicNode* ReferenceBrowser::node(const NodeRef& ref) const {
  if (ref.tree < 0 || ref.tree >= kTopicTreeCount) return nullptr;
  const std::vector<TopicNode>& tree = trees[static_cast<size_t>(ref.tree)];
  if (ref.index < 0 || ref.index >= static_cast<int>(tree.size())) return nullptr;
  const TopicNode& n = tree[static_cast<size_t>(ref.index)];
  if (ref.child < 0) return &n;
  if (ref.child >= static_cast<int>(n.children.size())) return nullptr;
  return &n.children[static_cast<size_t>(ref.child)];
}

int ReferenceBrowser::findTopic(const std::string& indexTitle) const {
  const std::string wanted = lower(indexTitle);
  const std::vector<TopicNode>& tree = trees[TreeAllTopics];
  for (size_t i = 0; i < tree.size(); ++i)
    if (lower(tree[i].text) == wanted) return static_cast<int>(i);
  return -1;
}

void ReferenceBrowser::selectNode(const NodeRef& ref) {
  const TopicNode* n = node(ref);
  if (!n) return;
  const long tag = n->tagValue();
  if (tag <= 0) {
    if (ref.tree == TreeMiniBooks && ref.child < 0) showMiniBook(ref.index);
    return;
  }
  if (ref.tree == TreeHistory) currentHistory = ref.index;
  loadTopicText(tag, ref.tree != TreeHistory, ref.tree != TreeAlsoSee);
}

void ReferenceBrowser::setExpanded(int book, bool expanded) {
  if (book < 0 || book >= static_cast<int>(trees[TreeMiniBooks].size())) return;
  TopicNode& root = trees[TreeMiniBooks][static_cast<size_t>(book)];
  root.expanded = expanded;
  root.icon = expanded ? TopicIcon::OpenBook : TopicIcon::ClosedBook;
}

void ReferenceBrowser::cmdGoBack() {
  const std::vector<TopicNode>& h = trees[TreeHistory];
  if (currentHistory < 0 || currentHistory >= static_cast<int>(h.size()) - 1) return;
  ++currentHistory;
  loadTopicText(h[static_cast<size_t>(currentHistory)].tagValue(), false, true);
}

void ReferenceBrowser::cmdAlsoSee() {
  if (alsoSeeRemaining <= 0) return;
  tabCaptions[TreeAlsoSee] = kAlsoSeeCaptionPending;
  loadAlsoSee();
}

void ReferenceBrowser::clickAlsoSeeTopic() {
  if (lblAlsoSeeTopicTag <= 0) return;
  loadTopicText(lblAlsoSeeTopicTag, false, true);
}

void ReferenceBrowser::searchForPhrase(const std::string& phrase) {
  const std::string wanted = lower(phrase);
  lblSearch = "Searching...";
  trees[TreeSearch].clear();
  if (searchStarted) searchStarted();
  const long remembered = store_.tell();
  long count = 0;
  try {
    for (const TopicNode& n : trees[TreeAllTopics]) {
      store_.seek(n.tagValue() - 1);
      std::string title = store_.readText(store_.readNumber(2));
      bool hit = lower(title).find(wanted) != std::string::npos;
      if (!hit) {
        // The text read starts at the two digits of the image count, right behind the body
        // length, and so stops two characters short of the body's end.
        long length = store_.readNumber(5);
        hit = lower(store_.readText(length)).find(wanted) != std::string::npos;
      }
      if (!hit) continue;
      ++count;
      lblSearch = itos(count) + " Found";
      TopicNode found;
      found.text = title;
      found.icon = n.icon;
      found.tag = n.tag;
      trees[TreeSearch].push_back(std::move(found));
    }
  } catch (const ReferenceReadError& e) {
    try {
      if (store_.isOpen()) store_.seek(remembered);
    } catch (const ReferenceReadError&) {
    }
    readFailed(e, kFnSearch, store_.path());
    return;
  }
  if (store_.isOpen()) store_.seek(remembered);
  if (count == 0) lblSearch = "None Found";
}

void ReferenceBrowser::cmdSearch() {
  const std::string phrase = trim(txtSearch);
  if (phrase.empty()) {
    wb_.prompter.message("Nothing Entered for Searching", "Topic Search", Icon::Information);
    return;
  }
  searchForPhrase(phrase);
}

void ReferenceBrowser::cmdClear() {
  txtSearch.clear();
  lblSearch.clear();
  trees[TreeSearch].clear();
}

void ReferenceBrowser::selectTab(int tab) {
  if (tab < 0 || tab >= kTopicTreeCount) return;
  currentTab = tab;
}

}  // namespace zy
