#pragma once
// The starter and kraeusening calculator ("Starter/Kraeusening"): the volume of a yeast starter
// and the volume of young beer for kraeusening, from the fermentation volume, the wort gravity
// and a carbonation level. Either result can go into the recipe's text windows.
#include <string>

namespace zy {

class RecipeEditor;
class Workbench;

class StarterCalculator {
 public:
  static constexpr const char* kCaption = "Starter/Kraeusening";
  enum Level { LOW = 0, MEDIUM = 1, HIGH = 2 };

  explicit StarterCalculator(RecipeEditor& editor);

  // Opening: volume and gravity from the recipe, both results computed.
  void load();

  void setVolume(const std::string& text);
  void setGravity(const std::string& text);
  void setLevel(int level);
  void leaveVolume();
  void leaveGravity();

  // "Add to Recipe" of the kraeusening: the priming comment. Of the starter: a comment line.
  void cmdAddKraeusen();
  void cmdAddYeast();

  // The caption of a level: "Low", "Medium", "High".
  static const char* levelCaption(int level);

  // ---- State ---------------------------------------------------------------------------------
  std::string txtVolume = "0.0", txtGravity = "1.000";
  int optLevel = MEDIUM;
  std::string lblYbox = "Yeast Starter Volume = 16 ounces";
  std::string lblKbox = " Kraeusening Volume = N/A";
  bool cmdAddKraeusenEnabled = false;
  int unitType = 0, volumeUnit = 1;
  // The results with their unit, as the labels show them ("16 US Fl Oz").
  std::string starterText, kraeusenText;

 private:
  void computeStarter();
  void computeKraeusen();
  std::string outputUnit() const;
  std::string format(double v) const;
  RecipeEditor& editor_;
  Workbench& wb_;
};

}  // namespace zy
