#pragma once
// The small pictures of the recipe windows' toolbars, drawn at run time, and the up-down spinner
// of the edit boxes.
#include <QIcon>
#include <QSize>
#include <QString>
#include <QWidget>

class QToolButton;

namespace zy {

// A toolbar picture by the button's key ("Save", "Save-Changed", "New", "Open", "Export",
// "Delete", "Sortasc", "Sortdes", "genHTML", "Preview", "Rescale", "Water", "MaltForm", "Hops",
// "Starter", "Mash", "WaterMgmt", "Ferment", "Comments", "BatchLog", "RecReader", ...). An unknown
// key gives an empty icon.
QIcon recipeIcon(const QString& key);

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
