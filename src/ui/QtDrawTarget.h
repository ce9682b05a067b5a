#pragma once
// The report engine's drawing target over a QPainter: a page image for the preview (at the
// preview's view scale), a printer or a PDF file. Positions are inches from the paper's top-left
// corner; texts arrive as Windows-1252 and are converted here.
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPointF>

#include "reports/DrawTarget.h"

class QPagedPaintDevice;
class QPrinter;

namespace zy {

class QtDrawTarget : public DrawTarget {
 public:
  // The page size the preview uses when no printer is installed.
  static constexpr double kLetterWidth = 8.5, kLetterHeight = 11.0;
  // Pixels of a page image per inch at 100 percent.
  static constexpr double kScreenDpi = 96.0;

  // A preview page image: white, `pageWidth` x `pageHeight` inches at `scale`.
  static QImage pageImage(double pageWidth, double pageHeight, double scale);
  // Draws on `image` (made by pageImage) at `scale`.
  QtDrawTarget(QImage& image, double pageWidth, double pageHeight, double scale);
  // Draws on a printer or a PDF writer: its whole paper, at the device's resolution. The painter
  // is begun here and ended by the destructor; `ok()` is false when the device refused.
  explicit QtDrawTarget(QPagedPaintDevice& device);
  ~QtDrawTarget() override;

  bool ok() const { return painter_.isActive(); }

  double pageWidth() const override { return width_; }
  double pageHeight() const override { return height_; }
  double pixelScale() const override { return dpi_ / kScreenDpi; }
  void setFont(const ReportFont& font) override;
  double textWidth(const std::string& text) override;
  double textHeight() override;
  void drawText(double x, double y, const std::string& text) override;
  void drawLine(double x1, double y1, double x2, double y2, double widthPixels) override;
  void newPage() override;

  // The font a report names, as this machine has it ("Arial" falls back to a sans serif face).
  static QFont qtFont(const ReportFont& font);

 private:
  QPointF at(double x, double y) const;

  QPainter painter_;
  QPagedPaintDevice* paged_ = nullptr;
  double width_ = kLetterWidth, height_ = kLetterHeight;
  double dpi_ = kScreenDpi;  // device pixels per inch of the page as drawn
  double scale_ = 1.0;       // the preview's view scale (1 on paper)
  ReportFont font_;
  QFont measureFont_;        // the same face at a fixed fine size: widths do not change with the view
};

// The paper of a printer (or PDF writer) in inches, as its page setup turned it.
QSizeF paperInches(const QPagedPaintDevice& device);

}  // namespace zy
