#include "reports/HtmlGenForm.h"

#include <tuple>

#include "core/settings.h"
#include "recipes/RecipeExchange.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {

bool readFlag(const SettingsStore& s, const char* key, bool fallback) {
  return readLong(s, HtmlGenForm::kSection, key, fallback ? 1 : 0) != 0;
}
int readChoice(const SettingsStore& s, const char* key, int count) {
  const long v = readLong(s, HtmlGenForm::kSection, key, 0);
  return v >= 0 && v < count ? static_cast<int>(v) : 0;
}
std::string flag(bool on) { return on ? "1" : "0"; }

std::string folderOf(const std::string& path) {
  const size_t cut = path.find_last_of("/\\");
  return cut == std::string::npos ? std::string() : path.substr(0, cut);
}

}  // namespace

void HtmlGenForm::load(const SettingsStore& s) {
  const char* sec = kSection;
  htmlPath = s.read(sec, "HTML Path", "");
  importPath = s.read(sec, "Import Path", "");
  chkTag = readFlag(s, "HREF Check", true);
  txtTag = s.read(sec, "HREF Tag", "Top");
  chkBefore = readFlag(s, "Before Check", false);
  txtBefore = s.read(sec, "Before File", "");
  cboSize = readChoice(s, "Title Size", 3);
  chkAddTitle = readFlag(s, "Add Title Check", false);
  txtAddTitle = s.read(sec, "Title Text", "");
  cboAddTitle = readChoice(s, "Title Text Loc", 2);
  chkDownload = readFlag(s, "FTP Check", false);
  txtFTP = s.read(sec, "FTP Dir", "");
  chkCosts = readFlag(s, "Include Costs", false);
  chkAfter = readFlag(s, "After Check", false);
  txtAfter = s.read(sec, "After File", "");
  chkReturn = readFlag(s, "Return Check", true);
  chkShortName = readFlag(s, "Short Filename", false);
  chkUnixName = readFlag(s, "Unix Filename", true);
}

void HtmlGenForm::save(SettingsStore& s) const {
  const char* sec = kSection;
  s.write(sec, "HTML Path", htmlPath);
  s.write(sec, "Import Path", importPath);
  s.write(sec, "HREF Check", flag(chkTag));
  s.write(sec, "HREF Tag", txtTag);
  s.write(sec, "Before Check", flag(chkBefore));
  s.write(sec, "Before File", txtBefore);
  s.write(sec, "Title Size", std::to_string(cboSize));
  s.write(sec, "Add Title Check", flag(chkAddTitle));
  s.write(sec, "Title Text", txtAddTitle);
  s.write(sec, "Title Text Loc", std::to_string(cboAddTitle));
  s.write(sec, "FTP Check", flag(chkDownload));
  s.write(sec, "FTP Dir", txtFTP);
  s.write(sec, "Include Costs", flag(chkCosts));
  s.write(sec, "After Check", flag(chkAfter));
  s.write(sec, "After File", txtAfter);
  s.write(sec, "Return Check", flag(chkReturn));
  s.write(sec, "Short Filename", flag(chkShortName));
  s.write(sec, "Unix Filename", flag(chkUnixName));
}

HtmlOptions HtmlGenForm::options() const {
  HtmlOptions o;
  o.tag = chkTag;
  o.tagName = txtTag;
  o.before = chkBefore;
  o.beforeFile = txtBefore;
  o.titleSize = cboSize;
  o.addTitle = chkAddTitle;
  o.titleText = txtAddTitle;
  o.titleLoc = cboAddTitle;
  o.download = chkDownload;
  o.ftpDir = txtFTP;
  o.costs = chkCosts;
  o.after = chkAfter;
  o.afterFile = txtAfter;
  o.returnLink = chkReturn;
  return o;
}

std::string HtmlGenForm::proposedFileName(const std::string& recipeName) const {
  return (chkShortName ? shortFileName(recipeName) : safeFileName(recipeName, chkUnixName)) + ".htm";
}

bool HtmlGenForm::filesNamed(Prompter& prompter) const {
  for (const auto& [on, file, where] : {std::tuple{chkBefore, &txtBefore, "Before Recipe Title"},
                                        std::tuple{chkAfter, &txtAfter, "After Recipe Title"}}) {
    if (on && file->empty()) {
      prompter.message(std::string("No File Specified for ") + where, "Missing Filename", Icon::Warning, Buttons::OK);
      return false;
    }
  }
  return true;
}

HtmlGenForm::Outcome HtmlGenForm::cmdGenerate(Workbench& wb) {
  // 1. A file to insert must be named; the file ahead of the recipe is asked for first.
  if (!filesNamed(wb.prompter)) return Outcome::MissingFile;
  // 2. and 3. The proposed name, the dialog in the folder of the last page.
  const std::string proposed = proposedFileName(wb.recipe.rec.recipeName);
  const std::string initial = htmlPath.empty() ? proposed : htmlPath + "/" + proposed;
  const auto chosen = wb.prompter.saveFile(kSaveTitle, kSaveFilter, initial);
  if (!chosen || chosen->empty()) return Outcome::Cancelled;
  std::string path = *chosen;
  const size_t slash = path.find_last_of("/\\");
  if (path.find('.', slash == std::string::npos ? 0 : slash + 1) == std::string::npos) path += ".htm";

  // 4. The page; the folder and the window's settings are kept first, so that neither is lost
  // should a failure end the program.
  htmlPath = folderOf(path);
  save(wb.settings);
  if (!generateHTML(wb.recipe, wb.defaults.maltUnits, options(), path, wb.errors)) return Outcome::Failed;
  return Outcome::Written;
}

bool HtmlGenForm::browse(Workbench& wb, std::string& into, const char* title) {
  const auto chosen = wb.prompter.openFile(title, kBrowseFilter, importPath);
  if (!chosen || chosen->empty()) return false;
  into = *chosen;
  importPath = folderOf(*chosen);
  wb.settings.write(kSection, "Import Path", importPath);
  return true;
}

}  // namespace zy
