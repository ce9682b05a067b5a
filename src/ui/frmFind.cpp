#include "ui/frmFind.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ui/HelpButton.h"

#include "ui/QtPrompter.h"

namespace zy {

frmFind::frmFind(Mode mode, std::function<bool(const std::string&)> findNext, QWidget* parent)
    : QDialog(parent), mode_(mode), findNext_(std::move(findNext)) {
  const bool recipe = mode == Mode::Recipe;
  setWindowTitle(recipe ? "Find Recipe" : "Find Inventory Item");
  setObjectName("frmFind");
  auto* grid = new QGridLayout(this);
  lblFind = new QLabel(recipe ? "Recipe &Name (or part of it):" : "Item &Name (or part of it):", this);
  txtFind = new QLineEdit(this);
  txtFind->setObjectName("txtFind");
  txtFind->setMinimumWidth(260);
  txtFind->setToolTip(recipe ? "Letters of the recipe name to look for; case does not matter"
                             : "Letters of the item name to look for; case does not matter");
  lblFind->setBuddy(txtFind);
  cmdFind = new QPushButton("&Find Next", this);
  cmdFind->setObjectName("cmdFind");
  cmdFind->setDefault(true);
  cmdFind->setToolTip("Select the next match, starting after the present selection");
  cmdCancel = new QPushButton("&Close", this);
  cmdCancel->setObjectName("cmdCancel");
  grid->addWidget(lblFind, 0, 0, 1, 2);
  grid->addWidget(txtFind, 1, 0, 1, 2);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(cmdFind, QDialogButtonBox::ActionRole);
  buttons->addButton(cmdCancel, QDialogButtonBox::RejectRole);
  cmdHelp = makeHelpButton(*this, showHelpTopic, recipe ? "recipe-list.html#find" : "inventory.html#find");
  buttons->addButton(cmdHelp, QDialogButtonBox::HelpRole);
  grid->addWidget(buttons, 2, 0, 1, 2);
  connect(cmdFind, &QPushButton::clicked, this, [this] { cmdFind_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  cmdFind->setEnabled(false);
  connect(txtFind, &QLineEdit::textChanged, this,
          [this](const QString& t) { cmdFind->setEnabled(!t.trimmed().isEmpty()); });
}

bool frmFind::cmdFind_Click() {
  if (!findNext_) return false;
  const bool found = findNext_(s8(txtFind->text()));
  txtFind->setFocus();
  txtFind->selectAll();
  return found;
}

}  // namespace zy
