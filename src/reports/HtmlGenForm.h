#pragma once
// "Control HTML Generation": how the web page of the open recipe starts and ends, the file name
// it proposes, and the generation itself. Everything the window offers is kept in the settings
// section "HTMLgen", read when the window opens and written when it closes.
#include <string>

#include "reports/HtmlWriter.h"

namespace zy {

class Prompter;
class SettingsStore;
class Workbench;

struct HtmlGenForm {
  static constexpr const char* kCaption = "Control HTML Generation";
  static constexpr const char* kSection = "HTMLgen";
  static constexpr const char* kSaveTitle = "Generate HTML";
  static constexpr const char* kSaveFilter = "HTML Files (*.htm)|*.htm*|All Files (*.*)|*.*";
  static constexpr const char* kBrowseFilter = "HTML Files (*.htm)|*.htm*|Text Files (*.txt)|*.txt|All Files (*.*)|*.*";

  std::string htmlPath;    // folder of the last generated page
  std::string importPath;  // folder of the last file picked for insertion
  bool chkTag = true;
  std::string txtTag = "Top";
  bool chkBefore = false;
  std::string txtBefore;
  int cboSize = 0;  // "Large", "Medium", "Small"
  bool chkAddTitle = false;
  std::string txtAddTitle;
  int cboAddTitle = 0;  // "Before Title", "After Title"
  bool chkDownload = false;
  std::string txtFTP;
  bool chkCosts = false;
  bool chkAfter = false;
  std::string txtAfter;
  bool chkReturn = true;
  bool chkShortName = false;
  bool chkUnixName = true;

  // The window's load and unload.
  void load(const SettingsStore& s);
  void save(SettingsStore& s) const;

  HtmlOptions options() const;
  // The file name offered for the page of a recipe: the short form wins over the Unix form.
  std::string proposedFileName(const std::string& recipeName) const;

  // The insertion files that are ticked must be named; tells the first one missing (the file
  // ahead of the recipe first) and gives false.
  bool filesNamed(Prompter& prompter) const;

  enum class Outcome { MissingFile, Cancelled, Written, Failed };
  // The Generate button: the check of the insertion files, the save dialog, the page. Written
  // means the window closes.
  Outcome cmdGenerate(Workbench& wb);
  // The Browse buttons: a file to insert into txtBefore or txtAfter; false on Cancel.
  bool cmdBefore(Workbench& wb) { return browse(wb, txtBefore, "Insert Before Recipe"); }
  bool cmdAfter(Workbench& wb) { return browse(wb, txtAfter, "Insert After Recipe"); }

 private:
  bool browse(Workbench& wb, std::string& into, const char* title);
};

}  // namespace zy
