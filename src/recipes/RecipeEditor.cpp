#include "recipes/RecipeEditor.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "core/textfile.h"
#include "recipes/RecipeStore.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
const char* const kSaveFn = "frmRecipe!mnuFileSave_Click";

const StringList& unitsOfKind(int kind) {
  const Measures& m = measures();
  switch (kind) {
    case KIND_MALT:
    case KIND_HOPS: return m.weightUnits;
    case KIND_OTHER: return m.otherUnits;
    default: return m.yeastUnits;
  }
}

int clampIndex(int i, size_t count) {
  if (count == 0) return 0;
  return std::clamp(i, 0, static_cast<int>(count) - 1);
}

// Names compare byte for byte, as the program's sorts always have.
bool nameLess(const IngredientRow& a, const IngredientRow& b) { return a.cells[COL_NAME] < b.cells[COL_NAME]; }
}  // namespace

double nextQuantityStep(double q, QtyStep step) {
  const double n = static_cast<double>(static_cast<int>(step));
  return std::floor(q * n + 1.001) / n;
}

double previousQuantityStep(double q, QtyStep step) {
  const double n = static_cast<double>(static_cast<int>(step));
  return std::floor(q * n - 0.001) / n;
}

RecipeEditor::RecipeEditor(Workbench& w) : wb(w) {
  fermentation.onChanged = [this] { recChanged(); };
  recipeTypes = measures().recipeTypes;
  styleList = buildRecipeStyleList(wb.styles);
}

// ---- The recipe-changed flag ------------------------------------------------------------------

void RecipeEditor::recChanged() {
  changed_ = true;
  saveImage_ = "Save-Changed";
  saveTip_ = "Save Recipe - Changed";
}

void RecipeEditor::recReset() {
  changed_ = false;
  saveImage_ = "Save";
  saveTip_ = "Save Recipe";
}

// ---- Setting up ---------------------------------------------------------------------------------

void RecipeEditor::LoadBeerStyles() {
  styleList = buildRecipeStyleList(wb.styles);
  cboBeerStyle = 1;
  cboBeerStyleText = kNotSpecifiedStyleEntry;
}

void RecipeEditor::initRecipeForm() {
  const Defaults& d = wb.defaults;
  const Measures& m = measures();
  filling = true;
  initStyleFilter(wb.styles);
  LoadBeerStyles();
  wb.styles.CurrentStyleIndex = -1;
  recipeTypes = m.recipeTypes;
  cboRecipeType = clampIndex(d.recipeType, recipeTypes.size());
  txtTitle = "A Beer Recipe";
  titleChanged = false;
  sheet = RecipeSheet{};
  sheet.txtFermentVolume = formatNumber(d.initialFerm, "0.0");
  sheet.txtInitalBoilVolume = formatNumber(d.initialBoil, "0.0");
  lblUnitType = listText(m.unitTypes, d.unitMeasure);
  lblVolumeUnits = listText(m.volumeUnits, d.volumeUnits);
  lblMashType = listText(m.mashTypes, 0);
  lblMashEff = "N/A";
  mashInfoEnabled = false;
  txtBoilTime = formatNumber(d.boilTime, "0");
  RecipeRecord blank;
  blank.unitType = d.unitMeasure;
  fermentation.populate(blank);
  comments = CommentFields{};
  clearEditFields();
  filling = false;
  recReset();
}

int RecipeEditor::AddIngredient(int kind, const std::string& name, double quantity, int units, double cost,
                                double rating, double detail, int mashFlag) {
  kind = std::clamp(kind, 0, 3);
  IngredientTable& g = sheet.grid;
  const int r = g.insertItem(kind);
  IngredientRow& row = g.row(r);
  row.cells[COL_NAME] = trim(name);
  row.cells[COL_QTY] = formatNumber(quantity, "0.0#");
  row.cells[COL_UNITS] = listText(unitsOfKind(kind), units);
  row.unit = units;
  row.cells[COL_COST] = formatNumber(cost, "Currency");
  switch (kind) {
    case KIND_MALT:
      row.cells[COL_RATING] = formatNumber(rating, "0.000");
      row.cells[COL_DETAIL] = formatNumber(detail, "0.0");
      row.cells[COL_MASH] = mashFlag != 0 ? "Yes" : "No";
      break;
    case KIND_HOPS:
      row.cells[COL_RATING] = formatNumber(rating, "0.0");
      row.cells[COL_DETAIL] = formatNumber(detail, "0");
      break;
    case KIND_YEAST:
      // The record holds the attenuation as a fraction; the table shows percent.
      row.cells[COL_RATING] = formatNumber(rating * 100.0, "0");
      break;
    default: break;
  }
  return r;
}

void RecipeEditor::refreshMashLabels() {
  const RecipeRecord& rec = wb.recipe.rec;
  lblMashType = listText(measures().mashTypes, rec.mashType);
  lblMashEff = rec.mashType != 0 ? formatNumber(rec.mashEfficiency, "0") : std::string("N/A");
  mashInfoEnabled = rec.mashType != 0;
}

void RecipeEditor::populateRecipeForm() {
  const Measures& m = measures();
  CurrentRecipe& cur = wb.recipe;
  RecipeRecord& rec = cur.rec;
  filling = true;
  clearEditFields();

  // 1. Title and type.
  txtTitle = trim(rec.recipeName);
  titleChanged = false;
  cboRecipeType = clampIndex(rec.recipeType, recipeTypes.size());

  // 2. The style, by name; a name the list does not know is reported and shown as such.
  cboBeerStyle = selectRecipeStyle(wb.styles, styleList, trim(rec.beerStyle), wb.prompter);
  cboBeerStyleText = cboBeerStyle >= 0 && cboBeerStyle < static_cast<int>(styleList.size())
                         ? styleList[static_cast<size_t>(cboBeerStyle)].text
                         : std::string(kNotSpecifiedStyleEntry);

  // 3. Volumes and unit labels. A recipe read from an older exchange file may name no volume unit
  // (code -1); it is shown and computed in the default unit rather than read past the table.
  if (rec.volumeUnits < 0 || rec.volumeUnits >= static_cast<int>(m.volumeUnits.size()))
    rec.volumeUnits = wb.defaults.volumeUnits;
  sheet.txtFermentVolume = formatNumber(rec.fermentVolume, "0.0");
  sheet.txtInitalBoilVolume = formatNumber(rec.boilVolume, "0.0");
  lblUnitType = listText(m.unitTypes, rec.unitType);
  lblVolumeUnits = listText(m.volumeUnits, rec.volumeUnits);

  // 4. Mash efficiency. The check takes the value for a fraction while the field holds percent,
  // so every stored efficiency above 0.95 opens as the default; the recipe still counts as
  // unchanged. Written as "not from 0.5 to 0.95" so that a field holding no number at all (a
  // damaged record) takes the default as well.
  if (rec.mashType != 0 && !(rec.mashEfficiency >= 0.5 && rec.mashEfficiency <= 0.95))
    rec.mashEfficiency = wb.defaults.mashEff;
  refreshMashLabels();

  // 5. The stored characteristics, until the calculations replace them.
  txtBoilTime = formatNumber(rec.boilTime, "0");
  sheet.lblColor = formatNumber(rec.color, "0.0");
  sheet.lblIBU = formatNumber(rec.bitterness, "0");
  sheet.lblOG = formatNumber(rec.originalGravity, "0.000");
  sheet.lblFG = formatNumber(rec.finalGravity, "0.000");
  sheet.lblAlcohol = formatNumber(rec.alcohol, "0.0");

  // 6. The ingredients in record order.
  sheet.grid.clear();
  const int count = std::clamp(rec.itemCount, 0, kMaxRecipeItems);
  for (int k = 0; k < count; ++k) {
    RecipeItemRecord& it = cur.items[static_cast<size_t>(k)];
    // Likewise an item without a unit takes its kind's default unit.
    const int units = it.itemKind == KIND_MALT || it.itemKind == KIND_HOPS ? 4
                      : it.itemKind == KIND_OTHER                         ? 14
                                                                          : 4;
    if (it.quantityUnits < 0 || it.quantityUnits >= units) {
      const Defaults& d = wb.defaults;
      it.quantityUnits = it.itemKind == KIND_MALT    ? d.maltUnits
                         : it.itemKind == KIND_HOPS  ? d.hopsUnits
                         : it.itemKind == KIND_OTHER ? d.otherUnits
                                                     : d.yeastUnits;
    }
    AddIngredient(it.itemKind, it.itemName, it.quantity, it.quantityUnits, it.unitCost, it.rating, it.detail,
                  it.mashFlag);
  }

  // 7. Cost, the companion windows' fields, colour and bitterness.
  computeRecipeCost(wb, sheet);
  fermentation.populate(rec);
  comments.dateCreated = trim(rec.dateCreated);
  comments.idCode = trim(rec.idCode);
  comments.labelName = trim(rec.labelName);
  comments.comment = cur.comment;
  computeRecipeColor(wb, sheet);
  computeRecipeBitterness(wb, sheet);
  filling = false;
  recReset();
}

// ---- Saving ---------------------------------------------------------------------------------------

bool RecipeEditor::mnuFileSave_Click() { return save(true); }

bool RecipeEditor::save(bool mayEnterTree) {
  CurrentRecipe& cur = wb.recipe;
  RecipeRecord& rec = cur.rec;

  // 1. Type, name, style.
  rec.recipeType = cboRecipeType;
  rec.recipeName = txtTitle.substr(0, 60);
  // A style this program does not know keeps its name: the brewer was told at opening, and a
  // save must not turn the name into the placeholder.
  const std::string style = cboBeerStyleText;
  if (style == kNotSpecifiedStyleEntry) rec.beerStyle.clear();
  else if (style != kNotRecognizedStyleEntry) rec.beerStyle = style.substr(0, 60);

  // 2. Volumes and the computed values, read back from what the editor shows.
  rec.boilVolume = cellValue(sheet.txtInitalBoilVolume);
  rec.fermentVolume = cellValue(sheet.txtFermentVolume);
  rec.color = cellValue(sheet.lblColor);
  const double ibu = std::nearbyint(cellValue(sheet.lblIBU));
  if (ibu > 32767 || ibu < -32768) {
    // The record keeps bitterness as a 16-bit whole number.
    wb.errors.reportError(ERR_OVERFLOW, 0, kSaveFn, "", "Overflow");
    return false;
  }
  rec.bitterness = static_cast<int>(ibu);
  rec.originalGravity = cellValue(sheet.lblOG);
  rec.finalGravity = cellValue(sheet.lblFG);
  rec.alcohol = cellValue(sheet.lblAlcohol);

  // 3. and 4. Fermentation, conditioning and aging; the comment window's fields.
  fermentation.store(rec);
  rec.dateCreated = comments.dateCreated.substr(0, 11);
  rec.idCode = comments.idCode.substr(0, 10);
  rec.labelName = comments.labelName.substr(0, 35);
  cur.comment = comments.comment;

  // 5. The table back into the item table. There is room for 25 items: a 26th is an index
  // failure, which ends the program before anything is written.
  const IngredientTable& g = sheet.grid;
  int kind = -1;
  int n = 0;
  bool yeast = false;
  for (int r = 0; r < g.totalRow(); ++r) {
    const IngredientRow& row = g.row(r);
    if (!row.isItem()) {
      ++kind;
      continue;
    }
    if (n >= kMaxRecipeItems) {
      wb.errors.reportError(ERR_SUBSCRIPT, 0, kSaveFn, "", "Subscript out of range");
      return false;
    }
    RecipeItemRecord item;
    item.recipeNo = rec.recipeNo;
    item.itemKind = kind;
    item.itemName = row.cells[COL_NAME].substr(0, 50);
    item.quantity = cellValue(row.cells[COL_QTY]);
    item.quantityUnits = row.unit;
    item.unitCost = moneyValue(row.cells[COL_COST]);
    switch (kind) {
      case KIND_MALT:
        item.rating = cellValue(row.cells[COL_RATING]);
        item.detail = cellValue(row.cells[COL_DETAIL]);
        item.mashFlag = row.cells[COL_MASH] == "Yes" ? -1 : 0;
        break;
      case KIND_HOPS:
        item.rating = cellValue(row.cells[COL_RATING]);
        item.detail = cellValue(row.cells[COL_DETAIL]);
        break;
      case KIND_YEAST:
        item.rating = cellValue(row.cells[COL_RATING]) / 100.0;
        yeast = true;
        break;
      default: break;
    }
    cur.items[static_cast<size_t>(n++)] = item;
  }
  rec.itemCount = n;

  // 6. and 7. The tree's leaf: log suffix, unique name, text, order.
  updateTreeLeaf(mayEnterTree);

  // 8. The files.
  if (!saveCurrentRecipe(wb)) return false;
  recReset();

  // 9.
  if (!yeast)
    wb.prompter.message("NOTICE: There is no Yeast included in this recipe!", "Zythara 2 Information",
                        Icon::Information, Buttons::OK);
  return true;
}

bool RecipeEditor::mnuFileSaveAs_Click() {
  const std::string name = trim(txtTitle);
  if (wb.prompter.message("Change Recipe Title to: Copy of " + name + "?", "Save Recipe As...", Icon::Question,
                          Buttons::YesNo, Answer::Yes) == Answer::Yes)
    setTitle("Copy of " + name);
  const long slot = findNextRecipeSlot(wb);
  if (slot < 1) return false;
  RecipeRecord& rec = wb.recipe.rec;
  rec.recipeNo = static_cast<int>(slot);
  // The copy enters the tree under the name in the title box; a name the tree holds already is
  // numbered, and the box shows the result.
  rec.recipeName = txtTitle.substr(0, 60);
  enterInTree();
  // The leaf exists now (or the list has said why not): the save only brings it up to date.
  return save(false);
}

bool RecipeEditor::queryClose() {
  if (!changed_) return true;
  const Answer a = wb.prompter.message("Recipe has Changed, Save Changes?", "Save Recipe", Icon::Question,
                                       Buttons::YesNoCancel, Answer::Yes);
  if (a == Answer::Cancel) return false;
  if (a == Answer::Yes) {
    mnuFileSave_Click();
  } else {
    recReset();
  }
  return true;
}

// ---- The title frame ------------------------------------------------------------------------------

void RecipeEditor::setTitle(const std::string& text) {
  txtTitle = text;
  if (filling) return;
  titleChanged = true;
  recChanged();
}

void RecipeEditor::setRecipeType(int index) {
  cboRecipeType = clampIndex(index, recipeTypes.size());
  if (filling) return;
  recChanged();
}

void RecipeEditor::chooseStyle(int pos) {
  if (pos < 0 || pos >= static_cast<int>(styleList.size())) return;
  cboBeerStyle = pos;
  cboBeerStyleText = styleList[static_cast<size_t>(pos)].text;
  if (filling) return;
  wb.recipe.rec.beerStyle = chooseRecipeStyle(wb.styles, styleList, pos).substr(0, 60);
  updateStyleFlags(wb, sheet);
  recChanged();
}

void RecipeEditor::setStyleText(const std::string& text) {
  const int pos = findStyleListPosition(styleList, text);
  if (pos >= 0) {
    chooseStyle(pos);
    return;
  }
  cboBeerStyle = -1;
  cboBeerStyleText = text;
}

void RecipeEditor::cmdFilterClosed() {
  const std::string remembered = cboBeerStyleText;
  const int keep = wb.styles.CurrentStyleIndex;
  const bool was = filling;
  filling = true;
  LoadBeerStyles();
  cboBeerStyle = findStyleListPosition(styleList, remembered);
  cboBeerStyleText = remembered;
  wb.styles.CurrentStyleIndex = keep;
  filling = was;
}

RecipeStyleValues RecipeEditor::styleValues() const {
  return RecipeStyleValues::fromDisplay(sheet.lblOG, sheet.lblFG, sheet.lblIBU, sheet.lblColor, sheet.lblAlcohol);
}

StyleMatchModel RecipeEditor::openStyleMatch() const {
  StyleMatchModel model;
  model.open(wb.styles, styleValues(), cboBeerStyleText);
  return model;
}

void RecipeEditor::setFermentVolume(const std::string& text) {
  sheet.txtFermentVolume = text;
  if (!filling) afterEdit(EditEvent::Volume);
}

void RecipeEditor::setBoilVolume(const std::string& text) {
  sheet.txtInitalBoilVolume = text;
  if (!filling) afterEdit(EditEvent::Volume);
}

void RecipeEditor::mashDataChanged() {
  refreshMashLabels();
  afterEdit(EditEvent::Structure);
}

void RecipeEditor::afterEdit(EditEvent e) {
  recompute(wb, sheet, e);
  recChanged();
}

// ---- The ingredient table -------------------------------------------------------------------------

void RecipeEditor::clearEditFields() {
  strip = EditStrip{};
  selectedRow = -1;
  selectedKind = -1;
}

void RecipeEditor::selectRow(int row) {
  const IngredientTable& g = sheet.grid;
  if (!g.isItemRow(row)) {
    clearEditFields();
    return;
  }
  const bool was = filling;
  filling = true;
  const IngredientRow& r = g.row(row);
  selectedRow = row;
  selectedKind = g.kindOfRow(row);
  EditStrip s;
  s.visible = true;
  s.txtItem = r.cells[COL_NAME];
  s.txtQty = r.cells[COL_QTY];
  s.unitList = unitsOfKind(selectedKind);
  s.cboUnits = r.unit;
  s.txtCost = r.cells[COL_COST];
  switch (selectedKind) {
    case KIND_MALT:
      s.showExtraction = s.showColor = s.showMash = s.showExtPct = true;
      s.lblExtraction = "Extraction Rating:";
      s.lblColor = "Color:";
      s.txtExtraction = r.cells[COL_RATING];
      s.txtColor = r.cells[COL_DETAIL];
      s.chkMash = r.cells[COL_MASH] == "Yes";
      s.lblExtPct = lblExtPct(cellValue(s.txtExtraction));
      break;
    case KIND_HOPS:
      s.showExtraction = s.showColor = true;
      s.lblExtraction = "Alpha %:";
      s.lblColor = "Boil Time:";
      s.txtExtraction = r.cells[COL_RATING];
      s.txtColor = r.cells[COL_DETAIL];
      break;
    case KIND_YEAST:
      s.showExtraction = true;
      s.lblExtraction = "Attenuation %:";
      s.txtExtraction = r.cells[COL_RATING];
      break;
    default: break;
  }
  strip = std::move(s);
  filling = was;
}

void RecipeEditor::writeCell(int col, const std::string& text) { sheet.grid.setCell(selectedRow, col, text); }

void RecipeEditor::setItemName(const std::string& text) {
  strip.txtItem = text;
  if (filling || !sheet.grid.isItemRow(selectedRow)) return;
  writeCell(COL_NAME, text.substr(0, 50));
  recChanged();
}

void RecipeEditor::setQuantity(const std::string& text) {
  strip.txtQty = text;
  if (filling || !sheet.grid.isItemRow(selectedRow)) return;
  writeCell(COL_QTY, formatNumber(cellValue(text), "0.0#"));
  afterEdit(selectedKind == KIND_MALT   ? EditEvent::MaltQuantity
            : selectedKind == KIND_HOPS ? EditEvent::HopsQuantity
                                        : EditEvent::OtherQuantity);
}

void RecipeEditor::setUnits(int index) {
  if (filling || !sheet.grid.isItemRow(selectedRow)) {
    strip.cboUnits = index;
    return;
  }
  const StringList& list = unitsOfKind(selectedKind);
  if (index < 0 || index >= static_cast<int>(list.size())) return;
  IngredientRow& row = sheet.grid.row(selectedRow);
  const int old = row.unit;
  // Choosing the unit the row has already is no change: the quantity is not rounded again.
  if (index == old) {
    strip.cboUnits = index;
    return;
  }
  strip.cboUnits = index;
  row.cells[COL_UNITS] = list[static_cast<size_t>(index)];
  row.unit = index;
  if (selectedKind == KIND_MALT || selectedKind == KIND_HOPS) {
    // The quantity follows the new unit (brought to a multiple of 0.05 above a half), and the
    // cost per unit with it.
    const double factor = old >= 0 && old < 4 ? measures().weightConvert[old][index] : 1.0;
    row.cells[COL_QTY] = formatNumber(roundQuantity(cellValue(row.cells[COL_QTY]) * factor), "0.0#");
    row.cells[COL_COST] = formatNumber(moneyValue(row.cells[COL_COST]) / factor, "Currency");
    strip.txtQty = row.cells[COL_QTY];
    strip.txtCost = row.cells[COL_COST];
    afterEdit(selectedKind == KIND_MALT ? EditEvent::MaltUnit : EditEvent::HopsUnit);
  } else {
    afterEdit(EditEvent::Cost);
  }
}

void RecipeEditor::setCost(const std::string& text) {
  strip.txtCost = text;
  if (filling || !sheet.grid.isItemRow(selectedRow)) return;
  writeCell(COL_COST, formatNumber(moneyValue(text), "Currency"));
  afterEdit(EditEvent::Cost);
}

void RecipeEditor::setExtraction(const std::string& text) {
  strip.txtExtraction = text;
  if (filling || !sheet.grid.isItemRow(selectedRow)) return;
  const double v = cellValue(text);
  switch (selectedKind) {
    case KIND_MALT:
      writeCell(COL_RATING, formatNumber(v, "0.000"));
      strip.lblExtPct = lblExtPct(v);
      afterEdit(EditEvent::MaltRating);
      break;
    case KIND_HOPS:
      writeCell(COL_RATING, formatNumber(v, "0.0"));
      afterEdit(EditEvent::HopsRating);
      break;
    case KIND_YEAST:
      writeCell(COL_RATING, formatNumber(v, "0"));
      afterEdit(EditEvent::YeastAttenuation);
      break;
    default: break;
  }
}

void RecipeEditor::setColor(const std::string& text) {
  strip.txtColor = text;
  if (filling || !sheet.grid.isItemRow(selectedRow)) return;
  const double v = cellValue(text);
  if (selectedKind == KIND_MALT) {
    writeCell(COL_DETAIL, formatNumber(v, "0.0"));
    afterEdit(EditEvent::MaltRating);
  } else if (selectedKind == KIND_HOPS) {
    writeCell(COL_DETAIL, formatNumber(v, "0"));
    afterEdit(EditEvent::HopsRating);
  }
}

void RecipeEditor::setMash(bool mashed) {
  strip.chkMash = mashed;
  if (filling || !sheet.grid.isItemRow(selectedRow) || selectedKind != KIND_MALT) return;
  writeCell(COL_MASH, mashed ? "Yes" : "No");
  afterEdit(EditEvent::MashFlag);
}

void RecipeEditor::spin(StripField field, int direction) {
  if (!sheet.grid.isItemRow(selectedRow)) return;
  const Defaults& d = wb.defaults;
  const int k = selectedKind;
  double step = 0;
  std::string current;
  const char* pattern = "0.0#";
  switch (field) {
    case StripField::Quantity:
      step = k == KIND_MALT ? d.maltQtyIncr : k == KIND_HOPS ? d.hopsQtyIncr : k == KIND_OTHER ? d.otherQtyIncr
                                                                                               : d.yeastQtyIncr;
      current = strip.txtQty;
      break;
    case StripField::Cost:
      step = k == KIND_MALT ? d.maltCostIncr : k == KIND_HOPS ? d.hopsCostIncr : k == KIND_OTHER ? d.otherCostIncr
                                                                                                 : d.yeastCostIncr;
      current = strip.txtCost;
      pattern = "Currency";
      break;
    case StripField::Extraction:
      if (k == KIND_OTHER) return;
      step = k == KIND_MALT ? d.maltExtractionIncr : k == KIND_HOPS ? d.hopsAlphaIncr : d.yeastAttenuationIncr;
      pattern = k == KIND_MALT ? "0.000" : k == KIND_HOPS ? "0.0" : "0";
      current = strip.txtExtraction;
      break;
    case StripField::Color:
      if (k != KIND_MALT && k != KIND_HOPS) return;
      step = k == KIND_MALT ? d.maltColorIncr : d.hopsBoilIncr;
      pattern = k == KIND_MALT ? "0.0" : "0";
      current = strip.txtColor;
      break;
  }
  const double base = field == StripField::Cost ? moneyValue(current) : cellValue(current);
  // The spinners stop at zero.
  const double v = std::max(0.0, roundHalfAway(base + direction * step, 6));
  const std::string text = formatNumber(v, pattern);
  switch (field) {
    case StripField::Quantity: setQuantity(text); break;
    case StripField::Cost: setCost(text); break;
    case StripField::Extraction: setExtraction(text); break;
    case StripField::Color: setColor(text); break;
  }
}

void RecipeEditor::stepQuantity(QtyStep step, bool next) {
  if (!sheet.grid.isItemRow(selectedRow)) return;
  const double q = cellValue(strip.txtQty);
  const double v = next ? nextQuantityStep(q, step) : previousQuantityStep(q, step);
  setQuantity(formatNumber(v, "0.0#"));
}

void RecipeEditor::cmdDeleteIngredient_Click() {
  if (!sheet.grid.isItemRow(selectedRow)) return;
  const std::string name = sheet.grid.cell(selectedRow, COL_NAME);
  if (wb.prompter.message("Do you want to Delete \"" + name + "\" from the Recipe?", "Delete Ingredient",
                          Icon::Question, Buttons::YesNo, Answer::Yes) != Answer::Yes)
    return;
  sheet.grid.removeRow(selectedRow);
  clearEditFields();
  afterEdit(EditEvent::Structure);
}

void RecipeEditor::cmdAddNew_Click(int kind) {
  const Defaults& d = wb.defaults;
  int r;
  switch (kind) {
    case KIND_MALT:
      r = AddIngredient(KIND_MALT, trim(d.maltName), d.maltQty, d.maltUnits, d.maltCost, d.maltExtraction,
                        d.maltColor, d.maltMash != 0 ? -1 : 0);
      break;
    case KIND_HOPS:
      r = AddIngredient(KIND_HOPS, trim(d.hopsName), d.hopsQty, d.hopsUnits, d.hopsCost, d.hopsAlpha, d.hopsBoil, 0);
      break;
    case KIND_OTHER:
      r = AddIngredient(KIND_OTHER, trim(d.otherName), d.otherQty, d.otherUnits, d.otherCost, 0, 0, 0);
      break;
    default:
      r = AddIngredient(KIND_YEAST, trim(d.yeastName), d.yeastQty, d.yeastUnits, d.yeastCost, d.yeastAttenuation,
                        0, 0);
      break;
  }
  selectRow(r);
  afterEdit(EditEvent::Structure);
}

void RecipeEditor::moveSelected(int delta) {
  const IngredientTable& g = sheet.grid;
  if (!g.isItemRow(selectedRow)) return;
  const int target = selectedRow + delta;
  // Only within the section: the neighbour must be an item row too.
  if (!g.isItemRow(target)) return;
  sheet.grid.swapRows(selectedRow, target);
  selectRow(target);
  recChanged();
}

void RecipeEditor::mnuSortUp_Click() { moveSelected(-1); }
void RecipeEditor::mnuSortDown_Click() { moveSelected(+1); }

void RecipeEditor::sortSections(bool alphabetical) {
  IngredientTable& g = sheet.grid;
  auto qty = [](const IngredientRow& r) { return cellValue(r.cells[COL_QTY]); };
  auto boil = [](const IngredientRow& r) { return cellValue(r.cells[COL_DETAIL]); };
  for (int kind = 0; kind < IngredientTable::kSections; ++kind) {
    // "a before b": the order each section is sorted in.
    auto before = [&](const IngredientRow& a, const IngredientRow& b) {
      if (alphabetical || kind == KIND_YEAST) return nameLess(a, b);
      if (kind == KIND_HOPS && boil(a) != boil(b)) return boil(a) > boil(b);
      if (qty(a) != qty(b)) return qty(a) > qty(b);
      return nameLess(a, b);
    };
    // A pairwise exchange sort over the section's rows.
    const int first = g.headerRow(kind) + 1, end = g.sectionEnd(kind);
    for (int i = first; i < end - 1; ++i)
      for (int j = i + 1; j < end; ++j)
        if (before(g.row(j), g.row(i))) g.swapRows(i, j);
  }
  clearEditFields();
  recChanged();
}

void RecipeEditor::sortByTimeQuantityAlpha() { sortSections(false); }
void RecipeEditor::sortAlphabetically() { sortSections(true); }

}  // namespace zy

namespace zy {

// ---- The recipe list's tree ---------------------------------------------------------------------

void RecipeEditor::enterInTree() {
  RecipeRecord& rec = wb.recipe.rec;
  rec.recipeName = txtTitle.substr(0, 60);
  // Without a built tree (the command line) there is nothing to enter the recipe in.
  if (wb.recipeList.sortMode >= 0) wb.recipeList.addToRecipeList(wb, true);
  // addToRecipeList may have numbered the name; the title box shows it again.
  txtTitle = trim(rec.recipeName);
  titleChanged = false;
}

void RecipeEditor::updateTreeLeaf(bool mayEnter) {
  RecipeList& list = wb.recipeList;
  // Without a built tree (the command line) there is no leaf to keep.
  if (list.sortMode < 0) return;
  RecipeRecord& rec = wb.recipe.rec;
  // The leaf is found by the recipe's own key: the list's currentRecipeKey follows whatever was
  // added last, which need not be the recipe in the editor.
  const std::string key = "R" + itos(rec.recipeNo);
  if (!list.tree.find(key)) {
    // A new recipe reaches the tree at its first save.
    if (mayEnter) enterInTree();
    return;
  }
  const std::string suffix = list.mnuSortLogCount ? list.logSuffix(wb, rec.recipeNo) : std::string();
  if (titleChanged) {
    txtTitle = list.uniqueName(trim(txtTitle));
    rec.recipeName = txtTitle.substr(0, 60);
    titleChanged = false;
  }
  if (auto text = list.leafText(rec, suffix)) list.tree.setText(key, *text);
  list.tree.setTag(key, trim(rec.recipeName));
}

RecipeOpenHooks RecipeEditor::openHooks() {
  RecipeOpenHooks h;
  h.isChanged = [this] { return changed_; };
  h.save = [this] { mnuFileSave_Click(); };
  h.prepareForLoad = [this] { prepareForLoad(); };
  h.populate = [this] { populateRecipeForm(); };
  return h;
}

void RecipeEditor::prepareForLoad() {
  // The style filter does not outlive a recipe: every style is offered again.
  initStyleFilter(wb.styles);
  const bool was = filling;
  filling = true;
  LoadBeerStyles();
  clearEditFields();
  filling = was;
}

bool RecipeEditor::openRecipe(long recipeNo) {
  prepareForLoad();
  wb.recipeList.currentRecipeKey = "R" + itos(recipeNo);
  if (!loadRecipe(wb, recipeNo)) return false;
  populateRecipeForm();
  return true;
}

}  // namespace zy

namespace zy {

// ---- The comment window ----------------------------------------------------------------------------

namespace {
constexpr const char* kCommentsSection = "Comments";

void rememberCommentFolder(Workbench& wb, const std::string& path) {
  rememberTextFolder(wb.settings, kCommentsSection, path);
}
}  // namespace

void RecipeEditor::setCommentField(CommentField field, const std::string& text) {
  switch (field) {
    case CommentField::DateCreated: comments.dateCreated = text.substr(0, 11); break;
    case CommentField::IdCode: comments.idCode = text.substr(0, 10); break;
    case CommentField::LabelName: comments.labelName = text.substr(0, 35); break;
    case CommentField::Comment: comments.comment = text; break;
  }
  if (!filling) recChanged();
}

bool RecipeEditor::importComment(const std::string& path) {
  rememberCommentFolder(wb, path);
  const auto bytes = readTextBytes(path);
  if (!bytes) {
    // A file picked in the dialog that cannot be read is told, and the comment stays.
    wb.prompter.message("Unable to Read " + path, "Import Comments", Icon::Warning, Buttons::OK);
    return false;
  }
  // Lines end in CR LF, whichever end the file had.
  comments.comment = crlfText(*bytes, true);
  recChanged();
  return true;
}

bool RecipeEditor::exportComment(const std::string& path) {
  rememberCommentFolder(wb, path);
  const bool ok = writeTextBytes(path, comments.comment);
  if (!ok) wb.prompter.message("Unable to Generate Output File", "Error", Icon::Critical, Buttons::OK);
  return ok;
}

}  // namespace zy
