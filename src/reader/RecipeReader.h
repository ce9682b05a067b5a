#pragma once
// The recipe text reader ("Recipe Reader"): turns a recipe written as plain text, one ingredient
// a line, into the recipe in the editor. It has no grammar: each line is settled by keyword
// tests in a fixed order (what kind of ingredient, which unit, which notes), and the first test
// that fits decides. So "1 oz Cascade", which names no kind, becomes a malt of an ounce, and a
// line such as "Primary 7 days at 68 in glass" fills a fermentation stage.
//
// All positions in the helpers are 1-based, as the user reads a line.
#include <string>

namespace zy {

class RecipeEditor;

// The state of one line while it is read.
struct ReaderLine {
  std::string Line, LineLower;
  int ItemKind = -1;  // 0 malt, 1 hops, 2 other, 3 yeast, -1 undecided
  double CupsPerPound = 0;
  bool IsExtract = false, IsMashed = false;
  double Quantity = 0;
  std::string UnitText;
  bool IsWeight = false, IsVolume = false, IsCan = false;
  std::string ItemName;
  double Alpha = -1;
  std::string BoilTime;
  double Color = 0, Extraction = 0;
  double Attenuation = 0;
};

// The position of a number in `text`, searched forward from `start`, or backward when `way`
// is below 1 (then the first character of the run found); 0 if none.
int findNumber(int start, const std::string& text, int way);
// The first position from `start` whose character is not of a quantity ("0123456789./- ").
int skipNumber(int start, const std::string& text);
// The leading quantity: mixed numbers ("1 1/2", "1-1/2"), fractions and ranges ("3-4" is 3.5).
// No digit gives 1.0; `problem` is set when a fraction cannot be worked out (a zero below).
double parseQuantity(const std::string& text, bool* problem = nullptr);
// Upper-cases the first character and every one after a blank, and the one after the first "-"
// and after the first "(".
std::string titleCaps(const std::string& text);

class RecipeReader {
 public:
  static constexpr const char* kCaption = "Recipe Reader";
  static constexpr const char* kSection = "Recipe Reader";

  explicit RecipeReader(RecipeEditor& editor);

  // The text area.
  std::string txtComment;

  // "Extract Recipe Information": reads the whole text into the editor's recipe. False when
  // nothing was read (no text, or the user kept the ingredients).
  bool mnuFileExtractRecipe();
  // One line, adding to the recipe what it names.
  void extractRecipeLine(const std::string& line);
  // One fermentation stage (0 primary, 1 secondary, 2 tertiary) from a line.
  void fermentationDetails(const std::string& line, int stage);

  // Appends a text file's lines to the text area (line ends made CR LF) and remembers its folder
  // in "File Path" of section "Comments". False, with a message, when it cannot be read.
  bool importText(const std::string& path);
  // Writes the text area to a file. False, with a message, when it cannot be written.
  bool exportText(const std::string& path);

  // The last line read, as the reader took it apart.
  const ReaderLine& lastLine() const { return s_; }

 private:
  void readLine(const std::string& line);
  void hopsDetails();
  void maltDetails();
  void addIngredient();
  bool priming();
  void volumeLine();

  RecipeEditor& editor_;
  ReaderLine s_;
  std::string original_;  // the line as given, trimmed
  bool fullReported_ = false;
};

// True for text that is well-formed UTF-8 with characters beyond ASCII (as opposed to 8-bit text).
bool isUtf8Text(const std::string& text);
// Line ends of any platform (CR LF, LF, CR) made CR LF, as the reader cuts its lines.
std::string crlfText(const std::string& text);

}  // namespace zy
