#include <gtest/gtest.h>

#include "cli/CliRunner.h"

namespace zy::test {

TEST(SettingsVerb, ReadsWritesAndRefusesKeysThroughTheStore) {
  CliHome h;
  const struct { std::vector<std::string> args; int status; const char* out; const char* err; } steps[] = {
      {{"settings", "set", "Defaults", "Mash Eff", "72"}, 0, "", ""},
      {{"settings", "get", "defaults", "MASH EFF"}, 0, "72\n", ""},
      {{"settings", "get", "Defaults", "Boil Time"}, 1, "", "settings: no key \"Boil Time\" in section \"Defaults\"\n"},
      {{"settings", "set", "Defaults", "[x", "1"}, 1, "",
       "[Zythara 2] The key \"[x\" of section \"Defaults\" cannot be kept in the settings file: a key beginning with "
       "\"[\" would be read back as a section head or a comment.\n"},
      {{"settings", "get", "Defaults"}, 2, "", nullptr},
  };
  for (const auto& s : steps) {
    CliResult r = h.run(s.args);
    EXPECT_EQ(std::to_string(r.status) + "|" + r.out, std::to_string(s.status) + "|" + s.out) << s.args[1];
    if (s.err) {
      EXPECT_EQ(r.err, s.err);
    }
  }
  EXPECT_EQ(readFile(h.dir.file("settings.ini")), "[Defaults]\nMash Eff=72\n\n");
}

}  // namespace zy::test
