#include "ui/frmFermentation.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "core/measures.h"
#include "core/numfmt.h"
#include "recipes/FermentationForm.h"
#include "ui/QtPrompter.h"
#include "ui/RecipeIcons.h"
#include "workbench/Startup.h"

namespace zy {

namespace {
QLineEdit* numberBox(QWidget* parent, const QString& name, int width) {
  auto* e = new QLineEdit(parent);
  e->setObjectName(name);
  e->setAlignment(Qt::AlignRight);
  e->setFixedWidth(width);
  // Digits and a decimal point: no minus sign.
  e->setValidator(new QRegularExpressionValidator(QRegularExpression(R"([0-9]*\.?[0-9]*)"), e));
  return e;
}

QComboBox* listBox(QWidget* parent, const QString& name, const StringList& items) {
  auto* c = new QComboBox(parent);
  c->setObjectName(name);
  for (const std::string& s : items) c->addItem(qs(s));
  return c;
}

// "Bottles && Kegs": one ampersand shown, none taken for an access key.
QString optionCaption(const char* text) { return qs(text).replace("&", "&&"); }
}  // namespace

frmFermentation::frmFermentation(Workbench& wb, FermentationForm& form, QWidget* parent)
    : QDialog(parent), wb_(wb), form_(form) {
  setWindowTitle("Fermentation/Priming Instructions");
  setObjectName("frmFermentation");
  setWindowIcon(recipeIcon("Ferment"));
  const Measures& m = measures();
  auto* box = new QVBoxLayout(this);

  auto* ferment = new QGroupBox("Fermentation", this);
  auto* fg = new QGridLayout(ferment);
  fg->addWidget(new QLabel("<b>Stage</b>"), 0, 0);
  fg->addWidget(new QLabel("<b>Time</b>"), 0, 1, 1, 2);
  fg->addWidget(new QLabel("<b>Temperature</b>"), 0, 3, 1, 2);
  fg->addWidget(new QLabel("<b>Vessel</b>"), 0, 5);
  for (int i = 0; i < FermentationForm::kStages; ++i) {
    const size_t k = static_cast<size_t>(i);
    txtValue[k] = numberBox(ferment, QString("txtValue%1").arg(i), 60);
    txtValue[k]->setToolTip("How long this stage lasts; 0 leaves the stage out");
    cboValueUnits[k] = listBox(ferment, QString("cboValueUnits%1").arg(i), m.timeUnits);
    txtTemp[k] = numberBox(ferment, QString("txtTemp%1").arg(i), 60);
    txtTemp[k]->setToolTip("The temperature to hold during this stage");
    lblStageTempUnits[k] = new QLabel(ferment);
    cboVessel[k] = listBox(ferment, QString("cboVessel%1").arg(i), m.vessels);
    cboVessel[k]->setToolTip("The fermenter this stage runs in");
    fg->addWidget(new QLabel(qs(listText(m.fermentStages, i)) + ":"), i + 1, 0);
    fg->addWidget(txtValue[k], i + 1, 1);
    fg->addWidget(cboValueUnits[k], i + 1, 2);
    fg->addWidget(txtTemp[k], i + 1, 3);
    fg->addWidget(lblStageTempUnits[k], i + 1, 4);
    fg->addWidget(cboVessel[k], i + 1, 5);
    connect(txtValue[k], &QLineEdit::textEdited, this, [this, i](const QString& t) { form_.setStageValue(i, s8(t)); });
    connect(txtTemp[k], &QLineEdit::textEdited, this, [this, i](const QString& t) { form_.setStageTemp(i, s8(t)); });
    connect(cboValueUnits[k], &QComboBox::activated, this, [this, i](int x) { form_.setStageUnits(i, x); });
    connect(cboVessel[k], &QComboBox::activated, this, [this, i](int x) { form_.setStageVessel(i, x); });
    for (QLineEdit* e : {txtValue[k], txtTemp[k]})
      connect(e, &QLineEdit::editingFinished, this, [this, i] {
        form_.reformatStage(i);
        refreshFromModel();
      });
  }
  fg->setColumnStretch(6, 1);
  box->addWidget(ferment);

  auto* middle = new QHBoxLayout;
  auto* cond = new QGroupBox("Conditioning", this);
  auto* cg = new QGridLayout(cond);
  auto* carbonation = new QButtonGroup(this);
  for (size_t i = 0; i < optCarbonation.size(); ++i) {
    optCarbonation[i] = new QRadioButton(optionCaption(kCarbonationCaptions[i]), cond);
    optCarbonation[i]->setObjectName(QString("optCarbonation%1").arg(i));
    carbonation->addButton(optCarbonation[i], static_cast<int>(i));
    cg->addWidget(optCarbonation[i], static_cast<int>(i / 2), static_cast<int>(i % 2));
  }
  connect(carbonation, &QButtonGroup::idClicked, this, [this](int id) { form_.setCarbonation(id); });
  auto* condLabel = new QLabel("Conditioning Instructions:", cond);
  txtConditioning = new QPlainTextEdit(cond);
  txtConditioning->setObjectName("txtConditioning");
  txtConditioning->setFixedHeight(54);
  txtConditioning->setTabChangesFocus(true);
  txtConditioning->setToolTip("Priming sugar, kraeusen or CO2 pressure: how the beer gets its carbonation");
  condLabel->setBuddy(txtConditioning);
  cg->addWidget(condLabel, 2, 0, 1, 2);
  cg->addWidget(txtConditioning, 3, 0, 1, 2);
  connect(txtConditioning, &QPlainTextEdit::textChanged, this, [this] {
    const std::string t = s8(txtConditioning->toPlainText());
    if (t != form_.txtConditioning) form_.setConditioning(t);
  });
  middle->addWidget(cond, 3);

  auto* aged = new QGroupBox("Aged In...", this);
  auto* ag = new QVBoxLayout(aged);
  auto* bottling = new QButtonGroup(this);
  for (size_t i = 0; i < optBottling.size(); ++i) {
    optBottling[i] = new QRadioButton(optionCaption(kContainerCaptions[i]), aged);
    optBottling[i]->setObjectName(QString("optBottling%1").arg(i));
    bottling->addButton(optBottling[i], static_cast<int>(i));
    ag->addWidget(optBottling[i]);
  }
  ag->addStretch();
  connect(bottling, &QButtonGroup::idClicked, this, [this](int id) { form_.setBottling(id); });
  middle->addWidget(aged, 1);
  box->addLayout(middle);

  auto* aging = new QGroupBox("Aging/Lagering", this);
  auto* agr = new QHBoxLayout(aging);
  chkAge = new QCheckBox("&Include", aging);
  chkAge->setObjectName("chkAge");
  chkAge->setToolTip("Age or lager the beer after fermentation, for the time and at the temperature beside");
  txtAgeValue = numberBox(aging, "txtAgeValue", 50);
  cboAgeUnits = listBox(aging, "cboAgeUnits", m.timeUnits);
  txtAgeTemp = numberBox(aging, "txtAgeTemp", 60);
  lblTempUnits = new QLabel(aging);
  lblTempUnits->setObjectName("lblTempUnits");
  agr->addWidget(chkAge);
  agr->addSpacing(10);
  agr->addWidget(new QLabel("After Fermentation Age/Lager for"));
  agr->addWidget(txtAgeValue);
  agr->addWidget(cboAgeUnits);
  agr->addWidget(new QLabel("at"));
  agr->addWidget(txtAgeTemp);
  agr->addWidget(lblTempUnits);
  agr->addStretch();
  box->addWidget(aging);
  connect(chkAge, &QCheckBox::clicked, this, [this](bool on) {
    form_.setAge(on);
    showAgeState();
  });
  connect(txtAgeValue, &QLineEdit::textEdited, this, [this](const QString& t) { form_.setAgeValue(s8(t)); });
  connect(txtAgeTemp, &QLineEdit::textEdited, this, [this](const QString& t) { form_.setAgeTemp(s8(t)); });
  connect(cboAgeUnits, &QComboBox::activated, this, [this](int i) { form_.setAgeUnits(i); });
  for (QLineEdit* e : {txtAgeValue, txtAgeTemp})
    connect(e, &QLineEdit::editingFinished, this, [this] {
      form_.reformatAge();
      refreshFromModel();
    });

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  cmdOK = new QPushButton("&OK", this);
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  cmdHelp = new QPushButton("&Help", this);
  cmdHelp->setObjectName("cmdHelp");
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdHelp);
  box->addLayout(buttons);
  connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);
  connect(cmdHelp, &QPushButton::clicked, this, [this] {
    if (showHelpTopic) showHelpTopic("recipe-editor.html#fermentation");
  });

  refreshFromModel();
  // Only the place is kept; the size is the window's own.
  adjustSize();
  const QPoint at(twipsToPixels(static_cast<long>(lenientValue(wb_.settings.read(kSection, "MainLeft", "1500")))),
                  twipsToPixels(static_cast<long>(lenientValue(wb_.settings.read(kSection, "MainTop", "1500")))));
  move(at);
}

void frmFermentation::refreshFromModel() {
  const FermentationForm& f = form_;
  auto setText = [](QLineEdit* e, const std::string& t) {
    if (e->text() != qs(t)) e->setText(qs(t));
  };
  for (size_t k = 0; k < 3; ++k) {
    setText(txtValue[k], f.txtValue[k]);
    setText(txtTemp[k], f.txtTemp[k]);
    cboValueUnits[k]->setCurrentIndex(f.cboValueUnits[k]);
    cboVessel[k]->setCurrentIndex(f.cboVessel[k]);
    lblStageTempUnits[k]->setText(qs(f.lblTempUnits));
  }
  if (f.optCarbonation >= 0 && f.optCarbonation < 4) optCarbonation[static_cast<size_t>(f.optCarbonation)]->setChecked(true);
  if (f.optBottling >= 0 && f.optBottling < 4) optBottling[static_cast<size_t>(f.optBottling)]->setChecked(true);
  if (s8(txtConditioning->toPlainText()) != f.txtConditioning) {
    const QSignalBlocker block(txtConditioning);
    txtConditioning->setPlainText(qs(f.txtConditioning));
  }
  chkAge->setChecked(f.chkAge);
  setText(txtAgeValue, f.txtAgeValue);
  setText(txtAgeTemp, f.txtAgeTemp);
  cboAgeUnits->setCurrentIndex(f.cboAgeUnits);
  lblTempUnits->setText(qs(f.lblTempUnits));
  showAgeState();
}

void frmFermentation::showAgeState() {
  const bool on = form_.agingEnabled();
  for (QWidget* w : std::initializer_list<QWidget*>{txtAgeValue, cboAgeUnits, txtAgeTemp, lblTempUnits}) w->setEnabled(on);
}

void frmFermentation::closeEvent(QCloseEvent* event) {
  wb_.settings.write(kSection, "MainLeft", std::to_string(pixelsToTwips(pos().x())));
  wb_.settings.write(kSection, "MainTop", std::to_string(pixelsToTwips(pos().y())));
  if (wb_.appClosing) {
    event->accept();
    return;
  }
  event->ignore();
  hide();
}

}  // namespace zy
