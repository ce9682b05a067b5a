#pragma once
// The style files below Data/: ZYCategory.dat (146-byte records) and ZYStyle.dat (188-byte
// records, each followed by its comment block). Both are loaded whole into the Workbench's
// StyleTables at start and rewritten whole whenever the styles change.
#include <string>
#include <vector>

#include "core/errorlog.h"
#include "core/paths.h"
#include "styles/StyleTables.h"

namespace zy {

class Workbench;

// Fills both tables from the two files (missing files are created empty and give no rows).
// Every row's key is overwritten with its position; a style's Category Index is taken as read.
// Reports through the error routine and goes on:
//   32013 for a category with bad control codes (the row is counted and kept),
//   32015 for a style with bad control codes (counted and kept).
// A file of more than 50 categories or 250 styles is reported with 32014 or 32015 (too many
// styles take the code of a corrupted style), and then the program ends: the next row lies past
// the table, which the error routine reports as error 9 "Subscript out of range" in
// LoadBeerStyles, a terminating error.
// Any other file failure is reported with the procedure name "LoadBeerStyles".
// A trailing piece shorter than a record is not a row. Never reads past the tables.
// Returns false when a file failure stopped the load of either file (the other one still loads).
bool LoadBeerStyles(StyleTables& t, const ProgramFolder& folder, ErrorLog& errors);
bool LoadBeerStyles(Workbench& wb);

// Writes the tables as the two files: rows 0..count-1 whose trimmed name is not blank, with the
// name trimmed in place in the table and the control codes set to 200 and 299. Each file is
// written to a new file beside it and only then put in place of the old one, so a failed write
// leaves the old file as it was. Throws FileError.
void writeStyleFiles(StyleTables& t, const std::string& categoryPath, const std::string& stylePath);

// writeStyleFiles on Data/ZYCategory.dat and Data/ZYStyle.dat; a failure is reported with the
// procedure name "saveBeerStyles". False when the files could not be written.
bool saveBeerStyles(StyleTables& t, const ProgramFolder& folder, ErrorLog& errors);
bool saveBeerStyles(Workbench& wb);

// One entry of the style browser's list, as the loader builds it for each sound style row:
// key "B" and the row number ("B0"), the category's label, the source name, the trimmed name.
struct StyleBrowserEntry {
  int row = 0;
  std::string key;
  std::string categoryText;
  std::string sourceName;
  std::string styleName;
};
StyleBrowserEntry styleBrowserEntry(const StyleTables& t, int row);

}  // namespace zy
