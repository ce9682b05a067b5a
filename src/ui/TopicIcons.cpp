#include "ui/TopicIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace zy {

QIcon renderIcon(const std::function<void(QPainter&)>& draw) {
  QIcon icon;
  for (int size : {16, 24, 32, 48, 64}) {
    QPixmap pm(size, size);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 32.0, size / 32.0);
    draw(p);
    p.end();
    icon.addPixmap(pm);
  }
  return icon;
}

namespace {

QIcon render(void (*draw)(QPainter&)) { return renderIcon(draw); }

const QColor kInk(60, 45, 30);

void drawPhoto(QPainter& p) {
  p.setPen(QPen(kInk, 1.6));
  p.setBrush(QColor(250, 250, 245));
  p.drawRoundedRect(QRectF(3, 6, 26, 21), 2, 2);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(150, 200, 240));
  p.drawRect(QRectF(6, 9, 20, 15));
  p.setBrush(QColor(250, 200, 60));
  p.drawEllipse(QPointF(21, 13), 2.6, 2.6);
  QPainterPath hills;
  hills.moveTo(6, 24);
  hills.lineTo(12, 15);
  hills.lineTo(17, 21);
  hills.lineTo(20, 18);
  hills.lineTo(26, 24);
  hills.closeSubpath();
  p.setBrush(QColor(70, 140, 60));
  p.drawPath(hills);
}

void drawLeaf(QPainter& p) {
  QPainterPath leaf;
  leaf.moveTo(6, 27);
  leaf.cubicTo(4, 14, 14, 4, 28, 4);
  leaf.cubicTo(28, 18, 20, 28, 6, 27);
  p.setPen(QPen(QColor(40, 100, 30), 1.5));
  p.setBrush(QColor(110, 180, 70));
  p.drawPath(leaf);
  p.setPen(QPen(QColor(40, 100, 30), 1.3));
  p.drawLine(QPointF(5, 28), QPointF(22, 10));
  p.drawLine(QPointF(12, 20), QPointF(12, 14));
  p.drawLine(QPointF(16, 16), QPointF(22, 16));
}

void drawClosedBook(QPainter& p) {
  p.setPen(QPen(kInk, 1.5));
  p.setBrush(QColor(245, 240, 225));
  p.drawRect(QRectF(9, 6, 18, 22));  // the pages, seen at the edge
  p.setBrush(QColor(150, 50, 40));
  p.drawRoundedRect(QRectF(6, 4, 18, 23), 1.5, 1.5);
  p.setBrush(QColor(110, 30, 25));
  p.drawRect(QRectF(6, 4, 4, 23));  // the spine
  p.setPen(QPen(QColor(235, 200, 120), 1.4));
  p.drawLine(QPointF(13, 10), QPointF(21, 10));
  p.drawLine(QPointF(13, 13), QPointF(19, 13));
}

void drawOpenBook(QPainter& p) {
  p.setPen(QPen(kInk, 1.5));
  p.setBrush(QColor(150, 50, 40));
  QPainterPath cover;
  cover.moveTo(2, 10);
  cover.lineTo(16, 12);
  cover.lineTo(30, 10);
  cover.lineTo(30, 26);
  cover.lineTo(16, 28);
  cover.lineTo(2, 26);
  cover.closeSubpath();
  p.drawPath(cover);
  p.setBrush(QColor(252, 250, 240));
  QPainterPath left;
  left.moveTo(4, 7);
  left.cubicTo(9, 6, 13, 7, 16, 10);
  left.lineTo(16, 26);
  left.cubicTo(13, 23, 9, 22, 4, 23);
  left.closeSubpath();
  p.drawPath(left);
  QPainterPath right;
  right.moveTo(28, 7);
  right.cubicTo(23, 6, 19, 7, 16, 10);
  right.lineTo(16, 26);
  right.cubicTo(19, 23, 23, 22, 28, 23);
  right.closeSubpath();
  p.drawPath(right);
  p.setPen(QPen(QColor(140, 130, 120), 1));
  for (int i = 0; i < 3; ++i) {
    p.drawLine(QPointF(6.5, 11 + 4 * i), QPointF(13.5, 12.5 + 4 * i));
    p.drawLine(QPointF(18.5, 12.5 + 4 * i), QPointF(25.5, 11 + 4 * i));
  }
}

void drawPrinter(QPainter& p) {
  p.setPen(QPen(kInk, 1.5));
  p.setBrush(Qt::white);
  p.drawRect(QRectF(9, 3, 14, 10));
  p.setBrush(QColor(170, 175, 185));
  p.drawRoundedRect(QRectF(3, 12, 26, 11), 2, 2);
  p.setBrush(Qt::white);
  p.drawRect(QRectF(9, 19, 14, 10));
  p.setPen(QPen(QColor(120, 120, 120), 1));
  p.drawLine(QPointF(11, 23), QPointF(21, 23));
  p.drawLine(QPointF(11, 26), QPointF(19, 26));
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(60, 180, 60));
  p.drawEllipse(QPointF(25, 16), 1.4, 1.4);
}

void drawRecipes(QPainter& p) {  // a recipe card
  p.setPen(QPen(kInk, 1.5));
  p.setBrush(QColor(255, 252, 230));
  p.drawRect(QRectF(5, 3, 22, 26));
  p.setPen(QPen(QColor(200, 60, 50), 1.2));
  p.drawLine(QPointF(5, 9), QPointF(27, 9));
  p.setPen(QPen(QColor(90, 110, 170), 1.2));
  for (int i = 0; i < 5; ++i) p.drawLine(QPointF(8, 13 + 3.5 * i), QPointF(24, 13 + 3.5 * i));
}

void drawInventory(QPainter& p) {  // a sack of grain
  p.setPen(QPen(kInk, 1.5));
  p.setBrush(QColor(215, 180, 120));
  QPainterPath sack;
  sack.moveTo(11, 8);
  sack.cubicTo(4, 14, 4, 28, 16, 29);
  sack.cubicTo(28, 28, 28, 14, 21, 8);
  sack.closeSubpath();
  p.drawPath(sack);
  p.drawRect(QRectF(11, 4, 10, 4));
  p.setPen(QPen(QColor(120, 80, 30), 1.4));
  p.drawText(QRectF(8, 12, 16, 14), Qt::AlignCenter, "M");
}

void drawStyles(QPainter& p) {  // a glass of beer
  p.setPen(QPen(kInk, 1.5));
  QPainterPath glass;
  glass.moveTo(8, 6);
  glass.lineTo(24, 6);
  glass.lineTo(22, 29);
  glass.lineTo(10, 29);
  glass.closeSubpath();
  p.setBrush(QColor(230, 160, 40));
  p.drawPath(glass);
  p.setBrush(Qt::white);
  p.drawRoundedRect(QRectF(7, 3, 18, 6), 3, 3);
  p.setPen(QPen(QColor(255, 230, 160), 1.2));
  p.drawLine(QPointF(13, 14), QPointF(13, 25));
}

void drawShopping(QPainter& p) {  // a basket
  p.setPen(QPen(kInk, 1.6));
  p.setBrush(Qt::NoBrush);
  p.drawArc(QRectF(9, 3, 14, 16), 0, 180 * 16);
  p.setBrush(QColor(190, 130, 70));
  QPainterPath b;
  b.moveTo(3, 12);
  b.lineTo(29, 12);
  b.lineTo(25, 28);
  b.lineTo(7, 28);
  b.closeSubpath();
  p.drawPath(b);
  p.setPen(QPen(QColor(120, 70, 30), 1.2));
  for (int x = 10; x <= 22; x += 6) p.drawLine(QPointF(x, 14), QPointF(x, 26));
}

void drawHelp(QPainter& p) {
  p.setPen(QPen(QColor(30, 70, 150), 1.6));
  p.setBrush(QColor(70, 130, 220));
  p.drawEllipse(QRectF(3, 3, 26, 26));
  QFont f = p.font();
  f.setBold(true);
  f.setPixelSize(20);
  p.setFont(f);
  p.setPen(Qt::white);
  p.drawText(QRectF(3, 3, 26, 26), Qt::AlignCenter, "?");
}

void drawBack(QPainter& p) {
  p.setPen(QPen(QColor(30, 90, 40), 1.5));
  p.setBrush(QColor(80, 170, 90));
  QPainterPath a;
  a.moveTo(3, 16);
  a.lineTo(15, 5);
  a.lineTo(15, 11);
  a.lineTo(28, 11);
  a.lineTo(28, 21);
  a.lineTo(15, 21);
  a.lineTo(15, 27);
  a.closeSubpath();
  p.drawPath(a);
}

void drawForward(QPainter& p) {
  p.translate(32, 0);
  p.scale(-1, 1);
  drawBack(p);
}

void drawSearch(QPainter& p) {
  p.setPen(QPen(kInk, 3));
  p.drawLine(QPointF(19, 19), QPointF(28, 28));
  p.setPen(QPen(kInk, 2));
  p.setBrush(QColor(210, 235, 250));
  p.drawEllipse(QPointF(13, 13), 9, 9);
}

void drawClear(QPainter& p) {
  p.setPen(QPen(QColor(170, 40, 40), 3.5, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(8, 8), QPointF(24, 24));
  p.drawLine(QPointF(24, 8), QPointF(8, 24));
}

void drawRefresh(QPainter& p) {
  p.setPen(QPen(QColor(30, 90, 150), 3, Qt::SolidLine, Qt::RoundCap));
  p.setBrush(Qt::NoBrush);
  p.drawArc(QRectF(6, 6, 20, 20), 40 * 16, 280 * 16);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(30, 90, 150));
  QPainterPath tip;
  tip.moveTo(28, 4);
  tip.lineTo(28, 14);
  tip.lineTo(18, 10);
  tip.closeSubpath();
  p.drawPath(tip);
}

}  // namespace

QIcon topicIcon(TopicIcon which) {
  static const QIcon photo = render(drawPhoto), leaf = render(drawLeaf), closed = render(drawClosedBook),
                     open = render(drawOpenBook);
  switch (which) {
    case TopicIcon::Photo: return photo;
    case TopicIcon::Leaf: return leaf;
    case TopicIcon::ClosedBook: return closed;
    case TopicIcon::OpenBook: return open;
  }
  return leaf;
}

QIcon topicIcon(const QString& key) {
  if (key == "Photo") return topicIcon(TopicIcon::Photo);
  if (key == "ClosedBook") return topicIcon(TopicIcon::ClosedBook);
  if (key == "OpenBook") return topicIcon(TopicIcon::OpenBook);
  return topicIcon(TopicIcon::Leaf);
}

QIcon toolIcon(ToolIcon which) {
  switch (which) {
    case ToolIcon::Print: { static const QIcon i = render(drawPrinter); return i; }
    case ToolIcon::Recipes: { static const QIcon i = render(drawRecipes); return i; }
    case ToolIcon::Inventory: { static const QIcon i = render(drawInventory); return i; }
    case ToolIcon::Styles: { static const QIcon i = render(drawStyles); return i; }
    case ToolIcon::Shopping: { static const QIcon i = render(drawShopping); return i; }
    case ToolIcon::Help: { static const QIcon i = render(drawHelp); return i; }
    case ToolIcon::Back: { static const QIcon i = render(drawBack); return i; }
    case ToolIcon::Forward: { static const QIcon i = render(drawForward); return i; }
    case ToolIcon::Search: { static const QIcon i = render(drawSearch); return i; }
    case ToolIcon::Clear: { static const QIcon i = render(drawClear); return i; }
    case ToolIcon::Refresh: { static const QIcon i = render(drawRefresh); return i; }
  }
  return {};
}

QIcon programIcon() { return topicIcon(TopicIcon::OpenBook); }

}  // namespace zy
