#include "ui/HelpButton.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QKeySequence>
#include <QPushButton>
#include <QShortcut>

#include "ui/QtPrompter.h"
#include "ui/TopicIcons.h"
#include "ui/frmHelp.h"
#include "workbench/Workbench.h"

namespace zy {

HelpMenu addHelpMenu(QMenuBar* bar, QWidget* owner, std::function<void()> contents, std::function<void(int)> help) {
  QMenu* menu = bar->addMenu("&Help");
  HelpMenu m;
  m.contents = menu->addAction(toolIcon(ToolIcon::Help), "&Contents", owner, contents);
  m.contents->setShortcut(QKeySequence::HelpContents);
  m.index = menu->addAction("&Index...", owner, [help] { help(1); });
  m.search = menu->addAction("&Search For Help On...", owner, [help] { help(2); });
  return m;
}

void showHelpPage(QWidget* from, const Workbench& wb, const QString& target) {
  frmHelp* help = nullptr;
  for (QWidget* t : QApplication::topLevelWidgets())
    if (auto* h = qobject_cast<frmHelp*>(t)) help = h;
  if (!help) {
    help = new frmHelp(qs(wb.folder.helpFolder()), from ? from->window() : nullptr);
    help->setAttribute(Qt::WA_DeleteOnClose);
  }
  help->showTopic(target);
  help->show();
  help->raise();
  help->activateWindow();
}

void showHelpPage(QWidget* from, const Workbench& wb, const HelpOpener& opener, const QString& target) {
  if (opener) opener(target);
  else showHelpPage(from, wb, target);
}

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
