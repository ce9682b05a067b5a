#pragma once
// The recipe exchange format (.zyr, older *.rec): one recipe as 8-bit text, lines ended by CR LF,
// read back as a stream of comma-separated fields rather than as lines. A field opening with "<"
// starts a tag, and every later field without "<" is a further name=value attribute of that tag.
//
// Writer and reader are no mirror images: the reader still understands the older generation of
// the format (<Sparge> Quarts, <Conditioning>), and several values do not survive a round trip
// (a metric recipe comes back in US Gallons, a comma in the name cuts the field, ...).
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "core/measures.h"

namespace zy {

class Workbench;

// The field stream of an exchange file. Blanks before a field are skipped; a field that begins
// with a double quote runs to the closing quote and may span lines (a doubled quote inside is one
// quote character); any other field runs to the next comma or line end. CR LF, LF and CR all end
// a line; empty lines are passed over. Over a file, the text is read piece by piece, so that a
// file of any size holds no more than a piece and the field at hand in memory.
class ExchangeFieldReader {
 public:
  explicit ExchangeFieldReader(std::string_view text) : buf_(text) {}
  explicit ExchangeFieldReader(std::FILE* file) : file_(file) {}
  // The next field; false at the end of the text.
  bool next(std::string& field);
  // True when no further field remains.
  bool eof();

 private:
  int peek();  // the next byte, -1 at the end
  void skipSpace();
  void endOfField();
  std::string buf_;
  size_t pos_ = 0;
  std::FILE* file_ = nullptr;
};

// The current recipe as exchange text. Trims the recipe's text fields (as the writer does).
std::string exportRecipeText(Workbench& wb);
// Writes the current recipe to an open file. A write failure goes to the error routine with the
// file name "export file" and the place "RecipeList!exportRecipe"; false then.
bool exportRecipe(Workbench& wb, std::FILE* file);

struct ImportOutcome {
  bool recognized = false;    // the marker <Recipe_Format_1.0> was found with fields behind it
  bool endedByError = false;  // a 26th item, a BoilTime that is no number, ... ended the reader
  int items = 0;              // items counted by the reader
};
// Fills the current recipe from exchange text. Has no failure of its own for the caller: the
// refusal of a file without the marker is a message ("Not a Recognized Zythara Recipe File"),
// and an error inside the reader ends it with what was read so far (itemCount 0).
ImportOutcome importRecipe(Workbench& wb, std::string_view text);
// The same over an open file, read piece by piece as the fields are taken.
ImportOutcome importRecipe(Workbench& wb, std::FILE* file);

// Each comma replaced by "~".
std::string escapeCommas(const std::string& text);
// The first index 0..lastIndex whose name equals the trimmed value, case-blind, else `fallback`.
int findListIndex(const StringList& names, int lastIndex, std::string_view value, int fallback);
// The proposed export name without extension: trimmed; " ' / \ : | become "-"; with
// `useUnderscores` each blank becomes "_".
std::string safeFileName(const std::string& name, bool useUnderscores);
// A name of at most 8 lower-case characters: the first letter, then consonants and the first
// vowel of each word; "beer" when nothing is left.
std::string shortFileName(const std::string& name);

// The character the writer puts for a comma inside step and priming comments: "¸", byte 184.
inline constexpr char kCedilla = static_cast<char>(0xB8);

}  // namespace zy
