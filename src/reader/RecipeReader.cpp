#include "reader/RecipeReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <exception>
#include <fstream>
#include <sstream>
#include <vector>

#include "core/measures.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "recipes/RecipeEditor.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {

const char* const kNumberChars = "01234567890.";
const char* const kQuantityChars = "0123456789./- ";
constexpr const char* kReaderFn = "frmRecReader!extractRecipeLine";

bool in(char ch, const char* set) { return ch != '\0' && std::strchr(set, ch) != nullptr; }
bool isDigit(char ch) { return ch >= '0' && ch <= '9'; }
bool isLetter(char ch) {
  const auto u = static_cast<unsigned char>(ch);
  return (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || u >= 0xC0;
}
// 1-based position of `what` in `text` from `start`, 0 if absent (InStr).
int pos(const std::string& text, const std::string& what, int start = 1) {
  if (start < 1) start = 1;
  if (static_cast<size_t>(start - 1) > text.size()) return 0;
  const size_t p = text.find(what, static_cast<size_t>(start - 1));
  return p == std::string::npos ? 0 : static_cast<int>(p) + 1;
}
// Characters from 1-based position `start` (Mid).
std::string mid(const std::string& text, int start, int length = -1) {
  if (start < 1) start = 1;
  if (static_cast<size_t>(start - 1) >= text.size()) return std::string();
  return length < 0 ? text.substr(static_cast<size_t>(start - 1))
                    : text.substr(static_cast<size_t>(start - 1), static_cast<size_t>(std::max(0, length)));
}
std::string left(const std::string& text, int n) { return n <= 0 ? std::string() : text.substr(0, static_cast<size_t>(n)); }
char at(const std::string& text, int p) { return p >= 1 && static_cast<size_t>(p) <= text.size() ? text[static_cast<size_t>(p - 1)] : '\0'; }
int len(const std::string& s) { return static_cast<int>(s.size()); }

// The text with positions a..b (1-based, inclusive) taken out: the two sides joined by one blank,
// or only the other side when the cut reaches an end.
std::string cutOut(const std::string& text, int a, int b) {
  const std::string l = trim(left(text, a - 1)), r = trim(mid(text, b + 1));
  if (l.empty()) return r;
  if (r.empty()) return l;
  return l + " " + r;
}

// The value of the number that ends just before 1-based position `mark`, walking left over
// blanks, digits and points; `start` receives the first position of the walk.
double numberBefore(const std::string& text, int mark, int* start) {
  int p = mark - 1;
  while (p >= 1 && in(at(text, p), " 0123456789.")) --p;
  if (start) *start = p + 1;
  return lenientValue(mid(text, p + 1, mark - p - 1));
}

// Keeps the name up to two characters before position k, without a trailing "," or "-".
std::string cutBefore(const std::string& name, int k) {
  std::string s = trim(left(name, k - 2));
  while (!s.empty() && (s.back() == ',' || s.back() == '-')) s = trim(s.substr(0, s.size() - 1));
  return s;
}

struct KindRow {
  std::vector<const char*> words;
  int kind;
  double cups;
  bool extract, mashed;
};
const std::vector<KindRow>& kindTable() {
  static const std::vector<KindRow> t = {
      {{"malt"}, 0, 3.5, false, true},
      {{"extract", "dme", "crystal"}, 0, 3.5, true, false},
      {{"syrup"}, 0, 1.3, true, false},
      {{"barley", "row", "flaked", "wheat", "oats"}, 0, 3.5, false, true},
      {{"rice"}, 0, 2.5, false, true},
      {{"rye", "munich", "vienna"}, 0, 3.5, false, true},
      {{"sugar", "dextrose"}, 0, 2.0, false, false},
      {{"cara"}, 0, 3.5, false, false},
      {{"honey"}, 0, 1.3, false, false},
      {{"molasses"}, 0, 1.3, true, false},
      {{"each", "stick", "pinch", "tsp", "teaspoon", "tbs", "tablespoon", "rind", "jar", "gypsum", "chalk", "salt",
        "moss", "crystals", "polyclar", "tablet", "malt", "finings", "lactic", "chips", "nutrient"},
       2, 0, false, false},
      {{"hop", "aau", "hbu", "ibu", "boil", "pellet", "plug", "leaf", " aa", " min"}, 1, 0, false, false},
      {{"yeast", "pack", "culture"}, 3, 0, false, false},
  };
  return t;
}

enum UnitClass { PLAIN, WEIGHT, VOLUME, CAN };
struct UnitRow {
  const char* start;
  const char* unit;
  int skip;
  UnitClass cls;
  double factor;
};
const std::vector<UnitRow>& unitTable() {
  static const std::vector<UnitRow> t = {
      {"lbs", "lbs", 4, WEIGHT, 1},
      {"lb.", "lbs", 4, WEIGHT, 1},
      {"lb ", "lbs", 3, WEIGHT, 1},
      {"pound", "lbs", 6, WEIGHT, 1},
      {"oz", "oz", 3, WEIGHT, 1},
      {"ounce", "oz", 6, WEIGHT, 1},
      {"kg", "kg", 3, WEIGHT, 1},
      {"kilogram", "kg", 9, WEIGHT, 1},
      {"mg", "gr", 3, WEIGHT, 1},
      {"gram", "gr", 5, WEIGHT, 1},
      {"gr", "gr", 3, WEIGHT, 1},
      {"g.", "gr", 3, WEIGHT, 1},
      {"imperial gallon", "Imperial Gallons", 16, VOLUME, 1},
      {"imp gal", "Imperial Gallons", 8, VOLUME, 1},
      {"us gallon", "US Gallons", 10, VOLUME, 1},
      {"gallon", "US Gallons", 7, VOLUME, 1},
      {"gal", "US Gallons", 7, VOLUME, 1},
      {"us quart", "US Quarts", 6, VOLUME, 1},
      {"quart", "US Quarts", 6, VOLUME, 1},
      {"liter", "Liters", 6, VOLUME, 1},
      {"cup", "Cups", 4, PLAIN, 1},
      {"stick", "each", 6, PLAIN, 1},
      {"pinch", "each", 6, PLAIN, 1},
      {"tsp", "tsp", 4, PLAIN, 1},
      {"teaspoon", "tsp", 9, PLAIN, 1},
      {"tbs", "tsp", 4, PLAIN, 3.0},
      {"tablespoon", "tsp", 11, PLAIN, 3.0},
      {"aau", "hbu", 4, PLAIN, 1},
      {"hbu", "hbu", 4, PLAIN, 1},
      {"ibu", "ibu", 4, PLAIN, 1},
      {"rind", "each", 5, PLAIN, 1},
      {"each", "each", 5, PLAIN, 1},
      {"pack", "packets", 5, PLAIN, 1},
      {"can", "lbs", 4, CAN, 1},
      {"jar", "each", 4, PLAIN, 1},
  };
  return t;
}

bool has(const std::string& s, const char* w) { return s.find(w) != std::string::npos; }

}  // namespace

bool isUtf8Text(const std::string& text) {
  bool beyondAscii = false;
  for (size_t i = 0; i < text.size();) {
    const auto c = static_cast<unsigned char>(text[i]);
    size_t n = c < 0x80 ? 0 : (c & 0xE0) == 0xC0 ? 1 : (c & 0xF0) == 0xE0 ? 2 : (c & 0xF8) == 0xF0 ? 3 : 9;
    if (n == 9 || (n == 1 && c < 0xC2) || i + n >= text.size()) return false;
    for (size_t k = 1; k <= n; ++k)
      if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) return false;
    beyondAscii = beyondAscii || n > 0;
    i += n + 1;
  }
  return beyondAscii;
}

namespace {

}  // namespace

// ---- The small helpers ------------------------------------------------------------------------

int findNumber(int start, const std::string& text, int way) {
  const int n = len(text);
  if (way >= 1) {
    for (int p = std::max(1, start); p <= n; ++p)
      if (in(at(text, p), kNumberChars)) return p;
    return 0;
  }
  for (int p = std::min(start, n); p >= 1; --p) {
    if (!in(at(text, p), kNumberChars)) continue;
    while (p > 1 && in(at(text, p - 1), kNumberChars)) --p;
    return p;
  }
  return 0;
}

int skipNumber(int start, const std::string& text) {
  int p = std::max(1, start);
  while (p <= len(text) && in(at(text, p), kQuantityChars)) ++p;
  return p;
}

double parseQuantity(const std::string& text, bool* problem) {
  if (problem) *problem = false;
  constexpr size_t kMost = 10;
  std::vector<double> nums;
  std::vector<char> ops;
  double cur = 0;
  int place = 0;          // 0 before the point, then the decimal place of the next digit
  bool digits = false;    // a digit in the number being read
  bool anyDigit = false;
  for (size_t i = 0; i < text.size(); ++i) {
    const char ch = text[i];
    if (isDigit(ch)) {
      const double d = ch - '0';
      if (place > 0) cur += d / std::pow(10.0, place++);
      else cur = cur * 10.0 + d;
      digits = anyDigit = true;
    } else if (ch == '.') {
      if (place == 0) place = 1;
    } else if (ch == '/' || ch == '-' || (ch == ' ' && i + 1 < text.size() && isDigit(text[i + 1]))) {
      if (nums.size() + 1 >= kMost) break;
      nums.push_back(cur);
      ops.push_back(ch == '/' ? '/' : '-');
      cur = 0;
      place = 0;
      digits = false;
    } else {
      break;
    }
  }
  if (digits || nums.empty()) nums.push_back(cur);
  else ops.pop_back();  // an operator with nothing behind it
  if (!anyDigit) return 1.0;
  if (nums.size() == 1) return nums[0] == 0 ? 1.0 : nums[0];
  // Fractions first.
  for (size_t k = 0; k < ops.size();) {
    if (ops[k] != '/') {
      ++k;
      continue;
    }
    if (nums[k + 1] == 0) {
      if (problem) *problem = true;
      return 0;
    }
    nums[k] /= nums[k + 1];
    nums.erase(nums.begin() + static_cast<long>(k) + 1);
    ops.erase(ops.begin() + static_cast<long>(k));
  }
  // Then mixed numbers: a whole followed by a fraction below 1.
  for (size_t k = 0; k < ops.size();) {
    if (nums[k + 1] < 1.0 && nums[k + 1] <= nums[k]) {
      nums[k] += nums[k + 1];
      nums.erase(nums.begin() + static_cast<long>(k) + 1);
      ops.erase(ops.begin() + static_cast<long>(k));
    } else {
      ++k;
    }
  }
  // What is left of two numbers is a range.
  return nums.size() >= 2 ? (nums[0] + nums[1]) / 2.0 : nums[0];
}

std::string titleCaps(const std::string& text) {
  std::string s = text;
  auto up = [&](size_t i) {
    if (i < s.size()) s[i] = upper(std::string(1, s[i]))[0];
  };
  up(0);
  for (size_t i = 0; i + 1 < s.size(); ++i)
    if (s[i] == ' ') up(i + 1);
  for (const char mark : {'-', '('}) {
    const size_t p = s.find(mark);
    if (p != std::string::npos) up(p + 1);
  }
  return s;
}

std::string crlfText(const std::string& text) {
  std::string out;
  out.reserve(text.size() + text.size() / 20);
  for (size_t i = 0; i < text.size(); ++i) {
    const char ch = text[i];
    if (ch == '\r') {
      out += "\r\n";
      if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else if (ch == '\n') {
      out += "\r\n";
    } else {
      out += ch;
    }
  }
  return out;
}

// ---- The reader -------------------------------------------------------------------------------

RecipeReader::RecipeReader(RecipeEditor& editor) : editor_(editor) {}

bool RecipeReader::mnuFileExtractRecipe() {
  Workbench& wb = editor_.wb;
  if (trim(trimWhite(txtComment)).empty()) {
    wb.prompter.message("Nothing to process, please cut 'n paste the recipe text into the text area.", "Missing Text",
                        Icon::Information);
    return false;
  }
  IngredientTable& grid = editor_.sheet.grid;
  if (grid.rowCount() > 5 &&
      wb.prompter.message("This Action Will Replace ALL ingredients in the Recipe", "Warning", Icon::Warning,
                          Buttons::OKCancel, Answer::OK) != Answer::OK)
    return false;
  grid.clear();
  editor_.clearEditFields();
  fullReported_ = false;

  const std::string text = txtComment + "\r\n";
  bool first = true;
  size_t from = 0;
  while (from < text.size()) {
    size_t end = text.find("\r\n", from);
    if (end == std::string::npos) end = text.size();
    const std::string part = trim(text.substr(from, end - from));
    from = end + 2;
    if (part.empty()) continue;
    if (first) {
      first = false;
      // A first line in double quotes, or one without a number, is the recipe's name.
      if (part.size() >= 2 && part.front() == '"' && part.back() == '"') {
        editor_.setTitle(part.substr(1, part.size() - 2));
        continue;
      }
      if (findNumber(1, part, 1) == 0) {
        editor_.setTitle(part);
        continue;
      }
    }
    extractRecipeLine(part);
  }
  recompute(wb, editor_.sheet, EditEvent::Structure);
  editor_.recChanged();
  return true;
}

void RecipeReader::extractRecipeLine(const std::string& line) {
  try {
    readLine(line);
  } catch (const Terminated&) {
    throw;
  } catch (const std::bad_alloc&) {
    editor_.wb.errors.reportError(ERR_OUT_OF_MEMORY, 0, kReaderFn, "", "Out of memory");
  } catch (const std::exception& e) {
    editor_.wb.errors.reportError(ERR_SUBSCRIPT, 0, kReaderFn, "", e.what());
  }
}

void RecipeReader::readLine(const std::string& line) {
  ReaderLine& s = s_;
  s = ReaderLine();
  s.Line = trim(line);
  original_ = s.Line;
  s.LineLower = lower(s.Line);

  // 1. The kind, by the first keyword met.
  for (const KindRow& row : kindTable()) {
    if (std::none_of(row.words.begin(), row.words.end(), [&](const char* w) { return has(s.LineLower, w); }))
      continue;
    s.ItemKind = row.kind;
    s.CupsPerPound = row.cups;
    s.IsExtract = row.extract;
    s.IsMashed = row.mashed;
    break;
  }

  // 2. The quantity. A number of 100 or more stays in the line (it is a name, "Wyeast 1056"),
  // except on a yeast line, whose name the yeast rule puts back.
  const int p = findNumber(1, s.Line, 1);
  if (p > 0) {
    bool problem = false;
    s.Quantity = parseQuantity(mid(s.Line, p), &problem);
    if (problem) editor_.wb.prompter.message("Problem processing Values", "Error", Icon::Critical);
    if (!(s.Quantity >= 100 && s.ItemKind != 3)) s.Line = trim(mid(s.Line, skipNumber(p, s.Line)));
  }

  // 3. The unit at the front of what is left.
  const std::string front = lower(s.Line);
  int skip = 0;
  for (const UnitRow& u : unitTable()) {
    if (!startsWith(front, u.start)) continue;
    s.UnitText = u.unit;
    skip = u.skip;
    s.IsWeight = u.cls == WEIGHT;
    s.IsVolume = u.cls == VOLUME;
    s.IsCan = u.cls == CAN;
    s.Quantity *= u.factor;
    break;
  }
  if (skip == 0) {
    const std::string& l = s.LineLower;
    auto any = [&](std::initializer_list<const char*> ws) {
      return std::any_of(ws.begin(), ws.end(), [&](const char* w) { return has(l, w); });
    };
    if (any({"yeast", "culture"})) s.UnitText = "packets";
    else if (has(l, "chips")) {
      s.UnitText = "oz";
      if (s.Quantity == 1.0) s.Quantity = 8.0;
    } else if (has(l, "hops")) s.UnitText = "oz";
    else if (any({"gypsum", "chalk", "salt", "moss", "crystals", "polyclar"})) s.UnitText = "tsp";
    else if (has(l, "tablet")) s.UnitText = "each";
    else if (has(l, "malt")) s.UnitText = "lbs";
    else if (any({"finings", "lactic"})) s.UnitText = "tsp";
  }

  // 4. A volume is the recipe's, not an ingredient.
  if (s.IsVolume && s.Quantity > 0) {
    volumeLine();
    return;
  }

  // 5. A line without any unit may be a fermentation stage.
  if (s.UnitText.empty()) {
    const std::string& l = s.LineLower;
    const int stage = has(l, "primary") ? 0 : has(l, "second") ? 1 : has(l, "tertiary") ? 2 : has(l, "ferment") ? 0 : -1;
    if (stage >= 0) {
      fermentationDetails(trim(line), stage);
      return;
    }
  }

  // 6. and 7. The kind settled, its starting values.
  if (s.ItemKind == -1) s.ItemKind = s.IsWeight ? 0 : 3;
  switch (s.ItemKind) {
    case 0: s.Color = 2.0; s.Extraction = 1.033; break;
    case 1: s.Alpha = -1.0; s.BoilTime.clear(); break;
    case 3: s.Attenuation = 0.7; break;
    default: break;
  }

  // 8. The name: behind the unit's word.
  std::string name = s.Line;
  if (skip > 0) {
    const int blank = pos(s.Line, " ", skip);
    name = blank > 0 ? mid(s.Line, blank + 1) : std::string();
  }
  name = trim(name);
  if (!name.empty() && name[0] == '-') name = trim(name.substr(1));
  s.ItemName = titleCaps(name);

  // 9. Priming sugar belongs to the bottling, not the recipe's ingredients.
  if (priming()) return;

  // 10. What the kind's notes say.
  if (s.ItemKind == 1 && s.UnitText != "packets") hopsDetails();
  if (s.ItemKind == 3) {
    const int k = pos(lower(s.ItemName), "attenuation:");
    if (k > 0) {
      s.Attenuation = lenientValue(mid(s.ItemName, k + 12)) / 100.0;
      s.ItemName = cutBefore(s.ItemName, k);
    }
  }
  if (s.ItemKind == 0) maltDetails();

  // 11. An open bracket is closed.
  const size_t open = s.ItemName.find('(');
  if (open != std::string::npos && s.ItemName.find(')', open) == std::string::npos) s.ItemName += ")";

  addIngredient();
}

void RecipeReader::volumeLine() {
  ReaderLine& s = s_;
  Workbench& wb = editor_.wb;
  RecipeSheet& sheet = editor_.sheet;
  const std::string v = formatNumber(s.Quantity, "0.0");
  if (has(s.LineLower, "initial") || has(s.LineLower, "boil")) {
    sheet.txtInitalBoilVolume = v;
  } else if (has(s.LineLower, "final")) {
    sheet.txtFermentVolume = v;
  } else {
    // The batch size: the kettle follows while it still holds the program's default.
    if (trim(sheet.txtInitalBoilVolume) == formatNumber(wb.defaults.initialBoil, "0.0")) sheet.txtInitalBoilVolume = v;
    sheet.txtFermentVolume = v;
  }
  const Measures& m = measures();
  const int code = findInList(m.volumeUnits, static_cast<int>(m.volumeUnits.size()) - 1, s.UnitText,
                              std::clamp(wb.defaults.volumeUnits, 0, 7));
  wb.recipe.rec.volumeUnits = code;
  editor_.lblVolumeUnits = listText(m.volumeUnits, code);
  recompute(wb, sheet, EditEvent::Structure);
  editor_.recChanged();
}

bool RecipeReader::priming() {
  ReaderLine& s = s_;
  const std::string nameLower = lower(s.ItemName);
  int k = pos(nameLower, "for priming");
  if (k == 0) k = pos(nameLower, "priming");
  const std::string unit = s.UnitText.empty() ? std::string("Cups") : s.UnitText;
  std::string comment;
  if (k > 0)
    comment = formatNumber(s.Quantity, "0.0##") + " " + unit + " - " + trim(left(s.ItemName, k - 1));
  else if (has(nameLower, "corn sugar") && s.UnitText != "lbs" && s.Quantity < 5.0)
    comment = formatNumber(s.Quantity, "0.0##") + " " + unit + " - Corn Sugar";
  else
    return false;
  editor_.fermentation.txtConditioning = comment;
  editor_.recChanged();
  return true;
}

void RecipeReader::hopsDetails() {
  ReaderLine& s = s_;
  std::string& name = s.ItemName;

  // 1 to 6: the alpha note, "5.5%", "(4.5% AA)", "alpha 12", taken out of the name.
  std::string low = lower(name);
  const int P = pos(low, "%");
  int A = pos(low, "alpha"), word = 5;
  if (A == 0) {
    word = 2;
    for (int k = pos(low, "aa"); k > 0; k = pos(low, "aa", k + 1))
      if (!isLetter(at(low, k - 1))) {
        A = k;
        break;
      }
  }
  if (P > 0 || A > 0) {
    if (P > 0) name[static_cast<size_t>(P - 1)] = ' ';
    const int mark = P > 0 && (A == 0 || P < A) ? P : A;
    int walk = 0;
    s.Alpha = numberBefore(name, mark, &walk);
    int b = walk, e = mark;
    while (b < mark && name[static_cast<size_t>(b - 1)] == ' ') ++b;
    if (s.Alpha == 0) {
      const int q = findNumber(mark + 5, name, 1);
      if (q > 0) {
        s.Alpha = lenientValue(mid(name, q));
        b = mark;
        e = skipNumber(q, name) - 1;
        while (e > q && name[static_cast<size_t>(e - 1)] == ' ') --e;
      } else {
        s.Alpha = -1;
      }
    }
    if (s.Alpha > 0) {
      // The note reaches over the "%" and the word that names it when they follow the number.
      if (P > 0) e = std::max(e, P);
      if (A > 0) {
        int gap = e + 1;
        while (at(name, gap) == ' ') ++gap;
        if (gap == A || A <= e) e = std::max(e, A + word - 1);
      }
      while (b > 1 && !in(at(name, b - 1), " (-,")) --b;
      for (;;) {
        while (e < len(name) && !in(at(name, e + 1), " ),")) ++e;
        if (lower(mid(name, e + 1, 5)) == " acid") {
          e += 5;
          continue;
        }
        break;
      }
      if (at(name, b - 1) == '(' && at(name, e + 1) == ')') {
        --b;
        ++e;
      }
      name = cutOut(name, b, e);
    } else {
      s.Alpha = -1;
    }
  }

  // 7. Stray commas; a spelled-out "alpha acid:" value.
  name = trim(name);
  while (!name.empty() && name.front() == ',') name = trim(name.substr(1));
  while (!name.empty() && name.back() == ',') name = trim(name.substr(0, name.size() - 1));
  low = lower(name);
  if (const int k = pos(low, "alpha acid:"); k > 0) s.Alpha = lenientValue(mid(name, k + 11));

  // 8. The boil time: "boil 60", or "60 min" / "(45 minutes)", the latter cut from the name.
  if (const int k = pos(low, "boil"); k > 0 && findNumber(k, name, 1) > 0) {
    const int q = findNumber(k, name, 1);
    s.BoilTime = plainText(std::trunc(lenientValue(mid(name, q))));
  } else {
    int m = pos(low, "minute");
    if (m == 0) m = pos(low, " min");
    const int q = m > 0 ? findNumber(m, name, 0) : 0;
    if (q > 0) {
      s.BoilTime = plainText(std::trunc(lenientValue(mid(name, q))));
      int b = q, e = m;
      if (name[static_cast<size_t>(m - 1)] == ' ') ++e;
      while (e < len(name) && !in(at(name, e + 1), " ),")) ++e;
      if (at(name, e + 1) == ')') ++e;
      while (b > 1 && at(name, b - 1) == ' ') --b;
      if (in(at(name, b - 1), "(-")) --b;
      while (b > 1 && at(name, b - 1) == ' ') --b;
      if (at(name, b - 1) == ',') --b;
      name = cutOut(name, b, e);
      low = lower(name);
    }
  }
  // 9. Words that name the time.
  const std::string& l = s.LineLower;
  if (has(l, "finish")) s.BoilTime = "15";
  if (has(l, "aroma")) s.BoilTime = "10";
  if (has(l, "steep")) s.BoilTime = "0";
  if (has(l, "dry")) s.BoilTime = "0";
  if (s.BoilTime.empty()) s.BoilTime = "60";

  // 10. Everything from a spelled-out mark on leaves the name.
  int cut = pos(low, "alpha acid:");
  const int boil = pos(low, "boil");
  if (boil > 0 && (cut == 0 || boil < cut)) cut = boil;
  if (cut > 0) name = cutBefore(name, cut);
  name = trim(name);
  while (!name.empty() && (name.back() == ',' || name.back() == '-')) name = trim(name.substr(0, name.size() - 1));

  // 11. The variety's usual alpha when the line gives none.
  if (s.Alpha <= 0) {
    s.Alpha = 5.0;
    static const std::array<std::pair<const char*, double>, 14> varieties = {{
        {"bullion", 9.0},  {"fuggles", 6.5},   {"brewer", 7.5},  {"nugget", 7.5},  {"saaz", 3.5},
        {"liberty", 4.0},  {"spalt", 4.0},     {"styrian", 6.0}, {"centennial", 9.5}, {"chinook", 12.0},
        {"cluster", 6.5},  {"galena", 12.0},   {"perle", 7.5},   {"ringwood", 9.0},
    }};
    for (const auto& [v, alpha] : varieties)
      if (has(lower(name), v)) {
        s.Alpha = alpha;
        break;
      }
  }

  // 12. and 13. Bitterness units give the weight of these hops.
  if (s.UnitText == "hbu") {
    s.Quantity /= s.Alpha;
    s.UnitText = "oz";
  } else if (s.UnitText == "ibu") {
    const double volume = cellValue(editor_.sheet.txtFermentVolume);
    s.Quantity = std::trunc(volume * s.Quantity * 1.34 / (3.0 * s.Alpha)) / 10.0;
    s.UnitText = "oz";
  }
}

void RecipeReader::maltDetails() {
  ReaderLine& s = s_;
  std::string& name = s.ItemName;
  if (s.IsCan) s.Quantity *= 3.3;
  if (s.UnitText == "Cups") {
    s.UnitText = "lbs";
    if (s.CupsPerPound > 0) s.Quantity /= s.CupsPerPound;
  }

  // 3 and 4. A colour mark: "60L", "60 L", "(20 Lovibond)". Without one, the table below decides.
  s.Color = 0;
  int mark = 0;
  if (const int k = pos(name, "L", 2); k > 1) {
    int b = k - 1;
    if (at(name, b) == ' ') --b;
    if (isDigit(at(name, b))) mark = k;
  }
  if (mark == 0) mark = pos(lower(name), "lovi");
  if (mark > 0) {
    int walk = 0;
    s.Color = numberBefore(name, mark, &walk);
    if (s.Color > 0) {
      int b = walk, e = mark;
      while (b < mark && at(name, b) == ' ') ++b;
      while (e < len(name) && !in(at(name, e + 1), " ),")) ++e;
      if (at(name, b - 1) == '(') {
        --b;
        while (e < len(name) && at(name, e) != ')') ++e;
        if (at(name, e + 1) == ',') ++e;
      }
      name = cutOut(name, b, e);
    }
  }

  // 5. The colour and extract of the usual malts and sugars.
  if (s.Color == 0) {
    const std::string l = lower(name);
    if (has(l, "roast")) s.Color = 500, s.Extraction = 1.026;
    else if (has(l, "black")) s.Color = 400, s.Extraction = 1.022;
    else if (has(l, "choc")) s.Color = 350, s.Extraction = 1.029;
    else if (has(l, "stout")) s.Color = 120, s.Extraction = 1.030;
    else if (has(l, "light brown")) s.Color = 20, s.Extraction = 1.038;
    else if (has(l, "dark brown")) s.Color = 60, s.Extraction = 1.036;
    else if (has(l, "honey")) s.Color = 2, s.Extraction = 1.044;
    else if (has(l, "sugar")) s.Color = 1, s.Extraction = has(l, "corn") ? 1.033 : 1.047;
    else if (has(l, "Molasses")) s.Color = has(l, "light") ? 10 : 60, s.Extraction = 1.039;  // never: capital M
    else if (has(l, "dark")) s.Color = s.IsExtract ? 60 : 120, s.Extraction = 1.030;
    else if (has(l, "amber")) s.Color = s.IsExtract ? 10 : 30, s.Extraction = 1.031;
    else if (has(l, "munich")) s.Color = 14, s.Extraction = 1.033, s.IsMashed = true;
    else if (has(l, "vienna")) s.Color = 8, s.Extraction = 1.034, s.IsMashed = true;
    else if (has(l, "flaked")) s.Color = 1, s.Extraction = has(l, "barley") ? 1.028 : 1.037, s.IsMashed = true;
    else if (has(l, "caramel")) s.Color = 60, s.Extraction = 1.033;
    else if (has(l, "wheat")) s.Color = 2, s.Extraction = 1.037;
    else if (has(l, "oats")) s.Color = 1, s.Extraction = 1.037;
    else if (has(l, "rice")) s.Color = 1, s.Extraction = 1.037;
    else if (has(l, "rye")) s.Color = 1.5, s.Extraction = 1.032;
    else if (has(l, "crystal")) s.Color = has(l, "light") ? 20 : has(l, "dark") ? 120 : 40, s.Extraction = 1.033;
    else s.Color = 2, s.Extraction = 1.033;
  }

  // 6. A spelled-out colour.
  if (const int k = pos(lower(name), "color:"); k > 0) {
    s.Color = lenientValue(mid(name, k + 6));
    name = cutBefore(name, k);
  }
}

void RecipeReader::addIngredient() {
  ReaderLine& s = s_;
  Workbench& wb = editor_.wb;
  const Defaults& d = wb.defaults;
  const Measures& m = measures();
  if (s.ItemKind == 3 && s.ItemName.empty() && !(s.Quantity > 0)) return;
  if (editor_.sheet.grid.itemCount() >= kMaxRecipeItems) {
    // A recipe holds 25 ingredients; the lines beyond stay in the text.
    if (!fullReported_)
      wb.prompter.message("The recipe holds " + itos(kMaxRecipeItems) +
                              " ingredients, the most it can take; the lines from \"" + original_ +
                              "\" on were not added.",
                          kCaption, Icon::Warning);
    fullReported_ = true;
    return;
  }
  auto weightCode = [&](int fallback) { return findInList(m.weightUnits, 3, s.UnitText, std::clamp(fallback, 0, 3)); };
  switch (s.ItemKind) {
    case 0:
      if (s.Quantity == 0) s.Quantity = 1.0;
      if (s.ItemName.empty()) s.ItemName = "Malt";
      editor_.AddIngredient(0, s.ItemName, s.Quantity, weightCode(d.maltUnits), 0, s.Extraction, s.Color,
                            s.IsMashed ? -1 : 0);
      break;
    case 1: {
      if (s.ItemName.empty()) s.ItemName = "Hops";
      const double boil = lenientValue(s.BoilTime);
      editor_.AddIngredient(1, s.ItemName, s.Quantity, weightCode(d.hopsUnits), 0, s.Alpha, boil, 0);
      if (boil > wb.recipe.rec.boilTime) {
        wb.recipe.rec.boilTime = boil;
        editor_.txtBoilTime = formatNumber(boil, "0");
      }
      break;
    }
    case 2:
      if (s.Quantity == 0) s.Quantity = 1.0;
      editor_.AddIngredient(2, s.ItemName, s.Quantity,
                            findInList(m.otherUnits, 13, s.UnitText, std::clamp(d.otherUnits, 0, 13)), 0, 0, 0, 0);
      break;
    default:
      if ((s.ItemName.empty() || s.UnitText == "packets") && s.Quantity > 10) {
        s.ItemName = titleCaps(original_);
        s.Quantity = 1.0;
      }
      if (s.Quantity == 0) s.Quantity = 1.0;
      editor_.AddIngredient(3, s.ItemName, s.Quantity,
                            findInList(m.yeastUnits, 3, s.UnitText, std::clamp(d.yeastUnits, 0, 3)), 0,
                            s.Attenuation, 0, 0);
      break;
  }
  recompute(wb, editor_.sheet, EditEvent::Structure);
  editor_.recChanged();
}

void RecipeReader::fermentationDetails(const std::string& line, int stage) {
  if (stage < 0 || stage >= FermentationForm::kStages) return;
  FermentationForm& f = editor_.fermentation;
  const size_t k = static_cast<size_t>(stage);
  const std::string l = lower(line);
  const int p = findNumber(1, line, 1);
  const double time = p > 0 ? lenientValue(mid(line, p)) : 0;
  const int second = p > 0 ? findNumber(skipNumber(p, line), line, 1) : 0;
  if (time > 0) {
    int best = 0, unit = -1;
    const char* const words[3] = {"day", "week", "month"};
    for (int u = 0; u < 3; ++u) {
      const int w = pos(l, words[u], p);
      if (w > 0 && w - p <= 5 && (best == 0 || w < best)) best = w, unit = u;
    }
    if (unit >= 0) {
      f.txtValue[k] = formatNumber(time, "0");
      f.cboValueUnits[k] = unit;
    }
  }
  if (has(l, "plastic")) f.cboVessel[k] = 0;
  else if (has(l, "glass")) f.cboVessel[k] = 1;
  else if (has(l, "stainless")) f.cboVessel[k] = 2;
  const int atPos = pos(l, " at ");
  if (atPos > 0 && in(at(line, atPos + 4), kNumberChars) && isDigit(at(line, findNumber(atPos + 4, line, 1))))
    f.txtTemp[k] = formatNumber(lenientValue(mid(line, atPos + 4)), "0.0");
  else if (second > 0)
    f.txtTemp[k] = formatNumber(lenientValue(mid(line, second)), "0.0");
  editor_.recChanged();
}

bool RecipeReader::importText(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    editor_.wb.prompter.message("Unable to read the file \"" + path + "\".", "Import Text File", Icon::Warning);
    return false;
  }
  std::ostringstream buf;
  buf << in.rdbuf();
  std::string text = crlfText(buf.str());
  if (isUtf8Text(text)) text = utf8ToCp1252(text);
  if (!txtComment.empty() && txtComment.size() >= 2 && txtComment.substr(txtComment.size() - 2) != "\r\n") txtComment += "\r\n";
  txtComment += text;
  const size_t slash = path.find_last_of("/\\");
  editor_.wb.settings.write("Comments", "File Path", slash == std::string::npos ? std::string() : path.substr(0, slash));
  return true;
}

bool RecipeReader::exportText(const std::string& path) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  if (out) out << txtComment;
  if (!out) {
    editor_.wb.prompter.message("Unable to Generate Output File", "Export Comments to File", Icon::Warning);
    return false;
  }
  return true;
}

}  // namespace zy
