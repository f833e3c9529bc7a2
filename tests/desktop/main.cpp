#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "desktop/look.h"
#include "tests/support/two_screens.h"

// The widgets need an application before the first of them, and no display.
int main(int argc, char* argv[]) {
  const QTemporaryDir settings;  // where the toolkit would keep its own
  const clinorama::tests::TwoScreens screens;
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  testing::InitGoogleTest(&argc, argv);
  GTEST_FLAG_SET(death_test_style, "threadsafe");  // the toolkit may run threads
  QApplication application(argc, argv);
  clinorama::desktop::SetLook();
  return RUN_ALL_TESTS();
}
