#include "ui/frmAbout.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/paths.h"
#include "reference/ReferenceBrowser.h"
#include "ui/QtPrompter.h"
#include "ui/TopicIcons.h"
#include "workbench/Startup.h"

namespace zy {

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
  setObjectName("frmAbout");
  setWindowTitle(QString("About ") + kApplicationName);

  auto* icon = new QLabel;
  icon->setPixmap(programIcon().pixmap(64, 64));
  icon->setAlignment(Qt::AlignTop);

  auto* product = new QLabel(QString("<span style='font-size:16pt; font-weight:bold'>%1</span><br>"
                                     "<span style='font-size:11pt'>Homebrewing Encyclopedia</span>")
                                 .arg(kApplicationName));
  lblVersion = new QLabel(QString::fromStdString(splashVersionLine()));
  lblVersion->setObjectName("lblVersion");
  // The notice wraps after its first sentence, never inside "Copyright (c) year".
  QString legal = qs(legalLine());
  const QChar nbsp(0x00A0), copyright(0x00A9);
  legal.replace(QString("Copyright ") + copyright + ' ', QString("Copyright") + nbsp + copyright + nbsp);
  lblLegal = new QLabel(legal);
  lblLegal->setObjectName("lblLegal");
  lblLegal->setWordWrap(true);
  auto* text = new QVBoxLayout;
  text->addWidget(product);
  text->addSpacing(6);
  text->addWidget(lblVersion);
  text->addWidget(new QLabel(tr("A reference and a workbench for home brewers.")));
  text->addSpacing(10);
  text->addWidget(lblLegal);
  text->addStretch();

  auto* row = new QHBoxLayout;
  row->addWidget(icon);
  row->addSpacing(12);
  row->addLayout(text, 1);

  auto* box = new QDialogButtonBox(QDialogButtonBox::Ok);
  connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(row);
  layout->addWidget(box);
  setFixedWidth(440);
}

}  // namespace zy
