#include "ui/frmPreview.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QPrinter>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

#include "ui/QtDrawTarget.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/ReportActions.h"
#include "ui/TopicIcons.h"
#include "ui/WindowPlacement.h"

namespace zy {

namespace {
// The desk around the sheet, and the sheet's shadow.
const QColor kDesk(128, 132, 138);
const QColor kShadow(60, 62, 66);
constexpr int kDeskMargin = 18;
constexpr int kShadowOffset = 6;

void setTip(QAction* a, const QString& tip) {
  a->setToolTip(tip);
  a->setStatusTip(tip);
}

// The page image laid on the desk with its shadow.
QPixmap onDesk(const QImage& page) {
  QPixmap desk(page.width() + 2 * kDeskMargin + kShadowOffset, page.height() + 2 * kDeskMargin + kShadowOffset);
  desk.fill(kDesk);
  QPainter p(&desk);
  p.fillRect(kDeskMargin + kShadowOffset, kDeskMargin + kShadowOffset, page.width(), page.height(), kShadow);
  p.drawImage(kDeskMargin, kDeskMargin, page);
  p.setPen(QColor(90, 92, 96));
  p.drawRect(kDeskMargin - 1, kDeskMargin - 1, page.width() + 1, page.height() + 1);
  return desk;
}
}  // namespace

frmPreview::frmPreview(Workbench& wb, QWidget* parent)
    : QMainWindow(parent), wb_(wb), model_(wb.prompter, wb.settings) {
  setWindowTitle(PreviewModel::kCaption);
  setObjectName("frmPreview");
  setWindowIcon(toolIcon(ToolIcon::Print));

  QMenu* file = menuBar()->addMenu("&File");
  mnuFilePrint = file->addAction(toolIcon(ToolIcon::Print), "&Print", this, [this] { mnuFilePrint_Click(); });
  mnuFilePrint->setShortcut(QKeySequence::Print);
  setTip(mnuFilePrint, "Print every page of the report");
  mnuFileSave = file->addAction(recipeIcon("Save"), "&Save to File", this, [this] { mnuFileSave_Click(); });
  mnuFileSave->setShortcut(QKeySequence::Save);
  setTip(mnuFileSave, "Save the report as a text file (CSV)");
  file->addSeparator();
  mnuFileClose = file->addAction("&Close", this, &QWidget::close);
  mnuFileClose->setShortcut(Qt::Key_Escape);
  setTip(mnuFileClose, "Close the preview");

  QMenu* view = menuBar()->addMenu("&View");
  mnuViewPrevious = view->addAction(toolIcon(ToolIcon::Back), "&Previous Page", this, [this] { mnuViewPrevious_Click(); });
  mnuViewPrevious->setShortcut(Qt::Key_PageUp);
  setTip(mnuViewPrevious, "Show the previous page");
  mnuViewNext = view->addAction(toolIcon(ToolIcon::Forward), "&Next Page", this, [this] { mnuViewNext_Click(); });
  mnuViewNext->setShortcut(Qt::Key_PageDown);
  setTip(mnuViewNext, "Show the next page");

  QMenu* help = menuBar()->addMenu("&Help");
  mnuHelpContents = help->addAction(toolIcon(ToolIcon::Help), "&Contents", this,
                                    [this] { showHelpPage(this, wb_, showHelpTopic, kHelpPage); });
  mnuHelpContents->setShortcut(QKeySequence::HelpContents);
  setTip(mnuHelpContents, "Help on the print preview");

  tbToolBar = addToolBar("Preview");
  tbToolBar->setObjectName("tbToolBar");
  tbToolBar->setMovable(false);
  tbToolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  auto button = [this](QAction* like, const char* key, const QString& text) {
    QAction* a = tbToolBar->addAction(like->icon(), text);
    a->setObjectName(key);
    a->setToolTip(like->toolTip());
    connect(a, &QAction::triggered, like, &QAction::trigger);
    return a;
  };
  tbPrint = button(mnuFilePrint, "Print", "Print");
  tbToolBar->addSeparator();
  tbPrevious = button(mnuViewPrevious, "Previous", "Previous");
  tbNext = button(mnuViewNext, "Next", "Next");
  tbToolBar->addSeparator();

  auto* sizeLabel = new QLabel("View Si&ze: ");
  cboViewSize = new QComboBox;
  cboViewSize->setObjectName("cboViewSize");
  cboViewSize->setEditable(true);
  cboViewSize->setInsertPolicy(QComboBox::NoInsert);
  for (int p : PreviewModel::viewSizes()) cboViewSize->addItem(QString("%1%").arg(p));
  cboViewSize->setMinimumContentsLength(5);
  cboViewSize->setToolTip("The size of the page on the screen, 10% to 150%: choose one or type one and press Enter");
  sizeLabel->setBuddy(cboViewSize);
  tbToolBar->addWidget(sizeLabel);
  tbToolBar->addWidget(cboViewSize);
  connect(cboViewSize, &QComboBox::activated, this, [this](int i) { cboViewSize_Commit(cboViewSize->itemText(i)); });
  connect(cboViewSize->lineEdit(), &QLineEdit::returnPressed, this,
          [this] { cboViewSize_Commit(cboViewSize->lineEdit()->text()); });

  tbToolBar->addSeparator();
  txtPageNum = new QLineEdit;
  txtPageNum->setObjectName("txtPageNum");
  txtPageNum->setReadOnly(true);
  txtPageNum->setFocusPolicy(Qt::NoFocus);
  txtPageNum->setAlignment(Qt::AlignCenter);
  txtPageNum->setFixedWidth(fontMetrics().horizontalAdvance("Pg 888 of 888") + 16);
  txtPageNum->setToolTip("The page shown and the pages of the report");
  tbToolBar->addWidget(txtPageNum);
  tbToolBar->addSeparator();
  tbSave = button(mnuFileSave, "Save", "Save");
  tbClose = tbToolBar->addAction(style()->standardIcon(QStyle::SP_DialogCloseButton), "Close");
  tbClose->setObjectName("Close");
  tbClose->setToolTip(mnuFileClose->toolTip());
  connect(tbClose, &QAction::triggered, mnuFileClose, &QAction::trigger);

  picViewPort = new QScrollArea;
  picViewPort->setObjectName("picViewPort");
  picViewPort->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  picViewPort->setBackgroundRole(QPalette::Dark);
  QPalette pal = picViewPort->palette();
  pal.setColor(QPalette::Dark, kDesk);
  picViewPort->setPalette(pal);
  picPageImage = new QLabel;
  picPageImage->setObjectName("picPageImage");
  picPageImage->setAlignment(Qt::AlignCenter);
  picViewPort->setWidget(picPageImage);
  picViewPort->setWidgetResizable(false);
  setCentralWidget(picViewPort);
  statusBar();

  restoreWindowPlacement(*this, wb_.settings, kSection, QSize(900, 980), QPoint(120, 40), QSize(480, 360));
  cboViewSize->setEditText(qs(model_.viewSizeText()));
  showStates();
}

bool frmPreview::showReport(const ReportRequest& request) {
  if (!model_.open(request)) return false;
  refresh();
  setScrollValues();
  return true;
}

void frmPreview::refresh() {
  if (model_.isOpen()) {
    const QSizeF paper = paperInches(programPrinter());
    QImage page = QtDrawTarget::pageImage(paper.width(), paper.height(), model_.previewScale());
    {
      QtDrawTarget target(page, paper.width(), paper.height(), model_.previewScale());
      model_.draw(target);
    }
    const QPixmap desk = onDesk(page);
    picPageImage->setPixmap(desk);
    picPageImage->resize(desk.size());
  }
  showStates();
}

void frmPreview::showStates() {
  const bool open = model_.isOpen();
  mnuViewPrevious->setEnabled(model_.previousEnabled());
  tbPrevious->setEnabled(model_.previousEnabled());
  mnuViewNext->setEnabled(model_.nextEnabled());
  tbNext->setEnabled(model_.nextEnabled());
  mnuFilePrint->setEnabled(open);
  tbPrint->setEnabled(open);
  mnuFileSave->setEnabled(open);
  tbSave->setEnabled(open);
  txtPageNum->setText(qs(model_.pageText()));
  cboViewSize->setEditText(qs(model_.viewSizeText()));
}

void frmPreview::setScrollValues() {
  picViewPort->horizontalScrollBar()->setValue(0);
  picViewPort->verticalScrollBar()->setValue(0);
}

void frmPreview::mnuViewNext_Click() {
  if (model_.nextPage()) {
    refresh();
    setScrollValues();
  }
}

void frmPreview::mnuViewPrevious_Click() {
  if (model_.previousPage()) {
    refresh();
    setScrollValues();
  }
}

void frmPreview::mnuFilePrint_Click() {
  if (model_.isOpen()) printReportNow(this, model_.request());
}

void frmPreview::mnuFileSave_Click() { model_.saveToFile(); }

void frmPreview::cboViewSize_Commit(const QString& text) {
  const double before = model_.previewScale();
  if (model_.setViewSize(s8(text)) && model_.previewScale() != before) {
    refresh();
    setScrollValues();
  } else {
    cboViewSize->setEditText(qs(model_.viewSizeText()));
  }
}

void frmPreview::closeEvent(QCloseEvent* event) {
  saveWindowPlacement(*this, wb_.settings, kSection);
  hideUnlessAppClosing(*this, wb_, event);
}

}  // namespace zy
