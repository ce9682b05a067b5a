#include "reports/HtmlWriter.h"

#include <cerrno>
#include <cstdio>

#include "core/errorlog.h"
#include "core/measures.h"
#include "core/numfmt.h"
#include "core/records.h"
#include "core/text.h"
#include "recipes/RecipeReport.h"

namespace zy {

namespace {

const char* const kGenerateFn = "frmGenHTML!generateHTML";
const char* const kCrLf = "\r\n";
// A saved recipe without aging keeps this as its aging temperature.
constexpr double kNoAgingTemp = -9999.0;
const char* const kRowStart = "<TR><TD ALIGN=right>";
const char* const kRowGap = ": <TD WIDTH=10> <TD>";
const char* const kTableStart = "<TABLE FRAME=void BORDER=0 CELLSPACING=0 CELLPADDING=0>";

// The page grows line by line; every line ends in CR LF.
struct Page {
  std::string text;
  void line(const std::string& s = {}) { text += s + kCrLf; }
  void part(const std::string& s) { text += s; }
  void characteristic(const std::string& label, const std::string& value) {
    line(kRowStart + label + kRowGap + value + "<BR>");
  }
};

int weightUnitOf(int code) { return code >= 0 && code < 4 ? code : UNIT_LBS; }

// The weight of the malts that are mashed, in the default malt unit.
double mashedGrainWeight(const CurrentRecipe& r, int maltUnits) {
  const Measures& m = measures();
  const int to = weightUnitOf(maltUnits);
  double sum = 0;
  const int n = r.rec.itemCount < 0 ? 0 : (r.rec.itemCount > kMaxRecipeItems ? kMaxRecipeItems : r.rec.itemCount);
  for (int i = 0; i < n; ++i) {
    const RecipeItemRecord& it = r.items[static_cast<size_t>(i)];
    if (it.itemKind == KIND_MALT && it.mashFlag != 0)
      sum += it.quantity * m.weightConvert[weightUnitOf(it.quantityUnits)][to];
  }
  return sum;
}

double recipeCost(const CurrentRecipe& r) {
  double sum = 0;
  const int n = r.rec.itemCount < 0 ? 0 : (r.rec.itemCount > kMaxRecipeItems ? kMaxRecipeItems : r.rec.itemCount);
  for (int i = 0; i < n; ++i) sum += r.items[static_cast<size_t>(i)].quantity * r.items[static_cast<size_t>(i)].unitCost;
  return sum;
}

void ingredientRow(Page& p, const RecipeItemRecord& it) {
  const Measures& m = measures();
  std::string row = kRowStart + printedNumber(it.quantity) + " ";
  const std::string name = trim(it.itemName);
  switch (it.itemKind) {
    case KIND_MALT:
      row += listText(m.weightUnits, it.quantityUnits) + " <TD ALIGN=left>- " + name + " (Color: " +
             printedNumber(it.detail) + ")<BR>";
      break;
    case KIND_HOPS:
      row += listText(m.weightUnits, it.quantityUnits) + " <TD ALIGN=left>- " + name + " (Alpha Acid: " +
             printedNumber(it.rating) + "%, Boiled " + printedNumber(it.detail) + " Minutes)<BR>";
      break;
    case KIND_OTHER:
      row += listText(m.otherUnits, it.quantityUnits) + " <TD ALIGN=left>- " + name + "<BR>";
      break;
    case KIND_YEAST:
      row += listText(m.yeastUnits, it.quantityUnits) + " <TD ALIGN=left>- " + name;
      if (name.find("Yeast") == std::string::npos) row += " Yeast";
      row += " (Attenuation: " + printedNumber(it.rating * 100.0) + "%)<BR>";
      break;
    default: return;  // an item of no known kind has no row
  }
  p.line(row);
}

void mashPart(Page& p, CurrentRecipe& r, int maltUnits) {
  const Measures& m = measures();
  RecipeRecord& rec = r.rec;
  std::string used = rec.mashType > 0 ? listText(m.mashTypes, rec.mashType) + " Mash" : listText(m.mashTypes, rec.mashType);
  p.line(used + " is used in this recipe<BR>");
  if (rec.mashType == 0) return;

  const std::string volume = listText(m.volumeUnits, rec.volumeUnits);
  const std::string weight = listText(m.weightUnits, weightUnitOf(maltUnits));
  const std::string scale = temperatureLabel(rec.unitType);
  const double grain = mashedGrainWeight(r, maltUnits);
  rec.mashWaterVolume = rec.mashWaterRate * grain;
  if (rec.mashWaterVolume > 0) {
    p.line("Mash the grains with " + formatNumber(rec.mashWaterVolume, "0.0") + " " + volume + " of water<BR>");
    p.line("A Mash Water Rate of " + printedNumber(rec.mashWaterRate) + " " + volume + "/" + weight +
           " of grain was used");
  }
  p.line(std::string("<P>") + kTableStart);
  p.line("<TR><TH>Mash Schedule<TH>Mash<BR>Temperature<BR>(" + scale + ") <TH>Mash Time<BR>(Minutes)<BR>");
  for (size_t i = 0; i < rec.mashStepTime.size(); ++i) {
    if (!(rec.mashStepTime[i] > 0)) continue;
    p.line(std::string("<TR ALIGN=center><TD ALIGN=left>") + mashRestName(rec.mashStepTemp[i]) + "<TD>" +
           printedNumber(rec.mashStepTemp[i]) + "<TD>" + printedNumber(rec.mashStepTime[i]) + "<BR>");
  }
  p.line("</TABLE>");
  rec.spargeVolume = rec.spargeRate * grain;
  if (rec.spargeVolume > 0)
    p.line("<P>Sparge with " + formatNumber(rec.spargeVolume, "0.0") + " " + volume + " of water at " +
           printedNumber(rec.spargeTemp) + scale + "<BR>A Sparge Rate of " + printedNumber(rec.spargeRate) + " " +
           volume + "/" + weight + " of grain was used<BR><P>");
  else
    p.line("<P>");
}

void fermentationPart(Page& p, const RecipeRecord& rec) {
  const Measures& m = measures();
  const std::string scale = temperatureLabel(rec.unitType);
  bool any = false;
  for (size_t i = 0; i < rec.fermentTime.size(); ++i) {
    if (!(rec.fermentTime[i] > 0)) continue;
    if (!any) p.line("<B>Fermentation Instructions:</B><BR>");
    any = true;
    p.line(listText(m.fermentStages, static_cast<int>(i)) + " Fermentation: " + formatNumber(rec.fermentTime[i], "0") +
           " " + listText(m.timeUnits, rec.fermentTimeUnits[i]) + " at " + formatNumber(rec.fermentTemp[i], "0") +
           scale + " in a " + listText(m.vessels, rec.fermentVessel[i]) + " vessel<BR>");
  }
  std::string put = "Put into ";
  switch (rec.container) {
    case 0: put += "Bottles "; break;
    case 1: put += "Kegs "; break;
    case 2: put += "Kegs and Bottles "; break;
    default: put += "a container "; break;
  }
  const std::string comment = trim(rec.primingComment);
  switch (rec.carbonation) {
    case 0: put += comment.empty() ? "with Normal Priming<BR>" : "with " + comment + " for Priming<BR>"; break;
    case 1: put += comment.empty() ? "with Normal Kraeusening<BR>" : "with " + comment + " for Kraeusening<BR>"; break;
    case 2: put += comment.empty() ? "with Forced CO2<BR>" : "with " + comment + " of Forced CO2<BR>"; break;
    default: put += "with no conditioning<BR>"; break;
  }
  p.line(put);
  p.line("<P>");
  p.line();
}

}  // namespace

std::string printedNumber(double value) {
  const std::string text = plainText(value);
  return (text[0] == '-' ? "" : " ") + text + " ";
}

std::string downloadName(const std::string& outputPath) {
  const size_t slash = outputPath.find_last_of("/\\");
  std::string name = slash == std::string::npos ? outputPath : outputPath.substr(slash + 1);
  const size_t htm = lower(name).find(".htm");
  if (htm != std::string::npos) name.erase(htm);
  return name + ".zyr";
}

std::vector<std::string> textLines(const std::string& text) {
  std::vector<std::string> lines;
  std::string cur;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\r' || c == '\n') {
      lines.push_back(cur);
      cur.clear();
      if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else {
      cur += c;
    }
  }
  if (!cur.empty()) lines.push_back(cur);
  return lines;
}

std::string htmlPage(CurrentRecipe& recipe, int maltUnits, const HtmlOptions& o, const std::string& outputPath,
                     const std::vector<std::string>& beforeLines, const std::vector<std::string>& afterLines) {
  const Measures& m = measures();
  RecipeRecord& rec = recipe.rec;
  const std::string name = trim(rec.recipeName);
  const std::string type = listText(m.recipeTypes, rec.recipeType);
  Page p;

  p.line("<HTML>");
  p.line("<HEAD><TITLE>" + name + " -- " + type + "</TITLE></HEAD>");
  p.line("<! -- HTML Generated by Zythara -- >");
  p.line();
  p.line("<BODY>");
  if (o.tag) p.line("<A NAME=\"" + o.tagName + "\"></A>");
  if (o.before)
    for (const std::string& l : beforeLines) p.line(l);

  // The title, its size by the heading level.
  const int level = (o.titleSize >= 0 && o.titleSize <= 2 ? o.titleSize : 0) + 1;
  p.part("<H" + std::to_string(level) + ">");
  if (o.addTitle && o.titleLoc == 0) p.part(o.titleText + " ");
  p.part(name);
  if (o.addTitle && o.titleLoc != 0) p.part(" " + o.titleText);
  p.line("</H" + std::to_string(level) + ">");
  p.line();

  if (o.download) {
    const std::string dl = downloadName(outputPath);
    p.line("Click Here to download the <A HREF=\"" + o.ftpDir + dl + "\">" + name +
           " Recipe</A> in Zythara Format, <BR>then use <B>Save As...</B> (suggested filename: " + dl +
           ").<BR> <P>");
    p.line();
  }

  p.line("<FONT SIZE=-1>");
  const char* kind = rec.mashType == 0 ? "This is an All Extract " : rec.mashType == 1 ? "This is a Partial Mash "
                                                                                    : "This is an All Grain ";
  p.line(kind + type + " Recipe<BR>");
  if (!trim(rec.dateCreated).empty()) p.line("Date Created: " + trim(rec.dateCreated) + "<BR>");
  if (!trim(rec.idCode).empty()) p.line("ID Code: " + trim(rec.idCode) + "<BR>");
  p.line("</FONT><P>");
  p.line();

  // The characteristics.
  const std::string volume = listText(m.volumeUnits, rec.volumeUnits);
  p.line(kTableStart);
  p.characteristic("Fermentation Volume", formatNumber(rec.fermentVolume, "0.0") + " " + volume);
  p.characteristic("Initial Boil Volume", formatNumber(rec.boilVolume, "0.0") + " " + volume);
  p.characteristic("Color", formatNumber(rec.color, "0.0") + " Lovi/SRM");
  p.characteristic("Bitterness", formatNumber(rec.bitterness, "0") + " IBU");
  p.characteristic("Original Gravity", formatNumber(rec.originalGravity, "0.000"));
  p.characteristic("Final Gravity", formatNumber(rec.finalGravity, "0.000"));
  if (rec.mashType > 0) p.characteristic("Mash Efficiency", printedNumber(rec.mashEfficiency) + "%");
  p.characteristic("Approx Alcohol", formatNumber(rec.alcohol, "0.0") + "%");
  if (o.costs) {
    const double cost = recipeCost(recipe);
    p.characteristic("Approx Cost", cost >= 0.01 ? formatNumber(cost, "Currency") : std::string("<Not Specified>"));
  }
  p.line("</TABLE><P>");
  p.line();

  p.line(std::string("<B>Ingredients:</B><BR>") + kTableStart);
  const int n = rec.itemCount < 0 ? 0 : (rec.itemCount > kMaxRecipeItems ? kMaxRecipeItems : rec.itemCount);
  for (int i = 0; i < n; ++i) ingredientRow(p, recipe.items[static_cast<size_t>(i)]);
  p.line("</TABLE><P>");
  p.line();

  p.line("<B>Mash Instructions:</B><BR>");
  mashPart(p, recipe, maltUnits);
  fermentationPart(p, rec);

  if (rec.agingCount > 0) {
    p.line("<b>Aging/Lagering Data:</B><BR>");
    std::string age = "After Fermentation, Age/Lager for " + printedNumber(rec.agingCount) + " " +
                      listText(m.timeUnits, rec.agingUnits);
    if (rec.agingTemp != kNoAgingTemp) age += " at " + printedNumber(rec.agingTemp) + temperatureLabel(rec.unitType);
    p.line(age);
    p.line();
    p.line("<P>");
    p.line();
  }

  // The comments, a paragraph for each of their lines; empty lines only part paragraphs.
  if (!trimWhite(recipe.comment).empty()) {
    p.line("<B>Comments:</B><BR>");
    for (const std::string& l : textLines(recipe.comment)) {
      if (trim(l).empty()) continue;
      p.line(l + "<P>");
      p.line();
    }
  }

  if (o.after) {
    for (const std::string& l : afterLines) p.line(l);
    p.line("<P>");
    p.line();
  }
  if (o.returnLink) {
    p.line("<A HREF=\"#" + o.tagName + "\">Return to Top of Recipe</A><BR><P>");
    p.line();
  }
  p.line("<HR>");
  p.line();
  p.line("</BODY></HTML>");
  return p.text;
}

namespace {
// The whole of a file, or the error of its opening.
bool readWhole(const std::string& path, std::string& text, ErrorLog& errors) {
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f) {
    errors.reportFileError(fileErrorFromErrno(errno, path), 0, kGenerateFn);
    return false;
  }
  char buf[4096];
  size_t got;
  while ((got = std::fread(buf, 1, sizeof buf, f)) > 0) text.append(buf, got);
  const bool bad = std::ferror(f) != 0;
  const int err = errno;
  std::fclose(f);
  if (bad) errors.reportFileError(fileErrorFromErrno(err, path), 0, kGenerateFn);
  return !bad;
}
}  // namespace

bool generateHTML(CurrentRecipe& recipe, int maltUnits, const HtmlOptions& o, const std::string& outputPath,
                  ErrorLog& errors) {
  std::string before, after;
  if (o.before && !readWhole(o.beforeFile, before, errors)) return false;
  if (o.after && !readWhole(o.afterFile, after, errors)) return false;
  const std::string page = htmlPage(recipe, maltUnits, o, outputPath, textLines(before), textLines(after));
  std::FILE* f = std::fopen(outputPath.c_str(), "wb");
  if (!f) {
    errors.reportFileError(fileErrorFromErrno(errno, outputPath), 0, kGenerateFn);
    return false;
  }
  const bool written = std::fwrite(page.data(), 1, page.size(), f) == page.size();
  const int err = written ? 0 : errno;
  if (std::fclose(f) != 0 || !written) {
    errors.reportFileError(fileErrorFromErrno(err ? err : errno, outputPath), 0, kGenerateFn);
    return false;
  }
  return true;
}

}  // namespace zy
