#include "ui/dlgBeerStyleEdit.h"

#include <QComboBox>
#include <QDoubleValidator>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/text.h"
#include "ui/QtPrompter.h"
#include "ui/HelpButton.h"
#include "ui/WindowPlacement.h"

namespace zy {

dlgBeerStyleEdit::dlgBeerStyleEdit(Workbench& wb, StyleEditor& editor, int row, const StyleForm& form, QWidget* parent)
    : QDialog(parent), wb_(wb), editor_(editor), row_(row) {
  setObjectName("dlgBeerStyleEdit");
  setWindowTitle(row < 0 ? tr("New Beer Style") : tr("Change Beer Style"));
  setModal(true);

  txtName = new QLineEdit(qs(form.txtName));
  txtName->setObjectName("txtName");
  txtName->setMaxLength(static_cast<int>(kStyleNameWidth));
  txtName->setToolTip(tr("The name recipes know the style by; no two styles may share one"));
  txtId = new QLineEdit(qs(form.txtId));
  txtId->setObjectName("txtId");
  txtId->setMaxLength(static_cast<int>(kStyleIdWidth));
  txtId->setToolTip(tr("A short mark of your own, such as H1 (may stay empty)"));
  cboCategory = new QComboBox;
  cboCategory->setObjectName("cboCategory");
  cboCategory->setToolTip(tr("The category the style is listed under; add your own with Tools, Categories"));
  const StyleTables& t = wb.styles;
  for (int i = 0; i < std::min(t.BeerCategoryCount, kCategoryTableRows); ++i) {
    if (trim(t.BeerCategories[static_cast<size_t>(i)].category).empty()) continue;
    cboCategory->addItem(qs(styleSourceName(t.BeerCategories[static_cast<size_t>(i)].source) + ": " +
                            categoryLabel(t, i, false)),
                         i);
  }
  cboCategory->setCurrentIndex(cboCategory->findData(form.category));

  auto* top = new QFormLayout;
  top->addRow(tr("&Name:"), txtName);
  top->addRow(tr("Style &ID:"), txtId);
  top->addRow(tr("C&ategory:"), cboCategory);

  auto* ranges = new QGroupBox(tr("Ranges (leave both boxes empty where the style sets none)"));
  auto* grid = new QGridLayout(ranges);
  grid->addWidget(new QLabel(tr("Low")), 0, 1, Qt::AlignCenter);
  grid->addWidget(new QLabel(tr("High")), 0, 2, Qt::AlignCenter);
  const char* captions[5] = {"&Original Gravity:", "&Final Gravity:", "&Bitterness (IBU):", "Co&lor (SRM):",
                             "Alcohol % by &Volume:"};
  const char* names[10] = {"txtOGLow", "txtOGHigh", "txtFGLow", "txtFGHigh", "txtIBULow",
                           "txtIBUHigh", "txtSRMLow", "txtSRMHigh", "txtAlcoholLow", "txtAlcoholHigh"};
  for (int m = 0; m < 5; ++m) {
    auto* caption = new QLabel(tr(captions[m]));
    grid->addWidget(caption, m + 1, 0);
    for (int e = 0; e < 2; ++e) {
      const size_t i = static_cast<size_t>(2 * m + e);
      txtRange[i] = new QLineEdit(qs(form.txtRange[i]));
      txtRange[i]->setObjectName(names[i]);
      txtRange[i]->setMaximumWidth(90);
      txtRange[i]->setAlignment(Qt::AlignRight);
      grid->addWidget(txtRange[i], m + 1, e + 1);
    }
    caption->setBuddy(txtRange[static_cast<size_t>(2 * m)]);
  }
  grid->setColumnStretch(3, 1);

  txtComments = new QPlainTextEdit(qs(form.txtComments));
  txtComments->setObjectName("txtComments");
  txtComments->setTabChangesFocus(true);
  txtComments->setToolTip(tr("What sets the style apart: aroma, flavour, ingredients"));
  auto* commentsCaption = new QLabel(tr("Co&mments:"));
  commentsCaption->setBuddy(txtComments);

  cmdOK = new QPushButton(tr("OK"));
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  cmdCancel = new QPushButton(tr("Cancel"));
  cmdCancel->setObjectName("cmdCancel");
  auto* help = new QPushButton(tr("&Help"));
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(help);
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);

  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(ranges);
  layout->addWidget(commentsCaption);
  layout->addWidget(txtComments, 1);
  layout->addLayout(buttons);

  connect(cmdOK, &QPushButton::clicked, this, &dlgBeerStyleEdit::ok);
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(help, &QPushButton::clicked, this, [this] { showHelpPage(this, wb_, "beer-styles.html#edit"); });
  resize(460, 480);
}

void dlgBeerStyleEdit::ok() {
  StyleForm f;
  f.txtName = s8(txtName->text());
  f.txtId = s8(txtId->text());
  f.category = cboCategory->currentIndex() >= 0 ? cboCategory->currentData().toInt() : -1;
  for (size_t i = 0; i < txtRange.size(); ++i) f.txtRange[i] = s8(txtRange[i]->text());
  f.txtComments = s8(txtComments->toPlainText());
  const int r = editor_.acceptStyle(row_, f);
  if (r < 0) return;  // the message told why; the boxes stay as typed
  savedRow = r;
  accept();
}

}  // namespace zy
