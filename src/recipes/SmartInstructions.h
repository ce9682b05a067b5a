#pragma once
// Written brewing instructions for the recipe in the editor. Every ingredient is put in a class
// by words in its name (crystal malts steep, mashed grains mash, extracts dissolve, salts go
// half to the mash and half to the sparge, berries and frozen fruit go to the fermenter, ...);
// the classes of grain present choose one of eight openings, and the boil, cooling,
// fermentation, aging and finings follow in fixed sentences.
//
// Nothing of the recipe changes but the mash data that cannot be right: a mash water rate
// outside 0 to 3, a sparge rate that is not between 0 and 3, a sparge temperature below 10
// take the user's defaults. Advice that is not part of the text (a mash worth doing, wood chips
// without a secondary) is shown as an information message titled "Smart Instructions".
#include <string>

namespace zy {

class RecipeEditor;

inline constexpr const char* kSmartInstructionsTitle = "Smart Instructions";

// The text, sentences separated by two blanks, paragraphs by two line breaks (CR LF). Empty for
// a recipe without malt of any kind.
std::string generateSmartInstructions(RecipeEditor& editor);

// What the comment window does with the text when its comment is not empty: the question asked
// and the answer's effect (Yes replaces, No appends, Cancel keeps).
extern const char* const kSmartReplaceQuestion;
// The comment after the smart instructions were asked for; the question goes through the
// editor's prompter when `current` is not empty. False when the user cancelled.
bool applySmartInstructions(RecipeEditor& editor, std::string& current);

}  // namespace zy
