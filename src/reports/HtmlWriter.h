#pragma once
// The recipe as a web page: a plain HTML file of the open recipe, its characteristics, its
// ingredients, the mash, fermentation and packaging, aging and comments, with optional pieces of
// the brewer's own page ahead of and behind it. The file is 8-bit text with CR LF line ends.
#include <string>
#include <vector>

#include "recipes/RecipeRecords.h"

namespace zy {

class ErrorLog;

// How the page starts and ends: what the "Control HTML Generation" window offers.
struct HtmlOptions {
  bool tag = true;              // an anchor at the top of the page
  std::string tagName = "Top";  // its name
  bool before = false;          // a file of the brewer's own copied ahead of the title
  std::string beforeFile;
  int titleSize = 0;            // 0 Large, 1 Medium, 2 Small: heading level 1 to 3
  bool addTitle = false;        // a text added to the title
  std::string titleText;
  int titleLoc = 0;             // 0 before the recipe's name, 1 after it
  bool download = false;        // the paragraph that offers the recipe's exchange file
  std::string ftpDir;           // written ahead of the exchange file's name in the link
  bool costs = false;           // the cost row
  bool after = false;           // a file copied behind the recipe
  std::string afterFile;
  bool returnLink = true;       // the link back to the top
};

// A number written without a format: its plain text with the blank of its sign ahead of it
// (none for a negative number, whose minus stands there) and one blank behind it: " 5 ", "-2 ".
std::string printedNumber(double value);

// The name of the recipe's exchange file offered for download: the page's file name without its
// folder, everything from ".htm" on replaced by ".zyr".
std::string downloadName(const std::string& outputPath);

// The page's text for the current recipe. `outputPath` names the download; the lines of the
// insertion files are given (read by generateHTML). The mash and sparge water volumes worked out
// for the page are stored in the recipe's record, as the page states them. `maltUnits` is the
// weight unit of the mash and sparge rates (the default malt unit).
std::string htmlPage(CurrentRecipe& recipe, int maltUnits, const HtmlOptions& o, const std::string& outputPath,
                     const std::vector<std::string>& beforeLines = {},
                     const std::vector<std::string>& afterLines = {});

// Writes the page to `outputPath`. The insertion files are read first, so that an unreadable one
// writes nothing; it, or a file that cannot be written, goes to the error routine. True when the
// page was written whole.
bool generateHTML(CurrentRecipe& recipe, int maltUnits, const HtmlOptions& o, const std::string& outputPath,
                  ErrorLog& errors);

// The lines of a text, cut at CR LF, a lone CR or a lone LF; a last line without an end counts.
std::vector<std::string> textLines(const std::string& text);

}  // namespace zy
