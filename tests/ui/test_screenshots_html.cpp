// A picture of "Control HTML Generation" (genhtml.png) when ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

#include <QDir>

#include "support/TestSupport.h"
#include "ui/UiSupport.h"
#include "ui/frmGenHTML.h"

namespace zy::test {
namespace {

TEST(Screenshots, GenHtmlWindow) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  Bench b;
  b.settings.write("HTMLgen", "Before Check", "1");
  b.settings.write("HTMLgen", "Before File", "/home/brewer/web/header.htm");
  frmGenHTML w(*b.wb);
  w.show();
  saveScreenshot(w, dir, "genhtml");
  w.close();
}

}  // namespace
}  // namespace zy::test
