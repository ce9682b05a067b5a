// Verbs over the style database and the hops utilization curve: styles, style-stats, hops.
#include "app/cli/Cli.h"
#include "calculators/HopsUtilization.h"
#include "calculators/HopsUtilizationEditor.h"
#include "core/numfmt.h"
#include "core/text.h"
#include "styles/StyleMatch.h"
#include "styles/StyleStore.h"

namespace zy::cli {
namespace {

// One line per style row: row, source name, style id, name, category label, tab-separated.
int verbStyles(Context& c) {
  if (!c.args.empty()) return c.usage("styles");
  LoadBeerStyles(c.wb);  // a file that could not be read is reported; what loaded is shown
  const StyleTables& t = c.wb.styles;
  for (int row = 0; row < t.BeerStyleCount && row < kStyleTableRows; ++row) {
    const BeerStyleRecord& s = t.BeerStyles[static_cast<size_t>(row)];
    const StyleBrowserEntry e = styleBrowserEntry(t, row);
    c.line(itos(row) + "\t" + e.sourceName + "\t" + trim(s.styleId) + "\t" + e.styleName + "\t" + e.categoryText);
  }
  return EXIT_DONE;
}

// The five counters of the statistics dialog, "Label: value".
int verbStyleStats(Context& c) {
  if (!c.args.empty()) return c.usage("style-stats");
  LoadBeerStyles(c.wb);
  for (const std::string& l : computeStyleStatistics(c.wb.styles).lines()) c.line(l);
  return EXIT_DONE;
}

// The curve in use: title, mode, the three factors, then the 18 rows as minutes, a tab and the
// percentage.
int verbHops(Context& c) {
  if (!c.args.empty()) return c.usage("hops");
  HopsUtilization& h = c.wb.hops;
  LoadHopsUtilization(h, c.wb.settings);
  c.line("Title: " + h.UtilTitle);
  c.line("Gravity Adjustment: " + itos(h.GravityAdjustment));
  c.line("Factor 1: " + formatNumber(h.Factor1, "0.000###"));
  c.line("Factor 2: " + formatNumber(h.Factor2, "0.000###"));
  c.line("Factor 3: " + formatNumber(h.Factor3, "0.000###"));
  for (int i = 1; i <= kUtilRows; ++i)
    c.line(HopsUtilizationEditor::minutesText(i) + "\t" + formatNumber(h.UtilTable[static_cast<size_t>(i)], "0.0"));
  return EXIT_DONE;
}

VerbRegistrar r1("styles", "styles", verbStyles);
VerbRegistrar r2("style-stats", "style-stats", verbStyleStats);
VerbRegistrar r3("hops", "hops", verbHops);

}  // namespace
}  // namespace zy::cli
