#include "reports/ReportEngine.h"

#include <algorithm>

#include "core/numfmt.h"
#include "core/paths.h"

namespace zy {

namespace {
// The footer's rule sits this far above the page's bottom edge; the body ends a little above it.
constexpr double kFooterRule = 0.6;
constexpr double kBodyGap = 0.15;
constexpr double kFooterSide = 0.5;
}  // namespace

Report::Report(DrawTarget& target, const ReportState& state, int wantedPage)
    : target_(target), state_(state), wanted_(wantedPage) {
  setFont("Arial", 10);
}

double Report::bottom() const { return target_.pageHeight() - kFooterRule - kBodyGap; }

void Report::setFont(const std::string& name, double points, bool bold, bool underline, bool italic) {
  font_.name = name;
  font_.points = points * state_.fontScale;
  font_.bold = bold;
  font_.underline = underline;
  font_.italic = italic;
  target_.setFont(font_);
  lineHeight_ = target_.textHeight();
}

void Report::printAt(double atX, const std::string& text) {
  x = atX;
  if (drawing() && !text.empty()) target_.drawText(x, y, text);
  x += target_.textWidth(text);
}

void Report::printLine(double atX, const std::string& text) {
  printAt(atX, text);
  newLine();
}

void Report::centerText(const std::string& text) {
  printLine(std::max(0.0, (target_.pageWidth() - target_.textWidth(text)) / 2), text);
}

void Report::printRight(const std::string& text, double rightEdge) {
  double at = rightEdge - target_.textWidth(text);
  printAt(at > 0 ? at : 0, text);
}

void Report::printWrapped(const std::string& text, double left, double right, double bottomEdge,
                          const std::string& heading) {
  if (bottomEdge <= 0) bottomEdge = bottom();
  // The width of a "W" gives a first guess of how many letters a line takes; the measured width
  // of the words decides.
  const double wide = std::max(1e-6, target_.textWidth("W"));
  const double room = std::max(wide, right - left);
  std::string lineText;
  auto emit = [&] {
    if (y + lineHeight_ > bottomEdge) {
      newPage();
      continuedHeading(heading);
    }
    printLine(left, lineText);
    lineText.clear();
  };
  // Paragraphs end at line breaks (CR LF, LF or a lone CR); an empty paragraph is an empty line.
  size_t i = 0;
  const size_t n = text.size();
  while (i <= n) {
    size_t end = text.find_first_of("\r\n", i);
    if (end == std::string::npos) end = n;
    std::string para = text.substr(i, end - i);
    size_t w = 0;
    bool any = false;
    while (w < para.size()) {
      while (w < para.size() && para[w] == ' ') ++w;
      if (w >= para.size()) break;
      size_t e = para.find(' ', w);
      if (e == std::string::npos) e = para.size();
      std::string word = para.substr(w, e - w);
      w = e;
      any = true;
      std::string tryLine = lineText.empty() ? word : lineText + " " + word;
      if (lineText.empty() || target_.textWidth(tryLine) <= room) {
        lineText = tryLine;
      } else {
        emit();
        lineText = word;
      }
      // A word wider than the line is cut where it fills the line.
      while (target_.textWidth(lineText) > room && lineText.size() > 1) {
        size_t fit = std::max<size_t>(1, static_cast<size_t>(room / wide));
        while (fit > 1 && target_.textWidth(lineText.substr(0, fit)) > room) --fit;
        while (fit + 1 < lineText.size() && target_.textWidth(lineText.substr(0, fit + 1)) <= room) ++fit;
        std::string rest = lineText.substr(fit);
        lineText.resize(fit);
        emit();
        lineText = rest;
      }
    }
    if (!lineText.empty() || !any) emit();
    if (end >= n) break;
    i = end + ((text[end] == '\r' && end + 1 < n && text[end + 1] == '\n') ? 2 : 1);
  }
}

void Report::continuedHeading(const std::string& heading) {
  if (heading.empty() || !state_.continuation) return;
  ReportFont keep = font_;
  setFont(keep.name, keep.points / std::max(1e-9, state_.fontScale), true, true);
  printLine(kLeft, heading + " (continued):");
  font_ = keep;
  target_.setFont(font_);
  lineHeight_ = target_.textHeight();
}

void Report::rule(double left, double right, double pixels) {
  line(left, y, right, y, pixels);
}

void Report::line(double x1, double y1, double x2, double y2, double pixels) {
  if (drawing()) target_.drawLine(x1, y1, x2, y2, scaledWidth(pixels));
}

bool Report::ensureRoom(double lines, const std::string& heading) {
  if (y + lineHeight_ * lines <= bottom()) return false;
  newPage();
  continuedHeading(heading);
  return true;
}

double Report::scaledWidth(double width) const {
  return std::max(1.0, width * state_.previewScale * target_.pixelScale());
}

std::string Report::padLeft(double value, const std::string& pattern, int width) {
  std::string s = std::string(12, ' ') + formatNumber(value, pattern);
  width = std::clamp(width, 0, static_cast<int>(s.size()));
  return s.substr(s.size() - static_cast<size_t>(width));
}

void Report::footer() {
  ReportFont keep = font_;
  const double w = target_.pageWidth();
  const double ruleY = target_.pageHeight() - kFooterRule;
  double saveX = x, saveY = y;
  line(kFooterSide, ruleY, w - kFooterSide, ruleY, 2);
  y = ruleY + 0.05;
  setFont("Arial", 6);
  printAt(kFooterSide, std::string("Generated by ") + kProgramName + " Software");
  setFont("Arial", 8);
  printRight("Page " + plainText(page_) + " of " + plainText(state_.pageCount), w - kFooterSide);
  x = saveX;
  y = saveY;
  font_ = keep;
  target_.setFont(font_);
  lineHeight_ = target_.textHeight();
}

void Report::newPage() {
  footer();
  if (wanted_ == 0) target_.newPage();
  ++page_;
  x = 0;
  y = kTop;
}

int Report::finish() {
  if (!finished_) {
    footer();
    finished_ = true;
  }
  return page_;
}

int runReport(const ReportProc& report, DrawTarget& target, ReportState& state, int page) {
  state.pageCount = 1;
  {
    Report measure(target, state, -1);
    report(measure);
    state.pageCount = std::max(1, measure.finish());
  }
  if (page > state.pageCount) page = state.pageCount;
  if (page > 0) state.page = page;
  Report draw(target, state, page);
  report(draw);
  draw.finish();
  return state.pageCount;
}

}  // namespace zy
