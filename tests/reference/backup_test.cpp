// Backup and restore of the eleven data files, also when folders are gone and backups are
// partial or damaged.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/paths.h"
#include "recipes/RecipeRecords.h"
#include "reference/Backup.h"
#include "support/TestSupport.h"

namespace fs = std::filesystem;

namespace zy::test {
namespace {

const char* const kOrder[] = {"ZYRecipe.dat",  "ZYRItems.dat",   "ZYComment.dat",  "ZYCategory.dat",
                              "ZYStyle.dat",   "ZYBatchLog.dat", "ZYInvHops.dat",  "ZYInvMalt.dat",
                              "ZYInvOther.dat", "ZYInvYeast.dat", "ZYInvSupplies.dat"};

// Notes each question (title and proposed folder) and answers `folder`, or the proposed one.
FolderPicker confirm(std::vector<std::pair<std::string, std::string>>& asked, std::optional<std::string> folder = {}) {
  return [&asked, folder](const std::string& title, const std::string& initial) -> std::optional<std::string> {
    asked.emplace_back(title, initial);
    return folder ? folder : initial;
  };
}

std::string backupPathSetting(Bench& b) { return b.settings.read("Settings", "Backup Path", "<none>"); }

// Notes the proposed folder and gives `answer`.
FolderPicker remember(std::string& proposed, std::optional<std::string> answer = {}) {
  return [&proposed, answer](const std::string&, const std::string& initial) -> std::optional<std::string> {
    proposed = initial;
    return answer;
  };
}

FolderPicker choose(const std::string& folder) {
  return [folder](const std::string&, const std::string&) -> std::optional<std::string> { return folder; };
}

TEST(Backup, ADayIsBackedUpOnceAndOverwrittenOnlyOnRequest) {
  Bench b;
  Workbench& wb = *b.wb;
  writeFile(wb.folder.dataFile("ZYRecipe.dat"), "recipes v1");
  writeFile(wb.folder.dataFile("ZYInvSupplies.dat"), "supplies");
  std::vector<std::pair<std::string, std::string>> asked;

  EXPECT_EQ(backupAllDatabases(wb, confirm(asked)), BackupOutcome::Done);
  const std::string dated = b.dir.path() + "/Backups/2026-11-22";
  EXPECT_EQ(asked, (std::vector<std::pair<std::string, std::string>>{{"Backup All Zythara Databases", dated}}));
  for (const char* f : kOrder) EXPECT_TRUE(fileExists(dated + "/" + f)) << f;
  // A file not created yet is empty to the program.
  EXPECT_EQ(readFile(dated + "/ZYRecipe.dat") + "|" + readFile(dated + "/ZYInvSupplies.dat") + "|" +
                readFile(dated + "/ZYBatchLog.dat"),
            "recipes v1|supplies|");
  EXPECT_EQ(backupPathSetting(b), b.dir.path() + "/Backups");
  const std::string done = "Backup Zythara Databases: The Full Database Backup Has Completed Successfully";
  EXPECT_EQ(shownLines(b.prompter), std::vector<std::string>{done});

  // The second backup of the day asks; No copies nothing.
  writeFile(wb.folder.dataFile("ZYRecipe.dat"), "recipes v2");
  b.prompter.answers = {Answer::No};
  EXPECT_EQ(backupAllDatabases(wb, confirm(asked)), BackupOutcome::Cancelled);
  EXPECT_EQ(shownLines(b.prompter),
            (std::vector<std::string>{done, "Backup Zythara Databases: Backup files already exist in this folder.  Overwrite them?",
                                      "Backup Zythara Databases: Zythara Database Backup Canceled"}));
  EXPECT_TRUE(b.prompter.shown[1].buttons == Buttons::YesNo && readFile(dated + "/ZYRecipe.dat") == "recipes v1");

  b.prompter.answers = {Answer::Yes};
  EXPECT_EQ(backupAllDatabases(wb, confirm(asked)), BackupOutcome::Done);
  EXPECT_EQ(readFile(dated + "/ZYRecipe.dat"), "recipes v2");
  EXPECT_EQ(shownLines(b.prompter).back(), done);
}

TEST(Backup, FoldersThatAreRefusedOrCancelled) {
  Bench b;
  Workbench& wb = *b.wb;
  writeFile(wb.folder.dataFile("ZYRecipe.dat"), "r");
  // The data folder itself, written another way.
  EXPECT_EQ(backupAllDatabases(wb, choose(b.dir.path() + "/Data/")), BackupOutcome::Refused);
  EXPECT_EQ(shownLines(b.prompter),
            std::vector<std::string>{"Invalid Folder Selected: You Cannot Save Backups to the Source Folder"});
  EXPECT_EQ(backupPathSetting(b), "<none>");

  // A cancelled dialog: nothing more.
  FolderPicker cancel = [](const std::string&, const std::string&) -> std::optional<std::string> { return {}; };
  EXPECT_TRUE(backupAllDatabases(wb, cancel) == BackupOutcome::Cancelled && b.prompter.shown.size() == 1u);
  // Without a picker the prompter's folder dialog is asked (and the script cancels it).
  EXPECT_TRUE(backupAllDatabases(wb) == BackupOutcome::Cancelled &&
              b.prompter.shown.back().title == "Backup All Zythara Databases");

  // A folder of its own is kept whole; one below a Backups folder is kept up to "/Backups".
  EXPECT_EQ(backupAllDatabases(wb, choose(b.dir.path() + "/mine")), BackupOutcome::Done);
  EXPECT_EQ(backupPathSetting(b), b.dir.path() + "/mine");
  EXPECT_EQ(backupPathToStore("/home/x/Backups/2026-11-22") + "|" + backupPathToStore("/home/x/backups/2026-11-22"),
            "/home/x/Backups|/home/x/backups/2026-11-22");
  // The next backup starts from the remembered folder.
  std::vector<std::pair<std::string, std::string>> asked;
  backupAllDatabases(wb, confirm(asked));
  EXPECT_EQ(asked[0].second, b.dir.path() + "/mine/2026-11-22");
}

TEST(Backup, FilesAreCopiedInTheirOrderUntilOneFails) {
  Bench b;
  Workbench& wb = *b.wb;
  for (const char* f : kOrder) writeFile(wb.folder.dataFile(f), f);
  const std::string target = b.dir.path() + "/blocked";
  fs::create_directories(target + "/ZYStyle.dat");  // the fifth file cannot be written
  EXPECT_THROW(backupAllDatabases(wb, choose(target)), Terminated);
  std::string copied;
  for (const char* f : kOrder) copied += fs::is_regular_file(target + "/" + f) ? readFile(target + "/" + f) + "," : "";
  EXPECT_EQ(copied, "ZYRecipe.dat,ZYRItems.dat,ZYComment.dat,ZYCategory.dat,");
}

TEST(Restore, FromABackupFolderWithItsRestartMessage) {
  Bench b;
  Workbench& wb = *b.wb;
  writeFile(wb.folder.dataFile("ZYRecipe.dat"), "current");
  writeFile(wb.folder.dataFile("ZYInvHops.dat"), "current hops");

  // A folder without ZYRecipe.dat is refused and nothing changes.
  const std::string empty = b.dir.path() + "/Backups/empty";
  fs::create_directories(empty);
  writeFile(empty + "/ZYInvHops.dat", "old hops");
  std::vector<std::pair<std::string, std::string>> asked;
  EXPECT_EQ(restoreAllDatabases(wb, confirm(asked, empty)), BackupOutcome::Refused);
  EXPECT_EQ(asked, (std::vector<std::pair<std::string, std::string>>{
                       {"Restore All Zythara Databases", b.dir.path() + "/Backups"}}));
  EXPECT_EQ(shownLines(b.prompter),
            std::vector<std::string>{"Restore All Zythara Databases: No Backup Files in this Folder, Be Sure to "
                                     "Double-Click the Desired Folder"});
  EXPECT_EQ(readFile(wb.folder.dataFile("ZYInvHops.dat")), "current hops");
  EXPECT_EQ(backupPathSetting(b), b.dir.path() + "/Backups");

  // A whole backup of sound files comes back into Data.
  const std::string saved = b.dir.path() + "/Backups/2026-11-01";
  fs::create_directories(saved);
  for (const char* f : kOrder) writeFile(saved + "/" + f, "");
  const std::string record = RecipeRecord{}.encode();
  writeFile(saved + "/ZYRecipe.dat", record);
  EXPECT_EQ(restoreAllDatabases(wb, choose(saved)), BackupOutcome::Done);
  EXPECT_EQ(readFile(wb.folder.dataFile("ZYRecipe.dat")) + readFile(wb.folder.dataFile("ZYInvHops.dat")), record);
  const std::string before = b.dir.path() + "/Backups/Before Restore 2026-11-22 10.30";
  EXPECT_EQ(b.prompter.shown.back().text,
            "The Full Database Restore Has Completed Successfully\r\n    Restart Zythara to Load Restored Databases"
            "\r\n\r\nThe data files as they were before the restore are kept in " + before);
  EXPECT_EQ(readFile(before + "/ZYRecipe.dat") + "|" + readFile(before + "/ZYInvHops.dat"), "current|current hops");
}

// When folders are gone and backups are partial or damaged.
TEST(BackupFaults, AFolderThatCannotBeMadeProposesTheProgramsBackupsAndNeverTheRoot) {
  Bench b;
  Workbench& wb = *b.wb;
  writeFile(b.dir.file("plain-file"), "x");
  const std::string gone = b.dir.file("plain-file/Backups");  // below a file: cannot be made
  b.settings.write("Settings", "Backup Path", gone);
  std::string proposed;
  EXPECT_EQ(backupAllDatabases(wb, remember(proposed)), BackupOutcome::Cancelled);
  const std::string fallback = b.dir.path() + "/Backups/2026-11-22";
  EXPECT_TRUE(proposed == fallback && fs::is_directory(fallback)) << proposed;
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
    EXPECT_EQ(restoreAllDatabases(wb, choose(saved)), BackupOutcome::Refused);
    EXPECT_EQ(shownLines(b.prompter).back(), "Restore Zythara Databases: The backup file " + saved + "/" + c.file +
                                                 " cannot be restored: " + c.why +
                                                 ". Nothing was restored; your data files are as they were.");
    EXPECT_EQ(readFile(wb.folder.dataFile("ZYRecipe.dat")), "current") << c.file;
    EXPECT_FALSE(fs::exists(b.dir.path() + "/Backups/Before Restore 2026-11-22 10.30")) << c.file;
  }
}

}  // namespace
}  // namespace zy::test
