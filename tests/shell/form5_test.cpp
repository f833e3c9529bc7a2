#include "shell/Form5.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "base/Module1.h"
#include "engine/clsEquation.h"
#include "shell/window_frame.h"
#include "tests/support/scripted_host.h"
#include "workpage/Form12.h"

namespace clinorama::tests {

using forms::The;

struct Transfer {
  std::string Button;
  double Left;
  double Top;
  std::string Expression;
  double ValueAtOne;
  std::string Picture;
};

const std::vector<Transfer> Transfers = {
    {"Command19", 240, 3240, "3sen(x)-cos(2x)", 3 * std::sin(1.0) - std::cos(2.0), "exemplo_1"},
    {"Command18", 3990, 3240, "(x+5)*(x+1)*(x-3)*(x-6)/30", 4, "exemplo_2"},
    {"Command15", 7740, 3240, "x^2/(x^2+x-12)", -0.1, "exemplo_3"},
    {"Command17", 240, 6300, "1/cos(x)", 1 / std::cos(1.0), "exemplo_4"},
    {"Command16", 3990, 6300, "3sen(x)-sen(3x)", 3 * std::sin(1.0) - std::sin(3.0), "exemplo_5"},
    {"Command14", 7740, 6300, "5sen(x)/x", 5 * std::sin(1.0), "exemplo_6"},
};

class ExamplesTest : public ApplicationTest {
 protected:
  ExamplesTest() {
    The<Form12>().Show();
    The<Form12>().Exemplos.UserClick();
  }

  static forms::CommandButton& Button(const std::string& name) {
    return dynamic_cast<forms::CommandButton&>(*forms::FindControl(The<Form5>(), name));
  }
};

double ValueAt(const std::string& expression, double x) {
  clsEquation equation;
  equation.Equation(expression);
  equation.Var("x", x);
  equation.Solve();
  return equation.Solution();
}

TEST_F(ExamplesTest, TransferAnExpressionThatEvaluates) {
  for (const Transfer& transfer : Transfers) {
    SCOPED_TRACE(transfer.Button);
    forms::CommandButton& button = Button(transfer.Button);
    EXPECT_EQ(button.Caption, "Tranferir");
    EXPECT_EQ(button.Left, transfer.Left);
    EXPECT_EQ(button.Top, transfer.Top);
    button.UserClick();
    EXPECT_EQ(The<Form12>().Função1.Text, transfer.Expression);
    EXPECT_NEAR(ValueAt(transfer.Expression, 1), transfer.ValueAtOne, 1e-12);
  }
  EXPECT_TRUE(The<Form5>().Visible);
  EXPECT_EQ(Module1::OrigemExemplos, 3);
}

// The quotient is left undivided there.
TEST(Examples, TheLastOneIsZeroAtZero) {
  Module1::CodigoDominio = 0;
  EXPECT_EQ(ValueAt("5sen(x)/x", 0), 0);
  EXPECT_EQ(Module1::CodigoDominio, 18);
}

TEST_F(ExamplesTest, ReachAWorkPageThatWasClosed) {
  The<Form12>().UserClose();
  Button("Command17").UserClick();
  EXPECT_EQ(The<Form12>().Função1.Text, "1/cos(x)");
  EXPECT_FALSE(The<Form12>().Visible);
}

// Above each button its own three pictures, large and small.
TEST_F(ExamplesTest, ShowThreePicturesAboveEachButton) {
  const std::vector<std::string> derivatives = {"_primeira", "_segunda"};
  for (int i = 0; i < 6; ++i) {
    const Transfer& transfer = Transfers[static_cast<std::size_t>(i)];
    SCOPED_TRACE(transfer.Button);
    const auto image = [](int number) -> forms::Image& {
      return dynamic_cast<forms::Image&>(
          *forms::FindControl(The<Form5>(), "Image" + std::to_string(number)));
    };
    const forms::Image& large = image(1 + i);
    EXPECT_EQ(large.Picture, "examples/" + transfer.Picture);
    EXPECT_EQ(large.Left, transfer.Left);
    EXPECT_EQ(large.Width, 2250.0);
    EXPECT_LE(large.Top + large.Height, transfer.Top);
    for (int k = 0; k < 2; ++k) {
      const forms::Image& small = image(19 + 2 * i + k);
      EXPECT_EQ(small.Picture,
                "examples/" + transfer.Picture + derivatives[static_cast<std::size_t>(k)]);
      EXPECT_GT(small.Left, large.Left + large.Width);
      EXPECT_LE(small.Top + small.Height, large.Top + large.Height);
    }
  }
}

TEST_F(ExamplesTest, HideTwoFramesWhoseButtonsDoNothing) {
  Form5& page = The<Form5>();
  EXPECT_EQ(page.Width + WindowFrameWidth, 11850.0);
  EXPECT_EQ(page.Height + WindowFrameHeight, 7860);
  EXPECT_FALSE(page.FrameFinitos.Visible);
  EXPECT_FALSE(page.FrameInfinitos.Visible);
  EXPECT_TRUE(page.FrameClinorama.Visible);

  std::set<std::string> names;
  for (const forms::Frame* frame : {&page.FrameFinitos, &page.FrameInfinitos}) {
    for (forms::Control* control : frame->Children()) {
      auto* button = dynamic_cast<forms::CommandButton*>(control);
      if (button == nullptr) {
        continue;
      }
      names.insert(button->Name());
      EXPECT_EQ(button->Caption, "Tranferir");
      button->Click();  // the user cannot
    }
  }
  EXPECT_EQ(names, (std::set<std::string>{"Command1", "Command3", "Command4", "Command5",
                                          "Command6", "Command7", "Command8", "Command9",
                                          "Command10", "Command11", "Command12", "Command13"}));
  for (int number = 7; number <= 18; ++number) {
    const forms::Control* image = forms::FindControl(page, "Image" + std::to_string(number));
    EXPECT_EQ(image->Parent(), number <= 12 ? &page.FrameFinitos : &page.FrameInfinitos);
  }
  EXPECT_EQ(The<Form12>().Função1.Text, "x*(1-cos(x))/2");
}

TEST_F(ExamplesTest, ForgetWhoOpenedThemWhenTheyAreClosed) {
  for (const bool byItsFrame : {false, true}) {
    host.PageCalls.clear();
    if (byItsFrame) {
      The<Form5>().UserClose();
    } else {
      The<Form5>().Fechar.UserClick();
    }
    EXPECT_EQ(Module1::OrigemExemplos, 0);
    EXPECT_EQ(host.PageCalls, (std::vector<std::string>{"Hidden Form5", "Unloaded Form5"}));
    The<Form12>().Exemplos.UserClick();
    EXPECT_TRUE(The<Form5>().FrameClinorama.Reachable());
    EXPECT_FALSE(The<Form5>().FrameFinitos.Reachable());
  }
}

}  // namespace clinorama::tests
