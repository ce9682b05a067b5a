#include "ui/StyleWindowSupport.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "ui/QtPrompter.h"
#include "ui/frmHelp.h"
#include "workbench/Startup.h"

namespace zy {

void restoreStylePlacement(QWidget* w, const SettingsStore& s, const std::string& section, QSize defaultSize) {
  QRect avail(0, 0, 1280, 800);
  if (QScreen* sc = QGuiApplication::primaryScreen()) avail = sc->availableGeometry();
  QRect centred(QPoint(0, 0), defaultSize);
  const QWidget* over = w->parentWidget() ? w->parentWidget()->window() : nullptr;
  centred.moveCenter(over && over->isVisible() ? over->geometry().center() : avail.center());
  WindowPlacement computed;
  computed.left = pixelsToTwips(std::max(centred.left(), avail.left()));
  computed.top = pixelsToTwips(std::max(centred.top(), avail.top()));
  computed.width = pixelsToTwips(defaultSize.width());
  computed.height = pixelsToTwips(defaultSize.height());
  const WindowPlacement p = readPlacement(s, section, computed);
  QRect r(twipsToPixels(p.left), twipsToPixels(p.top), twipsToPixels(p.width), twipsToPixels(p.height));
  r.setWidth(std::max(r.width(), w->minimumSizeHint().width()));
  r.setHeight(std::max(r.height(), w->minimumSizeHint().height()));
  if (!avail.intersects(r.adjusted(0, 0, -r.width() / 2, -r.height() / 2))) r.moveCenter(avail.center());
  w->resize(r.size());
  w->move(r.topLeft());
  if (p.state == WINDOW_MAXIMIZED) w->setWindowState(w->windowState() | Qt::WindowMaximized);
}

void saveStylePlacement(const QWidget* w, SettingsStore& s, const std::string& section) {
  WindowPlacement p;
  p.state = w->isMaximized() ? WINDOW_MAXIMIZED : w->isMinimized() ? WINDOW_MINIMIZED : WINDOW_NORMAL;
  p.left = pixelsToTwips(w->pos().x());
  p.top = pixelsToTwips(w->pos().y());
  p.width = pixelsToTwips(w->width());
  p.height = pixelsToTwips(w->height());
  writePlacement(s, section, p, false);
}

void closeStyleWindow(QWidget* w, Workbench& wb, const std::string& section, QCloseEvent* event) {
  saveStylePlacement(w, wb.settings, section);
  if (!wb.appClosing) {
    event->ignore();
    w->hide();
    return;
  }
  event->accept();
}

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
