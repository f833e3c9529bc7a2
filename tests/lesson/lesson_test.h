#pragma once

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "lesson/Form9.h"
#include "tests/support/scripted_host.h"

namespace clinorama::tests {

using Drawing = forms::DrawingOperation;
using Kind = Drawing::Kind;

// The lesson on a scripted machine, opened at page 0, with what it draws on record.
class LessonTest : public ApplicationTest {
 protected:
  LessonTest() {
    page.Show();
    Record();
  }

  void Record() {
    drawn.clear();
    host.Steps = 0;
    host.WaitedMilliseconds = 0;
    page.Picture1.Observer = [this](const Drawing& drawing) { drawn.push_back(drawing); };
  }

  // What is drawn from the last Record on, of one kind.
  std::vector<Drawing> Drawn(Kind kind) const {
    auto chosen = drawn;
    std::erase_if(chosen, [kind](const Drawing& drawing) { return drawing.What != kind; });
    return chosen;
  }

  // Walks forwards; the motions on the way run to their ends.
  void GoTo(int number) {
    for (int i = std::stoi(page.Label3.Caption()); i < number; ++i) {
      page.Seguinte.UserClick();
    }
    Record();
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

  Form9& page = forms::The<Form9>();
  std::vector<Drawing> drawn;
};

}  // namespace clinorama::tests
