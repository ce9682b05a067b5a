#include "ui/frmGenHTML.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/HelpButton.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
const char* const kHelpPage = "web-page.html";

QCheckBox* check(QWidget* parent, const char* name, const QString& caption, const QString& tip) {
  auto* c = new QCheckBox(caption, parent);
  c->setObjectName(name);
  c->setToolTip(tip);
  return c;
}
QLineEdit* box(QWidget* parent, const char* name, const QString& tip) {
  auto* e = new QLineEdit(parent);
  e->setObjectName(name);
  e->setToolTip(tip);
  return e;
}
}  // namespace

frmGenHTML::frmGenHTML(Workbench& wb, QWidget* parent) : QDialog(parent), wb_(wb) {
  setWindowTitle(HtmlGenForm::kCaption);
  setObjectName("frmGenHTML");
  setWindowIcon(recipeIcon("genHTML"));
  setModal(true);
  auto* layout = new QVBoxLayout(this);

  // The top of the page: the anchor and the brewer's own header.
  auto* top = new QGroupBox("Top of the Page", this);
  auto* tg = new QGridLayout(top);
  chkTag = check(top, "chkTag", "Top of page a&nchor, named:",
                 "Write an anchor at the top of the page, for the link back to the top");
  txtTag = box(top, "txtTag", "The name of the anchor at the top of the page");
  chkBefore = check(top, "chkBefore", "Insert a file &before the title:",
                    "Copy the lines of an HTML file of your own ahead of the recipe, such as your page's header");
  txtBefore = box(top, "txtBefore", "The HTML file copied ahead of the recipe");
  cmdBefore = new QPushButton("Br&owse...", top);
  cmdBefore->setObjectName("cmdBefore");
  cmdBefore->setToolTip("Pick the file copied ahead of the recipe");
  tg->addWidget(chkTag, 0, 0);
  tg->addWidget(txtTag, 0, 1, 1, 2);
  tg->addWidget(chkBefore, 1, 0);
  tg->addWidget(txtBefore, 1, 1);
  tg->addWidget(cmdBefore, 1, 2);
  tg->setColumnStretch(1, 1);
  layout->addWidget(top);

  // The title.
  auto* title = new QGroupBox("Title", this);
  auto* hg = new QGridLayout(title);
  cboSize = new QComboBox(title);
  cboSize->setObjectName("cboSize");
  cboSize->addItems({"Large", "Medium", "Small"});
  cboSize->setToolTip("The size of the recipe's name at the top of the page");
  auto* lblSize = new QLabel("Title si&ze:", title);
  lblSize->setBuddy(cboSize);
  chkAddTitle = check(title, "chkAddTitle", "Add &text:", "Add a text of your own to the recipe's name");
  txtAddTitle = box(title, "txtAddTitle", "The text added to the title, such as \"My Favourite\"");
  cboAddTitle = new QComboBox(title);
  cboAddTitle->setObjectName("cboAddTitle");
  cboAddTitle->addItems({"Before Title", "After Title"});
  cboAddTitle->setToolTip("Whether the added text stands before or after the recipe's name");
  hg->addWidget(lblSize, 0, 0);
  hg->addWidget(cboSize, 0, 1, Qt::AlignLeft);
  hg->addWidget(chkAddTitle, 1, 0);
  hg->addWidget(txtAddTitle, 1, 1);
  hg->addWidget(cboAddTitle, 1, 2);
  hg->setColumnStretch(1, 1);
  layout->addWidget(title);

  // The download paragraph and the cost, side by side.
  auto* middle = new QHBoxLayout;
  auto* download = new QGroupBox("Download", this);
  auto* dg = new QGridLayout(download);
  chkDownload = check(download, "chkDownload", "Offer the recipe for &download",
                      "Add a paragraph with a link to the recipe's exchange file (.zyr), which you export "
                      "from the recipe list and put beside the page");
  txtFTP = box(download, "txtFTP", "The folder or address written ahead of the file name in the link, "
                                   "such as ftp://ftp.example.org/recipes/ (empty: beside the page)");
  auto* lblFTP = new QLabel("FTP d&irectory:", download);
  lblFTP->setBuddy(txtFTP);
  dg->addWidget(chkDownload, 0, 0, 1, 2);
  dg->addWidget(lblFTP, 1, 0);
  dg->addWidget(txtFTP, 1, 1);
  dg->setColumnStretch(1, 1);
  middle->addWidget(download, 5);
  auto* costs = new QGroupBox("Costs", this);
  auto* cg = new QVBoxLayout(costs);
  chkCosts = check(costs, "chkCosts", "Include the &estimated cost",
                   "Add the recipe's approximate cost, worked out from its ingredients");
  cg->addWidget(chkCosts);
  cg->addStretch(1);
  middle->addWidget(costs, 2);
  layout->addLayout(middle);

  // The end of the page.
  auto* end = new QGroupBox("End of the Page", this);
  auto* eg = new QGridLayout(end);
  chkAfter = check(end, "chkAfter", "Insert a file &after the recipe:",
                   "Copy the lines of an HTML file of your own behind the recipe, such as your page's footer");
  txtAfter = box(end, "txtAfter", "The HTML file copied behind the recipe");
  cmdAfter = new QPushButton("Bro&wse...", end);
  cmdAfter->setObjectName("cmdAfter");
  cmdAfter->setToolTip("Pick the file copied behind the recipe");
  chkReturn = check(end, "chkReturn", "Link to &return to the top",
                    "End the page with a link back to the anchor at its top");
  eg->addWidget(chkAfter, 0, 0);
  eg->addWidget(txtAfter, 0, 1);
  eg->addWidget(cmdAfter, 0, 2);
  eg->addWidget(chkReturn, 1, 0, 1, 3);
  eg->setColumnStretch(1, 1);
  layout->addWidget(end);

  // The file name proposed when Generate asks for the file.
  auto* names = new QGroupBox("Proposed File Name", this);
  auto* ng = new QHBoxLayout(names);
  chkShortName = check(names, "chkShortName", "&Short (8 letters)",
                       "Propose a name of at most 8 lower-case letters, for old servers");
  chkUnixName = check(names, "chkUnixName", "&Unix compatible (no blanks)",
                      "Propose the recipe's name with underscores for its blanks");
  ng->addWidget(chkShortName);
  ng->addWidget(chkUnixName);
  ng->addStretch(1);
  layout->addWidget(names);

  auto* buttons = new QDialogButtonBox(this);
  cmdGenerate = buttons->addButton("&Generate...", QDialogButtonBox::AcceptRole);
  cmdGenerate->setObjectName("cmdGenerate");
  cmdGenerate->setToolTip("Choose the file and write the recipe's web page");
  cmdCancel = buttons->addButton("&Cancel", QDialogButtonBox::RejectRole);
  cmdCancel->setObjectName("cmdCancel");
  cmdCancel->setToolTip("Close without writing a page (the settings are kept)");
  cmdHelp = makeHelpButton(*this, showHelpTopic, kHelpPage);
  buttons->addButton(cmdHelp, QDialogButtonBox::HelpRole);
  cmdGenerate->setDefault(true);
  layout->addWidget(buttons);

  // Every control tells the model at once.
  auto bindCheck = [this](QCheckBox* c, bool HtmlGenForm::*field) {
    connect(c, &QCheckBox::toggled, this, [this, field](bool on) {
      model.*field = on;
      refreshEnabled();
    });
  };
  bindCheck(chkTag, &HtmlGenForm::chkTag);
  bindCheck(chkBefore, &HtmlGenForm::chkBefore);
  bindCheck(chkAddTitle, &HtmlGenForm::chkAddTitle);
  bindCheck(chkDownload, &HtmlGenForm::chkDownload);
  bindCheck(chkCosts, &HtmlGenForm::chkCosts);
  bindCheck(chkAfter, &HtmlGenForm::chkAfter);
  bindCheck(chkReturn, &HtmlGenForm::chkReturn);
  bindCheck(chkShortName, &HtmlGenForm::chkShortName);
  bindCheck(chkUnixName, &HtmlGenForm::chkUnixName);
  auto bindText = [this](QLineEdit* e, std::string HtmlGenForm::*field) {
    connect(e, &QLineEdit::textChanged, this, [this, field](const QString& t) { model.*field = s8(t); });
  };
  bindText(txtTag, &HtmlGenForm::txtTag);
  bindText(txtBefore, &HtmlGenForm::txtBefore);
  bindText(txtAddTitle, &HtmlGenForm::txtAddTitle);
  bindText(txtFTP, &HtmlGenForm::txtFTP);
  bindText(txtAfter, &HtmlGenForm::txtAfter);
  connect(cboSize, &QComboBox::currentIndexChanged, this, [this](int i) { model.cboSize = i < 0 ? 0 : i; });
  connect(cboAddTitle, &QComboBox::currentIndexChanged, this, [this](int i) { model.cboAddTitle = i < 0 ? 0 : i; });
  connect(cmdBefore, &QPushButton::clicked, this, [this] {
    if (model.cmdBefore(wb_)) txtBefore->setText(qs(model.txtBefore));
  });
  connect(cmdAfter, &QPushButton::clicked, this, [this] {
    if (model.cmdAfter(wb_)) txtAfter->setText(qs(model.txtAfter));
  });
  connect(cmdGenerate, &QPushButton::clicked, this, [this] { cmdGenerate_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

  // The window's load: the settings as last left.
  model.load(wb_.settings);
  refresh();
  txtBefore->setMinimumWidth(260);
  setMinimumWidth(580);
}

void frmGenHTML::refresh() {
  chkTag->setChecked(model.chkTag);
  txtTag->setText(qs(model.txtTag));
  chkBefore->setChecked(model.chkBefore);
  txtBefore->setText(qs(model.txtBefore));
  cboSize->setCurrentIndex(model.cboSize);
  chkAddTitle->setChecked(model.chkAddTitle);
  txtAddTitle->setText(qs(model.txtAddTitle));
  cboAddTitle->setCurrentIndex(model.cboAddTitle);
  chkDownload->setChecked(model.chkDownload);
  txtFTP->setText(qs(model.txtFTP));
  chkCosts->setChecked(model.chkCosts);
  chkAfter->setChecked(model.chkAfter);
  txtAfter->setText(qs(model.txtAfter));
  chkReturn->setChecked(model.chkReturn);
  chkShortName->setChecked(model.chkShortName);
  chkUnixName->setChecked(model.chkUnixName);
  refreshEnabled();
}

// A box serves only while its check is set; a short name leaves no blanks to replace.
void frmGenHTML::refreshEnabled() {
  txtTag->setEnabled(model.chkTag);
  txtBefore->setEnabled(model.chkBefore);
  cmdBefore->setEnabled(model.chkBefore);
  txtAddTitle->setEnabled(model.chkAddTitle);
  cboAddTitle->setEnabled(model.chkAddTitle);
  txtFTP->setEnabled(model.chkDownload);
  txtAfter->setEnabled(model.chkAfter);
  cmdAfter->setEnabled(model.chkAfter);
  chkUnixName->setEnabled(!model.chkShortName);
}

bool frmGenHTML::cmdGenerate_Click() {
  if (model.cmdGenerate(wb_) != HtmlGenForm::Outcome::Written) return false;
  accept();
  return true;
}

void frmGenHTML::done(int result) {
  model.save(wb_.settings);
  QDialog::done(result);
}

}  // namespace zy
