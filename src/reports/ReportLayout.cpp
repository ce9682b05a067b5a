#include "reports/ReportLayout.h"

#include <algorithm>

#include "core/errorlog.h"
#include "core/ports.h"
#include "core/textfile.h"

namespace zy {

double reportRight(Report& r) { return r.pageWidth() - Report::kLeft; }

void reportTitle(Report& r, const std::string& title, const std::string& subtitle) {
  r.y = Report::kTop;
  r.setFont("Arial", 16, true);
  r.centerText(title);
  if (!subtitle.empty()) {
    r.setFont("Arial", 10, false, false, true);
    r.centerText(subtitle);
  }
  r.setFont("Arial", 10);
  r.newLine();
}

void reportSection(Report& r, const std::string& heading, double linesAfter) {
  r.setFont("Arial", 11, true);
  // A heading never stands alone at the foot of a page.
  r.ensureRoom(1.5 + linesAfter);
  r.y += r.lineHeight() * 0.4;
  r.printLine(Report::kLeft, heading);
  r.setFont("Arial", 10);
}

std::string fitText(Report& r, const std::string& text, double width) {
  if (width <= 0 || r.textWidth(text) <= width) return text;
  std::string t = text;
  while (!t.empty() && r.textWidth(t + "...") > width) t.pop_back();
  while (!t.empty() && t.back() == ' ') t.pop_back();
  return t.empty() ? std::string() : t + "...";
}

namespace {
double roomOf(const std::vector<ReportColumn>& columns, size_t i, double right) {
  const ReportColumn& c = columns[i];
  if (c.rightAligned) return 0;
  if (c.width > 0) return c.width;
  double next = right;
  if (i + 1 < columns.size()) {
    const ReportColumn& n = columns[i + 1];
    // A right-aligned neighbour's numbers reach to the left of its stop: leave them half an inch.
    next = n.rightAligned ? n.x - 0.5 : n.x;
  }
  return std::max(0.2, next - c.x - 0.08);
}
}  // namespace

void printColumnHeads(Report& r, const std::vector<ReportColumn>& columns) {
  r.setFont("Arial", 10, true);
  const double right = reportRight(r);
  for (const ReportColumn& c : columns) {
    if (c.rightAligned) r.printRight(c.head, c.x);
    else r.printAt(c.x, c.head);
  }
  r.newLine();
  r.rule(Report::kLeft, right, 1);
  r.y += r.lineHeight() * 0.2;
  r.setFont("Arial", 10);
}

void printColumnCells(Report& r, const std::vector<ReportColumn>& columns, const std::vector<std::string>& cells) {
  const double right = reportRight(r);
  for (size_t i = 0; i < columns.size() && i < cells.size(); ++i) {
    const ReportColumn& c = columns[i];
    if (c.rightAligned) r.printRight(cells[i], c.x);
    else r.printAt(c.x, fitText(r, cells[i], roomOf(columns, i, right)));
  }
}

void printLabelled(Report& r, double x, double valueX, const std::string& label, const std::string& value) {
  const double keep = r.lineHeight();
  r.setFont("Arial", 10, true);
  r.printAt(x, label);
  r.setFont("Arial", 10);
  r.printAt(std::max(valueX, r.x + 0.1), value);
  r.y += std::max(keep, r.lineHeight());
}

void printBlank(Report& r, double x, const std::string& label, double right) {
  r.printAt(x, label);
  const double from = r.x + 0.08;
  if (from < right) r.line(from, r.y + r.lineHeight() * 0.9, right, r.y + r.lineHeight() * 0.9, 1);
}

bool writeReportFile(const std::string& path, const std::string& text, Prompter& prompter) {
  if (writeTextBytes(path, text)) return true;
  prompter.message("Unable to Generate Output File", "Error", Icon::Critical);
  return false;
}

std::string reportCsvLine(const std::vector<std::string>& fields) {
  std::string line;
  for (size_t i = 0; i < fields.size(); ++i) line += (i ? "," : "") + csvQuote(fields[i]);
  return line + "\r\n";
}

}  // namespace zy
