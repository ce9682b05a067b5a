// The recipe exchange reader, and its round trip through the writer: what the writer writes of a
// recipe read back, it writes again the same.
#include "FuzzSupport.h"
#include "recipes/RecipeExchange.h"

using namespace zy;

namespace {
std::string importExport(Workbench& wb, const std::string& text) {
  try {
    importRecipe(wb, text);
  } catch (const Terminated&) {
  }
  return exportRecipeText(wb);
}
}  // namespace

ZY_FUZZ_HARNESS(exchange) {
  Workbench& wb = *fuzz::env().wb;
  const std::string input(reinterpret_cast<const char*>(data), size);
  const std::string first = importExport(wb, input);
  const std::string second = importExport(wb, first);
  const std::string third = importExport(wb, second);
  fuzz::check(second == third, "the exchange text changes on a second trip:\n" + second + "\n---\n" + third);
  return 0;
}
