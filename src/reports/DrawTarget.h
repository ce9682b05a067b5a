#pragma once
// Where a report draws: a printer, a preview image, a PDF file, or a recording. Positions and
// sizes are inches from the page's top-left corner, and a text's y is the top of its line. Texts
// are 8-bit (Windows-1252); a target that needs Unicode converts at its edge.
#include <string>

namespace zy {

struct ReportFont {
  std::string name = "Arial";
  double points = 10;
  bool bold = false;
  bool italic = false;
  bool underline = false;
};

class DrawTarget {
 public:
  virtual ~DrawTarget() = default;
  virtual double pageWidth() const = 0;
  virtual double pageHeight() const = 0;
  // The target's own scale of a line width: 1 on a screen image at 100 %, more on a printer,
  // whose dots are finer.
  virtual double pixelScale() const { return 1.0; }
  virtual void setFont(const ReportFont& font) = 0;
  // Width and line height of a text in the current font, in inches.
  virtual double textWidth(const std::string& text) = 0;
  virtual double textHeight() = 0;
  virtual void drawText(double x, double y, const std::string& text) = 0;
  // A line `widthPixels` wide (already scaled, see Report::scaledWidth).
  virtual void drawLine(double x1, double y1, double x2, double y2, double widthPixels) = 0;
  // Ends the sheet and starts the next (a printer or a PDF file); a single page image ignores it.
  virtual void newPage() = 0;
};

}  // namespace zy
