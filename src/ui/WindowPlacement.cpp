#include "ui/WindowPlacement.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "core/settings.h"
#include "core/numfmt.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {

// The primary screen's area left for windows, or a common one when there is no screen.
QRect availableArea() {
  if (QScreen* s = QGuiApplication::primaryScreen()) return s->availableGeometry();
  return QRect(0, 0, 1280, 800);
}

WindowPlacement toTwips(const QRect& r) {
  WindowPlacement p;
  p.left = pixelsToTwips(r.left());
  p.top = pixelsToTwips(r.top());
  p.width = pixelsToTwips(r.width());
  p.height = pixelsToTwips(r.height());
  return p;
}

QRect toPixels(const WindowPlacement& p) {
  return QRect(twipsToPixels(p.left), twipsToPixels(p.top), twipsToPixels(p.width), twipsToPixels(p.height));
}

// A place that left the screens (a monitor that is gone) is one whose upper left quarter shows
// nowhere.
bool offScreen(const QRect& avail, const QRect& r) {
  return !avail.intersects(r.adjusted(0, 0, -r.width() / 2, -r.height() / 2));
}

void apply(QWidget& w, const QRect& r, int state) {
  w.resize(r.size());
  w.move(r.topLeft());
  if (state == WINDOW_MAXIMIZED) w.setWindowState(w.windowState() | Qt::WindowMaximized);
}

}  // namespace

WindowPlacement placementOf(const QWidget& w) {
  WindowPlacement p = toTwips(QRect(w.pos(), w.size()));
  p.state = w.isMinimized() ? WINDOW_MINIMIZED : w.isMaximized() ? WINDOW_MAXIMIZED : WINDOW_NORMAL;
  return p;
}

void restoreWindowPlacement(QWidget& w, const SettingsStore& store, const std::string& section, QSize defaultSize,
                            QPoint defaultPos, QSize minimum) {
  const WindowPlacement p = readPlacement(store, section, toTwips(QRect(defaultPos, defaultSize)));
  QRect r = toPixels(p);
  r.setWidth(std::max({r.width(), minimum.width(), w.minimumWidth()}));
  r.setHeight(std::max({r.height(), minimum.height(), w.minimumHeight()}));
  const QRect avail = availableArea();
  if (offScreen(avail, r)) r.moveTopLeft(avail.topLeft() + defaultPos);
  apply(w, r, p.state);
}

void restoreCentredPlacement(QWidget& w, const SettingsStore& store, const std::string& section, QSize defaultSize) {
  const QRect avail = availableArea();
  QRect centred(QPoint(0, 0), defaultSize);
  const QWidget* over = w.parentWidget() ? w.parentWidget()->window() : nullptr;
  centred.moveCenter(over && over->isVisible() ? over->geometry().center() : avail.center());
  centred.moveTopLeft(QPoint(std::max(centred.left(), avail.left()), std::max(centred.top(), avail.top())));
  const WindowPlacement p = readPlacement(store, section, toTwips(centred));
  QRect r = toPixels(p);
  r.setWidth(std::max(r.width(), w.minimumSizeHint().width()));
  r.setHeight(std::max(r.height(), w.minimumSizeHint().height()));
  if (offScreen(avail, r)) r.moveCenter(avail.center());
  apply(w, r, p.state);
}

void restoreScreenCentredPlacement(QWidget& w, const SettingsStore& store, const std::string& section,
                                   bool mayMaximize) {
  WindowPlacement computed = toTwips(QRect(QPoint(0, 0), w.size()));
  if (const QScreen* s = w.screen()) {
    const QRect a = s->availableGeometry();
    computed.left = pixelsToTwips(a.x() + (a.width() - w.width()) / 2);
    computed.top = pixelsToTwips(a.y() + (a.height() - w.height()) / 2);
  }
  const WindowPlacement p = readPlacement(store, section, computed);
  apply(w, toPixels(p), mayMaximize ? p.state : WINDOW_NORMAL);
}

void saveWindowPlacement(const QWidget& w, SettingsStore& store, const std::string& section) {
  writePlacement(store, section, placementOf(w), false);
}

void restoreWindowPosition(QWidget& w, const SettingsStore& store, const std::string& section,
                           const std::string& defaultTwips) {
  w.move(twipsToPixels(static_cast<long>(lenientValue(store.read(section, "MainLeft", defaultTwips)))),
         twipsToPixels(static_cast<long>(lenientValue(store.read(section, "MainTop", defaultTwips)))));
}

void saveWindowPosition(const QWidget& w, SettingsStore& store, const std::string& section) {
  store.write(section, "MainLeft", std::to_string(pixelsToTwips(w.pos().x())));
  store.write(section, "MainTop", std::to_string(pixelsToTwips(w.pos().y())));
}

void hideUnlessAppClosing(QWidget& w, const Workbench& wb, QCloseEvent* event) {
  if (wb.appClosing) {
    event->accept();
    return;
  }
  event->ignore();
  w.hide();
}

void closeKeepingPlacement(QWidget& w, Workbench& wb, const std::string& section, QCloseEvent* event) {
  saveWindowPlacement(w, wb.settings, section);
  hideUnlessAppClosing(w, wb, event);
}

}  // namespace zy
