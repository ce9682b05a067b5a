#include "ui/RecipeIcons.h"
#include "ui/TopicIcons.h"

#include <QMap>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>
#include <cmath>

#include "core/settings.h"

namespace zy {

namespace {

using Draw = std::function<void(QPainter&)>;

QIcon render(const Draw& draw) { return renderIcon(draw); }

const QColor kInk(50, 45, 40);

void page(QPainter& p, QRectF r = QRectF(7, 3, 18, 25)) {
  QPainterPath path;
  path.moveTo(r.left(), r.top());
  path.lineTo(r.right() - 5, r.top());
  path.lineTo(r.right(), r.top() + 5);
  path.lineTo(r.right(), r.bottom());
  path.lineTo(r.left(), r.bottom());
  path.closeSubpath();
  p.setPen(QPen(kInk, 1.4));
  p.setBrush(QColor(252, 252, 248));
  p.drawPath(path);
}

void lines(QPainter& p, double x0, double x1, double y0, int n, double gap = 4) {
  p.setPen(QPen(QColor(120, 120, 130), 1.4));
  for (int i = 0; i < n; ++i) p.drawLine(QPointF(x0, y0 + i * gap), QPointF(x1, y0 + i * gap));
}

void disk(QPainter& p) {
  p.setPen(QPen(QColor(30, 50, 90), 1.5));
  p.setBrush(QColor(60, 100, 170));
  QPainterPath body;
  body.moveTo(4, 4);
  body.lineTo(24, 4);
  body.lineTo(28, 8);
  body.lineTo(28, 28);
  body.lineTo(4, 28);
  body.closeSubpath();
  p.drawPath(body);
  p.setBrush(QColor(235, 240, 245));
  p.drawRect(QRectF(9, 4, 13, 9));
  p.setBrush(QColor(60, 100, 170));
  p.drawRect(QRectF(17, 6, 3, 5));
  p.setBrush(QColor(250, 250, 250));
  p.drawRect(QRectF(8, 17, 16, 11));
}

void star(QPainter& p, QPointF c, double r) {
  QPainterPath s;
  for (int i = 0; i < 10; ++i) {
    const double a = -M_PI / 2 + i * M_PI / 5;
    const double rr = i % 2 ? r * 0.45 : r;
    const QPointF pt(c.x() + rr * std::cos(a), c.y() + rr * std::sin(a));
    if (i == 0) s.moveTo(pt);
    else s.lineTo(pt);
  }
  s.closeSubpath();
  p.setPen(QPen(QColor(120, 0, 0), 1.2));
  p.setBrush(QColor(225, 30, 30));
  p.drawPath(s);
}

void arrow(QPainter& p, QPointF from, QPointF to, QColor c) {
  p.setPen(QPen(c, 3, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(from, to);
  const QPointF d = to - from;
  const double len = std::hypot(d.x(), d.y());
  if (len <= 0) return;
  const QPointF u(d.x() / len, d.y() / len), n(-u.y(), u.x());
  QPolygonF head({to + u * 3, to - u * 5 + n * 5, to - u * 5 - n * 5});
  p.setPen(Qt::NoPen);
  p.setBrush(c);
  p.drawPolygon(head);
}

void text(QPainter& p, QRectF r, const QString& t, QColor c, int px, bool bold = true) {
  QFont f("Sans");
  f.setPixelSize(px);
  f.setBold(bold);
  p.setFont(f);
  p.setPen(c);
  p.drawText(r, Qt::AlignCenter, t);
}

void drop(QPainter& p, QPointF c, double s, QColor fill) {
  QPainterPath d;
  d.moveTo(c.x(), c.y() - s);
  d.cubicTo(c.x() + s * 0.9, c.y() - s * 0.1, c.x() + s * 0.8, c.y() + s * 0.8, c.x(), c.y() + s * 0.8);
  d.cubicTo(c.x() - s * 0.8, c.y() + s * 0.8, c.x() - s * 0.9, c.y() - s * 0.1, c.x(), c.y() - s);
  p.setPen(QPen(QColor(20, 70, 140), 1.3));
  p.setBrush(fill);
  p.drawPath(d);
}

void hopCone(QPainter& p, QPointF c, double s) {
  p.setPen(QPen(QColor(40, 90, 30), 1.1));
  p.setBrush(QColor(130, 190, 80));
  for (int row = 0; row < 4; ++row) {
    const double y = c.y() - s + row * s * 0.55;
    const double w = s * (0.5 + 0.18 * (row < 2 ? row : 3 - row));
    p.drawEllipse(QPointF(c.x() - w * 0.45, y), w * 0.55, s * 0.42);
    p.drawEllipse(QPointF(c.x() + w * 0.45, y), w * 0.55, s * 0.42);
  }
  p.drawEllipse(QPointF(c.x(), c.y() + s * 0.75), s * 0.35, s * 0.4);
  p.setPen(QPen(QColor(60, 110, 40), 1.6));
  p.drawLine(QPointF(c.x(), c.y() - s - 3), QPointF(c.x() + 3, c.y() - s - 6));
}

void grain(QPainter& p, QPointF c, double angle) {
  p.save();
  p.translate(c);
  p.rotate(angle);
  p.setPen(QPen(QColor(120, 80, 20), 1.1));
  p.setBrush(QColor(225, 180, 80));
  p.drawEllipse(QPointF(0, 0), 3.2, 6);
  p.restore();
}

void flask(QPainter& p, QColor beer) {
  QPainterPath f;
  f.moveTo(13, 4);
  f.lineTo(19, 4);
  f.lineTo(19, 12);
  f.lineTo(27, 27);
  f.lineTo(5, 27);
  f.lineTo(13, 12);
  f.closeSubpath();
  p.setPen(QPen(kInk, 1.5));
  p.setBrush(QColor(235, 245, 250));
  p.drawPath(f);
  QPainterPath liquid;
  liquid.moveTo(9.5, 19);
  liquid.lineTo(22.5, 19);
  liquid.lineTo(26, 26);
  liquid.lineTo(6, 26);
  liquid.closeSubpath();
  p.setPen(Qt::NoPen);
  p.setBrush(beer);
  p.drawPath(liquid);
}

void pot(QPainter& p) {
  p.setPen(QPen(kInk, 1.5));
  p.setBrush(QColor(180, 185, 195));
  p.drawRoundedRect(QRectF(5, 11, 22, 17), 2, 2);
  p.drawLine(QPointF(2, 14), QPointF(5, 14));
  p.drawLine(QPointF(27, 14), QPointF(30, 14));
  p.setBrush(QColor(210, 160, 70));
  p.drawEllipse(QRectF(6, 8, 20, 6));
  p.setPen(QPen(QColor(150, 150, 160), 1.3));
  for (int i = 0; i < 3; ++i) p.drawArc(QRectF(9 + i * 5, 1, 4, 6), 0, 180 * 16);
}

QIcon make(const QString& key) {
  static const QMap<QString, Draw> table = {
      {"Save", [](QPainter& p) { disk(p); }},
      {"Save-Changed",
       [](QPainter& p) {
         disk(p);
         star(p, QPointF(23, 23), 8.5);
       }},
      {"New",
       [](QPainter& p) {
         page(p);
         lines(p, 10, 20, 12, 2);
         p.setPen(QPen(QColor(20, 130, 40), 3.2));
         p.drawLine(QPointF(23, 18), QPointF(23, 30));
         p.drawLine(QPointF(17, 24), QPointF(29, 24));
       }},
      {"Open",
       [](QPainter& p) {
         p.setPen(QPen(QColor(130, 90, 20), 1.4));
         p.setBrush(QColor(240, 200, 90));
         p.drawRect(QRectF(3, 11, 24, 17));
         p.drawRect(QRectF(3, 8, 9, 3));
         arrow(p, QPointF(22, 2), QPointF(16, 17), QColor(20, 120, 40));
       }},
      {"Export",
       [](QPainter& p) {
         page(p, QRectF(4, 4, 17, 24));
         lines(p, 7, 17, 11, 3);
         arrow(p, QPointF(14, 20), QPointF(26, 20), QColor(30, 90, 180));
       }},
      {"Delete",
       [](QPainter& p) {
         p.setPen(QPen(QColor(200, 30, 30), 4.5, Qt::SolidLine, Qt::RoundCap));
         p.drawLine(QPointF(8, 8), QPointF(24, 24));
         p.drawLine(QPointF(24, 8), QPointF(8, 24));
       }},
      {"Sortasc",
       [](QPainter& p) {
         text(p, QRectF(1, 0, 18, 16), "A", QColor(30, 60, 140), 14);
         text(p, QRectF(1, 16, 18, 16), "Z", QColor(30, 60, 140), 14);
         arrow(p, QPointF(24, 5), QPointF(24, 25), kInk);
       }},
      {"Sortdes",
       [](QPainter& p) {
         // Sorted by beer style: a glass beside the arrow.
         p.setPen(QPen(kInk, 1.3));
         p.setBrush(QColor(220, 150, 40));
         p.drawRect(QRectF(4, 10, 11, 17));
         p.setBrush(QColor(250, 250, 245));
         p.drawRect(QRectF(4, 6, 11, 4));
         arrow(p, QPointF(24, 5), QPointF(24, 25), kInk);
       }},
      {"genHTML",
       [](QPainter& p) {
         p.setPen(QPen(QColor(20, 80, 150), 1.5));
         p.setBrush(QColor(160, 210, 245));
         p.drawEllipse(QRectF(4, 4, 24, 24));
         p.setBrush(Qt::NoBrush);
         p.drawEllipse(QRectF(11, 4, 10, 24));
         p.drawLine(QPointF(4, 16), QPointF(28, 16));
         p.drawLine(QPointF(6, 10), QPointF(26, 10));
         p.drawLine(QPointF(6, 22), QPointF(26, 22));
       }},
      {"Preview",
       [](QPainter& p) {
         page(p, QRectF(4, 3, 18, 24));
         lines(p, 7, 18, 10, 3);
         p.setPen(QPen(kInk, 2));
         p.setBrush(QColor(200, 230, 250, 200));
         p.drawEllipse(QPointF(19, 19), 6, 6);
         p.setPen(QPen(kInk, 3.5, Qt::SolidLine, Qt::RoundCap));
         p.drawLine(QPointF(23.5, 23.5), QPointF(29, 29));
       }},
      {"RecReader",
       [](QPainter& p) {
         page(p);
         lines(p, 10, 22, 10, 4);
         arrow(p, QPointF(3, 28), QPointF(12, 20), QColor(20, 120, 40));
       }},
      {"Rescale",
       [](QPainter& p) {
         p.setPen(QPen(kInk, 1.6));
         p.drawLine(QPointF(16, 5), QPointF(16, 27));
         p.drawLine(QPointF(5, 9), QPointF(27, 9));
         p.drawLine(QPointF(9, 27), QPointF(23, 27));
         p.setBrush(QColor(220, 180, 80));
         p.drawChord(QRectF(1, 10, 12, 10), 180 * 16, 180 * 16);
         p.drawChord(QRectF(19, 10, 12, 10), 180 * 16, 180 * 16);
       }},
      {"Water",
       [](QPainter& p) {
         drop(p, QPointF(16, 15), 12, QColor(100, 170, 240));
         text(p, QRectF(8, 12, 16, 14), "+", Qt::white, 13);
       }},
      {"MaltForm",
       [](QPainter& p) {
         grain(p, QPointF(10, 12), -30);
         grain(p, QPointF(21, 10), 25);
         grain(p, QPointF(15, 22), 5);
         text(p, QRectF(18, 17, 14, 14), "%", kInk, 12);
       }},
      {"Hops", [](QPainter& p) { hopCone(p, QPointF(16, 15), 9); }},
      {"Starter", [](QPainter& p) { flask(p, QColor(235, 200, 110)); }},
      {"Mash", [](QPainter& p) { pot(p); }},
      {"WaterMgmt",
       [](QPainter& p) {
         pot(p);
         drop(p, QPointF(16, 20), 6, QColor(100, 170, 240));
       }},
      {"Ferment",
       [](QPainter& p) {
         p.setPen(QPen(kInk, 1.5));
         p.setBrush(QColor(230, 240, 245));
         p.drawRoundedRect(QRectF(6, 9, 20, 20), 6, 6);
         p.drawRect(QRectF(13, 4, 6, 6));
         p.setPen(Qt::NoPen);
         p.setBrush(QColor(200, 120, 30));
         p.drawRoundedRect(QRectF(7.5, 16, 17, 11.5), 4, 4);
         p.setBrush(QColor(255, 245, 220));
         for (QPointF b : {QPointF(12, 20), QPointF(18, 22), QPointF(15, 13)}) p.drawEllipse(b, 1.6, 1.6);
       }},
      {"Comments",
       [](QPainter& p) {
         QPainterPath b;
         b.addRoundedRect(QRectF(3, 4, 26, 18), 5, 5);
         b.moveTo(9, 21);
         b.lineTo(7, 29);
         b.lineTo(16, 21);
         p.setPen(QPen(QColor(120, 90, 20), 1.4));
         p.setBrush(QColor(255, 235, 150));
         p.drawPath(b.simplified());
         lines(p, 8, 24, 10, 2, 5);
       }},
      {"BatchLog",
       [](QPainter& p) {
         p.setPen(QPen(QColor(90, 40, 20), 1.4));
         p.setBrush(QColor(160, 60, 40));
         p.drawRoundedRect(QRectF(6, 3, 21, 26), 2, 2);
         p.setBrush(QColor(250, 245, 230));
         p.drawRect(QRectF(10, 7, 14, 7));
         p.setPen(QPen(QColor(250, 245, 230), 1.4));
         p.drawLine(QPointF(8, 4), QPointF(8, 28));
       }},
  };
  auto it = table.find(key);
  return it == table.end() ? QIcon() : render(*it);
}

}  // namespace

QIcon recipeIcon(const QString& key) {
  static QMap<QString, QIcon> cache;
  auto it = cache.find(key);
  if (it == cache.end()) it = cache.insert(key, make(key));
  return *it;
}

UpDown::UpDown(QWidget* parent) : QWidget(parent) {
  auto* box = new QVBoxLayout(this);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSpacing(0);
  up = new QToolButton(this);
  down = new QToolButton(this);
  up->setArrowType(Qt::UpArrow);
  down->setArrowType(Qt::DownArrow);
  for (QToolButton* b : {up, down}) {
    b->setFixedSize(16, 11);
    b->setAutoRepeat(true);
    b->setFocusPolicy(Qt::NoFocus);
    box->addWidget(b);
  }
  connect(up, &QToolButton::clicked, this, [this] { emit stepped(+1); });
  connect(down, &QToolButton::clicked, this, [this] { emit stepped(-1); });
}

}  // namespace zy
