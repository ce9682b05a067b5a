#pragma once
// The print preview ("Print Preview") as a model: the report it shows, the page, the page count,
// the view size, and its commands: the pages, the view size, printing and saving to a file. The
// window draws the page this model names on a page image and follows its enabled states.
#include <string>
#include <vector>

#include "reports/ReportCatalog.h"

namespace zy {

class Prompter;
class SettingsStore;

class PreviewModel {
 public:
  static constexpr const char* kCaption = "Print Preview";
  static constexpr const char* kSaveSection = "Save To File";
  static constexpr const char* kSaveKey = "File Path";
  static constexpr const char* kSaveTitle = "Save Report to CSV File";
  static constexpr const char* kSaveName = "Report.csv";
  static constexpr const char* kSaveFilter = "CSV Files (*.csv)|*.csv|Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
  static constexpr int kMinPercent = 10, kMaxPercent = 150;

  PreviewModel(Prompter& prompter, SettingsStore& settings) : prompter_(prompter), settings_(settings) {}

  // Opens on a report at page 1 of 1 (the count is learnt when the page is drawn). A number
  // outside the program's reports, or a request without a procedure, shows "This Report Not
  // Implemented Yet" under "Reports" and leaves the preview as it was: false then.
  bool open(const ReportRequest& request);
  bool isOpen() const { return static_cast<bool>(request_.draw); }
  const ReportRequest& request() const { return request_; }

  // ---- View size ---------------------------------------------------------------------------
  // The sizes the view size list offers, in percent.
  static const std::vector<int>& viewSizes();
  // The size as the list shows it: "100%".
  static std::string percentText(double scale);
  std::string viewSizeText() const { return percentText(state_.previewScale); }
  double previewScale() const { return state_.previewScale; }
  // A size chosen or typed ("75" or "75%"). Outside 10 to 150 percent: "Scaling Factor Must be
  // Between 10% - 150%", and the old size stays. True when the size was taken.
  bool setViewSize(const std::string& typed);

  // ---- Pages ---------------------------------------------------------------------------------
  int page() const { return state_.page; }
  int pageCount() const { return state_.pageCount; }
  std::string pageText() const;  // "Pg 1 of 3"
  bool previousEnabled() const { return isOpen() && state_.page > 1; }
  bool nextEnabled() const { return isOpen() && state_.page < state_.pageCount; }
  // A step to the next or previous page; false at the ends (nothing changes).
  bool nextPage();
  bool previousPage();

  // Draws the shown page on a page image's target; the page count follows the report.
  void draw(DrawTarget& target);
  // Every page of a report, one sheet each, at the printer's scale of 1. Returns the pages drawn.
  static int printAll(const ReportRequest& request, DrawTarget& target);

  // ---- Save to File ----------------------------------------------------------------------------
  bool saveEnabled() const { return static_cast<bool>(request_.toFile); }
  // A report without a file form: "Function Not Available. Try Export" ("Save to File").
  // Otherwise the file dialog in the folder last used (section "Save To File", "File Path"),
  // ".csv" added to a name typed without an extension, the folder remembered, then the report's
  // file form. True when the file was written.
  bool saveToFile();

  const ReportState& state() const { return state_; }

 private:
  Prompter& prompter_;
  SettingsStore& settings_;
  ReportRequest request_;
  ReportState state_;
};

}  // namespace zy
