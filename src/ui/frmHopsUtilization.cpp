#include "ui/HelpButton.h"
#include "ui/frmHopsUtilization.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
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
#include <QShortcut>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "calculators/HopsUtilizationReport.h"
#include "ui/QtPrompter.h"
#include "ui/ReportActions.h"
#include "ui/frmHelp.h"
#include "ui/WindowPlacement.h"
#include "workbench/Startup.h"

namespace zy {

namespace {

constexpr int kTopUnits = HopsUtilizationEditor::kBaseline - 40 * HopsUtilizationEditor::kUnitsPerPercent;

QPushButton* makeButton(const QString& caption, const QString& tip, QWidget* parent) {
  auto* b = new QPushButton(caption, parent);
  b->setToolTip(tip);
  b->setAutoDefault(false);  // Return belongs to the grid's editor and the factor boxes
  return b;
}

}  // namespace

// ---- the graph ----------------------------------------------------------------------------------

UtilGraphView::UtilGraphView(QWidget* parent) : QWidget(parent) {
  setObjectName("picGraph");
  setAutoFillBackground(true);
  QPalette p = palette();
  p.setColor(QPalette::Window, Qt::white);
  setPalette(p);
}

void UtilGraphView::setCurves(const std::vector<UtilGraphCurve>& c, const QString& e) {
  curves = c;
  error = e;
  update();
}

QColor UtilGraphView::curveColor(int i) {
  static const QColor colours[] = {QColor(200, 30, 30), QColor(30, 70, 200), QColor(20, 140, 40)};
  return colours[std::clamp(i, 0, 2)];
}

QString UtilGraphView::legendText(const UtilGraphCurve& c) {
  if (c.label == "Base") return QObject::tr("Base curve");
  return QObject::tr("Gravity %1").arg(qs(c.label));
}

void UtilGraphView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QFontMetrics fm = p.fontMetrics();
  const int left = fm.horizontalAdvance("40% ") + 12, right = 14, top = 2 * fm.height() + 4;
  const int bottom = 2 * fm.height() + 14;
  const QRect plot(left, top, std::max(10, width() - left - right), std::max(10, height() - top - bottom));

  // The axes: minutes along the bottom, percent up the side, 40 percent at the top.
  p.setPen(QColor(225, 225, 225));
  for (int pct = 5; pct <= 40; pct += 5) {
    const int y = plot.bottom() - plot.height() * pct / 40;
    p.drawLine(plot.left(), y, plot.right(), y);
  }
  for (int m = 10; m <= 90; m += 10) {
    const int x = plot.left() + plot.width() * m / 90;
    p.drawLine(x, plot.top(), x, plot.bottom());
  }
  p.setPen(palette().color(QPalette::WindowText));
  p.drawLine(plot.bottomLeft(), plot.topLeft());
  p.drawLine(plot.bottomLeft(), plot.bottomRight());
  for (int pct = 0; pct <= 40; pct += 5) {
    const int y = plot.bottom() - plot.height() * pct / 40;
    p.drawLine(plot.left() - 4, y, plot.left(), y);
    if (pct % 10 == 0) {
      const QString t = pct == 40 ? QString("40% ") : QString::number(pct);
      p.drawText(QRect(0, y - fm.height() / 2, left - 6, fm.height()), Qt::AlignRight | Qt::AlignVCenter, t);
    }
  }
  for (int m = 0; m <= 90; m += 5) {
    const int x = plot.left() + plot.width() * m / 90;
    p.drawLine(x, plot.bottom(), x, plot.bottom() + (m % 10 == 0 ? 5 : 3));
    if (m % 10 == 0)
      p.drawText(QRect(x - 20, plot.bottom() + 6, 40, fm.height()), Qt::AlignHCenter | Qt::AlignTop, QString::number(m));
  }
  p.drawText(QRect(plot.left(), plot.bottom() + 6 + fm.height(), plot.width(), fm.height() + 4), Qt::AlignCenter,
             "BoilTime (Minutes)");
  p.drawText(QRect(2, 2, left + 60, fm.height() + 4), Qt::AlignLeft | Qt::AlignVCenter, "Util %");

  if (!error.isEmpty()) {
    QFont f = p.font();
    f.setBold(true);
    p.setFont(f);
    p.setPen(QColor(190, 0, 0));
    p.drawText(plot, Qt::AlignCenter | Qt::TextWordWrap, error);
    return;
  }

  // The curves, each row's point joined to the next one's.
  auto point = [&](int row, int units) {
    const double x = plot.left() + plot.width() * (row * 5.0) / 90.0;
    const double y = plot.top() + plot.height() * double(units - kTopUnits) / double(HopsUtilizationEditor::kBaseline - kTopUnits);
    return QPointF(x, y);
  };
  p.save();
  p.setClipRect(plot.adjusted(0, -2, 2, 0));
  for (size_t c = 0; c < curves.size(); ++c) {
    QPainterPath path;
    for (int row = 1; row <= kUtilRows; ++row) {
      const QPointF pt = point(row, curves[c].heights[static_cast<size_t>(row - 1)]);
      if (row == 1) path.moveTo(pt);
      else path.lineTo(pt);
    }
    p.setPen(QPen(curveColor(static_cast<int>(c)), 2));
    p.drawPath(path);
  }
  p.restore();

  // The legend, in the lower right where the curves rarely run.
  if (curves.empty()) return;
  int legendWidth = 0;
  for (const auto& c : curves) legendWidth = std::max(legendWidth, fm.horizontalAdvance(legendText(c)));
  const int lineH = fm.height() + 2;
  QRect box(plot.right() - legendWidth - 44, plot.bottom() - lineH * int(curves.size()) - 14, legendWidth + 36,
            lineH * int(curves.size()) + 8);
  p.setPen(QColor(160, 160, 160));
  p.setBrush(Qt::white);
  p.drawRect(box);
  for (size_t c = 0; c < curves.size(); ++c) {
    const int y = box.top() + 4 + lineH * int(c) + lineH / 2;
    p.setPen(QPen(curveColor(static_cast<int>(c)), 2));
    p.drawLine(box.left() + 6, y, box.left() + 24, y);
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(QRect(box.left() + 30, y - lineH / 2, legendWidth + 4, lineH), Qt::AlignLeft | Qt::AlignVCenter,
               legendText(curves[c]));
  }
}

// ---- the window ---------------------------------------------------------------------------------

frmHopsUtilization::frmHopsUtilization(Workbench& wb, QWidget* parent) : QWidget(parent, Qt::Window), wb_(wb) {
  setObjectName("frmHopsUtilization");
  setWindowTitle(tr("Hops Utilization"));

  // The grid with its cell editor.
  grdUtil = new QTableWidget(kUtilRows, 2, this);
  grdUtil->setObjectName("grdUtil");
  grdUtil->setHorizontalHeaderLabels({"Minutes", "Util %"});
  grdUtil->verticalHeader()->hide();
  grdUtil->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grdUtil->setSelectionMode(QAbstractItemView::SingleSelection);
  grdUtil->setTabKeyNavigation(false);
  grdUtil->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grdUtil->verticalHeader()->setMinimumSectionSize(grdUtil->fontMetrics().height() + 2);
  grdUtil->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);  // the rows fill the height
  grdUtil->setToolTip(tr("Utilization in percent by boil minutes. Type a number over a value, or press "
                         "Space or double-click to change it; Return keeps it, Esc drops it."));
  for (int r = 0; r < kUtilRows; ++r) {
    auto* m = new QTableWidgetItem(qs(HopsUtilizationEditor::minutesText(r + 1)));
    m->setFlags(Qt::ItemIsEnabled);
    m->setTextAlignment(Qt::AlignCenter);
    m->setBackground(palette().color(QPalette::AlternateBase));
    grdUtil->setItem(r, 0, m);
    auto* v = new QTableWidgetItem;
    v->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    v->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grdUtil->setItem(r, 1, v);
  }
  grdUtil->setMinimumWidth(170);
  grdUtil->setMaximumWidth(210);
  grdUtil->installEventFilter(this);
  connect(grdUtil, &QTableWidget::currentCellChanged, this, [this](int row, int col, int oldRow, int) {
    if (editorOpen() && row != oldRow) commitEditor();
    if (col == 0 && row >= 0) grdUtil->setCurrentCell(row, 1);
  });
  connect(grdUtil, &QTableWidget::cellDoubleClicked, this, [this](int row, int) {
    grdUtil->setCurrentCell(row, 1);
    openEditor({});
  });
  txtEdit = new QLineEdit(grdUtil->viewport());
  txtEdit->setObjectName("txtEdit");
  txtEdit->setAlignment(Qt::AlignRight);
  txtEdit->setFrame(false);
  txtEdit->hide();
  txtEdit->installEventFilter(this);

  auto* gridLabel = new QLabel(tr("&Utilization curve:"), this);
  gridLabel->setBuddy(grdUtil);

  // The curve's title and the presets.
  lblTitle = new QLabel(this);
  lblTitle->setObjectName("lblTitle");
  QFont tf = lblTitle->font();
  tf.setBold(true);
  tf.setPointSizeF(tf.pointSizeF() * 1.2);
  lblTitle->setFont(tf);
  lblTitle->setToolTip(tr("The curve in use; any change to a value or a factor makes it a custom curve"));
  cmdRager = makeButton("&Rager", tr("Load the Rager curve with its gravity adjustment"), this);
  cmdTinseth = makeButton("&Tinseth", tr("Load the Tinseth curve with its gravity adjustment"), this);
  cmdGaretz = makeButton("&Garetz", tr("Load the Garetz curve with the Rager/Garetz gravity adjustment"), this);
  cmdReset = makeButton("R&eset", tr("Set every value to 0.0 and switch the gravity adjustment off"), this);
  connect(cmdRager, &QPushButton::clicked, this, [this] { discardEditor(); model.cmdRager(); refresh(); });
  connect(cmdTinseth, &QPushButton::clicked, this, [this] { discardEditor(); model.cmdTinseth(); refresh(); });
  connect(cmdGaretz, &QPushButton::clicked, this, [this] { discardEditor(); model.cmdGaretz(); refresh(); });
  connect(cmdReset, &QPushButton::clicked, this, [this] { discardEditor(); model.cmdReset(); refresh(); });
  auto* presets = new QHBoxLayout;
  presets->addWidget(new QLabel(tr("Curves:"), this));
  for (QPushButton* b : {cmdRager, cmdTinseth, cmdGaretz, cmdReset}) presets->addWidget(b);
  presets->addStretch();

  // The gravity adjustment.
  auto* fraGravity = new QGroupBox(tr("High Gravity Adjustment"), this);
  auto* modes = new QHBoxLayout;
  const char* captions[3] = {"&None", "Rager/Garet&z", "Tin&seth"};
  const char* tips[3] = {"No adjustment: the curve serves every gravity",
                         "Utilization divided by 1 + (gravity - factor 1) / factor 2",
                         "Utilization multiplied by factor 2 raised to (gravity - factor 1)"};
  for (int i = 0; i < 3; ++i) {
    optGravity[i] = new QRadioButton(captions[i], fraGravity);
    optGravity[i]->setObjectName(QString("optGravity(%1)").arg(i));
    optGravity[i]->setToolTip(tr(tips[i]));
    modes->addWidget(optGravity[i]);
    // A click selects the mode's presets even when it is already chosen.
    connect(optGravity[i], &QRadioButton::clicked, this, [this, i] {
      model.setMode(i);
      refresh();
    });
  }
  modes->addStretch();
  auto* factors = new QGridLayout;
  const char* factorCaptions[3] = {"Factor &1 (start gravity):", "Factor &2 (divisor or base):",
                                   "Factor &3 (graph step):"};
  const char* factorTips[3] = {"The gravity at which the adjustment begins",
                               "The divisor (Rager/Garetz) or the base of the power (Tinseth)",
                               "The gravity step between the curves of the graph; no part of the bitterness"};
  for (int i = 0; i < 3; ++i) {
    lblFactor[i] = new QLabel(tr(factorCaptions[i]), fraGravity);
    txtFactor[i] = new QLineEdit(fraGravity);
    txtFactor[i]->setObjectName(QString("txtFactor(%1)").arg(i));
    txtFactor[i]->setToolTip(tr(factorTips[i]));
    txtFactor[i]->setMaximumWidth(110);
    txtFactor[i]->installEventFilter(this);
    lblFactor[i]->setBuddy(txtFactor[i]);
    factors->addWidget(lblFactor[i], i, 0);
    factors->addWidget(txtFactor[i], i, 1);
    connect(txtFactor[i], &QLineEdit::textEdited, this, [this, i](const QString& t) {
      if (refreshing_) return;
      model.setFactorText(i, s8(t));
      refreshFormula();
    });
  }
  factors->setColumnStretch(2, 1);
  fraFormula = new QStackedWidget(fraGravity);
  fraFormula->setObjectName("fraFormula");
  auto* none = new QLabel(tr("No gravity adjustment: the one curve serves every gravity."), fraFormula);
  none->setWordWrap(true);
  fraFormula->addWidget(none);
  fraFormula->addWidget(buildFormulaPage(0));
  fraFormula->addWidget(buildFormulaPage(1));
  auto* gv = new QVBoxLayout(fraGravity);
  gv->addLayout(modes);
  gv->addLayout(factors);
  gv->addWidget(fraFormula);

  picGraph = new UtilGraphView(this);
  picGraph->setToolTip(tr("The utilization curve, and in the adjustment modes the curves at two higher gravities"));

  cmdAccept = makeButton("&Accept", tr("Use this curve for every recipe from now on"), this);
  cmdCancel = makeButton("&Cancel", tr("Close without changing the curve in use"), this);
  cmdPrint = makeButton("&Print", tr("Print the curves, their table and the gravity adjustment as they stand"), this);
  cmdHelp = makeButton("&Help", tr("Help on the hops utilization tables (F1)"), this);
  connect(cmdAccept, &QPushButton::clicked, this, &frmHopsUtilization::cmdAccept_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmHopsUtilization::cmdCancel_Click);
  connect(cmdHelp, &QPushButton::clicked, this, &frmHopsUtilization::showHelp);
  // The report shows the curve being edited, before Accept.
  connect(cmdPrint, &QPushButton::clicked, this, [this] { previewReport(this, hopsUtilizationReportRequest(model)); });
  auto* f1 = new QShortcut(QKeySequence::HelpContents, this);
  connect(f1, &QShortcut::activated, this, &frmHopsUtilization::showHelp);

  auto* left = new QVBoxLayout;
  left->addWidget(gridLabel);
  left->addWidget(grdUtil, 1);
  auto* right = new QVBoxLayout;
  right->addWidget(lblTitle);
  right->addLayout(presets);
  right->addWidget(fraGravity);
  right->addWidget(picGraph, 1);
  auto* top = new QHBoxLayout;
  top->addLayout(left);
  top->addLayout(right, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdHelp);
  buttons->addWidget(cmdPrint);
  buttons->addStretch();
  buttons->addWidget(cmdAccept);
  buttons->addWidget(cmdCancel);
  auto* all = new QVBoxLayout(this);
  all->addLayout(top, 1);
  all->addLayout(buttons);

  setTabOrder(grdUtil, cmdRager);
  // The bottom row as it stands on the screen: Help and Print on the left, Accept and Cancel right.
  setTabOrder(txtFactor[2], cmdHelp);
  setTabOrder(cmdHelp, cmdPrint);
  setTabOrder(cmdPrint, cmdAccept);
  setTabOrder(cmdAccept, cmdCancel);
  resize(860, 640);
  load();
}

QWidget* frmHopsUtilization::buildFormulaPage(int k) {
  auto* page = new QWidget(fraFormula);
  auto mk = [&](const char* name) {
    auto* l = new QLabel(page);
    l->setObjectName(QString("%1(%2)").arg(name).arg(k + 1));
    return l;
  };
  lblBottom[k] = mk("lblBottom");
  lblGravity[k] = mk("lblGravity");
  lblTop[k] = mk("lblTop");
  lblIncrement[k] = mk("lblIncrement");
  auto* g = new QGridLayout(page);
  g->setContentsMargins(0, 4, 0, 0);
  if (k == 0) {
    // Util / (1 + (Gravity - F1) / F2), the fraction written over its line.
    lblTop[k]->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    lblBottom[k]->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* line = new QFrame(page);
    line->setFrameShape(QFrame::HLine);
    g->addWidget(new QLabel(tr("Adjusted Util % = Util % / ( 1 + "), page), 0, 0, 3, 1);
    g->addWidget(lblTop[k], 0, 1);
    g->addWidget(line, 1, 1);
    g->addWidget(lblBottom[k], 2, 1);
    g->addWidget(new QLabel(")", page), 0, 2, 3, 1);
  } else {
    // Util * F2 ^ (Gravity - F1), the power raised.
    lblTop[k]->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    lblBottom[k]->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QFont small = lblTop[k]->font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    lblTop[k]->setFont(small);
    g->setVerticalSpacing(0);
    g->addWidget(new QLabel(tr("Adjusted Util % = Util % x "), page), 1, 0);
    g->addWidget(lblBottom[k], 1, 1);
    g->addWidget(lblTop[k], 0, 2);
  }
  g->addWidget(lblGravity[k], 3, 0, 1, 4);
  g->addWidget(lblIncrement[k], 4, 0, 1, 4);
  g->setColumnStretch(3, 1);
  return page;
}

void frmHopsUtilization::load() {
  discardEditor();
  model = HopsUtilizationEditor{};
  model.load(wb_.hops);
  refresh();
  grdUtil->setCurrentCell(0, 1);
}

void frmHopsUtilization::refresh() {
  refreshing_ = true;
  for (int r = 1; r <= kUtilRows; ++r) grdUtil->item(r - 1, 1)->setText(qs(model.cells[static_cast<size_t>(r)]));
  lblTitle->setText(qs(model.lblTitle));
  for (int i = 0; i < 3; ++i) {
    optGravity[i]->setChecked(model.mode == i);
    const size_t k = static_cast<size_t>(i);
    // The length first: a shorter limit left from the other mode would cut the new text.
    txtFactor[i]->setMaxLength(model.factorMaxLength[k] > 0 ? model.factorMaxLength[k] : 32767);
    if (txtFactor[i]->text() != qs(model.txtFactor[k])) txtFactor[i]->setText(qs(model.txtFactor[k]));
    txtFactor[i]->setEnabled(model.factorEnabled[k]);
    lblFactor[i]->setEnabled(model.factorEnabled[k]);
    txtFactor[i]->setReadOnly(model.factorLocked[k]);
  }
  lblFactor[1]->setText(model.mode == GRAVITY_ADJUST_TINSETH ? tr("Factor &2 (base of power):")
                                                              : tr("Factor &2 (divisor):"));
  refreshFormula();
  refreshing_ = false;
}

void frmHopsUtilization::refreshFormula() {
  for (size_t k = 0; k < 2; ++k) {
    lblBottom[k]->setText(qs(model.lblBottom[k]));
    lblGravity[k]->setText(qs(model.lblGravity[k]));
    lblTop[k]->setText(qs(model.lblTop[k]));
    lblIncrement[k]->setText(qs(model.lblIncrement[k]));
  }
  fraFormula->setCurrentIndex(std::clamp(model.mode, 0, 2));
  picGraph->setCurves(model.graph, qs(model.graphError));
}

// ---- the cell editor ----------------------------------------------------------------------------

void frmHopsUtilization::openEditor(const QString& typed) {
  const int row = grdUtil->currentRow();
  if (row < 0 || row >= kUtilRows) return;
  grdUtil->setCurrentCell(row, 1);
  editRow_ = row + 1;
  txtEdit->setText(typed.isEmpty() ? grdUtil->item(row, 1)->text() : typed);
  txtEdit->setGeometry(grdUtil->visualItemRect(grdUtil->item(row, 1)));
  txtEdit->show();
  txtEdit->setFocus();
  txtEdit->setCursorPosition(txtEdit->text().size());
  txtEdit->deselect();
}

void frmHopsUtilization::commitEditor() {
  if (!editorOpen()) return;
  const int row = editRow_;
  editRow_ = -1;
  const QString text = txtEdit->text();
  txtEdit->hide();
  model.editCell(row, s8(text));
  refresh();
}

void frmHopsUtilization::discardEditor() {
  editRow_ = -1;
  txtEdit->hide();
}

int frmHopsUtilization::factorIndex(QObject* o) const {
  for (int i = 0; i < 3; ++i)
    if (o == txtFactor[i]) return i;
  return -1;
}

bool frmHopsUtilization::eventFilter(QObject* watched, QEvent* event) {
  if (watched == grdUtil) {
    if (event->type() == QEvent::FocusIn && editorOpen()) {
      commitEditor();
    } else if (event->type() == QEvent::KeyPress && editorOpen()) {
      // Keys typed faster than the focus moved belong to the editor.
      QApplication::sendEvent(txtEdit, event);
      return true;
    } else if (event->type() == QEvent::KeyPress && !editorOpen()) {
      auto* k = static_cast<QKeyEvent*>(event);
      const QString t = k->text();
      const bool plain = !(k->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
      if (plain && t.size() == 1 && t[0].unicode() > 32 && t[0].unicode() != 127) {
        openEditor(t);  // a typed character replaces the value
        return true;
      }
      if (plain && (k->key() == Qt::Key_Space || k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter ||
                    k->key() == Qt::Key_F2 || k->key() == Qt::Key_Backspace)) {
        openEditor({});  // the value is kept, the caret at its end
        return true;
      }
    }
    return false;
  }
  if (watched == txtEdit) {
    if (event->type() == QEvent::ShortcutOverride) {
      // The editor's keys are its own, not the window's.
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Escape || key == Qt::Key_Up || key == Qt::Key_Down) {
        event->accept();
        return true;
      }
    } else if (event->type() == QEvent::KeyPress) {
      auto* k = static_cast<QKeyEvent*>(event);
      const int row = editRow_ - 1;
      switch (k->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
          grdUtil->setFocus();  // the grid's focus commits
          commitEditor();
          return true;
        case Qt::Key_Escape:
          discardEditor();
          grdUtil->setFocus();
          return true;
        case Qt::Key_Up:
          if (row > 0) {
            commitEditor();
            grdUtil->setCurrentCell(row - 1, 1);
            grdUtil->setFocus();
          }
          return true;
        case Qt::Key_Down:
          if (row >= 0 && row < kUtilRows - 1) {
            commitEditor();
            grdUtil->setCurrentCell(row + 1, 1);
            grdUtil->setFocus();
          }
          return true;
        default:
          break;
      }
    } else if (event->type() == QEvent::FocusOut && editorOpen()) {
      // Leaving for another control keeps what was typed, as going back to the grid does.
      commitEditor();
    }
    return false;
  }
  const int f = factorIndex(watched);
  if (f >= 0) {
    if (event->type() == QEvent::FocusIn) {
      model.focusFactor(f);
    } else if (event->type() == QEvent::FocusOut && !refreshing_) {
      model.validateFactor(f);
      refresh();
    } else if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        // Return settles the value as leaving the box would, and the box stays ready for more.
        model.validateFactor(f);
        refresh();
        model.focusFactor(f);
        txtFactor[f]->selectAll();
        return true;
      }
    }
  }
  return QWidget::eventFilter(watched, event);
}

// ---- Accept, Cancel, Help -----------------------------------------------------------------------

void frmHopsUtilization::cmdAccept_Click() {
  commitEditor();
  const int f = factorIndex(QApplication::focusWidget());
  if (f >= 0) {
    model.validateFactor(f);
    refresh();
  }
  model.saveHopsUtilization(wb_.hops, wb_.settings);
  if (accepted) accepted();
  close();
}

void frmHopsUtilization::cmdCancel_Click() {
  discardEditor();
  close();
}

void frmHopsUtilization::showHelp() { showHelpPage(this, wb_, openHelp, kHelpPage); }

void frmHopsUtilization::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    cmdCancel_Click();
    return;
  }
  // The grid and the factor boxes keep Return for themselves; on a button it presses the button.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (auto* b = qobject_cast<QPushButton*>(focusWidget()); b && b->isEnabled()) b->click();
    return;
  }
  QWidget::keyPressEvent(event);
}

// ---- opening and closing ------------------------------------------------------------------------

void frmHopsUtilization::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    if (!placed_) {
      placed_ = true;
      restoreScreenCentredPlacement(*this, wb_.settings, kSection, true);
    }
    load();
  }
  QWidget::showEvent(event);
}

void frmHopsUtilization::closeEvent(QCloseEvent* event) {
  discardEditor();
  if (isVisible()) saveWindowPlacement(*this, wb_.settings, kSection);
  // Kept for the next opening, which reloads it from the curve in use.
  hideUnlessAppClosing(*this, wb_, event);
}

}  // namespace zy
