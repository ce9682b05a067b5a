#include "recipes/RecipeRecords.h"

#include "core/records.h"

namespace zy {

std::string RecipeRecord::encode() const {
  std::string r(kLength, ' ');
  putI16(r, 0, controlStart);
  putI16(r, 2, recipeNo);
  putI16(r, 4, recipeType);
  putI16(r, 6, unitType);
  putI16(r, 8, itemCount);
  putText(r, 10, 60, recipeName);
  putText(r, 70, 60, beerStyle);
  putF64(r, 130, boilVolume);
  putF64(r, 138, fermentVolume);
  putI16(r, 146, volumeUnits);
  putF64(r, 148, color);
  putI16(r, 156, bitterness);
  putF64(r, 158, originalGravity);
  putF64(r, 166, finalGravity);
  putF64(r, 174, alcohol);
  putF64(r, 182, boilTime);
  putI16(r, 190, mashType);
  for (size_t i = 0; i < 13; ++i) {
    putF64(r, 192 + 8 * i, mashStepTemp[i]);
    putF64(r, 296 + 8 * i, mashStepTime[i]);
    putText(r, 400 + 40 * i, 40, mashStepComment[i]);
    putF64(r, 944 + 8 * i, mashStepReserved1[i]);
    putF64(r, 1048 + 8 * i, mashStepReserved2[i]);
  }
  putF64(r, 920, mashWaterRate);
  putF64(r, 928, mashWaterVolume);
  putF64(r, 936, mashEfficiency);
  putI16(r, 1152, mashReservedCode);
  putF64(r, 1154, spargeVolume);
  putI16(r, 1162, spargeVolumeUnits);
  putF64(r, 1164, spargeTemp);
  putF64(r, 1172, spargeRate);
  for (size_t i = 0; i < 3; ++i) {
    putF64(r, 1180 + 8 * i, fermentTime[i]);
    putI16(r, 1204 + 2 * i, fermentTimeUnits[i]);
    putF64(r, 1210 + 8 * i, fermentTemp[i]);
    putI16(r, 1234 + 2 * i, fermentVessel[i]);
  }
  putI16(r, 1240, commentCount);
  putI16(r, 1242, container);
  putI16(r, 1244, carbonation);
  putText(r, 1246, 80, primingComment);
  putText(r, 1326, 11, dateCreated);
  putText(r, 1337, 10, idCode);
  putText(r, 1347, 35, labelName);
  putI16(r, 1382, agingCount);
  putI16(r, 1384, agingUnits);
  putF64(r, 1386, agingTemp);
  putText(r, 1394, 150, reservedText);
  putI16(r, 1544, controlEnd);
  return r;
}

RecipeRecord RecipeRecord::decode(std::string_view r) {
  RecipeRecord x;
  x.controlStart = getI16(r, 0);
  x.recipeNo = getI16(r, 2);
  x.recipeType = getI16(r, 4);
  x.unitType = getI16(r, 6);
  x.itemCount = getI16(r, 8);
  x.recipeName = getText(r, 10, 60);
  x.beerStyle = getText(r, 70, 60);
  x.boilVolume = getF64(r, 130);
  x.fermentVolume = getF64(r, 138);
  x.volumeUnits = getI16(r, 146);
  x.color = getF64(r, 148);
  x.bitterness = getI16(r, 156);
  x.originalGravity = getF64(r, 158);
  x.finalGravity = getF64(r, 166);
  x.alcohol = getF64(r, 174);
  x.boilTime = getF64(r, 182);
  x.mashType = getI16(r, 190);
  for (size_t i = 0; i < 13; ++i) {
    x.mashStepTemp[i] = getF64(r, 192 + 8 * i);
    x.mashStepTime[i] = getF64(r, 296 + 8 * i);
    x.mashStepComment[i] = getText(r, 400 + 40 * i, 40);
    x.mashStepReserved1[i] = getF64(r, 944 + 8 * i);
    x.mashStepReserved2[i] = getF64(r, 1048 + 8 * i);
  }
  x.mashWaterRate = getF64(r, 920);
  x.mashWaterVolume = getF64(r, 928);
  x.mashEfficiency = getF64(r, 936);
  x.mashReservedCode = getI16(r, 1152);
  x.spargeVolume = getF64(r, 1154);
  x.spargeVolumeUnits = getI16(r, 1162);
  x.spargeTemp = getF64(r, 1164);
  x.spargeRate = getF64(r, 1172);
  for (size_t i = 0; i < 3; ++i) {
    x.fermentTime[i] = getF64(r, 1180 + 8 * i);
    x.fermentTimeUnits[i] = getI16(r, 1204 + 2 * i);
    x.fermentTemp[i] = getF64(r, 1210 + 8 * i);
    x.fermentVessel[i] = getI16(r, 1234 + 2 * i);
  }
  x.commentCount = getI16(r, 1240);
  x.container = getI16(r, 1242);
  x.carbonation = getI16(r, 1244);
  x.primingComment = getText(r, 1246, 80);
  x.dateCreated = getText(r, 1326, 11);
  x.idCode = getText(r, 1337, 10);
  x.labelName = getText(r, 1347, 35);
  x.agingCount = getI16(r, 1382);
  x.agingUnits = getI16(r, 1384);
  x.agingTemp = getF64(r, 1386);
  x.reservedText = getText(r, 1394, 150);
  x.controlEnd = getI16(r, 1544);
  return x;
}

std::string RecipeItemRecord::encode() const {
  std::string r(kLength, ' ');
  putI16(r, 0, controlStart);
  putI16(r, 2, recipeNo);
  putI16(r, 4, itemKind);
  putText(r, 6, 50, itemName);
  putF64(r, 56, quantity);
  putI16(r, 64, quantityUnits);
  putF64(r, 66, unitCost);
  putF64(r, 74, rating);
  putF64(r, 82, detail);
  putI16(r, 90, mashFlag);
  putText(r, 92, 20, itemReserved);
  putI16(r, 112, controlEnd);
  return r;
}

RecipeItemRecord RecipeItemRecord::decode(std::string_view r) {
  RecipeItemRecord x;
  x.controlStart = getI16(r, 0);
  x.recipeNo = getI16(r, 2);
  x.itemKind = getI16(r, 4);
  x.itemName = getText(r, 6, 50);
  x.quantity = getF64(r, 56);
  x.quantityUnits = getI16(r, 64);
  x.unitCost = getF64(r, 66);
  x.rating = getF64(r, 74);
  x.detail = getF64(r, 82);
  x.mashFlag = getI16(r, 90);
  x.itemReserved = getText(r, 92, 20);
  x.controlEnd = getI16(r, 112);
  return x;
}

std::string RecipeCommentRecord::encode() const {
  std::string r(kLength, ' ');
  putI16(r, 0, controlStart);
  putI16(r, 2, recipeNo);
  putText(r, 4, 120, commentText);
  putI16(r, 124, controlEnd);
  return r;
}

RecipeCommentRecord RecipeCommentRecord::decode(std::string_view r) {
  RecipeCommentRecord x;
  x.controlStart = getI16(r, 0);
  x.recipeNo = getI16(r, 2);
  x.commentText = getText(r, 4, 120);
  x.controlEnd = getI16(r, 124);
  return x;
}

}  // namespace zy
