#include "reports/PreviewModel.h"

#include <cmath>

#include "core/numfmt.h"
#include "core/paths.h"
#include "core/ports.h"
#include "core/settings.h"
#include "core/text.h"

namespace zy {

bool PreviewModel::open(const ReportRequest& request) {
  if (!reportAvailable(request)) {
    prompter_.message(kReportMissingText, kReportMissingTitle);
    return false;
  }
  request_ = request;
  state_.page = 1;
  state_.pageCount = 1;
  return true;
}

const std::vector<int>& PreviewModel::viewSizes() {
  static const std::vector<int> sizes = {10, 25, 50, 75, 100, 125, 150};
  return sizes;
}

std::string PreviewModel::percentText(double scale) { return formatNumber(scale * 100.0, "0") + "%"; }

bool PreviewModel::setViewSize(const std::string& typed) {
  const double percent = lenientValue(trim(typed));
  if (!(percent >= kMinPercent && percent <= kMaxPercent)) {
    prompter_.message("Scaling Factor Must be Between 10% - 150%", kCaption, Icon::Information);
    return false;
  }
  state_.previewScale = percent / 100.0;
  return true;
}

std::string PreviewModel::pageText() const {
  return "Pg " + plainText(state_.page) + " of " + plainText(state_.pageCount);
}

bool PreviewModel::nextPage() {
  if (!nextEnabled()) return false;
  ++state_.page;
  return true;
}

bool PreviewModel::previousPage() {
  if (!previousEnabled()) return false;
  --state_.page;
  return true;
}

void PreviewModel::draw(DrawTarget& target) {
  if (!isOpen()) return;
  runReport(request_.draw, target, state_, state_.page);
  if (state_.page > state_.pageCount) state_.page = state_.pageCount;
}

int PreviewModel::printAll(const ReportRequest& request, DrawTarget& target) {
  if (!request.draw) return 0;
  ReportState paper;  // the printer draws at 1.0 whatever the view
  return runReport(request.draw, target, paper, 0);
}

bool PreviewModel::saveToFile() {
  if (!isOpen()) return false;
  if (!request_.toFile) {
    prompter_.message("Function Not Available. Try Export", "Save to File");
    return false;
  }
  const std::string folder = settings_.read(kSaveSection, kSaveKey, "");
  std::optional<std::string> path =
      prompter_.saveFile(kSaveTitle, kSaveFilter, folder.empty() ? kSaveName : ProgramFolder::join(folder, kSaveName));
  if (!path || trim(*path).empty()) return false;
  std::string file = *path;
  const size_t slash = file.find_last_of("/\\");
  const size_t dot = file.find_last_of('.');
  if (dot == std::string::npos || (slash != std::string::npos && dot < slash)) file += ".csv";
  settings_.write(kSaveSection, kSaveKey, slash == std::string::npos ? std::string() : file.substr(0, slash));
  return request_.toFile(file);
}

}  // namespace zy
