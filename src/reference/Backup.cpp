#include "reference/Backup.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "core/dates.h"
#include "core/records.h"
#include "core/text.h"
#include "recipes/RecipeRecords.h"
#include "styles/StyleTables.h"
#include "batchlog/BatchLogCount.h"

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
const char* const kRestoreDoneTitle = "Restore Zythara Databases";
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

// A folder that exists and takes a new file.
bool writableFolder(const std::string& folder) {
  if (!folderExists(folder)) return false;
  const std::string probe = ProgramFolder::join(folder, ".zythara-write-test");
  std::FILE* f = std::fopen(probe.c_str(), "wb");
  if (!f) return false;
  std::fclose(f);
  std::error_code ec;
  fs::remove(probe, ec);
  return true;
}

bool isRootFolder(const std::string& path) {
  std::string p = trim(path);
  if (p.empty()) return true;
  std::error_code ec;
  fs::path c = fs::weakly_canonical(fs::path(p), ec);
  if (!ec) p = c.string();
  return p.find_first_not_of('/') == std::string::npos;
}

// Remembers the folder of a backup or restore, never the root of the file system.
void rememberFolder(Workbench& wb, const std::string& chosen) {
  const std::string keep = backupPathToStore(chosen);
  if (!isRootFolder(keep)) wb.settings.write(kSection, kBackupPathKey, keep);
}

// Why a file of a backup cannot be restored; empty when it is sound. The recipe, style and batch
// log files are whole fixed records that begin with 200 and end with 299; an inventory file is a
// header beginning with 200, then item records (200 ... 299) each followed by its comment.
std::string fileDamage(const std::string& path, const char* name) {
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f) return "it cannot be read";
  std::string all;
  char buf[65536];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) all.append(buf, n);
  std::fclose(f);
  if (all.empty()) return {};  // a file not created yet is empty to the program
  const std::string_view v(all);
  struct Fixed { const char* name; size_t len; };
  for (Fixed x : {Fixed{kRecipeFile, RecipeRecord::kLength}, Fixed{kRecipeItemsFile, RecipeItemRecord::kLength},
                  Fixed{kCommentFile, RecipeCommentRecord::kLength}, Fixed{kCategoryFile, kCategoryRecordLength},
                  Fixed{kStyleFile, kStyleRecordLength}, Fixed{kBatchLogFile, kBatchLogRecordLength}}) {
    if (std::string(x.name) != name) continue;
    if (all.size() % x.len != 0) return "its last record is not whole";
    for (size_t r = 0; r < all.size() / x.len; ++r)
      if (!controlCodesValid(v.substr(r * x.len, x.len)))
        return "record " + itos(static_cast<long long>(r + 1)) + " has invalid control codes";
    return {};
  }
  // An inventory file.
  const std::string nm(name);
  const size_t itemLen = nm == kInvMaltFile ? 200 : (nm == kInvHopsFile || nm == kInvYeastFile) ? 174 : 170;
  if (all.size() < 74 || getI16(v, 0) != kControlStart) return "its header is not an inventory header";
  size_t at = 74;
  for (long item = 1; at < all.size(); ++item) {
    if (all.size() - at < itemLen + 2 || !controlCodesValid(v.substr(at, itemLen)))
      return "item " + itos(item) + " is not a whole record with valid control codes";
    const int comment = getI16(v, at + itemLen);
    at += itemLen + 2;
    if (comment < 0 || all.size() - at < static_cast<size_t>(comment))
      return "the comment of item " + itos(item) + " is not whole";
    at += static_cast<size_t>(comment);
  }
  return {};
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
  // 1. The folder of the last backup (created when missing) and in it today's folder. When that
  // cannot be made, the program folder's Backups is proposed instead, and the brewer told why.
  const std::string day = formatDate(wb.clock.today(), "yyyy-mm-dd");
  const std::string base = backupPath(wb);
  makeFolders(base);
  std::string dated = ProgramFolder::join(base, day);
  makeFolders(dated);
  if (!writableFolder(dated)) {
    const std::string fallback = ProgramFolder::join(ProgramFolder::join(wb.folder.root(), kBackupsFolder), day);
    makeFolders(fallback);
    wb.prompter.message("The backup folder " + dated + " cannot be created or written to; " + fallback +
                            " is proposed instead.",
                        kBackupAskTitle, Icon::Warning);
    dated = fallback;
  }

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
  rememberFolder(wb, folder);

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
  const std::string backups = ProgramFolder::join(wb.folder.root(), kBackupsFolder);
  std::string start = backupPath(wb);
  if (!folderExists(start)) {
    makeFolders(backups);
    if (start != backups)
      wb.prompter.message("The backup folder " + start + " no longer exists; " + backups + " is proposed instead.",
                          kRestoreDoneTitle, Icon::Warning);
    start = backups;
  }
  std::optional<std::string> chosen = pickFolder(wb, pick, kRestoreTitle, start);
  if (!chosen || trim(*chosen).empty()) return BackupOutcome::Cancelled;
  const std::string folder = *chosen;

  rememberFolder(wb, folder);

  if (!fileExists(ProgramFolder::join(folder, kRecipeFile))) {
    wb.prompter.message("No Backup Files in this Folder, Be Sure to Double-Click the Desired Folder", kRestoreTitle,
                        Icon::Warning);
    return BackupOutcome::Refused;
  }

  // Nothing is overwritten unless the folder holds the whole backup, every file of it sound.
  for (const char* name : kBackupFiles) {
    const std::string path = ProgramFolder::join(folder, name);
    std::string why = fileExists(path) ? fileDamage(path, name) : std::string("it is missing");
    if (!why.empty()) {
      wb.prompter.message("The backup file " + path + " cannot be restored: " + why +
                              ". Nothing was restored; your data files are as they were.",
                          kRestoreDoneTitle, Icon::Warning);
      return BackupOutcome::Refused;
    }
  }

  // The data files as they are now go to a dated folder first, so that any restore can be undone.
  std::string before = ProgramFolder::join(backups, "Before Restore " + formatDate(wb.clock.now(), "yyyy-mm-dd hh.nn"));
  {  // a second restore within the minute keeps the first copy
    const std::string first = before;
    for (int k = 2; folderExists(before) && k < 1000; ++k) before = first + " (" + itos(k) + ")";
  }
  if (!makeFolders(before) || !writableFolder(before)) {
    wb.prompter.message("The folder " + before + " for a copy of the present data files cannot be created. "
                        "Nothing was restored; your data files are as they were.",
                        kRestoreDoneTitle, Icon::Warning);
    return BackupOutcome::Failed;
  }
  makeFolders(wb.folder.dataFolder());
  if (!copyAll(wb, wb.folder.dataFolder(), before, false, kRestoreFn)) return BackupOutcome::Failed;
  if (!copyAll(wb, folder, wb.folder.dataFolder(), false, kRestoreFn)) return BackupOutcome::Failed;
  wb.prompter.message(std::string("The Full Database Restore Has Completed Successfully") + "\r\n" +
                          "    Restart Zythara to Load Restored Databases" + "\r\n\r\n" +
                          "The data files as they were before the restore are kept in " + before,
                      kRestoreDoneTitle, Icon::Information);
  return BackupOutcome::Done;
}

}  // namespace zy
