#include "ui/frmBatchLogCmts.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "batchlog/BatchLogEditor.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/TopicIcons.h"

namespace zy {

namespace {
const char* const kFilter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
}

frmBatchLogCmts::frmBatchLogCmts(Workbench& wb, BatchLogEditor& editor, QWidget* parent)
    : QMainWindow(parent), wb_(wb), editor_(editor) {
  setWindowFlag(Qt::Window);
  setWindowTitle("Batch Log Comments");
  setObjectName("frmBatchLogCmts");
  setWindowIcon(recipeIcon("Comments"));

  QMenu* file = menuBar()->addMenu("&File");
  mnuFileImport = file->addAction(recipeIcon("Open"), "&Import Text...", this, [this] { mnuFileImport_Click(); });
  mnuFileImport->setToolTip("Replace the comments with the text of a file");
  mnuFileExport = file->addAction(recipeIcon("Export"), "&Export Text...", this, [this] { mnuFileExport_Click(); });
  mnuFileExport->setToolTip("Write the comments to a text file");
  file->addSeparator();
  mnuFileClose = file->addAction("&Close", this, &QWidget::close);
  file->setToolTipsVisible(true);
  QMenu* help = menuBar()->addMenu("&Help");
  mnuHelpContents = help->addAction(toolIcon(ToolIcon::Help), "&Contents", this, [this] {
    if (showHelpTopic) showHelpTopic("batch-log.html#comments");
  });

  auto* central = new QWidget(this);
  auto* box = new QVBoxLayout(central);
  auto* lbl = new QLabel("General &Comments:", central);
  txtComments = new QPlainTextEdit(central);
  txtComments->setObjectName("txtComments");
  txtComments->setToolTip("How the brew went: anything worth remembering next time");
  lbl->setBuddy(txtComments);
  lblCount = new QLabel(central);
  lblCount->setObjectName("lblCount");
  lblCount->setAlignment(Qt::AlignRight);
  box->addWidget(lbl);
  box->addWidget(txtComments, 1);
  box->addWidget(lblCount);
  setCentralWidget(central);

  connect(txtComments, &QPlainTextEdit::textChanged, this, [this] {
    if (painting_) return;
    // The box shows line ends as typed; the log keeps them as CR LF, within its 512 characters.
    QString t = txtComments->toPlainText();
    t.replace("\n", "\r\n");
    const std::string before = editor_.txtComments;
    editor_.setComments(s8(t));
    if (editor_.txtComments.size() < s8(t).size()) refreshFromModel();  // cut at the limit
    else lblCount->setText(QString("%1 of %2 characters").arg(editor_.txtComments.size()).arg(kBatchLogCommentLength));
    if (before != editor_.txtComments && changed) changed();
  });

  refreshFromModel();
  restoreWindowPlacement(*this, wb_.settings, kBatchLogCommentsSection, QSize(385, 239), QPoint(240, 200),
                         QSize(440, 320));
}

void frmBatchLogCmts::refreshFromModel() {
  painting_ = true;
  QString text = qs(editor_.txtComments);
  text.replace("\r\n", "\n");
  if (txtComments->toPlainText() != text) {
    txtComments->setPlainText(text);
    txtComments->moveCursor(QTextCursor::End);
  }
  lblCount->setText(QString("%1 of %2 characters").arg(editor_.txtComments.size()).arg(kBatchLogCommentLength));
  setWindowTitle("Batch Log Comments - Batch # " + qs(editor_.lblBatchNo));
  painting_ = false;
}

void frmBatchLogCmts::mnuFileImport_Click() {
  const auto path =
      wb_.prompter.openFile("Import Comments", kFilter, wb_.settings.read(kBatchLogCommentsSection, "File Path", ""));
  if (!path || path->empty()) return;
  if (editor_.importComments(*path)) {
    refreshFromModel();
    if (changed) changed();
  }
}

void frmBatchLogCmts::mnuFileExport_Click() {
  const std::string folder = wb_.settings.read(kBatchLogCommentsSection, "File Path", "");
  const std::string name = "batch-log-" + editor_.lblBatchNo + ".txt";
  const auto path = wb_.prompter.saveFile("Export Comments", kFilter, folder.empty() ? name : folder + "/" + name);
  if (!path || path->empty()) return;
  editor_.exportComments(*path);
}

void frmBatchLogCmts::closeEvent(QCloseEvent* event) {
  saveWindowPlacement(*this, wb_.settings, kBatchLogCommentsSection);
  if (wb_.appClosing) {
    event->accept();
    return;
  }
  event->ignore();
  hide();
}

}  // namespace zy
