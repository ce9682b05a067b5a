#pragma once
// The one error routine: tells the user in a fixed message, keeps ZYError.log, and either lets
// the caller go on to its clean-up or ends the process.
#include <exception>
#include <functional>
#include <string>

#include "core/paths.h"
#include "core/ports.h"
#include "core/records.h"

namespace zy {

// Application error numbers raised by the stores on bad data.
constexpr int ERR_MISSING_INVENTORY = 32009;
constexpr int ERR_INVENTORY_FORMAT = 32010;
constexpr int ERR_INVENTORY_CODE = 32011;
constexpr int ERR_BATCHLOG_CODE = 32012;
constexpr int ERR_CATEGORY_CODE = 32013;
constexpr int ERR_MAX_CATEGORIES = 32014;
constexpr int ERR_STYLE_CODE = 32015;
constexpr int ERR_MAX_STYLES = 32016;
constexpr int ERR_RECIPE_CODE = 32020;
constexpr int ERR_RECIPE_ITEM_CODE = 32021;
constexpr int ERR_COMMENT_CODE = 32022;
// Platform failures, by the numbers the routine knows them by.
constexpr int ERR_OUT_OF_MEMORY = 7;
constexpr int ERR_FILE_NOT_FOUND = 53;
constexpr int ERR_FILE_ALREADY_OPEN = 55;
constexpr int ERR_DISK_FULL = 61;
constexpr int ERR_PERMISSION_DENIED = 70;
constexpr int ERR_DISK_NOT_READY = 71;
constexpr int ERR_PATH_NOT_FOUND = 76;
constexpr int ERR_TYPE_MISMATCH = 13;
constexpr int ERR_OVERFLOW = 6;
constexpr int ERR_DIVISION_BY_ZERO = 11;
constexpr int ERR_SUBSCRIPT = 9;
constexpr int ERR_BAD_RECORD_NUMBER = 63;

// Thrown by the termination hook of tests (and of anything that must unwind instead of exiting).
struct Terminated : std::exception {
  int errorNumber;
  explicit Terminated(int n) : errorNumber(n) {}
  const char* what() const noexcept override { return "terminated by the error routine"; }
};

// The description of an application error number, empty for other numbers.
std::string applicationErrorDescription(int number);
// True if the error ends the process.
bool isTerminatingError(int number);

class ErrorLog {
 public:
  ErrorLog(const ProgramFolder& folder, Prompter& prompter, const Clock& clock)
      : folder_(folder), prompter_(prompter), clock_(clock) {}

  // `description` is the platform's text for numbers outside the application range.
  void reportError(int errorNumber, long lineNumber, const std::string& functionName,
                   const std::string& fileName, const std::string& description = {});
  void reportFileError(const FileError& e, long lineNumber, const std::string& functionName) {
    reportError(e.number, lineNumber, functionName, e.path, e.description);
  }

  // Ends the process after a terminating error; the program's hook exits, a test's throws.
  // When the hook returns, Terminated is thrown so that nothing after the report runs.
  void setTerminationHook(std::function<void(int)> hook) { terminate_ = std::move(hook); }

  bool errorLogOpened = false;
  bool fillingControls = false;
  int reportCount = 0;  // errors reported in this run

 private:
  const ProgramFolder& folder_;
  Prompter& prompter_;
  const Clock& clock_;
  std::function<void(int)> terminate_;
};

// Strict reading of a number where a text that is no number is a failure: it is reported as a
// type mismatch (error 13, which ends the program) in `functionName`.
double strictNumber(ErrorLog& errors, const std::string& text, const std::string& functionName);

// Key filter of numeric boxes: digits, the point and backspace pass; "-" with allowMinus; any
// other key becomes 0 (swallowed) and beeps.
int numericKey(int keyAscii, bool allowMinus, Prompter* beeper = nullptr);

// Prepares a text for a CSV field: trimmed; when it holds a carriage return, comma or double
// quote, double quotes become single quotes and the whole is enclosed in double quotes.
std::string csvQuote(const std::string& text);

}  // namespace zy
