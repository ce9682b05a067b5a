#pragma once
// How the program's windows keep their place on the screen between sessions: each window has a
// settings section of its own holding "WindowState", "MainLeft", "MainTop", "MainWidth" and
// "MainHeight" (twips). While the program runs a closed window only hides, so that it opens again
// as it was left; when the program closes (Workbench::appClosing) the close goes through.
#include <QPoint>
#include <QSize>
#include <string>

#include "workbench/Startup.h"

class QCloseEvent;
class QWidget;

namespace zy {

class SettingsStore;
class Workbench;

// The window's state, place and size now, in twips.
WindowPlacement placementOf(const QWidget& w);

// Places a window as its section left it, no smaller than `minimum` nor its own minimum size,
// within the visible screen. `defaultSize` and `defaultPos` (pixels) stand in for keys not yet
// written; a place off every screen comes back to `defaultPos`.
void restoreWindowPlacement(QWidget& w, const SettingsStore& store, const std::string& section,
                            QSize defaultSize, QPoint defaultPos = QPoint(60, 60), QSize minimum = QSize());

// As restoreWindowPlacement, but a window without a stored place stands at `defaultSize` centred
// over its parent's window (or the screen), no smaller than its minimum size hint; a place off
// every screen comes back to the screen's centre.
void restoreCentredPlacement(QWidget& w, const SettingsStore& store, const std::string& section, QSize defaultSize);

// A window first shown at the size its layout gave it, centred on its screen, unless its section
// says otherwise. `mayMaximize`: a stored maximised state is restored too.
void restoreScreenCentredPlacement(QWidget& w, const SettingsStore& store, const std::string& section,
                                   bool mayMaximize);

// Writes the window's state and, while it is in its normal state, its place and size.
void saveWindowPlacement(const QWidget& w, SettingsStore& store, const std::string& section);

// For a window that keeps only its place ("MainLeft", "MainTop"), its size being its own.
void restoreWindowPosition(QWidget& w, const SettingsStore& store, const std::string& section,
                           const std::string& defaultTwips);
void saveWindowPosition(const QWidget& w, SettingsStore& store, const std::string& section);

// The end of a window's close: it only hides while the program runs, and closes for good when
// the program closes.
void hideUnlessAppClosing(QWidget& w, const Workbench& wb, QCloseEvent* event);

// A window's whole close when nothing may keep it open: the place is written, then as
// hideUnlessAppClosing.
void closeKeepingPlacement(QWidget& w, Workbench& wb, const std::string& section, QCloseEvent* event);

}  // namespace zy
