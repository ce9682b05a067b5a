#pragma once
// The records of the recipe files: ZYRecipe.dat (1546 bytes), ZYRItems.dat (114) and
// ZYComment.dat (126), written and read field by field at their offsets.
#include <array>
#include <string>
#include <string_view>

namespace zy {

struct RecipeRecord {
  static constexpr size_t kLength = 1546;
  int controlStart = 200;
  int recipeNo = 0;
  int recipeType = 0;
  int unitType = 0;
  int itemCount = 0;
  std::string recipeName;  // 60
  std::string beerStyle;   // 60
  double boilVolume = 0, fermentVolume = 0;
  int volumeUnits = 0;
  double color = 0;
  int bitterness = 0;
  double originalGravity = 0, finalGravity = 0, alcohol = 0, boilTime = 0;
  int mashType = 0;
  std::array<double, 13> mashStepTemp{}, mashStepTime{};
  std::array<std::string, 13> mashStepComment;  // 40 each
  double mashWaterRate = 0, mashWaterVolume = 0, mashEfficiency = 0;
  std::array<double, 13> mashStepReserved1{}, mashStepReserved2{};
  int mashReservedCode = 0;
  double spargeVolume = 0;
  int spargeVolumeUnits = 0;
  double spargeTemp = 0, spargeRate = 0;
  std::array<double, 3> fermentTime{};
  std::array<int, 3> fermentTimeUnits{};
  std::array<double, 3> fermentTemp{};
  std::array<int, 3> fermentVessel{};
  int commentCount = 0;
  int container = 0;
  int carbonation = 0;
  std::string primingComment;  // 80
  std::string dateCreated;     // 11
  std::string idCode;          // 10
  std::string labelName;       // 35
  int agingCount = 0;
  int agingUnits = 0;
  double agingTemp = 0;
  std::string reservedText;  // 150
  int controlEnd = 299;

  std::string encode() const;
  static RecipeRecord decode(std::string_view rec);
};

struct RecipeItemRecord {
  static constexpr size_t kLength = 114;
  int controlStart = 200;
  int recipeNo = 0;
  int itemKind = 0;
  std::string itemName;  // 50
  double quantity = 0;
  int quantityUnits = 0;
  double unitCost = 0;
  double rating = 0;
  double detail = 0;
  int mashFlag = 0;
  std::string itemReserved;  // 20
  int controlEnd = 299;

  std::string encode() const;
  static RecipeItemRecord decode(std::string_view rec);
};

struct RecipeCommentRecord {
  static constexpr size_t kLength = 126;
  int controlStart = 200;
  int recipeNo = 0;
  std::string commentText;  // 120
  int controlEnd = 299;

  std::string encode() const;
  static RecipeCommentRecord decode(std::string_view rec);
};

constexpr int kMaxRecipeItems = 25;
constexpr size_t kCommentPiece = 120;

// The one recipe held in memory: its record, a table of exactly 25 items (itemCount valid) and
// its comment text.
struct CurrentRecipe {
  RecipeRecord rec;
  std::array<RecipeItemRecord, kMaxRecipeItems> items;
  std::string comment;
};

}  // namespace zy
