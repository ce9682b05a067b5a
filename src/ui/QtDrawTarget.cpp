#include "ui/QtDrawTarget.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPen>
#include <QPrinter>
#include <algorithm>
#include <cmath>

#include "ui/QtPrompter.h"

namespace zy {

namespace {
// Texts are measured at this many pixels per inch whatever the target, so that a report breaks its
// lines and pages alike in the preview at any view size and on paper.
constexpr double kMeasureDpi = 1200.0;

double safePoints(double points) { return std::clamp(points, 1.0, 400.0); }
}  // namespace

QFont QtDrawTarget::qtFont(const ReportFont& f) {
  QFont q(qs(f.name.empty() ? std::string("Arial") : f.name));
  q.setStyleHint(QFont::SansSerif);
  q.setBold(f.bold);
  q.setItalic(f.italic);
  q.setUnderline(f.underline);
  q.setKerning(false);
  q.setHintingPreference(QFont::PreferNoHinting);
  return q;
}

QImage QtDrawTarget::pageImage(double pageWidth, double pageHeight, double scale) {
  const int w = std::max(1, static_cast<int>(std::lround(pageWidth * kScreenDpi * scale)));
  const int h = std::max(1, static_cast<int>(std::lround(pageHeight * kScreenDpi * scale)));
  QImage img(w, h, QImage::Format_RGB32);
  img.fill(Qt::white);
  // Point sizes on the image follow its resolution: 96 dots an inch at 100 percent.
  const int dpm = std::max(1, static_cast<int>(std::lround(kScreenDpi * scale / 0.0254)));
  img.setDotsPerMeterX(dpm);
  img.setDotsPerMeterY(dpm);
  return img;
}

QtDrawTarget::QtDrawTarget(QImage& image, double pageWidth, double pageHeight, double scale)
    : width_(pageWidth), height_(pageHeight), dpi_(kScreenDpi), scale_(scale) {
  painter_.begin(&image);
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setRenderHint(QPainter::TextAntialiasing);
  setFont(font_);
}

QSizeF paperInches(const QPagedPaintDevice& device) {
  const QRectF full = device.pageLayout().fullRect(QPageLayout::Inch);
  if (full.width() <= 0 || full.height() <= 0) return {QtDrawTarget::kLetterWidth, QtDrawTarget::kLetterHeight};
  return full.size();
}

QtDrawTarget::QtDrawTarget(QPagedPaintDevice& device) : paged_(&device) {
  // The report places everything from the paper's edge, so the device draws on its full page.
  if (auto* printer = dynamic_cast<QPrinter*>(&device)) printer->setFullPage(true);
  else device.setPageMargins(QMarginsF(0, 0, 0, 0));
  const QSizeF paper = paperInches(device);
  width_ = paper.width();
  height_ = paper.height();
  if (painter_.begin(&device)) {
    dpi_ = std::max(1, device.logicalDpiX());
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::TextAntialiasing);
  }
  setFont(font_);
}

QtDrawTarget::~QtDrawTarget() {
  if (painter_.isActive()) painter_.end();
}

QPointF QtDrawTarget::at(double x, double y) const { return {x * dpi_ * scale_, y * dpi_ * scale_}; }

void QtDrawTarget::setFont(const ReportFont& font) {
  font_ = font;
  measureFont_ = qtFont(font);
  measureFont_.setPixelSize(std::max(1, static_cast<int>(std::lround(safePoints(font.points) * kMeasureDpi / 72.0))));
  if (painter_.isActive()) {
    QFont drawn = qtFont(font);
    // The device's own resolution turns points into dots (the page image's follows the view).
    drawn.setPointSizeF(safePoints(font.points));
    painter_.setFont(drawn);
  }
}

double QtDrawTarget::textWidth(const std::string& text) {
  return QFontMetricsF(measureFont_).horizontalAdvance(qs(text)) / kMeasureDpi;
}

double QtDrawTarget::textHeight() { return QFontMetricsF(measureFont_).height() / kMeasureDpi; }

void QtDrawTarget::drawText(double x, double y, const std::string& text) {
  if (!painter_.isActive()) return;
  painter_.setPen(Qt::black);
  const QPointF p = at(x, y);
  painter_.drawText(p + QPointF(0, painter_.fontMetrics().ascent()), qs(text));
}

void QtDrawTarget::drawLine(double x1, double y1, double x2, double y2, double widthPixels) {
  if (!painter_.isActive()) return;
  QPen pen(Qt::black);
  pen.setWidthF(std::max(1.0, widthPixels));
  pen.setCapStyle(Qt::FlatCap);
  painter_.setPen(pen);
  painter_.drawLine(at(x1, y1), at(x2, y2));
}

void QtDrawTarget::newPage() {
  if (paged_ && painter_.isActive()) paged_->newPage();
}

}  // namespace zy
