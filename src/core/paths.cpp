#include "core/paths.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace zy {

#ifndef ZY_VERSION_MAJOR
#define ZY_VERSION_MAJOR 2
#define ZY_VERSION_MINOR 0
#define ZY_VERSION_REVISION 1
#endif

int versionMajor() { return ZY_VERSION_MAJOR; }
int versionMinor() { return ZY_VERSION_MINOR; }
int versionRevision() { return ZY_VERSION_REVISION; }

std::string versionText() {
  std::string minor = std::to_string(versionMinor());
  if (minor.size() < 2) minor = "0" + minor;
  return std::to_string(versionMajor()) + "." + minor + "." + std::to_string(versionRevision());
}

std::string ProgramFolder::join(const std::string& a, const std::string& b) {
  if (a.empty()) return b;
  if (a.back() == '/') return a + b;
  return a + "/" + b;
}

void ProgramFolder::ensureFolders() const {
  makeFolders(dataFolder());
  makeFolders(referenceFolder());
}

bool fileExists(const std::string& path) {
  std::error_code ec;
  return !path.empty() && fs::is_regular_file(path, ec);
}

bool folderExists(const std::string& path) {
  std::error_code ec;
  return !path.empty() && fs::is_directory(path, ec);
}

bool copyFile(const std::string& from, const std::string& to) {
  std::error_code ec;
  fs::copy_file(from, to, fs::copy_options::overwrite_existing, ec);
  return !ec;
}

bool makeFolders(const std::string& path) {
  std::error_code ec;
  fs::create_directories(path, ec);
  return folderExists(path);
}

std::string executableDir() {
  std::error_code ec;
  fs::path p = fs::read_symlink("/proc/self/exe", ec);
  if (ec) return fs::current_path(ec).string();
  return p.parent_path().string();
}

namespace {
std::string envOr(const char* name) {
  const char* v = std::getenv(name);
  return v ? std::string(v) : std::string();
}

std::string userFolder(const char* xdgVar, const char* fallback) {
  std::string base = envOr(xdgVar);
  if (base.empty()) {
    std::string home = envOr("HOME");
    if (home.empty()) home = "/tmp";
    base = home + "/" + fallback;
  }
  return base;
}

// Gives a program folder the files the program ships, where they are missing: the encyclopedia,
// the help and the style tables. The brewer's own data files are never copied.
void seed(const std::string& root, const std::string& shipped) {
  if (shipped.empty() || !folderExists(shipped)) return;
  std::error_code ec;
  for (const char* sub : {kReferenceFolder, "Help"}) {
    fs::path src = fs::path(shipped) / sub;
    if (!fs::is_directory(src, ec)) continue;
    fs::path dst = fs::path(root) / sub;
    fs::create_directories(dst, ec);
    for (auto& e : fs::recursive_directory_iterator(src, ec)) {
      fs::path target = dst / fs::relative(e.path(), src, ec);
      if (e.is_directory()) fs::create_directories(target, ec);
      else if (!fs::exists(target, ec)) fs::copy_file(e.path(), target, ec);
    }
  }
  fs::create_directories(fs::path(root) / kDataFolder, ec);
  for (const char* name : {kCategoryFile, kStyleFile}) {
    fs::path src = fs::path(shipped) / kDataFolder / name;
    fs::path target = fs::path(root) / kDataFolder / name;
    if (fs::is_regular_file(src, ec) && !fs::exists(target, ec)) fs::copy_file(src, target, ec);
  }
}
}  // namespace

std::string chooseProgramFolder(const std::string& homeOption, const std::string& exeDir,
                                const std::string& installedDataDir) {
  const bool exeShips = !exeDir.empty() && fileExists(ProgramFolder(exeDir).referenceFile(kZythEnc));
  const std::string shipped = !installedDataDir.empty() ? installedDataDir : exeShips ? exeDir : std::string();
  std::string root = !homeOption.empty() ? homeOption : envOr("ZYTHARA_HOME");
  if (root.empty() && exeShips) return exeDir;
  if (root.empty()) root = userFolder("XDG_DATA_HOME", ".local/share") + "/zythara2";
  // A folder of the brewer's choosing gets the shipped files it lacks.
  if (!fileExists(ProgramFolder(root).referenceFile(kZythEnc)) && !shipped.empty()) {
    makeFolders(root);
    seed(root, shipped);
  }
  return root;
}

std::string chooseSettingsFile(const std::string& settingsOption) {
  if (!settingsOption.empty()) return settingsOption;
  std::string env = envOr("ZYTHARA_SETTINGS");
  if (!env.empty()) return env;
  return userFolder("XDG_CONFIG_HOME", ".config") + "/" + kApplicationName + "/" + kApplicationName + ".ini";
}

}  // namespace zy
