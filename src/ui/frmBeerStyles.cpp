#include "ui/frmBeerStyles.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "core/text.h"
#include "styles/BeerStylesReport.h"
#include "ui/QtPrompter.h"
#include "ui/ReportActions.h"
#include "ui/HelpButton.h"
#include "ui/WindowPlacement.h"
#include "ui/TopicIcons.h"
#include "ui/dlgBeerCategories.h"
#include "ui/dlgBeerStyleEdit.h"
#include "ui/dlgBeerStyleStats.h"

namespace zy {

// One range of a style drawn as a bar: the scale as a grey track, the style's range as a band,
// the recipe's value as a marker in the colour of its judgement.
class StyleRangeBarView : public QWidget {
 public:
  explicit StyleRangeBarView(QWidget* parent = nullptr) : QWidget(parent) {
    setMinimumHeight(46);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  void setBar(const StyleRangeBar& b, bool shown) {
    bar_ = b;
    shown_ = shown;
    QString tip = qs(b.caption) + ": " + qs(b.rangeText);
    if (b.hasValue) tip += "\n" + tr("Recipe: ") + qs(b.valueText) + " (" + qs(b.state) + ")";
    setToolTip(shown ? tip : QString());
    update();
  }
  QSize sizeHint() const override { return {320, 46}; }
  const StyleRangeBar& bar() const { return bar_; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics fm = fontMetrics();
    const int line = fm.height();
    QFont bold = font();
    bold.setBold(true);
    p.setFont(bold);
    p.drawText(QRect(0, 0, width(), line), Qt::AlignLeft | Qt::AlignVCenter, shown_ ? qs(bar_.caption) : QString());
    if (!shown_) return;
    p.setFont(font());
    QString right = qs(bar_.rangeText);
    if (bar_.hasValue) right += "     " + tr("Recipe: ") + qs(bar_.valueText) + " " + qs(bar_.state);
    p.drawText(QRect(0, 0, width(), line), Qt::AlignRight | Qt::AlignVCenter, right);
    const QRect track(6, line + 8, width() - 12, 12);
    p.setPen(QPen(palette().color(QPalette::Mid)));
    p.setBrush(palette().color(QPalette::Midlight));
    p.drawRoundedRect(track, 4, 4);
    const double span = bar_.axisMax - bar_.axisMin;
    auto x = [&](double v) {
      const double f = span > 0 ? std::clamp((v - bar_.axisMin) / span, 0.0, 1.0) : 0.0;
      return track.left() + static_cast<int>(f * track.width());
    };
    if (!bar_.open) {
      const int a = x(bar_.low), b = std::max(x(bar_.high), a + 3);
      p.setPen(Qt::NoPen);
      p.setBrush(QColor(70, 120, 190));
      p.drawRoundedRect(QRect(a, track.top(), b - a, track.height()), 3, 3);
    }
    if (bar_.hasValue) {
      const int v = x(bar_.value);
      const QColor c(bar_.color[0], bar_.color[1], bar_.color[2]);
      p.setPen(QPen(Qt::black, 1));
      p.setBrush(c);
      const QPointF tri[3] = {QPointF(v - 6, track.top() - 7), QPointF(v + 6, track.top() - 7), QPointF(v, track.top() + 2)};
      p.drawPolygon(tri, 3);
      p.drawLine(v, track.top(), v, track.bottom() + 3);
    }
  }

 private:
  StyleRangeBar bar_;
  bool shown_ = false;
};

frmBeerStyles::frmBeerStyles(Workbench& wb, QWidget* parent)
    : QMainWindow(parent), editor(wb.styles, wb.folder, wb.errors, wb.prompter), wb_(wb) {
  setObjectName("frmBeerStyles");
  setWindowTitle(tr("Beer Styles"));
  setWindowIcon(toolIcon(ToolIcon::Styles));

  // ---- menus
  QMenu* file = menuBar()->addMenu(tr("&File"));
  mnuFileNewStyle = file->addAction(tr("&New Style..."), this, &frmBeerStyles::newStyle);
  mnuFileNewStyle->setShortcut(QKeySequence::New);
  mnuFileChangeStyle = file->addAction(tr("C&hange Style..."), this, &frmBeerStyles::changeStyle);
  mnuFileDeleteStyle = file->addAction(tr("&Delete Style"), this, &frmBeerStyles::deleteStyle);
  mnuFileDeleteStyle->setShortcut(QKeySequence::Delete);
  file->addSeparator();
  mnuFileNewRecipe = file->addAction(tr("New &Recipe from Style"), this, [this] {
    if (newRecipe && selectedRow() >= 0) newRecipe(selectedRow());
  });
  file->addSeparator();
  mnuFilePageSetup = file->addAction(tr("Print Set&up..."), this, [this] { pageSetup(this); });
  mnuFilePageSetup->setToolTip(tr("Paper, orientation and margins for printing"));
  mnuFilePreview = file->addAction(toolIcon(ToolIcon::Print), tr("Print Pre&view..."), this,
                                   [this] { previewReport(this, reportRequest(false)); });
  mnuFilePreview->setToolTip(tr("See the selected style as it prints, with its description"));
  mnuFilePreviewCategory = file->addAction(tr("Preview the St&yle's Category..."), this,
                                           [this] { previewReport(this, reportRequest(true)); });
  mnuFilePreviewCategory->setToolTip(tr("See every style of the selected style's category as it prints"));
  mnuFilePrint = file->addAction(tr("&Print"), this, [this] { printReportNow(this, reportRequest(false)); });
  mnuFilePrint->setToolTip(tr("Print the selected style"));
  file->addSeparator();
  mnuFileClose = file->addAction(tr("&Close"), this, &QWidget::close);
  QMenu* tools = menuBar()->addMenu(tr("&Tools"));
  mnuToolsCategories = tools->addAction(tr("Beer &Categories..."), this, &frmBeerStyles::editCategories);
  mnuToolsStats = tools->addAction(tr("Beer Style S&tatistics..."), this, &frmBeerStyles::showStatistics);
  QMenu* help = menuBar()->addMenu(tr("&Help"));
  mnuHelpContents = help->addAction(tr("&Contents"), this, [this] { showHelpPage(this, wb_, "beer-styles.html"); });
  mnuHelpContents->setShortcut(QKeySequence::HelpContents);
  for (QMenu* m : {file, tools, help}) m->setToolTipsVisible(true);

  // ---- the list
  cboSource = new QComboBox;
  cboSource->setObjectName("cboSource");
  for (const std::string& n : browserSourceNames()) cboSource->addItem(qs(n));
  cboSource->setToolTip(tr("Show the styles of one source only"));
  auto* sourceCaption = new QLabel(tr("&Show:"));
  sourceCaption->setBuddy(cboSource);
  lvStyles = new QTreeWidget;
  lvStyles->setObjectName("lvStyles");
  lvStyles->setHeaderLabels({tr("Category"), tr("Source"), tr("Beer Style")});
  lvStyles->setRootIsDecorated(false);
  lvStyles->setAllColumnsShowFocus(true);
  lvStyles->setUniformRowHeights(true);
  lvStyles->setToolTip(tr("Click a style to see its ranges; double-click one of your own to change it; "
                          "click a column header to sort"));
  lvStyles->setSortingEnabled(true);
  lvStyles->sortByColumn(-1, Qt::AscendingOrder);  // table order until a header is clicked
  cmdNew = new QPushButton(tr("&New..."));
  cmdNew->setToolTip(tr("A custom style of your own, starting from the selected one's ranges"));
  cmdChange = new QPushButton(tr("Chan&ge..."));
  cmdDelete = new QPushButton(tr("&Delete"));
  cmdNewRecipe = new QPushButton(tr("New &Recipe"));
  for (auto [b, n] : {std::pair{cmdNew, "cmdNew"}, {cmdChange, "cmdChange"}, {cmdDelete, "cmdDelete"},
                      {cmdNewRecipe, "cmdNewRecipe"}})
    b->setObjectName(n);
  auto* leftTop = new QHBoxLayout;
  leftTop->addWidget(sourceCaption);
  leftTop->addWidget(cboSource);
  leftTop->addStretch();
  auto* leftButtons = new QHBoxLayout;
  leftButtons->addWidget(cmdNew);
  leftButtons->addWidget(cmdChange);
  leftButtons->addWidget(cmdDelete);
  leftButtons->addStretch();
  leftButtons->addWidget(cmdNewRecipe);
  auto* left = new QWidget;
  auto* leftLayout = new QVBoxLayout(left);
  leftLayout->setContentsMargins(6, 4, 0, 4);
  leftLayout->addLayout(leftTop);
  leftLayout->addWidget(lvStyles, 1);
  leftLayout->addLayout(leftButtons);

  // ---- the details
  lblStyleName = new QLabel;
  lblStyleName->setObjectName("lblStyleName");
  QFont big = lblStyleName->font();
  big.setPointSizeF(big.pointSizeF() * 1.4);
  big.setBold(true);
  lblStyleName->setFont(big);
  lblStyleName->setWordWrap(true);
  lblStyleInfo = new QLabel;
  lblStyleInfo->setObjectName("lblStyleInfo");
  lblStyleInfo->setWordWrap(true);
  auto* right = new QWidget;
  auto* rightLayout = new QVBoxLayout(right);
  rightLayout->setContentsMargins(10, 4, 12, 4);
  rightLayout->addWidget(lblStyleName);
  rightLayout->addWidget(lblStyleInfo);
  for (auto& b : bars) {
    b = new StyleRangeBarView;
    rightLayout->addWidget(b);
  }
  auto* commentsCaption = new QLabel(tr("Comments:"));
  txtComments = new QTextBrowser;
  txtComments->setObjectName("txtComments");
  txtComments->setTabChangesFocus(true);
  txtComments->setPlaceholderText(tr("No comments for this style."));
  rightLayout->addWidget(commentsCaption);
  rightLayout->addWidget(txtComments, 1);

  auto* split = new QSplitter;
  split->addWidget(left);
  split->addWidget(right);
  split->setStretchFactor(0, 3);
  split->setStretchFactor(1, 2);
  split->setChildrenCollapsible(false);
  // Each side keeps room for its texts: the list its three columns, the details a range's caption
  // beside its numbers.
  left->setMinimumWidth(340);
  right->setMinimumWidth(320);
  setMinimumSize(720, 560);
  setCentralWidget(split);
  statusBar();

  connect(cboSource, &QComboBox::currentIndexChanged, this, [this](int i) {
    editor.sourceFilter = std::clamp(i, 0, 3);
    refreshList();
  });
  connect(lvStyles, &QTreeWidget::currentItemChanged, this, [this] {
    showDetails();
    updateCommands();
  });
  connect(lvStyles, &QTreeWidget::itemDoubleClicked, this, [this] {
    if (editor.isCustomStyle(selectedRow())) changeStyle();
  });
  connect(cmdNew, &QPushButton::clicked, this, &frmBeerStyles::newStyle);
  connect(cmdChange, &QPushButton::clicked, this, &frmBeerStyles::changeStyle);
  connect(cmdDelete, &QPushButton::clicked, this, &frmBeerStyles::deleteStyle);
  connect(cmdNewRecipe, &QPushButton::clicked, mnuFileNewRecipe, &QAction::trigger);

  const StyleBrowserSettings s = StyleBrowserSettings::read(wb_.settings);
  for (int c = 0; c < 3; ++c) lvStyles->setColumnWidth(c, s.columnWidths[static_cast<size_t>(c)]);
  editor.sourceFilter = s.sourceFilter;
  cboSource->blockSignals(true);
  cboSource->setCurrentIndex(s.sourceFilter);
  cboSource->blockSignals(false);
  refreshList();
  if (lvStyles->topLevelItemCount() > 0) lvStyles->setCurrentItem(lvStyles->topLevelItem(0));
}

int frmBeerStyles::selectedRow() const {
  QTreeWidgetItem* item = lvStyles->currentItem();
  return item ? item->data(0, Qt::UserRole).toInt() : -1;
}

void frmBeerStyles::refreshList() {
  const int keep = selectedRow();
  lvStyles->blockSignals(true);
  lvStyles->clear();
  QTreeWidgetItem* current = nullptr;
  for (const StyleBrowserEntry& e : editor.entries()) {
    auto* item = new QTreeWidgetItem({qs(e.categoryText), qs(e.sourceName), qs(e.styleName)});
    item->setData(0, Qt::UserRole, e.row);
    lvStyles->addTopLevelItem(item);
    if (e.row == keep) current = item;
  }
  if (current) lvStyles->setCurrentItem(current);
  lvStyles->blockSignals(false);
  showDetails();
  updateCommands();
  statusBar()->showMessage(tr("%1 of %2 styles shown").arg(lvStyles->topLevelItemCount()).arg(editor.styleCount()));
}

void frmBeerStyles::showStyle(const std::string& name) {
  const QString wanted = qs(name);
  for (int i = 0; i < lvStyles->topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = lvStyles->topLevelItem(i);
    if (item->text(2) != wanted) continue;
    lvStyles->setCurrentItem(item);
    lvStyles->scrollToItem(item, QAbstractItemView::PositionAtCenter);
    return;
  }
}

void frmBeerStyles::showStyle(int row) {
  for (int i = 0; i < lvStyles->topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = lvStyles->topLevelItem(i);
    if (item->data(0, Qt::UserRole).toInt() != row) continue;
    lvStyles->setCurrentItem(item);
    lvStyles->scrollToItem(item, QAbstractItemView::PositionAtCenter);
    return;
  }
}

void frmBeerStyles::showDetails() {
  const int row = selectedRow();
  const bool any = row >= 0 && row < std::min(wb_.styles.BeerStyleCount, kStyleTableRows);
  const BeerStyleRecord empty;
  const BeerStyleRecord& s = any ? wb_.styles.BeerStyles[static_cast<size_t>(row)] : empty;
  lblStyleName->setText(any ? qs(trim(s.styleName)) : tr("No style selected"));
  QString info;
  if (any) {
    info = qs(categoryLabel(wb_.styles, s.categoryIndex, true)) + "   " + tr("Source: ") + qs(styleSourceName(s.source));
    if (!trim(s.styleId).empty()) info += "   " + tr("Style ID: ") + qs(trim(s.styleId));
  }
  lblStyleInfo->setText(info);
  std::optional<RecipeStyleValues> values;
  if (recipeValues) values = recipeValues();
  const auto b = styleRangeBars(s, values ? &*values : nullptr);
  for (size_t i = 0; i < bars.size(); ++i) static_cast<StyleRangeBarView*>(bars[i])->setBar(b[i], any);
  txtComments->setPlainText(any ? qs(s.comments) : QString());
}

void frmBeerStyles::updateCommands() {
  const int row = selectedRow();
  const bool custom = editor.isCustomStyle(row);
  for (QWidget* w : std::initializer_list<QWidget*>{cmdChange, cmdDelete}) w->setEnabled(custom);
  mnuFileChangeStyle->setEnabled(custom);
  mnuFileDeleteStyle->setEnabled(custom);
  for (QAction* a : {mnuFilePreview, mnuFilePreviewCategory, mnuFilePrint}) a->setEnabled(row >= 0);
  const QString onlyCustom = tr("Only your own (Custom) styles can be changed or deleted");
  for (QAction* a : {mnuFileChangeStyle, mnuFileDeleteStyle}) a->setToolTip(custom ? a->text().remove('&') : onlyCustom);
  cmdChange->setToolTip(custom ? tr("Change the selected style") : onlyCustom);
  cmdDelete->setToolTip(custom ? tr("Delete the selected style") : onlyCustom);
  const bool canRecipe = static_cast<bool>(newRecipe);
  mnuFileNewRecipe->setEnabled(canRecipe && row >= 0);
  cmdNewRecipe->setEnabled(canRecipe && row >= 0);
  const QString recipeTip = canRecipe ? tr("A new recipe aimed at the middle of the selected style") : tr(kNewRecipeTip);
  mnuFileNewRecipe->setToolTip(recipeTip);
  cmdNewRecipe->setToolTip(recipeTip);
}

void frmBeerStyles::changed(int selectRow) {
  refreshList();
  if (selectRow >= 0) showStyle(selectRow);
  if (stylesChanged) stylesChanged();
}

void frmBeerStyles::newStyle() {
  if (!editor.mayAddStyle()) return;
  dlgBeerStyleEdit dlg(wb_, editor, -1, editor.newStyleForm(selectedRow()), this);
  if (dlg.exec() == QDialog::Accepted) {
    // A style of another source than the filter shows would vanish from sight: show all.
    if (editor.sourceFilter != BROWSE_ALL && editor.sourceFilter != BROWSE_CUSTOM) cboSource->setCurrentIndex(BROWSE_ALL);
    changed(dlg.savedRow);
  }
}

void frmBeerStyles::changeStyle() {
  const int row = selectedRow();
  if (row < 0) return;
  if (!editor.isCustomStyle(row)) {
    wb_.prompter.message("Only Custom Beer Styles can be changed. Use New Style to make a custom copy of this style.",
                         StyleEditor::kTitle, Icon::Warning);
    return;
  }
  dlgBeerStyleEdit dlg(wb_, editor, row, editor.formOf(row), this);
  if (dlg.exec() == QDialog::Accepted) changed(row);
}

void frmBeerStyles::deleteStyle() {
  const int row = selectedRow();
  if (row < 0) return;
  if (editor.deleteStyle(row)) changed(-1);
}

void frmBeerStyles::editCategories() {
  dlgBeerCategories dlg(wb_, editor, this);
  dlg.exec();
  if (dlg.changedAny) changed(selectedRow());
}

void frmBeerStyles::showStatistics() {
  dlgBeerStyleStats dlg(wb_, this);
  dlg.exec();
}

void frmBeerStyles::showEvent(QShowEvent* event) {
  if (!placed_) {
    restoreCentredPlacement(*this, wb_.settings, StyleBrowserSettings::kSection, QSize(980, 620));
    placed_ = true;
  }
  showDetails();  // the recipe's values may have changed while hidden
  QMainWindow::showEvent(event);
}

void frmBeerStyles::closeEvent(QCloseEvent* event) {
  StyleBrowserSettings s;
  s.sourceFilter = editor.sourceFilter;
  for (int c = 0; c < 3; ++c) s.columnWidths[static_cast<size_t>(c)] = lvStyles->columnWidth(c);
  s.write(wb_.settings);
  closeKeepingPlacement(*this, wb_, StyleBrowserSettings::kSection, event);
}

ReportRequest frmBeerStyles::reportRequest(bool wholeCategory) const {
  const int row = selectedRow();
  std::optional<RecipeStyleValues> values;
  if (recipeValues) values = recipeValues();
  if (!wholeCategory || row < 0) return beerStylesReportRequest(wb_.styles, {row}, "", values);
  const int key = wb_.styles.BeerStyles[static_cast<size_t>(row)].categoryIndex;
  return beerStylesReportRequest(wb_.styles, stylesOfCategory(wb_.styles, key), categoryLabel(wb_.styles, key, true),
                                 values);
}

}  // namespace zy
