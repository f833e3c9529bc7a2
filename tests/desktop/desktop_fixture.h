#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWidget>

#include "desktop/qt_host.h"
#include "forms/application.h"

namespace clinorama::tests {

// The program on real widgets, driven by real events.
class DesktopTest : public testing::Test {
 protected:
  static QWidget* Window(const char* page) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == QString::fromUtf8(page) && !window->isHidden()) {
        return window;
      }
    }
    return nullptr;
  }

  template <class Widget = QWidget>
  static Widget* Find(const char* page, const char* control) {
    QWidget* window = Window(page);
    Widget* widget =
        window == nullptr ? nullptr : window->findChild<Widget*>(QString::fromUtf8(control));
    EXPECT_NE(widget, nullptr) << page << " has no " << control;
    return widget;
  }

  static void Click(const char* page, const char* control) {
    QTest::mouseClick(Find(page, control), Qt::LeftButton);
  }

  desktop::QtHost host;
  forms::Application application{host};
};

}  // namespace clinorama::tests
