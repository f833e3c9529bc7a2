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

constexpr int Green = 10;
constexpr int Cyan = 11;
constexpr int Red = 12;
constexpr int Magenta = 13;
constexpr int CurveBlue = 9;

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

  // Presses a button with a text in the box; the record starts anew.
  void Press(Button button, const std::string& text) {
    page.Função1.Text = text;
    Press(button);
  }
  void Press(Button button) {
    Drawn.clear();
    host.MessageBoxes.clear();
    host.Focused.clear();
    (page.*button).UserClick();
  }

  // What was drawn on a canvas of one kind, in a colour of the palette or in any.
  std::vector<Drawing> Of(int canvas, Drawing::Kind kind, int color = -1) {
    std::vector<Drawing> found;
    for (const Drawing& operation : Drawn[canvas]) {
      if (operation.What != kind) {
        continue;
      }
      if (color < 0 || operation.Pen == forms::QBColor(color)) {
        found.push_back(operation);
      }
    }
    return found;
  }
  std::vector<Drawing> Points(int canvas, int color = -1) {
    return Of(canvas, Drawing::Kind::Point, color);
  }

  // Where the persistent canvas of a window is seen; its live twin is seen otherwise.
  bool PersistentInView(int persistent) {
    EXPECT_NE(page.Picture1(persistent).Visible(), page.Picture1(persistent + 1).Visible());
    return page.Picture1(persistent).Visible;
  }

  Form13& page = forms::The<Form13>();
  std::function<void()> DuringDrawing;
  std::map<int, std::vector<Drawing>> Drawn;
};

// The twelve drawing buttons with what tests ask of all of them.
struct DrawingButton {
  Button Press;
  int Persistent;  // canvas of the button's window
};

inline constexpr DrawingButton DrawingButtons[] = {
    {&Form13::DesenharGráfico, 1},       {&Form13::ColocarCoresFunção, 1},
    {&Form13::ColocarCoresFunção2, 1},   {&Form13::ExtremosFunção, 1},
    {&Form13::InflexõesFunção, 1},       {&Form13::DesenharPrimeira, 3},
    {&Form13::ColocarCoresPrimeira1, 3}, {&Form13::ColocarCoresPrimeira2, 3},
    {&Form13::ZerosPrimeira, 3},         {&Form13::DesenharSegunda, 5},
    {&Form13::ColocarCoresSegunda, 5},   {&Form13::ZerosSegunda, 5},
};

}  // namespace clinorama::tests
