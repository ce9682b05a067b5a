#include "ui/dlgNewRecipe.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"

namespace zy {

dlgNewRecipe::dlgNewRecipe(Workbench& wb, int styleRow, QWidget* parent) : QDialog(parent), model(wb), wb_(wb) {
  setObjectName("dlgNewRecipe");
  setWindowTitle(NewRecipeDialog::kCaption);
  model.setStyle(styleRow);

  auto* styleCaption = new QLabel(tr("Beer Style:"), this);
  lblStyle = new QLabel(this);
  lblStyle->setObjectName("lblStyle");
  QFont bold = lblStyle->font();
  bold.setBold(true);
  lblStyle->setFont(bold);
  auto* styleRow_ = new QHBoxLayout;
  styleRow_->addWidget(styleCaption);
  styleRow_->addWidget(lblStyle, 1);

  auto* mash = new QGroupBox(tr("Type of Mash"), this);
  auto* mashBox = new QVBoxLayout(mash);
  auto* group = new QButtonGroup(this);
  const char* tips[] = {"All the extract comes from mashed grains",
                        "Mostly malt extracts, with a little mashed grain",
                        "Malt extracts only, with no mash"};
  const QString keyed[] = {tr("&All Mash (All Grain Recipe)"),
                           tr("&Partial Mash (Mostly Extracts, Less than 2 lbs of Grains)"),
                           tr("&No Mash (All Extract Recipe)")};
  for (int k = 0; k < 3; ++k) {
    optMash[k] = new QRadioButton(keyed[k], mash);
    optMash[k]->setObjectName(QString("optMash%1").arg(k));
    optMash[k]->setToolTip(tr(tips[k]));
    group->addButton(optMash[k], k);
    mashBox->addWidget(optMash[k]);
  }
  connect(group, &QButtonGroup::idClicked, this, [this](int k) {
    model.setChoice(k);
    refresh();
  });
  txtMashEff = new QLineEdit(this);
  txtMashEff->setObjectName("txtMashEff");
  txtMashEff->setReadOnly(true);
  txtMashEff->setMaximumWidth(60);
  txtMashEff->setAlignment(Qt::AlignRight);
  txtMashEff->setToolTip(tr("The mash efficiency of your defaults; an extract recipe has none"));
  auto* effRow = new QHBoxLayout;
  effRow->addWidget(new QLabel(tr("Mash efficiency (%):"), this));
  effRow->addWidget(txtMashEff);
  effRow->addStretch();

  cmdOK = new QPushButton(tr("&OK"), this);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  cmdOK->setToolTip(tr("Start the recipe and open the malt formulator on a grain bill for the style"));
  cmdCancel = new QPushButton(tr("&Cancel"), this);
  cmdCancel->setObjectName("cmdCancel");
  cmdCancel->setToolTip(tr("Close without making a recipe"));
  cmdHelp = new QPushButton(tr("&Help"), this);
  cmdHelp->setObjectName("cmdHelp");
  cmdHelp->setToolTip(tr("Help on new recipes from a style"));
  connect(cmdOK, &QPushButton::clicked, this, &dlgNewRecipe::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(cmdHelp, &QPushButton::clicked, this, [this] {
    if (openHelp) openHelp(kHelpPage);
  });
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdHelp);
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);
  auto* all = new QVBoxLayout(this);
  all->addLayout(styleRow_);
  all->addWidget(mash);
  all->addLayout(effRow);
  all->addStretch();
  all->addLayout(buttons);
  restoreWindowPlacement(*this, wb_.settings, kSection, sizeHint().expandedTo(QSize(440, 0)), QPoint(200, 200),
                         sizeHint());
  refresh();
}

void dlgNewRecipe::refresh() {
  lblStyle->setText(qs(model.lblStyle));
  optMash[model.choice]->setChecked(true);
  txtMashEff->setText(qs(model.efficiencyText()));
}

void dlgNewRecipe::cmdOK_Click() {
  if (create && create(model)) accept();
}

void dlgNewRecipe::done(int result) {
  saveWindowPlacement(*this, wb_.settings, kSection);
  QDialog::done(result);
}

}  // namespace zy
