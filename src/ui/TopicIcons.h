#pragma once
// The program's own small pictures, drawn at run time: the icons of the topic trees and of the
// toolbar.
#include <QIcon>
#include <QString>
#include <functional>

class QPainter;

#include "reference/ReferenceBrowser.h"

namespace zy {

// The icon of a tree node (TopicIcon of the browser model), or by its key: "Photo", "Leaf", "ClosedBook", "OpenBook".
QIcon topicIcon(TopicIcon which);
QIcon topicIcon(const QString& key);

enum class ToolIcon { Print, Recipes, Inventory, Styles, Shopping, Help, Back, Forward, Search, Clear, Refresh };
QIcon toolIcon(ToolIcon which);

// A picture drawn on a 32 by 32 grid, rendered at the sizes a view asks for.
QIcon renderIcon(const std::function<void(QPainter&)>& draw);

// The program's window icon.
QIcon programIcon();

}  // namespace zy
