#include "ui/HelpButton.h"
#include "ui/frmAdvMaltFormulator.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QStatusBar>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "core/measures.h"
#include "core/numfmt.h"
#include "recipes/RecipeEditor.h"
#include "ui/CalcWindow.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/TopicIcons.h"
#include "ui/frmHelp.h"
#include "ui/WindowPlacement.h"

namespace zy {

namespace {
constexpr const char* kAddMissing = "Adding malts from the inventory comes with the inventory window";
constexpr const char* kAddTip = "Add a malt from the inventory";

QLineEdit* box(QWidget* parent, const char* name, const QString& tip, bool readOnly = false) {
  auto* e = new QLineEdit(parent);
  e->setObjectName(name);
  e->setToolTip(tip);
  e->setMaximumWidth(70);
  e->setAlignment(Qt::AlignRight);
  e->setReadOnly(readOnly);
  if (!readOnly) e->setValidator(numberKeys(e));
  return e;
}

void setText(QLineEdit* e, const std::string& t) {
  if (e->text() != qs(t)) e->setText(qs(t));
}
}  // namespace

void RangeBarView::setBar(const RangeBar& bar, const char* numberPattern) {
  bar_ = bar;
  pattern_ = numberPattern;
  setToolTip(tr("The style's range, and the target at %1").arg(qs(formatNumber(bar_.value, numberPattern))));
  update();
}

void RangeBarView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QFontMetrics fm(font());
  p.drawText(QRect(0, 0, width(), fm.height()), Qt::AlignLeft, qs(bar_.label));
  // The scale runs a third of the range beyond either end, and always takes in the target.
  const double span = std::max(bar_.high - bar_.low, 1e-6);
  double lo = bar_.low - span / 3, hi = bar_.high + span / 3;
  lo = std::min(lo, bar_.value - span / 10);
  hi = std::max(hi, bar_.value + span / 10);
  const QRectF track(4, fm.height() + 6, width() - 8, std::max(10, height() - fm.height() - 10));
  auto x = [&](double v) { return track.left() + (v - lo) / (hi - lo) * track.width(); };
  p.setPen(QColor(150, 150, 150));
  p.setBrush(QColor(235, 235, 235));
  p.drawRect(track);
  if (bar_.high > bar_.low) {
    p.setBrush(QColor(120, 190, 120));
    p.drawRect(QRectF(x(bar_.low), track.top(), x(bar_.high) - x(bar_.low), track.height()));
  }
  const bool inside = bar_.value >= bar_.low && bar_.value <= bar_.high;
  p.setPen(QPen(inside ? QColor(0, 90, 0) : QColor(200, 0, 0), 3));
  p.drawLine(QPointF(x(bar_.value), track.top() - 3), QPointF(x(bar_.value), track.bottom() + 3));
}

frmAdvMaltFormulator::frmAdvMaltFormulator(Workbench& wb, RecipeEditor& editor, QWidget* parent)
    : QMainWindow(parent, Qt::Window), model(editor), wb_(wb) {
  setObjectName("frmAdvMaltFormulator");
  setWindowTitle(MaltFormulator::kCaption);

  // Menus.
  QMenu* file = menuBar()->addMenu(tr("&File"));
  mnuFileExport = file->addAction(recipeIcon("Save"), tr("&Export to Recipe"), this, [this] { mnuFileExport_Click(); });
  mnuFileExport->setShortcut(QKeySequence::Save);
  file->addSeparator();
  mnuFileClose = file->addAction(tr("&Close"), this, &QWidget::close);
  QMenu* edit = menuBar()->addMenu(tr("&Malts"));
  mnuEditAdd = edit->addAction(recipeIcon("New"), tr("&Add From Inventory..."), this, [this] {
    if (addFromInventory) addFromInventory(model);
    refresh();
  });
  mnuEditDelete = edit->addAction(recipeIcon("Delete"), tr("&Delete"), this, [this] { deleteSelected(); });
  mnuEditDelete->setShortcut(QKeySequence::Delete);
  QMenu* compute = menuBar()->addMenu(tr("&Compute"));
  mnuComputeOG = compute->addAction(tr("Compute &OG From Target %"), this, [this] { mnuComputeOG_Click(); });
  mnuComputeOG->setShortcut(Qt::Key_F5);
  mnuComputeOGColor = compute->addAction(tr("Compute OG and &Color"), this, [this] { mnuComputeOGColor_Click(); });
  mnuComputeOGColor->setShortcut(Qt::Key_F6);
  compute->addSeparator();
  mnuComputeResolution0 = compute->addAction(tr("Coarse &Resolution"));
  mnuComputeResolution0->setCheckable(true);
  connect(mnuComputeResolution0, &QAction::toggled, this, [this](bool on) { model.coarse = on; });
  QMenu* help = menuBar()->addMenu(tr("&Help"));
  mnuHelpContents = help->addAction(tr("&Contents"), this, [this] { showHelp(); });
  mnuHelpContents->setShortcut(QKeySequence::HelpContents);
  const std::pair<QAction*, const char*> tips[] = {
      {mnuFileExport, "Replace the recipe's malts with these"},
      {mnuFileClose, "Close the formulator"},
      {mnuEditAdd, "Add a malt from the inventory"},
      {mnuEditDelete, "Remove the chosen malt from the formulation"},
      {mnuComputeOG, "Quantities for the target gravity from the target percentages (they must total 100)"},
      {mnuComputeOGColor, "Search the percentages that meet the target colour, then the quantities"},
      {mnuComputeResolution0, "Quantities to a tenth of a unit and percent steps of 0.1 (else a twentieth and 0.05)"},
      {mnuHelpContents, "Help on the malt formulator"}};
  for (const auto& [a, t] : tips) {
    a->setToolTip(tr(t));
    a->setStatusTip(tr(t));
  }

  // Toolbar, by the keys of its buttons.
  tbToolBar = addToolBar(tr("Formulator"));
  tbToolBar->setObjectName("tbToolBar");
  tbToolBar->setMovable(false);
  tbToolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  auto tool = [this](const char* key, QAction* a, const QIcon& icon, const QString& text) {
    QAction* t = tbToolBar->addAction(icon, text);
    t->setObjectName(QString("tb") + key);
    t->setToolTip(a->toolTip());
    connect(t, &QAction::triggered, a, &QAction::trigger);
    tb[key] = t;
  };
  tool("Add", mnuEditAdd, recipeIcon("New"), tr("Add"));
  tool("Delete", mnuEditDelete, recipeIcon("Delete"), tr("Delete"));
  tbToolBar->addSeparator();
  tool("Calculate1", mnuComputeOG, recipeIcon("MaltForm"), tr("OG"));
  tool("Calculate2", mnuComputeOGColor, recipeIcon("MaltForm"), tr("OG+Color"));
  tbToolBar->addSeparator();
  tool("Save", mnuFileExport, recipeIcon("Save"), tr("Export"));
  tool("Help", mnuHelpContents, toolIcon(ToolIcon::Help), tr("Help"));
  tool("Close", mnuFileClose, recipeIcon("Delete"), tr("Close"));
  tb["Close"]->setIcon(style()->standardIcon(QStyle::SP_DialogCloseButton));

  auto* central = new QWidget(this);
  setCentralWidget(central);
  lblQuantity = new QLabel(central);
  lblQuantity->setObjectName("lblQuantity");
  QFont bold = lblQuantity->font();
  bold.setBold(true);
  lblQuantity->setFont(bold);

  lvMalts = new QTreeWidget(central);
  lvMalts->setObjectName("lvMalts");
  lvMalts->setRootIsDecorated(false);
  lvMalts->setHeaderLabels({tr("Malt"), tr("Target %"), tr("Computed %"), tr("Quantity"), tr("Units"),
                            tr("Extraction"), tr("Color"), tr("Cost"), tr("Mash")});
  lvMalts->setColumnWidth(COL_MALT, 190);
  for (int c = COL_TARGET; c <= COL_MASH; ++c) lvMalts->setColumnWidth(c, c == COL_COMPUTED ? 96 : 78);
  lvMalts->setToolTip(tr("The malts; choose one to edit its target percent"));
  connect(lvMalts, &QTreeWidget::currentItemChanged, this, [this] {
    if (refreshing_) return;
    model.selectMalt(lvMalts->currentItem() ? lvMalts->indexOfTopLevelItem(lvMalts->currentItem()) : -1);
    refresh();
  });

  txtTargetOG = box(central, "txtTargetOG", tr("The original gravity to reach"));
  txtTargetColor = box(central, "txtTargetColor", tr("The colour to reach, in degrees Lovibond (SRM)"));
  txtMashEff = box(central, "txtMashEff", tr("The share of a mashed malt's extract the mash collects, 30 to 100"));
  txtCompOG = box(central, "txtCompOG", tr("The gravity of the malts as they stand"), true);
  txtCompColor = box(central, "txtCompColor", tr("The colour of the malts as they stand"), true);
  txtPct = box(central, "txtPct", tr("The target percent of the chosen malt"));
  udcTargetOG = new UpDown(central);
  udcTargetOG->setObjectName("udcTargetOG");
  udcTargetColor = new UpDown(central);
  udcTargetColor->setObjectName("udcTargetColor");
  lblTotal = new QLabel(central);
  lblTotal->setObjectName("lblTotal");
  lblTotal->setToolTip(tr("The target percentages added up"));
  picRange1 = new RangeBarView(central);
  picRange1->setObjectName("picRange1");
  picRange2 = new RangeBarView(central);
  picRange2->setObjectName("picRange2");
  cmdCopyPct = new QPushButton(tr("Cop&y Computed % to Target %"), central);
  cmdCopyPct->setObjectName("cmdCopyPct");
  cmdCopyPct->setToolTip(tr("Take the computed percentages as the targets"));

  connect(txtTargetOG, &QLineEdit::textEdited, this, [this](const QString& t) {
    model.txtTargetOG = s8(t);
    refresh();
  });
  connect(txtTargetColor, &QLineEdit::textEdited, this, [this](const QString& t) {
    model.txtTargetColor = s8(t);
    refresh();
  });
  connect(txtMashEff, &QLineEdit::textEdited, this, [this](const QString& t) { model.txtMashEff = s8(t); });
  connect(txtTargetOG, &QLineEdit::editingFinished, this, [this] {
    if (refreshing_) return;
    model.leaveTargetOG();
    refresh();
  });
  connect(txtTargetColor, &QLineEdit::editingFinished, this, [this] {
    if (refreshing_) return;
    model.leaveTargetColor();
    refresh();
  });
  connect(txtMashEff, &QLineEdit::editingFinished, this, [this] {
    if (refreshing_) return;
    model.leaveMashEff();
    refresh();
  });
  connect(txtPct, &QLineEdit::textEdited, this, [this](const QString& t) {
    model.setPct(s8(t));
    refresh();
  });
  connect(udcTargetOG, &UpDown::stepped, this, [this](int d) {
    model.spinTargetOG(d);
    refresh();
  });
  connect(udcTargetColor, &UpDown::stepped, this, [this](int d) {
    model.spinTargetColor(d);
    refresh();
  });
  connect(cmdCopyPct, &QPushButton::clicked, this, &frmAdvMaltFormulator::cmdCopyPct_Click);

  auto* targets = new QGroupBox(tr("Targets"), central);
  auto* tg = new QGridLayout(targets);
  auto caption = [&](const QString& text, QWidget* buddy) {
    auto* l = new QLabel(text, targets);
    l->setBuddy(buddy);
    return l;
  };
  tg->addWidget(caption(tr("Target &OG:"), txtTargetOG), 0, 0);
  tg->addWidget(txtTargetOG, 0, 1);
  tg->addWidget(udcTargetOG, 0, 2);
  tg->addWidget(caption(tr("Target Co&lor:"), txtTargetColor), 1, 0);
  tg->addWidget(txtTargetColor, 1, 1);
  tg->addWidget(udcTargetColor, 1, 2);
  tg->addWidget(caption(tr("Mash &Eff %:"), txtMashEff), 2, 0);
  tg->addWidget(txtMashEff, 2, 1);
  auto* results = new QGroupBox(tr("Computed"), central);
  auto* rg = new QGridLayout(results);
  rg->addWidget(new QLabel(tr("OG:"), results), 0, 0);
  rg->addWidget(txtCompOG, 0, 1);
  rg->addWidget(new QLabel(tr("Color:"), results), 1, 0);
  rg->addWidget(txtCompColor, 1, 1);
  rg->setRowStretch(2, 1);
  auto* ranges = new QGroupBox(tr("Style"), central);
  auto* rangeBox = new QVBoxLayout(ranges);
  rangeBox->addWidget(picRange1);
  rangeBox->addWidget(picRange2);
  auto* pctRow = new QHBoxLayout;
  auto* pctLabel = new QLabel(tr("Target &%:"), central);
  pctLabel->setBuddy(txtPct);
  pctRow->addWidget(pctLabel);
  pctRow->addWidget(txtPct);
  pctRow->addWidget(new QLabel(tr("Total:"), central));
  pctRow->addWidget(lblTotal);
  pctRow->addStretch();
  pctRow->addWidget(cmdCopyPct);
  auto* lower = new QHBoxLayout;
  lower->addWidget(targets);
  lower->addWidget(results);
  lower->addWidget(ranges, 1);
  auto* all = new QVBoxLayout(central);
  all->addWidget(lblQuantity);
  all->addWidget(lvMalts, 1);
  all->addLayout(pctRow);
  all->addLayout(lower);
  statusBar();
  setAddFromInventory(nullptr);
  setMinimumSize(760, 440);
  load();
}

void frmAdvMaltFormulator::setAddFromInventory(std::function<void(MaltFormulator&)> add) {
  addFromInventory = std::move(add);
  const bool on = static_cast<bool>(addFromInventory);
  mnuEditAdd->setEnabled(on);
  tb["Add"]->setEnabled(on);
  const QString tip = on ? tr(kAddTip) : tr(kAddMissing);
  mnuEditAdd->setToolTip(tip);
  tb["Add"]->setToolTip(tip);
}

void frmAdvMaltFormulator::load() {
  model.load();
  refresh();
}

void frmAdvMaltFormulator::refreshFromModel() { refresh(); }

void frmAdvMaltFormulator::refresh() {
  refreshing_ = true;
  const Measures& m = measures();
  const int n = static_cast<int>(model.lvMalts.size());
  while (lvMalts->topLevelItemCount() > n) delete lvMalts->takeTopLevelItem(lvMalts->topLevelItemCount() - 1);
  while (lvMalts->topLevelItemCount() < n) lvMalts->addTopLevelItem(new QTreeWidgetItem);
  for (int i = 0; i < n; ++i) {
    const FormulatorMalt& f = model.lvMalts[static_cast<size_t>(i)];
    QTreeWidgetItem* it = lvMalts->topLevelItem(i);
    const std::string cells[] = {f.name,       f.targetPct, f.computedPct, f.quantity, listText(m.weightUnits, f.unit),
                                 f.extraction, f.color,     f.cost,        f.mash ? "Yes" : "No"};
    for (int c = 0; c <= COL_MASH; ++c) {
      it->setText(c, qs(cells[c]));
      if (c != COL_MALT && c != COL_UNITS && c != COL_MASH) it->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
    }
  }
  lvMalts->setCurrentItem(model.selectedRow >= 0 ? lvMalts->topLevelItem(model.selectedRow) : nullptr);
  setText(txtTargetOG, model.txtTargetOG);
  setText(txtTargetColor, model.txtTargetColor);
  setText(txtMashEff, model.txtMashEff);
  setText(txtCompOG, model.txtCompOG);
  setText(txtCompColor, model.txtCompColor);
  setText(txtPct, model.txtPct);
  txtPct->setEnabled(model.selectedRow >= 0);
  lblTotal->setText(qs(model.lblTotal));
  lblQuantity->setText(qs(model.lblQuantity));
  picRange1->setBar(model.setRange1(), "0.000");
  picRange2->setBar(model.setRange2(), "0.0");
  mnuEditDelete->setEnabled(model.selectedRow >= 0);
  tb["Delete"]->setEnabled(model.selectedRow >= 0);
  tb["Save"]->setIcon(recipeIcon(qs(model.saveImage)));
  tb["Save"]->setToolTip(qs(model.saveTip));
  mnuComputeResolution0->setChecked(model.coarse);
  refreshing_ = false;
}

// The box being typed in counts as left before a command runs, as a click elsewhere would.
void frmAdvMaltFormulator::leaveBoxes() {
  if (refreshing_) return;
  model.leaveTargetOG();
  model.leaveTargetColor();
  model.leaveMashEff();
}

void frmAdvMaltFormulator::mnuComputeOG_Click() {
  leaveBoxes();
  if (model.mnuComputeOG()) statusBar()->showMessage(tr("Quantities computed from the target percentages"), 5000);
  refresh();
}

void frmAdvMaltFormulator::mnuComputeOGColor_Click() {
  leaveBoxes();
  if (model.mnuComputeOGColor()) statusBar()->showMessage(tr("Percentages and quantities computed"), 5000);
  refresh();
}

void frmAdvMaltFormulator::mnuFileExport_Click() {
  if (model.mnuFileExport()) {
    refresh();
    if (applied) applied();
  }
}

void frmAdvMaltFormulator::cmdCopyPct_Click() {
  model.cmdCopyPct();
  model.selectMalt(model.selectedRow);
  refresh();
}

void frmAdvMaltFormulator::deleteSelected() {
  model.deleteMalt(model.selectedRow);
  refresh();
}

void frmAdvMaltFormulator::showHelp() { showHelpPage(this, wb_, openHelp, kHelpPage); }

void frmAdvMaltFormulator::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    if (!placed_) {
      placed_ = true;
      restoreWindowPlacement(*this, wb_.settings, kSection, QSize(880, 560), QPoint(90, 90), minimumSize());
    }
    if (loadedByCaller_) refresh();
    else load();
    loadedByCaller_ = false;
  }
  QMainWindow::showEvent(event);
}

void frmAdvMaltFormulator::closeEvent(QCloseEvent* event) {
  if (isVisible()) {
    const bool was = model.changed;
    if (!model.queryClose() && !wb_.appClosing) {
      event->ignore();
      return;
    }
    if (was && !model.changed && applied) applied();
    saveWindowPlacement(*this, wb_.settings, kSection);
  }
  hideUnlessAppClosing(*this, wb_, event);
}

}  // namespace zy
