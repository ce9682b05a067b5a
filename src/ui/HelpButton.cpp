#include "ui/HelpButton.h"

#include <QKeySequence>
#include <QPushButton>
#include <QShortcut>

namespace zy {

QPushButton* makeHelpButton(QWidget& dialog, const HelpOpener& opener, const QString& page) {
  auto* b = new QPushButton("&Help", &dialog);
  b->setObjectName("cmdHelp");
  b->setAutoDefault(false);
  b->setToolTip("How to use this window (F1)");
  auto open = [&opener, page] {
    if (opener) opener(page);
  };
  QObject::connect(b, &QPushButton::clicked, &dialog, open);
  auto* f1 = new QShortcut(QKeySequence::HelpContents, &dialog);
  QObject::connect(f1, &QShortcut::activated, &dialog, open);
  return b;
}

}  // namespace zy
