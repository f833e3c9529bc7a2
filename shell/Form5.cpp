#include "shell/Form5.h"

#include <array>
#include <string>

#include "base/Module1.h"
#include "forms/application.h"
#include "shell/window_frame.h"
#include "workpage/Form12.h"

namespace clinorama {
namespace {

// All sizes are in twips. The window opens below the function box of the work page, so that the
// user sees the expression arrive there.
constexpr double WindowLeft = 1815;    // of the client area
constexpr double WindowTop = 2250;     // of the client area
constexpr double WindowWidth = 11850;  // with the frame
constexpr double WindowHeight = 7860;  // with the frame

// The value that `Form12` writes into OrigemExemplos before it opens this window.
constexpr int FromWorkPage = 3;

constexpr double LargeSide = 2250;  // width and height of the picture of a function
constexpr double SmallSide = 1095;  // width and height of the picture of a derivative
constexpr double Gap = 60;          // between pictures, and between a picture and its button
constexpr double ButtonHeight = 420;

constexpr int FirstSmallImage = 19;

struct Example {
  int Button;   // its number: 19 is Command19
  double Left;  // place of the button in its frame
  double Top;
  const char* Expression;
};

constexpr std::array<Example, 6> Examples = {{
    {19, 240, 3240, "3sen(x)-cos(2x)"},
    {18, 3990, 3240, "(x+5)*(x+1)*(x-3)*(x-6)/30"},
    {15, 7740, 3240, "x^2/(x^2+x-12)"},
    {17, 240, 6300, "1/cos(x)"},
    {16, 3990, 6300, "3sen(x)-sen(3x)"},
    {14, 7740, 6300, "5sen(x)/x"},
}};

// The picture of a function stands above the button. To its right stand the pictures of the two
// derivatives, one above the other.
forms::Rect LargePlace(const Example& example) {
  return {example.Left, example.Top - Gap - LargeSide, LargeSide, LargeSide};
}

forms::Rect SmallPlace(const Example& example, int derivative) {
  const forms::Rect large = LargePlace(example);
  return {large.Left + LargeSide + Gap, large.Top + (derivative - 1) * (LargeSide - SmallSide),
          SmallSide, SmallSide};
}

std::string ImageName(int number) { return "Image" + std::to_string(number); }

}  // namespace

Form5::Form5()
    : Page("Form5", ClientAreaOf(WindowLeft, WindowTop, WindowWidth, WindowHeight), "EXEMPLOS") {
  FrameClinorama.ForeColor = forms::Blue;
  Label7.Alignment = forms::Alignment::Right;
  ClosedByEscape = true;
  Fechar.Font = forms::Font{};
  Fechar.Click = [this] { UserClose(); };

  AddUnseenControls(FrameFinitos, 7, {1, 3, 4, 5, 6, 7});
  AddUnseenControls(FrameInfinitos, 13, {8, 9, 10, 11, 12, 13});
  AddExamples();
}

void Form5::AddExamples() {
  int image = 1;
  int smallImage = FirstSmallImage;
  for (const Example& example : Examples) {
    const std::string expression = example.Expression;
    const std::string picture = "examples/exemplo_" + std::to_string(image);
    const auto add = [&](int number, const forms::Rect& place, const std::string& suffix,
                         const std::string& spokenName) {
      images_.emplace_back(FrameClinorama, ImageName(number), place, picture + suffix, spokenName);
    };
    add(image, LargePlace(example), "", "Gráfico de " + expression);
    add(smallImage, SmallPlace(example, 1), "_primeira", "Gráfico da primeira derivada");
    add(smallImage + 1, SmallPlace(example, 2), "_segunda", "Gráfico da segunda derivada");
    image += 1;
    smallImage += 2;

    forms::CommandButton& button =
        AddButton(FrameClinorama, example.Button, example.Left, example.Top);
    button.AccessibleName = expression;
    button.ToolTipText = expression;
    button.Click = [expression] { forms::The<Form12>().Função1.Text = expression; };
  }
}

// Adds the pictures and buttons of a frame that is never shown. Its buttons have no action.
void Form5::AddUnseenControls(forms::Frame& frame, int firstImage,
                              const std::array<int, 6>& buttons) {
  for (std::size_t i = 0; i < Examples.size(); ++i) {
    images_.emplace_back(frame, ImageName(firstImage + static_cast<int>(i)),
                         LargePlace(Examples[i]), "");
    AddButton(frame, buttons[i], Examples[i].Left, Examples[i].Top);
  }
}

forms::CommandButton& Form5::AddButton(forms::Frame& frame, int number, double left, double top) {
  forms::CommandButton& button =
      buttons_.emplace_back(frame, "Command" + std::to_string(number),
                            forms::Rect{left, top, LargeSide, ButtonHeight}, "Tranferir");
  button.Font = forms::Font{};
  return button;
}

void Form5::Form_Load() {
  if (Module1::OrigemExemplos != FromWorkPage) {
    return;
  }
  FrameFinitos.Visible = false;
  FrameInfinitos.Visible = false;
  FrameClinorama.Visible = true;
}

void Form5::UserClose() {
  Module1::OrigemExemplos = 0;
  Page::UserClose();
}

}  // namespace clinorama
