#pragma once
// Export of an inventory list to CSV and import from CSV, in the present head form
// ("Inventory,Malt,Qty,...", the list's own columns) and in the older one of four categories
// ("Malt,Variety,Qty,Units,Vintage,Type,Color,Extract,Notes"). Both write ZYStatus.log.
#include <optional>
#include <string>
#include <vector>

#include "core/errorlog.h"
#include "core/paths.h"
#include "core/ports.h"
#include "core/settings.h"
#include "inventory/CsvEngine.h"
#include "inventory/InventoryStore.h"

namespace zy {

// What an exchange with a file needs of the platform.
struct ExchangePorts {
  const ProgramFolder& folder;
  Prompter& prompter;
  SettingsStore& settings;
  const Clock& clock;
  ErrorLog& errors;
};

inline constexpr const char* kCsvFilter = "CSV Files (*.csv)|*.csv|Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
inline constexpr const char* kInventorySection = "Inventory";

// The field names and rules of the older head form of a category (index 0 unused); empty for
// "Supplies", which that form did not know.
struct CsvLayout {
  std::vector<std::string> names;
  std::vector<int> rules;
};
CsvLayout olderInventoryLayout(int category);
CsvLayout currentInventoryLayout(int category);

// Writes the list to `path` and the status log; shows "Succesfully Exported N Records". The
// number of records exported, or nothing when the file could not be written.
std::optional<int> exportInventory(const ExchangePorts& p, const InventoryList& list, const std::string& path);
// The end of an export: `text` written to `path`, then the status report closed with the count and
// "No Errors" and the success message; a failed write is reported under `functionName` instead.
// The count, or nothing when the write failed.
std::optional<int> finishExport(const ExchangePorts& p, StatusLog& status, const std::string& path,
                                const std::string& text, int count, const char* functionName);
// The export as the window's menu runs it: asks for the file (kept folder in "File Path").
std::optional<int> mnuFileExport(const ExchangePorts& p, const InventoryList& list);

struct ImportResult {
  int flags = 0;  // of importCsvRecords; 8 for a head of another category; 0 when nothing ran
  int imported = 0;
  int bad = 0;
};

// "WARNING: This will DELETE all the existing <category> Inventory Items!"; true on Yes.
bool confirmInventoryReplace(Prompter& prompter, int category);
// Imports `path` into the category's list (emptying it first when `replace`, once the head
// passed), writes ZYStatus.log and shows the closing message. The caller saves the list.
ImportResult importInventory(const ExchangePorts& p, Inventory& inventory, int category, const std::string& path,
                             bool replace);
// The import as the window's menu runs it: the question of a replacing import, the file dialog.
ImportResult mnuFileImport(const ExchangePorts& p, Inventory& inventory, int category, bool replace);

// Turns the engine's fields of one line into a row of the list (method METHOD_INVENTORY_OLD or
// METHOD_INVENTORY); adds 1 to importedRecords.
void addImportedRecord(CsvEngine& engine, InventoryList& list, int fieldCount, const std::vector<std::string>& names,
                       int method, StatusLog& status);
// Empties the target of a replacing import; the style methods clear nothing and say so.
void clearForReplace(Inventory& inventory, int category, int method, StatusLog& status, Prompter& prompter);

// The cell of an exported line: trimmed, money without digit grouping; in text a comma becomes a
// semicolon, a double quote an apostrophe and a line break a blank, as a bare field cannot hold them.
std::string exportCell(const std::string& cell);
// The folder part of a path, for "File Path".
std::string csvFolderOf(const std::string& path);

}  // namespace zy
