#include "ui/frmComments.h"

#include <QCloseEvent>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "recipes/RecipeEditor.h"
#include "recipes/SmartInstructions.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "ui/TopicIcons.h"

namespace zy {

namespace {
const char* const kFilter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
}

frmComments::frmComments(Workbench& wb, RecipeEditor& editor, QWidget* parent)
    : QMainWindow(parent), wb_(wb), editor_(editor) {
  setWindowTitle("Recipe Comments");
  setObjectName("frmComments");
  setWindowIcon(recipeIcon("Comments"));

  QMenu* file = menuBar()->addMenu("&File");
  mnuFileImport = file->addAction(recipeIcon("Open"), "&Import Text...", this, [this] { mnuFileImport_Click(); });
  mnuFileImport->setToolTip("Replace the comment with the text of a file");
  mnuFileExport = file->addAction(recipeIcon("Export"), "&Export Text...", this, [this] { mnuFileExport_Click(); });
  mnuFileExport->setToolTip("Write the comment to a text file");
  file->addSeparator();
  mnuSmartInstructions = file->addAction("S&mart Instructions", this, [this] { mnuFileSmart_Click(); });
  mnuSmartInstructions->setToolTip("Write brewing instructions for the recipe into the comment");
  file->addSeparator();
  mnuFileClose = file->addAction("&Close", this, &QWidget::close);
  file->setToolTipsVisible(true);
  QMenu* help = menuBar()->addMenu("&Help");
  mnuHelpContents = help->addAction(toolIcon(ToolIcon::Help), "&Contents", this, [this] {
    if (showHelpTopic) showHelpTopic("recipe-editor.html#comments");
  });

  auto* central = new QWidget(this);
  auto* box = new QVBoxLayout(central);
  auto* form = new QFormLayout;
  form->setLabelAlignment(Qt::AlignRight);
  txtDateCreated = new QLineEdit(central);
  txtDateCreated->setObjectName("txtDateCreated");
  txtDateCreated->setMaxLength(11);
  txtDateCreated->setMinimumWidth(txtDateCreated->fontMetrics().horizontalAdvance("MMM-00-00000") + 12);
  txtDateCreated->setMaximumWidth(120);
  txtDateCreated->setToolTip("When the recipe was created, as mmm-dd-yyyy");
  txtIdCode = new QLineEdit(central);
  txtIdCode->setObjectName("txtIdCode");
  txtIdCode->setMaxLength(10);
  txtIdCode->setMinimumWidth(txtDateCreated->minimumWidth());
  txtIdCode->setMaximumWidth(120);
  txtIdCode->setToolTip("Your own code for the recipe");
  txtLabelName = new QLineEdit(central);
  txtLabelName->setObjectName("txtLabelName");
  txtLabelName->setMaxLength(35);
  txtLabelName->setToolTip("The name on the bottle label");
  form->addRow("&Date Created:", txtDateCreated);
  form->addRow("&ID Code:", txtIdCode);
  form->addRow("&Label Name:", txtLabelName);
  box->addLayout(form);
  auto* lbl = new QLabel("&Comments:", central);
  txtComment = new QPlainTextEdit(central);
  txtComment->setObjectName("txtComment");
  txtComment->setTabChangesFocus(true);
  txtComment->setToolTip("Notes on the recipe: where it came from, how it turned out, what to change next time");
  lbl->setBuddy(txtComment);
  box->addWidget(lbl);
  box->addWidget(txtComment, 1);
  setCentralWidget(central);

  using F = RecipeEditor::CommentField;
  auto bind = [this](QLineEdit* e, F field) {
    connect(e, &QLineEdit::textEdited, this, [this, field](const QString& t) {
      editor_.setCommentField(field, s8(t));
      if (changed) changed();
    });
  };
  bind(txtDateCreated, F::DateCreated);
  bind(txtIdCode, F::IdCode);
  bind(txtLabelName, F::LabelName);
  connect(txtComment, &QPlainTextEdit::textChanged, this, [this] {
    if (painting_) return;
    // The box shows line ends as they are typed; the recipe keeps them as CR LF.
    QString t = txtComment->toPlainText();
    t.replace("\n", "\r\n");
    editor_.setCommentField(RecipeEditor::CommentField::Comment, s8(t));
    if (changed) changed();
  });

  refreshFromModel();
  setMinimumSize(360, 260);
  restoreWindowPlacement(*this, wb_.settings, kSection, QSize(385, 239), QPoint(200, 160), QSize(480, 380));
}

void frmComments::refreshFromModel() {
  painting_ = true;
  const CommentFields& c = editor_.comments;
  auto setText = [](QLineEdit* e, const std::string& t) {
    if (e->text() != qs(t)) e->setText(qs(t));
  };
  setText(txtDateCreated, c.dateCreated);
  setText(txtIdCode, c.idCode);
  setText(txtLabelName, c.labelName);
  QString text = qs(c.comment);
  text.replace("\r\n", "\n");
  if (txtComment->toPlainText() != text) txtComment->setPlainText(text);
  painting_ = false;
}

void frmComments::mnuFileImport_Click() {
  const auto path = wb_.prompter.openFile("Import Comments", kFilter, wb_.settings.read(kSection, "File Path", ""));
  if (!path || path->empty()) return;
  if (editor_.importComment(*path)) {
    refreshFromModel();
    if (changed) changed();
  }
}

void frmComments::mnuFileExport_Click() {
  const std::string folder = wb_.settings.read(kSection, "File Path", "");
  const auto path = wb_.prompter.saveFile("Export Comments", kFilter, folder.empty() ? "comments.txt" : folder + "/comments.txt");
  if (!path || path->empty()) return;
  editor_.exportComment(*path);
}

void frmComments::mnuFileSmart_Click() {
  std::string comment = editor_.comments.comment;
  if (!applySmartInstructions(editor_, comment)) return;
  editor_.setCommentField(RecipeEditor::CommentField::Comment, comment);
  refreshFromModel();
  if (changed) changed();
}

void frmComments::closeEvent(QCloseEvent* event) {
  saveWindowPlacement(*this, wb_.settings, kSection);
  if (wb_.appClosing) {
    event->accept();
    return;
  }
  event->ignore();
  hide();
}

}  // namespace zy
