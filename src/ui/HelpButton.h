#pragma once
// A window's way to its help page: the help window of the program through the window's
// `showHelpTopic` port, or, where nobody set the port, the help window already open or one of the
// window's own. Small dialogs get a "&Help" button and the F1 key for it.
#include <QString>
#include <functional>

class QAction;
class QMenuBar;
class QPushButton;
class QWidget;

namespace zy {

class Workbench;

using HelpOpener = std::function<void(const QString& page)>;

// Opens the help window at `target` ("beer-styles.html#edit"): the help window already open in
// the program, or one of its own over `from`'s window.
void showHelpPage(QWidget* from, const Workbench& wb, const QString& target);
// Through `opener` when set, else as showHelpPage does.
void showHelpPage(QWidget* from, const Workbench& wb, const HelpOpener& opener, const QString& target);

// Makes the button on `dialog` and binds F1 to it; `opener` is read when pressed, so it may be
// set after the dialog is made. The button is disabled with a tip while no opener is set.
QPushButton* makeHelpButton(QWidget& dialog, const HelpOpener& opener, const QString& page);

// The "&Help" menu of a recipe window: "&Contents" (F1) runs `contents`, the window's own page;
// "&Index..." and "&Search For Help On..." run `help` with 1 and 2. Both are run when chosen, so
// they may read ports set after the menu is made.
struct HelpMenu {
  QAction* contents;
  QAction* index;
  QAction* search;
};
HelpMenu addHelpMenu(QMenuBar* bar, QWidget* owner, std::function<void()> contents, std::function<void(int)> help);

}  // namespace zy
