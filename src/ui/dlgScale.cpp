#include "ui/dlgScale.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ui/HelpButton.h"
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "core/measures.h"
#include "recipes/RecipeEditor.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"

namespace zy {

dlgScale::dlgScale(RecipeEditor& editor, QWidget* parent) : QDialog(parent), editor_(editor) {
  setWindowTitle(ScaleDialog::kCaption);
  setObjectName("dlgScale");
  setWindowIcon(recipeIcon("Rescale"));
  auto* box = new QVBoxLayout(this);
  auto* about = new QLabel(ScaleDialog::kDescription, this);
  about->setWordWrap(true);
  box->addWidget(about);

  auto* volume = new QGroupBox("New Fermentation Volume", this);
  auto* vrow = new QGridLayout(volume);
  txtVolume = new QLineEdit(volume);
  txtVolume->setObjectName("txtVolume");
  txtVolume->setAlignment(Qt::AlignRight);
  txtVolume->setMaximumWidth(90);
  txtVolume->setValidator(new QRegularExpressionValidator(QRegularExpression(R"([0-9]*\.?[0-9]*)"), txtVolume));
  txtVolume->setToolTip("The volume the recipe is to make; every quantity grows or shrinks with it");
  cboVolume = new QComboBox(volume);
  cboVolume->setObjectName("cboVolume");
  cboVolume->setToolTip("The unit of the new volume");
  for (const std::string& u : measures().volumeUnits) cboVolume->addItem(qs(u));
  auto* lbl = new QLabel("&Volume:", volume);
  lbl->setBuddy(txtVolume);
  vrow->addWidget(lbl, 0, 0);
  vrow->addWidget(txtVolume, 0, 1);
  vrow->addWidget(cboVolume, 0, 2);
  vrow->setColumnStretch(3, 1);
  box->addWidget(volume);

  auto* units = new QGroupBox("Units", this);
  auto* urow = new QVBoxLayout(units);
  for (size_t i = 0; i < optUnits.size(); ++i) {
    optUnits[i] = new QRadioButton(ScaleDialog::unitCaptions()[i], units);
    optUnits[i]->setObjectName(QString("optUnits%1").arg(i));
    optUnits[i]->setToolTip("The units the scaled quantities are given in");
    urow->addWidget(optUnits[i]);
    connect(optUnits[i], &QRadioButton::clicked, this, [this, i] {
      model.setUnitSystem(static_cast<int>(i));
      refresh();
    });
  }
  box->addWidget(units);

  auto* buttons = new QDialogButtonBox(this);
  cmdOK = buttons->addButton("&OK", QDialogButtonBox::AcceptRole);
  cmdCancel = buttons->addButton("&Cancel", QDialogButtonBox::RejectRole);
  cmdHelp = makeHelpButton(*this, showHelpTopic, "recipe-editor.html#scale");
  buttons->addButton(cmdHelp, QDialogButtonBox::HelpRole);
  cmdOK->setDefault(true);
  box->addWidget(buttons);
  connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(txtVolume, &QLineEdit::textEdited, this, [this](const QString& t) { model.txtVolume = s8(t); });
  connect(cboVolume, &QComboBox::activated, this, [this](int i) { model.cboVolume = i; });
  setMinimumWidth(400);
}

void dlgScale::load() {
  model.open(editor_);
  refresh();
  txtVolume->setFocus();
  txtVolume->selectAll();
}

void dlgScale::refresh() {
  txtVolume->setText(qs(model.txtVolume));
  cboVolume->setCurrentIndex(model.cboVolume);
  if (model.optUnits >= 0 && model.optUnits < 3) optUnits[static_cast<size_t>(model.optUnits)]->setChecked(true);
}

bool dlgScale::cmdOK_Click() {
  if (!model.apply(editor_)) return false;
  if (applied) applied();
  accept();
  return true;
}

}  // namespace zy
