#include "ui/dlgBeerCategories.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/QtPrompter.h"
#include "ui/HelpButton.h"
#include "ui/WindowPlacement.h"

namespace zy {

dlgBeerCategories::dlgBeerCategories(Workbench& wb, StyleEditor& editor, QWidget* parent)
    : QDialog(parent), wb_(wb), editor_(editor) {
  setObjectName("dlgBeerCategories");
  setWindowTitle(tr("Beer Categories"));
  setModal(true);

  lstCategories = new QListWidget;
  lstCategories->setObjectName("lstCategories");
  lstCategories->setToolTip(tr("Your own categories; the published ones (AOB, BJCP) cannot be changed"));
  auto* listCaption = new QLabel(tr("Your &categories:"));
  listCaption->setBuddy(lstCategories);

  txtId = new QLineEdit;
  txtId->setObjectName("txtId");
  txtId->setMaxLength(static_cast<int>(kCategoryIdWidth));
  txtId->setToolTip(tr("A short mark shown before the name, such as 99 (may stay empty)"));
  txtCategory = new QLineEdit;
  txtCategory->setObjectName("txtCategory");
  txtCategory->setMaxLength(static_cast<int>(kCategoryNameWidth));
  txtSubCategory = new QLineEdit;
  txtSubCategory->setObjectName("txtSubCategory");
  txtSubCategory->setMaxLength(static_cast<int>(kSubCategoryWidth));
  txtSubCategory->setToolTip(tr("Shown after the name and a dash (may stay empty)"));
  auto* form = new QFormLayout;
  form->addRow(tr("&ID:"), txtId);
  form->addRow(tr("&Name:"), txtCategory);
  form->addRow(tr("S&ubcategory:"), txtSubCategory);

  cmdNew = new QPushButton(tr("Ne&w"));
  cmdNew->setObjectName("cmdNew");
  cmdNew->setToolTip(tr("Empty the boxes for a new category"));
  cmdSave = new QPushButton(tr("&Save"));
  cmdSave->setObjectName("cmdSave");
  cmdSave->setDefault(true);  // Return in a box keeps the category
  cmdSave->setToolTip(tr("Keep the boxes as the selected category, or as a new one"));
  cmdDelete = new QPushButton(tr("&Delete"));
  cmdDelete->setObjectName("cmdDelete");
  cmdDelete->setToolTip(tr("Delete the selected category (only when no style belongs to it)"));
  cmdClose = new QPushButton(tr("Close"));
  cmdClose->setObjectName("cmdClose");
  auto* help = new QPushButton(tr("&Help"));

  auto* right = new QVBoxLayout;
  right->addLayout(form);
  auto* row = new QHBoxLayout;
  row->addWidget(cmdNew);
  row->addWidget(cmdSave);
  row->addWidget(cmdDelete);
  right->addLayout(row);
  right->addStretch();
  // The caption stands above both columns, so that the list and the boxes begin on one line.
  auto* body = new QHBoxLayout;
  body->addWidget(lstCategories, 1);
  body->addLayout(right, 1);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(help);
  bottom->addStretch();
  bottom->addWidget(cmdClose);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(listCaption);
  layout->addLayout(body);
  layout->addLayout(bottom);

  connect(lstCategories, &QListWidget::currentRowChanged, this, [this] { showSelected(); });
  connect(cmdNew, &QPushButton::clicked, this, [this] {
    lstCategories->setCurrentRow(-1);
    showSelected();
    txtCategory->setFocus();
  });
  connect(cmdSave, &QPushButton::clicked, this, &dlgBeerCategories::save);
  connect(cmdDelete, &QPushButton::clicked, this, &dlgBeerCategories::remove);
  connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
  connect(help, &QPushButton::clicked, this, [this] { showHelpPage(this, wb_, "beer-styles.html#categories"); });
  fillList(-1);
  txtCategory->setToolTip(tr("The category's name, as the style lists show it"));
  lstCategories->setMinimumWidth(200);
  setMinimumSize(500, 240);
  resize(620, 320);
}

void dlgBeerCategories::fillList(int selectRow) {
  lstCategories->blockSignals(true);
  lstCategories->clear();
  for (int r : editor_.customCategoryRows()) {
    auto* item = new QListWidgetItem(qs(categoryLabel(wb_.styles, r, false)));
    item->setData(Qt::UserRole, r);
    lstCategories->addItem(item);
    if (r == selectRow) lstCategories->setCurrentItem(item);
  }
  lstCategories->blockSignals(false);
  showSelected();
}

void dlgBeerCategories::showSelected() {
  QListWidgetItem* item = lstCategories->currentItem();
  const CategoryForm f = item ? editor_.categoryFormOf(item->data(Qt::UserRole).toInt()) : CategoryForm{};
  txtId->setText(qs(f.txtId));
  txtCategory->setText(qs(f.txtCategory));
  txtSubCategory->setText(qs(f.txtSubCategory));
  cmdDelete->setEnabled(item != nullptr);
}

void dlgBeerCategories::save() {
  QListWidgetItem* item = lstCategories->currentItem();
  const int row = item ? item->data(Qt::UserRole).toInt() : -1;
  const int saved =
      editor_.acceptCategory(row, {s8(txtId->text()), s8(txtCategory->text()), s8(txtSubCategory->text())});
  if (saved < 0) return;
  changedAny = true;
  fillList(saved);
}

void dlgBeerCategories::remove() {
  QListWidgetItem* item = lstCategories->currentItem();
  if (!item) return;
  if (!editor_.deleteCategory(item->data(Qt::UserRole).toInt())) return;
  changedAny = true;
  fillList(-1);
}

}  // namespace zy
