#include "ui/ProgramWindows.h"

#include <QEvent>

#include "ui/dlgScale.h"
#include "ui/frmComments.h"
#include "ui/frmFermentation.h"
#include "ui/frmHelp.h"
#include "ui/frmMain.h"
#include "ui/frmProperties.h"
#include "ui/frmRecReader.h"
#include "ui/frmRecipe.h"
#include "ui/frmRecipeList.h"

namespace zy {

namespace {
void bringForward(QWidget& w) {
  if (w.isMinimized()) w.showNormal();
  else w.show();
  w.raise();
  w.activateWindow();
}
}  // namespace

ProgramWindows::ProgramWindows(Workbench& wb, frmMain& main) : wb_(wb), main_(main) {
  main.setChildOpener(frmMain::Child::RecipeList, [this] { showRecipeList(); });
  main.installEventFilter(this);
}

ProgramWindows::~ProgramWindows() {
  // The editor's window takes its companions with it; the list forgets the tree's refresh.
  recipe_.reset();
  recipeList_.reset();
}

frmRecipeList& ProgramWindows::recipeList() {
  if (!recipeList_) {
    recipeList_ = std::make_unique<frmRecipeList>(wb_);
    frmRecipeList& l = *recipeList_;
    l.editorHooks = [this] { return recipe().editor().openHooks(); };
    l.showEditor = [this] { showRecipe(); };
    l.showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
    l.showHelp = [this](int where) { main_.showHelp(where); };
    l.openProperties = [this] { openProperties(recipeList_.get()); };
  }
  return *recipeList_;
}

frmRecipe& ProgramWindows::recipe() {
  if (!recipe_) {
    recipe_ = std::make_unique<frmRecipe>(wb_);
    frmRecipe& r = *recipe_;
    r.openScale = [this] { openScale(); };
    r.openFermentation = [this] { showFermentation(); };
    r.openComments = [this] { showComments(); };
    r.setToolOpener(RecipeTool::RecipeReader, [this] { showRecReader(); });
    r.openProperties = [this] { openProperties(recipe_.get()); };
    r.showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
    r.showHelp = [this](int where) { main_.showHelp(where); };
    // A change in the fermentation window shows on the editor's save button.
    FermentationForm& f = r.editor().fermentation;
    f.onChanged = [&r] {
      r.editor().recChanged();
      r.refreshSaveButton();
    };
    // The companions close with the editor.
    connect(&r, &frmRecipe::closed, this, [this] {
      if (fermentation_) fermentation_->close();
      if (comments_) comments_->close();
      if (recReader_) recReader_->close();
    });
  }
  return *recipe_;
}

dlgScale& ProgramWindows::scale() {
  if (!scale_) {
    scale_ = new dlgScale(recipe().editor(), &recipe());
    scale_->applied = [this] { showRecipe(); };
  }
  return *scale_;
}

frmFermentation& ProgramWindows::fermentation() {
  if (!fermentation_) {
    fermentation_ = new frmFermentation(wb_, recipe().editor().fermentation, &recipe());
    fermentation_->showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  }
  return *fermentation_;
}

frmComments& ProgramWindows::comments() {
  if (!comments_) {
    comments_ = new frmComments(wb_, recipe().editor(), &recipe());
    comments_->changed = [this] { recipe().refreshSaveButton(); };
    comments_->showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  }
  return *comments_;
}

frmRecReader& ProgramWindows::recReader() {
  if (!recReader_) {
    recReader_ = new frmRecReader(wb_, recipe().editor(), &recipe());
    // The editor and its companions show what was read; the reader stays in front.
    recReader_->extracted = [this] {
      recipe().refreshFromModel();
      if (fermentation_) fermentation_->refreshFromModel();
      if (comments_) comments_->refreshFromModel();
    };
    recReader_->showHelpTopic = [this](const QString& page) { showHelpTopic(page); };
  }
  return *recReader_;
}

void ProgramWindows::showRecipeList() { bringForward(recipeList()); }

void ProgramWindows::showRecipe() {
  frmRecipe& r = recipe();
  r.refreshFromModel();
  if (fermentation_) fermentation_->refreshFromModel();
  if (comments_) comments_->refreshFromModel();
  bringForward(r);
}

void ProgramWindows::openScale() {
  dlgScale& d = scale();
  d.load();
  d.exec();
}

void ProgramWindows::showFermentation() {
  frmFermentation& f = fermentation();
  f.refreshFromModel();
  bringForward(f);
}

void ProgramWindows::showComments() {
  frmComments& c = comments();
  c.refreshFromModel();
  bringForward(c);
}

void ProgramWindows::showRecReader() { bringForward(recReader()); }

void ProgramWindows::closeAll() {
  if (recReader_) recReader_->close();
  if (comments_) comments_->close();
  if (fermentation_) fermentation_->close();
  if (scale_) scale_->close();
  if (recipe_) recipe_->close();
  if (recipeList_) recipeList_->close();
}

bool ProgramWindows::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &main_ && event->type() == QEvent::Close) {
    // The main window closes: every window closes for good.
    wb_.appClosing = true;
    closeAll();
  }
  return QObject::eventFilter(watched, event);
}

void ProgramWindows::showHelpTopic(const QString& page) {
  frmHelp* h = main_.help();
  h->showTopic(page);
  bringForward(*h);
}

void ProgramWindows::openProperties(QWidget* over) {
  frmProperties dlg(wb_, over);
  dlg.exec();
}

}  // namespace zy
