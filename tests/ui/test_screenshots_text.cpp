// Pictures of the recipe reader with a recipe pasted in, and of the comment window holding the
// smart instructions, written only when ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QPlainTextEdit>
#include <QTest>

#include "ui/RecipeBench.h"
#include "ui/frmComments.h"
#include "ui/frmRecReader.h"
#include "ui/frmRecipe.h"

namespace zy::test {
namespace {

void saveShot(QWidget& w, const QString& dir, const QString& name) {
  QApplication::processEvents();
  QTest::qWait(50);
  const QString path = QDir(dir).filePath(name + ".png");
  ASSERT_TRUE(w.grab().save(path));
  EXPECT_TRUE(pictureIsNotBlank(path)) << name.toStdString() << " is blank";
}

TEST(Screenshots, TextWindows) {
  const QString dir = qEnvironmentVariable("ZY_SCREENSHOT_DIR");
  if (dir.isEmpty()) GTEST_SKIP() << "ZY_SCREENSHOT_DIR not set";
  QDir().mkpath(dir);
  RecipeBench b;
  b.storeDozen(1, "Copper Amber");
  frmRecipe& r = b.windows->recipe();
  r.editor().openRecipe(1);
  r.refreshFromModel();

  frmRecReader& reader = b.windows->recReader();
  reader.txtComment->setPlainText(
      "\"Harbor Pale Ale\"\n5 gallons\n8 lbs Pale Malt\n1 lb Crystal 40L\n1 oz Cascade (5.5% AA) - 60 min\n"
      "1 oz Cascade (5.5% AA) - 15 min\n1/2 oz Cascade dry hop\n1 tsp Irish moss\n1 pkg Safale US-05\n"
      "Primary 7 days at 68 in glass\n3/4 cup corn sugar for priming");
  reader.show();
  saveShot(reader, dir, "recipe-reader");

  b.prompter.answers = {Answer::Yes};
  r.openComments();
  frmComments& c = b.windows->comments();
  c.mnuSmartInstructions->trigger();
  saveShot(c, dir, "comments-smart");
}

}  // namespace
}  // namespace zy::test
