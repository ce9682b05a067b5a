#include "ui/HelpButton.h"
#include "ui/frmUnitMashData.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "core/measures.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "ui/QtPrompter.h"
#include "ui/frmHelp.h"
#include "ui/WindowPlacement.h"
#include "workbench/Startup.h"

namespace zy {

namespace {

QComboBox* makeCombo(const char* name, const StringList& entries, const QString& tip, QWidget* parent) {
  auto* c = new QComboBox(parent);
  c->setObjectName(name);
  for (const std::string& e : entries) c->addItem(qs(e));
  c->setToolTip(tip);
  return c;
}

}  // namespace

frmUnitMashData::frmUnitMashData(Workbench& wb, RecipeEditor& editor, QWidget* parent)
    : QWidget(parent, Qt::Window), wb_(wb), editor_(editor) {
  setObjectName("frmUnitMashData");
  setWindowTitle(UnitMashData::kCaption);
  const Measures& m = measures();

  cboRecipeUnitType = makeCombo("cboRecipeUnitType", m.unitTypes,
                                tr("The unit system of this recipe; temperatures follow it"), this);
  cboRecipeVolumeUnits = makeCombo("cboRecipeVolumeUnits", m.volumeUnits,
                                   tr("The unit of the recipe's boil and fermenter volumes"), this);
  cboMashType = makeCombo("cboMashType", m.mashTypes,
                          tr("How the grains are mashed; \"No Mash\" for an extract recipe"), this);
  txtMashEfficiency = new QLineEdit(this);
  txtMashEfficiency->setObjectName("txtMashEfficiency");
  txtMashEfficiency->setValidator(new QIntValidator(0, 100, txtMashEfficiency));
  txtMashEfficiency->setMaximumWidth(70);
  txtMashEfficiency->setToolTip(tr("The share of the malt's extract your mash collects, as a whole percent"));
  txtBoilTime = new QLineEdit(this);
  txtBoilTime->setObjectName("txtBoilTime");
  txtBoilTime->setValidator(new QIntValidator(0, 9999, txtBoilTime));
  txtBoilTime->setMaximumWidth(70);
  txtBoilTime->setToolTip(tr("Minutes of boil; never less than the longest hops boil of the recipe"));

  connect(cboRecipeUnitType, &QComboBox::currentIndexChanged, this, [this](int i) {
    if (!refreshing_) model.cboRecipeUnitType = i;
  });
  connect(cboRecipeVolumeUnits, &QComboBox::currentIndexChanged, this, [this](int i) {
    if (!refreshing_) model.cboRecipeVolumeUnits = i;
  });
  connect(cboMashType, &QComboBox::currentIndexChanged, this, [this](int i) {
    if (refreshing_) return;
    model.setMashType(i, wb_.defaults);
    refresh();
  });
  connect(txtMashEfficiency, &QLineEdit::textEdited, this, [this](const QString& t) { model.txtMashEfficiency = s8(t); });
  connect(txtBoilTime, &QLineEdit::textEdited, this, [this](const QString& t) { model.txtBoilTime = s8(t); });

  auto* form = new QFormLayout;
  form->addRow(tr("&Unit system:"), cboRecipeUnitType);
  form->addRow(tr("&Volume units:"), cboRecipeVolumeUnits);
  form->addRow(tr("Mash &type:"), cboMashType);
  lblMashEff = new QLabel(tr("Mash &efficiency (%):"), this);
  lblMashEff->setObjectName("lblMashEff");
  lblMashEff->setBuddy(txtMashEfficiency);
  form->addRow(lblMashEff, txtMashEfficiency);
  auto* boilRow = new QHBoxLayout;
  boilRow->addWidget(txtBoilTime);
  boilRow->addWidget(new QLabel(tr("minutes"), this));
  boilRow->addStretch();
  auto* boilLabel = new QLabel(tr("&Boil time:"), this);
  boilLabel->setBuddy(txtBoilTime);
  form->addRow(boilLabel, boilRow);

  cmdOK = new QPushButton(tr("&OK"), this);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  cmdOK->setToolTip(tr("Store these values in the recipe and recompute it"));
  cmdCancel = new QPushButton(tr("&Cancel"), this);
  cmdCancel->setObjectName("cmdCancel");
  cmdCancel->setToolTip(tr("Close without changing the recipe"));
  cmdHelp = new QPushButton(tr("&Help"), this);
  cmdHelp->setObjectName("cmdHelp");
  cmdHelp->setToolTip(tr("Help on the recipe's units and mash data (F1)"));
  connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, &frmUnitMashData::cmdCancel_Click);
  connect(cmdHelp, &QPushButton::clicked, this, &frmUnitMashData::showHelp);
  auto* f1 = new QShortcut(QKeySequence::HelpContents, this);
  connect(f1, &QShortcut::activated, this, &frmUnitMashData::showHelp);
  // Return in a box is OK, as in any dialog.
  for (QLineEdit* e : {txtMashEfficiency, txtBoilTime})
    connect(e, &QLineEdit::returnPressed, this, [this] { cmdOK_Click(); });

  // Tab takes the bottom row as it stands: Help on the left, then OK and Cancel.
  setTabOrder(txtBoilTime, cmdHelp);
  setTabOrder(cmdHelp, cmdOK);
  setTabOrder(cmdOK, cmdCancel);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdHelp);
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);
  lblRecipe = new QLabel(this);
  lblRecipe->setObjectName("lblRecipe");
  QFont bold = lblRecipe->font();
  bold.setBold(true);
  lblRecipe->setFont(bold);
  auto* all = new QVBoxLayout(this);
  all->addWidget(lblRecipe);
  all->addSpacing(4);
  all->addLayout(form);
  all->addStretch();
  all->addSpacing(8);
  all->addLayout(buttons);

  resize(400, sizeHint().height());
  load();
}

void frmUnitMashData::load() {
  model.load(wb_.recipe.rec, wb_.defaults);
  refresh();
}

void frmUnitMashData::refresh() {
  refreshing_ = true;
  lblRecipe->setText(tr("Recipe: %1").arg(qs(trim(wb_.recipe.rec.recipeName))));
  cboRecipeUnitType->setCurrentIndex(model.cboRecipeUnitType);
  cboRecipeVolumeUnits->setCurrentIndex(model.cboRecipeVolumeUnits);
  cboMashType->setCurrentIndex(model.cboMashType);
  txtMashEfficiency->setText(qs(model.txtMashEfficiency));
  txtMashEfficiency->setEnabled(model.mashEffEnabled);
  lblMashEff->setEnabled(model.mashEffEnabled);
  txtBoilTime->setText(qs(model.txtBoilTime));
  refreshing_ = false;
}

bool frmUnitMashData::cmdOK_Click() {
  model.txtMashEfficiency = s8(txtMashEfficiency->text());
  model.txtBoilTime = s8(txtBoilTime->text());
  if (!model.cmdOK(wb_.recipe.rec, editor_, wb_.defaults, wb_.prompter)) {
    txtMashEfficiency->setFocus();
    txtMashEfficiency->selectAll();
    return false;
  }
  refresh();
  if (applied) applied();
  close();
  return true;
}

void frmUnitMashData::cmdCancel_Click() { close(); }

void frmUnitMashData::showHelp() { showHelpPage(this, wb_, openHelp, kHelpPage); }

void frmUnitMashData::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    cmdCancel_Click();
    return;
  }
  // Return that no box took presses the button in focus, else OK, the window's default button.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (auto* b = qobject_cast<QPushButton*>(focusWidget())) b->click();
    else cmdOK_Click();
    return;
  }
  QWidget::keyPressEvent(event);
}

void frmUnitMashData::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    if (!placed_) {
      placed_ = true;
      restoreScreenCentredPlacement(*this, wb_.settings, kSection, false);
    }
    load();
  }
  QWidget::showEvent(event);
}

void frmUnitMashData::closeEvent(QCloseEvent* event) {
  if (isVisible()) saveWindowPlacement(*this, wb_.settings, kSection);
  hideUnlessAppClosing(*this, wb_, event);
}

}  // namespace zy
