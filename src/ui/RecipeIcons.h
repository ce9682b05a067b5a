#pragma once
// The small pictures of the recipe windows' toolbars, drawn at run time, and what those windows
// share: keeping their place on the screen in their settings section, and the up-down spinner of
// the edit boxes.
#include <QIcon>
#include <QSize>
#include <QString>
#include <QWidget>
#include <string>

class QToolButton;

namespace zy {

class SettingsStore;

// A toolbar picture by the button's key ("Save", "Save-Changed", "New", "Open", "Export",
// "Delete", "Sortasc", "Sortdes", "genHTML", "Preview", "Rescale", "Water", "MaltForm", "Hops",
// "Starter", "Mash", "WaterMgmt", "Ferment", "Comments", "BatchLog", "RecReader", ...). An unknown
// key gives an empty icon.
QIcon recipeIcon(const QString& key);

// Places a window as its settings section left it ("WindowState", "MainLeft", "MainTop",
// "MainWidth", "MainHeight", in twips), no smaller than `minimum`, within the visible screen.
// `defaultSize` and `defaultPos` (pixels) stand in for keys not yet written.
void restoreWindowPlacement(QWidget& w, const SettingsStore& store, const std::string& section,
                            QSize defaultSize, QPoint defaultPos = QPoint(60, 60), QSize minimum = QSize());
// Writes the window's state and, while it is in its normal state, its place and size.
void saveWindowPlacement(const QWidget& w, SettingsStore& store, const std::string& section);

// Two small arrow buttons stacked, as beside a number box: each press gives +1 or -1.
class UpDown : public QWidget {
  Q_OBJECT
 public:
  explicit UpDown(QWidget* parent = nullptr);
  QToolButton* up = nullptr;
  QToolButton* down = nullptr;
 signals:
  void stepped(int direction);
};

}  // namespace zy
