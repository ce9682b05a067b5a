#pragma once
// The calls every window makes for its printed reports, one line each:
//   previewReport(this, request);   // the print preview on the report
//   printReportNow(this, request);  // the print dialog, then every page on the printer
//   pageSetup(this);                // paper, orientation and margins
// All three share one printer for the whole program, so a page set up once is the page every
// report previews and prints on. The program installs them once at start (ProgramWindows does).
#include <QString>

#include "reports/ReportCatalog.h"
#include "ui/HelpButton.h"

class QPrinter;
class QWidget;

namespace zy {

class Workbench;
class frmPreview;

// Makes the calls ready for the program's workbench; `help` opens a help page in the help window.
void installReportActions(Workbench& wb, HelpOpener help = {});
// Closes the preview and forgets the workbench (the program's end, a test's end).
void uninstallReportActions();

// The program's printer. With no printer installed it prints to PDF files on letter paper
// (8.5 x 11 inches), which is also the page the preview then shows.
QPrinter& programPrinter();
bool printerInstalled();

// The preview window, made on first use unless `create` is false; null before
// installReportActions.
frmPreview* previewWindow(bool create = true);

// Opens the preview (or brings the open one forward) on the report.
void previewReport(QWidget* parent, ReportRequest request);
// The print dialog on the program's printer, then every page at scale 1.0, one sheet each. With
// no printer installed the brewer is told so and may print to a PDF file instead.
void printReportNow(QWidget* parent, ReportRequest request);
// The page setup dialog ("Page Setup") on the program's printer; an open preview redraws.
void pageSetup(QWidget* parent);

// Every page of the report into a PDF file on the program's paper, without a dialog. False when
// the file could not be written.
bool printReportToPdf(const ReportRequest& request, const QString& path);

}  // namespace zy
