// The shopping list's CSV import and the file it is kept in between runs. What an import takes in
// is exported and imported again: from the second trip on, the same text. The kept file likewise
// through a load and a save.
#include "FuzzSupport.h"
#include "inventory/ShoppingList.h"

using namespace zy;

namespace {
std::string importCsv(fuzz::Env& e, const std::string& path) {
  Workbench& wb = *e.wb;
  const ExchangePorts p{wb.folder, wb.prompter, wb.settings, wb.clock, wb.errors};
  ShoppingList list;
  list.importList(p, path);
  return list.csvText();
}

std::string loadSave(const std::string& path) {
  ShoppingList list;
  list.loadFrom(path);
  list.saveTo(path);
  return fuzz::readAll(path);
}
}  // namespace

ZY_FUZZ_HARNESS(shopping_csv) {
  fuzz::Env& e = fuzz::env();
  const std::string input(reinterpret_cast<const char*>(data), size);
  const std::string in = e.file("shop.csv");
  try {
    fuzz::writeAll(in, input);
    fuzz::writeAll(in, importCsv(e, in));
    const std::string second = importCsv(e, in);
    fuzz::writeAll(in, second);
    const std::string third = importCsv(e, in);
    fuzz::check(second == third, "the shopping CSV changes on a second trip:\n" + second + "\n---\n" + third);

    const std::string kept = e.data(kShoppingListFile);
    fuzz::writeAll(kept, input);
    loadSave(kept);
    const std::string a = loadSave(kept);
    const std::string b = loadSave(kept);
    fuzz::check(a == b, "the kept shopping list changes on a second load:\n" + a + "\n---\n" + b);
  } catch (const Terminated&) {
  }
  return 0;
}
