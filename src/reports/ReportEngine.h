#pragma once
// The small drawing engine every printed report goes through. A report procedure draws its whole
// report, from the first page to the last, into a `Report`; the report asks for page breaks as it
// goes. Only the page that is wanted reaches the target, so the same procedure serves the preview
// (one page image at a time) and the printer (every page, one sheet each).
#include <functional>
#include <string>

#include "reports/DrawTarget.h"

namespace zy {

// Engine state shared by all reports: kept by the preview window between redraws.
struct ReportState {
  double previewScale = 1.0;  // the preview's view scale; the printer always uses 1.0
  double fontScale = 1.0;     // every font size is multiplied by this
  int page = 1;               // the page shown
  int pageCount = 1;          // pages the report needs, known after a run
  bool continuation = true;   // repeat a running section's heading on its next page
};

class Report {
 public:
  // `wantedPage` 0 draws every page (the printer), a page number draws that page only, and -1
  // draws nothing (a measuring run).
  Report(DrawTarget& target, const ReportState& state, int wantedPage);

  DrawTarget& target() { return target_; }
  const ReportState& state() const { return state_; }

  // The current position, in inches, and the page being laid out.
  double x = 0;
  double y = kTop;
  int page() const { return page_; }
  double lineHeight() const { return lineHeight_; }
  // Where the body of a page ends: below it sit the rule and the footer.
  double bottom() const;
  double pageWidth() const { return target_.pageWidth(); }

  static constexpr double kTop = 0.75;
  static constexpr double kLeft = 0.75;

  // Font by name and size in points (multiplied by fontScale); the line height follows it.
  void setFont(const std::string& name, double points, bool bold = false, bool underline = false,
               bool italic = false);
  double textWidth(const std::string& text) { return target_.textWidth(text); }

  // Texts at the current line. `printAt` leaves the position on the line; `printLine` moves to the
  // next. `centerText` centres the text on the page and moves to the next line.
  void printAt(double atX, const std::string& text);
  void printLine(double atX, const std::string& text);
  void newLine(double lines = 1.0) { y += lineHeight_ * lines; }
  void centerText(const std::string& text);
  // Right-aligns the text on `rightEdge` (from the left edge when it would not fit), on this line.
  void printRight(const std::string& text, double rightEdge);
  // Words of the text between `left` and `right`, broken at blanks and at line breaks; at `bottom`
  // (0: the page's own) the page ends and `heading` + " (continued):" opens the next.
  void printWrapped(const std::string& text, double left, double right, double bottom = 0,
                    const std::string& heading = {});
  // A rule across the page at the current line, `pixels` wide.
  void rule(double left, double right, double pixels = 1.0);
  void line(double x1, double y1, double x2, double y2, double pixels = 1.0);

  // Ends the page when fewer than `lines` lines are left on it; with a heading, the next page
  // starts with the heading's continuation. True when a new page was started.
  bool ensureRoom(double lines, const std::string& heading = {});
  // Ends the page: the rule, the footer, and on to the next page at the top.
  void newPage();
  // Ends the last page (its footer); the page count is then known.
  int finish();

  // A line width in pixels at the preview's scale and the target's, never less than 1.
  double scaledWidth(double width) const;
  // The number by the pattern, right-aligned: the last `width` characters of twelve blanks and
  // the text.
  static std::string padLeft(double value, const std::string& pattern, int width);

 private:
  bool drawing() const { return wanted_ == 0 || wanted_ == page_; }
  void continuedHeading(const std::string& heading);
  void footer();

  DrawTarget& target_;
  ReportState state_;
  int wanted_;
  int page_ = 1;
  double lineHeight_ = 0;
  ReportFont font_;
  bool finished_ = false;
};

using ReportProc = std::function<void(Report&)>;

// Lays the report out once to count its pages (into state.pageCount), then draws `page` (0 for
// every page, with a new sheet between them). A page past the end draws the last page. Returns the
// page count.
int runReport(const ReportProc& report, DrawTarget& target, ReportState& state, int page);

}  // namespace zy
