#pragma once
// The check for a newer version at the end of the main window's load, at most every five days:
// the remote file ZYCurrent.ver holds a version text "2.00.001" (minor padded to two digits,
// revision to three), compared as text with the program's own.
#include <functional>
#include <string>

#include "reference/HttpFetch.h"
#include "workbench/Workbench.h"

namespace zy {

// Section "Settings": "Check Update" (the date of the next check, default "1/1/2007") and
// "Update Address" (the address of ZYCurrent.ver).
constexpr const char* kCheckUpdateKey = "Check Update";
constexpr const char* kCheckUpdateDefault = "1/1/2007";
constexpr const char* kUpdateAddressKey = "Update Address";
extern const char* const kDefaultUpdateAddress;
constexpr int kUpdateIntervalDays = 5;

// The local version text of the check: major "." minor as "00" "." revision as "000".
std::string updateVersionText();
// The address in the settings, or the default.
std::string updateAddress(const SettingsStore& s);
// The download page: the address with its last part replaced by "download.html".
std::string downloadPageFor(const std::string& versionFileUrl);
// True when the stored date of the next check is earlier than now (an unreadable date is due).
bool updateCheckDue(const Workbench& wb);

enum class UpdateOutcome { NotDue, Newer, Current, Unavailable };

struct UpdateResult {
  UpdateOutcome outcome = UpdateOutcome::NotDue;
  std::string remoteVersion;  // as fetched, trimmed
};

// inCheckUpdate and the steps around it. With a due date: fetches `url` (the settings' address
// when empty); a newer version asks "A New Version of Zythara is available.  Download it Now?"
// and on Yes calls `openBrowser` with the download page; stores now + 5 days in "Check Update"
// in every outcome. A failed fetch is silent. Not due: no request at all.
UpdateResult checkForUpdate(Workbench& wb, HttpFetch& http, const std::string& url = {},
                            const std::function<void(const std::string&)>& openBrowser = {});

// The check at the end of the main window's load: only while the user default "Auto Update" is 1
// (Automatically Check for Zythara Updates); otherwise NotDue with no request.
UpdateResult startupUpdateCheck(Workbench& wb, HttpFetch& http,
                                const std::function<void(const std::string&)>& openBrowser = {});

}  // namespace zy
