#include "ui/frmRecipe.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFont>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>

#include "core/measures.h"
#include "ui/QtPrompter.h"
#include "ui/HelpButton.h"
#include "ui/RecipeIcons.h"
#include "ui/TopicIcons.h"
#include "ui/WindowPlacement.h"

namespace zy {

namespace {

const char* const kHelpPage = "recipe-editor.html";

// What each tool is and what brings it while this build lacks it.
struct ToolInfo {
  const char* tip;      // with the tool present
  const char* missing;  // without it
};
const std::array<ToolInfo, kRecipeToolCount>& toolInfo() {
  static const std::array<ToolInfo, kRecipeToolCount> t = {{
      {"Hops utilization curve and bitterness by boil time", "Comes with the hops utilization window"},
      {"The mash steps: their times and temperatures", "Comes with the mash schedule window"},
      {"Match/Find Beer Style: the styles this recipe fits", "Comes with the beer style windows"},
      {"Beer Style Filtering: which styles the Beer Style list offers", "Comes with the beer style windows"},
      {"Browse the beer styles", "Comes with the beer style windows"},
      {"Show your stock of ingredients", "Comes with the inventory"},
      {"Add ingredients from your inventory", "Comes with the inventory"},
      {"Water volumes for mashing, sparging and boiling", "Comes with water management"},
      {"Treat your water toward a brewing water profile", "Comes with the brewing calculators"},
      {"Work out the malt bill for a target gravity", "Comes with the brewing calculators"},
      {"Yeast starter and kraeusening amounts", "Comes with the brewing calculators"},
      {"Turn pasted recipe text into a recipe", "Comes with the recipe reader"},
      {"Batch logs of this recipe", "Comes with the batch log"},
      {"Add this recipe's ingredients to the shopping list", "Comes with the shopping list"},
      {"Check this recipe against your inventories", "Comes with the shopping list"},
      {"Show the shopping list", "Comes with the shopping list"},
      {"Preview the recipe report", "Comes with the reports"},
      {"Print the recipe report", "Comes with the reports"},
      {"Paper, orientation and margins for printing", "Comes with the reports"},
      {"Generate a label for this recipe", "Comes with the label tools"},
      {"Start the label program", "Comes with the label tools"},
      {"Unit system, volume unit, mash type, efficiency and boil time", "Comes with the units/mash data window"},
  }};
  return t;
}

void setTip(QAction* a, const QString& tip) {
  a->setToolTip(tip);
  a->setStatusTip(tip);
}

void setTextIfChanged(QLineEdit* e, const std::string& text) {
  const QString t = qs(text);
  if (e->text() != t) e->setText(t);
}

QLabel* valueLabel(QWidget* parent, const char* name, int width = 60) {
  auto* l = new QLabel(parent);
  l->setObjectName(name);
  l->setFrameShape(QFrame::StyledPanel);
  l->setFrameShadow(QFrame::Sunken);
  l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  l->setMinimumWidth(width);
  l->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  l->setStyleSheet("QLabel { background: palette(base); padding: 1px 4px; }");
  return l;
}

QLabel* caption(const QString& text, QWidget* buddy = nullptr) {
  auto* l = new QLabel(text);
  l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  if (buddy) l->setBuddy(buddy);
  return l;
}

QRegularExpressionValidator* numberValidator(QObject* parent, bool money = false) {
  return new QRegularExpressionValidator(
      QRegularExpression(money ? R"(\$?[0-9,]*\.?[0-9]*)" : R"([0-9]*\.?[0-9]*)"), parent);
}

// The style judgement's colours: Low blue, OK green, High red; a near miss paler.
QString targetStyle(const TargetLabel& t) {
  QString bg;
  if (t.text == "OK") bg = "#7fcf7f";
  else if (t.text == "Low") bg = t.colour == TargetColour::Yellow ? "#bcd8f5" : "#7fb2ea";
  else if (t.text == "High") bg = t.colour == TargetColour::Yellow ? "#f5c0b8" : "#ec7f73";
  if (bg.isEmpty()) return "QLabel { padding: 1px 4px; color: palette(mid); }";
  return QString("QLabel { background: %1; color: black; font-weight: bold; padding: 1px 4px; "
                 "border: 1px solid rgba(0,0,0,60); border-radius: 3px; }")
      .arg(bg);
}

}  // namespace

// ---- The grid's model ------------------------------------------------------------------------------

QVariant IngredientGridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || !table_.valid(index.row())) return {};
  const int r = index.row(), c = index.column();
  const bool item = table_.isItemRow(r);
  const bool total = r == table_.totalRow();
  switch (role) {
    case Qt::DisplayRole: return qs(table_.cell(r, c));
    case Qt::FontRole:
      if (!item) {
        QFont f;
        f.setBold(true);
        return f;
      }
      return {};
    case Qt::BackgroundRole:
      if (total) return QColor(238, 232, 210);
      if (!item) return QColor(214, 222, 234);
      return {};
    case Qt::ForegroundRole:
      if (!item) return QColor(20, 30, 50);
      return {};
    case Qt::TextAlignmentRole:
      if (c == COL_QTY || c == COL_COST || c == COL_RATING || c == COL_DETAIL)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
      if (c == COL_MASH) return QVariant(Qt::AlignCenter);
      return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ToolTipRole:
      if (item && c == COL_NAME) return "Select to edit below; right click to sort or move";
      return {};
    default: return {};
  }
}

// ---- The window ------------------------------------------------------------------------------------

frmRecipe::frmRecipe(Workbench& wb, QWidget* parent) : QMainWindow(parent), wb_(wb), editor_(wb) {
  setWindowTitle(RecipeEditor::kCaption);
  setObjectName("frmRecipe");
  setWindowIcon(toolIcon(ToolIcon::Recipes));
  editor_.initRecipeForm();

  buildMenus();
  buildToolbar();
  auto* central = new QWidget(this);
  auto* box = new QVBoxLayout(central);
  box->setContentsMargins(6, 4, 6, 4);
  box->setSpacing(4);
  auto* top = new QHBoxLayout;
  top->addWidget(buildTitleFrame(), 3);
  top->addWidget(buildResults(), 2);
  box->addLayout(top);
  box->addWidget(buildGrid(), 1);
  box->addWidget(buildEditStrip());
  setCentralWidget(central);
  statusBar()->setSizeGripEnabled(true);

  for (int i = 0; i < kRecipeToolCount; ++i) setToolOpener(static_cast<RecipeTool>(i), {});
  refreshFromModel();
  restoreWindowPlacement(*this, wb_.settings, kSection, QSize(1160, 730), QPoint(60, 30));
}

QAction* frmRecipe::toolAction(RecipeTool t, QMenu* menu, const QString& text) {
  QAction* a = menu->addAction(text, this, [this, t] { runTool(t); });
  toolActions_[static_cast<size_t>(t)].push_back(a);
  return a;
}

void frmRecipe::buildMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  mnuFileSave = file->addAction(recipeIcon("Save"), "&Save", this, [this] { mnuFileSave_Click(); });
  mnuFileSave->setShortcut(QKeySequence::Save);
  setTip(mnuFileSave, "Save the recipe");
  mnuFileSaveAs = file->addAction("Save &As...", this, [this] { mnuFileSaveAs_Click(); });
  setTip(mnuFileSaveAs, "Save the recipe as a new recipe");
  file->addSeparator();
  mnuFilePageSetup = toolAction(RecipeTool::PageSetup, file, "Page Set&up...");
  mnuFilePreview = toolAction(RecipeTool::PrintPreview, file, "Print Pre&view...");
  mnuFilePreview->setIcon(recipeIcon("Preview"));
  mnuFilePrintNow = toolAction(RecipeTool::Print, file, "&Print");
  mnuFilePrintNow->setIcon(toolIcon(ToolIcon::Print));
  mnuFileGenHTML = file->addAction(recipeIcon("genHTML"), "Save as &Web Page...", this, [this] {
    if (openGenHTML) openGenHTML();
  });
  setTip(mnuFileGenHTML, "Write the recipe as a web page");
  file->addSeparator();
  mnuFileBatchLog = toolAction(RecipeTool::BatchLog, file, "&Batch Log");
  mnuFileBatchLog->setIcon(recipeIcon("BatchLog"));
  mnuFileScaleQuantities = file->addAction(recipeIcon("Rescale"), "Scale &Quantities", this, [this] {
    if (openScale) openScale();
  });
  setTip(mnuFileScaleQuantities, "Rescale all ingredient quantities to a new fermentation volume");
  mnuFileProperties = file->addAction("Propert&ies", this, [this] {
    if (openProperties) openProperties();
  });
  setTip(mnuFileProperties, "Your preferences and defaults");
  file->addSeparator();
  mnuFileClose = file->addAction("&Close", this, &QWidget::close);
  setTip(mnuFileClose, "Close the Recipe Calculator");

  QMenu* instruct = menuBar()->addMenu("&Instructions");
  mnuInstructMashInfo = toolAction(RecipeTool::MashInfo, instruct, "&Mash Information");
  mnuInstructMashInfo->setIcon(recipeIcon("Mash"));
  mnuInstructWaterMgmt = toolAction(RecipeTool::WaterMgmt, instruct, "&Water Management");
  mnuInstructWaterMgmt->setIcon(recipeIcon("WaterMgmt"));
  mnuInstructFermetationPriming = instruct->addAction(recipeIcon("Ferment"), "&Fermentation/Priming", this, [this] {
    if (openFermentation) openFermentation();
  });
  setTip(mnuInstructFermetationPriming, "Fermentation stages, priming, container and aging");
  mnuInstructComments = instruct->addAction(recipeIcon("Comments"), "&Comments", this, [this] {
    if (openComments) openComments();
  });
  setTip(mnuInstructComments, "Comments, label name and ID code of the recipe");

  QMenu* tools = menuBar()->addMenu("&Tools");
  mnuToolsHopsUtilization = toolAction(RecipeTool::HopsUtilization, tools, "&Hops Utilization");
  mnuToolsHopsUtilization->setIcon(recipeIcon("Hops"));
  mnuToolsAdvanced = toolAction(RecipeTool::MaltFormulator, tools, "Advanced &Malt Formulator");
  mnuToolsAdvanced->setIcon(recipeIcon("MaltForm"));
  mnuToolsStarterKraeusening = toolAction(RecipeTool::Starter, tools, "&Starter/Kraeusening");
  mnuToolsStarterKraeusening->setIcon(recipeIcon("Starter"));
  mnuToolsWaterTreatment = toolAction(RecipeTool::WaterTreatment, tools, "&Water Treatment");
  mnuToolsWaterTreatment->setIcon(recipeIcon("Water"));
  mnuToolsRecipeReader = toolAction(RecipeTool::RecipeReader, tools, "Recipe &Reader");
  mnuToolsRecipeReader->setIcon(recipeIcon("RecReader"));
  tools->addSeparator();
  mnuToolsGenerateLabel = toolAction(RecipeTool::GenerateLabel, tools, "&Auto-Generate Label");
  mnuToolsQuillmark = toolAction(RecipeTool::Quillmark, tools, "Run &Quillmark");

  QMenu* shop = menuBar()->addMenu("Shopping &List");
  mnuShopListAddRecipe = toolAction(RecipeTool::ShopListAdd, shop, "&Add Recipe to Shopping List");
  mnuShopListAddRecipe->setIcon(toolIcon(ToolIcon::Shopping));
  mnuShopListCheckInventories = toolAction(RecipeTool::ShopListCheck, shop, "&Check Inventories");
  mnuShopListDisplayList = toolAction(RecipeTool::ShopListDisplay, shop, "&Display Shopping List");

  QMenu* view = menuBar()->addMenu("&View");
  mnuViewInventoryLists = toolAction(RecipeTool::InventoryLists, view, "&Inventory Lists");
  mnuViewInventoryLists->setIcon(toolIcon(ToolIcon::Inventory));
  mnuViewBeerStyles = toolAction(RecipeTool::BeerStyles, view, "&Beer Styles");
  mnuViewBeerStyles->setIcon(toolIcon(ToolIcon::Styles));

  const HelpMenu help = addHelpMenu(
      menuBar(), this, [this] { if (showHelpTopic) showHelpTopic(kHelpPage); },
      [this](int which) { if (showHelp) showHelp(which); });
  mnuHelpContents = help.contents;
  mnuHelpIndex = help.index;
  mnuHelpSearch = help.search;

  // The grid's pop-up.
  mnuSort = new QMenu("Recipe Sort", this);
  mnuSortRecipe = mnuSort->addAction("Sort by Time/Quantity/Alpha", this, [this] {
    editor_.sortByTimeQuantityAlpha();
    afterEdit(true);
  });
  mnuSortAlpha = mnuSort->addAction("Sort Alphabetically", this, [this] {
    editor_.sortAlphabetically();
    afterEdit(true);
  });
  mnuSort->addSeparator();
  mnuSortUp = mnuSort->addAction("Move Up", this, [this] {
    editor_.mnuSortUp_Click();
    afterEdit(true);
  });
  mnuSortDown = mnuSort->addAction("Move Down", this, [this] {
    editor_.mnuSortDown_Click();
    afterEdit(true);
  });

  // The quantity box's pop-up.
  mnuQty = new QMenu("Quantity", this);
  QMenu* next = mnuQty->addMenu("Increment To Next");
  QMenu* prev = mnuQty->addMenu("Decrement To Prev");
  const char* units[4] = {"Whole Unit", "Half Unit", "Quarter Unit", "Tenth Unit"};
  const QtyStep steps[4] = {QtyStep::Whole, QtyStep::Half, QtyStep::Quarter, QtyStep::Tenth};
  for (size_t i = 0; i < 4; ++i) {
    mnuQtyNext[i] = next->addAction(units[i], this, [this, s = steps[i]] {
      editor_.stepQuantity(s, true);
      afterEdit();
    });
    mnuQtyPrev[i] = prev->addAction(units[i], this, [this, s = steps[i]] {
      editor_.stepQuantity(s, false);
      afterEdit();
    });
  }
}

void frmRecipe::buildToolbar() {
  tbToolBar = addToolBar("Toolbar");
  tbToolBar->setObjectName("tbToolBar");
  tbToolBar->setMovable(false);
  tbToolBar->setIconSize(QSize(24, 24));
  auto add = [this](const char* key, QAction* like, const QIcon& icon, const QString& text) {
    QAction* a = tbToolBar->addAction(icon, text);
    a->setObjectName(key);
    a->setToolTip(like->toolTip());
    connect(a, &QAction::triggered, like, &QAction::trigger);
    tb[key] = a;
    return a;
  };
  auto tool = [this, &add](const char* key, RecipeTool t, QAction* like, const QIcon& icon, const QString& text) {
    QAction* a = add(key, like, icon, text);
    toolActions_[static_cast<size_t>(t)].push_back(a);
  };
  add("Save", mnuFileSave, recipeIcon("Save"), "Save");
  tool("Preview", RecipeTool::PrintPreview, mnuFilePreview, recipeIcon("Preview"), "Preview");
  tool("Print", RecipeTool::Print, mnuFilePrintNow, toolIcon(ToolIcon::Print), "Print");
  tbToolBar->addSeparator();
  tool("RecReader", RecipeTool::RecipeReader, mnuToolsRecipeReader, recipeIcon("RecReader"), "Recipe Reader");
  add("Rescale", mnuFileScaleQuantities, recipeIcon("Rescale"), "Scale Quantities");
  tool("Water", RecipeTool::WaterTreatment, mnuToolsWaterTreatment, recipeIcon("Water"), "Water Treatment");
  tool("MaltForm", RecipeTool::MaltFormulator, mnuToolsAdvanced, recipeIcon("MaltForm"), "Malt Formulator");
  tool("Hops", RecipeTool::HopsUtilization, mnuToolsHopsUtilization, recipeIcon("Hops"), "Hops Utilization");
  tool("Starter", RecipeTool::Starter, mnuToolsStarterKraeusening, recipeIcon("Starter"), "Starter/Kraeusening");
  tbToolBar->addSeparator();
  tool("Mash", RecipeTool::MashInfo, mnuInstructMashInfo, recipeIcon("Mash"), "Mash Information");
  tool("WaterMgmt", RecipeTool::WaterMgmt, mnuInstructWaterMgmt, recipeIcon("WaterMgmt"), "Water Management");
  add("Ferment", mnuInstructFermetationPriming, recipeIcon("Ferment"), "Fermentation/Priming");
  add("Comments", mnuInstructComments, recipeIcon("Comments"), "Comments");
  tbToolBar->addSeparator();
  tool("ShopLst", RecipeTool::ShopListAdd, mnuShopListAddRecipe, toolIcon(ToolIcon::Shopping),
       "Add to Shopping List");
  tool("BatchLog", RecipeTool::BatchLog, mnuFileBatchLog, recipeIcon("BatchLog"), "Batch Log");
  tbToolBar->addSeparator();
  add("Help", mnuHelpContents, toolIcon(ToolIcon::Help), "Help")->setToolTip("Help on the Recipe Calculator");
}

QWidget* frmRecipe::buildTitleFrame() {
  auto* g = new QGroupBox("Recipe", this);
  g->setObjectName("fraTitle");
  auto* grid = new QGridLayout(g);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(4);

  txtTitle = new QLineEdit(g);
  txtTitle->setObjectName("txtTitle");
  txtTitle->setMaxLength(60);
  txtTitle->setToolTip("The recipe's name, as the recipe list shows it");
  cboRecipeType = new QComboBox(g);
  cboRecipeType->setObjectName("cboRecipeType");
  cboRecipeType->setToolTip("The kind of beer the recipe makes; the recipe list can group by it");
  cboBeerStyle = new QComboBox(g);
  cboBeerStyle->setObjectName("cboBeerStyle");
  cboBeerStyle->setMinimumWidth(190);
  cboBeerStyle->setMaxVisibleItems(20);
  cboBeerStyle->setToolTip("The style the recipe is judged against");
  // A recipe style that the filter hides stands in the box as its placeholder: it is the recipe's
  // own style, so it reads as plain text, not greyed like a hint.
  QPalette stylePalette = cboBeerStyle->palette();
  stylePalette.setColor(QPalette::PlaceholderText, stylePalette.color(QPalette::ButtonText));
  cboBeerStyle->setPalette(stylePalette);
  cmdSearch = new QPushButton(toolIcon(ToolIcon::Search), "&Match...", g);
  cmdSearch->setObjectName("cmdSearch");
  cmdFilter = new QPushButton("Filte&r...", g);
  cmdFilter->setObjectName("cmdFilter");
  toolWidgets_[static_cast<size_t>(RecipeTool::StyleMatch)].push_back(cmdSearch);
  toolWidgets_[static_cast<size_t>(RecipeTool::StyleFilter)].push_back(cmdFilter);
  connect(cmdSearch, &QPushButton::clicked, this, [this] { runTool(RecipeTool::StyleMatch); });
  connect(cmdFilter, &QPushButton::clicked, this, [this] { runTool(RecipeTool::StyleFilter); });

  txtFermentVolume = new QLineEdit(g);
  txtFermentVolume->setObjectName("txtFermentVolume");
  txtInitalBoilVolume = new QLineEdit(g);
  txtInitalBoilVolume->setObjectName("txtInitalBoilVolume");
  for (QLineEdit* e : {txtFermentVolume, txtInitalBoilVolume}) {
    e->setValidator(numberValidator(e));
    e->setAlignment(Qt::AlignRight);
    e->setMinimumWidth(64);
    e->setMaximumWidth(70);
  }
  txtFermentVolume->setToolTip("The volume that goes into the fermenter; gravities follow it");
  txtInitalBoilVolume->setToolTip("The volume at the start of the boil; hop utilization follows it");
  lblFermentUnits = new QLabel(g);
  lblBoilUnits = new QLabel(g);
  lblUnitType = valueLabel(g, "lblUnitType", 110);
  lblMashType = valueLabel(g, "lblMashType", 110);
  lblMashEff = valueLabel(g, "lblMashEff", 44);
  lblBoilTime = valueLabel(g, "lblBoilTime", 44);
  for (QLabel* l : {lblUnitType, lblMashType}) l->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

  grid->addWidget(caption("Recipe &Name:", txtTitle), 0, 0);
  grid->addWidget(txtTitle, 0, 1, 1, 6);
  grid->addWidget(caption("Recipe Ty&pe:", cboRecipeType), 1, 0);
  grid->addWidget(cboRecipeType, 1, 1, 1, 2);
  grid->addWidget(caption("Beer &Style:", cboBeerStyle), 1, 3);
  auto* styleRow = new QHBoxLayout;
  styleRow->addWidget(cboBeerStyle, 1);
  styleRow->addWidget(cmdSearch);
  styleRow->addWidget(cmdFilter);
  grid->addLayout(styleRow, 1, 4, 1, 3);
  grid->addWidget(caption("Fermentation Vol&ume:", txtFermentVolume), 2, 0);
  grid->addWidget(txtFermentVolume, 2, 1);
  grid->addWidget(lblFermentUnits, 2, 2);
  lblFermentUnits->setMinimumWidth(86);
  grid->addWidget(caption("Initial &Boil Volume:", txtInitalBoilVolume), 2, 3);
  auto* boilRow = new QHBoxLayout;
  boilRow->addWidget(txtInitalBoilVolume);
  boilRow->addSpacing(4);
  boilRow->addWidget(lblBoilUnits);
  boilRow->addStretch();
  grid->addLayout(boilRow, 2, 4);
  // The recipe's units and mash as the units/mash window sets them, with its button below.
  grid->addWidget(caption("Units:"), 3, 0);
  grid->addWidget(lblUnitType, 3, 1, 1, 2);
  grid->addWidget(caption("Mash:"), 3, 3);
  auto* mashRow = new QHBoxLayout;
  mashRow->addWidget(lblMashType);
  mashRow->addSpacing(8);
  mashRow->addWidget(new QLabel("Efficiency %:"));
  mashRow->addWidget(lblMashEff);
  mashRow->addStretch();
  grid->addLayout(mashRow, 3, 4, 1, 3);
  grid->addWidget(caption("Boil Time:"), 4, 0);
  auto* boilTimeRow = new QHBoxLayout;
  boilTimeRow->addWidget(lblBoilTime);
  boilTimeRow->addSpacing(4);
  boilTimeRow->addWidget(new QLabel("minutes"));
  boilTimeRow->addStretch();
  grid->addLayout(boilTimeRow, 4, 1, 1, 2);
  cmdUnitMash = new QPushButton("Units/Mash...", g);
  cmdUnitMash->setObjectName("cmdUnitMash");
  toolWidgets_[static_cast<size_t>(RecipeTool::UnitMashData)].push_back(cmdUnitMash);
  connect(cmdUnitMash, &QPushButton::clicked, this, [this] { runTool(RecipeTool::UnitMashData); });
  grid->addWidget(cmdUnitMash, 4, 4, 1, 3, Qt::AlignRight);
  grid->setColumnStretch(4, 1);

  connect(txtTitle, &QLineEdit::textEdited, this, [this](const QString& t) {
    editor_.setTitle(s8(t));
    refreshSaveButton();
  });
  connect(cboRecipeType, &QComboBox::activated, this, [this](int i) {
    editor_.setRecipeType(i);
    refreshSaveButton();
  });
  connect(cboBeerStyle, &QComboBox::activated, this, [this](int i) {
    editor_.chooseStyle(i);
    refreshResults();
    refreshSaveButton();
  });
  connect(txtFermentVolume, &QLineEdit::textEdited, this, [this](const QString& t) {
    editor_.setFermentVolume(s8(t));
    afterEdit();
  });
  connect(txtInitalBoilVolume, &QLineEdit::textEdited, this, [this](const QString& t) {
    editor_.setBoilVolume(s8(t));
    afterEdit();
  });
  return g;
}

QWidget* frmRecipe::buildResults() {
  auto* g = new QGroupBox("Recipe Characteristics", this);
  g->setObjectName("fraResults");
  auto* grid = new QGridLayout(g);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(3);
  lblOG = valueLabel(g, "lblOG");
  lblFG = valueLabel(g, "lblFG");
  lblIBU = valueLabel(g, "lblIBU");
  lblColor = valueLabel(g, "lblColor");
  lblAlcohol = valueLabel(g, "lblAlcohol");
  QLabel* values[5] = {lblOG, lblFG, lblIBU, lblColor, lblAlcohol};
  const char* captions[5] = {"Original Gravity:", "Final Gravity:", "Bitterness (IBU):", "Color (SRM):",
                             "Alcohol (% vol):"};
  for (int i = 0; i < 5; ++i) {
    auto* t = new QLabel(g);
    t->setObjectName(QString("lblTarget%1").arg(i));
    t->setAlignment(Qt::AlignCenter);
    t->setMinimumWidth(46);
    t->setToolTip("How the value stands against the chosen style: Low, OK or High");
    lblTarget[static_cast<size_t>(i)] = t;
    grid->addWidget(caption(captions[i]), i, 0);
    grid->addWidget(values[i], i, 1);
    grid->addWidget(t, i, 2);
  }
  lblCost = valueLabel(g, "lblCost", 80);
  grid->addWidget(caption("Estimated Cost:"), 5, 0);
  grid->addWidget(lblCost, 5, 1, 1, 2);
  picColor = new QLabel(g);
  picColor->setObjectName("picColor");
  picColor->setMinimumSize(70, 90);
  picColor->setFrameShape(QFrame::Box);
  picColor->setToolTip("The beer's colour, from its SRM");
  auto* side = new QVBoxLayout;
  side->addWidget(picColor, 1);
  auto* colourCaption = new QLabel("Color", g);
  colourCaption->setAlignment(Qt::AlignCenter);
  side->addWidget(colourCaption);
  grid->addLayout(side, 0, 3, 6, 1);
  grid->setColumnStretch(3, 1);
  return g;
}

QWidget* frmRecipe::buildGrid() {
  auto* row = new QWidget(this);
  auto* h = new QHBoxLayout(row);
  h->setContentsMargins(0, 0, 0, 0);
  grdIngredients = new QTableView(row);
  grdIngredients->setObjectName("grdIngredients");
  gridModel = new IngredientGridModel(editor_.sheet.grid, grdIngredients);
  grdIngredients->setModel(gridModel);
  grdIngredients->horizontalHeader()->hide();
  grdIngredients->verticalHeader()->hide();
  grdIngredients->verticalHeader()->setDefaultSectionSize(21);
  grdIngredients->setSelectionBehavior(QAbstractItemView::SelectRows);
  grdIngredients->setSelectionMode(QAbstractItemView::SingleSelection);
  grdIngredients->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grdIngredients->setTabKeyNavigation(false);  // Tab leaves the grid; the arrows move in it
  grdIngredients->setAlternatingRowColors(false);
  grdIngredients->setShowGrid(true);
  grdIngredients->setContextMenuPolicy(Qt::CustomContextMenu);
  QHeaderView* hh = grdIngredients->horizontalHeader();
  const int widths[8] = {160, 0, 70, 70, 78, 96, 72, 50};
  for (int c = 0; c < 8; ++c) {
    if (c == COL_NAME) hh->setSectionResizeMode(c, QHeaderView::Stretch);
    else grdIngredients->setColumnWidth(c, widths[c]);
  }
  grdIngredients->setMinimumHeight(21 * 12 + 4);  // a dozen rows; the window fits a small screen
  grdIngredients->installEventFilter(this);
  grdIngredients->setToolTip("Arrow keys choose an ingredient, Return edits its quantity, Delete removes it; "
                             "right click or the menu key to sort or move");
  connect(grdIngredients->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& cur) {
            if (painting_) return;
            editor_.selectRow(cur.isValid() ? cur.row() : -1);
            refreshStrip();
          });
  connect(grdIngredients, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
    const QModelIndex i = grdIngredients->indexAt(at);
    if (i.isValid()) selectGridRow(i.row());
    const bool item = editor_.sheet.grid.isItemRow(editor_.selectedRow);
    mnuSortUp->setEnabled(item && editor_.sheet.grid.isItemRow(editor_.selectedRow - 1));
    mnuSortDown->setEnabled(item && editor_.sheet.grid.isItemRow(editor_.selectedRow + 1));
    mnuSort->popup(grdIngredients->viewport()->mapToGlobal(at));
  });

  auto* buttons = new QVBoxLayout;
  buttons->setSpacing(4);
  const char* captions[4] = {"New M&alt", "Ne&w Hops", "New &Other", "New &Yeast"};
  for (int k = 0; k < 4; ++k) {
    auto* b = new QPushButton(captions[k], row);
    b->setObjectName(QString("cmdAddNew%1").arg(k));
    b->setToolTip(QString("Add a %1 with your default values").arg(k == 0 ? "malt" : k == 1 ? "hop" : k == 2 ? "other ingredient" : "yeast"));
    connect(b, &QPushButton::clicked, this, [this, k] {
      editor_.cmdAddNew_Click(k);
      afterEdit(true);
    });
    cmdAddNew[static_cast<size_t>(k)] = b;
    buttons->addWidget(b);
  }
  buttons->addSpacing(8);
  cmdAddIngredients = new QPushButton("From Inv&entory", row);
  cmdAddIngredients->setObjectName("cmdAddIngredients");
  toolWidgets_[static_cast<size_t>(RecipeTool::FromInventory)].push_back(cmdAddIngredients);
  connect(cmdAddIngredients, &QPushButton::clicked, this, [this] { runTool(RecipeTool::FromInventory); });
  buttons->addWidget(cmdAddIngredients);
  buttons->addSpacing(8);
  cmdDeleteIngredient = new QPushButton(recipeIcon("Delete"), "&Delete", row);
  cmdDeleteIngredient->setObjectName("cmdDeleteIngredient");
  cmdDeleteIngredient->setToolTip("Delete the selected ingredient from the recipe (the Delete key in the grid)");
  connect(cmdDeleteIngredient, &QPushButton::clicked, this, [this] {
    editor_.cmdDeleteIngredient_Click();
    afterEdit(true);
  });
  buttons->addWidget(cmdDeleteIngredient);
  buttons->addStretch();
  h->addWidget(grdIngredients, 1);
  h->addLayout(buttons);
  return row;
}

QWidget* frmRecipe::buildEditStrip() {
  fraEdits = new QGroupBox("Ingredient Characteristics", this);
  fraEdits->setObjectName("fraEdits");
  auto* grid = new QGridLayout(fraEdits);
  grid->setHorizontalSpacing(4);
  grid->setVerticalSpacing(3);
  auto edit = [this](const char* name, int width, bool money = false) {
    auto* e = new QLineEdit(fraEdits);
    e->setObjectName(name);
    e->setValidator(numberValidator(e, money));
    e->setAlignment(Qt::AlignRight);
    e->setFixedWidth(width);
    return e;
  };
  auto spinner = [this](const char* name, StripField f) {
    auto* u = new UpDown(fraEdits);
    u->setObjectName(name);
    connect(u, &UpDown::stepped, this, [this, f](int d) {
      editor_.spin(f, d);
      afterEdit();
    });
    return u;
  };
  auto keep = [](QWidget* w) {
    QSizePolicy p = w->sizePolicy();
    p.setRetainSizeWhenHidden(true);
    w->setSizePolicy(p);
  };
  txtItem = new QLineEdit(fraEdits);
  txtItem->setObjectName("txtItem");
  txtItem->setMaxLength(50);
  txtItem->setMinimumWidth(180);
  txtItem->setToolTip("The ingredient's name");
  txtQty = edit("txtQty", 64);
  txtQty->setContextMenuPolicy(Qt::CustomContextMenu);
  txtQty->setToolTip("Quantity; right click to step to the next or previous whole, half, quarter or tenth");
  udcQty = spinner("udcQty", StripField::Quantity);
  cboUnits = new QComboBox(fraEdits);
  cboUnits->setObjectName("cboUnits");
  cboUnits->setMinimumWidth(90);
  cboUnits->setToolTip("The unit of the quantity; for a malt or a hop a new unit converts the quantity and the cost");
  txtCost = edit("txtCost", 70, true);
  txtCost->setToolTip("Cost per unit");
  udcCost = spinner("udcCost", StripField::Cost);
  lblExtraction = new QLabel("Extraction Rating:", fraEdits);
  lblExtraction->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblExtraction->setMinimumWidth(lblExtraction->sizeHint().width());
  txtExtraction = edit("txtExtraction", 60);
  udcExtraction = spinner("udcExtraction", StripField::Extraction);
  lblExtPct = new QLabel(fraEdits);
  lblExtPct->setObjectName("lblExtPct");
  lblExtPct->setMinimumWidth(44);
  lblExtPct->setToolTip("The extraction rating as a share of the best malt's");
  lblColorCaption = new QLabel("Boil Time:", fraEdits);
  lblColorCaption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblColorCaption->setMinimumWidth(lblColorCaption->sizeHint().width());
  txtColor = edit("txtColor", 54);
  udcColor = spinner("udcColor", StripField::Color);
  chkMash = new QCheckBox("Mash:", fraEdits);
  chkMash->setObjectName("chkMash");
  chkMash->setLayoutDirection(Qt::RightToLeft);
  chkMash->setToolTip("The malt is mashed: its extract is thinned by the mash efficiency");
  for (QWidget* w : std::initializer_list<QWidget*>{lblExtraction, txtExtraction, udcExtraction, lblExtPct,
                                                    lblColorCaption, txtColor, udcColor, chkMash})
    keep(w);

  // Two lines: what the ingredient is and what it costs, then what it gives the beer.
  grid->addWidget(caption("In&gredient:", txtItem), 0, 0);
  grid->addWidget(txtItem, 0, 1, 1, 3);
  grid->addWidget(caption("&Quantity:", txtQty), 0, 4);
  grid->addWidget(txtQty, 0, 5);
  grid->addWidget(udcQty, 0, 6);
  grid->addWidget(cboUnits, 0, 7);
  grid->addWidget(caption("&Cost/Unit:", txtCost), 0, 8);
  grid->addWidget(txtCost, 0, 9);
  grid->addWidget(udcCost, 0, 10);
  grid->addWidget(lblExtraction, 1, 0);
  grid->addWidget(txtExtraction, 1, 1);
  grid->addWidget(udcExtraction, 1, 2);
  grid->addWidget(lblExtPct, 1, 3);
  grid->addWidget(lblColorCaption, 1, 4);
  grid->addWidget(txtColor, 1, 5);
  grid->addWidget(udcColor, 1, 6);
  grid->addWidget(chkMash, 1, 7, Qt::AlignLeft);
  grid->setColumnStretch(3, 1);
  grid->setColumnStretch(11, 1);

  connect(txtItem, &QLineEdit::textEdited, this, [this](const QString& t) {
    editor_.setItemName(s8(t));
    afterEdit();
  });
  connect(txtQty, &QLineEdit::textEdited, this, [this](const QString& t) {
    editor_.setQuantity(s8(t));
    afterEdit();
  });
  connect(txtCost, &QLineEdit::textEdited, this, [this](const QString& t) {
    editor_.setCost(s8(t));
    afterEdit();
  });
  connect(txtExtraction, &QLineEdit::textEdited, this, [this](const QString& t) {
    editor_.setExtraction(s8(t));
    afterEdit();
  });
  connect(txtColor, &QLineEdit::textEdited, this, [this](const QString& t) {
    editor_.setColor(s8(t));
    afterEdit();
  });
  // Leaving a box shows its number as the grid holds it.
  for (QLineEdit* e : {txtQty, txtCost, txtExtraction, txtColor})
    connect(e, &QLineEdit::editingFinished, this, [this] {
      if (editor_.selectedRow >= 0) editor_.selectRow(editor_.selectedRow);
      refreshStrip();
    });
  connect(cboUnits, &QComboBox::activated, this, [this](int i) {
    editor_.setUnits(i);
    afterEdit();
  });
  connect(chkMash, &QCheckBox::clicked, this, [this](bool on) {
    editor_.setMash(on);
    afterEdit();
  });
  connect(txtQty, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
    if (editor_.sheet.grid.isItemRow(editor_.selectedRow)) mnuQty->popup(txtQty->mapToGlobal(at));
  });
  for (QLineEdit* e : {txtItem, txtQty, txtCost, txtExtraction, txtColor}) e->installEventFilter(this);
  return fraEdits;
}

bool frmRecipe::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QMainWindow::eventFilter(watched, event);
  const auto* k = static_cast<QKeyEvent*>(event);
  const int key = k->key();
  const bool plain = (k->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool itemRow = editor_.sheet.grid.isItemRow(editor_.selectedRow);
  if (watched == grdIngredients && plain) {
    if (key == Qt::Key_Delete && itemRow) {
      cmdDeleteIngredient->click();
      return true;
    }
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && itemRow) {
      txtQty->setFocus(Qt::TabFocusReason);
      txtQty->selectAll();
      return true;
    }
    if (key == Qt::Key_Menu) {
      const QRect r = grdIngredients->visualRect(gridModel->index(std::max(editor_.selectedRow, 0), COL_NAME));
      emit grdIngredients->customContextMenuRequested(r.center());
      return true;
    }
    return false;
  }
  // In a box of the strip, Return settles the value and goes back to the grid, and so does Esc.
  if (watched != grdIngredients && plain && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape)) {
    auto* box = qobject_cast<QLineEdit*>(watched);
    if (!box) return false;
    if (key != Qt::Key_Escape) emit box->editingFinished();
    grdIngredients->setFocus(Qt::OtherFocusReason);
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

// ---- Tools -----------------------------------------------------------------------------------------

void frmRecipe::setToolOpener(RecipeTool t, std::function<void()> open) {
  openers_[static_cast<size_t>(t)] = std::move(open);
  showToolStates();
}

void frmRecipe::runTool(RecipeTool t) {
  auto& open = openers_[static_cast<size_t>(t)];
  if (open) open();
}

void frmRecipe::showToolStates() {
  for (size_t i = 0; i < openers_.size(); ++i) {
    const bool present = static_cast<bool>(openers_[i]);
    bool on = present;
    if (static_cast<RecipeTool>(i) == RecipeTool::MashInfo) on = on && editor_.mashInfoEnabled;
    QString tip = present ? toolInfo()[i].tip : toolInfo()[i].missing;
    if (present && !on) tip = "Mash Information needs a recipe with a mash";
    // The water management button follows the mash type as the mash button does; its menu
    // entry stays open for a recipe without a mash.
    const bool waterButton = static_cast<RecipeTool>(i) == RecipeTool::WaterMgmt;
    const bool buttonOn = waterButton ? on && editor_.mashInfoEnabled : on;
    for (QAction* a : toolActions_[i]) {
      const bool isButton = waterButton && a == tb["WaterMgmt"];
      a->setEnabled(isButton ? buttonOn : on);
      setTip(a, isButton && on && !buttonOn ? QString("Water Management from the toolbar needs a recipe with a mash")
                                            : tip);
    }
    for (QWidget* w : toolWidgets_[i]) {
      w->setEnabled(on);
      w->setToolTip(tip);
    }
  }
}

// ---- Painting from the model ------------------------------------------------------------------------

void frmRecipe::refreshFromModel() {
  painting_ = true;
  refreshTitle();
  gridModel->reset();
  if (editor_.selectedRow >= 0) grdIngredients->selectRow(editor_.selectedRow);
  painting_ = false;
  refreshResults();
  refreshStrip();
  showToolStates();
  refreshSaveButton();
}

void frmRecipe::refreshTitle() {
  const RecipeEditor& e = editor_;
  setTextIfChanged(txtTitle, e.txtTitle);
  if (cboRecipeType->count() != static_cast<int>(e.recipeTypes.size())) {
    cboRecipeType->clear();
    for (const std::string& t : e.recipeTypes) cboRecipeType->addItem(qs(t));
  }
  cboRecipeType->setCurrentIndex(e.cboRecipeType);
  // The style list is rebuilt whenever its entries differ (a filter, a new load).
  bool same = cboBeerStyle->count() == static_cast<int>(e.styleList.size());
  for (int i = 0; same && i < cboBeerStyle->count(); ++i)
    same = cboBeerStyle->itemText(i) == qs(e.styleList[static_cast<size_t>(i)].text);
  if (!same) {
    cboBeerStyle->clear();
    for (const StyleListEntry& s : e.styleList) cboBeerStyle->addItem(qs(s.text));
  }
  cboBeerStyle->setPlaceholderText(qs(e.cboBeerStyleText));
  cboBeerStyle->setCurrentIndex(e.cboBeerStyle);
  setTextIfChanged(txtFermentVolume, e.sheet.txtFermentVolume);
  setTextIfChanged(txtInitalBoilVolume, e.sheet.txtInitalBoilVolume);
  lblFermentUnits->setText(qs(e.lblVolumeUnits));
  lblBoilUnits->setText(qs(e.lblVolumeUnits));
  lblUnitType->setText(qs(e.lblUnitType));
  lblMashType->setText(qs(e.lblMashType));
  lblMashEff->setText(qs(e.lblMashEff));
  lblBoilTime->setText(qs(e.txtBoilTime));
}

void frmRecipe::refreshResults() {
  const RecipeSheet& s = editor_.sheet;
  lblOG->setText(qs(s.lblOG));
  lblFG->setText(qs(s.lblFG));
  lblIBU->setText(qs(s.lblIBU));
  lblColor->setText(qs(s.lblColor));
  lblAlcohol->setText(qs(s.lblAlcohol));
  lblCost->setText(qs(s.grid.cell(s.grid.totalRow(), COL_COST)));
  for (size_t i = 0; i < lblTarget.size(); ++i) {
    lblTarget[i]->setText(qs(s.targets[i].text));
    lblTarget[i]->setStyleSheet(targetStyle(s.targets[i]));
  }
  const QColor beer(s.picColor.r, s.picColor.g, s.picColor.b);
  picColor->setStyleSheet(QString("QLabel { background: %1; border: 1px solid #555; border-radius: 4px; }").arg(beer.name()));
  gridModel->textsChanged();
}

void frmRecipe::refreshStrip() {
  const EditStrip& s = editor_.strip;
  fraEdits->setEnabled(s.visible);
  setTextIfChanged(txtItem, s.txtItem);
  setTextIfChanged(txtQty, s.txtQty);
  setTextIfChanged(txtCost, s.txtCost);
  setTextIfChanged(txtExtraction, s.txtExtraction);
  setTextIfChanged(txtColor, s.txtColor);
  bool same = cboUnits->count() == static_cast<int>(s.unitList.size());
  for (int i = 0; same && i < cboUnits->count(); ++i) same = cboUnits->itemText(i) == qs(s.unitList[static_cast<size_t>(i)]);
  if (!same) {
    cboUnits->clear();
    for (const std::string& u : s.unitList) cboUnits->addItem(qs(u));
  }
  cboUnits->setCurrentIndex(s.cboUnits);
  chkMash->setChecked(s.chkMash);
  lblExtraction->setText(qs(s.lblExtraction.empty() ? "Extraction Rating:" : s.lblExtraction));
  lblColorCaption->setText(qs(s.lblColor.empty() ? "Color:" : s.lblColor));
  lblExtPct->setText(qs(s.lblExtPct));
  const bool all = !s.visible;  // an empty strip shows every box, disabled
  for (QWidget* w : {static_cast<QWidget*>(lblExtraction), static_cast<QWidget*>(txtExtraction),
                     static_cast<QWidget*>(udcExtraction)})
    w->setVisible(all || s.showExtraction);
  for (QWidget* w : {static_cast<QWidget*>(lblColorCaption), static_cast<QWidget*>(txtColor),
                     static_cast<QWidget*>(udcColor)})
    w->setVisible(all || s.showColor);
  chkMash->setVisible(all || s.showMash);
  lblExtPct->setVisible(s.showExtPct);
  cmdDeleteIngredient->setEnabled(s.visible);
  const int kind = editor_.selectedKind;
  txtExtraction->setToolTip(kind == KIND_HOPS    ? "Alpha acid percentage"
                            : kind == KIND_YEAST ? "Apparent attenuation in percent"
                                                 : "Extraction rating: the gravity of a pound in a gallon");
  txtColor->setToolTip(kind == KIND_HOPS ? "Boil time in minutes" : "Colour in degrees Lovibond");
}

void frmRecipe::refreshSaveButton() {
  const QIcon icon = recipeIcon(qs(editor_.saveButtonImage()));
  const QString tip = qs(editor_.saveButtonTip());
  QAction* save = tb["Save"];
  save->setIcon(icon);
  save->setToolTip(tip);
  save->setStatusTip(tip);
  mnuFileSave->setIcon(icon);
  // The recipe's name and state also stand in the status line.
  statusBar()->showMessage(qs(editor_.txtTitle) + (editor_.recipeChanged() ? " - changed" : ""));
}

void frmRecipe::afterEdit(bool rowsChanged) {
  if (rowsChanged) {
    painting_ = true;
    gridModel->reset();
    if (editor_.selectedRow >= 0) {
      grdIngredients->selectRow(editor_.selectedRow);
      grdIngredients->scrollTo(gridModel->index(editor_.selectedRow, 0));
    }
    painting_ = false;
  }
  refreshResults();
  refreshStrip();
  refreshSaveButton();
}

void frmRecipe::selectGridRow(int row) {
  grdIngredients->setFocus();
  grdIngredients->selectRow(row);
  grdIngredients->setCurrentIndex(gridModel->index(row, COL_NAME));
  if (editor_.selectedRow != row) {
    editor_.selectRow(row);
    refreshStrip();
  }
}

// ---- Saving and closing ------------------------------------------------------------------------------

bool frmRecipe::mnuFileSave_Click() {
  const bool ok = editor_.mnuFileSave_Click();
  refreshTitle();
  refreshSaveButton();
  return ok;
}

bool frmRecipe::mnuFileSaveAs_Click() {
  const bool ok = editor_.mnuFileSaveAs_Click();
  refreshTitle();
  refreshSaveButton();
  return ok;
}

void frmRecipe::closeEvent(QCloseEvent* event) {
  // While the program closes the question still comes, but nothing keeps the window open.
  if (!editor_.queryClose() && !wb_.appClosing) {
    event->ignore();
    return;
  }
  refreshSaveButton();
  emit closed();
  saveWindowPlacement(*this, wb_.settings, kSection);
  hideUnlessAppClosing(*this, wb_, event);
}

}  // namespace zy
