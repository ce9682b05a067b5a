#include "styles/StyleEditor.h"

#include <algorithm>
#include <cmath>

#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

namespace {

// What each of the five measures is called, shown in, and may hold in a brewer's own style.
struct Measure {
  const char* caption;     // the bar's caption
  const char* shortName;   // in messages
  const char* format;
  double minimum, maximum;  // the limits a range must keep
  double axisMin, axisMax;  // the usual scale of its bar
  LimitKind kind;
};
const std::array<Measure, 5>& measures() {
  static const std::array<Measure, 5> m{{
      {"Original Gravity", "O.G.", "0.000", 1.000, 1.200, 1.000, 1.120, LimitKind::Gravity},
      {"Final Gravity", "F.G.", "0.000", 0.980, 1.100, 0.990, 1.040, LimitKind::Gravity},
      {"Bitterness (IBU)", "IBU", "0", 0, 200, 0, 100, LimitKind::Plain},
      {"Color (SRM)", "Color (SRM)", "0.0", 0, 100, 0, 40, LimitKind::Plain},
      {"Alcohol % by Volume", "Alcohol %", "0.0", 0, 25, 0, 12, LimitKind::Plain},
  }};
  return m;
}

std::array<double, 10> rangesOf(const BeerStyleRecord& s) {
  return {s.ogLow, s.ogHigh, s.fgLow, s.fgHigh, s.ibuLow, s.ibuHigh, s.srmLow, s.srmHigh, s.alcoholLow, s.alcoholHigh};
}

void setRanges(BeerStyleRecord& s, const std::array<double, 10>& v) {
  s.ogLow = v[0], s.ogHigh = v[1], s.fgLow = v[2], s.fgHigh = v[3], s.ibuLow = v[4], s.ibuHigh = v[5];
  s.srmLow = v[6], s.srmHigh = v[7], s.alcoholLow = v[8], s.alcoholHigh = v[9];
}

double recipeValue(const RecipeStyleValues& v, int i) {
  switch (i) {
    case MEASURE_OG: return v.og;
    case MEASURE_FG: return v.fg;
    case MEASURE_IBU: return v.ibu;
    case MEASURE_COLOR: return v.color;
    default: return v.alcohol;
  }
}

bool named(const std::string& text) { return !trim(text).empty(); }

}  // namespace

const std::array<std::string, 4>& browserSourceNames() {
  static const std::array<std::string, 4> n{"All", "Custom", "AOB", "BJCP"};
  return n;
}

std::array<StyleRangeBar, 5> styleRangeBars(const BeerStyleRecord& s, const RecipeStyleValues* recipe) {
  std::array<StyleRangeBar, 5> bars;
  const auto r = rangesOf(s);
  for (int i = 0; i < 5; ++i) {
    const Measure& m = measures()[static_cast<size_t>(i)];
    StyleRangeBar& b = bars[static_cast<size_t>(i)];
    b.caption = m.caption;
    b.low = r[static_cast<size_t>(2 * i)];
    b.high = r[static_cast<size_t>(2 * i + 1)];
    b.open = b.low == 0 && b.high == 0;
    b.rangeText = b.open ? "Not given" : formatNumber(b.low, m.format) + " - " + formatNumber(b.high, m.format);
    // The usual scale, widened to take a style that lies outside it.
    b.axisMin = m.axisMin;
    b.axisMax = m.axisMax;
    if (!b.open) {
      b.axisMin = std::min(b.axisMin, b.low);
      if (b.high > b.axisMax) b.axisMax = b.high + (m.axisMax - m.axisMin) * 0.05;
    }
    if (recipe) {
      b.hasValue = true;
      b.value = recipeValue(*recipe, i);
      b.valueText = formatNumber(b.value, m.format);
      const StyleDeviation d = styleDeviation(b.value, b.low, b.high, m.kind);
      b.state = d.text();
      b.color = d.color();
      // A value beyond the scale's top widens it (a value below it is drawn at its left end).
      if (b.value > b.axisMax && std::isfinite(b.value))
        b.axisMax = std::min(b.value * 1.05, m.maximum * 2);
    }
  }
  return bars;
}

// ---- Settings ------------------------------------------------------------------------------

StyleBrowserSettings StyleBrowserSettings::read(const SettingsStore& s) {
  StyleBrowserSettings r;
  const double f = lenientValue(s.read(kSection, "Source Filter", "0"));
  r.sourceFilter = (f >= 0 && f <= 3) ? static_cast<int>(f) : BROWSE_ALL;
  for (size_t i = 0; i < r.columnWidths.size(); ++i) {
    const double w = lenientValue(s.read(kSection, "Column Width " + itos(static_cast<long long>(i + 1)), ""));
    if (w >= 20 && w <= 2000) r.columnWidths[i] = static_cast<int>(w);
  }
  return r;
}

void StyleBrowserSettings::write(SettingsStore& s) const {
  s.write(kSection, "Source Filter", itos(sourceFilter));
  for (size_t i = 0; i < columnWidths.size(); ++i)
    s.write(kSection, "Column Width " + itos(static_cast<long long>(i + 1)), itos(columnWidths[i]));
}

// ---- The list --------------------------------------------------------------------------------

std::vector<StyleBrowserEntry> StyleEditor::entries() const {
  std::vector<StyleBrowserEntry> out;
  const int n = std::clamp(t_.BeerStyleCount, 0, kStyleTableRows);
  for (int i = 0; i < n; ++i) {
    const BeerStyleRecord& s = t_.BeerStyles[static_cast<size_t>(i)];
    if (!named(s.styleName)) continue;
    if (sourceFilter != BROWSE_ALL && s.source != sourceFilter - 1) continue;
    out.push_back(styleBrowserEntry(t_, i));
  }
  return out;
}

int StyleEditor::styleCount() const {
  int c = 0;
  for (int i = 0; i < std::clamp(t_.BeerStyleCount, 0, kStyleTableRows); ++i)
    if (named(t_.BeerStyles[static_cast<size_t>(i)].styleName)) ++c;
  return c;
}

int StyleEditor::categoryCount() const {
  int c = 0;
  for (int i = 0; i < std::clamp(t_.BeerCategoryCount, 0, kCategoryTableRows); ++i)
    if (named(t_.BeerCategories[static_cast<size_t>(i)].category)) ++c;
  return c;
}

bool StyleEditor::fail(const std::string& text) {
  prompter_.message(text, kTitle, Icon::Warning);
  return false;
}

bool StyleEditor::save() { return saveBeerStyles(t_, folder_, errors_); }

// ---- Styles ------------------------------------------------------------------------------------

bool StyleEditor::isCustomStyle(int row) const {
  return row >= 0 && row < std::min(t_.BeerStyleCount, kStyleTableRows) &&
         t_.BeerStyles[static_cast<size_t>(row)].source == STYLE_SOURCE_CUSTOM;
}

StyleForm StyleEditor::formOf(int row) const {
  StyleForm f;
  if (row < 0 || row >= std::min(t_.BeerStyleCount, kStyleTableRows)) return f;
  const BeerStyleRecord& s = t_.BeerStyles[static_cast<size_t>(row)];
  f.txtName = trim(s.styleName);
  f.txtId = trim(s.styleId);
  f.category = findCategoryRow(t_, s.categoryIndex);
  const auto r = rangesOf(s);
  for (size_t i = 0; i < 10; i += 2) {
    const char* fmt = measures()[i / 2].format;
    if (r[i] == 0 && r[i + 1] == 0) continue;  // a range the style leaves open: empty boxes
    f.txtRange[i] = formatNumber(r[i], fmt);
    f.txtRange[i + 1] = formatNumber(r[i + 1], fmt);
  }
  f.txtComments = s.comments;
  return f;
}

StyleForm StyleEditor::newStyleForm(int fromRow) const {
  StyleForm f = formOf(fromRow);
  f.txtName.clear();
  f.txtId.clear();
  f.txtComments.clear();
  return f;
}

bool StyleEditor::mayAddStyle() {
  if (styleCount() < kMaxStyles && freeStyleRow() < kStyleTableRows) return true;
  return fail("There is no room for another Beer Style: Zythara holds at most " + itos(kMaxStyles) +
              " Beer Styles. Delete a style you no longer use first.");
}

int StyleEditor::freeStyleRow() const {
  const int n = std::clamp(t_.BeerStyleCount, 0, kStyleTableRows);
  for (int i = 0; i < n; ++i)
    if (!named(t_.BeerStyles[static_cast<size_t>(i)].styleName)) return i;
  return n;
}

std::optional<double> StyleEditor::rangeNumber(const std::string& text, const std::string& caption) {
  if (trim(text).empty()) return 0.0;
  const auto v = strictValue(trim(text));
  if (!v || !std::isfinite(*v)) {
    fail(caption + " must be a number");
    return std::nullopt;
  }
  return *v;
}

int StyleEditor::acceptStyle(int row, const StyleForm& f) {
  const bool adding = row < 0;
  if (!adding && !isCustomStyle(row)) {
    fail("Only Custom Beer Styles can be changed. Use New Style to make a custom copy of this style.");
    return -1;
  }
  if (adding && !mayAddStyle()) return -1;
  const std::string name = trim(f.txtName), id = trim(f.txtId);
  if (name.empty()) return fail("Please enter the Name of the Beer Style"), -1;
  if (name.size() > kStyleNameWidth) return fail("The Name of a Beer Style holds at most 60 characters"), -1;
  if (id.size() > kStyleIdWidth) return fail("The Style ID holds at most 20 characters"), -1;
  // A recipe refers to its style by name only, so two styles may not share one.
  for (int i = 0; i < std::min(t_.BeerStyleCount, kStyleTableRows); ++i)
    if (i != row && iequals(trim(t_.BeerStyles[static_cast<size_t>(i)].styleName), name))
      return fail("A Beer Style named '" + name + "' already exists"), -1;
  if (f.category < 0 || f.category >= std::min(t_.BeerCategoryCount, kCategoryTableRows) ||
      !named(t_.BeerCategories[static_cast<size_t>(f.category)].category))
    return fail("Please choose the Category of the Beer Style"), -1;
  static const char* const ends[2] = {" Low", " High"};
  std::array<double, 10> v{};
  for (size_t i = 0; i < 10; ++i) {
    const auto n = rangeNumber(f.txtRange[i], std::string(measures()[i / 2].shortName) + ends[i % 2]);
    if (!n) return -1;
    v[i] = *n;
  }
  for (size_t i = 0; i < 10; i += 2) {
    const Measure& m = measures()[i / 2];
    if (v[i] == 0 && v[i + 1] == 0) continue;  // left open
    if (rangeOutOfBounds(v[i], v[i + 1], m.minimum, m.maximum))
      return fail(std::string("The ") + m.shortName + " range must run from Low to High between " +
                  formatNumber(m.minimum, m.format) + " and " + formatNumber(m.maximum, m.format)),
             -1;
  }
  const std::string comments = trim(f.txtComments);
  if (comments.size() > 32767) return fail("The Comments of a Beer Style hold at most 32767 characters"), -1;

  const int target = adding ? freeStyleRow() : row;
  BeerStyleRecord& s = t_.BeerStyles[static_cast<size_t>(target)];
  if (adding) s = BeerStyleRecord{};
  s.source = STYLE_SOURCE_CUSTOM;
  s.styleName = name;
  s.styleId = id;
  s.categoryIndex = t_.BeerCategories[static_cast<size_t>(f.category)].categoryIndex;
  setRanges(s, v);
  s.comments = comments;
  s.styleIndex = target;
  if (target >= t_.BeerStyleCount) t_.BeerStyleCount = target + 1;
  return save() ? target : -1;
}

bool StyleEditor::deleteStyle(int row) {
  if (!isCustomStyle(row)) return fail("Only Custom Beer Styles can be deleted");
  BeerStyleRecord& s = t_.BeerStyles[static_cast<size_t>(row)];
  if (prompter_.message("Delete the Beer Style '" + trim(s.styleName) + "'?", "Delete Beer Style", Icon::Question,
                        Buttons::YesNo, Answer::No) != Answer::Yes)
    return false;
  // The row stays as a blank until the next load, so rows and the open recipe's style index
  // keep their meaning.
  s.styleName.clear();
  if (t_.CurrentStyleIndex == row) t_.CurrentStyleIndex = -1;
  return save();
}

// ---- Categories --------------------------------------------------------------------------------

bool StyleEditor::isCustomCategory(int row) const {
  return row >= 0 && row < std::min(t_.BeerCategoryCount, kCategoryTableRows) &&
         t_.BeerCategories[static_cast<size_t>(row)].source == STYLE_SOURCE_CUSTOM &&
         named(t_.BeerCategories[static_cast<size_t>(row)].category);
}

std::vector<int> StyleEditor::customCategoryRows() const {
  std::vector<int> rows;
  for (int i = 0; i < std::min(t_.BeerCategoryCount, kCategoryTableRows); ++i)
    if (isCustomCategory(i)) rows.push_back(i);
  return rows;
}

CategoryForm StyleEditor::categoryFormOf(int row) const {
  CategoryForm f;
  if (row < 0 || row >= std::min(t_.BeerCategoryCount, kCategoryTableRows)) return f;
  const BeerCategoryRecord& c = t_.BeerCategories[static_cast<size_t>(row)];
  return {trim(c.id), trim(c.category), trim(c.subCategory)};
}

bool StyleEditor::mayAddCategory() {
  if (categoryCount() < kMaxCategories && t_.BeerCategoryCount < kCategoryTableRows) return true;
  return fail("There is no room for another Beer Category: Zythara holds at most " + itos(kMaxCategories) +
              " Beer Categories. Delete a category you no longer use first.");
}

int StyleEditor::acceptCategory(int row, const CategoryForm& f) {
  const bool adding = row < 0;
  if (!adding && !isCustomCategory(row)) return fail("Only Custom Beer Categories can be changed"), -1;
  if (adding && !mayAddCategory()) return -1;
  BeerCategoryRecord c;
  c.source = STYLE_SOURCE_CUSTOM;
  c.id = trim(f.txtId);
  c.category = trim(f.txtCategory);
  c.subCategory = trim(f.txtSubCategory);
  if (c.category.empty()) return fail("Please enter the Name of the Beer Category"), -1;
  if (c.category.size() > kCategoryNameWidth) return fail("The Category Name holds at most 50 characters"), -1;
  if (c.id.size() > kCategoryIdWidth) return fail("The Category ID holds at most 20 characters"), -1;
  if (c.subCategory.size() > kSubCategoryWidth) return fail("The Subcategory holds at most 50 characters"), -1;
  const int target = adding ? t_.BeerCategoryCount : row;
  c.categoryIndex = target;
  // Compare the labels the lists show: two categories that read alike cannot be told apart.
  StyleTables probe;
  probe.BeerCategories[0] = c;
  probe.BeerCategoryCount = 1;
  const std::string label = categoryLabel(probe, 0, false);
  for (int i = 0; i < std::min(t_.BeerCategoryCount, kCategoryTableRows); ++i)
    if (i != row && named(t_.BeerCategories[static_cast<size_t>(i)].category) &&
        iequals(categoryLabel(t_, i, false), label))
      return fail("A Beer Category '" + label + "' already exists"), -1;
  if (!adding) c.reserved = t_.BeerCategories[static_cast<size_t>(row)].reserved;
  t_.BeerCategories[static_cast<size_t>(target)] = c;
  if (adding) ++t_.BeerCategoryCount;
  return save() ? target : -1;
}

bool StyleEditor::deleteCategory(int row) {
  if (!isCustomCategory(row)) return fail("Only Custom Beer Categories can be deleted");
  const std::string label = categoryLabel(t_, row, false);
  int used = 0;
  for (int i = 0; i < std::min(t_.BeerStyleCount, kStyleTableRows); ++i) {
    const BeerStyleRecord& s = t_.BeerStyles[static_cast<size_t>(i)];
    if (named(s.styleName) && findCategoryRow(t_, s.categoryIndex) == row) ++used;
  }
  if (used > 0)
    return fail("The Beer Category '" + label + "' still holds " + itos(used) +
                " Beer Style(s) and cannot be deleted");
  if (prompter_.message("Delete the Beer Category '" + label + "'?", "Delete Beer Category", Icon::Question,
                        Buttons::YesNo, Answer::No) != Answer::Yes)
    return false;
  // The rows behind move up and take their new row as key, as the next load would give them;
  // every style is pointed at its category's new key.
  const int n = std::min(t_.BeerCategoryCount, kCategoryTableRows);
  std::array<int, kStyleTableRows> newKey{};
  for (int i = 0; i < std::min(t_.BeerStyleCount, kStyleTableRows); ++i) {
    const BeerStyleRecord& s = t_.BeerStyles[static_cast<size_t>(i)];
    const int at = findCategoryRow(t_, s.categoryIndex);
    newKey[static_cast<size_t>(i)] = at < 0 ? s.categoryIndex : at == row ? -1 : at > row ? at - 1 : at;
  }
  for (int i = row; i + 1 < n; ++i) t_.BeerCategories[static_cast<size_t>(i)] = t_.BeerCategories[static_cast<size_t>(i + 1)];
  t_.BeerCategories[static_cast<size_t>(n - 1)] = BeerCategoryRecord{};
  t_.BeerCategoryCount = n - 1;
  for (int i = 0; i < t_.BeerCategoryCount; ++i) t_.BeerCategories[static_cast<size_t>(i)].categoryIndex = i;
  for (int i = 0; i < std::min(t_.BeerStyleCount, kStyleTableRows); ++i)
    t_.BeerStyles[static_cast<size_t>(i)].categoryIndex = newKey[static_cast<size_t>(i)];
  return save();
}

}  // namespace zy
