#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "forms/application.h"
#include "relations/Form13.h"
#include "tests/support/scripted_host.h"

namespace clinorama::tests {

using Button = forms::CommandButton Form13::*;
using Drawing = forms::DrawingOperation;

// Numbers of the palette.
enum { AnyColor = -1, CurveBlue = 9, Green, Cyan, Red, Magenta, Yellow };

// The relations page in front, with what is drawn on its canvases on record.
class RelationsTest : public ApplicationTest {
 protected:
  RelationsTest() {
    page.Show();
    for (int index = 1; index <= 6; ++index) {
      page.Picture1(index).Observer = [this, index](const Drawing& operation) {
        if (DuringDrawing) {
          DuringDrawing();
        }
        Drawn[index].push_back(operation);
      };
    }
  }

  // Presses a button, with a text in the box or with the one that is there; the record starts anew.
  void Press(Button button, const std::string& text = {}) {
    if (!text.empty()) {
      page.Função1.Text = text;
    }
    Drawn.clear();
    host.MessageBoxes.clear();
    host.Focused.clear();
    host.Flushes.clear();
    (page.*button).UserClick();
  }

  // The points on a canvas, in a colour of the palette or in any.
  std::vector<Drawing> Points(int canvas, int color = AnyColor) {
    auto found = Drawn[canvas];
    std::erase_if(found, [&](const Drawing& drawing) {
      return drawing.What != Drawing::Kind::Point ||
             (color != AnyColor && drawing.Pen != forms::QBColor(color));
    });
    return found;
  }

  // Whether the persistent canvas of a window is seen; its live twin is seen otherwise.
  bool PersistentInView(int persistent) {
    EXPECT_NE(page.Picture1(persistent).Visible(), page.Picture1(persistent + 1).Visible());
    return page.Picture1(persistent).Visible;
  }

  Form13& page = forms::The<Form13>();
  std::function<void()> DuringDrawing;
  std::map<int, std::vector<Drawing>> Drawn;
};

}  // namespace clinorama::tests
