#pragma once
// What the style windows share: their place on the screen kept in their settings section, the
// close that only hides them while the program runs, and the way to their help pages.
#include <QSize>
#include <QString>
#include <string>

#include "workbench/Workbench.h"

class QCloseEvent;
class QWidget;

namespace zy {

// Puts the window where its section says ("WindowState", "MainLeft", "MainTop", "MainWidth",
// "MainHeight" in twips), else at `defaultSize` centred over its parent; a place off every
// screen comes back into view.
void restoreStylePlacement(QWidget* w, const SettingsStore& s, const std::string& section, QSize defaultSize);
void saveStylePlacement(const QWidget* w, SettingsStore& s, const std::string& section);

// A window's close: the place is written, then the window only hides unless the program is
// closing (the caller then lets the close through).
void closeStyleWindow(QWidget* w, Workbench& wb, const std::string& section, QCloseEvent* event);

// Opens the help window at `target` ("beer-styles.html#edit"): the help window already open in
// the program, or one of its own.
void showStyleHelp(QWidget* from, Workbench& wb, const QString& target);

}  // namespace zy
