#include "support/TestSupport.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/dates.h"
#include "core/measures.h"
#include "recipes/RecipeStore.h"
#include "core/text.h"

namespace zy::test {

Answer ScriptedPrompter::message(const std::string& text, const std::string& title, Icon icon, Buttons buttons,
                                 Answer defaultAnswer) {
  shown.push_back({text, title, icon, buttons});
  if (buttons == Buttons::OK) return Answer::OK;
  if (answers.empty()) return defaultAnswer;
  Answer a = answers.front();
  answers.pop_front();
  return a;
}

std::optional<std::string> ScriptedPrompter::nextText(const std::string& fallback) {
  if (texts.empty()) return fallback;
  auto t = texts.front();
  texts.pop_front();
  return t;
}

std::optional<std::string> ScriptedPrompter::input(const std::string& prompt, const std::string& title,
                                                   const std::string& initial) {
  shown.push_back({prompt, title, Icon::None, Buttons::OKCancel});
  return nextText(initial);
}

// A file or folder dialog: noted by its title; with no text left, a Cancel.
std::optional<std::string> ScriptedPrompter::dialog(const std::string& title) {
  shown.push_back({"", title, Icon::None, Buttons::OKCancel});
  if (texts.empty()) return std::nullopt;
  return nextText("");
}

TempFolder::TempFolder() {
  std::string base = std::filesystem::temp_directory_path().string() + "/zytest-XXXXXX";
  std::vector<char> buf(base.begin(), base.end());
  buf.push_back('\0');
  char* p = mkdtemp(buf.data());
  path_ = p ? p : base;
}

TempFolder::~TempFolder() {
  std::error_code ec;
  std::filesystem::remove_all(path_, ec);
}

Bench::Bench() : clock(serialFromCivil(2026, 11, 22, 10, 30, 0)) {
  ProgramFolder(dir.path()).ensureFolders();
  wb = std::make_unique<Workbench>(dir.path(), settings, prompter, clock);
  wb->errors.setTerminationHook([](int n) { throw Terminated(n); });
  wb->loadDefaults();
}

RecipeItemRecord makeItem(int kind, const std::string& name, double qty, int units, double cost, double rating,
                          double detail, int mash) {
  RecipeItemRecord it;
  it.itemKind = kind, it.itemName = name, it.quantity = qty, it.quantityUnits = units, it.unitCost = cost;
  it.rating = rating, it.detail = detail, it.mashFlag = mash;
  return it;
}

bool storeAmber(Workbench& wb, int no, const std::string& name, const std::string& style,
                const std::function<void(CurrentRecipe&)>& extra) {
  newRecipeRecord(wb);
  CurrentRecipe& cur = wb.recipe;
  RecipeRecord& r = cur.rec;
  r.recipeNo = no, r.recipeName = name, r.beerStyle = style, r.volumeUnits = US_GAL_CONST;
  r.fermentVolume = r.boilVolume = 5, r.mashType = 2, r.mashEfficiency = 75;
  cur.items[0] = makeItem(KIND_MALT, "Pale Malt", 8, UNIT_LBS, 1.10, 1.036, 3, -1);
  cur.items[1] = makeItem(KIND_MALT, "Crystal 60", 1, UNIT_LBS, 1.60, 1.034, 60, 0);
  cur.items[2] = makeItem(KIND_HOPS, "Cascade", 1, UNIT_OZ, 1.25, 5.5, 60);
  cur.items[3] = makeItem(KIND_HOPS, "Centennial", 0.5, UNIT_OZ, 1.50, 10.0, 15);
  cur.items[4] = makeItem(KIND_OTHER, "Irish Moss", 1, 5, 0.35, 0, 0);
  cur.items[5] = makeItem(KIND_YEAST, "American Ale", 1, 0, 4.99, 0.75, 0);
  cur.rec.itemCount = 6;
  cur.comment = "A fine amber.";
  if (extra) extra(cur);
  return saveCurrentRecipe(wb);
}

std::vector<std::string> shownLines(const ScriptedPrompter& p) {
  std::vector<std::string> v;
  for (const ShownMessage& m : p.shown) v.push_back(m.title + ": " + m.text);
  return v;
}

std::string readFile(const std::string& path) {
  std::ifstream f(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}

void writeFile(const std::string& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

std::vector<std::string> readLines(const std::string& path) { return textLines(readFile(path)); }

std::vector<std::string> textLines(const std::string& text) {
  std::vector<std::string> lines = split(text, '\n');
  if (!lines.empty() && lines.back().empty()) lines.pop_back();
  for (auto& l : lines)
    if (!l.empty() && l.back() == '\r') l.pop_back();
  return lines;
}

std::string le16(int v) { return std::string{static_cast<char>(v & 0xFF), static_cast<char>((v >> 8) & 0xFF)}; }

std::string le64(double v) {
  uint64_t u;
  std::memcpy(&u, &v, 8);
  std::string s(8, '\0');
  for (int i = 0; i < 8; ++i) s[static_cast<size_t>(i)] = static_cast<char>((u >> (8 * i)) & 0xFF);
  return s;
}

std::string padded(const std::string& text, size_t width) { return (text + std::string(width, ' ')).substr(0, width); }

std::string repeated(const std::string& s, int n) {
  std::string r;
  for (int i = 0; i < n; ++i) r += s;
  return r;
}

void patchRecord(const std::string& path, size_t length, long no, const std::function<void(std::string&)>& edit) {
  std::string all = readFile(path);
  std::string rec = all.substr(static_cast<size_t>(no - 1) * length, length);
  edit(rec);
  all.replace(static_cast<size_t>(no - 1) * length, length, rec);
  writeFile(path, all);
}

}  // namespace zy::test
