// The encyclopedia's tables of numbers against the figures the program computes with: a topic
// that tells a brewer what the water treatment tool adds per gram, what the batch log adds for a
// warm sample or what a utilization curve holds must say what the program really does. Each
// table is found in the shipped topic store by its ID attribute.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "batchlog/BatchLogEditor.h"
#include "calculators/HopsUtilization.h"
#include "calculators/WaterTreatment.h"
#include "reference/ReferenceFiles.h"

namespace fs = std::filesystem;

namespace zy::test {
namespace {

using Table = std::vector<std::vector<std::string>>;  // rows of cell texts, tags removed

std::string topicBody(const std::string& title) {
  const fs::path dir = fs::path(ZY_STAGE_DIR) / "Reference";
  ReferenceReader store;
  store.open((dir / "Zyth.enc").string());
  for (const TocEntry& e : readTocFile((dir / "ZythTOC.enc").string())) {
    TopicRecord t = readTopicAt(store, e.position);
    if (t.title == title) return t.body;
  }
  ADD_FAILURE() << "no topic \"" << title << "\"";
  return {};
}

std::string stripTags(const std::string& html) { return std::regex_replace(html, std::regex("<[^>]*>"), ""); }

Table tableById(const std::string& body, const std::string& id) {
  Table rows;
  const size_t start = body.find("<TABLE ID=\"" + id + "\"");
  const size_t end = body.find("</TABLE>", start);
  if (start == std::string::npos || end == std::string::npos) {
    ADD_FAILURE() << "no table " << id;
    return rows;
  }
  const std::string t = body.substr(start, end - start);
  const std::regex row("<TR>([\\s\\S]*?)</TR>"), cell("<T[HD][^>]*>([\\s\\S]*?)</T[HD]>");
  for (std::sregex_iterator r(t.begin(), t.end(), row), e; r != e; ++r) {
    const std::string inner = (*r)[1];
    rows.emplace_back();
    for (std::sregex_iterator c(inner.begin(), inner.end(), cell); c != e; ++c) rows.back().push_back(stripTags((*c)[1]));
  }
  return rows;
}

double firstNumber(const std::string& text) {
  std::smatch m;
  if (!std::regex_search(text, m, std::regex("[-+]?\\d+(\\.\\d+)?"))) {
    ADD_FAILURE() << "no number in \"" << text << "\"";
    return 0;
  }
  return std::stod(m.str());
}

int ionIndex(const std::string& name) {
  for (int i = 0; i < kIonCount; ++i)
    if (name == ionNames()[static_cast<size_t>(i)]) return i;
  return -1;
}

// "Ca 106, CO3 159" or "61.5 ppm Ca, 147.4 ppm SO4": the ions a cell names, by column.
std::array<double, kIonCount> ionsOf(const std::string& cell) {
  std::array<double, kIonCount> v{};
  const std::regex named("([A-Z][a-z]?(?:[A-Z][a-z]?)?\\d?) (\\d+(?:\\.\\d+)?)"), ppm("(\\d+(?:\\.\\d+)?) ppm ([A-Za-z]+\\d?)");
  for (std::sregex_iterator m(cell.begin(), cell.end(), named), e; m != e; ++m)
    if (int i = ionIndex((*m)[1]); i >= 0) v[static_cast<size_t>(i)] = std::stod((*m)[2]);
  for (std::sregex_iterator m(cell.begin(), cell.end(), ppm), e; m != e; ++m)
    if (int i = ionIndex((*m)[2]); i >= 0) v[static_cast<size_t>(i)] = std::stod((*m)[1]);
  return v;
}

// The chemical whose formula starts the cell ("CaSO4" in "CaSO4·2H2O"), or none.
const WaterChemicalInfo* chemicalOf(const std::string& cell) {
  for (const WaterChemicalInfo& c : waterChemicals())
    if (cell.find(c.formula) != std::string::npos) return &c;
  return nullptr;
}

TEST(TopicFigures, SaltTablesAgreeWithTheWaterTreatmentChemicals) {
  // The tool's own table: whole ppm per gram per US gallon and grams per teaspoon, exactly. The
  // exact table of the salts topic may differ by its rounding to whole ppm, at most 1.
  struct Case {
    const char* topic;
    const char* id;
    int formulaCol, ionsCol, tspCol;
    double tolerance;
    size_t matched;
  };
  for (const Case& k : {Case{"Water Treatment Tool", "salt-ions", 0, 1, 2, 0.0, 6},
                        Case{"Brewing Salts", "salt-ions-exact", 1, 2, -1, 1.0, 5}}) {
    SCOPED_TRACE(k.id);
    const Table t = tableById(topicBody(k.topic), k.id);
    size_t matched = 0;
    for (size_t r = 1; r < t.size(); ++r) {
      const WaterChemicalInfo* c = chemicalOf(t[r].at(static_cast<size_t>(k.formulaCol)));
      if (!c) continue;
      ++matched;
      const auto ions = ionsOf(t[r].at(static_cast<size_t>(k.ionsCol)));
      for (size_t i = 0; i < kIonCount; ++i) {
        EXPECT_NEAR(ions[i], c->ppm[i], k.tolerance + 1e-9) << c->formula << " " << ionNames()[i];
      }
      if (k.tspCol >= 0) {
        EXPECT_DOUBLE_EQ(firstNumber(t[r].at(static_cast<size_t>(k.tspCol))), c->gramsPerTsp) << c->formula;
      }
    }
    EXPECT_EQ(matched, k.matched);
  }
}

TEST(TopicFigures, FamousWatersAreTheTreatmentToolsTargets) {
  const Table t = tableById(topicBody("Famous Brewing Waters"), "famous-waters");
  ASSERT_EQ(t.size(), famousWaters().size());  // a header and the ten waters after "(User Defined)"
  for (size_t r = 1; r < t.size(); ++r)
    for (size_t col = 1; col < t[0].size(); ++col) {
      const int ion = ionIndex(t[0][col]);
      if (ion < 0) continue;
      EXPECT_EQ(firstNumber(t[r][col]), famousWaters()[r].ppm[static_cast<size_t>(ion)])
          << famousWaters()[r].name << " " << t[0][col];
    }
}

TEST(TopicFigures, HydrometerCorrectionIsTheBatchLogs) {
  const Table t = tableById(topicBody("Hydrometer Temperature Correction"), "hydrometer-correction");
  ASSERT_GE(t.size(), 10u);
  for (size_t r = 1; r < t.size(); ++r) {
    const double f = firstNumber(t[r].at(0));
    EXPECT_NEAR(firstNumber(t[r].at(1)), adjustSG(f) * 1000.0, 0.05 + 1e-9) << f << " °F";
  }
}

TEST(TopicFigures, UtilizationTableIsThePresetCurves) {
  const Table t = tableById(topicBody("Hops Utilization Tables"), "utilization-curves");
  ASSERT_EQ(t.size(), static_cast<size_t>(kUtilRows + 1));
  const std::array<double, kUtilRows>* curves[] = {&ragerCurve(), &tinsethCurve(), &garetzCurve()};
  for (size_t r = 1; r < t.size(); ++r) {
    EXPECT_EQ(firstNumber(t[r].at(0)), 5.0 * static_cast<double>(r));
    for (size_t k = 0; k < 3; ++k) EXPECT_NEAR(firstNumber(t[r].at(k + 1)), (*curves[k])[r - 1], 1e-9) << t[0][k + 1];
  }
}

}  // namespace
}  // namespace zy::test
