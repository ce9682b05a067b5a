#pragma once
// A small dialog's way to its help page: a "&Help" button and the F1 key, both opening the page
// through the dialog's `showHelpTopic` port (the help window of the program).
#include <QString>
#include <functional>

class QPushButton;
class QWidget;

namespace zy {

using HelpOpener = std::function<void(const QString& page)>;

// Makes the button on `dialog` and binds F1 to it; `opener` is read when pressed, so it may be
// set after the dialog is made. The button is disabled with a tip while no opener is set.
QPushButton* makeHelpButton(QWidget& dialog, const HelpOpener& opener, const QString& page);

}  // namespace zy
