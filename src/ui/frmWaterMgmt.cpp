#include "ui/frmWaterMgmt.h"

#include <QCheckBox>
#include <algorithm>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "recipes/RecipeEditor.h"
#include "ui/QtPrompter.h"
#include "ui/frmProperties.h"

namespace zy {

WaterReportChart::WaterReportChart(const WaterManagement& model, QWidget* parent) : QWidget(parent), model_(model) {
  setObjectName("picChart");
  setAutoFillBackground(true);
  QPalette p = palette();
  p.setColor(QPalette::Window, Qt::white);
  setPalette(p);
  setToolTip(tr("The water of the brew day, from the mash to the primary fermenter"));
}

void WaterReportChart::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::TextAntialiasing);
  p.setPen(QColor(160, 160, 160));
  p.drawRect(rect().adjusted(0, 0, -1, -1));
  const int lines = static_cast<int>(model_.report.size());
  // The text grows with the chart, within reason, and shrinks until the longest line fits.
  QFont f = font();
  f.setPointSizeF(std::clamp(height() / (lines + 4.0) * 0.45, 7.0, 13.0));
  auto widest = [&](const QFontMetrics& m) {
    int caption = 0, value = 0, tail = 0;
    for (const WaterReportLine& l : model_.report) {
      caption = std::max(caption, m.horizontalAdvance(qs(l.caption)));
      value = std::max(value, m.horizontalAdvance(qs(l.value)));
      tail = std::max(tail, m.horizontalAdvance(" " + qs(l.units) + qs(l.flag)));
    }
    return 12 + caption + m.horizontalAdvance("  ") + value + tail + 8;
  };
  while (f.pointSizeF() > 6.0 && widest(QFontMetrics(f)) > width()) f.setPointSizeF(f.pointSizeF() - 0.5);
  QFont head = f;
  head.setBold(true);
  head.setPointSizeF(f.pointSizeF() * 1.25);
  const QFontMetrics fm(f), hm(head);
  const int lineHeight = fm.height() + fm.height() / 3;
  int y = std::max(8, (height() - (lines * lineHeight + hm.height() * 2)) / 2);

  p.setFont(head);
  p.setPen(Qt::black);
  p.drawText(QRect(0, y, width(), hm.height()), Qt::AlignHCenter, WaterManagement::kReportTitle);
  y += hm.height() * 2;

  // Captions, then the values right-aligned in a column of their own, then unit and warning.
  p.setFont(f);
  int captionWidth = 0, valueWidth = fm.horizontalAdvance("0000.0");
  for (const WaterReportLine& l : model_.report) {
    captionWidth = std::max(captionWidth, fm.horizontalAdvance(qs(l.caption)));
    valueWidth = std::max(valueWidth, fm.horizontalAdvance(qs(l.value)));
  }
  const int left = 12, valueRight = left + captionWidth + fm.horizontalAdvance("  ") + valueWidth;
  for (const WaterReportLine& l : model_.report) {
    const QColor ink = l.red ? QColor(200, 0, 0) : QColor(Qt::black);
    p.setPen(Qt::black);
    p.drawText(QRect(left, y, captionWidth + 4, lineHeight), Qt::AlignLeft | Qt::AlignVCenter, qs(l.caption));
    p.setPen(ink);
    p.drawText(QRect(valueRight - valueWidth, y, valueWidth, lineHeight), Qt::AlignRight | Qt::AlignVCenter,
               qs(l.value));
    QString tail = " " + qs(l.units);
    p.setPen(Qt::black);
    p.drawText(QRect(valueRight, y, width() - valueRight, lineHeight), Qt::AlignLeft | Qt::AlignVCenter, tail);
    if (!l.flag.empty()) {
      p.setPen(ink);
      const int x = valueRight + fm.horizontalAdvance(tail);
      p.drawText(QRect(x, y, std::max(0, width() - x), lineHeight), Qt::AlignLeft | Qt::AlignVCenter, qs(l.flag));
    }
    y += lineHeight;
  }
}

frmWaterMgmt::frmWaterMgmt(Workbench& wb, RecipeEditor& editor, QWidget* parent)
    : CalcWindow(wb, kSection, kHelpPage, QSize(820, 480), parent), model(editor), editor_(editor) {
  setObjectName("frmWaterMgmt");
  setWindowTitle(WaterManagement::kCaption);

  txtMashRate = numberBox("txtMashRate", tr("Mash water per unit of grain weight"));
  txtSpargeRate = numberBox("txtSpargeRate", tr("Sparge water per unit of grain weight"));
  txtSpargeTemp = numberBox("txtSpargeTemp", tr("Temperature of the sparge water"));
  txtBoilTime = numberBox("txtBoilTime", tr("Minutes of boil: the longer, the more water boils away"));
  txtAddToKettle = numberBox("txtAddToKettle", tr("Water added to the kettle before the boil"));
  txtAddToPrimary = numberBox("txtAddToPrimary", tr("Water added to the primary fermenter after the boil"));
  auto label = [this](const char* name) {
    auto* l = new QLabel(this);
    l->setObjectName(name);
    return l;
  };
  lblGrainMass = label("lblGrainMass");
  lblGrainUnits = label("lblGrainUnits");
  lblTargetInitialVolume = label("lblTargetInitialVolume");
  lblTargetFinalVolume = label("lblTargetFinalVolume");
  for (QLabel* l : {lblGrainMass, lblTargetInitialVolume, lblTargetFinalVolume}) {
    l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    l->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    l->setMinimumWidth(60);
  }
  lblGrainMass->setToolTip(tr("The weight of the recipe's malts that are mashed"));
  lblTargetInitialVolume->setToolTip(tr("The recipe's initial boil volume"));
  lblTargetFinalVolume->setToolTip(tr("The recipe's fermentation volume"));
  lblVolMass = label("lblVolMass");
  lblVolMass2 = label("lblVolMass2");
  lblTempUnits = label("lblTempUnits");
  lblTimeUnits = label("lblTimeUnits");
  lblVolumeUnits = label("lblVolumeUnits");
  lblVolumeUnits2 = label("lblVolumeUnits2");
  lblVolumeUnits3 = label("lblVolumeUnits3");
  lblVolumeUnits4 = label("lblVolumeUnits4");

  chkHoldInitialVolume = new QCheckBox(tr("Hold &Initial Volume"), this);
  chkHoldInitialVolume->setObjectName("chkHoldInitialVolume");
  chkHoldInitialVolume->setToolTip(tr("Add water to the kettle so that the boil starts at the recipe's boil volume"));
  chkHoldFinalVolume = new QCheckBox(tr("Hold &Final Volume"), this);
  chkHoldFinalVolume->setObjectName("chkHoldFinalVolume");
  chkHoldFinalVolume->setToolTip(tr("Add water so that the primary receives the recipe's fermentation volume"));
  chkFullBoil = new QCheckBox(tr("F&ull Boil (Add to Primary=0)"), this);
  chkFullBoil->setObjectName("chkFullBoil");
  chkFullBoil->setToolTip(tr("Boil all the water: what the primary would get goes into the kettle instead"));

  auto* inputs = new QGroupBox(tr("Water"), this);
  auto* g = new QGridLayout(inputs);
  int row = 0;
  auto addRow = [&](const QString& caption, QWidget* value, QWidget* unit) {
    auto* c = new QLabel(caption, inputs);
    if (qobject_cast<QLineEdit*>(value)) c->setBuddy(value);
    g->addWidget(c, row, 0);
    g->addWidget(value, row, 1);
    if (unit) g->addWidget(unit, row, 2);
    ++row;
  };
  addRow(tr("Mashable grains:"), lblGrainMass, lblGrainUnits);
  addRow(tr("&Mash rate:"), txtMashRate, lblVolMass);
  addRow(tr("S&parge rate:"), txtSpargeRate, lblVolMass2);
  addRow(tr("Sparge &temperature:"), txtSpargeTemp, lblTempUnits);
  addRow(tr("&Boil time:"), txtBoilTime, lblTimeUnits);
  addRow(tr("Add to &kettle:"), txtAddToKettle, lblVolumeUnits);
  addRow(tr("Add to p&rimary:"), txtAddToPrimary, lblVolumeUnits2);
  addRow(tr("Target boil volume:"), lblTargetInitialVolume, lblVolumeUnits3);
  addRow(tr("Target final volume:"), lblTargetFinalVolume, lblVolumeUnits4);
  g->addWidget(chkHoldInitialVolume, row++, 0, 1, 3);
  g->addWidget(chkHoldFinalVolume, row++, 0, 1, 3);
  g->addWidget(chkFullBoil, row++, 0, 1, 3);
  g->setColumnStretch(2, 1);
  g->setRowStretch(row, 1);

  picChart = new WaterReportChart(model, this);

  cmdOK = button(tr("&OK"), "cmdOK", tr("Write the volumes and rates to the recipe"));
  cmdOK->setDefault(true);
  cmdCancel = button(tr("&Cancel"), "cmdCancel", tr("Close without changing the recipe"));
  cmdConstants = button(tr("Con&stants"), "cmdConstants",
                        tr("Evaporation rate, grain absorption, kettle losses and capacity"));
  cmdHelp = button(tr("&Help"), "cmdHelp", tr("Help on water management (F1)"));

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdHelp);
  buttons->addWidget(cmdConstants);
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);
  auto* body = new QHBoxLayout;
  body->addWidget(inputs);
  body->addWidget(picChart, 1);
  auto* all = new QVBoxLayout(this);
  all->addLayout(body, 1);
  all->addLayout(buttons);

  const std::pair<QLineEdit*, WaterManagement::Box> boxes[] = {
      {txtMashRate, WaterManagement::Box::MashRate},     {txtSpargeRate, WaterManagement::Box::SpargeRate},
      {txtSpargeTemp, WaterManagement::Box::SpargeTemp}, {txtBoilTime, WaterManagement::Box::BoilTime},
      {txtAddToKettle, WaterManagement::Box::AddToKettle}, {txtAddToPrimary, WaterManagement::Box::AddToPrimary}};
  for (const auto& [e, b] : boxes) {
    const WaterManagement::Box which = b;
    connect(e, &QLineEdit::textEdited, this, [this, which](const QString& t) { model.editBox(which, s8(t)); });
    connect(e, &QLineEdit::editingFinished, this, [this, which] {
      if (refreshing_) return;
      model.leaveBox(which);
      refresh();
    });
  }
  connect(chkFullBoil, &QCheckBox::clicked, this, [this](bool on) {
    model.setFullBoil(on);
    refresh();
  });
  connect(chkHoldFinalVolume, &QCheckBox::clicked, this, [this](bool on) {
    model.setHoldFinalVolume(on);
    refresh();
  });
  connect(chkHoldInitialVolume, &QCheckBox::clicked, this, [this](bool on) {
    model.setHoldInitialVolume(on);
    refresh();
  });
  connect(cmdOK, &QPushButton::clicked, this, &frmWaterMgmt::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);
  connect(cmdConstants, &QPushButton::clicked, this, &frmWaterMgmt::cmdConstants_Click);
  connect(cmdHelp, &QPushButton::clicked, this, &CalcWindow::showHelp);
  setMinimumSize(720, 420);
  load();
}

void frmWaterMgmt::load() {
  model.load();
  refresh();
}

void frmWaterMgmt::refresh() {
  refreshing_ = true;
  setBoxText(txtMashRate, model.txtMashRate);
  setBoxText(txtSpargeRate, model.txtSpargeRate);
  setBoxText(txtSpargeTemp, model.txtSpargeTemp);
  setBoxText(txtBoilTime, model.txtBoilTime);
  setBoxText(txtAddToKettle, model.txtAddToKettle);
  setBoxText(txtAddToPrimary, model.txtAddToPrimary);
  lblGrainMass->setText(qs(model.lblGrainMass));
  lblGrainUnits->setText(qs(model.lblGrainUnits));
  lblTargetInitialVolume->setText(qs(model.lblTargetInitialVolume));
  lblTargetFinalVolume->setText(qs(model.lblTargetFinalVolume));
  for (QLabel* l : {lblVolMass, lblVolMass2}) l->setText(qs(model.lblVolMass));
  for (QLabel* l : {lblVolumeUnits, lblVolumeUnits2, lblVolumeUnits3, lblVolumeUnits4})
    l->setText(qs(model.lblVolumeUnits));
  lblTempUnits->setText(qs(model.lblTempUnits));
  lblTimeUnits->setText(qs(model.lblTimeUnits));
  chkHoldInitialVolume->setChecked(model.chkHoldInitialVolume);
  chkHoldFinalVolume->setChecked(model.chkHoldFinalVolume);
  chkFullBoil->setChecked(model.chkFullBoil);
  picChart->update();
  refreshing_ = false;
}

void frmWaterMgmt::cmdOK_Click() {
  // The box being typed in counts as left.
  if (auto* e = qobject_cast<QLineEdit*>(focusWidget())) emit e->editingFinished();
  model.cmdOK();
  resultReached();
  close();
}

void frmWaterMgmt::cmdConstants_Click() {
  frmProperties dlg(wb_, this);
  for (int i = 0; i < dlg.tbsOptions->count(); ++i)
    if (dlg.tbsOptions->tabText(i).remove('&') == "Water Management") dlg.tbsOptions->setCurrentIndex(i);
  dlg.exec();
  model.computeWaterVolumes();
  refresh();
}

}  // namespace zy
