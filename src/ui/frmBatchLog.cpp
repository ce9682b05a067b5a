#include "ui/frmBatchLog.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "batchlog/BatchLogReport.h"
#include "core/dates.h"
#include "core/text.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/ReportActions.h"
#include "ui/TopicIcons.h"
#include "ui/frmBatchLogCmts.h"
#include "ui/WindowPlacement.h"

namespace zy {

namespace {
constexpr int kTwips = 15;

QLabel* label(const QString& text, QWidget* buddy = nullptr) {
  auto* l = new QLabel(text);
  if (buddy) l->setBuddy(buddy);
  return l;
}

QTreeWidget* listView(const QString& name, const QStringList& columns, const std::vector<int>& widths) {
  auto* v = new QTreeWidget;
  v->setObjectName(name);
  v->setRootIsDecorated(false);
  v->setUniformRowHeights(true);
  v->setAllColumnsShowFocus(true);
  v->setHeaderLabels(columns);
  for (size_t i = 0; i < widths.size(); ++i) v->setColumnWidth(static_cast<int>(i), widths[i]);
  v->header()->setStretchLastSection(true);
  return v;
}

QComboBox* comboOf(const QString& name, const QStringList& items, bool editable = false) {
  auto* c = new QComboBox;
  c->setObjectName(name);
  c->addItems(items);
  c->setEditable(editable);
  return c;
}

template <size_t N>
QStringList names(const std::array<std::string, N>& a) {
  QStringList l;
  for (const std::string& s : a) l << qs(s);
  return l;
}
}  // namespace

QLineEdit* frmBatchLog::numberBox(LogField f, const QString& name, const QString& tip, int width) {
  auto* e = new QLineEdit;
  e->setObjectName(name);
  e->setAlignment(Qt::AlignRight);
  e->setFixedWidth(width);
  e->setToolTip(tip);
  e->setValidator(new QRegularExpressionValidator(QRegularExpression(R"([0-9]*\.?[0-9]*)"), e));
  e->installEventFilter(this);
  numberBoxes[f] = e;
  connect(e, &QLineEdit::textEdited, this, [this, f](const QString& t) {
    if (painting_) return;
    ed_.setField(f, s8(t));
    refreshFromModel();
  });
  connect(e, &QLineEdit::editingFinished, this, [this, f] {
    if (painting_ || validating_) return;
    validating_ = true;
    ed_.validateField(f);
    validating_ = false;
    refreshFromModel();
  });
  return e;
}

QLineEdit* frmBatchLog::dateBox(DateField f, const QString& name, const QString& tip) {
  auto* e = new QLineEdit;
  e->setObjectName(name);
  e->setMaxLength(11);
  e->setFixedWidth(104);
  e->setToolTip(tip);
  e->installEventFilter(this);
  dateOf_[e] = f;
  connect(e, &QLineEdit::textEdited, this, [this, f](const QString& t) {
    if (painting_) return;
    ed_.setDate(f, s8(t));
    refreshFromModel();
  });
  connect(e, &QLineEdit::editingFinished, this, [this, f] {
    if (painting_ || validating_) return;
    validating_ = true;
    ed_.validateDate(f);
    validating_ = false;
    after();
  });
  return e;
}

QToolButton* frmBatchLog::calendarButton(DateField f, QLineEdit* box, const QString& name) {
  auto* b = new QToolButton;
  b->setObjectName(name);
  b->setText("...");
  b->setToolTip("Pick the date from a calendar");
  connect(b, &QToolButton::clicked, this, [this, f, box] {
    ed_.showCalendar(f);
    const CivilDate d = civilFromSerial(ed_.monDateValue);
    monDate->setSelectedDate(QDate(d.year, d.month, d.day));
    monDate->adjustSize();
    // Beside the date box, kept on the screen.
    QPoint at = box->mapToGlobal(QPoint(box->width() + 4, 0));
    if (QScreen* s = box->screen()) {
      const QRect r = s->availableGeometry();
      at.setX(std::min(at.x(), r.right() - monDate->width()));
      at.setY(std::min(at.y(), r.bottom() - monDate->height()));
    }
    monDate->move(at);
    monDate->show();
    monDate->setFocus();
  });
  return b;
}

QLineEdit* frmBatchLog::dateWidget(DateField f) const {
  return f == DateField::DateBrewed ? txtDateBrewed : f == DateField::Reading ? txtReadDate : txtDateCond;
}

frmBatchLog::frmBatchLog(Workbench& wb, BatchLogEditor& editor, QWidget* parent)
    : QMainWindow(parent), wb_(wb), ed_(editor) {
  setWindowFlag(Qt::Window);
  setObjectName("frmBatchLog");
  setWindowTitle("Batch Log");
  setWindowIcon(recipeIcon("BatchLog"));

  // ---- Menus and toolbar ----
  QMenu* file = menuBar()->addMenu("&File");
  mnuFileSave = file->addAction(recipeIcon("Save"), "&Save", this, [this] { mnuFileSave_Click(); });
  mnuFileSave->setShortcut(QKeySequence::Save);
  mnuFilePreview = file->addAction(recipeIcon("Preview"), "Print Pre&view...");
  mnuFilePrint = file->addAction(toolIcon(ToolIcon::Print), "&Print");
  mnuFilePreview->setToolTip("See the log as it prints, with the mash efficiency reached");
  mnuFilePrint->setToolTip("Print the log");
  // The report reads the log as the window shows it, saved or not.
  connect(mnuFilePreview, &QAction::triggered, this,
          [this] { previewReport(this, batchLogReportRequest(ed_, wb_.recipe.rec.recipeName, wb_.prompter)); });
  connect(mnuFilePrint, &QAction::triggered, this,
          [this] { printReportNow(this, batchLogReportRequest(ed_, wb_.recipe.rec.recipeName, wb_.prompter)); });
  file->addSeparator();
  mnuFileClose = file->addAction(style()->standardIcon(QStyle::SP_DialogCloseButton), "&Close", this, &QWidget::close);
  file->setToolTipsVisible(true);
  QMenu* edit = menuBar()->addMenu("&Edit");
  mnuEditComments = edit->addAction(recipeIcon("Comments"), "&Comments...", this, [this] { mnuEditComments_Click(); });
  mnuEditComments->setToolTip("The general comments of this brew");
  QMenu* help = menuBar()->addMenu("&Help");
  mnuHelpContents = help->addAction(toolIcon(ToolIcon::Help), "&Contents", this, [this] {
    if (showHelpTopic) showHelpTopic("batch-log.html");
  });
  mnuHelpContents->setToolTip("Help on the batch log");

  tbToolBar = addToolBar("Toolbar");
  tbToolBar->setObjectName("tbToolBar");
  tbToolBar->setMovable(false);
  tbToolBar->setIconSize(QSize(20, 20));
  // The toolbar's buttons by their keys.
  const std::pair<QAction*, const char*> buttons[] = {{mnuFileSave, "Save"},         {mnuFilePreview, "Preview"},
                                                      {mnuFilePrint, "Print"},       {mnuEditComments, "Comments"},
                                                      {mnuFileClose, "Close"},       {mnuHelpContents, "Help"}};
  for (auto [a, key] : buttons) {
    tbToolBar->addAction(a);
    tbToolBar->widgetForAction(a)->setObjectName(key);
  }
  mnuFileClose->setToolTip("Close the Batch Log");

  // ---- The brew ----
  auto* central = new QWidget(this);
  auto* outer = new QVBoxLayout(central);
  auto* top = new QHBoxLayout;
  lblBatchNo = new QLabel;
  lblBatchNo->setObjectName("lblBatchNo");
  lblBatchNo->setMinimumWidth(40);
  txtDateBrewed = dateBox(DateField::DateBrewed, "txtDateBrewed", "The day of the brew, as mmm-dd-yyyy or month/day/year");
  cmdDate1 = calendarButton(DateField::DateBrewed, txtDateBrewed, "cmdDate1");
  cboLogStatus = comboOf("cboLogStatus", names(batchLogStatusNames()));
  cboLogStatus->setToolTip("How far the brew has come; readings and the bottling date move it along");
  lblRecipe = new QLabel;
  lblRecipe->setObjectName("lblRecipe");
  top->addWidget(label("<b>Batch #:</b>"));
  top->addWidget(lblBatchNo);
  top->addSpacing(12);
  top->addWidget(label("Date &Brewed:", txtDateBrewed));
  top->addWidget(txtDateBrewed);
  top->addWidget(cmdDate1);
  top->addSpacing(12);
  top->addWidget(label("&Status:", cboLogStatus));
  top->addWidget(cboLogStatus);
  top->addStretch(1);
  top->addWidget(lblRecipe);
  outer->addLayout(top);

  auto tempUnit = [this] {
    auto* l = new QLabel;
    lblTempUnits.push_back(l);
    return l;
  };
  auto volUnit = [this] {
    auto* l = new QLabel;
    lblVol.push_back(l);
    return l;
  };

  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  auto* right = new QVBoxLayout;
  columns->addLayout(left, 1);
  columns->addLayout(right, 1);
  outer->addLayout(columns, 1);

  // Mash.
  auto* mash = new QGroupBox("Mash");
  auto* mg = new QGridLayout(mash);
  lvMash = listView("lvMash", {"Minutes", "Temp", "Infusion"}, {70, 70});
  lvMash->setMinimumHeight(110);
  mg->addWidget(lvMash, 0, 0, 1, 7);
  auto* txtTime = numberBox(LogField::MashTime, "txtTime", "How long the step rested, in minutes", 52);
  auto* txtTemp = numberBox(LogField::MashStepTemp, "txtTemp", "The temperature the step rested at", 52);
  auto* txtInfusion = numberBox(LogField::Infusion, "txtInfusion", "Water infused for the step; blank for none", 52);
  lblTime = label("M&inutes:", txtTime);
  lblTemp = label("Temp:", txtTemp);
  lblInfusion = label("Inf&usion:", txtInfusion);
  mg->addWidget(lblTime, 1, 0);
  mg->addWidget(txtTime, 1, 1);
  mg->addWidget(lblTemp, 1, 2);
  mg->addWidget(txtTemp, 1, 3);
  mg->addWidget(tempUnit(), 1, 4);
  mg->addWidget(lblInfusion, 2, 0);
  mg->addWidget(txtInfusion, 2, 1);
  mg->addWidget(volUnit(), 2, 2, 1, 2);
  cmdAddMash = new QPushButton("&Add Step");
  cmdAddMash->setObjectName("cmdAddMash");
  cmdAddMash->setToolTip("Add a mash step (11 at most)");
  cmdDeleteMash = new QPushButton("Delete Ste&p");
  cmdDeleteMash->setObjectName("cmdDeleteMash");
  cmdDeleteMash->setToolTip("Delete the selected mash step");
  mg->addWidget(cmdAddMash, 1, 5, 1, 2);
  mg->addWidget(cmdDeleteMash, 2, 5, 1, 2);

  auto* spargeVol = numberBox(LogField::SpargeVolume, "txtSpargeVol", "The water the grain was rinsed with");
  auto* spargeTemp = numberBox(LogField::SpargeTemp, "txtSpargeTemp", "The temperature of the sparge water", 52);
  mg->addWidget(label("Sparge &Water:", spargeVol), 3, 0);
  mg->addWidget(spargeVol, 3, 1);
  mg->addWidget(volUnit(), 3, 2);
  mg->addWidget(label("at"), 3, 3, Qt::AlignRight);
  mg->addWidget(spargeTemp, 3, 4);
  mg->addWidget(tempUnit(), 3, 5);
  auto* mashVol = numberBox(LogField::MashVolume, "txtMashVol", "All the wort run off the mash");
  mg->addWidget(label("Total Mash Volume:", mashVol), 4, 0);
  mg->addWidget(mashVol, 4, 1);
  mg->addWidget(volUnit(), 4, 2);
  auto* grain = numberBox(LogField::GrainWeight, "txtLbsGrain", "The weight of the grain in the mash");
  lblMash = label("", grain);
  lblMash->setObjectName("lblMash");
  mg->addWidget(lblMash, 5, 0);
  mg->addWidget(grain, 5, 1);
  auto* mashSG = numberBox(LogField::MashGravity, "txtMashGravity", "The gravity of the runnings, as read");
  auto* mashSGTemp = numberBox(LogField::MashTemp, "txtMashTemp", "The temperature of the sample", 52);
  mg->addWidget(label("&Mash SG:", mashSG), 6, 0);
  mg->addWidget(mashSG, 6, 1);
  mg->addWidget(label("at"), 6, 3, Qt::AlignRight);
  mg->addWidget(mashSGTemp, 6, 4);
  mg->addWidget(tempUnit(), 6, 5);
  lblAdjSG1 = new QLabel;
  lblAdjSG1->setObjectName("lblAdjSG1");
  lblAdjSG1->setToolTip("The reading corrected for the temperature of the sample");
  mg->addWidget(label("Adjusted:"), 7, 0);
  mg->addWidget(lblAdjSG1, 7, 1);
  lblQualPts = new QLabel;
  lblQualPts->setObjectName("lblQualPts");
  lblQualPts->setToolTip("Gravity points for each unit of grain in each unit of volume");
  lblTargetExt = new QLabel;
  lblTargetExt->setObjectName("lblTargetExt");
  lblTargetExt->setToolTip("What the recipe's mashed malts promise at its mash efficiency");
  mg->addWidget(label("Mash Extraction Points:"), 8, 0);
  mg->addWidget(lblQualPts, 8, 1);
  mg->addWidget(label("Target:"), 8, 3, 1, 2, Qt::AlignRight);
  mg->addWidget(lblTargetExt, 8, 5, 1, 2);
  mg->setColumnStretch(6, 1);
  left->addWidget(mash, 1);

  // Boil.
  auto* boil = new QGroupBox("Boil");
  auto* bg = new QGridLayout(boil);
  auto* boilVol = numberBox(LogField::BoilVolume, "txtBoilVol", "The wort in the kettle when the boil began");
  auto* boilTime = numberBox(LogField::BoilTime, "txtBoilTime", "How long the wort boiled", 52);
  auto* kraeusen = numberBox(LogField::KraeuseningWort, "txtKraeusen", "Wort kept back to prime with");
  bg->addWidget(label("Initial Boil &Volume:", boilVol), 0, 0);
  bg->addWidget(boilVol, 0, 1);
  bg->addWidget(volUnit(), 0, 2);
  bg->addWidget(label("Boil Time (Minutes):", boilTime), 0, 3);
  bg->addWidget(boilTime, 0, 4);
  bg->addWidget(label("Wort for &Kraeusening:", kraeusen), 1, 0);
  bg->addWidget(kraeusen, 1, 1);
  bg->addWidget(volUnit(), 1, 2);
  bg->setColumnStretch(5, 1);
  left->addWidget(boil);

  // Fermentation.
  auto* ferm = new QGroupBox("Fermentation");
  auto* fg = new QGridLayout(ferm);
  auto* fermVol = numberBox(LogField::FermentVolume, "txtFermVol", "The wort in the fermenter");
  fg->addWidget(label("Fermentation V&olume:", fermVol), 0, 0);
  fg->addWidget(fermVol, 0, 1);
  fg->addWidget(volUnit(), 0, 2);
  auto* pitch = numberBox(LogField::PitchingTemp, "txtPitchTemp", "The wort's temperature when the yeast went in", 52);
  fg->addWidget(label("Yeast Pitching Temp:", pitch), 0, 3);
  fg->addWidget(pitch, 0, 4);
  fg->addWidget(tempUnit(), 0, 5);
  auto* fermSG = numberBox(LogField::FermentGravity, "txtFinalGravity", "The gravity of the wort in the fermenter");
  auto* fermSGTemp = numberBox(LogField::FermentTemp, "txtFGTemp", "The temperature of the sample", 52);
  fg->addWidget(label("Initial Fermentation S&G:", fermSG), 1, 0);
  fg->addWidget(fermSG, 1, 1);
  fg->addWidget(label("at"), 1, 3, Qt::AlignRight);
  fg->addWidget(fermSGTemp, 1, 4);
  fg->addWidget(tempUnit(), 1, 5);
  lblAdjSG2 = new QLabel;
  lblAdjSG2->setObjectName("lblAdjSG2");
  lblAdjSG2->setToolTip("The reading corrected for the temperature of the sample");
  fg->addWidget(label("Adjusted:"), 2, 0);
  fg->addWidget(lblAdjSG2, 2, 1);

  lvReading = listView("lvReading", {"Type", "Date", "Temp", "Gravity", "Note"}, {76, 92, 48, 58});
  lvReading->setMinimumHeight(110);
  fg->addWidget(lvReading, 3, 0, 1, 7);
  cboFermType = comboOf("cboFermType", names(readingTypeNames()));
  cboFermType->setToolTip("The stage the reading was taken in");
  txtReadDate = dateBox(DateField::Reading, "txtReadDate", "The day of the reading");
  cmdDate2 = calendarButton(DateField::Reading, txtReadDate, "cmdDate2");
  auto* readTemp = numberBox(LogField::ReadTemp, "txtReadTemp", "The temperature of the sample", 52);
  auto* readGravity = numberBox(LogField::ReadGravity, "txtReadGravity", "The hydrometer reading, 0.950 to 1.300");
  txtReadNote = new QLineEdit;
  txtReadNote->setObjectName("txtReadNote");
  txtReadNote->setMaxLength(40);
  txtReadNote->setToolTip("A word on the reading");
  fg->addWidget(label("T&ype:", cboFermType), 4, 0);
  auto* typeRow = new QHBoxLayout;
  typeRow->addWidget(cboFermType);
  typeRow->addWidget(label("&Date:", txtReadDate));
  typeRow->addWidget(txtReadDate);
  typeRow->addWidget(cmdDate2);
  typeRow->addStretch(1);
  fg->addLayout(typeRow, 4, 1, 1, 6);
  fg->addWidget(label("&Temp:", readTemp), 5, 0);
  auto* readRow = new QHBoxLayout;
  readRow->addWidget(readTemp);
  readRow->addWidget(tempUnit());
  readRow->addSpacing(8);
  readRow->addWidget(label("G&ravity:", readGravity));
  readRow->addWidget(readGravity);
  readRow->addStretch(1);
  fg->addLayout(readRow, 5, 1, 1, 6);
  fg->addWidget(label("&Note:", txtReadNote), 6, 0);
  fg->addWidget(txtReadNote, 6, 1, 1, 6);
  cmdToday = new QPushButton("Add Today's Reading");
  cmdToday->setObjectName("cmdToday");
  cmdToday->setToolTip("Add a reading dated today");
  cmdDelete = new QPushButton("Delete Reading");
  cmdDelete->setObjectName("cmdDelete");
  cmdDelete->setToolTip("Delete the selected reading");
  auto* readButtons = new QHBoxLayout;
  readButtons->addStretch(1);
  readButtons->addWidget(cmdToday);
  readButtons->addWidget(cmdDelete);
  fg->addLayout(readButtons, 7, 0, 1, 7);
  fg->setColumnStretch(6, 1);
  right->addWidget(ferm, 1);

  // Conditioning.
  auto* cond = new QGroupBox("Conditioning");
  auto* cg = new QGridLayout(cond);
  txtDateCond = dateBox(DateField::Bottling, "txtDateCond", "The day the beer went into bottles or kegs");
  cmdDate3 = calendarButton(DateField::Bottling, txtDateCond, "cmdDate3");
  cboAgedIn = comboOf("cboAgedIn", {"Bottles", "Kegs"}, true);
  cboAgedIn->setToolTip("What the beer was packaged in");
  cboCondition = comboOf("cboCondition", {"Priming", "Kraeusening", "Forced CO2"}, true);
  cboCondition->setToolTip("How the beer was carbonated");
  for (QComboBox* c : {cboAgedIn, cboCondition}) c->lineEdit()->setMaxLength(15);
  txtCondDetails = new QLineEdit;
  txtCondDetails->setObjectName("txtCondDetails");
  txtCondDetails->setMaxLength(40);
  txtCondDetails->setToolTip("The priming sugar, the wort or the pressure");
  cg->addWidget(label("Bott&ling Date:", txtDateCond), 0, 0);
  auto* dateRow = new QHBoxLayout;
  dateRow->addWidget(txtDateCond);
  dateRow->addWidget(cmdDate3);
  dateRow->addStretch(1);
  cg->addLayout(dateRow, 0, 1, 1, 3);
  cg->addWidget(label("Aged In:", cboAgedIn), 1, 0);
  cg->addWidget(cboAgedIn, 1, 1);
  cg->addWidget(label("&Conditioning:", cboCondition), 1, 2, Qt::AlignRight);
  cg->addWidget(cboCondition, 1, 3);
  cg->addWidget(label("Conditioning Details:", txtCondDetails), 2, 0);
  cg->addWidget(txtCondDetails, 2, 1, 1, 3);
  lblVolume = new QLabel;
  lblVolume->setObjectName("lblVolume");
  cg->addWidget(label("Quantity Produced:"), 3, 0);
  cg->addWidget(lblVolume, 3, 2);
  for (int k = 0; k < 2; ++k) {
    auto* q = numberBox(k == 0 ? LogField::Quantity1 : LogField::Quantity2, QString("txtQuantity%1").arg(k),
                        "How many containers were filled");
    auto* c = numberBox(k == 0 ? LogField::Capacity1 : LogField::Capacity2, QString("txtCapacity%1").arg(k),
                        "How much one container holds");
    cboContainerUnits[k] = comboOf(QString("cboContainerUnits%1").arg(k), names(containerUnitNames()));
    cboContainerUnits[k]->setToolTip("The unit of the container's volume");
    cg->addWidget(q, 4 + k, 1);
    cg->addWidget(c, 4 + k, 2);
    cg->addWidget(cboContainerUnits[k], 4 + k, 3);
  }
  cg->setColumnStretch(3, 1);
  right->addWidget(cond);
  setCentralWidget(central);

  monDate = new QCalendarWidget(this);
  monDate->setObjectName("monDate");
  monDate->setWindowFlags(Qt::Popup);
  monDate->setGridVisible(true);
  monDate->hide();
  connect(monDate, &QCalendarWidget::clicked, this, [this](QDate d) {
    monDate->hide();
    const QString tag = qs(ed_.monDateTag);
    ed_.calendarPicked(serialFromCivil(d.year(), d.month(), d.day()));
    refreshFromModel();
    dateWidget(tag == "Date Brewed" ? DateField::DateBrewed : tag == "Ferm Date" ? DateField::Reading
                                                                                 : DateField::Bottling)
        ->setFocus();
  });

  // ---- Reactions ----
  connect(cboLogStatus, &QComboBox::activated, this, [this](int i) {
    ed_.setStatus(i);
    refreshFromModel();
  });
  connect(cboFermType, &QComboBox::activated, this, [this](int i) {
    ed_.setFermType(i);
    refreshFromModel();
  });
  connect(cboAgedIn, &QComboBox::currentTextChanged, this, [this](const QString& t) {
    if (painting_) return;
    ed_.setAgedIn(s8(t));
    refreshFromModel();
  });
  connect(cboCondition, &QComboBox::currentTextChanged, this, [this](const QString& t) {
    if (painting_) return;
    ed_.setCondition(s8(t));
    refreshFromModel();
  });
  for (int k = 0; k < 2; ++k)
    connect(cboContainerUnits[k], &QComboBox::activated, this, [this, k](int i) {
      ed_.setContainerUnits(k, i);
      refreshFromModel();
    });
  connect(txtCondDetails, &QLineEdit::textEdited, this, [this](const QString& t) {
    ed_.setConditionDetails(s8(t));
    refreshFromModel();
  });
  connect(txtReadNote, &QLineEdit::textEdited, this, [this](const QString& t) {
    ed_.setReadNote(s8(t));
    refreshFromModel();
  });
  connect(cmdAddMash, &QPushButton::clicked, this, [this] {
    ed_.cmdAddMash_Click();
    after();
  });
  connect(cmdDeleteMash, &QPushButton::clicked, this, [this] {
    ed_.cmdDeleteMash_Click();
    after();
  });
  connect(cmdToday, &QPushButton::clicked, this, [this] {
    ed_.cmdToday_Click();
    after();
  });
  connect(cmdDelete, &QPushButton::clicked, this, [this] {
    ed_.cmdDelete_Click();
    after();
  });
  connect(lvMash, &QTreeWidget::currentItemChanged, this, [this] {
    if (painting_) return;
    ed_.selectMash(lvMash->indexOfTopLevelItem(lvMash->currentItem()));
    refreshFromModel();
  });
  connect(lvReading, &QTreeWidget::currentItemChanged, this, [this] {
    if (painting_) return;
    ed_.selectReading(lvReading->indexOfTopLevelItem(lvReading->currentItem()));
    refreshFromModel();
  });

  // Tab order follows the brew: top row, mash, boil, fermentation, conditioning.
  refreshFromModel();
  resize(960, 640);
  const BatchLogWindowSettings placed = BatchLogWindowSettings::read(wb_.settings);
  if (placed.stored) {
    move(static_cast<int>(placed.left / kTwips), static_cast<int>(placed.top / kTwips));
  } else if (QScreen* s = screen()) {
    // Without a stored place the window stands in the middle of the screen.
    const QRect r = s->availableGeometry();
    move(r.center() - QPoint(width() / 2, height() / 2));
  }
}

void frmBatchLog::refreshLists() {
  auto fill = [](QTreeWidget* v, const std::vector<QStringList>& rows, int selected) {
    bool same = v->topLevelItemCount() == static_cast<int>(rows.size());
    for (int i = 0; same && i < v->topLevelItemCount(); ++i)
      for (int c = 0; c < rows[static_cast<size_t>(i)].size(); ++c)
        if (v->topLevelItem(i)->text(c) != rows[static_cast<size_t>(i)][c]) {
          v->topLevelItem(i)->setText(c, rows[static_cast<size_t>(i)][c]);
        }
    if (!same) {
      v->clear();
      for (const QStringList& r : rows) v->addTopLevelItem(new QTreeWidgetItem(r));
    }
    QTreeWidgetItem* cur = selected >= 0 ? v->topLevelItem(selected) : nullptr;
    v->setCurrentItem(cur);
    if (cur) v->scrollToItem(cur);
    else v->clearSelection();
  };
  std::vector<QStringList> mash, readings;
  for (const MashRow& r : ed_.lvMash) mash.push_back({qs(r.minutes), qs(r.temp), qs(r.infusion)});
  for (const ReadingRow& r : ed_.lvReading) readings.push_back({qs(r.type), qs(r.date), qs(r.temp), qs(r.gravity), qs(r.note)});
  fill(lvMash, mash, ed_.mashSelected);
  fill(lvReading, readings, ed_.readingSelected);
}

void frmBatchLog::refreshFromModel() {
  painting_ = true;
  auto setText = [](QLineEdit* e, const std::string& t) {
    if (e->text() != qs(t)) e->setText(qs(t));
  };
  lblBatchNo->setText(qs(ed_.lblBatchNo));
  lblRecipe->setText("<i>" + qs(trim(wb_.recipe.rec.recipeName)).toHtmlEscaped() + "</i>");
  setText(txtDateBrewed, ed_.txtDateBrewed);
  setText(txtDateCond, ed_.txtDateCond);
  setText(txtReadDate, ed_.txtReadDate);
  for (auto& [f, box] : numberBoxes) setText(box, ed_.field(f));
  setText(txtReadNote, ed_.txtReadNote);
  setText(txtCondDetails, ed_.txtCondDetails);
  cboLogStatus->setCurrentIndex(ed_.cboLogStatus);
  cboFermType->setCurrentIndex(ed_.cboFermType);
  if (cboAgedIn->currentText() != qs(ed_.cboAgedIn)) cboAgedIn->setCurrentText(qs(ed_.cboAgedIn));
  if (cboCondition->currentText() != qs(ed_.cboCondition)) cboCondition->setCurrentText(qs(ed_.cboCondition));
  for (size_t k = 0; k < 2; ++k) cboContainerUnits[k]->setCurrentIndex(ed_.cboContainerUnits[k]);
  refreshLists();

  lblAdjSG1->setText(qs(ed_.lblAdjSG1));
  lblAdjSG2->setText(qs(ed_.lblAdjSG2));
  lblQualPts->setText(qs(ed_.lblQualPts));
  lblTargetExt->setText(qs(ed_.lblTargetExt));
  lblMash->setText(qs(ed_.lblMash));
  lblVolume->setText(qs(ed_.lblVolume));
  for (QLabel* l : lblTempUnits) l->setText(qs(ed_.lblTempUnits));
  for (size_t i = 0; i < lblVol.size(); ++i) lblVol[i]->setText(qs(ed_.lblVol[i == 0 ? 2 : 0]));

  const bool mashOn = ed_.mashFieldsEnabled(), readOn = ed_.readingFieldsEnabled();
  for (LogField f : {LogField::MashTime, LogField::MashStepTemp, LogField::Infusion}) numberBoxes[f]->setEnabled(mashOn);
  for (QWidget* w : std::initializer_list<QWidget*>{lblTime, lblTemp, lblInfusion, cmdDeleteMash}) w->setEnabled(mashOn);
  for (QWidget* w : std::initializer_list<QWidget*>{cboFermType, txtReadDate, cmdDate2, numberBoxes[LogField::ReadTemp],
                                                    numberBoxes[LogField::ReadGravity], txtReadNote, cmdDelete})
    w->setEnabled(readOn);

  mnuFileSave->setIcon(recipeIcon(qs(ed_.saveButtonImage)));
  mnuFileSave->setToolTip(qs(ed_.saveButtonTip));
  setWindowTitle(QString("Batch Log - %1 - Batch # %2%3")
                     .arg(qs(trim(wb_.recipe.rec.recipeName)), qs(ed_.lblBatchNo), ed_.changed() ? " *" : ""));
  if (comments_) comments_->refreshFromModel();
  painting_ = false;
}

void frmBatchLog::after() {
  refreshFromModel();
  if (ed_.focusTo.empty()) return;
  if (QWidget* w = findChild<QWidget*>(qs(ed_.focusTo))) {
    w->setFocus();
    if (auto* e = qobject_cast<QLineEdit*>(w)) e->selectAll();
  }
  ed_.focusTo.clear();
}

bool frmBatchLog::mnuFileSave_Click() {
  const bool ok = ed_.mnuFileSave_Click();
  refreshFromModel();
  if (ok && saved) saved();
  return ok;
}

frmBatchLogCmts& frmBatchLog::comments() {
  if (!comments_) {
    comments_ = new frmBatchLogCmts(wb_, ed_, this);
    comments_->changed = [this] { refreshFromModel(); };
    comments_->showHelpTopic = [this](const QString& page) {
      if (showHelpTopic) showHelpTopic(page);
    };
  }
  return *comments_;
}

void frmBatchLog::mnuEditComments_Click() {
  frmBatchLogCmts& c = comments();
  c.refreshFromModel();
  c.show();
  c.raise();
  c.activateWindow();
}

bool frmBatchLog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    // A box's text is selected on entry, so that typing replaces it.
    if (auto* e = qobject_cast<QLineEdit*>(watched)) QTimer::singleShot(0, e, [e] { e->selectAll(); });
  } else if (event->type() == QEvent::KeyPress && dateOf_.count(watched)) {
    auto* k = static_cast<QKeyEvent*>(event);
    const QString t = k->text();
    if (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter) {
      focusNextChild();
      return true;
    }
    if (t.size() == 1 && t[0].unicode() >= 32 && t[0].unicode() < 127 && !(k->modifiers() & Qt::ControlModifier))
      return ed_.dateKeyFilter(t[0].unicode()) == 0;
  }
  return QMainWindow::eventFilter(watched, event);
}

void frmBatchLog::closeEvent(QCloseEvent* event) {
  // The box being edited gives its text in first.
  if (QWidget* f = focusWidget()) f->clearFocus();
  if (!ed_.queryClose()) {
    refreshFromModel();
    event->ignore();
    return;
  }
  if (saved) saved();
  BatchLogWindowSettings placed;
  placed.windowState = isMinimized() ? 1 : isMaximized() ? 2 : 0;
  placed.left = x() * kTwips;
  placed.top = y() * kTwips;
  if (!isMinimized()) placed.write(wb_.settings);
  if (comments_) comments_->close();
  hideUnlessAppClosing(*this, wb_, event);
}

}  // namespace zy
