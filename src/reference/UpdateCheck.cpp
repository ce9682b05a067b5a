#include "reference/UpdateCheck.h"

#include "core/dates.h"
#include "core/text.h"

namespace zy {

const char* const kDefaultUpdateAddress = "http://updates.zythara.invalid/ZYCurrent.ver";

namespace {
const char* const kSection = "Settings";

std::string padded(int value, int width) {
  std::string s = std::to_string(value < 0 ? 0 : value);
  if (static_cast<int>(s.size()) < width) s.insert(0, static_cast<size_t>(width) - s.size(), '0');
  return s;
}
}  // namespace

std::string updateVersionText() {
  return std::to_string(versionMajor()) + "." + padded(versionMinor(), 2) + "." + padded(versionRevision(), 3);
}

std::string updateAddress(const SettingsStore& s) {
  std::string a = trimWhite(s.read(kSection, kUpdateAddressKey, ""));
  return a.empty() ? std::string(kDefaultUpdateAddress) : a;
}

std::string downloadPageFor(const std::string& versionFileUrl) {
  std::string u = trimWhite(versionFileUrl);
  size_t scheme = u.find("://");
  size_t from = scheme == std::string::npos ? 0 : scheme + 3;
  size_t slash = u.rfind('/');
  if (slash == std::string::npos || slash < from) return u + "/download.html";
  return u.substr(0, slash + 1) + "download.html";
}

bool updateCheckDue(const Workbench& wb) {
  std::optional<double> next = parseDate(wb.settings.read(kSection, kCheckUpdateKey, kCheckUpdateDefault));
  if (!next) return true;
  return *next < wb.clock.now();
}

UpdateResult checkForUpdate(Workbench& wb, HttpFetch& http, const std::string& url,
                            const std::function<void(const std::string&)>& openBrowser) {
  UpdateResult result;
  if (!updateCheckDue(wb)) return result;

  const std::string local = updateVersionText();
  const std::string address = trimWhite(url).empty() ? updateAddress(wb.settings) : trimWhite(url);
  // inCheckUpdate: a failed fetch is an empty text, which compares below any version.
  result.remoteVersion = trimWhite(http.fetch(address));
  if (result.remoteVersion > local) {
    result.outcome = UpdateOutcome::Newer;
    Answer a = wb.prompter.message("A New Version of Zythara is available.  Download it Now?", "Zythara Updates",
                                   Icon::Question, Buttons::YesNo, Answer::Yes);
    if (a == Answer::Yes && openBrowser) openBrowser(downloadPageFor(address));
  } else {
    result.outcome = result.remoteVersion.empty() ? UpdateOutcome::Unavailable : UpdateOutcome::Current;
  }
  wb.settings.write(kSection, kCheckUpdateKey, formatDateTime(wb.clock.now() + kUpdateIntervalDays));
  return result;
}

UpdateResult startupUpdateCheck(Workbench& wb, HttpFetch& http,
                                const std::function<void(const std::string&)>& openBrowser) {
  if (wb.defaults.autoUpdate != 1) return {};
  return checkForUpdate(wb, http, {}, openBrowser);
}

}  // namespace zy
