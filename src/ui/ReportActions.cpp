#include "ui/ReportActions.h"

#include <QCoreApplication>
#include <QPageSetupDialog>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <memory>

#include "core/ports.h"
#include "core/text.h"
#include "reports/PreviewModel.h"
#include "ui/QtDrawTarget.h"
#include "ui/QtPrompter.h"
#include "ui/frmPreview.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {

struct ReportActionState {
  Workbench* wb = nullptr;
  HelpOpener help;
  QPointer<frmPreview> preview;
  std::unique_ptr<QPrinter> printer;
  bool cleanupRegistered = false;
};

ReportActionState& state() {
  static ReportActionState s;
  return s;
}

// Qt's objects must go before the application does.
void cleanUp() { uninstallReportActions(); }

void bringForward(QWidget& w) {
  if (w.isMinimized()) w.showNormal();
  else w.show();
  w.raise();
  w.activateWindow();
}

// Messages before the program's workbench is known go through a plain message box.
Prompter& prompter() {
  static QtPrompter fallback;
  return state().wb ? state().wb->prompter : static_cast<Prompter&>(fallback);
}

bool printAll(const ReportRequest& request, QPrinter& printer) {
  QtDrawTarget target(printer);
  if (!target.ok()) return false;
  PreviewModel::printAll(request, target);
  return true;
}

}  // namespace

void installReportActions(Workbench& wb, HelpOpener help) {
  ReportActionState& s = state();
  if (s.wb != &wb) delete s.preview.data();
  s.wb = &wb;
  s.help = std::move(help);
  if (s.preview) s.preview->showHelpTopic = s.help;
  if (!s.cleanupRegistered && QCoreApplication::instance()) {
    qAddPostRoutine(cleanUp);
    s.cleanupRegistered = true;
  }
}

void uninstallReportActions() {
  ReportActionState& s = state();
  delete s.preview.data();
  s.preview = nullptr;
  s.printer.reset();
  s.wb = nullptr;
  s.help = {};
}

bool printerInstalled() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

QPrinter& programPrinter() {
  ReportActionState& s = state();
  if (!s.printer) {
    s.printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (!printerInstalled()) {
      s.printer->setOutputFormat(QPrinter::PdfFormat);
      s.printer->setPageSize(QPageSize(QPageSize::Letter));
      s.printer->setPageOrientation(QPageLayout::Portrait);
    }
  }
  return *s.printer;
}

frmPreview* previewWindow(bool create) {
  ReportActionState& s = state();
  if (!s.preview && s.wb && create) {
    s.preview = new frmPreview(*s.wb);
    s.preview->showHelpTopic = s.help;
  }
  return s.preview.data();
}

void previewReport(QWidget*, ReportRequest request) {
  frmPreview* w = previewWindow();
  if (!w) {
    prompter().message(kReportMissingText, kReportMissingTitle);
    return;
  }
  if (w->showReport(request)) bringForward(*w);
}

void printReportNow(QWidget* parent, ReportRequest request) {
  Prompter& p = prompter();
  if (!reportAvailable(request)) {
    p.message(kReportMissingText, kReportMissingTitle);
    return;
  }
  QPrinter& printer = programPrinter();
  if (!printerInstalled()) {
    if (p.message("No printer is installed on this computer.\r\nPrint the report to a PDF file instead?", "Print",
                  Icon::Question, Buttons::YesNo, Answer::Yes) != Answer::Yes)
      return;
    std::optional<std::string> path = p.saveFile("Print to PDF File", "PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*", "Report.pdf");
    if (!path || trim(*path).empty()) return;
    QString file = qs(*path);
    if (!file.contains('.') || file.lastIndexOf('.') < file.lastIndexOf('/')) file += ".pdf";
    if (!printReportToPdf(request, file)) p.message("Unable to Generate Output File", "Error", Icon::Critical);
    return;
  }
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle("Print");
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!printAll(request, printer))
    p.message("The printer could not be started: the report was not printed.", "Print", Icon::Warning);
}

bool printReportToPdf(const ReportRequest& request, const QString& path) {
  QPrinter& shared = programPrinter();
  QPrinter pdf(QPrinter::HighResolution);
  pdf.setOutputFormat(QPrinter::PdfFormat);
  pdf.setPageLayout(shared.pageLayout());
  pdf.setOutputFileName(path);
  return printAll(request, pdf);
}

void pageSetup(QWidget* parent) {
  QPageSetupDialog dialog(&programPrinter(), parent);
  dialog.setWindowTitle("Page Setup");
  if (dialog.exec() != QDialog::Accepted) return;
  frmPreview* w = state().preview.data();
  if (w && w->model().isOpen()) w->refresh();
}

}  // namespace zy
