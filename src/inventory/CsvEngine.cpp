#include "inventory/CsvEngine.h"

#include <algorithm>
#include <cstdio>

#include "core/text.h"

namespace zy {

std::string nextCsvField(std::string& line) {
  if (line.empty()) return {};
  std::string field;
  size_t p = std::string::npos;
  if (line[0] == '"') {
    p = line.find('"', 1);
    field = p == std::string::npos ? line.substr(1) : line.substr(1, p - 1);
  } else {
    p = line.find(',');
    field = p == std::string::npos ? line : line.substr(0, p);
  }
  // After a quoted field the rest starts with the comma that followed the closing quote.
  line = p == std::string::npos ? std::string() : line.substr(p + 1);
  return field;
}

int checkFieldFormat(const std::string& text, int rule) {
  if (text.empty()) return 0;
  if (rule == RULE_MONEY || rule == RULE_NUMBER) {
    const std::string_view allowed = rule == RULE_MONEY ? "0123456789.$" : "0123456789.";
    for (char c : text)
      if (allowed.find(c) == std::string_view::npos) return -1;
    return 0;
  }
  if (rule >= 0 && text.size() > static_cast<size_t>(rule)) return -1;
  return 0;
}

bool StatusLog::writeTo(const std::string& path) const {
  std::FILE* f = std::fopen(path.c_str(), "wb");
  if (!f) return false;
  bool ok = true;
  for (const std::string& l : lines)
    if (std::fwrite(l.data(), 1, l.size(), f) != l.size() || std::fwrite("\r\n", 1, 2, f) != 2) ok = false;
  return std::fclose(f) == 0 && ok;
}

CsvSource::CsvSource(const std::string& text) {
  size_t start = 0;
  while (start < text.size()) {
    size_t end = text.find('\n', start);
    std::string l = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
    if (!l.empty() && l.back() == '\r') l.pop_back();
    lines_.push_back(std::move(l));
    if (end == std::string::npos) break;
    start = end + 1;
  }
}

bool CsvSource::open(const std::string& path) {
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f) return false;
  std::string text;
  char buf[65536];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) text.append(buf, n);
  bool ok = !std::ferror(f);
  std::fclose(f);
  // A byte order mark that a spreadsheet may put in front is not part of the first field.
  if (startsWith(text, "\xEF\xBB\xBF")) text.erase(0, 3);
  *this = CsvSource(text);
  return ok;
}

std::string CsvSource::readLine() { return atEnd() ? std::string() : lines_[next_++]; }

void CsvEngine::resetImportCounters() {
  importLine = importedRecords = blankRecords = formatWarnings = badRecords = 0;
  badFieldIndex = 0;
  importFields.fill(std::string());
}

int CsvEngine::importCsvRecords(CsvSource& source, std::string headRest, int fieldCount, int firstField,
                                const std::vector<std::string>& fieldNames, const std::vector<int>& fieldRules,
                                const std::string& expectedBol, const std::string& endBol, const Target& target) {
  // Our callers never ask for more fields than a line holds; a table that did would read past
  // the working table, so it is cut at its end.
  if (fieldCount >= kMaxCsvFields) fieldCount = kMaxCsvFields - 1;
  if (fieldCount >= static_cast<int>(fieldNames.size())) fieldCount = static_cast<int>(fieldNames.size()) - 1;
  // The caller has put the fields it took (0 .. firstField - 1) in place already.
  headFields.assign(importFields.begin(), importFields.begin() + std::max(0, std::min(firstField, fieldCount + 1)));
  for (int i = firstField; i <= fieldCount; ++i) {
    const bool present = !headRest.empty();
    importFields[static_cast<size_t>(i)] = nextCsvField(headRest);
    if (present) headFields.push_back(importFields[static_cast<size_t>(i)]);
  }
  while (!headRest.empty() && headFields.size() < static_cast<size_t>(kMaxCsvFields))
    headFields.push_back(nextCsvField(headRest));

  for (int i = 1; i <= fieldCount; ++i) {
    if (fieldNames[static_cast<size_t>(i)] != importFields[static_cast<size_t>(i)]) {
      badFieldIndex = i;
      return i == 1 ? IMPORT_WRONG_FIRST_FIELD : IMPORT_WRONG_FIELD;
    }
  }
  if (target.replace && target.clearForReplace) target.clearForReplace();

  while (!source.atEnd()) {
    ++importLine;
    const std::string line = source.readLine();
    std::string rest = line;
    const std::string bol = nextCsvField(rest);
    importFields.fill(std::string());
    importFields[0] = bol;
    if (bol == expectedBol) {
      for (int i = 1; i <= fieldCount; ++i) {
        std::string& value = importFields[static_cast<size_t>(i)];
        value = nextCsvField(rest);
        const int rule = static_cast<size_t>(i) < fieldRules.size() ? fieldRules[static_cast<size_t>(i)] : 0;
        if (checkFieldFormat(value, rule) != 0) {
          ++formatWarnings;
          std::string w = "Warning: Line " + itos(importLine) + ", Field format Problem with field:" +
                          fieldNames[static_cast<size_t>(i)] + "='" + value + "'";
          if (rule > 0) {
            value.resize(static_cast<size_t>(rule));
            w += " - truncated to " + itos(rule) + " characters";
          } else {
            w += " - invalid characters, number expected";
          }
          status_.line(w);
        }
      }
      if (target.addImportedRecord) target.addImportedRecord();
    } else if (bol.empty() && rest.empty()) {
      ++blankRecords;
      status_.line("Warning: Line " + itos(importLine) + " is blank, ignored");
    } else if (bol == endBol) {
      return (formatWarnings > 0 ? IMPORT_FORMAT_WARNINGS : 0) | (badRecords > 0 ? IMPORT_BAD_RECORDS : 0);
    } else {
      ++badRecords;
      status_.line("Warning: Line " + itos(importLine) +
                   " has invalid Beginning of Line (BOL) string, ignored (see below)");
      status_.line(line);
      status_.line("^^");
      status_.line("||");
      status_.line("++--- Expected the string '" + expectedBol + "'");
    }
  }
  return IMPORT_END_OF_FILE;
}

void CsvEngine::reportHeadError(int wrongField, const std::string& expected) {
  status_.blank();
  status_.line(badFieldIndex > 0 ? "*** Error Found on line 1, Invalid Field Name ***"
                                 : "*** Error Found on line 1, Invalid file format ***");
  status_.blank();
  status_.line("The following was read from the file...");
  std::string joined, indent;
  for (size_t i = 0; i < headFields.size(); ++i) {
    if (i > 0) joined += ",";
    if (static_cast<int>(i) == wrongField) indent = std::string(joined.size(), ' ');
    joined += headFields[i];
  }
  if (wrongField >= static_cast<int>(headFields.size())) indent = std::string(joined.size() + 1, ' ');
  status_.line(joined);
  status_.blank();
  status_.line(indent + "^");
  status_.line(indent + "|");
  status_.line(indent + "+--- Expected the string '" + expected + "'");
}

void CsvEngine::writeImportSummary(bool noFatalError) {
  status_.blank();
  status_.line(itos(formatWarnings) + " Format Warnings");
  status_.line(itos(blankRecords) + " Blank Records Skipped");
  status_.line(itos(badRecords) + " Bad Records Skipped");
  status_.line(itos(importedRecords) + " Records Imported");
  if (noFatalError) {
    status_.line("No Fatal Errors");
  } else {
    status_.line("Fatal Errors Encountered");
    status_.line("Import processing was terminated");
  }
}

ClearRefusal clearRefusal(int method) {
  switch (method) {
    case METHOD_INVENTORY_OLD:
    case METHOD_INVENTORY: return {};
    case METHOD_OLD_STYLES:
      return {"Error - Import Method not supported, Data Ignored",
              "Error - Nothing Cleared, Old Beer Style process format Not Supported"};
    case METHOD_NEW_STYLES:
      return {"Error - Import Method not supported, Data Ignored",
              "Error - Nothing Cleared, New Beer Style process format Not Supported"};
    default: return {"", "Error - Nothing Cleared, Unknown process format"};
  }
}

std::string addRefusal(int method, int line) {
  switch (method) {
    case METHOD_INVENTORY_OLD:
    case METHOD_INVENTORY: return {};
    case METHOD_OLD_STYLES: return "Error - Line " + itos(line) + " skipped, Old Beer Style process format Not Supported";
    case METHOD_NEW_STYLES: return "Error - Line " + itos(line) + " skipped, New Beer Style process format Not Supported";
    default: return "Error - Line " + itos(line) + " skipped, unknown process format";
  }
}

const std::vector<std::string>& inventoryImportSuggestions() {
  static const std::vector<std::string> s = {
      "Suggested corrective actions:",
      "1. Load the import file into a spreadsheet program (i.e., Excel)",
      "2. Verify that the first column in every line has the characters 'zy'",
      "3. Verify that no data is present in a column without a Field Name (1st Row of Entries)",
      "4. Verify that the expected data is in the proper fields.",
      "5. Make corrections as needed.",
      "6. Save the file in CSV format to a different filename and try to import again.",
      "Note: you can export your old data to a file to get an idea of the format required."};
  return s;
}

}  // namespace zy
