// refdraw OUTPUT_DIR CATEGORIES_CSV STYLES_CSV: draws the encyclopedia's pictures as PNG files into OUTPUT_DIR and leaves
// pictures.stamp there when all were written. The charts are drawn from the program's own tables
// where it has them (the colour table of the recipe calculations, the hops utilization curves)
// and otherwise from the brewing data the topics print; the diagrams show equipment in section.
#include <QDir>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <cmath>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "calculators/HopsUtilization.h"
#include "recipes/RecipeCalculations.h"
#include "core/text.h"
#include "styles/StyleSheets.h"

namespace {

const QColor kPaper(251, 250, 245);
const QColor kInk(50, 50, 50);
const QColor kGrid(222, 220, 210);
const QColor kWater(170, 205, 235);
const QColor kSteel(150, 160, 170);
const QColor kCopper(196, 110, 60);
const QColor kWort(205, 150, 60);
// Line colours of charts with several curves, told apart by shade as well as hue.
const QColor kSeries[] = {QColor(180, 60, 40), QColor(40, 100, 170), QColor(60, 140, 70), QColor(150, 90, 20),
                          QColor(120, 60, 150), QColor(90, 90, 90)};

QFont font(int pixels, bool bold = false) {
  QFont f("DejaVu Sans");
  f.setPixelSize(pixels);
  f.setBold(bold);
  return f;
}

// A picture being drawn: white paper, antialiased, written on finish.
struct Canvas {
  QImage img;
  QPainter p;
  Canvas(int w, int h) : img(w, h, QImage::Format_RGB32) {
    img.fill(kPaper);
    p.begin(&img);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setFont(font(12));
    p.setPen(kInk);
  }
  void text(double x, double y, const QString& s, int flags = Qt::AlignLeft | Qt::AlignVCenter, int px = 12,
            bool bold = false, const QColor& colour = kInk) {
    p.save();
    p.setFont(font(px, bold));
    p.setPen(colour);
    QRectF r(x, y - 10, 0, 20);
    if (flags & Qt::AlignHCenter) r = QRectF(x - 150, y - 10, 300, 20);
    else if (flags & Qt::AlignRight) r = QRectF(x - 300, y - 10, 300, 20);
    else r = QRectF(x, y - 10, 300, 20);
    p.drawText(r, static_cast<int>(flags), s);
    p.restore();
  }
  void arrow(QPointF a, QPointF b, const QColor& c, double width = 2) {
    p.save();
    p.setPen(QPen(c, width, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(a, b);
    const double ang = std::atan2(b.y() - a.y(), b.x() - a.x());
    const double L = 9, spread = 0.45;
    QPolygonF head;
    head << b << QPointF(b.x() - L * std::cos(ang - spread), b.y() - L * std::sin(ang - spread))
         << QPointF(b.x() - L * std::cos(ang + spread), b.y() - L * std::sin(ang + spread));
    p.setBrush(c);
    p.setPen(Qt::NoPen);
    p.drawPolygon(head);
    p.restore();
  }
  bool save(const QString& path) {
    p.end();
    return img.save(path, "PNG");
  }
};

// A chart: a plot rectangle with value ranges, a grid with labelled ticks and axis titles.
struct Chart {
  Canvas& c;
  QRectF plot;
  double x0, x1, y0, y1;
  QPointF at(double x, double y) const {
    return {plot.left() + (x - x0) / (x1 - x0) * plot.width(), plot.bottom() - (y - y0) / (y1 - y0) * plot.height()};
  }
  void axes(double xStep, double yStep, const QString& xTitle, const QString& yTitle, int yDecimals = 0,
            int xDecimals = 0) {
    QPainter& p = c.p;
    p.save();
    p.setPen(QPen(kGrid, 1));
    for (double x = x0; x <= x1 + 1e-9; x += xStep) p.drawLine(at(x, y0), at(x, y1));
    for (double y = y0; y <= y1 + 1e-9; y += yStep) p.drawLine(at(x0, y), at(x1, y));
    p.setPen(QPen(kInk, 1.2));
    p.drawLine(at(x0, y0), at(x1, y0));
    p.drawLine(at(x0, y0), at(x0, y1));
    p.restore();
    for (double x = x0; x <= x1 + 1e-9; x += xStep) {
      QPointF q = at(x, y0);
      c.text(q.x(), q.y() + 11, QString::number(x, 'f', xDecimals), Qt::AlignHCenter | Qt::AlignVCenter, 11);
    }
    for (double y = y0; y <= y1 + 1e-9; y += yStep) {
      QPointF q = at(x0, y);
      c.text(q.x() - 5, q.y(), QString::number(y, 'f', yDecimals), Qt::AlignRight | Qt::AlignVCenter, 11);
    }
    c.text(plot.center().x(), plot.bottom() + 29, xTitle, Qt::AlignHCenter | Qt::AlignVCenter, 12);
    c.p.save();
    c.p.translate(12, plot.center().y());
    c.p.rotate(-90);
    c.text(0, 0, yTitle, Qt::AlignHCenter | Qt::AlignVCenter, 12);
    c.p.restore();
  }
  void curve(const std::function<double(double)>& f, double from, double to, const QColor& col, double width = 2.2,
             Qt::PenStyle style = Qt::SolidLine) {
    QPainterPath path;
    const int steps = 200;
    for (int i = 0; i <= steps; ++i) {
      const double x = from + (to - from) * i / steps;
      QPointF q = at(x, f(x));
      if (i == 0) path.moveTo(q);
      else path.lineTo(q);
    }
    c.p.save();
    c.p.setPen(QPen(col, width, style, Qt::RoundCap, Qt::RoundJoin));
    c.p.setBrush(Qt::NoBrush);
    c.p.drawPath(path);
    c.p.restore();
  }
  void polyline(const std::vector<QPointF>& values, const QColor& col, double width = 2.2) {
    QPolygonF poly;
    for (const QPointF& v : values) poly << at(v.x(), v.y());
    c.p.save();
    c.p.setPen(QPen(col, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    c.p.drawPolyline(poly);
    c.p.restore();
  }
};

// A legend box of coloured line samples in the top left corner of the plot, or where told.
void legend(Canvas& c, QPointF topLeft, const std::vector<std::pair<QString, QColor>>& entries) {
  double w = 0;
  QFontMetrics fm(font(11));
  for (const auto& e : entries) w = std::max<double>(w, fm.horizontalAdvance(e.first));
  QRectF box(topLeft, QSizeF(w + 40, entries.size() * 17 + 8));
  c.p.save();
  c.p.setPen(QPen(kGrid, 1));
  c.p.setBrush(kPaper);
  c.p.drawRect(box);
  for (size_t i = 0; i < entries.size(); ++i) {
    const double y = box.top() + 12 + i * 17;
    c.p.setPen(QPen(entries[i].second, 2.5));
    c.p.drawLine(QPointF(box.left() + 6, y), QPointF(box.left() + 26, y));
    c.text(box.left() + 32, y, entries[i].first, Qt::AlignLeft | Qt::AlignVCenter, 11);
  }
  c.p.restore();
}

// --- Charts from the program's tables --------------------------------------------------------

// The colour scale exactly as the recipe editor paints its colour sample, row n for n SRM.
bool srmScale(const QString& path) {
  Canvas c(460, 150);
  const double left = 14, top = 30, w = 16.5, h = 46;
  c.text(left, 14, "SRM", Qt::AlignLeft | Qt::AlignVCenter, 12, true);
  for (int n = 1; n <= 26; ++n) {
    zy::Rgb rgb = zy::colorTableRow(n);
    QRectF r(left + (n - 1) * w, top, w, h);
    c.p.fillRect(r, QColor(rgb.r, rgb.g, rgb.b));
    c.p.setPen(QPen(QColor(120, 120, 120), 0.6));
    c.p.drawRect(r);
    if (n % 2 == 1 || n == 26) c.text(r.center().x(), top + h + 10, QString::number(n), Qt::AlignHCenter, 11);
  }
  // The bands of familiar beers along the scale.
  struct Band {
    double from, to;
    const char* name;
  };
  const Band bands[] = {{2, 4, "Pilsner"}, {5, 8, "Pale ale"}, {10, 15, "Amber"}, {16, 21, "Brown, porter"},
                        {22, 26, "Stout"}};
  for (const Band& b : bands) {
    const double x0 = left + (b.from - 1) * w + 2, x1 = left + b.to * w - 2, y = top + h + 30;
    c.p.setPen(QPen(kInk, 1.2));
    c.p.drawLine(QPointF(x0, y - 5), QPointF(x0, y));
    c.p.drawLine(QPointF(x0, y), QPointF(x1, y));
    c.p.drawLine(QPointF(x1, y - 5), QPointF(x1, y));
    c.text((x0 + x1) / 2, y + 12, b.name, Qt::AlignHCenter, 11);
  }
  return c.save(path);
}

// The three predefined utilization curves the bitterness computation can use.
bool hopsUtilization(const QString& path) {
  Canvas c(380, 260);
  struct Curve {
    const char* name;
    const std::array<double, zy::kUtilRows>& rows;
  };
  const Curve curves[] = {{"Rager", zy::ragerCurve()}, {"Tinseth", zy::tinsethCurve()}, {"Garetz", zy::garetzCurve()}};
  double top = 0;
  for (const Curve& cv : curves)
    for (double v : cv.rows) top = std::max(top, v);
  Chart ch{c, QRectF(58, 16, 302, 194), 0, 90, 0, std::ceil(top / 5) * 5};
  ch.axes(15, 5, "Boil time (minutes)", "Utilization (%)");
  std::vector<std::pair<QString, QColor>> entries;
  for (size_t i = 0; i < 3; ++i) {
    std::vector<QPointF> pts{{0, 0}};
    for (int r = 0; r < zy::kUtilRows; ++r) pts.emplace_back((r + 1) * 5.0, curves[i].rows[r]);
    ch.polyline(pts, kSeries[i]);
    entries.emplace_back(curves[i].name, kSeries[i]);
  }
  legend(c, ch.at(62, 15), entries);
  return c.save(path);
}

// The shipped style table as the program loads it, built from the two style sheets.
zy::StyleTables gStyles;

// Every style of the table at the middle of its gravity and bitterness ranges, in the colour of
// the middle of its colour range, over the lines of balance (bitterness units per gravity unit).
bool styleBalance(const QString& path) {
  Canvas c(400, 290);
  Chart ch{c, QRectF(58, 16, 326, 224), 1.030, 1.110, 0, 100};
  ch.axes(0.020, 20, "Original gravity (middle of the style's range)", "Bitterness (IBU)", 0, 3);
  for (double ratio : {0.5, 1.0}) {
    ch.curve([ratio](double og) { return (og - 1) * 1000 * ratio; }, 1.030, std::min(1.110, 1 + 0.1 / ratio),
             kSeries[5], 1.4, Qt::DashLine);
    const double og = ratio < 1 ? 1.108 : 1.095;
    QPointF q = ch.at(og, (og - 1) * 1000 * ratio);
    if (ratio < 1)
      c.text(q.x(), q.y() - 12, "BU:GU 0.5", Qt::AlignRight | Qt::AlignVCenter, 11, true, kSeries[5]);
    else
      c.text(q.x() + 8, q.y() + 4, "BU:GU 1.0", Qt::AlignLeft | Qt::AlignVCenter, 11, true, kSeries[5]);
  }
  for (int i = 0; i < zy::kStyleTableRows; ++i) {
    const zy::BeerStyleRecord& st = gStyles.BeerStyles[i];
    if (zy::trim(st.styleName).empty() || st.ogHigh <= 1 || st.ibuHigh <= 0) continue;
    const double og = (st.ogLow + st.ogHigh) / 2, ibu = (st.ibuLow + st.ibuHigh) / 2;
    if (og < 1.030 || og > 1.110 || ibu > 100) continue;
    const zy::Rgb rgb = zy::colorTableRow(static_cast<int>(std::lround((st.srmLow + st.srmHigh) / 2)));
    c.p.setPen(QPen(QColor(90, 90, 90), 0.8));
    c.p.setBrush(QColor(rgb.r, rgb.g, rgb.b));
    c.p.drawEllipse(ch.at(og, ibu), 4, 4);
  }
  c.text(ch.plot.left() + 8, ch.plot.top() + 10, "Each dot a style, in its color", Qt::AlignLeft, 11);
  return c.save(path);
}

// --- Charts from brewing data ------------------------------------------------------------------

// A step mash of modest length: protein rest, two saccharification rests and the mash-out, with
// the ramps a direct-fired tun manages at about 2 °F a minute.
bool stepMash(const QString& path) {
  Canvas c(400, 270);
  Chart ch{c, QRectF(58, 16, 326, 204), 0, 120, 100, 180};
  ch.axes(15, 10, "Time from mashing in (minutes)", "Mash temperature (°F)");
  struct Rest {
    double temp, minutes;
    const char* name;
  };
  const Rest rests[] = {{122, 15, "Protein rest"}, {146, 30, "Beta amylase"}, {158, 30, "Alpha amylase"},
                        {168, 10, "Mash-out"}};
  std::vector<QPointF> pts;
  double t = 0, temp = rests[0].temp;
  pts.emplace_back(0, temp);
  for (const Rest& r : rests) {
    if (r.temp > temp) {
      t += (r.temp - temp) / 2.0;
      pts.emplace_back(t, r.temp);
    }
    const double mid = t + r.minutes / 2;
    t += r.minutes;
    pts.emplace_back(t, r.temp);
    temp = r.temp;
    QPointF q = ch.at(mid, r.temp);
    q.setX(std::max(q.x() + 6, ch.plot.left() + 52));
    const int celsius = static_cast<int>(std::lround((r.temp - 32) * 5 / 9));
    // Labels sit under each rest, where the ramps leave room; the short mash-out gets its above.
    const double dy = &r == &rests[3] ? -35 : 0;
    c.text(q.x(), q.y() + 12 + dy, r.name, Qt::AlignHCenter, 11, true);
    c.text(q.x(), q.y() + 25 + dy, QString("%1 °F / %2 °C").arg(r.temp).arg(celsius), Qt::AlignHCenter, 11);
  }
  ch.polyline(pts, kSeries[0], 3);
  return c.save(path);
}

// Where the mash enzymes work, as bands on one temperature scale.
bool mashEnzymes(const QString& path) {
  Canvas c(460, 210);
  const double left = 160, right = 440, top = 16;
  const double t0 = 85, t1 = 175;
  auto x = [&](double t) { return left + (t - t0) / (t1 - t0) * (right - left); };
  struct Band {
    const char* name;
    double from, to;
    QColor colour;
  };
  const Band bands[] = {{"Phytase", 86, 113, QColor(200, 200, 160)},
                        {"Beta glucanase", 95, 113, QColor(180, 200, 140)},
                        {"Protease, peptidase", 113, 131, QColor(150, 190, 200)},
                        {"Beta amylase", 131, 150, QColor(230, 180, 90)},
                        {"Alpha amylase", 154, 162, QColor(210, 120, 70)}};
  const double rowH = 28;
  for (double t = 90; t <= 170; t += 10) {
    c.p.setPen(QPen(kGrid, 1));
    c.p.drawLine(QPointF(x(t), top), QPointF(x(t), top + 5 * rowH + 4));
    c.text(x(t), top + 5 * rowH + 14, QString::number(t, 'f', 0), Qt::AlignHCenter, 11);
  }
  for (int i = 0; i < 5; ++i) {
    const double y = top + i * rowH + 4;
    c.p.setPen(kInk);
    c.text(left - 8, y + rowH / 2 - 2, bands[i].name, Qt::AlignRight | Qt::AlignVCenter, 12);
    QRectF r(x(bands[i].from), y, x(bands[i].to) - x(bands[i].from), rowH - 8);
    c.p.setPen(QPen(bands[i].colour.darker(140), 1));
    c.p.setBrush(bands[i].colour);
    c.p.drawRoundedRect(r, 4, 4);
  }
  // The usual single-infusion range and the mash-out.
  c.p.setPen(QPen(kSeries[1], 1.5, Qt::DashLine));
  c.p.drawLine(QPointF(x(148), top), QPointF(x(148), top + 5 * rowH));
  c.p.drawLine(QPointF(x(158), top), QPointF(x(158), top + 5 * rowH));
  c.p.setPen(QPen(kSeries[0], 1.5, Qt::DashLine));
  c.p.drawLine(QPointF(x(168), top), QPointF(x(168), top + 5 * rowH));
  c.text(x(148) - 2, top + 5 * rowH - 6, "single infusion", Qt::AlignRight | Qt::AlignVCenter, 10, false, kSeries[1]);
  c.text(x(168) - 3, top + 10, "mash-out", Qt::AlignRight | Qt::AlignVCenter, 10, false, kSeries[0]);
  c.text((left + right) / 2, top + 5 * rowH + 34, "Mash temperature (°F)", Qt::AlignHCenter, 12);
  return c.save(path);
}

// The hydrometer correction factor by sample temperature in °F, the usual cubic fit: a reading
// taken at T and multiplied by factor(T) / factor(calibration) is what it would read at the
// calibration temperature.
double correctionFactor(double f) {
  return 1.00130346 - 0.000134722124 * f + 0.00000204052596 * f * f - 0.00000000232820948 * f * f * f;
}

// Points to add to a reading of 1.050 taken at a sample temperature, for a hydrometer calibrated
// at 60 °F and one calibrated at 68 °F.
bool temperatureCorrection(const QString& path) {
  Canvas c(380, 260);
  Chart ch{c, QRectF(58, 16, 302, 194), 40, 160, -5, 25};
  ch.axes(20, 5, "Sample temperature (°F)", "Gravity points to add");
  auto pointsToAdd = [](double calibration) {
    return [calibration](double t) { return 1.050 * (correctionFactor(t) / correctionFactor(calibration) - 1) * 1000; };
  };
  ch.curve(pointsToAdd(60), 40, 160, kSeries[0]);
  ch.curve(pointsToAdd(68), 40, 160, kSeries[1]);
  legend(c, ch.at(44, 24), {{"Calibrated at 60 °F", kSeries[0]}, {"Calibrated at 68 °F", kSeries[1]}});
  return c.save(path);
}

// Regulator pressure for a carbonation level by beer temperature, the common fit to the
// solubility tables.
double carbonationPsi(double f, double volumes) {
  return -16.6999 - 0.0101059 * f + 0.00116512 * f * f + 0.173354 * f * volumes + 4.24267 * volumes -
         0.0684226 * volumes * volumes;
}

bool forceCarbonation(const QString& path) {
  Canvas c(380, 260);
  Chart ch{c, QRectF(58, 16, 262, 194), 32, 52, 0, 30};
  ch.axes(4, 5, "Beer temperature (°F)", "Regulator pressure (psi)");
  const double levels[] = {2.0, 2.4, 2.8, 3.2};
  for (int i = 0; i < 4; ++i) {
    ch.curve([&](double t) { return carbonationPsi(t, levels[i]); }, 32, 52, kSeries[i]);
    QPointF end = ch.at(52, carbonationPsi(52, levels[i]));
    c.text(end.x() + 6, end.y(), QString("%1 vol").arg(levels[i], 0, 'f', 1), Qt::AlignLeft | Qt::AlignVCenter, 11,
           true, kSeries[i]);
  }
  return c.save(path);
}

// CO2 that stays dissolved in beer after fermentation, by the warmest temperature since.
double residualVolumes(double f) { return 3.0378 - 0.050062 * f + 0.00026555 * f * f; }

bool residualCo2(const QString& path) {
  Canvas c(380, 260);
  Chart ch{c, QRectF(58, 16, 302, 194), 30, 80, 0.6, 1.8};
  ch.axes(10, 0.2, "Warmest temperature since fermentation (°F)", "Volumes of CO2 in the beer", 1);
  ch.curve(residualVolumes, 30, 80, kSeries[1], 2.6);
  for (double t : {40.0, 60.0, 68.0}) {
    QPointF q = ch.at(t, residualVolumes(t));
    c.p.setBrush(kSeries[0]);
    c.p.setPen(Qt::NoPen);
    c.p.drawEllipse(q, 3.5, 3.5);
    c.p.setPen(kInk);
    c.text(q.x() + 7, q.y() - 9, QString("%1 °F: %2").arg(t, 0, 'f', 0).arg(residualVolumes(t), 0, 'f', 2),
           Qt::AlignLeft | Qt::AlignVCenter, 11);
  }
  return c.save(path);
}

// Gravity of a typical 1.050 ale through its first two weeks.
bool fermentationCurve(const QString& path) {
  Canvas c(400, 260);
  Chart ch{c, QRectF(62, 30, 320, 180), 0, 14, 1.010, 1.055};
  ch.axes(2, 0.005, "Days after pitching", "Specific gravity", 3);
  // A logistic fall from 1.050 to 1.012, steepest on the third day; flat through the lag.
  auto sg = [](double d) {
    const double start = 1.012 + 0.038 / (1 + std::exp((1.0 - 3.0) * 1.4));
    const double fall = 1.012 + 0.038 / (1 + std::exp((d - 3.0) * 1.4));
    return d <= 1.0 ? 1.050 : 1.012 + (fall - 1.012) * 0.038 / (start - 1.012);
  };
  ch.curve(sg, 0, 14, kSeries[3], 2.6);
  struct Phase {
    double from, to;
    const char* name;
  };
  const Phase phases[] = {{0, 1, "Lag"}, {1, 5, "Vigorous"}, {5, 8, "Slowing"}, {8, 14, "Conditioning"}};
  for (const Phase& ph : phases) {
    QPointF a = ch.at(ph.from, 1.055), b = ch.at(ph.to, 1.055);
    c.p.setPen(QPen(kGrid.darker(130), 1, Qt::DashLine));
    if (ph.from > 0) c.p.drawLine(a, ch.at(ph.from, 1.010));
    c.p.setPen(kInk);
    c.text((a.x() + b.x()) / 2, 18, ph.name, Qt::AlignHCenter, 11, true);
  }
  QPointF fg = ch.at(11, 1.012);
  c.text(fg.x(), fg.y() - 12, "final gravity 1.012", Qt::AlignHCenter, 11);
  return c.save(path);
}

// Degrees Plato against specific gravity, with the rule of thumb of four points a degree.
double platoOf(double sg) { return -616.868 + 1111.14 * sg - 630.272 * sg * sg + 135.997 * sg * sg * sg; }

bool platoGravity(const QString& path) {
  Canvas c(380, 260);
  Chart ch{c, QRectF(58, 16, 302, 194), 1.000, 1.120, 0, 30};
  ch.axes(0.020, 5, "Specific gravity", "Degrees Plato (about Brix)", 0, 3);
  ch.curve(platoOf, 1.000, 1.120, kSeries[1], 2.6);
  ch.curve([](double sg) { return (sg - 1) * 1000 / 4; }, 1.000, 1.120, kSeries[0], 1.6);
  legend(c, ch.at(1.003, 29), {{"Plato, exact", kSeries[1]}, {"Gravity points / 4", kSeries[0]}});
  return c.save(path);
}

// Alcohol by volume from original and final gravity, the common (OG - FG) x 131.25.
bool alcoholChart(const QString& path) {
  Canvas c(380, 260);
  Chart ch{c, QRectF(58, 16, 302, 194), 1.030, 1.100, 0, 12};
  ch.axes(0.010, 2, "Original gravity", "Alcohol by volume (%)", 0, 3);
  const double finals[] = {1.005, 1.010, 1.015, 1.020};
  std::vector<std::pair<QString, QColor>> entries;
  for (int i = 0; i < 4; ++i) {
    const double fg = finals[i];
    auto abv = [fg](double og) { return (og - fg) * 131.25; };
    ch.curve(abv, 1.030, std::min(1.100, fg + 12 / 131.25), kSeries[i]);
    entries.emplace_back(QString("FG %1").arg(fg, 0, 'f', 3), kSeries[i]);
  }
  legend(c, ch.at(1.075, 4.8), entries);
  return c.save(path);
}

// Four ions of six brewing waters, ppm, as the famous waters topic tabulates them.
bool famousWaters(const QString& path) {
  Canvas c(480, 290);
  Chart ch{c, QRectF(58, 16, 406, 206), 0, 6, 0, 750};
  c.p.setPen(QPen(kGrid, 1));
  for (double y = 0; y <= 750; y += 150) c.p.drawLine(ch.at(0, y), ch.at(6, y));
  for (double y = 0; y <= 750; y += 150) {
    QPointF q = ch.at(0, y);
    c.text(q.x() - 5, q.y(), QString::number(y, 'f', 0), Qt::AlignRight | Qt::AlignVCenter, 11);
  }
  struct City {
    const char* name;
    double ca, so4, cl, co3;
  };
  const City cities[] = {{"Pilsen", 7, 5, 5, 15},      {"Munich", 75, 10, 2, 200},   {"London", 90, 24, 10, 82},
                         {"Dublin", 115, 55, 19, 200}, {"Vienna", 200, 125, 12, 120}, {"Burton", 295, 725, 25, 300}};
  const QColor ions[] = {QColor(120, 150, 200), QColor(210, 160, 60), QColor(90, 160, 110), QColor(170, 90, 80)};
  for (int i = 0; i < 6; ++i) {
    const double v[] = {cities[i].ca, cities[i].so4, cities[i].cl, cities[i].co3};
    for (int k = 0; k < 4; ++k) {
      QPointF top = ch.at(i + 0.14 + k * 0.18, v[k]), base = ch.at(i + 0.14 + (k + 1) * 0.18, 0);
      c.p.setPen(Qt::NoPen);
      c.p.setBrush(ions[k]);
      c.p.drawRect(QRectF(top, base));
    }
    c.text(ch.at(i + 0.5, 0).x(), ch.plot.bottom() + 11, cities[i].name, Qt::AlignHCenter, 11);
  }
  c.p.setPen(QPen(kInk, 1.2));
  c.p.drawLine(ch.at(0, 0), ch.at(6, 0));
  c.p.save();
  c.p.translate(12, ch.plot.center().y());
  c.p.rotate(-90);
  c.text(0, 0, "ppm", Qt::AlignHCenter, 12);
  c.p.restore();
  const char* names[] = {"Calcium", "Sulfate", "Chloride", "Carbonate"};
  double lx = 70;
  for (int k = 0; k < 4; ++k) {
    c.p.fillRect(QRectF(lx, 262, 12, 12), ions[k]);
    c.text(lx + 17, 268, names[k], Qt::AlignLeft | Qt::AlignVCenter, 11);
    lx += QFontMetrics(font(11)).horizontalAdvance(names[k]) + 40;
  }
  return c.save(path);
}

// Fermentation temperature ranges of yeast families, °F.
bool yeastTemperatures(const QString& path) {
  Canvas c(460, 250);
  const double left = 150, right = 440, top = 12, rowH = 26;
  const double t0 = 40, t1 = 100;
  auto x = [&](double t) { return left + (t - t0) / (t1 - t0) * (right - left); };
  struct Family {
    const char* name;
    double from, to;
  };
  // The working ranges of the ale and lager family tables.
  const Family fam[] = {{"Lager", 48, 55},          {"Kölsch and altbier", 56, 66}, {"Clean American ale", 60, 72},
                        {"English ale", 62, 70},   {"Belgian abbey", 64, 78},      {"Saison", 68, 90},
                        {"Kveik", 72, 98}};
  const int n = sizeof fam / sizeof fam[0];
  for (double t = 40; t <= 100; t += 10) {
    c.p.setPen(QPen(kGrid, 1));
    c.p.drawLine(QPointF(x(t), top), QPointF(x(t), top + n * rowH + 2));
    c.text(x(t), top + n * rowH + 12, QString::number(t, 'f', 0), Qt::AlignHCenter, 11);
  }
  for (int i = 0; i < n; ++i) {
    const double y = top + i * rowH + 4;
    c.p.setPen(kInk);
    c.text(left - 8, y + rowH / 2 - 2, fam[i].name, Qt::AlignRight | Qt::AlignVCenter, 12);
    // Blue for cold, red for warm: the bar takes the colour of its middle.
    const double mid = (fam[i].from + fam[i].to) / 2, f = (mid - t0) / (t1 - t0);
    QColor col(static_cast<int>(90 + 140 * f), 130, static_cast<int>(200 - 140 * f));
    c.p.setPen(QPen(col.darker(140), 1));
    c.p.setBrush(col);
    c.p.drawRoundedRect(QRectF(x(fam[i].from), y, x(fam[i].to) - x(fam[i].from), rowH - 8), 4, 4);
  }
  c.text((left + right) / 2, top + n * rowH + 32, "Beer temperature during fermentation (°F)", Qt::AlignHCenter, 12);
  return c.save(path);
}

// The sulfate to chloride ratio as a scale from malty to bitter.
bool sulfateChloride(const QString& path) {
  Canvas c(460, 130);
  const double left = 20, right = 440, y = 34, h = 30;
  // Logarithmic: a ratio of 0.25 to 6.
  auto x = [&](double r) { return left + (std::log(r) - std::log(0.25)) / (std::log(6.0) - std::log(0.25)) * (right - left); };
  struct Zone {
    double from, to;
    const char* name;
    QColor colour;
  };
  const Zone zones[] = {{0.25, 0.5, "Very malty", QColor(150, 90, 40)},
                        {0.5, 0.8, "Malty", QColor(200, 140, 60)},
                        {0.8, 1.5, "Balanced", QColor(215, 200, 120)},
                        {1.5, 3, "Bitter", QColor(140, 180, 90)},
                        {3, 6, "Very bitter", QColor(80, 140, 70)}};
  for (const Zone& z : zones) {
    QRectF r(x(z.from), y, x(z.to) - x(z.from), h);
    c.p.fillRect(r, z.colour);
    c.text(r.center().x(), r.center().y(), z.name, Qt::AlignHCenter | Qt::AlignVCenter, 11, true,
           z.from < 0.8 || z.from >= 3 ? QColor(Qt::white) : kInk);
  }
  c.p.setPen(kInk);
  for (double r : {0.5, 0.8, 1.0, 1.5, 3.0}) {
    c.p.drawLine(QPointF(x(r), y + h), QPointF(x(r), y + h + 5));
    c.text(x(r), y + h + 15, QString::number(r, 'g', 2), Qt::AlignHCenter, 11);
  }
  c.text(left, 16, "Sulfate : chloride (ppm : ppm)", Qt::AlignLeft | Qt::AlignVCenter, 12, true);
  c.text(x(0.4), y + h + 36, "stouts, hazy IPA", Qt::AlignHCenter, 11);
  c.text(x(1.1), y + h + 36, "amber, blonde", Qt::AlignHCenter, 11);
  c.text(x(3.2), y + h + 36, "pale ale, IPA", Qt::AlignHCenter, 11);
  return c.save(path);
}

// --- Diagrams ----------------------------------------------------------------------------------

// A counterflow chiller drawn straight: hot wort in the inner copper tube one way, cold water in
// the outer hose the other way.
bool counterflowChiller(const QString& path) {
  Canvas c(460, 220);
  const double x0 = 70, x1 = 390, yMid = 110;
  // Outer hose with water.
  QRectF hose(x0, yMid - 34, x1 - x0, 68);
  QLinearGradient water(hose.topLeft(), hose.topRight());
  water.setColorAt(0, QColor(205, 185, 175));
  water.setColorAt(1, kWater);
  c.p.setPen(QPen(QColor(60, 90, 60), 3));
  c.p.setBrush(water);
  c.p.drawRoundedRect(hose, 10, 10);
  // Inner copper tube with wort, hot (dark) at the left, cool (light) at the right.
  QRectF tube(x0 - 40, yMid - 11, x1 - x0 + 80, 22);
  QLinearGradient wort(tube.topLeft(), tube.topRight());
  wort.setColorAt(0, QColor(170, 70, 30));
  wort.setColorAt(1, QColor(225, 180, 90));
  c.p.setPen(QPen(kCopper.darker(130), 2));
  c.p.setBrush(wort);
  c.p.drawRect(tube);
  // Water connections: in at the right bottom, out at the left top.
  c.p.setPen(QPen(QColor(60, 90, 60), 3));
  c.p.setBrush(kWater);
  c.p.drawRect(QRectF(x1 - 40, yMid + 34, 16, 36));
  c.p.setBrush(QColor(205, 185, 175));
  c.p.drawRect(QRectF(x0 + 24, yMid - 70, 16, 36));
  // Flows.
  c.arrow(QPointF(8, yMid), QPointF(x0 - 44, yMid), kSeries[0], 3);
  c.arrow(QPointF(x1 + 44, yMid), QPointF(452, yMid), QColor(200, 150, 60), 3);
  c.arrow(QPointF(x1 - 32, 206), QPointF(x1 - 32, yMid + 74), kSeries[1], 3);
  c.arrow(QPointF(x0 + 32, yMid - 74), QPointF(x0 + 32, 10), QColor(150, 100, 120), 3);
  // Inside: the water runs right to left around the tube, the wort left to right within it.
  c.arrow(QPointF(x1 - 70, yMid + 23), QPointF(x0 + 70, yMid + 23), kSeries[1], 1.8);
  c.arrow(QPointF(x1 - 70, yMid - 23), QPointF(x0 + 70, yMid - 23), kSeries[1], 1.8);
  c.arrow(QPointF(x0 + 20, yMid), QPointF(x1 - 20, yMid), QColor(255, 250, 240), 1.8);
  c.text(10, yMid + 22, "hot wort in", Qt::AlignLeft, 11, true);
  c.text(452, yMid + 22, "cool wort out", Qt::AlignRight, 11, true);
  c.text(x1 - 20, 194, "cold water in", Qt::AlignLeft, 11, true);
  c.text(x0 + 46, 22, "warm water out", Qt::AlignLeft, 11, true);
  c.text(x0 + 90, yMid - 50, "wort in the copper tube", Qt::AlignLeft, 11);
  c.text(x0 + 90, yMid + 50, "water in the outer hose", Qt::AlignLeft, 11);
  return c.save(path);
}

// A three-piece airlock in a drilled stopper, cut open: gas rises through the stem, pushes the
// floating cap up and bubbles out through the water.
bool airlock(const QString& path) {
  Canvas c(300, 300);
  const double cx = 130;
  // Stopper in the fermenter neck.
  QPolygonF stopper;
  stopper << QPointF(cx - 34, 220) << QPointF(cx + 34, 220) << QPointF(cx + 26, 262) << QPointF(cx - 26, 262);
  c.p.setPen(QPen(QColor(110, 60, 40), 1.5));
  c.p.setBrush(QColor(160, 90, 60));
  c.p.drawPolygon(stopper);
  c.p.setPen(QPen(kSteel.darker(140), 2));
  c.p.drawLine(QPointF(cx - 62, 300), QPointF(cx - 40, 214));
  c.p.drawLine(QPointF(cx + 62, 300), QPointF(cx + 40, 214));
  // Body of the airlock with water.
  QRectF body(cx - 42, 90, 84, 120);
  c.p.setPen(QPen(kSteel.darker(130), 2));
  c.p.setBrush(QColor(240, 244, 248));
  c.p.drawRoundedRect(body, 6, 6);
  c.p.setPen(Qt::NoPen);
  c.p.setBrush(kWater);
  c.p.drawRect(QRectF(body.left() + 2, 150, body.width() - 4, body.bottom() - 152));
  // Stem from the stopper up into the body.
  c.p.setPen(QPen(kSteel.darker(130), 2));
  c.p.setBrush(QColor(240, 244, 248));
  c.p.drawRect(QRectF(cx - 7, 120, 14, 142));
  // Floating cap over the stem, its rim in the water.
  c.p.setBrush(QColor(200, 210, 220));
  QPainterPath cap;
  cap.moveTo(cx - 20, 162);
  cap.lineTo(cx - 20, 110);
  cap.lineTo(cx + 20, 110);
  cap.lineTo(cx + 20, 162);
  c.p.drawPath(cap);
  // Lid.
  c.p.setBrush(kSteel);
  c.p.drawRoundedRect(QRectF(cx - 48, 80, 96, 12), 3, 3);
  // Gas path.
  c.arrow(QPointF(cx, 250), QPointF(cx, 124), kSeries[0], 2);
  for (double y : {140.0, 128.0, 118.0}) {
    c.p.setPen(QPen(kSeries[1], 1.5));
    c.p.setBrush(Qt::white);
    c.p.drawEllipse(QPointF(cx + 31, y + 28), 4, 4);
  }
  c.arrow(QPointF(cx + 31, 130), QPointF(cx + 31, 70), kSeries[0], 2);
  c.p.setPen(kInk);
  c.text(cx + 60, 60, "CO2 escapes", Qt::AlignLeft, 11, true);
  c.text(cx + 60, 88, "lid with vents", Qt::AlignLeft, 11);
  c.text(cx + 60, 125, "floating cap", Qt::AlignLeft, 11);
  c.text(cx + 60, 175, "water or sanitizer", Qt::AlignLeft, 11);
  c.text(cx + 60, 240, "drilled stopper", Qt::AlignLeft, 11);
  c.p.setPen(QPen(kGrid.darker(150), 1));
  c.p.drawLine(QPointF(cx + 24, 125), QPointF(cx + 56, 125));
  c.p.drawLine(QPointF(cx + 40, 175), QPointF(cx + 56, 175));
  c.p.drawLine(QPointF(cx + 30, 240), QPointF(cx + 56, 240));
  c.p.drawLine(QPointF(cx + 48, 88), QPointF(cx + 56, 88));
  return c.save(path);
}

struct Picture {
  const char* file;
  bool (*draw)(const QString&);
};

const Picture kPictures[] = {
    {"srm-scale.png", srmScale},
    {"hops-utilization.png", hopsUtilization},
    {"step-mash.png", stepMash},
    {"mash-enzymes.png", mashEnzymes},
    {"temperature-correction.png", temperatureCorrection},
    {"force-carbonation.png", forceCarbonation},
    {"residual-co2.png", residualCo2},
    {"fermentation-curve.png", fermentationCurve},
    {"plato-gravity.png", platoGravity},
    {"alcohol-chart.png", alcoholChart},
    {"famous-waters.png", famousWaters},
    {"yeast-temperatures.png", yeastTemperatures},
    {"sulfate-chloride.png", sulfateChloride},
    {"counterflow-chiller.png", counterflowChiller},
    {"airlock.png", airlock},
    {"style-balance.png", styleBalance},
};

bool readWhole(const char* path, std::string& out) {
  QFile f(QString::fromLocal8Bit(path));
  if (!f.open(QIODevice::ReadOnly)) return false;
  out = f.readAll().toStdString();
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fprintf(stderr, "usage: refdraw OUTPUT_DIR CATEGORIES_CSV STYLES_CSV\n");
    return 2;
  }
  std::string categories, styles, error;
  if (!readWhole(argv[2], categories) || !readWhole(argv[3], styles)) {
    std::fprintf(stderr, "refdraw: cannot read %s or %s\n", argv[2], argv[3]);
    return 1;
  }
  if (!zy::buildStyleTablesFromSheets(categories, styles, gStyles, error)) {
    std::fprintf(stderr, "refdraw: %s\n", error.c_str());
    return 1;
  }
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  const QString out = QString::fromLocal8Bit(argv[1]);
  if (!QDir().mkpath(out)) {
    std::fprintf(stderr, "refdraw: cannot create %s\n", argv[1]);
    return 1;
  }
  int failed = 0;
  for (const Picture& pic : kPictures) {
    if (!pic.draw(out + "/" + pic.file)) {
      std::fprintf(stderr, "refdraw: could not write %s\n", pic.file);
      ++failed;
    }
  }
  if (failed) return 1;
  QFile stamp(out + "/pictures.stamp");
  if (!stamp.open(QIODevice::WriteOnly | QIODevice::Truncate)) return 1;
  stamp.write(QByteArray::number(static_cast<int>(sizeof kPictures / sizeof kPictures[0])) + " pictures\n");
  std::printf("refdraw: %d pictures written to %s\n", static_cast<int>(sizeof kPictures / sizeof kPictures[0]),
              argv[1]);
  return 0;
}
