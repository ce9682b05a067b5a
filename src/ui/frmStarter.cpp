#include "ui/frmStarter.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/measures.h"
#include "recipes/RecipeEditor.h"
#include "ui/QtPrompter.h"

namespace zy {

frmStarter::frmStarter(Workbench& wb, RecipeEditor& editor, QWidget* parent)
    : CalcWindow(wb, kSection, kHelpPage, QSize(560, 290), parent), model(editor), editor_(editor) {
  setObjectName("frmStarter");
  setWindowTitle(StarterCalculator::kCaption);

  txtVolume = numberBox("txtVolume", tr("The volume of beer to ferment"));
  txtGravity = numberBox("txtGravity", tr("The gravity of the wort, such as 1.050"));
  lblVolumeUnits = new QLabel(this);
  lblVolumeUnits->setObjectName("lblVolumeUnits");
  auto* inputs = new QGroupBox(tr("Batch"), this);
  auto* g = new QGridLayout(inputs);
  auto* volumeLabel = new QLabel(tr("Fermentation &volume:"), inputs);
  volumeLabel->setBuddy(txtVolume);
  auto* gravityLabel = new QLabel(tr("Wort &gravity:"), inputs);
  gravityLabel->setBuddy(txtGravity);
  g->addWidget(volumeLabel, 0, 0);
  g->addWidget(txtVolume, 0, 1);
  g->addWidget(lblVolumeUnits, 0, 2);
  g->addWidget(gravityLabel, 1, 0);
  g->addWidget(txtGravity, 1, 1);
  g->setColumnStretch(2, 1);

  auto* levels = new QGroupBox(tr("Carbonation Level"), this);
  auto* levelRow = new QHBoxLayout(levels);
  auto* group = new QButtonGroup(this);
  const char* captions[] = {"&Low", "&Medium", "H&igh"};
  for (int k = 0; k < 3; ++k) {
    optLevel[k] = new QRadioButton(tr(captions[k]), levels);
    optLevel[k]->setObjectName(QString("optLevel%1").arg(k));
    optLevel[k]->setToolTip(tr("%1 carbonation of the finished beer").arg(StarterCalculator::levelCaption(k)));
    group->addButton(optLevel[k], k);
    levelRow->addWidget(optLevel[k]);
  }
  connect(group, &QButtonGroup::idClicked, this, [this](int k) {
    model.setLevel(k);
    refresh();
  });

  QFont big = font();
  big.setBold(true);
  big.setPointSizeF(big.pointSizeF() * 1.1);
  lblYbox = new QLabel(this);
  lblYbox->setObjectName("lblYbox");
  lblKbox = new QLabel(this);
  lblKbox->setObjectName("lblKbox");
  for (QLabel* l : {lblYbox, lblKbox}) {
    l->setFont(big);
    l->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    l->setMinimumWidth(300);
    l->setContentsMargins(6, 4, 6, 4);
  }
  lblYbox->setToolTip(tr("Make a starter of this volume a day or two before brewing"));
  lblKbox->setToolTip(tr("Young beer (kraeusen) to add at bottling in place of priming sugar"));
  cmdAddYeast = button(tr("A&dd to Recipe"), "cmdAddYeast", tr("Note the starter volume in the recipe's comments"));
  cmdAddKraeusen = button(tr("&Add to Recipe"), "cmdAddKraeusen",
                          tr("Put the kraeusening volume in the recipe's priming instructions"));
  cmdClose = button(tr("&Close"), "cmdClose", tr("Close the calculator"));
  cmdHelp = button(tr("&Help"), "cmdHelp", tr("Help on starters and kraeusening (F1)"));

  auto* results = new QGridLayout;
  results->addWidget(lblYbox, 0, 0);
  results->addWidget(cmdAddYeast, 0, 1);
  results->addWidget(lblKbox, 1, 0);
  results->addWidget(cmdAddKraeusen, 1, 1);
  results->setColumnStretch(0, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdHelp);
  buttons->addStretch();
  buttons->addWidget(cmdClose);
  auto* all = new QVBoxLayout(this);
  all->addWidget(inputs);
  all->addWidget(levels);
  all->addLayout(results);
  all->addStretch();
  all->addLayout(buttons);

  connect(txtVolume, &QLineEdit::textEdited, this, [this](const QString& t) {
    model.setVolume(s8(t));
    refresh();
  });
  connect(txtGravity, &QLineEdit::textEdited, this, [this](const QString& t) {
    model.setGravity(s8(t));
    refresh();
  });
  connect(txtVolume, &QLineEdit::editingFinished, this, [this] {
    if (refreshing_) return;
    model.leaveVolume();
    refresh();
  });
  connect(txtGravity, &QLineEdit::editingFinished, this, [this] {
    if (refreshing_) return;
    model.leaveGravity();
    refresh();
  });
  connect(cmdAddYeast, &QPushButton::clicked, this, [this] {
    model.cmdAddYeast();
    resultReached();
  });
  connect(cmdAddKraeusen, &QPushButton::clicked, this, [this] {
    model.cmdAddKraeusen();
    resultReached();
  });
  connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
  connect(cmdHelp, &QPushButton::clicked, this, &CalcWindow::showHelp);
  load();
}

void frmStarter::load() {
  model.load();
  refresh();
}

void frmStarter::refresh() {
  refreshing_ = true;
  setBoxText(txtVolume, model.txtVolume);
  setBoxText(txtGravity, model.txtGravity);
  lblVolumeUnits->setText(qs(listText(measures().volumeUnits, model.volumeUnit)));
  optLevel[model.optLevel]->setChecked(true);
  lblYbox->setText(qs(model.lblYbox));
  lblKbox->setText(qs(model.lblKbox));
  cmdAddKraeusen->setEnabled(model.cmdAddKraeusenEnabled);
  cmdAddYeast->setEnabled(!model.starterText.empty());
  refreshing_ = false;
}

}  // namespace zy
