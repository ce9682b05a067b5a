#include "ui/frmWaterTreatment.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "recipes/RecipeEditor.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/frmProperties.h"

namespace zy {

namespace {
constexpr int kIonWidth = 52, kFormulaWidth = 64, kNameWidth = 250, kBoxWidth = 58, kSpinWidth = 24;

QTableWidgetItem* cellItem(QTableWidget* t, int r, int c) {
  QTableWidgetItem* it = t->item(r, c);
  if (!it) {
    it = new QTableWidgetItem;
    it->setFlags(Qt::ItemIsEnabled);
    t->setItem(r, c, it);
  }
  return it;
}

void setCell(QTableWidget* t, int r, int c, const std::string& text, Qt::Alignment a = Qt::AlignCenter) {
  QTableWidgetItem* it = cellItem(t, r, c);
  const QString q = qs(text);
  if (it->text() != q) it->setText(q);
  it->setTextAlignment(a);
}

void plainGrid(QTableWidget* t) {
  t->verticalHeader()->hide();
  t->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  t->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  t->setSelectionMode(QAbstractItemView::NoSelection);
  t->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  t->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  t->setFocusPolicy(Qt::NoFocus);
  t->horizontalHeader()->setFixedHeight(t->fontMetrics().height() + 10);
}

int gridHeight(QTableWidget* t) {
  int h = t->horizontalHeader()->isHidden() ? 0 : t->horizontalHeader()->height();
  for (int r = 0; r < t->rowCount(); ++r) h += t->rowHeight(r);
  return h + 2 * t->frameWidth();
}
}  // namespace

frmWaterTreatment::frmWaterTreatment(Workbench& wb, RecipeEditor& editor, QWidget* parent)
    : CalcWindow(wb, WaterTreatment::kSection, kHelpPage, QSize(800, 430), parent), model(editor), editor_(editor) {
  setObjectName("frmWaterTreatment");
  setWindowTitle(WaterTreatment::kCaption);

  // The salts: one row each, the ions they bring in ppm.
  grdChemical = new QTableWidget(kChemicalCount, kFirstIonColumn + kIonCount, this);
  grdChemical->setObjectName("grdChemical");
  plainGrid(grdChemical);
  QStringList heads = {"Formula", "Water Treatment Chemical", "Tsp", "Grams", ""};
  for (const char* ion : ionNames()) heads << ion;
  grdChemical->setHorizontalHeaderLabels(heads);
  const int widths[] = {kFormulaWidth, kNameWidth, kBoxWidth, kBoxWidth, kSpinWidth};
  for (int c = 0; c < kFirstIonColumn + kIonCount; ++c)
    grdChemical->setColumnWidth(c, c < kFirstIonColumn ? widths[c] : kIonWidth);
  for (int i = 1; i <= kChemicalCount; ++i) {
    const int r = i - 1;
    grdChemical->setRowHeight(r, 28);
    auto box = [&](const char* kind, const QString& tip) {
      auto* e = numberBox(qPrintable(QString("%1%2").arg(kind).arg(i)), tip, kBoxWidth);
      e->setFrame(false);
      return e;
    };
    const QString name = waterChemicals()[static_cast<size_t>(r)].name;
    txtTsp[i] = box("txtTsp", tr("Teaspoons of %1 added to the water").arg(name));
    txtGrams[i] = box("txtGrams", tr("Grams of %1 added to the water").arg(name));
    udcDelta[i] = new UpDown(this);
    udcDelta[i]->setObjectName(QString("udcDelta%1").arg(i));
    udcDelta[i]->setToolTip(tr("Step the amount by the increment chosen below"));
    grdChemical->setCellWidget(r, kTspColumn, txtTsp[i]);
    grdChemical->setCellWidget(r, kGramsColumn, txtGrams[i]);
    grdChemical->setCellWidget(r, kSpinColumn, udcDelta[i]);
    connect(txtTsp[i], &QLineEdit::textEdited, this, [this, i](const QString& t) {
      model.setTsp(i, s8(t));
      refresh();
    });
    connect(txtGrams[i], &QLineEdit::textEdited, this, [this, i](const QString& t) {
      model.setGrams(i, s8(t));
      refresh();
    });
    connect(udcDelta[i], &UpDown::stepped, this, [this, i](int d) {
      model.udcDelta(i, d);
      refresh();
    });
  }
  grdChemical->setFixedHeight(gridHeight(grdChemical));

  // Local water, totals, the target (editable) and the verdict, under the ion columns above.
  grdTotals = new QTableWidget(4, 1 + kIonCount, this);
  grdTotals->setObjectName("grdTotals");
  plainGrid(grdTotals);
  grdTotals->horizontalHeader()->hide();
  grdTotals->setColumnWidth(0, kFormulaWidth + kNameWidth + 2 * kBoxWidth + kSpinWidth);
  for (int c = 1; c <= kIonCount; ++c) grdTotals->setColumnWidth(c, kIonWidth);
  for (int r = 0; r < 4; ++r) grdTotals->setRowHeight(r, 24);
  grdTotals->setEditTriggers(QAbstractItemView::AllEditTriggers);
  grdTotals->setFocusPolicy(Qt::StrongFocus);  // the target row is typed in
  grdTotals->setToolTip(tr("Type a target in the row of target concentrations to make a water of your own"));
  grdTotals->setFixedHeight(gridHeight(grdTotals));
  connect(grdTotals, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* it) {
    if (refreshing_ || it->row() != WaterTreatment::ROW_TARGET || it->column() < 1) return;
    model.editTarget(it->column() - 1, s8(it->text()));
    refresh();
  });
  const int gridWidth = grdTotals->columnWidth(0) + kIonCount * kIonWidth + 2 * grdTotals->frameWidth();
  grdChemical->setFixedWidth(gridWidth);
  grdTotals->setFixedWidth(gridWidth);

  cboFamous = new QComboBox(this);
  cboFamous->setObjectName("cboFamous");
  for (const FamousWaterInfo& w : famousWaters()) cboFamous->addItem(w.name);
  cboFamous->setToolTip(tr("The water to brew like: its ions become the target concentrations"));
  connect(cboFamous, &QComboBox::activated, this, [this](int i) {
    model.selectFamous(i);
    refresh();
  });
  txtVolume = new QLineEdit(this);
  txtVolume->setObjectName("txtVolume");
  txtVolume->setReadOnly(true);
  txtVolume->setMaximumWidth(70);
  txtVolume->setAlignment(Qt::AlignRight);
  txtVolume->setToolTip(tr("The recipe's fermentation volume, which the salts are dissolved in"));
  lblVolumeUnits = new QLabel(this);
  lblVolumeUnits->setObjectName("lblVolumeUnits");

  auto* incr = new QGroupBox(tr("Increment"), this);
  auto* incrRow = new QHBoxLayout(incr);
  auto* group = new QButtonGroup(this);
  const char* captions[] = {"&Tsp", "&Grams"};
  for (int k = 0; k < 2; ++k) {
    optIncrement[k] = new QRadioButton(tr(captions[k]), incr);
    optIncrement[k]->setObjectName(QString("optIncrement%1").arg(k));
    group->addButton(optIncrement[k], k);
    incrRow->addWidget(optIncrement[k]);
  }
  optIncrement[0]->setToolTip(tr("The spinners step the teaspoons"));
  optIncrement[1]->setToolTip(tr("The spinners step the grams"));
  connect(group, &QButtonGroup::idClicked, this, [this](int k) { model.optIncrement(k); });

  cmdAccept = button(tr("&Accept"), "cmdAccept", tr("Write the salts to the recipe in teaspoons"));
  cmdAccept->setDefault(true);
  cmdCancel = button(tr("&Cancel"), "cmdCancel", tr("Close the calculator"));
  cmdReset = button(tr("&Reset"), "cmdReset", tr("Clear the six salts"));
  cmdDefaults = button(tr("&Defaults"), "cmdDefaults", tr("Your local water, the increments and the threshold"));
  cmdHelp = button(tr("&Help"), "cmdHelp", tr("Help on water treatment (F1)"));
  connect(cmdAccept, &QPushButton::clicked, this, &frmWaterTreatment::cmdAccept_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);
  connect(cmdReset, &QPushButton::clicked, this, &frmWaterTreatment::cmdReset_Click);
  connect(cmdHelp, &QPushButton::clicked, this, &CalcWindow::showHelp);
  connect(cmdDefaults, &QPushButton::clicked, this, [this] {
    frmProperties dlg(wb_, this);
    for (int i = 0; i < dlg.tbsOptions->count(); ++i)
      if (dlg.tbsOptions->tabText(i).remove('&') == "Water Treatment") dlg.tbsOptions->setCurrentIndex(i);
    dlg.exec();
    model.optIncrement(model.IncrementMode);  // a new step takes effect at once
  });

  auto* famousLabel = new QLabel(tr("Target &water:"), this);
  famousLabel->setBuddy(cboFamous);
  auto* top = new QHBoxLayout;
  top->addWidget(famousLabel);
  top->addWidget(cboFamous);
  top->addSpacing(20);
  top->addWidget(new QLabel(tr("Water volume:"), this));
  top->addWidget(txtVolume);
  top->addWidget(lblVolumeUnits);
  top->addSpacing(20);
  top->addWidget(incr);
  top->addStretch();
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdHelp);
  buttons->addWidget(cmdDefaults);
  buttons->addWidget(cmdReset);
  buttons->addStretch();
  buttons->addWidget(cmdAccept);
  buttons->addWidget(cmdCancel);
  auto* all = new QVBoxLayout(this);
  all->addLayout(top);
  all->addWidget(grdChemical);
  all->addWidget(grdTotals);
  all->addStretch();
  all->addLayout(buttons);
  setMinimumWidth(gridWidth + 24);
  load();
}

void frmWaterTreatment::load() {
  model.load();
  optIncrement[model.IncrementMode]->setChecked(true);
  refresh();
}

void frmWaterTreatment::refresh() {
  refreshing_ = true;
  for (int i = 1; i <= kChemicalCount; ++i) {
    const auto& row = model.grdChemical[static_cast<size_t>(i)];
    setCell(grdChemical, i - 1, 0, row[0]);
    setCell(grdChemical, i - 1, 1, row[1], Qt::AlignLeft | Qt::AlignVCenter);
    for (int j = 0; j < kIonCount; ++j) setCell(grdChemical, i - 1, kFirstIonColumn + j, row[static_cast<size_t>(j) + 2]);
    setBoxText(txtTsp[i], model.txtTsp[static_cast<size_t>(i)]);
    setBoxText(txtGrams[i], model.txtGrams[static_cast<size_t>(i)]);
  }
  for (int r = 0; r < 4; ++r) {
    const auto& row = model.grdTotals[static_cast<size_t>(r)];
    setCell(grdTotals, r, 0, row[0], Qt::AlignLeft | Qt::AlignVCenter);
    for (int c = 1; c <= kIonCount; ++c) {
      setCell(grdTotals, r, c, row[static_cast<size_t>(c)]);
      QTableWidgetItem* it = grdTotals->item(r, c);
      if (r == WaterTreatment::ROW_TARGET) {
        it->setFlags(Qt::ItemIsEnabled | Qt::ItemIsEditable);
        it->setBackground(QColor(255, 255, 225));
      }
      if (r == WaterTreatment::ROW_RANGE)
        it->setForeground(row[static_cast<size_t>(c)] == "OK" ? QColor(0, 120, 0) : QColor(200, 0, 0));
    }
  }
  QFont bold = grdTotals->font();
  bold.setBold(true);
  for (int c = 0; c <= kIonCount; ++c) grdTotals->item(WaterTreatment::ROW_RANGE, c)->setFont(bold);
  cboFamous->setCurrentIndex(model.cboFamous);
  txtVolume->setText(qs(model.txtVolume));
  lblVolumeUnits->setText(qs(model.lblVolumeUnits));
  refreshing_ = false;
}

void frmWaterTreatment::cmdAccept_Click() {
  model.cmdAccept();
  resultReached();
  close();
}

void frmWaterTreatment::cmdReset_Click() {
  model.cmdReset();
  refresh();
}

bool frmWaterTreatment::mayClose() {
  const bool was = model.Changed;
  if (!model.queryClose()) return false;
  if (was && !model.Changed) resultReached();
  return true;
}

}  // namespace zy
