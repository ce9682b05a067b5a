#include "ui/frmRecReader.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "recipes/RecipeEditor.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/TopicIcons.h"

namespace zy {

namespace {
const char* const kFilter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
const char* const kCommentsSection = "Comments";

QString shownText(const std::string& text8bit) {
  QString t = qs(text8bit);
  t.replace("\r\n", "\n");
  return t;
}
}  // namespace

frmRecReader::frmRecReader(Workbench& wb, RecipeEditor& editor, QWidget* parent)
    : QMainWindow(parent), wb_(wb), reader_(editor) {
  setWindowTitle(RecipeReader::kCaption);
  setObjectName("frmRecReader");
  setWindowIcon(recipeIcon("RecReader"));

  QMenu* file = menuBar()->addMenu("&File");
  file->setToolTipsVisible(true);
  mnuFileImport = file->addAction(recipeIcon("Open"), "&Import...", this, [this] { mnuFileImport_Click(); });
  mnuFileImport->setToolTip("Add the lines of a text file to the text");
  mnuFileExport = file->addAction(recipeIcon("Export"), "&Export...", this, [this] { mnuFileExport_Click(); });
  mnuFileExport->setToolTip("Write the text to a file");
  file->addSeparator();
  mnuFileExtractRecipe =
      file->addAction(recipeIcon("RecReader"), "Extract &Recipe Information", this, [this] { mnuFileExtractRecipe_Click(); });
  mnuFileExtractRecipe->setShortcut(QKeySequence(Qt::Key_F5));
  mnuFileExtractRecipe->setToolTip("Read the text into the recipe open in the editor");
  file->addSeparator();
  mnuFileExit = file->addAction("&Exit", this, &QWidget::close);

  txtComment = new QPlainTextEdit(this);
  txtComment->setObjectName("txtComment");
  txtComment->setTabChangesFocus(true);
  txtComment->setPlaceholderText("\"Recipe Name\"\n5 gallons\n8 lbs Pale Malt\n1 lb Crystal 40L\n"
                                 "1 oz Cascade 5.5% alpha 60 min\n1 pkg ale yeast\n3/4 cup corn sugar for priming");
  txtComment->setToolTip("One ingredient a line; the first line may be the recipe's name");

  QMenu* edit = menuBar()->addMenu("&Edit");
  mnuEditUndo = edit->addAction("&Undo", QKeySequence::Undo, txtComment, &QPlainTextEdit::undo);
  edit->addSeparator();
  mnuEditCut = edit->addAction("Cu&t", QKeySequence::Cut, txtComment, &QPlainTextEdit::cut);
  mnuEditCopy = edit->addAction("&Copy", QKeySequence::Copy, txtComment, &QPlainTextEdit::copy);
  mnuEditPaste = edit->addAction("&Paste", QKeySequence::Paste, txtComment, &QPlainTextEdit::paste);
  edit->addSeparator();
  mnuEditAll = edit->addAction("Select &All", QKeySequence::SelectAll, txtComment, &QPlainTextEdit::selectAll);
  QMenu* help = menuBar()->addMenu("&Help");
  mnuHelpContents = help->addAction(toolIcon(ToolIcon::Help), "&Contents", this, [this] {
    if (showHelpTopic) showHelpTopic("recipe-reader.html");
  });

  auto* central = new QWidget(this);
  auto* box = new QVBoxLayout(central);
  auto* lbl = new QLabel("Type or paste the recipe, one ingredient a line (a quantity, a unit and a name), then "
                         "the batch size, the fermentation stages and the priming sugar:",
                         central);
  lbl->setWordWrap(true);
  box->addWidget(lbl);
  box->addWidget(txtComment, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  cmdExtract = new QPushButton("E&xtract Recipe Information", central);
  cmdExtract->setObjectName("cmdExtract");
  cmdExtract->setToolTip("Read the text into the recipe open in the editor (F5)");
  buttons->addWidget(cmdExtract);
  box->addLayout(buttons);
  setCentralWidget(central);

  connect(cmdExtract, &QPushButton::clicked, this, [this] { mnuFileExtractRecipe_Click(); });
  connect(txtComment, &QPlainTextEdit::textChanged, this, [this] {
    if (painting_) return;
    QString t = txtComment->toPlainText();
    t.replace("\n", "\r\n");
    reader_.txtComment = s8(t);
  });
  connect(txtComment, &QPlainTextEdit::undoAvailable, mnuEditUndo, &QAction::setEnabled);
  connect(txtComment, &QPlainTextEdit::copyAvailable, mnuEditCut, &QAction::setEnabled);
  connect(txtComment, &QPlainTextEdit::copyAvailable, mnuEditCopy, &QAction::setEnabled);
  mnuEditUndo->setEnabled(false);
  mnuEditCut->setEnabled(false);
  mnuEditCopy->setEnabled(false);

  restoreWindowPlacement(*this, wb_.settings, kSection, QSize(520, 420), QPoint(220, 140), QSize(360, 260));
}

void frmRecReader::refreshFromModel() {
  const QString t = shownText(reader_.txtComment);
  if (txtComment->toPlainText() == t) return;
  painting_ = true;
  txtComment->setPlainText(t);
  painting_ = false;
}

void frmRecReader::mnuFileImport_Click() {
  const auto path = wb_.prompter.openFile("Import Text File", kFilter, wb_.settings.read(kCommentsSection, "File Path", ""));
  if (!path || path->empty()) return;
  if (reader_.importText(*path)) refreshFromModel();
}

void frmRecReader::mnuFileExport_Click() {
  const std::string folder = wb_.settings.read(kCommentsSection, "File Path", "");
  const auto path = wb_.prompter.saveFile("Export Comments to File", kFilter, folder.empty() ? "*.txt" : folder + "/*.txt");
  if (!path || path->empty()) return;
  reader_.exportText(*path);
}

void frmRecReader::mnuFileExtractRecipe_Click() {
  if (reader_.mnuFileExtractRecipe() && extracted) extracted();
}

void frmRecReader::closeEvent(QCloseEvent* event) {
  saveWindowPlacement(*this, wb_.settings, kSection);
  if (wb_.appClosing) {
    event->accept();
    return;
  }
  event->ignore();
  hide();
}

}  // namespace zy
