#pragma once
// The printed batch log: the whole log as its window shows it (the brew's date and status, the
// mash steps and readings of the mash, the boil, the fermentation readings, the packaging and
// the general comments), with the mash efficiency actually reached, which only the printed log
// shows. Its file form writes the same as comma-separated text.
#include <string>

#include "reports/ReportCatalog.h"

namespace zy {

class BatchLogEditor;
class Prompter;

inline constexpr const char* kBatchLogReportTitle = "Zythara Batch Log";

// The log in the editor, of the recipe named `recipeName`.
ReportProc printBatchLogReport(const BatchLogEditor& editor, const std::string& recipeName);

// The file form: one line per field, its label and its value; a line per mash step and per
// reading; the comments last. CR LF line ends. False, after "Unable to Generate Output File",
// when the file cannot be written.
std::string batchLogReportText(const BatchLogEditor& editor, const std::string& recipeName);
bool printBatchLogReportToFile(const std::string& path, const BatchLogEditor& editor, const std::string& recipeName,
                               Prompter& prompter);

// Report 6 with its file form.
ReportRequest batchLogReportRequest(const BatchLogEditor& editor, const std::string& recipeName, Prompter& prompter);

}  // namespace zy
