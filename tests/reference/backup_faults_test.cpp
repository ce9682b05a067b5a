// Backup and restore when folders are gone and backups are partial or damaged.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/paths.h"
#include "recipes/RecipeRecords.h"
#include "reference/Backup.h"
#include "support/TestSupport.h"

namespace fs = std::filesystem;

namespace zy::test {
namespace {

FolderPicker remember(std::string& proposed, std::optional<std::string> answer = {}) {
  return [&proposed, answer](const std::string&, const std::string& initial) -> std::optional<std::string> {
    proposed = initial;
    return answer;
  };
}

TEST(BackupFaults, AFolderThatCannotBeMadeProposesTheProgramsBackupsAndNeverTheRoot) {
  Bench b;
  Workbench& wb = *b.wb;
  writeFile(b.dir.file("plain-file"), "x");
  const std::string gone = b.dir.file("plain-file/Backups");  // below a file: cannot be made
  b.settings.write("Settings", "Backup Path", gone);
  std::string proposed;
  EXPECT_EQ(backupAllDatabases(wb, remember(proposed)), BackupOutcome::Cancelled);
  const std::string fallback = b.dir.path() + "/Backups/2026-11-22";
  EXPECT_EQ(proposed, fallback);
  EXPECT_TRUE(fs::is_directory(fallback));
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>{"Backup Zythara Databases: The backup folder " + gone +
                                                             "/2026-11-22 cannot be created or written to; " +
                                                             fallback + " is proposed instead."});

  // Restore from a stored folder that is gone proposes Backups; the root is never remembered.
  EXPECT_EQ(restoreAllDatabases(wb, remember(proposed, std::string("/"))), BackupOutcome::Refused);
  EXPECT_EQ(proposed, b.dir.path() + "/Backups");
  EXPECT_EQ(b.prompter.shown[1].text,
            "The backup folder " + gone + " no longer exists; " + b.dir.path() + "/Backups is proposed instead.");
  EXPECT_EQ(b.settings.read("Settings", "Backup Path", ""), gone);
}

TEST(RestoreFaults, AMissingOrDamagedFileStopsTheRestoreBeforeAnythingChanges) {
  const std::string recipe = RecipeRecord{}.encode();
  std::string badCode = recipe;
  badCode[recipe.size() - 2] = 0;  // the end code 299 damaged
  std::string inventory = std::string("\xC8\x00\r", 3) + std::string(70, ' ') + "\x1A";  // a header only
  const struct { const char* file; std::string bytes; const char* why; } cases[] = {
      {"ZYInvSupplies.dat", "<missing>", "it is missing"},
      {"ZYRecipe.dat", recipe + "abc", "its last record is not whole"},
      {"ZYRecipe.dat", recipe + badCode, "record 2 has invalid control codes"},
      {"ZYStyle.dat", std::string(188, 'x'), "record 1 has invalid control codes"},
      {"ZYInvMalt.dat", "junk", "its header is not an inventory header"},
      {"ZYInvHops.dat", inventory + std::string(10, '\0'), "item 1 is not a whole record with valid control codes"},
  };
  for (const auto& c : cases) {
    Bench b;
    Workbench& wb = *b.wb;
    writeFile(wb.folder.dataFile("ZYRecipe.dat"), "current");
    const std::string saved = b.dir.path() + "/saved";
    fs::create_directories(saved);
    for (const char* f : kBackupFiles) writeFile(saved + "/" + f, std::string(f).rfind("ZYInv", 0) == 0 ? inventory : "");
    writeFile(saved + "/ZYRecipe.dat", recipe);
    if (c.bytes == "<missing>") fs::remove(saved + "/" + c.file);
    else writeFile(saved + "/" + c.file, c.bytes);
    EXPECT_EQ(restoreAllDatabases(wb, [&](const std::string&, const std::string&) { return saved; }),
              BackupOutcome::Refused);
    EXPECT_EQ(shownLines(b.prompter).back(), "Restore Zythara Databases: The backup file " + saved + "/" + c.file +
                                                 " cannot be restored: " + c.why +
                                                 ". Nothing was restored; your data files are as they were.");
    EXPECT_EQ(readFile(wb.folder.dataFile("ZYRecipe.dat")), "current") << c.file;
    EXPECT_FALSE(fs::exists(b.dir.path() + "/Backups/Before Restore 2026-11-22 10.30")) << c.file;
  }
}

}  // namespace
}  // namespace zy::test
