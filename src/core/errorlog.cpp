#include "core/errorlog.h"

#include <cstdio>
#include <cstdlib>

#include "core/dates.h"
#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

std::string applicationErrorDescription(int number) {
  switch (number) {
    case 32009: return "Missing Inventory File";
    case 32010: return "Unknown Inventory Format - Bad 1st Record";
    case 32011: return "Invalid Inventory Record Control Code";
    case 32012: return "Invalid BatchLog Record Control Code";
    case 32013: return "Invalid Beer Category Control Code";
    case 32014: return "Maximum Beer Categories Reached";
    case 32015: return "Invalid Beer Style Control Code";
    case 32016: return "Maximum Beer Styles Reached";
    case 32020: return "Invalid Recipe Record Control Code";
    case 32021: return "Invalid Recipe Item Control Code";
    case 32022: return "Invalid Comment Record Control Code";
    default: return {};
  }
}

bool isTerminatingError(int number) {
  switch (number) {
    case 61: case 70: case 71: case 76:
    case 32009: case 32010: case 32011: case 32012: case 32013: case 32014: case 32015: case 32016:
    case 32020: case 32021: case 32022:
      return false;
    default:
      return true;
  }
}

void ErrorLog::reportError(int errorNumber, long lineNumber, const std::string& functionName,
                           const std::string& fileName, const std::string& platformDescription) {
  ++reportCount;
  const std::string logPath = folder_.file(kErrorLog);
  const std::string stamp = formatDateTime(clock_.now());
  // 1. Open the log: anew at the first error of the run, appended afterwards.
  std::FILE* log = std::fopen(logPath.c_str(), errorLogOpened ? "ab" : "wb");
  auto line = [&](const std::string& s) {
    if (log) std::fprintf(log, "%s\n", s.c_str());
  };
  if (!errorLogOpened) {
    line("Zythara 2 Error Log");
    line("Zythara Version " + versionText());
    line("Log Created " + stamp);
  } else {
    line("New Error " + stamp);
  }

  std::string description = applicationErrorDescription(errorNumber);
  if (description.empty()) description = platformDescription;
  const std::string ln = itos(lineNumber);

  // 2. The message.
  std::string title = "Error";
  std::string text;
  Buttons buttons = Buttons::OK;
  Icon icon = Icon::Critical;
  switch (errorNumber) {
    case 7:
      title = "Terminating";
      text = std::string("Out of Memory") + (fillingControls ? " During Initialization" : "");
      break;
    case 53:
      title = "Terminating";
      text = fileName + " Not Found in " + functionName;
      break;
    case 55: text = fileName + " Is Already Open in " + functionName + " at Line " + ln; break;
    case 61: text = "The Disk is Full"; buttons = Buttons::OKCancel; break;
    case 70: text = "Permission Denied on File " + fileName; break;
    case 71: text = "Disk Drive is Not Ready"; buttons = Buttons::OKCancel; break;
    case 76: text = "Path " + fileName + " Not Found"; buttons = Buttons::OKCancel; break;
    case 32009: text = "Missing Inventory File " + fileName; break;
    case 32010: text = "Unknown Inventory Format in " + fileName + " at Line " + ln + ", No Data Loaded"; break;
    case 32011: text = "Corrupted Inventory Record in " + fileName + " at Line " + ln + ", Not Loaded"; break;
    case 32012: text = "Corrupted BatchLog Record(s) in " + fileName + ", Bad Records Ignored"; break;
    case 32013: text = "Corrupted Beer Category Record(s) in " + fileName + ", Bad Records Ignored"; break;
    case 32014:
      text = "Maximum Beer Category Records Reached in " + fileName + ", Additional Records Ignored";
      break;
    case 32015: text = "Corrupted Beer Style Record(s) in " + fileName + ", Bad Records Ignored"; break;
    case 32016: text = "Maximum Beer Style Records Reached in " + fileName + ", Additional Records Ignored"; break;
    case 32020:
      text = "Corrupted Recipe Record in " + fileName + " at Line " + ln + ", No More Recipes Loaded";
      break;
    case 32021:
      text = "Corrupted Recipe Item in " + fileName + " at Line " + ln + ", No More Recipe Items Loaded";
      break;
    case 32022:
      text = "Corrupted Recipe Comment Record in " + fileName + " at Line " + ln +
             ", No More Recipe Comments Loaded";
      break;
    default:
      title = "Terminate Program";
      text = "Error #" + itos(errorNumber) + "(" + description + ") in " + functionName + " at Line " + ln;
      break;
  }
  // The answer is recorded but changes nothing.
  (void)prompter_.message(text, title, icon, buttons, Answer::OK);

  // 3. and 4. The log entry.
  errorLogOpened = true;
  line("");
  line("Error #" + itos(errorNumber) + "(" + description + ")");
  if (lineNumber != 0) line("Line #" + ln);
  if (!functionName.empty()) line("In Function " + functionName);
  if (!fileName.empty()) line("Affecting File: " + fileName);

  // 5. End the process, or go on.
  if (isTerminatingError(errorNumber)) {
    line("Terminating");
    if (log) std::fclose(log);
    if (terminate_) terminate_(errorNumber);
    else std::_Exit(3);
    throw Terminated(errorNumber);
  }
  line("Program Continued Execution");
  line("");
  if (log) std::fclose(log);
}

double strictNumber(ErrorLog& errors, const std::string& text, const std::string& functionName) {
  auto v = strictValue(text);
  if (v) return *v;
  errors.reportError(ERR_TYPE_MISMATCH, 0, functionName, "", "Type mismatch");
  return 0;
}

int numericKey(int keyAscii, bool allowMinus, Prompter* beeper) {
  if ((keyAscii >= '0' && keyAscii <= '9') || keyAscii == '.' || keyAscii == 8) return keyAscii;
  if (allowMinus && keyAscii == '-') return keyAscii;
  if (beeper) beeper->beep();
  return 0;
}

std::string csvQuote(const std::string& text) {
  std::string t = trim(text);
  if (t.find_first_of("\r,\"") == std::string::npos) return t;
  std::string quoted;
  quoted.reserve(t.size() + 2);
  quoted += '"';
  quoted += replaceAll(t, "\"", "'");
  quoted += '"';
  return quoted;
}

}  // namespace zy
