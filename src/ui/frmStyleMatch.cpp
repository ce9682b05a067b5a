#include "ui/frmStyleMatch.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ui/QtPrompter.h"
#include "ui/HelpButton.h"
#include "ui/WindowPlacement.h"
#include "ui/TopicIcons.h"
#include "ui/frmBeerStyles.h"

namespace zy {

frmStyleMatch::frmStyleMatch(Workbench& wb, RecipeEditor& editor, QWidget* parent)
    : QWidget(parent, Qt::Window), wb_(wb), editor_(editor) {
  setObjectName("frmStyleMatch");
  setWindowTitle(StyleMatchModel::kCaption);
  setWindowIcon(toolIcon(ToolIcon::Styles));

  auto* intro = new QLabel(tr("These Beer Styles match the current recipe or are within 10% of the style "
                              "characteristics"));
  intro->setWordWrap(true);
  lvStyle = new QTreeWidget;
  lvStyle->setObjectName("lvStyle");
  lvStyle->setRootIsDecorated(false);
  lvStyle->setAllColumnsShowFocus(true);
  lvStyle->setUniformRowHeights(true);
  QStringList heads;
  for (const std::string& h : StyleMatchModel::columnHeaders()) heads << qs(h);
  lvStyle->setHeaderLabels(heads);
  lvStyle->header()->setSectionsClickable(true);
  lvStyle->header()->setStretchLastSection(false);
  lvStyle->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  for (int c = 1; c < 6; ++c) {
    lvStyle->header()->setSectionResizeMode(c, QHeaderView::Fixed);
    lvStyle->setColumnWidth(c, 58);
  }
  lvStyle->setToolTip(tr("OK: within the style's range; Low or High: outside it, yet within 10%"));
  auto* hints = new QLabel(tr("Double-click a Beer Style to see Details") + "<br>" +
                           tr("Click a Column Header to Sort Results"));
  hints->setTextFormat(Qt::RichText);

  cmdSetRecipe = new QPushButton(tr("&Set Recipe to Selected Style"));
  cmdSetRecipe->setObjectName("cmdSetRecipe");
  cmdSetRecipe->setToolTip(tr("Make the selected style the recipe's style and close this window"));
  cmdSetRecipe->setDefault(true);
  cmdClose = new QPushButton(tr("&Close"));
  cmdClose->setObjectName("cmdClose");
  cmdHelp = new QPushButton(tr("&Help"));
  cmdHelp->setObjectName("cmdHelp");
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdSetRecipe);
  buttons->addStretch();
  buttons->addWidget(cmdClose);
  buttons->addWidget(cmdHelp);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(intro);
  layout->addWidget(lvStyle, 1);
  layout->addWidget(hints);
  layout->addLayout(buttons);
  // Room for a style's name and half a dozen rows at the least.
  lvStyle->setMinimumHeight(lvStyle->fontMetrics().height() * 8);
  lvStyle->header()->setMinimumSectionSize(40);
  setMinimumSize(500, 320);

  connect(lvStyle->header(), &QHeaderView::sectionClicked, this, [this](int c) {
    model.selected = lvStyle->currentItem() ? lvStyle->indexOfTopLevelItem(lvStyle->currentItem()) : -1;
    model.sortByColumn(c);
    repaintList();
  });
  connect(lvStyle, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    model.selected = item ? lvStyle->indexOfTopLevelItem(item) : -1;
  });
  connect(lvStyle, &QTreeWidget::itemDoubleClicked, this,
          [this](QTreeWidgetItem* item) { rowDoubleClicked(lvStyle->indexOfTopLevelItem(item)); });
  connect(cmdSetRecipe, &QPushButton::clicked, this, &frmStyleMatch::cmdSetRecipe_Click);
  connect(cmdClose, &QPushButton::clicked, this, &QWidget::close);
  connect(cmdHelp, &QPushButton::clicked, this, [this] { showHelpPage(this, wb_, "style-match.html#match"); });
}

void frmStyleMatch::refresh() {
  model = editor_.openStyleMatch();
  repaintList();
}

void frmStyleMatch::repaintList() {
  // Emptying the list would report the selection gone: the model's selection is the one kept.
  const QSignalBlocker quiet(lvStyle);
  lvStyle->clear();
  for (const StyleMatchRow& r : model.rows) {
    QStringList cells{qs(r.name)};
    for (const std::string& c : r.cells) cells << qs(c);
    auto* item = new QTreeWidgetItem(cells);
    for (int c = 1; c < 6; ++c) item->setTextAlignment(c, Qt::AlignCenter);
    lvStyle->addTopLevelItem(item);
  }
  if (model.selected >= 0 && model.selected < lvStyle->topLevelItemCount()) {
    QTreeWidgetItem* item = lvStyle->topLevelItem(model.selected);
    lvStyle->setCurrentItem(item);
    lvStyle->scrollToItem(item);
  }
  cmdSetRecipe->setEnabled(model.cmdSetRecipeEnabled);
}

void frmStyleMatch::cmdSetRecipe_Click() {
  const auto text = model.setRecipeStyleText();
  if (!text) return;
  editor_.setStyleText(*text);
  if (styleSet) styleSet();
  close();
}

void frmStyleMatch::rowDoubleClicked(int row) {
  const auto name = model.doubleClick(row, wb_.prompter);
  if (!name) return;
  if (openStyleBrowser) {
    openStyleBrowser(*name);
    return;
  }
  auto* browser = static_cast<frmBeerStyles*>(ownBrowser_);
  if (!browser) {
    browser = new frmBeerStyles(wb_, this);
    ownBrowser_ = browser;
  }
  browser->show();
  browser->raise();
  browser->showStyle(*name);
}

void frmStyleMatch::showEvent(QShowEvent* event) {
  if (!placed_) {
    restoreCentredPlacement(*this, wb_.settings, kSection, QSize(560, 420));
    placed_ = true;
  }
  refresh();
  QWidget::showEvent(event);
}

void frmStyleMatch::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (auto* b = qobject_cast<QPushButton*>(focusWidget())) b->click();
      else if (cmdSetRecipe->isEnabled()) cmdSetRecipe->click();
      return;
    case Qt::Key_Escape: close(); return;
    default: QWidget::keyPressEvent(event);
  }
}

void frmStyleMatch::closeEvent(QCloseEvent* event) { closeKeepingPlacement(*this, wb_, kSection, event); }

}  // namespace zy
