#include "recipes/RecipeStore.h"

#include <memory>

#include "batchlog/BatchLogStore.h"
#include "core/dates.h"
#include "core/records.h"
#include "core/text.h"
#include "workbench/Workbench.h"

namespace zy {

namespace {
const char* const kSaveFn = "frmRecipeList!saveCurrentRecipe";
const char* const kLoadFn = "frmRecipeList!loadRecipe";
const char* const kDeleteFn = "frmRecipeList!deleteRecipe";
const char* const kSlotFn = "frmRecipeList!findNextRecipeSlot";

// Opens a record file, reporting a platform failure through the error routine.
std::unique_ptr<RecordFile> openRecords(Workbench& wb, const char* name, size_t len, const char* fn) {
  try {
    return std::make_unique<RecordFile>(wb.folder.dataFile(name), len);
  } catch (const FileError& e) {
    wb.errors.reportFileError(e, 0, fn);
    return nullptr;
  }
}
// Hangs `pieces` records on recipe `no` in a file of records owned by recipes: from record 1 on,
// each free record (recipeNo 0) or one of the recipe's own takes the next piece, so free records
// are reused from the front; once the pieces are placed, the recipe's further records are freed;
// pieces left when the file ends are appended. `line` follows the record at hand for a report.
void rewriteOwnedRecords(RecordFile& f, int no, int pieces, long& line,
                         const std::function<std::string(int)>& piece) {
  std::string buf;
  int next = 0;
  const long total = f.count();
  for (long n = 1; n <= total; ++n) {
    line = n;
    f.read(n, buf);
    const int owner = getI16(buf, 2);
    if (owner != 0 && owner != no) continue;
    if (next < pieces) {
      f.write(n, piece(next++));
    } else if (owner == no) {
      putI16(buf, 2, 0);
      f.write(n, buf);
    }
  }
  while (next < pieces) {
    line = f.count() + 1;
    f.write(f.count() + 1, piece(next++));
  }
  f.flush();
}
}  // namespace

int commentCountFor(size_t commentLength) {
  return static_cast<int>(static_cast<double>(commentLength) / 120.0 + 0.999);
}

void newRecipeRecord(Workbench& wb) {
  const Defaults& d = wb.defaults;
  RecipeRecord r;
  r.controlStart = kControlStart;
  r.recipeNo = 0;
  r.recipeType = d.recipeType;
  r.unitType = d.unitMeasure;
  r.itemCount = 0;
  r.recipeName = "A Beer Recipe";
  r.boilVolume = d.initialBoil;
  r.fermentVolume = d.initialFerm;
  r.volumeUnits = d.volumeUnits;
  r.boilTime = d.boilTime;
  r.mashType = 0;
  r.mashEfficiency = d.mashEff;
  r.dateCreated = formatDateMDY(wb.clock.today());
  r.agingCount = 0;
  r.agingUnits = 0;
  r.agingTemp = 0;
  r.controlEnd = kControlEnd;
  wb.recipe.rec = r;
  wb.recipe.items = {};
  wb.recipe.comment.clear();
}

long findNextRecipeSlot(Workbench& wb) {
  auto f = openRecords(wb, kRecipeFile, RecipeRecord::kLength, kSlotFn);
  if (!f) return 0;
  if (wb.recipeSlotPosition < 1) wb.recipeSlotPosition = 1;
  std::string buf;
  long n = wb.recipeSlotPosition;
  for (; n <= f->count(); ++n) {
    f->read(n, buf);
    if (!controlCodesValid(buf)) {
      wb.recipeSlotPosition = n;
      wb.errors.reportError(ERR_RECIPE_CODE, n, kSlotFn, f->path());
      return 0;
    }
    if (getI16(buf, 2) == 0) break;
  }
  wb.recipeSlotPosition = n;
  // A record number is kept in 16 bits: past 32767 a new recipe would overwrite its own identity.
  if (n > kMaxRecipeNo) {
    wb.prompter.message("There is no room for another recipe in " + f->path() +
                            ": delete recipes you no longer need to make room.",
                        "Zythara Recipes", Icon::Warning);
    return 0;
  }
  return n;
}

bool saveCurrentRecipe(Workbench& wb) {
  CurrentRecipe& cur = wb.recipe;
  RecipeRecord& rec = cur.rec;
  const int oldCommentCount = rec.commentCount;
  const size_t commentLength = cur.comment.size();
  rec.commentCount = commentCountFor(commentLength);
  rec.controlStart = kControlStart;
  rec.controlEnd = kControlEnd;
  const int no = rec.recipeNo;
  if (no < 1) {
    rec.commentCount = oldCommentCount;
    wb.errors.reportError(ERR_BAD_RECORD_NUMBER, no, kSaveFn, wb.folder.dataFile(kRecipeFile), "Bad record number");
    return false;
  }
  // The count of comment pieces is kept in 16 bits: a longer comment would wrap it negative and be
  // lost on the next load. Refused before anything is written.
  if (commentLength > kMaxCommentLength) {
    rec.commentCount = oldCommentCount;
    wb.prompter.message("The comment of this recipe holds " + itos(static_cast<long long>(commentLength)) +
                            " characters, more than the " + itos(static_cast<long long>(kMaxCommentLength)) +
                            " a recipe can keep. Shorten the comment and save again; nothing was saved.",
                        "Zythara Recipes", Icon::Warning);
    return false;
  }
  long line = 0;
  try {
    // The items and comment pieces are written first, the recipe record last: until that record
    // is written the recipe does not exist, so an interrupted save of a new recipe leaves only
    // records that hang on a free slot, and the next save there takes them over.
    {
      RecordFile f(wb.folder.dataFile(kRecipeItemsFile), RecipeItemRecord::kLength);
      const int count = std::max(0, std::min(rec.itemCount, kMaxRecipeItems));
      rewriteOwnedRecords(f, no, count, line, [&](int k) {
        RecipeItemRecord item = cur.items[k];
        item.controlStart = kControlStart;
        item.controlEnd = kControlEnd;
        item.recipeNo = no;
        return item.encode();
      });
    }
    if (!(commentLength == 0 && oldCommentCount == 0)) {
      RecordFile f(wb.folder.dataFile(kCommentFile), RecipeCommentRecord::kLength);
      // commentCount is counted again as the pieces are written.
      rec.commentCount = 0;
      const int pieces = static_cast<int>((commentLength + kCommentPiece - 1) / kCommentPiece);
      rewriteOwnedRecords(f, no, pieces, line, [&](int k) {
        RecipeCommentRecord c;
        c.recipeNo = no;
        c.commentText = fixedText(cur.comment.substr(k * kCommentPiece, kCommentPiece), kCommentPiece);
        ++rec.commentCount;
        return c.encode();
      });
    }
    {
      RecordFile f(wb.folder.dataFile(kRecipeFile), RecipeRecord::kLength);
      // A record number more than one past the end leaves no gap: the file is padded with free slots.
      std::string freeSlot = RecipeRecord{}.encode();
      for (long k = f.count() + 1; k < no; ++k) f.write(k, freeSlot);
      f.write(no, rec.encode());
      f.flush();
    }
  } catch (const FileError& e) {
    wb.errors.reportFileError(e, line, kSaveFn);
    return false;
  }
  if (wb.refreshRecipeTree) wb.refreshRecipeTree();
  return true;
}

bool loadRecipe(Workbench& wb, long recipeNo) {
  CurrentRecipe& cur = wb.recipe;
  std::string buf;
  {
    auto f = openRecords(wb, kRecipeFile, RecipeRecord::kLength, kLoadFn);
    if (!f) return false;
    if (!f->read(recipeNo, buf) || !controlCodesValid(buf)) {
      wb.errors.reportError(ERR_RECIPE_CODE, recipeNo, kLoadFn, f->path());
      return false;
    }
    cur.rec = RecipeRecord::decode(buf);
  }
  cur.items = {};
  RecipeRecord& rec = cur.rec;
  const int wanted = std::max(0, std::min(rec.itemCount, kMaxRecipeItems));
  int found = 0;
  {
    auto f = openRecords(wb, kRecipeItemsFile, RecipeItemRecord::kLength, kLoadFn);
    if (!f) return false;
    for (long n = 1; n <= f->count() && found < wanted; ++n) {
      f->read(n, buf);
      if (!controlCodesValid(buf)) {
        wb.errors.reportError(ERR_RECIPE_ITEM_CODE, n, kLoadFn, f->path());
        return false;
      }
      if (getI16(buf, 2) == recipeNo) cur.items[found++] = RecipeItemRecord::decode(buf);
    }
  }
  if (found < rec.itemCount) {
    wb.prompter.message("Not all the Recipe Items where loaded for this Recipe", "Warning", Icon::Warning);
    // The count follows the table's read position, one past the last item found.
    rec.itemCount = std::min(found + 1, kMaxRecipeItems);
  }
  cur.comment.clear();
  {
    auto f = openRecords(wb, kCommentFile, RecipeCommentRecord::kLength, kLoadFn);
    if (!f) return false;
    int pieces = 0;
    for (long n = 1; n <= f->count() && pieces < rec.commentCount; ++n) {
      f->read(n, buf);
      if (!controlCodesValid(buf)) {
        wb.errors.reportError(ERR_COMMENT_CODE, n, kLoadFn, f->path());
        cur.comment = rtrim(cur.comment);
        return false;
      }
      if (getI16(buf, 2) == recipeNo) {
        cur.comment += getText(buf, 4, kCommentPiece);
        ++pieces;
      }
    }
  }
  cur.comment = rtrim(cur.comment);
  return true;
}

bool deleteRecipe(Workbench& wb, long recipeNo) {
  std::string buf;
  long line = recipeNo;
  try {
    {
      RecordFile f(wb.folder.dataFile(kRecipeFile), RecipeRecord::kLength);
      if (!f.read(recipeNo, buf) || !controlCodesValid(buf)) {
        wb.errors.reportError(ERR_RECIPE_CODE, recipeNo, kDeleteFn, f.path());
        return false;
      }
      putI16(buf, 2, 0);
      f.write(recipeNo, buf);
      f.flush();
    }
    struct Owned { const char* name; size_t len; int err; };
    for (Owned o : {Owned{kRecipeItemsFile, RecipeItemRecord::kLength, ERR_RECIPE_ITEM_CODE},
                    Owned{kCommentFile, RecipeCommentRecord::kLength, ERR_COMMENT_CODE}}) {
      RecordFile f(wb.folder.dataFile(o.name), o.len);
      for (long n = 1; n <= f.count(); ++n) {
        line = n;
        f.read(n, buf);
        if (!controlCodesValid(buf)) {
          wb.errors.reportError(o.err, n, kDeleteFn, f.path());
          return false;
        }
        if (getI16(buf, 2) == recipeNo) {
          putI16(buf, 2, 0);
          f.write(n, buf);
        }
      }
      f.flush();
    }
  } catch (const FileError& e) {
    wb.errors.reportFileError(e, line, kDeleteFn);
    return false;
  }
  // The recipe's batch logs go with it, so that a later recipe taking this record number starts
  // with a log of its own and never inherits another recipe's brews.
  freeBatchLogsOf(wb, static_cast<int>(recipeNo));
  return true;
}

RecipeSlot recipeSlotState(Workbench& wb, long recipeNo) {
  try {
    RecordFile f(wb.folder.dataFile(kRecipeFile), RecipeRecord::kLength);
    std::string buf;
    if (!f.read(recipeNo, buf)) return RecipeSlot::Missing;
    if (!controlCodesValid(buf)) return RecipeSlot::Corrupted;
    return getI16(buf, 2) > 0 ? RecipeSlot::Stored : RecipeSlot::Free;
  } catch (const FileError&) {
    return RecipeSlot::Missing;
  }
}

bool scanRecipes(Workbench& wb, const std::function<void(long, const RecipeRecord&)>& visit,
                 const std::string& functionName) {
  std::unique_ptr<RecordFile> f;
  try {
    f = std::make_unique<RecordFile>(wb.folder.dataFile(kRecipeFile), RecipeRecord::kLength);
  } catch (const FileError& e) {
    wb.errors.reportFileError(e, 0, functionName);
    return false;
  }
  std::string buf;
  for (long n = 1; n <= f->count(); ++n) {
    f->read(n, buf);
    if (!controlCodesValid(buf)) {
      wb.errors.reportError(ERR_RECIPE_CODE, n, functionName, f->path());
      return false;
    }
    if (getI16(buf, 2) > 0) visit(n, RecipeRecord::decode(buf));
  }
  return true;
}

}  // namespace zy
