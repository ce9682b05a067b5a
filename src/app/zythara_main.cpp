// The desktop program. Until the encyclopedia window lands, a plain main window tells what the
// program found: its version, its program folder and the recipes stored there.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QVBoxLayout>

#include "core/paths.h"
#include "core/settings.h"
#include "recipes/RecipeStore.h"
#include "ui/QtPrompter.h"
#include "workbench/Workbench.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(zy::kApplicationName);
  std::string home, settingsFile;
  QStringList args = QApplication::arguments();
  for (int i = 1; i < args.size(); ++i) {
    if (args[i] == "--home" && i + 1 < args.size()) home = args[++i].toStdString();
    else if (args[i] == "--settings" && i + 1 < args.size()) settingsFile = args[++i].toStdString();
  }
  std::string root = zy::chooseProgramFolder(home, zy::executableDir());
  zy::ProgramFolder(root).ensureFolders();
  zy::FileSettingsStore settings(zy::chooseSettingsFile(settingsFile));
  zy::QtPrompter prompter;
  zy::SystemClock clock;
  zy::Workbench wb(root, settings, prompter, clock);
  wb.errors.setTerminationHook([](int n) { std::_Exit(n == 0 ? 3 : 3); });
  wb.loadDefaults();
  long recipes = 0;
  zy::scanRecipes(wb, [&](long, const zy::RecipeRecord&) { ++recipes; });

  QMainWindow w;
  w.setWindowTitle("Homebrewing Encyclopedia");
  auto* central = new QWidget;
  auto* layout = new QVBoxLayout(central);
  layout->addWidget(new QLabel(QString("<h2>Homebrewing Encyclopedia</h2>")));
  layout->addWidget(new QLabel(QString("Version %1").arg(QString::fromStdString(zy::versionText()))));
  layout->addWidget(new QLabel(QString("Program folder: %1").arg(QString::fromStdString(root))));
  layout->addWidget(new QLabel(QString("Stored recipes: %1").arg(recipes)));
  layout->addStretch();
  w.setCentralWidget(central);
  w.resize(520, 240);
  prompter.setParent(&w);
  w.show();
  return app.exec();
}
