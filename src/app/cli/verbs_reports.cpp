// The `report` verb: any printed report of the program, laid out by the same procedures the print
// preview draws, printed as plain lines of text page by page; or, with --file, its file form.
#include "app/cli/Cli.h"
#include "app/cli/ReportVerbs.h"
#include "reports/RecordingTarget.h"

namespace zy::cli {

namespace {
std::vector<ReportVerb>& reportRegistry() {
  static std::vector<ReportVerb> r;
  return r;
}

std::string reportUsage() {
  std::string u = "report ";
  for (size_t i = 0; i < reportRegistry().size(); ++i) u += (i ? "|" : "") + std::string(reportRegistry()[i].name);
  return u + " ... [--page P] [--file PATH]";
}

int verbReport(Context& c) {
  // Take the options off the end; what is left names the report and its arguments.
  long page = 0;
  std::string file;
  bool toFile = false;
  std::vector<std::string> args, raw;
  for (size_t i = 0; i < c.args.size(); ++i) {
    if ((c.args[i] == "--page" || c.args[i] == "--file") && i + 1 < c.args.size()) {
      if (c.args[i] == "--page") {
        if (!parseWhole(c.args[i + 1], page) || page < 1) return c.usage(reportUsage());
      } else {
        toFile = true;
        file = c.rawArgs[i + 1];
      }
      ++i;
      continue;
    }
    // Other options belong to the report (its sort, say): its builder reads them.
    args.push_back(c.args[i]);
    raw.push_back(c.rawArgs[i]);
  }
  if (args.empty()) return c.usage(reportUsage());
  const ReportVerb* verb = nullptr;
  for (const ReportVerb& v : reportRegistry())
    if (args[0] == v.name) verb = &v;
  if (!verb) return c.usage(reportUsage());
  args.erase(args.begin());
  raw.erase(raw.begin());
  c.args = args;
  c.rawArgs = raw;

  ReportRequest req;
  if (int status = verb->build(c, req); status != EXIT_DONE) return status;
  if (toFile) {
    if (!req.toFile) {
      c.wb.prompter.message("Function Not Available. Try Export", "Save to File");
      return EXIT_REPORTED;
    }
    return req.toFile(file) ? EXIT_DONE : EXIT_REPORTED;
  }
  RecordingTarget target;
  ReportState state;
  int pages = runReport(req.draw, target, state, 0);
  if (page > pages) {
    std::fprintf(c.err, "report: the report has %d page%s\n", pages, pages == 1 ? "" : "s");
    return EXIT_USAGE;
  }
  for (int p = 1; p <= pages; ++p) {
    if (page && p != page) continue;
    c.line("--- Page " + std::to_string(p) + " of " + std::to_string(pages));
    for (const std::string& l : target.lines(p)) c.line(l);
  }
  return EXIT_DONE;
}

VerbRegistrar r1("report", "report NAME ... [--page P] [--file PATH] (zythara-cli report for the names)", verbReport);
}  // namespace

ReportVerbRegistrar::ReportVerbRegistrar(const char* name, const char* usage, ReportBuildFn build) {
  reportRegistry().push_back({name, usage, build});
}

}  // namespace zy::cli
