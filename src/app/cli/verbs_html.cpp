// The html verb: a stored recipe written as a web page, the page set up as the "Control HTML
// Generation" window last left it, changed for this run by the options (which are not kept).
#include "app/cli/Cli.h"
#include "recipes/RecipeStore.h"
#include "reports/HtmlGenForm.h"

namespace zy::cli {
namespace {

const char* const kUsage =
    "html N FILE [--before F] [--after F] [--title-size 0|1|2] [--add-title TEXT [--title-loc 0|1]] "
    "[--ftp DIR] [--costs] [--no-tag] [--no-return]";

// A choice 0..last given as a whole number.
bool choiceArg(const std::string& text, long last, int& into) {
  long v;
  if (!parseWhole(text, v) || v < 0 || v > last) return false;
  into = static_cast<int>(v);
  return true;
}

int verbHtml(Context& c) {
  long n;
  if (c.args.size() < 2 || !parseWhole(c.args[0], n) || n < 1 || n > 32767) return c.usage(kUsage);
  HtmlGenForm form;
  form.load(c.wb.settings);
  for (size_t i = 2; i < c.args.size(); ++i) {
    const std::string& a = c.args[i];
    const bool hasValue = i + 1 < c.args.size();
    if (a == "--costs") form.chkCosts = true;
    else if (a == "--no-tag") form.chkTag = false;
    else if (a == "--no-return") form.chkReturn = false;
    else if (a == "--before" && hasValue) form.chkBefore = true, form.txtBefore = c.pathArg(++i);
    else if (a == "--after" && hasValue) form.chkAfter = true, form.txtAfter = c.pathArg(++i);
    else if (a == "--ftp" && hasValue) form.chkDownload = true, form.txtFTP = c.args[++i];
    else if (a == "--add-title" && hasValue) form.chkAddTitle = true, form.txtAddTitle = c.args[++i];
    else if (a == "--title-size" && hasValue && choiceArg(c.args[i + 1], 2, form.cboSize)) ++i;
    else if (a == "--title-loc" && hasValue && choiceArg(c.args[i + 1], 1, form.cboAddTitle)) ++i;
    else return c.usage(kUsage);
  }
  if (!form.filesNamed(c.wb.prompter)) return EXIT_REPORTED;
  if (!requireStoredRecipe(c, "html", n) || !loadRecipe(c.wb, n)) return EXIT_REPORTED;
  return generateHTML(c.wb.recipe, c.wb.defaults.maltUnits, form.options(), c.pathArg(1), c.wb.errors)
             ? EXIT_DONE
             : EXIT_REPORTED;
}

VerbRegistrar r1("html", kUsage, verbHtml);

}  // namespace
}  // namespace zy::cli
