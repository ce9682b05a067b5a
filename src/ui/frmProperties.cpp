#include "ui/frmProperties.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "core/numfmt.h"
#include "core/paths.h"
#include "core/text.h"
#include "ui/QtPrompter.h"

namespace zy {

namespace {

std::string el(const char* control, int i) { return std::string(control) + "(" + std::to_string(i) + ")"; }

// Characters a formatted number may show besides those the key filter lets through: the money
// sign, digit grouping and the brackets of a negative amount.
bool formattingChar(QChar c) { return c == '$' || c == ',' || c == '(' || c == ')'; }

QLabel* header(const QString& text) {
  auto* l = new QLabel("<b>" + text + "</b>");
  l->setAlignment(Qt::AlignCenter);
  return l;
}

QGroupBox* group(const QString& title, QLayout* layout) {
  auto* g = new QGroupBox(title);
  g->setLayout(layout);
  return g;
}

// A row of a form: the caption, the box and its unit behind it.
void addUnitRow(QFormLayout* form, const QString& caption, QLineEdit* edit, const QString& unit) {
  auto* h = new QHBoxLayout;
  h->addWidget(edit);
  h->addWidget(new QLabel(unit));
  h->addStretch();
  form->addRow(caption, h);
}

bool isIonField(const std::string& name) {
  return name == "txtCa" || name == "txtCl" || name == "txtCO3" || name == "txtMg" || name == "txtNa" ||
         name == "txtSO4";
}

}  // namespace

frmProperties::frmProperties(Workbench& wb, QWidget* parent) : QDialog(parent), wb_(wb) {
  setObjectName("frmProperties");
  setWindowTitle(tr("Properties"));
  setModal(true);

  tbsOptions = new QTabWidget;
  tbsOptions->setObjectName("tbsOptions");
  tbsOptions->setUsesScrollButtons(false);  // all seven pages in sight
  const auto& captions = PropertiesModel::pageCaptions();
  QWidget* pages[7] = {buildUserPage(),      buildUnitsPage(), buildRecipePage(),   buildIncrementsPage(),
                       buildWaterPage(),     buildTreatmentPage(), buildQuillmarkPage()};
  for (int i = 0; i < 7; ++i) tbsOptions->addTab(pages[i], qs(captions[i]));
  for (const auto& f : PropertiesModel::fields()) fieldPage_[f.name] = f.page;

  cmdOK = new QPushButton(tr("OK"));
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  cmdOK->setToolTip(tr("Keep the changes of all pages and close"));
  cmdCancel = new QPushButton(tr("Cancel"));
  cmdCancel->setObjectName("cmdCancel");
  cmdCancel->setToolTip(tr("Close and forget the changes made since the last Apply"));
  cmdApply = new QPushButton(tr("&Apply"));
  cmdApply->setObjectName("cmdApply");
  cmdApply->setToolTip(tr("Keep the changes of all pages and stay in this window"));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);
  buttons->addWidget(cmdApply);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tbsOptions);
  layout->addLayout(buttons);

  connect(cmdOK, &QPushButton::clicked, this, [this] {
    if (apply()) accept();
  });
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(cmdApply, &QPushButton::clicked, this, [this] { apply(); });
  connect(cmdResetRecipe, &QPushButton::clicked, this, [this] {
    model.cmdResetRecipe();
    refresh();
  });
  connect(cmdResetIngr, &QPushButton::clicked, this, [this] {
    model.cmdResetIngr();
    refresh();
  });
  connect(cmdResetWater, &QPushButton::clicked, this, [this] {
    model.cmdResetWater();
    refresh();
  });
  connect(cmdBrowse, &QPushButton::clicked, this, &frmProperties::browseQuillmark);

  loadFromDefaults();
  tbsOptions->setCurrentIndex(0);
  adjustSize();
  setMinimumSize(sizeHint());
}

// ---- controls ----------------------------------------------------------------------------------

QLineEdit* frmProperties::makeEdit(const std::string& name, const QString& tip, int width) {
  auto* e = new QLineEdit;
  e->setObjectName(QString::fromStdString(name));
  for (const auto& f : PropertiesModel::fields())
    if (f.name == name) {
      e->setMaxLength(f.maxLength);
      if (!f.format.empty()) e->setAlignment(Qt::AlignRight);
    }
  if (width > 0) e->setFixedWidth(width);
  if (!tip.isEmpty()) e->setToolTip(tip);
  e->installEventFilter(this);
  connect(e, &QLineEdit::textEdited, this, [this, e, name](const QString& t) {
    if (PropertiesModel::isNumericField(name)) {
      // Pasted or dropped text goes through the same filter as typed keys.
      QString kept;
      for (QChar c : t) {
        int key = c.unicode() < 256 ? c.unicode() : 0;
        if ((key && numericKey(key, false) != 0) || formattingChar(c)) kept += c;
      }
      if (kept != t) {
        int pos = e->cursorPosition() - (t.size() - kept.size());
        e->setText(kept);
        e->setCursorPosition(std::max(0, pos));
        wb_.prompter.beep();
      }
    }
    model.text(name) = s8(e->text());
  });
  edits_[name] = e;
  return e;
}

QCheckBox* frmProperties::makeCheck(const std::string& name, const QString& caption, const QString& tip) {
  auto* c = new QCheckBox(caption);
  c->setObjectName(QString::fromStdString(name));
  if (!tip.isEmpty()) c->setToolTip(tip);
  connect(c, &QCheckBox::clicked, this, [this, c, name](bool on) {
    if (refreshing_) return;
    model.check(name) = on ? 1 : 0;
    if (name == "chkActivateQuillmark") chkActivateQuillmark_Click();
    (void)c;
  });
  checks_[name] = c;
  return c;
}

QComboBox* frmProperties::makeCombo(const std::string& name, const QString& tip) {
  auto* c = new QComboBox;
  c->setObjectName(QString::fromStdString(name));
  for (const std::string& e : PropertiesModel::comboEntries(name)) c->addItem(qs(e));
  if (startsWith(name, "cbo") && !startsWith(name, "cboPosition") && !startsWith(name, "cboFontSize"))
    c->setMinimumWidth(200);
  if (!tip.isEmpty()) c->setToolTip(tip);
  // `activated` comes from the user only, never from the window filling its lists.
  connect(c, &QComboBox::activated, this, [this, name](int index) {
    if (refreshing_) return;
    if (name == "cboUnitType") {
      model.cboUnitType_Click(index, wb_.prompter);
      refresh();
      return;
    }
    model.combo(name) = index;
    refresh();
  });
  combos_[name] = c;
  return c;
}

QLineEdit* frmProperties::field(const std::string& name) const {
  auto it = edits_.find(name);
  return it == edits_.end() ? nullptr : it->second;
}
QCheckBox* frmProperties::checkBox(const std::string& name) const {
  auto it = checks_.find(name);
  return it == checks_.end() ? nullptr : it->second;
}
QComboBox* frmProperties::comboBox(const std::string& name) const {
  auto it = combos_.find(name);
  return it == combos_.end() ? nullptr : it->second;
}

// ---- pages ---------------------------------------------------------------------------------------

QWidget* frmProperties::buildUserPage() {
  auto* page = new QWidget;
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->addRow(tr("&Name:"), makeEdit("txtUserName", tr("Your name, as printed on reports")));
  form->addRow(tr("&Initials:"), makeEdit("txtInitials", tr("Up to three letters"), 60));
  form->addRow(tr("&Company:"), makeEdit("txtCompany", tr("Your club, brewpub or company")));
  form->addRow(tr("&Phone:"), makeEdit("txtPhone", tr("Your phone number")));
  form->addRow(tr("&E-Mail:"), makeEdit("txtEMail", tr("Your e-mail address")));
  auto* v = new QVBoxLayout(page);
  v->addWidget(group(tr("About You"), form));
  v->addWidget(makeCheck("chkAutoUpdate", "Automatically Check for Zythara Updates",
                         tr("Ask the Zythara web server for a newer version every five days")));
  v->addStretch();
  return page;
}

QWidget* frmProperties::buildUnitsPage() {
  auto* page = new QWidget;
  auto* form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  form->addRow(tr("&Unit System:"), makeCombo("cboUnitType", tr("The measurement system of new recipes")));
  auto* recipeType = makeCombo("cboRecipeType", tr("New recipes always start as this type"));
  recipeType->setEnabled(false);
  form->addRow(tr("Recipe Type:"), recipeType);
  form->addRow(tr("&Volume:"), makeCombo("cboVolumeUnits", tr("Unit of the batch volumes")));
  form->addRow(tr("&Malt:"), makeCombo("cboMaltUnits", tr("Weight unit of malt and other grains")));
  form->addRow(tr("&Hops:"), makeCombo("cboHopsUnits", tr("Weight unit of hops")));
  form->addRow(tr("&Other Ingredients:"), makeCombo("cboOtherUnits", tr("Unit of spices, finings, sugars ...")));
  form->addRow(tr("&Yeast:"), makeCombo("cboYeastUnits", tr("How yeast is counted")));
  form->addRow(tr("Su&pplies:"), makeCombo("cboSupplyUnits", tr("Unit of supplies (for this session only)")));
  form->addRow(tr("&Sparge Water:"), makeCombo("cboSpargeUnits", tr("Volume unit of the sparge water")));
  auto* exp = new QVBoxLayout;
  exp->addWidget(makeCheck("chkShortNames", tr("Short &File Names (8 characters)"),
                           tr("Propose export file names of at most eight characters")));
  exp->addWidget(makeCheck("chkUnixNames", tr("U&nix File Names (underscores for blanks)"),
                           tr("Propose export file names without blanks")));
  exp->addWidget(makeCheck("chkIncludeCost", tr("Include &Costs in Exported Recipes"),
                           tr("Write ingredient prices into exported recipe files")));
  auto* v = new QVBoxLayout(page);
  v->addWidget(group(tr("Measurement Units"), form));
  v->addWidget(group(tr("Recipe Export"), exp));
  v->addStretch();
  return page;
}

QWidget* frmProperties::buildRecipePage() {
  auto* page = new QWidget;
  auto* top = new QGridLayout;
  auto unitLabel = [](QList<QLabel*>& list) {
    auto* l = new QLabel;
    l->setMinimumWidth(90);
    list << l;
    return l;
  };
  top->addWidget(new QLabel(tr("Mash Efficiency:")), 0, 0);
  top->addWidget(makeEdit("txtMashEfficiency", tr("Percent of the malt's extract your system collects"), 80), 0, 1);
  top->addWidget(new QLabel("%"), 0, 2);
  top->addWidget(new QLabel(tr("Boil Time:")), 1, 0);
  top->addWidget(makeEdit("txtBoilTime", tr("Minutes"), 80), 1, 1);
  top->addWidget(new QLabel(tr("minutes")), 1, 2);
  top->addWidget(new QLabel(tr("Initial Boil Volume:")), 0, 3);
  top->addWidget(makeEdit("txtInitialBoilVolume", tr("The wort you start the boil with"), 80), 0, 4);
  top->addWidget(unitLabel(volumeUnitLabels_), 0, 5);
  top->addWidget(new QLabel(tr("Fermenter Volume:")), 1, 3);
  top->addWidget(makeEdit("txtFermentVolume", tr("The batch size in the fermenter"), 80), 1, 4);
  top->addWidget(unitLabel(volumeUnitLabels_), 1, 5);
  top->setColumnStretch(6, 1);
  top->setColumnMinimumWidth(2, 50);

  auto* grid = new QGridLayout;
  const QStringList heads = {tr("Name"), tr("Quantity"), tr("Unit Cost"), tr("Extraction<br>Alpha %<br>Atten. %"),
                             tr("Color<br>Boil Time")};
  for (int c = 0; c < heads.size(); ++c) grid->addWidget(header(heads[c]), 0, c + 1, Qt::AlignBottom);
  grid->addWidget(header(tr("Mash")), 0, 6, Qt::AlignBottom);
  struct Row {
    const char* control;
    QString caption;
    int count;
    QStringList tips;
  };
  const Row rows[] = {
      {"txtMaltDef", tr("Malt:"), 5,
       {tr("Name of a new malt"), tr("Quantity of a new malt"), tr("Cost per unit of weight"),
        tr("Extraction rating: the gravity of one pound in one gallon"), tr("Colour in degrees Lovibond")}},
      {"txtHopsDef", tr("Hops:"), 5,
       {tr("Name of new hops"), tr("Quantity of new hops"), tr("Cost per unit of weight"), tr("Alpha acid in percent"),
        tr("Boil time in minutes")}},
      {"txtOtherDef", tr("Other:"), 3,
       {tr("Name of a new other ingredient"), tr("Quantity"), tr("Cost per unit")}},
      {"txtYeastDef", tr("Yeast:"), 4,
       {tr("Name of a new yeast"), tr("Quantity"), tr("Cost per unit"), tr("Apparent attenuation in percent")}},
      {"txtSupplyDef", tr("Supplies:"), 3, {tr("Name of a new supply item"), tr("Quantity"), tr("Cost per unit")}},
  };
  int r = 1;
  for (const Row& row : rows) {
    grid->addWidget(new QLabel(row.caption), r, 0);
    for (int i = 0; i < row.count; ++i)
      grid->addWidget(makeEdit(el(row.control, i), row.tips.value(i), i == 0 ? 0 : 80), r, i + 1);
    if (r == 1) grid->addWidget(makeCheck("chkMash", {}, tr("New malts must be mashed")), r, 6, Qt::AlignCenter);
    ++r;
  }
  grid->setColumnStretch(1, 1);
  auto* maltUnits = new QHBoxLayout;
  auto* mu = new QLabel;
  mu->setObjectName("lblWeightUnits");
  weightUnitsLabel_ = mu;
  maltUnits->addWidget(mu);
  maltUnits->addStretch();
  auto* gv = new QVBoxLayout;
  gv->addLayout(grid);
  gv->addLayout(maltUnits);

  cmdResetRecipe = new QPushButton(tr("&Reset Defaults"));
  cmdResetRecipe->setObjectName("cmdResetRecipe");
  cmdResetRecipe->setToolTip(tr("Put this page back to the program's values for the chosen unit system"));
  auto* v = new QVBoxLayout(page);
  v->addWidget(group(tr("New Recipes"), top));
  v->addWidget(group(tr("New Ingredients"), gv));
  v->addStretch();
  v->addWidget(cmdResetRecipe, 0, Qt::AlignRight);
  return page;
}

QWidget* frmProperties::buildIncrementsPage() {
  auto* page = new QWidget;
  auto* grid = new QGridLayout;
  const QStringList heads = {tr("Quantity"), tr("Unit Cost"), tr("Extraction<br>Alpha %<br>Atten. %"),
                             tr("Color<br>Boil Time")};
  for (int c = 0; c < heads.size(); ++c) grid->addWidget(header(heads[c]), 0, c + 1, Qt::AlignBottom);
  struct Row {
    const char* control;
    QString caption;
    int count;
  };
  const Row rows[] = {{"txtMaltIncr", tr("Malt:"), 4},   {"txtHopsIncr", tr("Hops:"), 4},
                      {"txtOtherIncr", tr("Other:"), 2}, {"txtYeastIncr", tr("Yeast:"), 3},
                      {"txtSupplyIncr", tr("Supplies:"), 2}};
  int r = 1;
  for (const Row& row : rows) {
    grid->addWidget(new QLabel(row.caption), r, 0);
    for (int i = 0; i < row.count; ++i)
      grid->addWidget(makeEdit(el(row.control, i), tr("One click of the up or down button moves the number by this much"),
                               100),
                      r, i + 1);
    ++r;
  }
  grid->setColumnStretch(5, 1);
  auto* note = new QLabel(tr("The steps of the up and down buttons beside each number of the recipe window."));
  note->setWordWrap(true);
  cmdResetIngr = new QPushButton(tr("&Reset Defaults"));
  cmdResetIngr->setObjectName("cmdResetIngr");
  cmdResetIngr->setToolTip(tr("Put the program's steps back"));
  auto* v = new QVBoxLayout(page);
  v->addWidget(note);
  v->addWidget(group(tr("Ingredient Increments"), grid));
  v->addStretch();
  v->addWidget(cmdResetIngr, 0, Qt::AlignRight);
  return page;
}

QWidget* frmProperties::buildWaterPage() {
  auto* page = new QWidget;
  auto* form = new QFormLayout;
  auto row = [&](const QString& caption, const std::string& name, const QString& tip, const QString& unit) {
    addUnitRow(form, caption, makeEdit(name, tip, 80), unit);
  };
  row(tr("Evaporation Rate:"), "txtEvaporationRate", tr("Share of the wort boiled away each hour"), tr("% per hour"));
  row(tr("Mash Water per Lb:"), "txtMashPerLb", tr("Strike water for each pound of grain"), tr("volume per lb"));
  row("Water Absorbtion:", "txtWaterAbsorbtion", tr("Water kept by each pound of spent grain"), tr("volume per lb"));
  row(tr("Sparge Rate:"), "txtSpargeRate", tr("Sparge water for each pound of grain"), tr("volume per lb"));
  row(tr("Left In Kettle:"), "txtLeftInKettle", tr("Wort left behind with the hops and trub"), tr("volume"));
  row(tr("Kettle Capacity:"), "txtKettleCapacity", tr("The most your kettle can boil"), tr("volume"));
  auto* checks = new QVBoxLayout;
  checks->addWidget(makeCheck("chkHoldInitialVolume", tr("Hold &Initial Volume"),
                              tr("Add water to keep the boil volume at its target")));
  checks->addWidget(makeCheck("chkHoldFinalVolume", tr("Hold &Final Volume"),
                              tr("Add water to keep the fermenter volume at its target")));
  checks->addWidget(makeCheck("chkFullBoil", tr("F&ull Boil (Add to Primary=0)"),
                              tr("The whole batch is boiled; no water is added to the fermenter")));
  cmdResetWater = new QPushButton(tr("&Reset Defaults"));
  cmdResetWater->setObjectName("cmdResetWater");
  cmdResetWater->setToolTip(tr("Put this page back to the program's values"));
  auto* v = new QVBoxLayout(page);
  v->addWidget(group(tr("Your Brewing System"), form));
  v->addWidget(group(tr("Water Calculator"), checks));
  v->addStretch();
  v->addWidget(cmdResetWater, 0, Qt::AlignRight);
  return page;
}

QWidget* frmProperties::buildTreatmentPage() {
  auto* page = new QWidget;
  auto* grid = new QGridLayout;
  const char* ions[6][2] = {{"txtCa", "Calcium (Ca):"}, {"txtMg", "Magnesium (Mg):"}, {"txtNa", "Sodium (Na):"},
                            {"txtCl", "Chloride (Cl):"}, {"txtSO4", "Sulfate (SO4):"}, {"txtCO3", "Carbonate (CO3):"}};
  for (int i = 0; i < 6; ++i) {
    int r = i % 3, c = (i / 3) * 3;
    grid->addWidget(new QLabel(tr(ions[i][1])), r, c);
    grid->addWidget(makeEdit(ions[i][0], tr("Parts per million (mg/l) in your tap water"), 70), r, c + 1);
    grid->addWidget(new QLabel("ppm"), r, c + 2);
  }
  grid->setColumnMinimumWidth(2, 50);
  grid->setColumnStretch(6, 1);
  auto* form = new QFormLayout;
  auto row = [&](const QString& caption, const std::string& name, const QString& tip, const QString& unit) {
    addUnitRow(form, caption, makeEdit(name, tip, 70), unit);
  };
  row(tr("Gram Increment:"), "txtGramInc", tr("Step of the salt buttons when weighing in grams"), tr("grams"));
  row(tr("Tsp Increment:"), "txtTspInc", tr("Step of the salt buttons when measuring by the teaspoon"), tr("tsp"));
  row(tr("Threshold:"), "txtThreshold", tr("How far a result may lie from the target and still read OK"), "%");
  auto* v = new QVBoxLayout(page);
  v->addWidget(group(tr("Local Water Profile"), grid));
  v->addWidget(group(tr("Salt Additions"), form));
  v->addStretch();
  return page;
}

QWidget* frmProperties::buildQuillmarkPage() {
  auto* page = new QWidget;
  auto* pathRow = new QHBoxLayout;
  auto* pathLabel = new QLabel(tr("Program &Path:"));
  auto* path = makeEdit("txtQuillmarkPath", tr("Where the Quillmark label program is installed"));
  pathLabel->setBuddy(path);
  cmdBrowse = new QPushButton(tr("&Browse..."));
  cmdBrowse->setObjectName("cmdBrowse");
  cmdBrowse->setToolTip(tr("Find the label program yourself"));
  pathRow->addWidget(pathLabel);
  pathRow->addWidget(path, 1);
  pathRow->addWidget(cmdBrowse);

  auto* grid = new QGridLayout;
  grid->addWidget(header(tr("Include")), 0, 0, Qt::AlignLeft);
  grid->addWidget(header(tr("Position")), 0, 1);
  grid->addWidget(header(tr("Font Size")), 0, 2);
  const char* checks[5] = {"chkTitleText", "chkLabelText", "chkExtraText", "chkDate", "chkIDCode"};
  const QString captions[5] = {tr("Title"), tr("Label Text"), tr("Extra Text"), tr("Date"), tr("ID Code")};
  for (int i = 0; i < 5; ++i) {
    auto* c = makeCheck(checks[i], captions[i], tr("Print this on the label"));
    auto* pos = makeCombo(el("cboPosition", i), tr("Where on the label"));
    auto* size = makeCombo(el("cboFontSize", i), tr("Font size in points"));
    grid->addWidget(c, i + 1, 0);
    grid->addWidget(pos, i + 1, 1);
    grid->addWidget(size, i + 1, 2);
    quillmarkRows_ << c << pos << size;
  }
  auto* extraLabel = new QLabel(tr("E&xtra Text:"));
  auto* extra = makeEdit("txtExtra", tr("The extra text printed on the label"));
  extraLabel->setBuddy(extra);
  grid->addWidget(extraLabel, 6, 0);
  grid->addWidget(extra, 6, 1, 1, 3);
  grid->setColumnStretch(3, 1);
  quillmarkRows_ << extraLabel << extra;

  auto* v = new QVBoxLayout(page);
  v->addWidget(makeCheck("chkActivateQuillmark", tr("Activate &Quillmark Label Program"),
                         tr("Offer the label program in the View menu")));
  v->addLayout(pathRow);
  v->addWidget(group(tr("Auto-Generated Label"), grid));
  v->addStretch();
  return page;
}

// ---- behaviour -------------------------------------------------------------------------------------

void frmProperties::loadFromDefaults() {
  model.fillFromDefaults(wb_.defaults);
  refresh();
}

void frmProperties::refresh() {
  refreshing_ = true;
  for (auto& [name, e] : edits_) {
    QString t = qs(model.text(name));
    if (e->text() != t) e->setText(t);
  }
  for (auto& [name, c] : checks_) c->setChecked(model.check(name) != 0);
  for (auto& [name, c] : combos_) {
    int i = model.combo(name);
    c->setCurrentIndex(i >= 0 && i < c->count() ? i : -1);
  }
  for (QLabel* l : volumeUnitLabels_) l->setText(qs(model.comboText("cboVolumeUnits")));
  for (QLabel* l : spargeUnitLabels_) l->setText(qs(model.comboText("cboSpargeUnits")));
  weightUnitsLabel_->setText(tr("Quantities of malt in %1, of hops in %2.")
                                 .arg(qs(model.comboText("cboMaltUnits")), qs(model.comboText("cboHopsUnits"))));
  enableQuillmarkRows();
  refreshing_ = false;
}

void frmProperties::enableQuillmarkRows() {
  const bool on = model.check("chkActivateQuillmark") != 0;
  for (QWidget* w : quillmarkRows_) w->setEnabled(on);
}

bool frmProperties::eventFilter(QObject* watched, QEvent* event) {
  auto* edit = qobject_cast<QLineEdit*>(watched);
  if (!edit) return QDialog::eventFilter(watched, event);
  const std::string name = edit->objectName().toStdString();
  if (event->type() == QEvent::KeyPress) {
    auto* ke = static_cast<QKeyEvent*>(event);
    if (ke->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
    const QString t = ke->text();
    if (t.size() != 1 || !PropertiesModel::isNumericField(name)) return false;
    const QChar c = t[0];
    // Enter, Tab, Escape and Delete (127 on some keyboards) go their way.
    if ((c.unicode() < 32 && c.unicode() != 8) || c.unicode() == 127) return false;
    const int key = c.unicode() < 256 ? c.unicode() : 'x';
    if (model.filterKey(name, key, &wb_.prompter) == 0) return true;  // swallowed, beeped
    return false;
  }
  if (event->type() == QEvent::FocusOut) leaveField(edit);
  return false;
}

void frmProperties::leaveField(QLineEdit* edit) {
  const std::string name = edit->objectName().toStdString();
  if (!PropertiesModel::isNumericField(name)) return;
  model.text(name) = s8(edit->text());
  model.reformat(name);
  QString t = qs(model.text(name));
  if (edit->text() != t) edit->setText(t);
}

std::string frmProperties::badField(std::string& reason) const {
  for (const auto& f : PropertiesModel::fields()) {
    if (f.format.empty()) continue;
    const std::string& t = model.text(f.name);
    if (isIonField(f.name)) {
      if (!strictInt16(t)) {
        reason = "\"" + t + "\" is not a whole number from 0 to 32767.";
        return f.name;
      }
    } else if (!strictValue(t)) {
      reason = "\"" + t + "\" is not a number.";
      return f.name;
    }
  }
  return {};
}

bool frmProperties::apply() {
  if (auto* e = qobject_cast<QLineEdit*>(focusWidget())) leaveField(e);
  std::string reason;
  std::string bad = badField(reason);
  if (!bad.empty()) {
    auto it = fieldPage_.find(bad);
    if (it != fieldPage_.end()) tbsOptions->setCurrentIndex(it->second);
    wb_.prompter.message(reason + " Please correct it before the values are kept.", "Properties", Icon::Warning,
                         Buttons::OK, Answer::OK);
    if (QLineEdit* e = field(bad)) {
      e->setFocus();
      e->selectAll();
    }
    return false;
  }
  if (auto* fs = dynamic_cast<FileSettingsStore*>(&wb_.settings)) fs->beginBatch();
  bool ok = model.cmdApply(wb_.defaults, wb_.settings, wb_.errors);
  if (auto* fs = dynamic_cast<FileSettingsStore*>(&wb_.settings)) fs->endBatch();
  return ok;
}

QStringList frmProperties::quillmarkSearchFolders() const {
  // Programs live side by side: the folder that holds our own installation first, then the usual
  // places of separately installed programs.
  QStringList out;
  QDir own(QString::fromStdString(executableDir()));
  if (own.cdUp()) out << own.absolutePath();
  out << "/opt" << "/usr/local" << "/usr/lib" << QDir::homePath() + "/.local/opt" << QDir::homePath() + "/opt";
  out.removeDuplicates();
  return out;
}

void frmProperties::chkActivateQuillmark_Click() {
  for (const QString& folder : quillmarkSearchFolders()) {
    const std::string before = model.text("txtQuillmarkPath");
    model.chkActivateQuillmark_Click(s8(folder));
    if (model.text("txtQuillmarkPath") != before) break;
  }
  refresh();
}

void frmProperties::browseQuillmark() {
  auto chosen = wb_.prompter.openFile("Set Path to Quillmark Program", "All Files (*)|*|Program Files (*.exe)|*.exe",
                                      model.text("txtQuillmarkPath"));
  if (!chosen) return;
  model.text("txtQuillmarkPath") = *chosen;
  refresh();
}

}  // namespace zy
