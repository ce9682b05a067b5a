#pragma once
// The program folder and the names of the data files below it.
#include <string>

namespace zy {

// File names.
inline constexpr const char* kReferenceFolder = "Reference";
inline constexpr const char* kDataFolder = "Data";
inline constexpr const char* kBackupsFolder = "Backups";
inline constexpr const char* kZythEnc = "Zyth.enc";
inline constexpr const char* kZythTocEnc = "ZythTOC.enc";
inline constexpr const char* kZythMbEnc = "ZythMB.enc";
inline constexpr const char* kRecipeFile = "ZYRecipe.dat";
inline constexpr const char* kRecipeItemsFile = "ZYRItems.dat";
inline constexpr const char* kCommentFile = "ZYComment.dat";
inline constexpr const char* kCategoryFile = "ZYCategory.dat";
inline constexpr const char* kStyleFile = "ZYStyle.dat";
inline constexpr const char* kBatchLogFile = "ZYBatchLog.dat";
inline constexpr const char* kInvHopsFile = "ZYInvHops.dat";
inline constexpr const char* kInvMaltFile = "ZYInvMalt.dat";
inline constexpr const char* kInvOtherFile = "ZYInvOther.dat";
inline constexpr const char* kInvYeastFile = "ZYInvYeast.dat";
inline constexpr const char* kInvSuppliesFile = "ZYInvSupplies.dat";
inline constexpr const char* kStatusLog = "ZYStatus.log";
inline constexpr const char* kErrorLog = "ZYError.log";
inline constexpr const char* kProgramName = "Zythara";
inline constexpr const char* kApplicationName = "Zythara 2";

// The version text: major "." minor as "00" "." revision (2.00.1).
std::string versionText();
int versionMajor();
int versionMinor();
int versionRevision();

// Where the program's files live. Full paths are built anew at each call.
class ProgramFolder {
 public:
  explicit ProgramFolder(std::string root = {}) : root_(std::move(root)) {}
  const std::string& root() const { return root_; }
  std::string dataFile(const std::string& name) const { return join(join(root_, kDataFolder), name); }
  std::string referenceFile(const std::string& name) const { return join(join(root_, kReferenceFolder), name); }
  std::string file(const std::string& name) const { return join(root_, name); }
  std::string dataFolder() const { return join(root_, kDataFolder); }
  std::string referenceFolder() const { return join(root_, kReferenceFolder); }
  std::string helpFolder() const { return join(root_, "Help"); }
  // Creates Data/ and Reference/ when missing.
  void ensureFolders() const;

  static std::string join(const std::string& a, const std::string& b);

 private:
  std::string root_;
};

// Chooses the program folder: the folder named by `homeOption` (--home) or the environment's
// ZYTHARA_HOME; else the executable's folder when it holds Reference/Zyth.enc; else the per-user
// data folder ($XDG_DATA_HOME/zythara2 or ~/.local/share/zythara2). A chosen folder without the
// encyclopedia gets the shipped files (Reference/, Help/, the style tables) from
// `installedDataDir`, or from the executable's folder when that one holds them.
std::string chooseProgramFolder(const std::string& homeOption, const std::string& executableDir,
                                const std::string& installedDataDir = {});

// The settings file: `settingsOption` (--settings), else ZYTHARA_SETTINGS, else
// $XDG_CONFIG_HOME/Zythara 2/Zythara 2.ini (or ~/.config/...).
std::string chooseSettingsFile(const std::string& settingsOption);

// The folder of the running executable.
std::string executableDir();

bool fileExists(const std::string& path);
bool folderExists(const std::string& path);
// Copies a file byte for byte; false on any failure.
bool copyFile(const std::string& from, const std::string& to);
bool makeFolders(const std::string& path);

}  // namespace zy
