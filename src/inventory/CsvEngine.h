#pragma once
// The one reader of the program's line-oriented CSV imports. It splits lines into fields, checks
// each field against a rule, counts what it met and writes the running status report that the
// user reads in ZYStatus.log (the last run's only). What to do with an accepted line, and how to
// empty the target before a replacing import, belong to the caller.
#include <array>
#include <functional>
#include <string>
#include <vector>

namespace zy {

// Takes the next field from the front of `line` and leaves the rest in `line`. A field that
// opens with a double quote ends at the next double quote (doubled quotes mean nothing); what
// is left then starts with the comma after the closing quote, so the next call gives an empty
// field: "a",b,c gives a, (empty), b, c. A quote that is never closed takes the rest of the line.
std::string nextCsvField(std::string& line);

// Field rules: -2 digits, "." and "$" only; -1 digits and "." only; 0 or more a maximum length.
// An empty field passes every rule. 0 when the field passes, -1 when it fails.
constexpr int RULE_MONEY = -2, RULE_NUMBER = -1;
int checkFieldFormat(const std::string& text, int rule);

// The lines of a status report, written to its file in one go (line ends CR LF).
class StatusLog {
 public:
  void line(const std::string& text) { lines.push_back(text); }
  void blank() { lines.emplace_back(); }
  bool writeTo(const std::string& path) const;
  std::vector<std::string> lines;
};

// The lines of a CSV file, as read line by line: CR LF or LF ends a line, and a last line end
// does not start one more line.
class CsvSource {
 public:
  CsvSource() = default;
  explicit CsvSource(const std::string& text);
  // False when the file cannot be read.
  bool open(const std::string& path);
  bool atEnd() const { return next_ >= lines_.size(); }
  std::string readLine();

 private:
  std::vector<std::string> lines_;
  size_t next_ = 0;
};

// Result flags of importCsvRecords.
constexpr int IMPORT_END_OF_FILE = 1, IMPORT_FORMAT_WARNINGS = 2, IMPORT_BAD_RECORDS = 4,
              IMPORT_WRONG_STRUCTURE = 8, IMPORT_WRONG_FIELD = 16, IMPORT_WRONG_FIRST_FIELD = 24;

constexpr int kMaxCsvFields = 16;

class CsvEngine {
 public:
  explicit CsvEngine(StatusLog& status) : status_(status) {}

  // Counters of one import.
  int importLine = 0, importedRecords = 0, blankRecords = 0, formatWarnings = 0, badRecords = 0;
  int badFieldIndex = 0;
  std::array<std::string, kMaxCsvFields> importFields;
  // The fields of the head line as read, for the picture of a bad head.
  std::vector<std::string> headFields;

  void resetImportCounters();

  // What the caller does with the lines: empty the target (a replacing import, after the head
  // passed) and take importFields as one record. The adder counts importedRecords itself.
  struct Target {
    bool replace = false;
    std::function<void()> clearForReplace;
    std::function<void()> addImportedRecord;
  };

  // The main loop. `headRest` is the head line less the fields the caller took already; fields
  // `firstField`..`fieldCount` of the head are read from it and compared with `fieldNames`
  // (index 1..fieldCount; index 0 unused). Then each line: a line opening with `expectedBol` is
  // a record, a blank line is counted and passed, a line opening with `endBol` ends the loop
  // (never an empty `endBol`: the blank test comes first), anything else is a bad record.
  // Returns 1 at the end of the file (alone), 16 or 24 for a wrong head field, otherwise 2 and 4
  // for warnings and bad records met before `endBol`.
  int importCsvRecords(CsvSource& source, std::string headRest, int fieldCount, int firstField,
                       const std::vector<std::string>& fieldNames, const std::vector<int>& fieldRules,
                       const std::string& expectedBol, const std::string& endBol, const Target& target);

  // The picture of a bad head line: what was read, and a pointer under the field that was wrong
  // (field `wrongField`, expected `expected`).
  void reportHeadError(int wrongField, const std::string& expected);
  // The closing lines: the four counters and whether the import ran to its end.
  void writeImportSummary(bool noFatalError);

 private:
  StatusLog& status_;
};

// Import methods: the inventory in its older and present head forms, and the style file's two
// forms, which the inventory's import does not support.
constexpr int METHOD_INVENTORY_OLD = 0, METHOD_INVENTORY = 1, METHOD_OLD_STYLES = 2, METHOD_NEW_STYLES = 3;

// The status line and message of a replacing import that cannot clear its target (the style
// methods and unknown ones); empty texts for the inventory methods.
struct ClearRefusal {
  std::string message;  // shown with the title "Import Error"; empty when nothing is shown
  std::string logLine;
};
ClearRefusal clearRefusal(int method);
// The status line for a record that a method cannot add; empty for the inventory methods.
std::string addRefusal(int method, int line);

// The corrective actions written after a failed inventory import.
const std::vector<std::string>& inventoryImportSuggestions();

}  // namespace zy
