#include "recipes/RecipeList.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdio>
#include <unordered_set>

#include "batchlog/BatchLogCount.h"
#include "core/dates.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/records.h"
#include "core/text.h"
#include "recipes/RecipeExchange.h"
#include "recipes/RecipeStore.h"
#include "workbench/Workbench.h"

namespace zy {

// ---------------------------------------------------------------------------------------------
// The node model.

namespace {
struct TreeNode {
  RecipeNode pub;
  std::string folded;  // the text in the case-blind order
  uint64_t seq = 0;    // order of adding, the last tie-breaker
};

struct ByText {
  bool operator()(const TreeNode* a, const TreeNode* b) const {
    if (a->folded != b->folded) return a->folded < b->folded;
    if (a->pub.text != b->pub.text) return a->pub.text < b->pub.text;
    return a->seq < b->seq;
  }
};
using Level = std::set<TreeNode*, ByText>;
}  // namespace

struct RecipeTree::Impl {
  // Node storage keyed by Key; references into an unordered_map stay valid as it grows.
  std::unordered_map<std::string, TreeNode> nodes;
  Level roots;
  std::unordered_map<std::string, Level> kids;  // group key -> its children in order
  // How many nodes, and how many leaves, carry each Tag: the doubled-name check in constant time.
  std::unordered_map<std::string, long> tagCount, leafTagCount;
  uint64_t nextSeq = 0;

  Level& levelOf(const TreeNode& n) { return n.pub.parent.empty() ? roots : kids[n.pub.parent]; }

  // Returns true when a Tag went out of use.
  static bool countTag(std::unordered_map<std::string, long>& m, const std::string& tag, long delta) {
    auto it = m.find(tag);
    if (it == m.end()) {
      if (delta > 0) m.emplace(tag, delta);
      return false;
    }
    it->second += delta;
    if (it->second > 0) return false;
    m.erase(it);
    return true;
  }
  // Returns true when a Tag went out of use.
  bool retag(TreeNode& n, const std::string& tag) {
    bool released = countTag(tagCount, n.pub.tag, -1);
    if (n.pub.isLeaf()) released |= countTag(leafTagCount, n.pub.tag, -1);
    n.pub.tag = tag;
    countTag(tagCount, n.pub.tag, +1);
    if (n.pub.isLeaf()) countTag(leafTagCount, n.pub.tag, +1);
    return released;
  }
};

RecipeTree::RecipeTree() : d_(std::make_unique<Impl>()) {}
RecipeTree::~RecipeTree() = default;

RecipeTree::AddResult RecipeTree::add(const std::string& parentKey, const std::string& key, const std::string& text,
                                      const std::string& image, const std::string& nodeTag) {
  if (!parentKey.empty()) {
    auto p = d_->nodes.find(parentKey);
    if (p == d_->nodes.end() || p->second.pub.isLeaf() || !p->second.pub.parent.empty())
      return AddResult::MissingParent;
  }
  if (d_->nodes.count(key)) return AddResult::KeyExists;
  TreeNode& n = d_->nodes[key];
  n.pub.key = key;
  n.pub.text = text;
  n.pub.image = image;
  n.pub.parent = parentKey;
  n.pub.tag = nodeTag;
  n.folded = lower(text);
  n.seq = d_->nextSeq++;
  Impl::countTag(d_->tagCount, n.pub.tag, +1);
  if (n.pub.isLeaf()) Impl::countTag(d_->leafTagCount, n.pub.tag, +1);
  d_->levelOf(n).insert(&n);
  return AddResult::Added;
}

bool RecipeTree::remove(const std::string& key) {
  auto it = d_->nodes.find(key);
  if (it == d_->nodes.end()) return false;
  TreeNode& n = it->second;
  auto kids = d_->kids.find(key);
  if (kids != d_->kids.end()) {
    std::vector<std::string> childKeys;
    for (TreeNode* c : kids->second) childKeys.push_back(c->pub.key);
    for (const std::string& c : childKeys) remove(c);
    d_->kids.erase(key);
  }
  d_->levelOf(n).erase(&n);
  if (Impl::countTag(d_->tagCount, n.pub.tag, -1)) ++released_;
  if (n.pub.isLeaf() && Impl::countTag(d_->leafTagCount, n.pub.tag, -1)) ++released_;
  d_->nodes.erase(it);
  return true;
}

void RecipeTree::clear() {
  d_ = std::make_unique<Impl>();
  ++released_;
  tag = "0";
}

const RecipeNode* RecipeTree::find(const std::string& key) const {
  auto it = d_->nodes.find(key);
  return it == d_->nodes.end() ? nullptr : &it->second.pub;
}

bool RecipeTree::setText(const std::string& key, const std::string& text) {
  auto it = d_->nodes.find(key);
  if (it == d_->nodes.end()) return false;
  TreeNode& n = it->second;
  Level& level = d_->levelOf(n);
  level.erase(&n);
  n.pub.text = text;
  n.folded = lower(text);
  level.insert(&n);
  return true;
}

bool RecipeTree::setTag(const std::string& key, const std::string& newTag) {
  auto it = d_->nodes.find(key);
  if (it == d_->nodes.end()) return false;
  if (d_->retag(it->second, newTag)) ++released_;
  return true;
}

bool RecipeTree::setImage(const std::string& key, const std::string& image) {
  auto it = d_->nodes.find(key);
  if (it == d_->nodes.end()) return false;
  TreeNode& n = it->second;
  std::string oldTag = n.pub.tag;
  if (d_->retag(n, "")) ++released_;  // the leaf count follows the image
  n.pub.image = image;
  if (d_->retag(n, oldTag)) ++released_;
  return true;
}

bool RecipeTree::setExpanded(const std::string& key, bool expanded) {
  const RecipeNode* n = find(key);
  if (!n || n->isLeaf()) return false;
  return setImage(key, expanded ? "OpenBook" : "ClosedBook");
}

size_t RecipeTree::size() const { return d_->nodes.size(); }

std::vector<const RecipeNode*> RecipeTree::roots() const {
  std::vector<const RecipeNode*> v;
  v.reserve(d_->roots.size());
  for (const TreeNode* n : d_->roots) v.push_back(&n->pub);
  return v;
}

std::vector<const RecipeNode*> RecipeTree::children(const std::string& key) const {
  std::vector<const RecipeNode*> v;
  auto it = d_->kids.find(key);
  if (it == d_->kids.end()) return v;
  for (const TreeNode* n : it->second) v.push_back(&n->pub);
  return v;
}

std::vector<const RecipeNode*> RecipeTree::displayOrder() const {
  std::vector<const RecipeNode*> v;
  v.reserve(d_->nodes.size());
  for (const TreeNode* n : d_->roots) {
    v.push_back(&n->pub);
    auto it = d_->kids.find(n->pub.key);
    if (it != d_->kids.end())
      for (const TreeNode* c : it->second) v.push_back(&c->pub);
  }
  return v;
}

bool RecipeTree::tagInUse(const std::string& t) const { return d_->tagCount.count(t) > 0; }
bool RecipeTree::leafTagInUse(const std::string& t) const { return d_->leafTagCount.count(t) > 0; }

// ---------------------------------------------------------------------------------------------
// Settings.

namespace {
bool readSwitch(const SettingsStore& s, const std::string& key, bool fallback) {
  std::string v = trim(s.read(kRecipeListSection, key, fallback ? "True" : "False"));
  if (iequals(v, "True")) return true;
  if (iequals(v, "False") || v.empty()) return false;
  return lenientValue(v) != 0;
}

std::string folderOf(const std::string& path) {
  size_t cut = path.find_last_of("/\\");
  if (cut == std::string::npos) return {};
  return path.substr(0, cut);
}

const char* const kSortFn = "RecipeList!mnuSortBy_Click";
const char* const kExportFn = "frmRecipeList!mnuFileExport_Click";
const char* const kImportFn = "frmRecipeList!mnuFileImport_Click";
const size_t kNameLength = 60;
}  // namespace

RecipeListSettings RecipeListSettings::read(const Workbench& wb) {
  const SettingsStore& s = wb.settings;
  RecipeListSettings r;
  r.mainLeft = readLong(s, kRecipeListSection, "MainLeft", 1000);
  r.mainTop = readLong(s, kRecipeListSection, "MainTop", 2000);
  r.mainWidth = readLong(s, kRecipeListSection, "MainWidth", 4000);
  r.mainHeight = readLong(s, kRecipeListSection, "MainHeight", 6500);
  // Taken as stored: a mode without a menu entry is refused by the tree's rebuild.
  long sortBy = readLong(s, kRecipeListSection, "Sort By", 0);
  r.sortBy = static_cast<int>(std::clamp<long>(sortBy, INT_MIN, INT_MAX));
  r.showLogCount = readSwitch(s, "Show Log Count", false);
  r.exportPath = s.read(kRecipeListSection, "Export Path", "");
  r.importPath = s.read(kRecipeListSection, "Import Path", "");
  return r;
}

// ---------------------------------------------------------------------------------------------
// The list window's model.

const std::array<std::string, 6>& RecipeList::SortNames() {
  static const std::array<std::string, 6> names = {"By Name",      "By Beer Style", "By Type",
                                                   "By Date",      "By Mash Type",  "By Name (Reverse Order)"};
  return names;
}

void RecipeList::formLoad(Workbench& wb) {
  RecipeListSettings s = RecipeListSettings::read(wb);
  mnuSortLogCount = s.showLogCount;
  sortMode = -1;
  mnuSortBy_Click(wb, s.sortBy);
}

void RecipeList::saveSettings(Workbench& wb) const {
  wb.settings.write(kRecipeListSection, "Sort By", itos(sortMode < 0 ? 0 : sortMode));
  wb.settings.write(kRecipeListSection, "Show Log Count", mnuSortLogCount ? "True" : "False");
}

void RecipeList::showCount() { lblTitle = lblTitleTag + tree.tag; }

bool RecipeList::mnuSortBy_Click(Workbench& wb, int index) {
  if (index == sortMode) return true;
  // Only the five modes of the Sort menu can be checked; any other number is an index failure,
  // which the error routine reports as an unknown error and which ends the program.
  if (index < SORT_BY_NAME || index > SORT_BY_MASH) {
    wb.errors.reportError(ERR_SUBSCRIPT, 0, kSortFn, "", "Subscript out of range");
    return false;
  }
  tree.clear();
  selectedKey.clear();
  wb.recipeSlotPosition = 0;
  sortMode = index;
  lblTitleTag = " Sorted " + SortNames()[static_cast<size_t>(index)] + ": ";
  tree.tag = "0";
  showCount();

  // The batch log counts of the whole list come from one pass over the log file.
  if (mnuSortLogCount) scanLogCounts_ = std::make_unique<std::map<int, long>>(countAllBatchLogs(wb));
  bool ok = true;
  recordCounter = 0;
  try {
    RecordFile f(wb.folder.dataFile(kRecipeFile), RecipeRecord::kLength);
    std::string buf;
    long n = 1;
    for (; n <= f.count(); ++n) {
      if (!f.read(n, buf)) break;
      if (!controlCodesValid(buf)) {
        recordCounter = n;
        scanLogCounts_.reset();
        wb.errors.reportError(ERR_RECIPE_CODE, n, kSortFn, f.path());
        ok = false;
        break;
      }
      if (getI16(buf, 2) > 0) {
        wb.recipe.rec = RecipeRecord::decode(buf);
        addToRecipeList(wb, false);
      } else if (wb.recipeSlotPosition == 0) {
        wb.recipeSlotPosition = n;
      }
    }
    if (ok) recordCounter = n;
  } catch (const FileError& e) {
    scanLogCounts_.reset();
    wb.errors.reportFileError(e, recordCounter, kSortFn);
    ok = false;
  }
  scanLogCounts_.reset();
  if (ok && wb.recipeSlotPosition == 0) wb.recipeSlotPosition = recordCounter;
  tvRecipes_Click();
  return ok;
}

void RecipeList::mnuSortLogCount_Click(Workbench& wb) {
  int old = sortMode;
  mnuSortLogCount = !mnuSortLogCount;
  sortMode = -1;
  mnuSortBy_Click(wb, old < 0 ? 0 : old);
}

std::string RecipeList::logSuffix(Workbench& wb, int recipeNo) {
  if (!mnuSortLogCount) return {};
  long count = 0;
  if (scanLogCounts_) {
    auto it = scanLogCounts_->find(recipeNo);
    if (it != scanLogCounts_->end()) count = it->second;
  } else {
    count = countBatchLogs(wb, recipeNo);
  }
  if (count < 1) return {};
  return " - <Batch Log: " + itos(count) + ">";
}

namespace {
// The numbering rule in two parts: what stays of the name, and the number put behind it.
// No value when the number read does not fit a 16-bit whole number, nor the number put behind
// the name (n + 1 is counted in 16 bits too, so 32767 has no successor).
std::optional<std::pair<std::string, std::string>> numberParts(const std::string& name) {
  std::string reversed(name.rbegin(), name.rend());
  double v = lenientValue(reversed);
  double r = std::nearbyint(v);  // to the even neighbour at a half, as a 16-bit assignment does
  if (!(r >= -32768.0 && r <= 32767.0)) return std::nullopt;
  const int n = static_cast<int>(r);
  if (n == 32767) return std::nullopt;
  if (n >= 11) return std::make_pair(name.substr(0, name.size() >= 2 ? name.size() - 2 : 0), itos(n + 1));
  if (n >= 1) return std::make_pair(name.substr(0, name.empty() ? 0 : name.size() - 1), itos(n + 1));
  return std::make_pair(name, std::string(" 1"));
}
}  // namespace

std::optional<std::string> RecipeList::numberedName(const std::string& name) {
  auto p = numberParts(name);
  if (!p) return std::nullopt;
  return p->first + p->second;
}

std::optional<std::string> RecipeList::freeName(const std::string& start) {
  // The rule walks all nodes after each renaming; a set of Tags answers the same question at once.
  // The chain of names from a name is fixed (Amber, Amber 1, ... Amber 10, Amber 12, Amber 22 ...),
  // so the walk remembers how far along a chain every name is known to be taken, which keeps many
  // recipes of one name from walking the whole chain again each time.
  if (chainSkipReleased_ != tree.tagsReleased()) {
    chainSkip_.clear();
    chainDeadEnd_.clear();
    chainSkipReleased_ = tree.tagsReleased();
  }
  std::vector<std::string> visited;
  std::unordered_set<std::string> seen;
  std::string name = start;
  auto deadEnd = [&]() -> std::optional<std::string> {
    for (const std::string& v : visited) chainDeadEnd_.insert(v);
    return std::nullopt;
  };
  while (tree.tagInUse(name)) {
    if (chainDeadEnd_.count(name)) return deadEnd();
    if (!seen.insert(name).second) return deadEnd();  // the rule went round in a circle
    visited.push_back(name);
    auto skip = chainSkip_.find(name);
    if (skip != chainSkip_.end() && skip->second != name) {
      name = skip->second;
      continue;
    }
    auto parts = numberParts(name);
    if (!parts) return deadEnd();
    std::string next = parts->first + parts->second;
    // The record holds 60 characters: a number that would not fit takes the place of the
    // name's last characters.
    if (next.size() > kNameLength) {
      size_t keep = parts->second.size() >= kNameLength ? 0 : kNameLength - parts->second.size();
      next = (parts->first.substr(0, keep) + parts->second).substr(0, kNameLength);
    }
    name = std::move(next);
  }
  for (const std::string& v : visited) chainSkip_[v] = name;
  return name;
}

std::optional<std::string> RecipeList::leafText(const RecipeRecord& rec, const std::string& suffix) const {
  std::string name = trim(rec.recipeName);
  if (sortMode != SORT_BY_DATE) return name + suffix;
  std::string created = trim(rec.dateCreated);
  if (created.empty()) return name + suffix;
  auto serial = parseDate(created);
  if (!serial) return std::nullopt;
  return formatDate(*serial, "yyyy-mm-dd") + " - " + name + suffix;
}

bool RecipeList::addToRecipeList(Workbench& wb, bool selectIt) {
  RecipeRecord& rec = wb.recipe.rec;
  auto fail = [&](const std::string& description) {
    wb.prompter.message("In AddToRecipeList: " + description, "Error", Icon::Critical);
    return false;
  };

  // 1. and 2.
  const std::string suffix = logSuffix(wb, rec.recipeNo);
  std::string name = trim(rec.recipeName);
  rec.recipeName = name;

  // 3. and 4. Doubled names: number the name until no node's Tag equals it.
  if (tree.tagInUse(name)) {
    auto free = freeName(name);
    if (!free) return fail("Overflow");
    name = *free;
    rec.recipeName = name;
  }

  // 5. Leaf text and group by the sort mode.
  const std::string key = "R" + itos(rec.recipeNo);
  const Measures& m = measures();
  std::string group;
  std::optional<std::string> text;
  switch (sortMode) {
    case SORT_BY_NAME: text = name + suffix; break;
    case SORT_BY_STYLE: {
      std::string style = trim(rec.beerStyle);
      group = (style.empty() || style == "0") ? "<Not Specified>" : style;
      text = name + suffix;
      break;
    }
    case SORT_BY_TYPE:
      if (rec.recipeType < 0 || rec.recipeType >= static_cast<int>(m.recipeTypes.size()))
        return fail("Subscript out of range");
      group = m.recipeTypes[static_cast<size_t>(rec.recipeType)];
      text = name + suffix;
      break;
    case SORT_BY_DATE: {
      std::string created = trim(rec.dateCreated);
      if (created.empty()) {
        group = "Unknown Creation Date";
      } else {
        auto serial = parseDate(created);
        if (!serial) return fail("Type mismatch");
        group = "Year " + itos(civilFromSerial(*serial).year);
      }
      text = leafText(rec, suffix);
      if (!text) return fail("Type mismatch");
      break;
    }
    case SORT_BY_MASH:
      if (rec.mashType < 0 || rec.mashType >= static_cast<int>(m.mashTypes.size()))
        return fail("Subscript out of range");
      group = m.mashTypes[static_cast<size_t>(rec.mashType)];
      text = name + suffix;
      break;
    default:
      // No branch adds a node in this mode, and the steps below find no node to work on.
      return fail("Object variable or With block variable not set");
  }

  // 6. and 7. Add, creating the group on demand. Two records claiming one number give the same
  // key: the user hears of it once and the second is left out.
  // (The node's Tag, step 9, is given as it is added.)
  RecipeTree::AddResult r = tree.add(group, key, *text, "Leaf", name);
  if (r == RecipeTree::AddResult::MissingParent) {
    if (tree.add("", group, group, "ClosedBook", "Parent") == RecipeTree::AddResult::Added) {
      r = tree.add(group, key, *text, "Leaf", name);
    } else {
      r = RecipeTree::AddResult::KeyExists;
    }
  }
  if (r == RecipeTree::AddResult::KeyExists) {
    wb.prompter.message("Duplicate Recipe Name: " + *text + ", Changed and Added", "Zythara Recipes",
                        Icon::Warning);
    return false;
  }
  if (r != RecipeTree::AddResult::Added) return fail("Element not found");

  // 9. and 10.
  currentRecipeKey = key;
  tree.tag = itos(static_cast<long long>(lenientValue(tree.tag)) + 1);
  showCount();
  if (selectIt) select(key);
  return true;
}

std::string RecipeList::uniqueName(const std::string& name) const {
  return tree.leafTagInUse(name) ? name + " (Duplicate)" : name;
}

long RecipeList::recipeNumber(const std::string& key) {
  if (key.size() < 2) return 0;
  return static_cast<long>(lenientValue(key.substr(1)));
}

void RecipeList::select(const std::string& key) {
  selectedKey = tree.find(key) ? key : std::string();
  tvRecipes_Click();
}

void RecipeList::tvRecipes_Click() {
  const RecipeNode* n = selectedKey.empty() ? nullptr : tree.find(selectedKey);
  bool leaf = n && n->isLeaf();
  deleteEnabled = exportEnabled = genHTMLEnabled = leaf;
}

long RecipeList::mnuFileNew_Click(Workbench& wb) {
  newRecipeRecord(wb);
  long slot = findNextRecipeSlot(wb);
  wb.recipe.rec.recipeNo = static_cast<int>(slot);
  return slot;
}

namespace {
// The question before the editor's recipe is replaced; false when the user cancelled.
bool mayReplaceRecipe(Workbench& wb, const RecipeOpenHooks& hooks) {
  if (!hooks.isChanged || !hooks.isChanged()) return true;
  Answer a = wb.prompter.message("Recipe has Changed, Save Changes?", "Save Recipe", Icon::Question,
                                 Buttons::YesNoCancel, Answer::Yes);
  if (a == Answer::Cancel) return false;
  if (a == Answer::Yes && hooks.save) hooks.save();
  return true;
}
}  // namespace

long RecipeList::newRecipe(Workbench& wb, const RecipeOpenHooks& hooks) {
  if (!mayReplaceRecipe(wb, hooks)) return 0;
  if (hooks.prepareForLoad) hooks.prepareForLoad();
  const long slot = mnuFileNew_Click(wb);
  if (slot < 1) return 0;
  if (hooks.populate) hooks.populate();
  return slot;
}

bool RecipeList::openRecipe(Workbench& wb, const std::string& key, const RecipeOpenHooks& hooks) {
  const RecipeNode* n = tree.find(key);
  if (!n || !n->isLeaf()) return false;
  if (!mayReplaceRecipe(wb, hooks)) return false;
  if (hooks.prepareForLoad) hooks.prepareForLoad();
  currentRecipeKey = key;
  if (!loadRecipe(wb, recipeNumber(key))) return false;
  if (hooks.populate) hooks.populate();
  return true;
}

bool RecipeList::findRecipe(Workbench& wb, const std::string& part) {
  const std::string wanted = lower(trim(part));
  std::vector<const RecipeNode*> leaves;
  size_t start = 0;
  for (const RecipeNode* n : tree.displayOrder()) {
    if (n->key == selectedKey) start = leaves.size() + (n->isLeaf() ? 1 : 0);
    if (n->isLeaf()) leaves.push_back(n);
  }
  if (!wanted.empty()) {
    for (size_t k = 0; k < leaves.size(); ++k) {
      const RecipeNode* n = leaves[(start + k) % leaves.size()];
      if (lower(n->tag).find(wanted) != std::string::npos) {
        select(n->key);
        return true;
      }
    }
  }
  wb.prompter.message("Recipe Not Found: " + trim(part), "Find Recipe", Icon::Information, Buttons::OK);
  return false;
}

bool RecipeList::mnuFileDelete_Click(Workbench& wb) {
  const RecipeNode* n = selectedKey.empty() ? nullptr : tree.find(selectedKey);
  if (!n || !n->isLeaf()) return false;
  Answer a = wb.prompter.message("Do you want to Delete the \"" + n->text + "\" Recipe?", "Recipe Delete",
                                 Icon::Question, Buttons::YesNo, Answer::Yes);
  if (a != Answer::Yes) return false;
  // A recipe's batch logs are deleted with it (deleteRecipe frees them); say so first.
  if (const long logs = countBatchLogs(wb, static_cast<int>(recipeNumber(n->key))); logs > 0) {
    const std::string what = logs == 1 ? "1 Batch Log" : itos(logs) + " Batch Logs";
    if (wb.prompter.message("The \"" + n->tag + "\" Recipe has " + what + ", which will be Deleted with it." +
                                " Delete the Recipe and its Batch Logs?",
                            "Recipe Delete", Icon::Question, Buttons::YesNo, Answer::No) != Answer::Yes)
      return false;
  }
  const std::string key = n->key;
  deleteRecipe(wb, recipeNumber(key));
  tree.remove(key);
  tree.tag = itos(static_cast<long long>(lenientValue(tree.tag)) - 1);
  showCount();
  selectedKey.clear();
  tvRecipes_Click();
  return true;
}

long RecipeList::importRecipeFile(Workbench& wb, const std::string& path) {
  wb.settings.write(kRecipeListSection, "Import Path", folderOf(path));
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f) {
    wb.errors.reportFileError(fileErrorFromErrno(errno, path), 0, kImportFn);
    return 0;
  }
  long slot = importAndSave(wb, f);
  std::fclose(f);
  return slot;
}

long RecipeList::importAndSave(Workbench& wb, std::FILE* file) {
  // No test of success: a file the reader refused leaves the new-recipe default, which is
  // entered and saved like any other recipe.
  importRecipe(wb, file);
  long slot = findNextRecipeSlot(wb);
  if (slot < 1) return 0;
  wb.recipe.rec.recipeNo = static_cast<int>(slot);
  addToRecipeList(wb, true);
  if (!saveCurrentRecipe(wb)) return 0;
  return slot;
}

std::string RecipeList::proposedExportName(const Workbench& wb) const {
  std::string name = trim(wb.recipe.rec.recipeName);
  std::string base = wb.defaults.shortFilenames == 1 ? shortFileName(name)
                                                     : safeFileName(name, wb.defaults.unixFilenames == 1);
  return base + ".zyr";
}

bool RecipeList::exportRecipeFile(Workbench& wb, const std::string& key, const std::string& path) {
  const RecipeNode* n = tree.find(key);
  if (!n || !n->isLeaf()) return false;
  if (!loadRecipe(wb, recipeNumber(key))) return false;
  // The dialog's OK: the folder is remembered before the file is opened.
  wb.settings.write(kRecipeListSection, "Export Path", folderOf(path));
  std::FILE* f = std::fopen(path.c_str(), "wb");
  if (!f) {
    wb.errors.reportFileError(fileErrorFromErrno(errno, path), 0, kExportFn);
    return false;
  }
  bool ok = exportRecipe(wb, f);
  if (std::fclose(f) != 0 && ok) {
    wb.errors.reportFileError(fileErrorFromErrno(errno, "export file"), 0, "RecipeList!exportRecipe");
    ok = false;
  }
  return ok;
}

std::vector<std::string> RecipeList::recipeListLines(Workbench& wb) {
  std::vector<std::string> lines;
  lines.push_back("Zythara Recipe List");
  lines.push_back(fixedText("Date:", 14) + formatDateTime(wb.clock.now()));
  lines.push_back("");
  lines.push_back(std::string("Recipe Name,") + "Type," + "OG/FG," + "Color," + "IBU," + "Alcohol");
  std::unique_ptr<RecordFile> f;
  try {
    f = std::make_unique<RecordFile>(wb.folder.dataFile(kRecipeFile), RecipeRecord::kLength);
  } catch (const FileError&) {
    return {};
  }
  const Measures& m = measures();
  std::string buf;
  for (const RecipeNode* n : tree.displayOrder()) {
    if (!n->isLeaf()) continue;
    // Straight from the file into a local record: the current recipe is untouched.
    if (!f->read(recipeNumber(n->key), buf) || !controlCodesValid(buf)) return {};
    RecipeRecord r = RecipeRecord::decode(buf);
    lines.push_back(getText(buf, 10, kNameLength) + "," + listText(m.mashTypes, r.mashType) + "," +
                    formatNumber(r.originalGravity, "0.000") + "/" + formatNumber(r.finalGravity, "0.000") + "," +
                    formatNumber(r.color, "0.0") + "," + formatNumber(r.bitterness, "0.0") + "," +
                    formatNumber(r.alcohol, "0.0") + "%,");
  }
  return lines;
}

bool RecipeList::printRecipeListToFile(Workbench& wb, const std::string& path) {
  std::vector<std::string> lines = recipeListLines(wb);
  std::FILE* f = lines.empty() ? nullptr : std::fopen(path.c_str(), "wb");
  bool ok = f != nullptr;
  if (f) {
    for (const std::string& l : lines) {
      if (std::fwrite(l.data(), 1, l.size(), f) != l.size() || std::fwrite("\r\n", 1, 2, f) != 2) ok = false;
    }
    if (std::fclose(f) != 0) ok = false;
  }
  if (!ok) wb.prompter.message("Unable to Generate Output File", "Error", Icon::Critical);
  return ok;
}

// ---------------------------------------------------------------------------------------------

bool addToRecipeList(Workbench& wb, bool selectIt) { return wb.recipeList.addToRecipeList(wb, selectIt); }

std::string uniqueName(const Workbench& wb, const std::string& name) { return wb.recipeList.uniqueName(name); }

std::string replaceText(const std::string& text, const std::string& find, const std::string& replacement) {
  if (find.empty()) return text;
  std::string out;
  out.reserve(text.size());
  size_t i = 0;
  while (i < text.size()) {
    if (text.compare(i, find.size(), find) == 0) {
      out += replacement;
      i += find.size();
    } else {
      out += text[i++];
    }
  }
  return out;
}

}  // namespace zy
