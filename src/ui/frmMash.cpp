#include "ui/frmMash.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <cmath>

#include "core/measures.h"
#include "recipes/RecipeEditor.h"
#include "ui/QtPrompter.h"

namespace zy {

namespace {
// Return in the time or temperature box moves on, as Tab does.
class ReturnIsTab : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() == QEvent::KeyPress) {
      const int k = static_cast<QKeyEvent*>(e)->key();
      if (k == Qt::Key_Return || k == Qt::Key_Enter) {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(o, &tab);
        return true;
      }
    }
    return false;
  }
};

QString axisNumber(double v) { return QString::number(std::round(v * 10) / 10, 'g', 6); }
}  // namespace

MashChart::MashChart(const MashSchedule& model, QWidget* parent) : QWidget(parent), model_(model) {
  setObjectName("plotMash");
  setAutoFillBackground(true);
  QPalette p = palette();
  p.setColor(QPalette::Window, Qt::white);
  setPalette(p);
  setToolTip(tr("The mash temperature over time"));
}

void MashChart::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QColor(160, 160, 160));
  p.drawRect(rect().adjusted(0, 0, -1, -1));
  // The model scales by the drawing area in twips, 15 to a pixel.
  const MashPlot plot = model_.plotMash(width() * 15.0, height() * 15.0);
  const QFontMetrics fm(font());
  const int left = fm.horizontalAdvance("000") + fm.height() + 14, bottom = fm.height() * 2 + 12, top = 12,
            right = 18;
  const QRect area(left, top, std::max(10, width() - left - right), std::max(10, height() - top - bottom));
  const double tspan = std::max(1e-9, plot.timeMax - plot.timeMin), vspan = std::max(1e-9, plot.tempMax - plot.tempMin);
  auto at = [&](double t, double v) {
    return QPointF(area.left() + (t - plot.timeMin) / tspan * area.width(),
                   area.bottom() - (v - plot.tempMin) / vspan * area.height());
  };
  // Grid and ticks.
  p.setPen(Qt::black);
  p.drawLine(area.bottomLeft(), area.bottomRight());
  p.drawLine(area.bottomLeft(), area.topLeft());
  const QPen grid(QColor(225, 225, 225), 1, Qt::DotLine);
  if (plot.timeStep > 0)
    for (double t = plot.timeMin; t <= plot.timeMax + 1e-9 && t - plot.timeMin < 1000 * plot.timeStep; t += plot.timeStep) {
      const QPointF a = at(t, plot.tempMin);
      p.setPen(grid);
      p.drawLine(a, at(t, plot.tempMax));
      p.setPen(Qt::black);
      p.drawLine(a, a + QPointF(0, 4));
      p.drawText(QRectF(a.x() - 30, a.y() + 5, 60, fm.height()), Qt::AlignHCenter, axisNumber(t));
    }
  if (plot.tempStep > 0)
    for (double v = plot.tempMin; v <= plot.tempMax + 1e-9 && v - plot.tempMin < 1000 * plot.tempStep; v += plot.tempStep) {
      const QPointF a = at(plot.timeMin, v);
      p.setPen(grid);
      p.drawLine(a, at(plot.timeMax, v));
      p.setPen(Qt::black);
      p.drawLine(a, a - QPointF(4, 0));
      p.drawText(QRectF(a.x() - 60, a.y() - fm.height() / 2.0, 54, fm.height()), Qt::AlignRight | Qt::AlignVCenter,
                 axisNumber(v));
    }
  // Axis titles.
  p.drawText(QRect(area.left(), height() - fm.height() - 4, area.width(), fm.height()), Qt::AlignHCenter,
             qs(plot.xTitle));
  p.save();
  p.translate(4, area.center().y());
  p.rotate(-90);
  p.drawText(QRect(-area.height() / 2, 0, area.height(), fm.height()), Qt::AlignHCenter, qs(plot.yTitle));
  p.restore();
  // The curve.
  if (plot.points.empty()) return;
  QPainterPath path(at(plot.points[0].first, plot.points[0].second));
  for (size_t i = 1; i < plot.points.size(); ++i) path.lineTo(at(plot.points[i].first, plot.points[i].second));
  p.setPen(QPen(QColor(180, 40, 20), 2));
  p.drawPath(path);
  p.setBrush(QColor(180, 40, 20));
  if (!plot.staircase)
    for (const auto& [t, v] : plot.points) p.drawEllipse(at(t, v), 3, 3);
}

frmMash::frmMash(Workbench& wb, RecipeEditor& editor, QWidget* parent)
    : CalcWindow(wb, kSection, kHelpPage, QSize(820, 440), parent), model(editor), editor_(editor) {
  setObjectName("frmMash");
  setWindowTitle(MashSchedule::kCaption);

  lvMash = new QTreeWidget(this);
  lvMash->setObjectName("lvMash");
  lvMash->setRootIsDecorated(false);
  lvMash->setColumnCount(3);
  lvMash->setColumnWidth(0, 80);
  lvMash->setColumnWidth(1, 70);
  lvMash->header()->setStretchLastSection(true);
  lvMash->setToolTip(tr("The mash steps; choose one to edit it below"));
  connect(lvMash, &QTreeWidget::currentItemChanged, this, [this] {
    if (refreshing_) return;
    model.select(lvMash->currentItem() ? lvMash->indexOfTopLevelItem(lvMash->currentItem()) : -1);
    refresh();
  });

  auto* modes = new QGroupBox(tr("Times"), this);
  auto* modeRow = new QVBoxLayout(modes);
  auto* group = new QButtonGroup(this);
  optTime[1] = new QRadioButton(tr("For &Each Temp Separately"), modes);
  optTime[1]->setToolTip(tr("Each entry holds its temperature for its minutes"));
  optTime[0] = new QRadioButton(tr("From the &Start of the Mash"), modes);
  optTime[0]->setToolTip(tr("Each entry is the temperature reached at its minute from the start of the mash"));
  for (int k : {1, 0}) {
    optTime[k]->setObjectName(QString("optTime%1").arg(k));
    group->addButton(optTime[k], k);
    modeRow->addWidget(optTime[k]);
  }
  connect(group, &QButtonGroup::idClicked, this, [this](int k) {
    model.optTime(k);
    refresh();
  });

  cmdNew = button(tr("&New"), "cmdNew", tr("A new step behind the chosen one"));
  cmdDelete = button(tr("&Delete"), "cmdDelete", tr("Delete the chosen step"));
  cmdMoveUp = button(tr("Move &Up"), "cmdMoveUp", tr("Move the chosen step one place earlier"));
  cmdMoveDn = button(tr("Move Do&wn"), "cmdMoveDn", tr("Move the chosen step one place later"));
  connect(cmdNew, &QPushButton::clicked, this, [this] {
    model.cmdNew();
    refresh();
    if (txtTime->isEnabled()) txtTime->setFocus();
  });
  connect(cmdDelete, &QPushButton::clicked, this, [this] {
    model.cmdDelete();
    refresh();
  });
  connect(cmdMoveUp, &QPushButton::clicked, this, [this] {
    model.cmdMoveUp();
    refresh();
  });
  connect(cmdMoveDn, &QPushButton::clicked, this, [this] {
    model.cmdMoveDn();
    refresh();
  });

  txtTime = numberBox("txtTime", tr("Minutes"));
  txtTemp = numberBox("txtTemp", tr("Temperature"));
  txtComment = new QLineEdit(this);
  txtComment->setObjectName("txtComment");
  txtComment->setMaxLength(40);
  txtComment->setToolTip(tr("What happens in this step, such as \"Protein Rest\""));
  auto* returnIsTab = new ReturnIsTab(this);
  txtTime->installEventFilter(returnIsTab);
  txtTemp->installEventFilter(returnIsTab);
  connect(txtTime, &QLineEdit::textEdited, this, [this](const QString& t) {
    model.setTime(s8(t));
    refresh();
  });
  connect(txtTemp, &QLineEdit::textEdited, this, [this](const QString& t) {
    model.setTemp(s8(t));
    refresh();
  });
  connect(txtComment, &QLineEdit::textEdited, this, [this](const QString& t) {
    model.setComment(s8(t));
    refresh();
  });
  lblTime = new QLabel(tr("&Time:"), this);
  lblTime->setBuddy(txtTime);
  lblTemp = new QLabel(tr("Tem&p:"), this);
  lblTemp->setBuddy(txtTemp);
  lblComment = new QLabel(tr("Co&mment:"), this);
  lblComment->setBuddy(txtComment);

  plotMash = new MashChart(model, this);

  cmdOK = button(tr("&OK"), "cmdOK", tr("Store the steps in the recipe"));
  cmdCancel = button(tr("&Cancel"), "cmdCancel", tr("Close; a changed schedule is offered for saving"));
  cmdHelp = button(tr("&Help"), "cmdHelp", tr("Help on the mash schedule (F1)"));
  cmdUnitMash = button(tr("Units/Mash Dat&a..."), "cmdUnitMash",
                       tr("The recipe's unit system, mash type, mash efficiency and boil time"));
  connect(cmdOK, &QPushButton::clicked, this, &frmMash::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &QWidget::close);
  connect(cmdHelp, &QPushButton::clicked, this, &CalcWindow::showHelp);
  connect(cmdUnitMash, &QPushButton::clicked, this, [this] {
    if (openUnitMashData) openUnitMashData();
  });

  auto* listButtons = new QHBoxLayout;
  for (QPushButton* b : {cmdNew, cmdDelete, cmdMoveUp, cmdMoveDn}) listButtons->addWidget(b);
  auto* edits = new QGridLayout;
  edits->addWidget(lblTime, 0, 0);
  edits->addWidget(txtTime, 0, 1);
  edits->addWidget(lblTemp, 0, 2);
  edits->addWidget(txtTemp, 0, 3);
  edits->setColumnStretch(4, 1);
  edits->addWidget(lblComment, 1, 0);
  edits->addWidget(txtComment, 1, 1, 1, 4);
  auto* leftSide = new QVBoxLayout;
  leftSide->addWidget(modes);
  leftSide->addWidget(lvMash, 1);
  leftSide->addLayout(listButtons);
  leftSide->addLayout(edits);
  auto* body = new QHBoxLayout;
  body->addLayout(leftSide, 0);
  body->addWidget(plotMash, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdHelp);
  buttons->addWidget(cmdUnitMash);
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);
  auto* all = new QVBoxLayout(this);
  all->addLayout(body, 1);
  all->addLayout(buttons);
  // The window never goes below its design size; the chart takes what is free.
  setMinimumSize(720, 400);
  load();
}

void frmMash::load() {
  model.load();
  refresh();
}

void frmMash::refresh() {
  refreshing_ = true;
  optTime[model.mode]->setChecked(true);
  const QString unit = qs(temperatureLabel(wb_.recipe.rec.unitType));
  lvMash->setHeaderLabels({model.mode == MashSchedule::EACH_TEMP ? tr("Minutes") : tr("At Minute"), tr("Temp %1").arg(unit),
                           tr("Comment")});
  const int n = static_cast<int>(model.lvMash.size());
  while (lvMash->topLevelItemCount() > n) delete lvMash->takeTopLevelItem(lvMash->topLevelItemCount() - 1);
  while (lvMash->topLevelItemCount() < n) lvMash->addTopLevelItem(new QTreeWidgetItem);
  for (int i = 0; i < n; ++i) {
    const MashEntry& e = model.lvMash[static_cast<size_t>(i)];
    QTreeWidgetItem* it = lvMash->topLevelItem(i);
    it->setText(0, qs(e.time));
    it->setText(1, qs(e.temp));
    it->setText(2, qs(e.comment));
    it->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
    it->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
  }
  lvMash->setCurrentItem(model.selected >= 0 ? lvMash->topLevelItem(model.selected) : nullptr);
  if (model.selected < 0) lvMash->clearSelection();
  setBoxText(txtTime, model.txtTime);
  setBoxText(txtTemp, model.txtTemp);
  setBoxText(txtComment, model.txtComment);
  txtTemp->setToolTip(tr("Temperature in %1").arg(unit));
  txtTime->setToolTip(model.mode == MashSchedule::EACH_TEMP ? tr("Minutes this temperature is held")
                                                            : tr("Minutes from the start of the mash"));
  for (QWidget* w : std::initializer_list<QWidget*>{txtTime, txtTemp, txtComment, lblTime, lblTemp, lblComment})
    w->setEnabled(model.editEnabled);
  cmdDelete->setEnabled(model.cmdDeleteEnabled);
  cmdMoveUp->setEnabled(model.cmdMoveUpEnabled);
  cmdMoveDn->setEnabled(model.cmdMoveDnEnabled);
  plotMash->update();
  refreshing_ = false;
}

void frmMash::cmdOK_Click() {
  model.cmdOK();
  resultReached();
  close();
}

bool frmMash::mayClose() {
  const bool was = model.changed;
  if (!model.queryClose()) return false;
  if (was && !model.changed) resultReached();
  return true;
}

}  // namespace zy
