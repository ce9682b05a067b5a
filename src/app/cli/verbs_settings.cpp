// Verb: settings get SECTION KEY, settings set SECTION KEY VALUE. One key of the settings file,
// read or written through the store the program uses: a brewer's way to mend a setting.
#include "app/cli/Cli.h"
#include "core/paths.h"
#include "core/settings.h"

namespace zy::cli {
namespace {

int verbSettings(Context& c) {
  const bool get = c.args.size() == 3 && c.args[0] == "get";
  const bool set = c.args.size() == 4 && c.args[0] == "set";
  if (!get && !set) return c.usage("settings get SECTION KEY | settings set SECTION KEY VALUE");
  const std::string& section = c.args[1];
  const std::string& key = c.args[2];
  const std::string why = FileSettingsStore::refusal(section, key);
  if (!why.empty()) {
    c.wb.prompter.message(why, kApplicationName, Icon::Warning);
    return EXIT_REPORTED;
  }
  if (get) {
    static const std::string kMissing("\x01");
    const std::string value = c.wb.settings.read(section, key, kMissing);
    if (value == kMissing) {
      std::fprintf(c.err, "settings: no key \"%s\" in section \"%s\"\n", key.c_str(), section.c_str());
      return EXIT_REPORTED;
    }
    c.line(value);
    return EXIT_DONE;
  }
  c.wb.settings.write(section, key, c.args[3]);
  return EXIT_DONE;
}

VerbRegistrar r1("settings", "settings get SECTION KEY | settings set SECTION KEY VALUE", verbSettings);

}  // namespace
}  // namespace zy::cli
