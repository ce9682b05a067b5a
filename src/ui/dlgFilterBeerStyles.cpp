#include "ui/dlgFilterBeerStyles.h"

#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/QtPrompter.h"
#include "ui/HelpButton.h"
#include "ui/WindowPlacement.h"

namespace zy {

dlgFilterBeerStyles::dlgFilterBeerStyles(Workbench& wb, QWidget* parent) : QDialog(parent), wb_(wb) {
  setObjectName("dlgFilterBeerStyles");
  setWindowTitle(StyleFilterDialog::kCaption);
  setModal(true);

  auto* frame = new QGroupBox(tr("Show Styles"));
  auto* checks = new QHBoxLayout(frame);
  const char* tips[kStyleSourceCount] = {"Styles you added yourself", "Styles of the Association of Brewers",
                                         "Styles of the Beer Judge Certification Program"};
  const char* captions[kStyleSourceCount] = {"&Custom", "&AOB", "&BJCP"};
  for (int i = 0; i < kStyleSourceCount; ++i) {
    chkStyle[static_cast<size_t>(i)] = new QCheckBox(tr(captions[i]));
    chkStyle[static_cast<size_t>(i)]->setObjectName(QString("chkStyle(%1)").arg(i));
    chkStyle[static_cast<size_t>(i)]->setToolTip(tr(tips[i]));
    checks->addWidget(chkStyle[static_cast<size_t>(i)]);
  }
  checks->addStretch();

  auto* caption = new QLabel(tr("Only Show Beer Styles with the &following text:"));
  txtFilter = new QLineEdit;
  txtFilter->setObjectName("txtFilter");
  txtFilter->setToolTip(tr("Part of a style's name, in any case; leave empty to show every style"));
  caption->setBuddy(txtFilter);
  txtFilter->installEventFilter(this);

  cmdOK = new QPushButton(tr("OK"));
  cmdOK->setObjectName("cmdOK");
  cmdOK->setDefault(true);
  cmdCancel = new QPushButton(tr("Cancel"));
  cmdCancel->setObjectName("cmdCancel");
  cmdReset = new QPushButton(tr("&Reset"));
  cmdReset->setObjectName("cmdReset");
  cmdReset->setToolTip(tr("Show every style again (kept when you press OK)"));
  cmdHelp = new QPushButton(tr("&Help"));
  cmdHelp->setObjectName("cmdHelp");
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdReset);
  buttons->addWidget(cmdHelp);
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(frame);
  layout->addWidget(caption);
  layout->addWidget(txtFilter);
  layout->addStretch();
  layout->addLayout(buttons);

  connect(cmdOK, &QPushButton::clicked, this, [this] {
    takeBoxes();
    model.ok(wb_.styles);
    accept();
  });
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(cmdReset, &QPushButton::clicked, this, [this] {
    model.reset();
    repaint();
  });
  connect(cmdHelp, &QPushButton::clicked, this, [this] { showHelpPage(this, wb_, "style-match.html#filter"); });
  load();
}

void dlgFilterBeerStyles::load() {
  model.open(wb_.styles);
  repaint();
}

int dlgFilterBeerStyles::exec() {
  load();
  if (!placed_) {
    restoreCentredPlacement(*this, wb_.settings, kSection, QSize(420, 170));
    placed_ = true;
  }
  return QDialog::exec();
}

void dlgFilterBeerStyles::repaint() {
  for (size_t i = 0; i < chkStyle.size(); ++i) chkStyle[i]->setChecked(model.chkStyle[i]);
  txtFilter->setText(qs(model.txtFilter));
}

void dlgFilterBeerStyles::takeBoxes() {
  for (size_t i = 0; i < chkStyle.size(); ++i) model.chkStyle[i] = chkStyle[i]->isChecked();
  model.txtFilter = s8(txtFilter->text());
}

bool dlgFilterBeerStyles::eventFilter(QObject* watched, QEvent* event) {
  // Entering the box selects its text, so that typing replaces it.
  if (watched == txtFilter && event->type() == QEvent::FocusIn)
    QTimer::singleShot(0, txtFilter, [this] { txtFilter->setSelection(0, 100); });
  return QDialog::eventFilter(watched, event);
}

void dlgFilterBeerStyles::done(int result) {
  saveWindowPlacement(*this, wb_.settings, kSection);
  QDialog::done(result);
}

}  // namespace zy
