#include "ui/StyleWindowSupport.h"

#include <QApplication>
#include <QWidget>

#include "ui/QtPrompter.h"
#include "ui/frmHelp.h"

namespace zy {

void showStyleHelp(QWidget* from, Workbench& wb, const QString& target) {
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

}  // namespace zy
