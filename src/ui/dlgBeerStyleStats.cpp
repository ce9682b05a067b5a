#include "ui/dlgBeerStyleStats.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/HelpButton.h"
#include "ui/WindowPlacement.h"

namespace zy {

dlgBeerStyleStats::dlgBeerStyleStats(Workbench& wb, QWidget* parent) : QDialog(parent), wb_(wb) {
  setObjectName("dlgBeerStyleStats");
  setWindowTitle(StyleStatistics::kCaption);
  auto* grid = new QGridLayout;
  const char* captions[5] = {"Number of Beer Categories Loaded:", "Total Number of Beer Styles Loaded:",
                             "Custom Beer Styles Loaded:", "AOB Beer Styles Loaded:", "BJCP Beer Styles Loaded:"};
  const char* names[5] = {"lblCategories", "lblTotal", "lblCustom", "lblAOB", "lblBJCP"};
  QLabel** counters[5] = {&lblCategories, &lblTotal, &lblCustom, &lblAOB, &lblBJCP};
  for (int i = 0; i < 5; ++i) {
    *counters[i] = new QLabel;
    (*counters[i])->setObjectName(names[i]);
    (*counters[i])->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    (*counters[i])->setMinimumWidth(40);
    grid->addWidget(new QLabel(tr(captions[i])), i, 0);
    grid->addWidget(*counters[i], i, 1);
  }
  grid->setColumnStretch(0, 1);
  OKButton = new QPushButton(tr("OK"));
  OKButton->setObjectName("OKButton");
  OKButton->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(OKButton);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(grid);
  layout->addStretch();
  layout->addLayout(buttons);
  connect(OKButton, &QPushButton::clicked, this, &QDialog::accept);
  refresh();
}

void dlgBeerStyleStats::refresh() {
  const StyleStatistics s = computeStyleStatistics(wb_.styles);
  const int values[5] = {s.categories, s.total, s.custom, s.aob, s.bjcp};
  QLabel* counters[5] = {lblCategories, lblTotal, lblCustom, lblAOB, lblBJCP};
  for (int i = 0; i < 5; ++i) counters[i]->setText(QString::number(values[i]));
}

void dlgBeerStyleStats::showEvent(QShowEvent* event) {
  if (!placed_) {
    restoreCentredPlacement(*this, wb_.settings, kSection, QSize(320, 170));
    placed_ = true;
  }
  refresh();
  QDialog::showEvent(event);
}

void dlgBeerStyleStats::done(int result) {
  saveWindowPlacement(*this, wb_.settings, kSection);
  QDialog::done(result);
}

}  // namespace zy
