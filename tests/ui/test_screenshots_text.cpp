// Pictures of the recipe reader with a recipe pasted in, and of the comment window holding the
// smart instructions, written only when ZY_SCREENSHOT_DIR names a folder.
#include <gtest/gtest.h>

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
  QTest::qWait(50);
  ASSERT_TRUE(w.grab().save(QDir(dir).filePath(name + ".png")));
  EXPECT_TRUE(pictureIsNotBlank(QDir(dir).filePath(name + ".png"))) << name.toStdString();
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
  reader.txtComment->setPlainText(QString::fromStdString(readFile(std::string(ZY_SOURCE_DIR) +
                                                                   "/tests/data/recipes-text/01-harbor-pale.txt"))
                                     .replace("\r\n", "\n"));
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
