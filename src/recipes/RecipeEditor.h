#pragma once
// The recipe editor ("Recipe Calculator") as a model: the state of its boxes, labels, lists and
// flags, and the procedures that move a recipe between the current recipe's records and the
// ingredient table. populateRecipeForm fills the editor from the current recipe; each edit
// changes one cell of the table and runs the calculations it calls for; mnuFileSave_Click
// writes the table and the boxes back to the records and saves them.
//
// The window (frmRecipe) binds its controls to the fields below and forwards its events to the
// procedures; the command line opens recipes into the same model.
#include <string>
#include <vector>

#include "recipes/FermentationForm.h"
#include "recipes/IngredientTable.h"
#include "recipes/RecipeCalculations.h"
#include "recipes/RecipeList.h"
#include "styles/StyleMatch.h"

namespace zy {

class Workbench;

// The comment window's fields that travel with the recipe.
struct CommentFields {
  std::string dateCreated;
  std::string idCode;
  std::string labelName;
  std::string comment;
};

// The ingredient edit strip ("Ingredient Characteristics"), filled from the selected row.
struct EditStrip {
  bool visible = false;            // an item row is selected
  std::string txtItem, txtQty, txtCost, txtExtraction, txtColor;
  std::vector<std::string> unitList;  // the units of the row's kind
  int cboUnits = -1;
  bool chkMash = false;
  std::string lblExtraction;       // "Extraction Rating:", "Alpha %:", "Attenuation %:"
  std::string lblColor;            // "Color:", "Boil Time:"
  std::string lblExtPct;
  // Which controls the kind uses.
  bool showExtraction = false, showColor = false, showMash = false, showExtPct = false;
};

// The fields a spinner steps (udcQty, udcCost, udcExtraction, udcColor).
enum class StripField { Quantity, Cost, Extraction, Color };

// Quantity stepping of the pop-up on the quantity box: to the next or previous whole, half,
// quarter or tenth.
enum class QtyStep { Whole = 1, Half = 2, Quarter = 4, Tenth = 10 };
double nextQuantityStep(double q, QtyStep step);
double previousQuantityStep(double q, QtyStep step);

class RecipeEditor {
 public:
  static constexpr const char* kCaption = "Recipe Calculator";

  explicit RecipeEditor(Workbench& wb);

  // What the recipe list's open sequence asks of the editor: the changed flag, the save, the
  // reset before a load (the style filter) and populateRecipeForm.
  RecipeOpenHooks openHooks();
  // Before a recipe is loaded: the style filter reset, the style list rebuilt, the strip cleared.
  void prepareForLoad();
  // Opens record `recipeNo` as a double click on its leaf does (without the save question):
  // prepareForLoad, currentRecipeKey, loadRecipe, populateRecipeForm. False when the load failed.
  bool openRecipe(long recipeNo);

  // ---- Setting up and showing a recipe ----------------------------------------------------

  // An empty editor from the default values: the style list and the recipe types filled, the
  // table of headers only, every characteristic "N/A".
  void initRecipeForm();
  // Rebuilds the style list from the style tables and the filter (LoadBeerStyles on the
  // editor) and selects "<Not Specified>".
  void LoadBeerStyles();
  // Shows the current recipe.
  void populateRecipeForm();

  // Inserts a row at the end of the kind's section, in the table's text forms. Runs nothing.
  // Returns the new row.
  int AddIngredient(int kind, const std::string& name, double quantity, int units, double cost, double rating,
                    double detail, int mashFlag);

  // ---- The recipe-changed flag ------------------------------------------------------------
  void recChanged();
  void recReset();
  bool recipeChanged() const { return changed_; }
  // The toolbar's Save button: "Save" / "Save Recipe", or "Save-Changed" / "Save Recipe - Changed".
  const std::string& saveButtonImage() const { return saveImage_; }
  const std::string& saveButtonTip() const { return saveTip_; }

  // ---- Saving and closing -------------------------------------------------------------------

  // The editor back into the current recipe, then the store. False when an error stopped it
  // (the recipe then stays marked changed).
  bool mnuFileSave_Click();
  // "Save As": offers "Copy of" + name as the title, takes a new slot, enters the recipe in the
  // tree and saves.
  bool mnuFileSaveAs_Click();
  // Closing: "Recipe has Changed, Save Changes?" when changed. False when the user cancelled
  // (the window stays open).
  bool queryClose();

  // ---- The title frame -----------------------------------------------------------------------
  void setTitle(const std::string& text);
  void setRecipeType(int index);
  // Choosing position `pos` of the style list.
  void chooseStyle(int pos);
  // Putting a text into the style box (as the match window's "Set Recipe to Selected Style"
  // does): the entry with that text is chosen.
  void setStyleText(const std::string& text);
  // After the filter dialog (cmdFilter): the list rebuilt with the style reaction off and the
  // remembered text put back, so that the recipe keeps its style even when the filter hides it.
  void cmdFilterClosed();
  // The match window's list for the values the editor shows (cmdSearch).
  StyleMatchModel openStyleMatch() const;
  // The recipe's OG, FG, IBU, colour and alcohol as the result labels show them.
  RecipeStyleValues styleValues() const;
  void setFermentVolume(const std::string& text);
  void setBoilVolume(const std::string& text);

  // ---- The ingredient table -----------------------------------------------------------------

  // Selecting a row fills the edit strip; a header or the total row clears it.
  void selectRow(int row);
  void clearEditFields();
  // Edits of the strip, applied to the selected row.
  void setItemName(const std::string& text);
  void setQuantity(const std::string& text);
  void setUnits(int index);
  void setCost(const std::string& text);
  void setExtraction(const std::string& text);
  void setColor(const std::string& text);
  void setMash(bool mashed);
  // A spinner's up (+1) or down (-1) press, by the step of the defaults.
  void spin(StripField field, int direction);
  // The pop-up on the quantity box.
  void stepQuantity(QtyStep step, bool next);

  // "Delete Ingredient": asks, then removes the selected row.
  void cmdDeleteIngredient_Click();
  // "New Malt", "New Hops", "New Other", "New Yeast" (index = kind).
  void cmdAddNew_Click(int kind);
  // "Move Up" / "Move Down": within the section.
  void mnuSortUp_Click();
  void mnuSortDown_Click();
  // "Sort by Time/Quantity/Alpha" and "Sort Alphabetically".
  void sortByTimeQuantityAlpha();
  void sortAlphabetically();

  // After a change of mash type, efficiency or units made elsewhere (the mash window): the mash
  // labels from the record, then all three calculations.
  void mashDataChanged();
  // After the scaling dialog has rewritten the table: all three calculations, recipe changed.
  void rescaled() { afterEdit(EditEvent::Structure); }

  // ---- The comment window (frmComments) ---------------------------------------------------------
  enum class CommentField { DateCreated, IdCode, LabelName, Comment };
  // A typed change of one of its boxes; marks the recipe changed.
  void setCommentField(CommentField field, const std::string& text);
  // Replaces the comment with a text file's contents (line ends made CR LF) and remembers the
  // file's folder in "File Path" of section "Comments". False, with a message and the comment
  // kept, when the file cannot be read.
  bool importComment(const std::string& path);
  // Writes the comment to a text file as it stands; remembers the folder as the import does.
  // "Unable to Generate Output File" when the file cannot be written.
  bool exportComment(const std::string& path);

  // ---- State ----------------------------------------------------------------------------------
  Workbench& wb;
  RecipeSheet sheet;
  FermentationForm fermentation;
  CommentFields comments;
  EditStrip strip;

  std::string txtTitle;
  std::vector<std::string> recipeTypes;  // cboRecipeType's entries
  int cboRecipeType = 0;
  std::vector<StyleListEntry> styleList;  // cboBeerStyle's entries
  int cboBeerStyle = 1;                   // selected position, -1 for a text the list lacks
  std::string cboBeerStyleText = kNotSpecifiedStyleEntry;  // the box's text
  std::string lblUnitType;                // "US Measures" ...
  std::string lblVolumeUnits;             // unit of both volume boxes
  std::string lblMashType;
  std::string lblMashEff;                 // "80", or "N/A" without a mash
  std::string txtBoilTime;
  bool mashInfoEnabled = false;           // mnuInstructMashInfo and the "Mash" button

  bool filling = false;
  bool titleChanged = false;
  int selectedRow = -1;
  int selectedKind = -1;

 private:
  void afterEdit(EditEvent e);
  void refreshMashLabels();
  void writeCell(int col, const std::string& text);
  void sortSections(bool alphabetical);
  void moveSelected(int delta);
  // Brings the tree's leaf of the current recipe up to date (the log suffix, a unique name after
  // a title change, the text with the date prefix), entering the recipe when the tree does not
  // hold it yet.
  void updateTreeLeaf(bool mayEnter);
  // The save; `mayEnterTree` lets it enter a recipe the tree lacks.
  bool save(bool mayEnterTree);
  // addToRecipeList for the current recipe, the title box then showing the name it got.
  void enterInTree();

  bool changed_ = false;
  std::string saveImage_ = "Save";
  std::string saveTip_ = "Save Recipe";
};

}  // namespace zy
