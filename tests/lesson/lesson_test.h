#pragma once

#include <string>
#include <vector>

#include "lesson/Form9.h"
#include "tests/support/color_at.h"
#include "tests/support/scripted_host.h"

namespace clinorama::tests {

using Kind = forms::DrawingOperation::Kind;

constexpr forms::Color Yellow{0xFFFF00};

// The lesson on a scripted machine, opened at page 0, with what it draws on record.
class LessonTest : public ApplicationTest {
 protected:
  Form9& page = forms::The<Form9>();
  std::vector<forms::DrawingOperation> drawn;

  void SetUp() override {
    page.Show();
    Record();
  }

  void Record() {
    drawn.clear();
    page.Picture1.Observer = [this](const forms::DrawingOperation& operation) {
      drawn.push_back(operation);
    };
  }

  // What is drawn from the last Record on, of one kind.
  std::vector<forms::DrawingOperation> Drawn(Kind kind) const {
    std::vector<forms::DrawingOperation> chosen;
    for (const auto& operation : drawn) {
      if (operation.What == kind) {
        chosen.push_back(operation);
      }
    }
    return chosen;
  }

  // Walks forwards; the motions on the way run to their ends.
  void GoTo(int number) {
    for (int i = std::stoi(page.Label3.Caption()); i < number; ++i) {
      page.Seguinte.UserClick();
    }
    host.Steps = 0;
    host.WaitedMilliseconds = 0;
    Record();
  }

  // Has the user do something in a step of what is about to run, counted from 1.
  void AtStep(int step, std::function<void()> action) {
    host.AtStep(host.Steps + step, std::move(action));
  }

  std::string EnabledButtons() const {
    std::string letters;
    for (const auto* button : {&page.Anterior, &page.Seguinte, &page.Parar, &page.Continuar}) {
      if (button->Enabled) {
        letters += button->Name().front();
      }
    }
    return letters;
  }

  // The numbers of the visible texts.
  std::string Texts() const {
    std::string numbers = page.Image5.Visible ? "definition " : "";
    for (int i = page.Image4.First(); i <= page.Image4.Last(); ++i) {
      if (page.Image4(i).Visible) {
        numbers += std::to_string(i);
      }
    }
    return numbers;
  }

  // The pixel of the kept picture at a point in user units.
  forms::Color PixelAt(double x, double y) const {
    return ColorAt(page.Picture1, page.Picture1.Kept(), x, y);
  }
};

}  // namespace clinorama::tests
