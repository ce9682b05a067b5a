#pragma once
// What the style windows share besides their place on the screen (ui/WindowPlacement.h): the
// way to their help pages.
#include <QString>

#include "ui/WindowPlacement.h"
#include "workbench/Workbench.h"

class QWidget;

namespace zy {

// Opens the help window at `target` ("beer-styles.html#edit"): the help window already open in
// the program, or one of its own.
void showStyleHelp(QWidget* from, Workbench& wb, const QString& target);

}  // namespace zy
