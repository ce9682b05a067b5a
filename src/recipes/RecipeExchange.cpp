#include "recipes/RecipeExchange.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cmath>
#include <optional>

#include "core/errorlog.h"
#include "core/numfmt.h"
#include "core/records.h"
#include "core/text.h"
#include "recipes/RecipeList.h"
#include "recipes/RecipeStore.h"
#include "workbench/Workbench.h"

namespace zy {

// ---------------------------------------------------------------------------------------------
// The field stream.

int ExchangeFieldReader::peek() {
  if (pos_ < buf_.size()) return static_cast<unsigned char>(buf_[pos_]);
  if (!file_) return -1;
  buf_.clear();
  pos_ = 0;
  char piece[65536];
  size_t got = std::fread(piece, 1, sizeof piece, file_);
  if (got == 0) {
    file_ = nullptr;
    return -1;
  }
  buf_.assign(piece, got);
  return static_cast<unsigned char>(buf_[0]);
}

void ExchangeFieldReader::skipSpace() {
  for (int c = peek(); c == ' ' || c == '\t' || c == '\r' || c == '\n'; c = peek()) ++pos_;
}

bool ExchangeFieldReader::eof() {
  skipSpace();
  return peek() < 0;
}

void ExchangeFieldReader::endOfField() {
  // Past the comma, or past the line end (CR LF counts as one).
  int c = peek();
  if (c == ',' || c == '\n') {
    ++pos_;
  } else if (c == '\r') {
    ++pos_;
    if (peek() == '\n') ++pos_;
  }
}

bool ExchangeFieldReader::next(std::string& field) {
  field.clear();
  // Blanks and empty lines before a field are passed over.
  skipSpace();
  int c = peek();
  if (c < 0) return false;
  auto delimiter = [](int ch) { return ch < 0 || ch == ',' || ch == '\r' || ch == '\n'; };
  if (c == '"') {
    ++pos_;
    while ((c = peek()) >= 0) {
      ++pos_;
      if (c == '"') {
        if (peek() != '"') break;
        ++pos_;  // a doubled quote is one quote character
      }
      field += static_cast<char>(c);
    }
    // Whatever stands between the closing quote and the delimiter is dropped.
    while (!delimiter(peek())) ++pos_;
    endOfField();
    return true;
  }
  while (!delimiter(c = peek())) {
    field += static_cast<char>(c);
    ++pos_;
  }
  field = rtrim(trimWhite(field));
  endOfField();
  return true;
}

// ---------------------------------------------------------------------------------------------
// Helpers.

std::string escapeCommas(const std::string& text) { return replaceAll(text, ",", "~"); }

int findListIndex(const StringList& names, int lastIndex, std::string_view value, int fallback) {
  std::string v = trim(value);
  const int last = std::min(lastIndex, static_cast<int>(names.size()) - 1);
  for (int i = 0; i <= last; ++i)
    if (iequals(names[static_cast<size_t>(i)], v)) return i;
  return fallback;
}

std::string safeFileName(const std::string& name, bool useUnderscores) {
  std::string r = trim(name);
  for (char& c : r) {
    if (c == '"' || c == '\'' || c == '/' || c == '\\' || c == ':' || c == '|') c = '-';
    else if (useUnderscores && c == ' ') c = '_';
  }
  return r;
}

std::string shortFileName(const std::string& name) {
  std::string text = name;
  size_t dash = text.find(" -- ");
  if (dash != std::string::npos) text = trim(text.substr(dash + 4));
  static const std::string kDropped = std::string("~`@#$%^&*()-_+=?/>.<,':;]}[{") + '"';
  auto isVowel = [](char c) {
    char l = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return l == 'a' || l == 'e' || l == 'i' || l == 'o' || l == 'u';
  };
  std::string result;
  bool keepVowel = true;
  for (char c : text) {
    bool appended = false;
    if (isVowel(c)) {
      if (keepVowel) {
        result += c;
        appended = true;
      }
    } else if (c != ' ' && kDropped.find(c) == std::string::npos) {
      result += c;
      appended = true;
    }
    if (appended) keepVowel = false;
    if (result.size() == 1 || c == ' ') keepVowel = true;
    if (appended && result.size() >= 8) break;
  }
  if (result.empty()) result = "beer";
  return lower(result);
}

// ---------------------------------------------------------------------------------------------
// The writer.

namespace {
const char* const kExportFn = "RecipeList!exportRecipe";
const std::string kCrLf = "\r\n";

std::string q(const std::string& v) { return "\"" + v + "\""; }

// name="value" as one field. Double quotes inside a plain field are plain characters, and the
// reader drops the first and last character of the value; but a comma or a line break would end
// the field there, so a value holding one is written as a quoted field, "name=""value""", which
// runs to its closing quote whatever it holds (as the comment block does).
std::string attr(const std::string& name, const std::string& value) {
  std::string field = name + "=" + q(value);
  if (value.find_first_of(",\r\n") == std::string::npos) return field;
  return q(replaceAll(field, "\"", "\"\""));
}

// The name of a unit code; a code outside its list is read as the default unit, so it is
// written as that unit's name.
const std::string& unitName(const StringList& list, int code, int defaultCode) {
  const int n = static_cast<int>(list.size());
  if (code >= 0 && code < n) return list[static_cast<size_t>(code)];
  return listText(list, defaultCode >= 0 && defaultCode < n ? defaultCode : 0);
}

// The number in its general form, as Str$ gives it without the leading blank.
std::string general(double v) { return plainText(v); }

std::string withCedilla(const std::string& text) { return replaceAll(trim(text), ",", std::string(1, kCedilla)); }

const char* containerName(int c) {
  switch (c) {
    case 0: return "Bottles";
    case 1: return "Kegs";
    case 2: return "Bottles & Kegs";
    default: return "Other";
  }
}
const char* carbonationName(int c) {
  switch (c) {
    case 0: return "Priming";
    case 1: return "Kraeusening";
    case 2: return "Forced CO2";
    default: return "None";
  }
}
}  // namespace

std::string exportRecipeText(Workbench& wb) {
  CurrentRecipe& cur = wb.recipe;
  RecipeRecord& r = cur.rec;
  const Measures& m = measures();
  // The writer trims the text fields of the record it writes from.
  r.recipeName = trim(r.recipeName);
  r.beerStyle = trim(r.beerStyle);
  r.dateCreated = trim(r.dateCreated);
  r.idCode = trim(r.idCode);
  r.labelName = trim(r.labelName);

  std::string out;
  auto line = [&](const std::string& s) { out += s + kCrLf; };
  line("<Recipe_Format_1.0>");

  // The date is written also when empty, so that a recipe without one does not come back dated
  // today.
  std::string recipe = "<Recipe> Type=" + q(listText(m.recipeTypes, r.recipeType)) + ", " + attr("Name", r.recipeName) +
                       ", BoilTime=" + formatNumber(r.boilTime, "0") + ", " + attr("Date", r.dateCreated);
  if (!r.idCode.empty()) recipe += ", " + attr("Code", r.idCode);
  if (!r.labelName.empty()) recipe += ", " + attr("Label", r.labelName);
  if (!r.beerStyle.empty()) recipe += ", " + attr("Style", r.beerStyle);
  line(recipe);

  line("<Volume> Initial=" + formatNumber(r.boilVolume, "0.0") + ", Final=" + formatNumber(r.fermentVolume, "0.0") +
       ", Units=" + q(unitName(m.volumeUnits, r.volumeUnits, wb.defaults.volumeUnits)));
  line("<Color> Value=" + formatNumber(r.color, "0") + ", Units=\"Lovi\"");
  line("<Bitterness> Value=" + itos(r.bitterness) + ", Units=\"IBU\"");
  line("<Gravity> Original=" + formatNumber(r.originalGravity, "0.000") +
       ", Final=" + formatNumber(r.finalGravity, "0.000") + ", Alcohol=" + formatNumber(r.alcohol, "0.0"));

  const int count = std::max(0, std::min(r.itemCount, kMaxRecipeItems));
  for (int k = 0; k < count; ++k) {
    const RecipeItemRecord& it = cur.items[static_cast<size_t>(k)];
    // The name is the first attribute, behind the tag; a name that needs a quoted field stands
    // apart from its tag.
    const std::string type = attr("Type", escapeCommas(trim(it.itemName)));
    const std::string sep = type[0] == '"' ? ", " : " ";
    const std::string qty = formatNumber(it.quantity, "0.0#");
    const Defaults& d = wb.defaults;
    std::string s;
    switch (it.itemKind) {
      case KIND_MALT:
        s = "<Malt>" + sep + type + ", Quantity=" + qty + ", Units=" + q(unitName(m.weightUnits, it.quantityUnits, d.maltUnits)) +
            ", Extraction=" + formatNumber(it.rating, "0.000") + ", Mash=" + q(it.mashFlag != 0 ? "Yes" : "No") +
            ", Color=" + formatNumber(it.detail, "0");
        break;
      case KIND_HOPS:
        s = "<Hops>" + sep + type + ", Quantity=" + qty + ", Units=" + q(unitName(m.weightUnits, it.quantityUnits, d.hopsUnits)) +
            ", Alpha=" + formatNumber(it.rating, "0.0") + ", BoilTime=" + formatNumber(it.detail, "0");
        break;
      case KIND_OTHER:
        s = "<Other>" + sep + type + ", Quantity=" + qty + ", Units=" + q(unitName(m.otherUnits, it.quantityUnits, d.otherUnits));
        break;
      case KIND_YEAST:
        s = "<Yeast>" + sep + type + ", Quantity=" + qty + ", Units=" + q(unitName(m.yeastUnits, it.quantityUnits, d.yeastUnits)) +
            ", Attenuation=" + formatNumber(it.rating * 100, "0");
        break;
      default:
        // A kind the format has no tag for cannot travel; the brewer hears which item stays behind.
        wb.prompter.message("Item " + itos(k + 1) + " (" + trim(it.itemName) + ") has the unknown kind " +
                                itos(it.itemKind) + " and was not written to the export file",
                            kApplicationName, Icon::Warning);
        continue;
    }
    if (wb.defaults.includeCost == 1 && it.unitCost > 0) s += ", UnitCost=" + formatNumber(it.unitCost, "0.00");
    line(s);
  }

  std::string mash = "<Mash> Type=" + q(listText(m.mashTypes, r.mashType));
  if (r.mashType > 0)
    mash += ", Efficiency=" + formatNumber(r.mashEfficiency, "0;\\1\\0\\0;\\1\\0\\0") +
            ", Rate=" + formatNumber(r.mashWaterRate, "0.00;\\0\\.\\4\\0;\\0\\.\\4\\0");
  line(mash);
  if (r.mashType > 0) {
    for (size_t k = 0; k < 13; ++k) {
      if (!(r.mashStepTime[k] > 0)) continue;
      std::string s = "<Mash> Index=" + itos(static_cast<long long>(k)) + ", Temp=" + general(r.mashStepTemp[k]) +
                      ", Time=" + general(r.mashStepTime[k]);
      std::string c = trim(r.mashStepComment[k]);
      if (!c.empty()) s += ", " + attr("Comments", withCedilla(c));
      line(s);
    }
    line("<Sparge> Volume=" + formatNumber(r.spargeVolume, "0.0") + ", Units=" +
         q(unitName(m.volumeUnits, r.volumeUnits, wb.defaults.volumeUnits)) + ", Temp=" + general(r.spargeTemp) +
         ", Rate=" + formatNumber(r.spargeRate, "0.00;\\0\\.\\4\\0;\\0\\.\\4\\0"));
  }
  for (size_t i = 0; i < 3; ++i) {
    if (!(r.fermentTime[i] > 0)) continue;
    line("<Fermentation> " + m.fermentStages[i] + "=" + general(r.fermentTime[i]) +
         ", Units=" + q(unitName(m.timeUnits, r.fermentTimeUnits[i], 0)) + ", Temp=" + general(r.fermentTemp[i]) +
         ", Vessel=" + q(listText(m.vessels, r.fermentVessel[i])));
  }
  line("<Priming> Container=" + q(containerName(r.container)) + ", Carbonation=" + q(carbonationName(r.carbonation)) +
       ", " + attr("Comments", withCedilla(r.primingComment)));
  if (r.agingCount > 0) {
    std::string s = "<Aging> Count=" + formatNumber(r.agingCount, "0") + ", Units=" + q(unitName(m.timeUnits, r.agingUnits, 0));
    if (r.agingTemp > 0) s += ", Temp=" + formatNumber(r.agingTemp, "0");
    line(s);
  }
  line("<Comments_Start>");
  line(q(replaceAll(trim(cur.comment), "\"", "\"\"")));
  line("<Comments_End>");
  line("<End_Recipe_Format>");
  return out;
}

bool exportRecipe(Workbench& wb, std::FILE* file) {
  std::string text = exportRecipeText(wb);
  errno = 0;
  if (!file || std::fwrite(text.data(), 1, text.size(), file) != text.size() || std::fflush(file) != 0) {
    FileError e = fileErrorFromErrno(errno ? errno : EIO, "export file");
    wb.errors.reportFileError(e, 0, kExportFn);
    return false;
  }
  return true;
}

// ---------------------------------------------------------------------------------------------
// The reader.

namespace {
// An error inside the reader: it ends the reading at once.
struct ReaderError {
  int number;
};

// A value put into a 16-bit whole number: to the even neighbour at a half; out of range is an
// overflow.
int toInt16(double v) {
  double r = std::nearbyint(v);
  if (!(r >= -32768.0 && r <= 32767.0)) throw ReaderError{ERR_OVERFLOW};
  return static_cast<int>(r);
}

bool holdsExtractWord(const std::string& name) {
  std::string l = lower(name);
  for (const char* w : {"dme", "honey", "sugar", "syrup", "ext"})
    if (l.find(w) != std::string::npos) return true;
  return false;
}

std::string cut(const std::string& s, size_t n) { return s.size() > n ? s.substr(0, n) : s; }

struct Reader {
  Workbench& wb;
  ExchangeFieldReader in;
  ImportOutcome outcome;
  int localCount = 0;
  bool recipeOpen = false;
  int index = 0;  // the mash step k and the fermentation stage i share one variable
  std::string tag;

  RecipeRecord& rec() { return wb.recipe.rec; }
  RecipeItemRecord& item() { return wb.recipe.items[static_cast<size_t>(localCount - 1)]; }

  void newItem(int kind) {
    if (localCount >= kMaxRecipeItems) throw ReaderError{ERR_SUBSCRIPT};  // the 26th item
    ++localCount;
    RecipeItemRecord& it = item();
    it = RecipeItemRecord{};
    it.itemKind = kind;
    it.itemName.clear();
    it.quantity = 0;
    it.quantityUnits = -1;
    it.unitCost = it.rating = it.detail = 0;
    it.mashFlag = 0;
  }

  static int itemKindOf(const std::string& t) {
    if (t == "<Malt>") return KIND_MALT;
    if (t == "<Hops>") return KIND_HOPS;
    if (t == "<Other>") return KIND_OTHER;
    if (t == "<Yeast>") return KIND_YEAST;
    return -1;
  }

  void act(bool newTag, const std::string& name, const std::string& value) {
    const Measures& m = measures();
    const Defaults& d = wb.defaults;
    RecipeRecord& r = rec();
    auto num = [&]() { return lenientValue(value); };

    if (tag == "<Comments_Start>") {
      // The very next field is the comment, as it comes, also while no recipe is open.
      std::string comment;
      in.next(comment);
      wb.recipe.comment = comment;
      return;
    }
    if (tag == "<Comments_End>") return;
    if (tag == "<End_Recipe_Format>") {
      recipeOpen = false;
      return;
    }
    if (tag == "<Recipe>") {
      if (name == "Name") {
        r.recipeName = cut(wb.recipeList.uniqueName(value), 60);
        recipeOpen = true;
        return;
      }
      if (name == "Type") {
        r.recipeType = findListIndex(m.recipeTypes, 6, value, 0);
        recipeOpen = true;
        return;
      }
    }
    if (!recipeOpen) return;

    const int kind = itemKindOf(tag);
    if (kind >= 0) {
      if (newTag) newItem(kind);
      if (localCount == 0) return;
      RecipeItemRecord& it = item();
      if (name == "Type") {
        it.itemName = cut(value, 50);
        if (kind == KIND_MALT) it.mashFlag = holdsExtractWord(value) ? 0 : -1;
      } else if (name == "Quantity") {
        it.quantity = num();
      } else if (name == "UnitCost") {
        it.unitCost = num();
      } else if (name == "Units") {
        switch (kind) {
          case KIND_MALT: it.quantityUnits = findListIndex(m.weightUnits, 3, value, d.maltUnits); break;
          case KIND_HOPS: it.quantityUnits = findListIndex(m.weightUnits, 3, value, d.hopsUnits); break;
          case KIND_OTHER: it.quantityUnits = findListIndex(m.otherUnits, 13, value, d.otherUnits); break;
          default: it.quantityUnits = findListIndex(m.yeastUnits, 3, value, d.yeastUnits); break;
        }
      } else if (kind == KIND_MALT) {
        if (name == "Extraction") it.rating = num();
        else if (name == "Color") it.detail = num();
        else if (name == "Mash") it.mashFlag = value == "Yes" ? -1 : 0;
      } else if (kind == KIND_HOPS) {
        if (name == "Alpha") {
          it.rating = num();
        } else if (name == "BoilTime") {
          it.detail = num();
          if (r.boilTime < it.detail) r.boilTime = it.detail;
        }
      } else if (kind == KIND_YEAST && name == "Attenuation") {
        it.rating = num() / 100;
        if (it.rating < 0.5 || it.rating > 0.95) it.rating = d.yeastAttenuation;
      }
      return;
    }

    if (tag == "<Recipe>") {
      if (name == "Code") r.idCode = cut(value, 10);
      else if (name == "Label") r.labelName = cut(value, 35);
      else if (name == "Date") r.dateCreated = cut(value, 11);
      else if (name == "Style") r.beerStyle = cut(value, 60);
      else if (name == "BoilTime") {
        auto v = strictValue(value);
        if (!v) throw ReaderError{ERR_TYPE_MISMATCH};
        r.boilTime = *v;
      }
    } else if (tag == "<Volume>") {
      if (name == "Initial") r.boilVolume = num();
      else if (name == "Final") r.fermentVolume = num();
      else if (name == "Units") {
        // Read as a unit-system code, not as a name: a unit name reads as 0.
        double code = std::trunc(num());
        r.unitType = code > 2 ? 0 : toInt16(code);
        if (r.volumeUnits == -1) {
          if (r.unitType == US_MEASURES) r.volumeUnits = US_GAL_CONST;
          else if (r.unitType == METRIC_MEASURES) r.volumeUnits = LITER_CONST;
          else if (r.unitType == IMPERIAL_MEASURES) r.volumeUnits = IMPERIAL_GAL_CONST;
        }
      }
    } else if (tag == "<Color>") {
      if (name == "Value") r.color = num();
    } else if (tag == "<Bitterness>") {
      if (name == "Value") r.bitterness = toInt16(num());
    } else if (tag == "<Gravity>") {
      if (name == "Original") r.originalGravity = num();
      else if (name == "Final") r.finalGravity = num();
      else if (name == "Alcohol") r.alcohol = num();
    } else if (tag == "<Mash>") {
      if (name == "Type") r.mashType = findListIndex(m.mashTypes, 5, value, 0);
      else if (name == "Efficiency") r.mashEfficiency = num();
      else if (name == "Rate") r.mashWaterRate = num();
      else if (name == "Index") index = toInt16(num());
      else if (name == "Temp" || name == "Time" || name == "Comments") {
        if (index < 0 || index > 12) return;
        const size_t k = static_cast<size_t>(index);
        if (name == "Temp") r.mashStepTemp[k] = num();
        else if (name == "Time") r.mashStepTime[k] = num();
        else r.mashStepComment[k] = cut(replaceText(value, std::string(1, kCedilla), ","), 40);
      }
    } else if (tag == "<Sparge>") {
      if (name == "Volume") r.spargeVolume = num();
      else if (name == "Quarts") {
        r.spargeVolume = num() * 4;
        r.spargeVolumeUnits = US_GAL_CONST;
      } else if (name == "Units") {
        r.spargeVolumeUnits = US_GAL_CONST;
        for (size_t u = 0; u < m.volumeUnits.size(); ++u)
          if (m.volumeUnits[u] == value) {
            r.spargeVolumeUnits = static_cast<int>(u);
            break;
          }
      } else if (name == "Temp") r.spargeTemp = num();
      else if (name == "Rate") r.spargeRate = num();
    } else if (tag == "<Fermentation>") {
      if (name == "Primary" || name == "Secondary" || name == "Tertiary") {
        index = name == "Primary" ? 0 : name == "Secondary" ? 1 : 2;
        r.fermentTime[static_cast<size_t>(index)] = num();
      } else if (name == "Units" || name == "Vessel" || name == "Temp") {
        // The stage shares its variable with the mash step; a step number is no stage.
        if (index < 0 || index > 2) throw ReaderError{ERR_SUBSCRIPT};
        const size_t i = static_cast<size_t>(index);
        if (name == "Units") r.fermentTimeUnits[i] = findListIndex(m.timeUnits, 2, value, 0);
        else if (name == "Vessel") r.fermentVessel[i] = findListIndex(m.vessels, 2, value, 0);
        else r.fermentTemp[i] = num();
      }
    } else if (tag == "<Priming>" || tag == "<Conditioning>") {
      if (name == "Container") {
        r.container = value == "Other" ? 3 : value == "Bottles & Kegs" ? 2 : value == "Kegs" ? 1 : 0;
      } else if (name == "Carbonation") {
        r.carbonation = value == "None" ? 3 : value == "Forced CO2" ? 2 : value == "Kraeusening" ? 1 : 0;
      } else if (name == "Comments") {
        r.primingComment = cut(replaceText(value, std::string(1, kCedilla), ","), 80);
      }
    } else if (tag == "<Aging>") {
      if (name == "Count") r.agingCount = toInt16(num());
      else if (name == "Units") r.agingUnits = findListIndex(m.timeUnits, 2, value, 0);
      else if (name == "Temp") r.agingTemp = num();
    }
  }

  void run() {
    newRecipeRecord(wb);
    std::string field;
    bool found = false;
    while (in.next(field)) {
      if (field == "<Recipe_Format_1.0>") {
        found = true;
        break;
      }
    }
    if (!found || in.eof()) {
      wb.prompter.message("Not a Recognized Zythara Recipe File", kApplicationName, Icon::None);
      return;
    }
    outcome.recognized = true;
    localCount = 0;
    recipeOpen = false;
    rec().volumeUnits = -1;
    try {
      if (!in.next(field)) return;
      for (;;) {
        std::string attribute = field;
        bool newTag = false;
        if (!field.empty() && field[0] == '<') {
          size_t close = field.find('>', 1);
          if (close == std::string::npos) {
            tag = field;
            attribute.clear();
          } else {
            tag = field.substr(0, close + 1);
            attribute = trim(field.substr(close + 1));
          }
          newTag = true;
        }
        std::string name, value;
        size_t eq = attribute.find('=');
        if (eq != std::string::npos) {
          name = attribute.substr(0, eq);  // names compare exactly: "Style " is not "Style"
          value = trim(attribute.substr(eq + 1));
          if (!value.empty() && value[0] == '"') value = value.size() >= 2 ? value.substr(1, value.size() - 2) : "";
          value = replaceAll(value, "~", ",");
        }
        act(newTag, name, value);
        if (in.eof()) {
          rec().itemCount = localCount;
          break;
        }
        in.next(field);
      }
    } catch (const ReaderError& e) {
      outcome.endedByError = true;
      (void)e;
    }
    outcome.items = localCount;
  }
};
}  // namespace

ImportOutcome importRecipe(Workbench& wb, std::string_view text) {
  Reader r{wb, ExchangeFieldReader(text), {}, 0, false, 0, {}};
  r.run();
  return r.outcome;
}

ImportOutcome importRecipe(Workbench& wb, std::FILE* file) {
  if (!file) return importRecipe(wb, std::string_view());
  Reader r{wb, ExchangeFieldReader(file), {}, 0, false, 0, {}};
  r.run();
  return r.outcome;
}

}  // namespace zy
