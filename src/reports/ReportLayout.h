#pragma once
// Small pieces of page layout that the printed lists and forms share: the title block, a row of
// column heads with its rule, texts cut to a column, a label with its value, and the plain text
// file the reports with a file form write.
#include <string>
#include <vector>

#include "reports/ReportEngine.h"

namespace zy {

class Prompter;

// The right edge of the text body: the page's width less the left margin.
double reportRight(Report& r);

// The report's title, centred in 16-point bold, and under it, when given, a subtitle in 10-point
// italic; then a blank line, and the body font (10-point Arial).
void reportTitle(Report& r, const std::string& title, const std::string& subtitle = {});

// A section's heading in 11-point bold, with room for it and `linesAfter` lines below it.
void reportSection(Report& r, const std::string& heading, double linesAfter = 2);

// One column of a table: its head, where it stands, and whether its texts end at `x` (numbers)
// or start there.
struct ReportColumn {
  std::string head;
  double x = 0;
  bool rightAligned = false;
  double width = 0;  // room for a left-aligned text; 0 for up to the next column
};

// The column heads in bold with a thin rule under them; the body font back after.
void printColumnHeads(Report& r, const std::vector<ReportColumn>& columns);
// One row of cells under those heads, each cut to its column's room; stays on the line.
void printColumnCells(Report& r, const std::vector<ReportColumn>& columns, const std::vector<std::string>& cells);
// The text cut so that it fits `width` inches, with "..." where it was cut.
std::string fitText(Report& r, const std::string& text, double width);

// "Label:" in bold at `x`, then the value at `valueX`, and on to the next line.
void printLabelled(Report& r, double x, double valueX, const std::string& label, const std::string& value);

// A line to write on by hand: the label, then a rule from after it to `right`.
void printBlank(Report& r, double x, const std::string& label, double right);

// Writes a report's file form; "Unable to Generate Output File" (title "Error") when it cannot.
bool writeReportFile(const std::string& path, const std::string& text, Prompter& prompter);
// A CSV line of the fields, each prepared by csvQuote, ended by CR LF.
std::string reportCsvLine(const std::vector<std::string>& fields);

}  // namespace zy
