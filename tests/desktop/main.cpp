#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include "desktop/look.h"

// The screens of these tests: that of the layout, and beside it a large one.
constexpr const char* Screens = R"({"screens": [
  {"name": "layout", "x": 0, "y": 0, "width": 1024, "height": 768,
   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
  {"name": "projector", "x": 1024, "y": 0, "width": 1920, "height": 1080,
   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

// The widgets need an application before the first of them, and no display.
int main(int argc, char* argv[]) {
  const QTemporaryDir settings;  // where the toolkit would keep its own
  QTemporaryFile screens;
  screens.open();
  screens.write(Screens);
  screens.flush();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  testing::InitGoogleTest(&argc, argv);
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // the toolkit may run threads
  QApplication application(argc, argv);
  clinorama::desktop::SetLook();
  return RUN_ALL_TESTS();
}
