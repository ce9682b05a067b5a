#include "styles/StyleMatch.h"

#include <algorithm>

#include "core/numfmt.h"
#include "core/text.h"

namespace zy {

// ---- The judgement of one value ---------------------------------------------------------------

const char* StyleDeviation::text() const {
  switch (state) {
    case StyleState::Low: return "Low";
    case StyleState::High: return "High";
    default: return "OK";
  }
}

const char* StyleDeviation::colorWord() const {
  if (state == StyleState::OK) return "green";
  return nearMiss ? "yellow" : "red";
}

std::array<int, 3> StyleDeviation::color() const {
  if (state == StyleState::OK) return {0, 255, 0};
  if (nearMiss) return {255, 255, 0};
  return {255, 0, 0};
}

// A gravity's margin is taken on its part above 0.9 (not above 1), which makes it wider than ten
// percent of the gravity points; brewers' tables have always been judged so here.
double styleLowerLimit(double low, LimitKind kind) {
  return kind == LimitKind::Gravity ? (low - 0.9) * 0.9 + 0.9 : low * 0.9;
}

double styleUpperLimit(double high, LimitKind kind) {
  return kind == LimitKind::Gravity ? (high - 0.9) * 1.1 + 0.9 : high * 1.1;
}

StyleDeviation styleDeviation(double value, double low, double high, LimitKind kind) {
  StyleDeviation d;
  if (value < low) {
    d.state = StyleState::Low;
    d.nearMiss = styleLowerLimit(low, kind) <= value;
  } else if (value > high) {
    d.state = StyleState::High;
    d.nearMiss = value <= styleUpperLimit(high, kind);
  } else {
    d.state = StyleState::OK;
  }
  return d;
}

RecipeStyleValues RecipeStyleValues::fromDisplay(const std::string& lblOG, const std::string& lblFG,
                                                 const std::string& lblIBU, const std::string& lblColor,
                                                 const std::string& lblAlcohol) {
  RecipeStyleValues v;
  v.og = lenientValue(lblOG);
  v.fg = lenientValue(lblFG);
  v.ibu = lenientValue(lblIBU);
  v.color = lenientValue(lblColor);
  v.alcohol = lenientValue(lblAlcohol);
  return v;
}

std::array<StyleDeviation, 5> judgeStyle(const BeerStyleRecord& s, const RecipeStyleValues& v) {
  return {styleDeviation(v.og, s.ogLow, s.ogHigh, LimitKind::Gravity),
          styleDeviation(v.fg, s.fgLow, s.fgHigh, LimitKind::Gravity),
          styleDeviation(v.ibu, s.ibuLow, s.ibuHigh, LimitKind::Plain),
          styleDeviation(v.color, s.srmLow, s.srmHigh, LimitKind::Plain),
          styleDeviation(v.alcohol, s.alcoholLow, s.alcoholHigh, LimitKind::Plain)};
}

// ---- The recipe editor's style list -------------------------------------------------------------

std::vector<StyleListEntry> buildRecipeStyleList(const StyleTables& t) {
  const std::string filter = lower(t.StyleFilterText);
  std::vector<StyleListEntry> styles;
  const int n = std::clamp(t.BeerStyleCount, 0, kStyleTableRows);
  for (int i = 0; i < n; ++i) {
    const BeerStyleRecord& s = t.BeerStyles[static_cast<size_t>(i)];
    if (s.source < 0 || s.source >= kStyleSourceCount || !t.StyleSourceShown[static_cast<size_t>(s.source)]) continue;
    std::string name = trim(s.styleName);
    if (!filter.empty() && lower(name).find(filter) == std::string::npos) continue;
    styles.push_back({std::move(name), i});
  }
  // The box keeps itself sorted without regard to case; equal names keep the table's order.
  std::stable_sort(styles.begin(), styles.end(),
                   [](const StyleListEntry& a, const StyleListEntry& b) {
                     return collationKey(a.text) < collationKey(b.text);
                   });
  std::vector<StyleListEntry> list;
  list.reserve(styles.size() + 2);
  list.push_back({kNotRecognizedStyleEntry, -1});
  list.push_back({kNotSpecifiedStyleEntry, -1});
  list.insert(list.end(), styles.begin(), styles.end());
  return list;
}

int findStyleListPosition(const std::vector<StyleListEntry>& list, const std::string& text) {
  const std::string want = trim(text);
  for (size_t i = 0; i < list.size(); ++i)
    if (list[i].text == want) return static_cast<int>(i);
  for (size_t i = 0; i < list.size(); ++i)
    if (iequals(list[i].text, want)) return static_cast<int>(i);
  return -1;
}

std::string chooseRecipeStyle(StyleTables& t, const std::vector<StyleListEntry>& list, int pos) {
  if (pos < 2 || pos >= static_cast<int>(list.size())) {
    t.CurrentStyleIndex = -1;
    return {};
  }
  const StyleListEntry& e = list[static_cast<size_t>(pos)];
  t.CurrentStyleIndex = e.data;
  return e.text;
}

int selectRecipeStyle(StyleTables& t, const std::vector<StyleListEntry>& list, const std::string& styleName,
                      Prompter& prompter) {
  const std::string name = trim(styleName);
  int pos = name.empty() ? 1 : findStyleListPosition(list, name);
  if (pos < 0) pos = 1;  // the box keeps its selection when the text is not in it
  if (pos == 1 && !name.empty()) {
    prompter.message("Beer Style '" + name + "' is Not Recognized by Zythara", "Unknown Beer Style",
                     Icon::Information);
    pos = 0;
  }
  t.CurrentStyleIndex = pos < static_cast<int>(list.size()) ? list[static_cast<size_t>(pos)].data : -1;
  return pos;
}

// ---- Matching ---------------------------------------------------------------------------------

std::vector<StyleMatchRow> buildStyleMatchRows(const StyleTables& t, const RecipeStyleValues& v) {
  std::vector<StyleMatchRow> rows;
  const int n = std::clamp(t.BeerStyleCount, 0, kStyleTableRows);
  for (int i = 0; i < n; ++i) {
    const BeerStyleRecord& s = t.BeerStyles[static_cast<size_t>(i)];
    const auto judged = judgeStyle(s, v);
    int fullMisses = 0;
    StyleMatchRow row;
    row.name = trim(s.styleName);
    row.styleRow = i;
    for (size_t k = 0; k < judged.size(); ++k) {
      row.cells[k] = judged[k].text();
      if (judged[k].fullMiss()) ++fullMisses;
    }
    if (fullMisses == 0) rows.push_back(std::move(row));
  }
  if (rows.empty()) {
    StyleMatchRow none;
    none.name = kNoMatchingStyles;
    rows.push_back(std::move(none));
  }
  return rows;
}

const std::array<std::string, 6>& StyleMatchModel::columnHeaders() {
  static const std::array<std::string, 6> h{"Beer Style", "O.G.", "F.G.", "Bitter", "Color", "Alc %"};
  return h;
}

void StyleMatchModel::open(const StyleTables& t, const RecipeStyleValues& v, const std::string& currentStyleText) {
  rows = buildStyleMatchRows(t, v);
  cmdSetRecipeEnabled = !(rows.size() == 1 && rows[0].styleRow < 0);
  selected = -1;
  if (!cmdSetRecipeEnabled) return;
  for (size_t i = 0; i < rows.size(); ++i)
    if (rows[i].name == currentStyleText) selected = static_cast<int>(i);
}

void StyleMatchModel::sortByColumn(int column) {
  if (column < 0 || column >= 6 || rows.size() < 2) return;
  auto cell = [](const StyleMatchRow& r, int c) -> const std::string& {
    return c == 0 ? r.name : r.cells[static_cast<size_t>(c - 1)];
  };
  // The selection follows its row through the sorts.
  std::vector<size_t> order(rows.size());
  for (size_t i = 0; i < order.size(); ++i) order[i] = i;
  auto sortOn = [&](int c, bool descending) {
    std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
      const std::string ka = collationKey(cell(rows[a], c)), kb = collationKey(cell(rows[b], c));
      return descending ? kb < ka : ka < kb;
    });
  };
  if (column == 0) {
    sortOn(0, false);
  } else {
    // Whichever column was clicked, every column from the last back to O.G. is sorted on in
    // turn, descending: O.G. decides, the others order its ties.
    for (int c = 5; c >= 1; --c) sortOn(c, true);
  }
  std::vector<StyleMatchRow> sorted;
  sorted.reserve(rows.size());
  int newSelected = -1;
  for (size_t i = 0; i < order.size(); ++i) {
    if (static_cast<int>(order[i]) == selected) newSelected = static_cast<int>(i);
    sorted.push_back(std::move(rows[order[i]]));
  }
  rows = std::move(sorted);
  selected = newSelected;
}

std::optional<std::string> StyleMatchModel::setRecipeStyleText() const {
  if (!cmdSetRecipeEnabled || selected < 0 || selected >= static_cast<int>(rows.size())) return std::nullopt;
  return trim(rows[static_cast<size_t>(selected)].name);
}

std::optional<std::string> StyleMatchModel::doubleClick(int row, Prompter& prompter) {
  if (!cmdSetRecipeEnabled) {
    prompter.message("No Matching Beer Styles Found", kCaption, Icon::Information);
    return std::nullopt;
  }
  if (row < 0 || row >= static_cast<int>(rows.size())) return std::nullopt;
  selected = row;
  return rows[static_cast<size_t>(row)].name;
}

std::vector<std::string> StyleMatchModel::lines() const {
  std::vector<std::string> out;
  std::string head;
  for (size_t i = 0; i < columnHeaders().size(); ++i) head += (i ? "\t" : "") + columnHeaders()[i];
  out.push_back(head);
  for (const StyleMatchRow& r : rows) {
    std::string l = r.name;
    for (const std::string& c : r.cells) l += "\t" + c;
    out.push_back(l);
  }
  return out;
}

// ---- The filter dialog ------------------------------------------------------------------------

void StyleFilterDialog::open(const StyleTables& t) {
  chkStyle = t.StyleSourceShown;
  txtFilter = t.StyleFilterText;
}

void StyleFilterDialog::reset() {
  chkStyle = {true, true, true};
  txtFilter.clear();
}

void StyleFilterDialog::ok(StyleTables& t) const {
  t.StyleSourceShown = chkStyle;
  t.StyleFilterText = trim(txtFilter);
}

// ---- The statistics dialog --------------------------------------------------------------------

StyleStatistics computeStyleStatistics(const StyleTables& t) {
  StyleStatistics s;
  s.categories = t.BeerCategoryCount;
  s.total = t.BeerStyleCount;
  const int n = std::clamp(t.BeerStyleCount, 0, kStyleTableRows);
  for (int i = 0; i < n; ++i) {
    switch (t.BeerStyles[static_cast<size_t>(i)].source) {
      case STYLE_SOURCE_CUSTOM: ++s.custom; break;
      case STYLE_SOURCE_AOB: ++s.aob; break;
      case STYLE_SOURCE_BJCP: ++s.bjcp; break;
      default: break;  // counted in the total only
    }
  }
  return s;
}

std::vector<std::string> StyleStatistics::lines() const {
  return {"Number of Beer Categories Loaded: " + itos(categories),
          "Total Number of Beer Styles Loaded: " + itos(total),
          "Custom Beer Styles Loaded: " + itos(custom),
          "AOB Beer Styles Loaded: " + itos(aob),
          "BJCP Beer Styles Loaded: " + itos(bjcp)};
}

}  // namespace zy
