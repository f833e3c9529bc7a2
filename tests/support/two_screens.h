#pragma once

#include <QTemporaryFile>

namespace clinorama::tests {

// Gives an application that is made after it a platform without a display, with two screens: that
// of the layout, and beside it a large one.
class TwoScreens {
 public:
  TwoScreens() {
    file_.open();
    file_.write(R"({"screens": [
      {"name": "layout", "x": 0, "y": 0, "width": 1024, "height": 768,
       "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
      {"name": "projector", "x": 1024, "y": 0, "width": 1920, "height": 1080,
       "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    file_.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file_.fileName().toUtf8());
  }

 private:
  QTemporaryFile file_;
};

}  // namespace clinorama::tests
