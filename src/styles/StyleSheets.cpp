#include "styles/StyleSheets.h"

#include <array>
#include <optional>

#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

std::vector<std::string> splitCsvLine(std::string_view line) {
  std::vector<std::string> cells;
  std::string cell;
  bool quoted = false;
  for (size_t i = 0; i < line.size(); ++i) {
    const char ch = line[i];
    if (quoted) {
      if (ch == '"') {
        if (i + 1 < line.size() && line[i + 1] == '"') {
          cell += '"';
          ++i;
        } else {
          quoted = false;
        }
      } else {
        cell += ch;
      }
    } else if (ch == '"') {
      quoted = true;
    } else if (ch == ',') {
      cells.push_back(cell);
      cell.clear();
    } else {
      cell += ch;
    }
  }
  cells.push_back(cell);
  return cells;
}

int styleSourceCode(std::string_view name) {
  for (int i = 0; i < kStyleSourceCount; ++i)
    if (name == StyleSourceNames()[static_cast<size_t>(i)]) return i;
  return -1;
}

namespace {

// The data lines of a sheet after its header, with the line number of each; blank lines skipped.
std::vector<std::pair<int, std::string>> dataLines(std::string_view csv) {
  std::vector<std::pair<int, std::string>> lines;
  int number = 0;
  size_t start = 0;
  while (start <= csv.size()) {
    size_t end = csv.find('\n', start);
    if (end == std::string_view::npos) end = csv.size();
    std::string line(csv.substr(start, end - start));
    if (!line.empty() && line.back() == '\r') line.pop_back();
    ++number;
    if (number > 1 && !trim(line).empty()) lines.emplace_back(number, line);
    start = end + 1;
  }
  return lines;
}

bool fitText(const std::string& utf8, size_t width, std::string& out) {
  out = trim(utf8ToCp1252(utf8));
  return out.size() <= width;
}

}  // namespace

bool buildStyleTablesFromSheets(std::string_view categoriesCsv, std::string_view stylesCsv, StyleTables& t,
                                std::string& error) {
  t.clear();
  auto fail = [&](const std::string& sheet, int line, const std::string& what) {
    error = sheet + " line " + itos(line) + ": " + what;
    return false;
  };

  for (const auto& [number, line] : dataLines(categoriesCsv)) {
    const auto c = splitCsvLine(line);
    if (c.size() != 4) return fail("categories", number, "expected 4 cells");
    if (t.BeerCategoryCount >= kCategoryTableRows - 1) return fail("categories", number, "more than 50 categories");
    BeerCategoryRecord r;
    r.source = styleSourceCode(trim(c[0]));
    if (r.source < 0) return fail("categories", number, "unknown source " + c[0]);
    if (!fitText(c[1], kCategoryIdWidth, r.id)) return fail("categories", number, "id too long");
    if (!fitText(c[2], kCategoryNameWidth, r.category) || r.category.empty())
      return fail("categories", number, "name empty or too long");
    if (!fitText(c[3], kSubCategoryWidth, r.subCategory)) return fail("categories", number, "subcategory too long");
    r.categoryIndex = t.BeerCategoryCount;
    t.BeerCategories[static_cast<size_t>(t.BeerCategoryCount++)] = r;
  }

  for (const auto& [number, line] : dataLines(stylesCsv)) {
    const auto c = splitCsvLine(line);
    if (c.size() != 14) return fail("styles", number, "expected 14 cells");
    if (t.BeerStyleCount >= kStyleTableRows - 1) return fail("styles", number, "more than 250 styles");
    BeerStyleRecord r;
    r.source = styleSourceCode(trim(c[0]));
    if (r.source < 0) return fail("styles", number, "unknown source " + c[0]);
    std::string categoryId;
    fitText(c[1], kCategoryIdWidth, categoryId);
    r.categoryIndex = -1;
    for (int k = 0; k < t.BeerCategoryCount; ++k) {
      const BeerCategoryRecord& cat = t.BeerCategories[static_cast<size_t>(k)];
      if (cat.source == r.source && cat.id == categoryId) {
        r.categoryIndex = cat.categoryIndex;
        break;
      }
    }
    if (r.categoryIndex < 0) return fail("styles", number, "unknown category " + c[0] + " " + c[1]);
    if (!fitText(c[2], kStyleIdWidth, r.styleId)) return fail("styles", number, "style id too long");
    if (!fitText(c[3], kStyleNameWidth, r.styleName) || r.styleName.empty())
      return fail("styles", number, "name empty or too long");
    std::array<double*, 10> fields{&r.ogLow, &r.ogHigh, &r.fgLow, &r.fgHigh, &r.ibuLow,
                                   &r.ibuHigh, &r.srmLow, &r.srmHigh, &r.alcoholLow, &r.alcoholHigh};
    for (size_t k = 0; k < fields.size(); k += 2) {
      const std::string low = trim(c[4 + k]), high = trim(c[5 + k]);
      if (low.empty() && high.empty()) continue;  // the guideline says it varies: 0 to 0
      const std::optional<double> lo = strictValue(low), hi = strictValue(high);
      if (!lo || !hi) return fail("styles", number, "bad range " + low + " to " + high);
      if (*lo > *hi) return fail("styles", number, "range runs backwards: " + low + " to " + high);
      *fields[k] = *lo;
      *fields[k + 1] = *hi;
    }
    r.styleIndex = t.BeerStyleCount;
    t.BeerStyles[static_cast<size_t>(t.BeerStyleCount++)] = r;
  }
  return true;
}

bool mergeStyleDescriptions(std::string_view descriptionsCsv, StyleTables& t, std::string& error) {
  std::vector<bool> described(static_cast<size_t>(t.BeerStyleCount), false);
  for (const auto& [number, line] : dataLines(descriptionsCsv)) {
    const auto c = splitCsvLine(line);
    auto fail = [&, n = number](const std::string& what) {
      error = "descriptions line " + itos(n) + ": " + what;
      return false;
    };
    if (c.size() != 3) return fail("expected 3 cells");
    const int source = styleSourceCode(trim(c[0]));
    const std::string name = trim(utf8ToCp1252(c[1]));
    const std::string text = trim(utf8ToCp1252(c[2]));
    int row = -1;
    for (int k = 0; k < t.BeerStyleCount && row < 0; ++k) {
      const BeerStyleRecord& s = t.BeerStyles[static_cast<size_t>(k)];
      if (s.source == source && trim(s.styleName) == name) row = k;
    }
    if (row < 0) return fail("no style " + trim(c[0]) + " " + trim(c[1]));
    if (described[static_cast<size_t>(row)]) return fail("a second description for " + trim(c[1]));
    if (text.empty() || text.size() > 32767) return fail("the description of " + trim(c[1]) + " is empty or too long");
    described[static_cast<size_t>(row)] = true;
    t.BeerStyles[static_cast<size_t>(row)].comments = text;
  }
  return true;
}

}  // namespace zy
