#pragma once
// Backup and restore of all eleven data files (File menu of the main window), and the
// folder rules they share with the setting "Backup Path" of section "Settings".
#include <functional>
#include <optional>
#include <string>

#include "workbench/Workbench.h"

namespace zy {

// The data files, in copying order.
constexpr int kBackupFileCount = 11;
extern const char* const kBackupFiles[kBackupFileCount];

// The folder picker dlgSelectFolder: title and proposed folder in, chosen folder or a cancel out.
using FolderPicker = std::function<std::optional<std::string>(const std::string& title, const std::string& initial)>;

// "Backup Path" as stored, else the folder Backups of the program folder.
std::string backupPath(const Workbench& wb);
// What "Backup Path" keeps of a chosen folder: the path up to and including "/Backups" when it
// holds that text, else the whole path.
std::string backupPathToStore(const std::string& chosen);

enum class BackupOutcome { Done, Cancelled, Refused, Failed };

// mnuFileBackupDB. Without a picker the workbench's prompter chooses the folder.
BackupOutcome backupAllDatabases(Workbench& wb, const FolderPicker& pick = {});
// mnuFileRestoreDB. The tables in memory are not reloaded.
BackupOutcome restoreAllDatabases(Workbench& wb, const FolderPicker& pick = {});

}  // namespace zy
