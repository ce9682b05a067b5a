#include "reference/Backup.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "core/dates.h"
#include "core/text.h"

namespace fs = std::filesystem;

namespace zy {

const char* const kBackupFiles[kBackupFileCount] = {
    kRecipeFile,   kRecipeItemsFile, kCommentFile,  kCategoryFile,  kStyleFile,       kBatchLogFile,
    kInvHopsFile,  kInvMaltFile,     kInvOtherFile, kInvYeastFile,  kInvSuppliesFile,
};

namespace {
const char* const kSection = "Settings";
const char* const kBackupPathKey = "Backup Path";
const char* const kBackupTitle = "Backup All Zythara Databases";
const char* const kBackupAskTitle = "Backup Zythara Databases";
const char* const kRestoreTitle = "Restore All Zythara Databases";
const char* const kBackupFn = "frmMain!mnuFileBackupDB_Click";
const char* const kRestoreFn = "frmMain!mnuFileRestoreDB_Click";

bool sameFolder(const std::string& a, const std::string& b) {
  std::error_code ec1, ec2;
  fs::path pa = fs::weakly_canonical(fs::path(a), ec1);
  fs::path pb = fs::weakly_canonical(fs::path(b), ec2);
  if (ec1 || ec2) return a == b;
  std::string sa = pa.string(), sb = pb.string();
  while (sa.size() > 1 && sa.back() == '/') sa.pop_back();
  while (sb.size() > 1 && sb.back() == '/') sb.pop_back();
  return sa == sb;
}

// Copies the eleven files from one folder into another, in their order. A data file that does not
// exist yet is empty to the program, so the backup of it is an empty file; a file missing from a
// backup folder is left as it is in the data folder. A failure goes to the error routine and ends
// the copying.
bool copyAll(Workbench& wb, const std::string& fromDir, const std::string& toDir, bool createMissing,
             const char* functionName) {
  for (int i = 0; i < kBackupFileCount; ++i) {
    const std::string from = ProgramFolder::join(fromDir, kBackupFiles[i]);
    const std::string to = ProgramFolder::join(toDir, kBackupFiles[i]);
    std::error_code ec;
    if (!fs::exists(from, ec)) {
      if (!createMissing) continue;
      std::FILE* f = std::fopen(to.c_str(), "wb");
      if (!f) {
        wb.errors.reportFileError(fileErrorFromErrno(errno, to), i + 1, functionName);
        return false;
      }
      std::fclose(f);
      continue;
    }
    if (fs::exists(to, ec) && fs::equivalent(from, to, ec)) continue;
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, ec);
    if (ec) {
      wb.errors.reportFileError(fileErrorFromErrno(ec.value(), to), i + 1, functionName);
      return false;
    }
  }
  return true;
}

std::optional<std::string> pickFolder(Workbench& wb, const FolderPicker& pick, const std::string& title,
                                      const std::string& initial) {
  if (pick) return pick(title, initial);
  return wb.prompter.chooseFolder(title, initial);
}
}  // namespace

std::string backupPath(const Workbench& wb) {
  std::string stored = wb.settings.read(kSection, kBackupPathKey, "");
  if (trim(stored).empty()) return ProgramFolder::join(wb.folder.root(), kBackupsFolder);
  return stored;
}

std::string backupPathToStore(const std::string& chosen) {
  const std::string mark = std::string("/") + kBackupsFolder;
  size_t at = chosen.find(mark);
  if (at == std::string::npos) return chosen;
  return chosen.substr(0, at + mark.size());
}

BackupOutcome backupAllDatabases(Workbench& wb, const FolderPicker& pick) {
  // 1. The folder of the last backup (created when missing) and in it today's folder.
  const std::string base = backupPath(wb);
  makeFolders(base);
  const std::string dated = ProgramFolder::join(base, formatDate(wb.clock.today(), "yyyy-mm-dd"));
  makeFolders(dated);

  // 2. The user confirms or changes it.
  std::optional<std::string> chosen = pickFolder(wb, pick, kBackupTitle, dated);
  if (!chosen || trim(*chosen).empty()) return BackupOutcome::Cancelled;
  const std::string folder = *chosen;

  // 3. Never into the data folder itself.
  if (sameFolder(folder, wb.folder.dataFolder())) {
    wb.prompter.message("You Cannot Save Backups to the Source Folder", "Invalid Folder Selected", Icon::Warning);
    return BackupOutcome::Refused;
  }

  // 4. Remember the folder.
  wb.settings.write(kSection, kBackupPathKey, backupPathToStore(folder));

  // 5. An earlier backup in the same folder is overwritten only on request.
  if (fileExists(ProgramFolder::join(folder, kRecipeFile))) {
    Answer a = wb.prompter.message("Backup files already exist in this folder.  Overwrite them?", kBackupAskTitle,
                                   Icon::Question, Buttons::YesNo, Answer::No);
    if (a != Answer::Yes) {
      wb.prompter.message("Zythara Database Backup Canceled", kBackupAskTitle, Icon::Information);
      return BackupOutcome::Cancelled;
    }
  }

  // 6. and 7.
  if (!folderExists(folder)) makeFolders(folder);
  if (!copyAll(wb, wb.folder.dataFolder(), folder, true, kBackupFn)) return BackupOutcome::Failed;
  wb.prompter.message("The Full Database Backup Has Completed Successfully", kBackupAskTitle, Icon::Information);
  return BackupOutcome::Done;
}

BackupOutcome restoreAllDatabases(Workbench& wb, const FolderPicker& pick) {
  std::string start = backupPath(wb);
  if (!folderExists(start)) start = ProgramFolder::join(wb.folder.root(), kBackupsFolder);
  std::optional<std::string> chosen = pickFolder(wb, pick, kRestoreTitle, start);
  if (!chosen || trim(*chosen).empty()) return BackupOutcome::Cancelled;
  const std::string folder = *chosen;

  wb.settings.write(kSection, kBackupPathKey, backupPathToStore(folder));

  if (!fileExists(ProgramFolder::join(folder, kRecipeFile))) {
    wb.prompter.message("No Backup Files in this Folder, Be Sure to Double-Click the Desired Folder", kRestoreTitle,
                        Icon::Warning);
    return BackupOutcome::Refused;
  }

  makeFolders(wb.folder.dataFolder());
  if (!copyAll(wb, folder, wb.folder.dataFolder(), false, kRestoreFn)) return BackupOutcome::Failed;
  wb.prompter.message(std::string("The Full Database Restore Has Completed Successfully") + "\r\n" +
                          "    Restart Zythara to Load Restored Databases",
                      "Restore Zythara Databases", Icon::Information);
  return BackupOutcome::Done;
}

}  // namespace zy
