#pragma once
// A drawing target that keeps what is drawn, with fixed type metrics: a character is half its
// point size wide, a line 1.2 times its point size high. The tests read reports from it, and the
// command line prints a report from it as plain lines of text.
#include <string>
#include <vector>

#include "reports/DrawTarget.h"

namespace zy {

class RecordingTarget : public DrawTarget {
 public:
  struct Item {
    int sheet;             // 1 for the first sheet, counted by newPage
    bool isText;
    double x, y, x2, y2;   // inches; x2/y2 for lines
    double width;          // pixels, for lines
    ReportFont font;       // for texts
    std::string text;
  };

  RecordingTarget(double pageWidth = 8.5, double pageHeight = 11.0) : w_(pageWidth), h_(pageHeight) {}

  double pageWidth() const override { return w_; }
  double pageHeight() const override { return h_; }
  void setFont(const ReportFont& font) override { font_ = font; }
  double textWidth(const std::string& text) override;
  double textHeight() override { return font_.points * 1.2 / 72.0; }
  void drawText(double x, double y, const std::string& text) override;
  void drawLine(double x1, double y1, double x2, double y2, double widthPixels) override;
  void newPage() override { ++sheet_; }

  const std::vector<Item>& items() const { return items_; }
  int sheets() const { return sheet_; }
  // The texts of one sheet as lines: texts that share a line, left to right, joined by `sep`;
  // lines top to bottom.
  std::vector<std::string> lines(int sheet = 1, const std::string& sep = "  ") const;
  // Every text of every sheet in drawing order.
  std::vector<std::string> texts() const;

 private:
  double w_, h_;
  ReportFont font_;
  int sheet_ = 1;
  std::vector<Item> items_;
};

}  // namespace zy
