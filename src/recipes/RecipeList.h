#pragma once
// The recipe list: a tree with one leaf per recipe of ZYRecipe.dat, grouped by the chosen sort
// mode, and the procedures of the list window (rebuild, add, unique names, new, open, delete,
// import, export, the list as a text file) without the window itself.
//
// The tree is no store: it is rebuilt from the file whenever the sort mode changes, and a leaf
// carries only the recipe's record number in its key ("R12"). A node's Tag holds the recipe's
// trimmed name (group nodes hold "Parent"); doubled names are found by Tag, never by the shown
// text, so a date prefix or a batch log suffix never takes part in the check.
#include <array>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace zy {

class Workbench;
struct RecipeRecord;

// One node of the tree. Whether a node is a recipe is decided everywhere by image == "Leaf".
struct RecipeNode {
  std::string key;     // "R" + recipeNo for a recipe; the group name for a group
  std::string text;    // what the user sees
  std::string tag;     // the recipe's trimmed name; "Parent" for a group
  std::string image;   // "Leaf", "ClosedBook" or "OpenBook"
  std::string parent;  // key of the group; empty at the root
  bool isLeaf() const { return image == "Leaf"; }
};

// The ordered node model of the tree (tvRecipes). At most two levels: the root level and the
// children of a group. Each level is kept sorted by text in a case-blind order (ties by the exact
// bytes, then by the order of adding).
class RecipeTree {
 public:
  enum class AddResult { Added, MissingParent, KeyExists };

  RecipeTree();
  ~RecipeTree();
  RecipeTree(const RecipeTree&) = delete;
  RecipeTree& operator=(const RecipeTree&) = delete;

  // Adds a node under `parentKey` (empty: at the root). A parent that does not exist (or is
  // itself a leaf) gives MissingParent, a key in use KeyExists; nothing is added then.
  AddResult add(const std::string& parentKey, const std::string& key, const std::string& text,
                const std::string& image, const std::string& tag = {});
  // Removes a node (a group with its children). False when the key is unknown.
  bool remove(const std::string& key);
  void clear();

  const RecipeNode* find(const std::string& key) const;
  bool setText(const std::string& key, const std::string& text);  // re-sorts the node's level
  bool setTag(const std::string& key, const std::string& tag);
  bool setImage(const std::string& key, const std::string& image);
  // Collapse and expand of a group: the image becomes "ClosedBook" or "OpenBook".
  bool setExpanded(const std::string& key, bool expanded);

  size_t size() const;
  std::vector<const RecipeNode*> roots() const;
  std::vector<const RecipeNode*> children(const std::string& key) const;
  // Root level in order, each group followed by its children: the order of the list reports.
  std::vector<const RecipeNode*> displayOrder() const;

  // True when some node (leaf or group) has exactly this Tag (case counts).
  bool tagInUse(const std::string& tag) const;
  // True when some leaf has exactly this Tag.
  bool leafTagInUse(const std::string& tag) const;

  // Counts the times a Tag went out of use (or the tree was cleared): while it stands still,
  // every Tag in use stays in use, and a cache of doubled names stays true.
  uint64_t tagsReleased() const { return released_; }

  // The tree's own Tag: the recipe count as decimal text.
  std::string tag = "0";

 private:
  struct Impl;
  std::unique_ptr<Impl> d_;
  uint64_t released_ = 0;
};

// Sort modes: index into SortNames.
constexpr int SORT_BY_NAME = 0, SORT_BY_STYLE = 1, SORT_BY_TYPE = 2, SORT_BY_DATE = 3, SORT_BY_MASH = 4,
              SORT_BY_NAME_REVERSE = 5;

// The settings of the list window, section "Recipe List".
constexpr const char* kRecipeListSection = "Recipe List";
struct RecipeListSettings {
  long mainLeft = 1000, mainTop = 2000, mainWidth = 4000, mainHeight = 6500;
  int sortBy = 0;  // as stored, unchecked
  bool showLogCount = false;
  std::string exportPath, importPath;
  static RecipeListSettings read(const Workbench& wb);
};

// What opening a recipe asks of the editor; every hook is optional.
struct RecipeOpenHooks {
  std::function<bool()> isChanged;        // the recipe-changed flag of the editor
  std::function<void()> save;             // the editor's mnuFileSave_Click
  std::function<void()> prepareForLoad;   // initStyleFilter, reset of the editor, close frmStyleMatch
  std::function<void()> populate;         // populateRecipeForm and show
};

// What the list model does for frmRecipeList.
class RecipeList {
 public:
  // "By Name", "By Beer Style", "By Type", "By Date", "By Mash Type", "By Name (Reverse Order)".
  static const std::array<std::string, 6>& SortNames();

  RecipeTree tree;                 // tvRecipes
  int sortMode = -1;               // -1 while nothing is loaded
  std::string currentRecipeKey;    // key of the recipe last added or last opened
  bool mnuSortLogCount = false;    // the check of "Show &Batch Log Count"
  std::string lblTitleTag;         // the fixed head, " Sorted " + sort name + ": "
  std::string lblTitle;            // the caption: head + recipe count
  long recordCounter = 0;          // records read by the last scan
  std::string selectedKey;         // the selected node, empty for none
  // Enabled states set by tvRecipes_Click: the buttons and entries Delete, Export, genHTML.
  bool deleteEnabled = false, exportEnabled = false, genHTMLEnabled = false;

  // Start-up of the window: reads the settings, sets the log count check, sortMode -1 and builds
  // the tree with the saved "Sort By".
  void formLoad(Workbench& wb);
  // Writes "Sort By" and "Show Log Count" (the view writes the geometry keys).
  void saveSettings(Workbench& wb) const;

  // Rebuilds the tree in sort mode `index` by a scan of ZYRecipe.dat; nothing when `index` is the
  // mode in force. Sets the next-slot position of findNextRecipeSlot. False when the scan was
  // stopped by an error (the tree keeps what it has). A mode outside 0..4 is error 9 in
  // RecipeList!mnuSortBy_Click, which ends the program.
  bool mnuSortBy_Click(Workbench& wb, int index);
  // Flips the log count check and rebuilds in the same mode.
  void mnuSortLogCount_Click(Workbench& wb);

  // Enters the current recipe in the tree (numbering a doubled name in recipeName). False when
  // the recipe was left out (a message has been shown).
  bool addToRecipeList(Workbench& wb, bool selectIt);
  // `name`, or `name` + " (Duplicate)" when a leaf's Tag equals it.
  std::string uniqueName(const std::string& name) const;
  // " - <Batch Log: n>" when the log count is shown and the recipe has logs; else empty.
  std::string logSuffix(Workbench& wb, int recipeNo);
  // The leaf text of a recipe in the present sort mode: name (with the date prefix in mode 3)
  // and suffix. No value when the creation date cannot be read.
  std::optional<std::string> leafText(const RecipeRecord& rec, const std::string& suffix) const;

  // Selection: sets selectedKey (empty for none) and the enabled states.
  void select(const std::string& key);
  void tvRecipes_Click();
  // The record number in a recipe key ("R12" -> 12), 0 when none.
  static long recipeNumber(const std::string& key);

  // New recipe: newRecipeRecord, a slot from findNextRecipeSlot, recipeNo set. Returns the slot
  // (0 when the slot search failed). Nothing reaches the tree or the file.
  long mnuFileNew_Click(Workbench& wb);
  // New from the window: a changed recipe in the editor is offered for saving first ("Cancel"
  // ends the action, giving 0), then mnuFileNew_Click and the editor set up for the new recipe.
  long newRecipe(Workbench& wb, const RecipeOpenHooks& hooks);
  // Double click on a node: nothing on a group. Asks to save a changed recipe ("Cancel" ends
  // the action), loads the leaf's recipe and lets the editor populate. False when nothing opened.
  bool openRecipe(Workbench& wb, const std::string& key, const RecipeOpenHooks& hooks = {});
  // Find: the next recipe after the selected node (in display order, round to the top) whose
  // name holds `part`, letters compared without regard to case. The match becomes the selected
  // node and true is returned; otherwise "Recipe Not Found: " + part is shown (title "Find
  // Recipe") and the selection stays.
  bool findRecipe(Workbench& wb, const std::string& part);
  // Delete of the selected leaf, after the question (and a second one naming the batch logs that
  // go with the recipe, when it has any). True when deleted.
  bool mnuFileDelete_Click(Workbench& wb);

  // Import of a recipe exchange file (the file dialog's answer given as `path`): reader, slot,
  // addToRecipeList (selected), save; remembers the folder in "Import Path". Returns the new
  // record number, 0 when the file could not be opened or no slot was found.
  long importRecipeFile(Workbench& wb, const std::string& path);
  // The part of that sequence behind the file dialog, over a file open for reading (also run for
  // the file named on the command line at start-up). Returns the new record number, 0 when no
  // slot was found or the save failed.
  long importAndSave(Workbench& wb, std::FILE* file);
  // The proposed export file name of the current recipe, with the extension .zyr.
  std::string proposedExportName(const Workbench& wb) const;
  // Export of the leaf `key` to `path`: loadRecipe, exportRecipe; remembers "Export Path".
  bool exportRecipeFile(Workbench& wb, const std::string& key, const std::string& path);

  // The list in its file form, lines ended by CR LF; "Unable to Generate Output File" on failure.
  bool printRecipeListToFile(Workbench& wb, const std::string& path);
  // The lines of that file (without line ends), in the tree's display order.
  std::vector<std::string> recipeListLines(Workbench& wb);

  // The doubled-name numbering rule applied once: Amber -> Amber 1, Amber 9 -> Amber 10,
  // Amber 10 -> Amber 12. No value when the number read does not fit 16 bits.
  static std::optional<std::string> numberedName(const std::string& name);

 private:
  void showCount();
  // The first name not in use along the numbering chain from a given name.
  std::optional<std::string> freeName(const std::string& name);
  // Batch log counts of the scan in progress (one pass of ZYBatchLog.dat per rebuild).
  std::unique_ptr<std::map<int, long>> scanLogCounts_;
  // Shortcuts along numbering chains: from a name to a later name of its chain such that every
  // name between them was in use. Valid while no Tag goes out of use (tree.tagsReleased()).
  std::unordered_map<std::string, std::string> chainSkip_;
  // Names whose chain runs into a number beyond 16 bits (or round in a circle) before a free name.
  std::unordered_set<std::string> chainDeadEnd_;
  uint64_t chainSkipReleased_ = 0;
};

// The procedures by the names the other windows call them.
bool addToRecipeList(Workbench& wb, bool selectIt);
std::string uniqueName(const Workbench& wb, const std::string& name);
// `text` with every occurrence of `find` replaced, scanning from the left.
std::string replaceText(const std::string& text, const std::string& find, const std::string& replacement);

}  // namespace zy
