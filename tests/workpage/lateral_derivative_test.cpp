#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

const std::string NoFunction = "Não existe função.";
const std::string NotPlotted = "Deve desenhar primeiro o gráfico da função.";
const std::string NoAbscissa = "Tem de indicar a abcissa do ponto.";
const std::string OutsideDomain = "Esse ponto não pertence ao domínio da função.";
const std::string NoneAtLeft = "Esta função não tem derivada à esquerda desse ponto.";
const std::string NoneAtRight = "Esta função não tem derivada à direita desse ponto.";

// One side of a point, with the controls of the page that belong to it.
struct Side {
  const char* Name;
  int Direction;
  forms::OptionButton& Option;
  forms::Label& Value;
};

class LateralDerivative : public WorkPageTest {
 protected:
  // Plots the function, writes the abscissa and clicks the option; gives the value.
  std::string Derive(const Side& side, const std::string& function, const std::string& abscissa) {
    Plot(function);
    page.Abcissa.UserType(abscissa);
    side.Option.UserClick();
    EXPECT_EQ(LockedCommands(), 0);
    return side.Value.Caption;
  }

  Side left{"left", -1, page.DerivadaEsquerda, page.Label2};
  Side right{"right", 1, page.DerivadaDireita, page.Label3};
};

TEST_F(LateralDerivative, IsRefusedInThisOrder) {
  struct Case {
    const Side& Clicked;
    bool Plotted;
    std::string Function;
    std::string Abscissa;
    std::string Text;
    bool StaysMarked = false;
  };
  const Case cases[] = {{left, false, "", "", NoFunction},
                        {right, false, "", "", NoFunction},
                        {left, false, "  ", "", NoFunction},
                        {right, false, "  ", "", NotPlotted},
                        {left, false, "foo", "", NotPlotted},
                        {right, false, "1/x", "0", NotPlotted},
                        {left, true, "1/x", "", NoAbscissa},
                        {right, true, "1/x", "", NoAbscissa},
                        {left, true, "1/x", "0", OutsideDomain, true},
                        {right, true, "1/x", "0", OutsideDomain, true},
                        {right, true, "sqr(x)", "-1", OutsideDomain, true},
                        // On one side of these points the values exceed 1000.
                        {left, true, "1/x", "0.0010005", OutsideDomain, true},
                        {right, true, "1/x", "-0.0010005", OutsideDomain, true},
                        {left, true, "sqr(x)", "0", NoneAtLeft, true},
                        {right, true, "sqr(-x)", "0", NoneAtRight, true}};
  for (const Case& test : cases) {
    SCOPED_TRACE(std::string(test.Clicked.Name) + " of " + test.Function + " at " + test.Abscissa);
    page.Função1.UserType(test.Function);
    page.Abcissa.UserType(test.Abscissa);
    if (test.Plotted) {
      page.DesenharGráfico.UserClick();
    }
    page.Picture1.AutoRedraw = true;
    host.MessageBoxes.clear();
    test.Clicked.Option.UserClick();
    test.Clicked.Option.UserClick();  // no click while it is marked
    const MessageBox box = test.Text == NoFunction ? MessageBox{test.Text, 0, "Clinorama"}
                                                   : MessageBox{test.Text, 64, "Limites"};
    EXPECT_EQ(host.MessageBoxes, std::vector<MessageBox>(test.StaysMarked ? 1 : 2, box));
    EXPECT_EQ(test.Clicked.Option.Value, test.StaysMarked);
    EXPECT_EQ(page.Picture1.AutoRedraw, test.Clicked.Direction > 0);
    EXPECT_EQ(host.Steps, 0);
  }
  page.Abcissa.UserType("-0.5");  // frees the marked option
  right.Option.UserClick();
  EXPECT_EQ(right.Value.Caption, "-0,71");
}

TEST_F(LateralDerivative, IsRefusedByACodeThatAnotherFunctionLeft) {
  for (const Side& side : {left, right}) {
    Plot("sqr(2-x)");
    Derive(side, "x+1", "1");
    EXPECT_EQ(host.MessageBoxes.back(), (MessageBox{OutsideDomain, 64, "Limites"})) << side.Name;
  }
  Plot("1/(x+20)");
  EXPECT_EQ(Derive(left, "x+1", "1"), "1");
}

TEST_F(LateralDerivative, EndsAtTheLastQuotient) {
  struct Case {
    std::string Function;
    std::string Abscissa;
    std::string Left;
    std::string Right;
  };
  const Case cases[] = {
      {"x*(1-cos(x))/2", "2", "1,62", "1,62"},  // (1 - cos 2)/2 + sin 2
      {"abs(x)", "0", "-1", "1"},
      {"x^2", "pi/2", "3,14", "3,14"},
      {"x^2", "0.9", "1,8", "1,8"},     // here the walk from the left meets the point itself
      {"x^2", "-0.9", "-1,8", "-1,8"},  // and here the one from the right
      {"7", "-12", "0", "0"},
      {"sqr(abs(x))/50", "0", "-6324,56", "6324,56"},  // at a distance of 1e-11
      {"x^2", "2+", "0", "0"},                         // no abscissa is taken for 0
      {"10000.004*x", "0", "10000", "+ ¥"},            // the left one is compared when rounded
      {"-10000.004*x", "0", "-10000", "- ¥"},
      {"100000*x", "0", "+ ¥", "+ ¥"},
      {"-100000*x", "0", "- ¥", "- ¥"},
      {"10^(100*x)", "0", "230,26", "230,26"}};  // overflows on its way from the right
  for (const Case& test : cases) {
    EXPECT_EQ(Derive(left, test.Function, test.Abscissa), test.Left) << test.Function;
    EXPECT_EQ(Derive(right, test.Function, test.Abscissa), test.Right) << test.Function;
  }
  host.Steps = 0;
  Derive(left, "x^2", "0.9");
  EXPECT_EQ(host.Steps, 301) << "the pass at the point itself is one too";
}

TEST_F(LateralDerivative, CountsADivisionByZeroAtThePointAndNotBesideIt) {
  Derive(left, "0.0001/(x+0.000001)", "0");
  EXPECT_TRUE(host.MessageBoxes.empty());
  EXPECT_EQ(host.Steps, 301);
}

TEST_F(LateralDerivative, ShowsInfinityInTheFontSymbolWhichStays) {
  EXPECT_EQ(Derive(right, "sqr(x)", "0"), "+ ¥");
  EXPECT_EQ(right.Value.Font().Name, "Symbol");
  EXPECT_EQ(Derive(left, "-sqr(-x)", "0"), "+ ¥");
  EXPECT_EQ(left.Value.SpokenName(), "Valor da derivada à esquerda: + ∞");
  EXPECT_EQ(Derive(right, "x/2", "1"), "0,5");
  EXPECT_EQ(right.Value.Font().Name, "Symbol");
}

TEST_F(LateralDerivative, EndsOnZeroWithoutAWordForABadExpression) {
  for (const Side& side : {left, right}) {
    Plot(side.Direction < 0 ? "2+" : "  ");
    host.MessageBoxes.clear();
    page.MousePointer = forms::MousePointer::Hourglass;
    page.Picture1.DrawMode = 6;
    const Recording recording(page.Picture1);
    side.Option.UserClick();
    EXPECT_TRUE(host.MessageBoxes.empty()) << side.Name;
    EXPECT_EQ(side.Value.Caption, "0");
    EXPECT_TRUE(page.Picture1.Visible && !page.Picture2.Visible);
    EXPECT_EQ(page.MousePointer, forms::MousePointer::Default);
    EXPECT_EQ(recording.Drawn.front().DrawMode, 13);
    EXPECT_EQ(recording.Drawn.back().X2, 2 + side.Direction * 10);
    EXPECT_EQ(recording.Drawn.back().Y2, 0);
  }
}

TEST_F(LateralDerivative, WalksTowardsThePointAndDrawsWhatItTakesAway) {
  struct Case {
    const Side& Clicked;
    int Steps;
    std::string First;    // slope of the parabola's first semi-secant
    std::string Halfway;  // and that of the 151st
  };
  for (const Case& test : {Case{left, 300, "1", "2,5"}, Case{right, 301, "7", "5,5"}}) {
    SCOPED_TRACE(test.Clicked.Name);
    Return();
    Plot("x^2");
    const Recording recording(page.Picture1);
    std::vector<std::string> captions;
    host.EachStep = [&] { captions.push_back(test.Clicked.Value.Caption); };
    test.Clicked.Option.UserClick();
    EXPECT_EQ(captions.size(), static_cast<std::size_t>(test.Steps));
    EXPECT_EQ(captions.at(0), test.First);
    EXPECT_EQ(captions.at(150), test.Halfway);

    Operations drawn = recording.Drawn;
    ASSERT_EQ(drawn.size(), static_cast<std::size_t>(2 + 2 * test.Steps + 1));
    const bool kept = test.Clicked.Direction > 0;
    const DrawingOperation guide = {
        .What = Kind::Line, .X1 = 2, .X2 = 2, .Y2 = 4, .DrawStyle = 2, .Kept = kept};
    EXPECT_EQ(Told(drawn[0]), Told(guide));
    EXPECT_EQ(drawn[1].X2, 0);
    EXPECT_EQ(drawn[1].DrawStyle, 2);
    EXPECT_EQ(drawn.back().Pen, forms::Red);
    EXPECT_EQ(drawn.back().DrawMode, 13);
    EXPECT_NEAR((drawn.back().Y2 - 4) / (drawn.back().X2 - 2), 4, 1e-3);
    for (std::size_t i = 2; i < drawn.size(); ++i) {
      EXPECT_EQ(drawn[i].X1, 2);
      EXPECT_EQ(drawn[i].Y1, 4);
      EXPECT_EQ(drawn[i].DrawStyle, 0);
      EXPECT_NEAR(std::hypot(drawn[i].X2 - 2, drawn[i].Y2 - 4), 10, 1e-9);
      EXPECT_GT((drawn[i].X2 - 2) * test.Clicked.Direction, 0);
      if (i % 2 == 0) {
        continue;
      }
      EXPECT_EQ(std::exchange(drawn[i - 1].DrawMode, 6), 2);
      EXPECT_EQ(Told(drawn[i]), Told(drawn[i - 1]));
    }
  }
}

TEST_F(LateralDerivative, LeavesGuidesAndRedSegmentOnACanvasOtherwiseAsItWas) {
  for (const Side& side : {left, right}) {
    SCOPED_TRACE(side.Name);
    Return();
    Plot("x^2/3");
    const Raster graph = page.Picture1.Kept();
    Raster guides;
    page.Picture1.Observer = [&](const DrawingOperation& line) {
      if (line.DrawStyle == 2) {
        guides = page.Picture1.Screen();
      }
    };
    host.AtStep(host.Steps + 7, [&] {
      EXPECT_GT(Differences(page.Picture1.Screen(), guides), 100) << "no semi-secant is seen";
    });
    side.Option.UserClick();
    const Raster& screen = page.Picture1.Screen();
    EXPECT_GT(Differences(graph, guides), 0);
    EXPECT_GT(PixelsOf(screen, forms::Red), 100);
    EXPECT_EQ(Differences(screen, guides), PixelsOf(screen, forms::Red));
    EXPECT_EQ(Differences(page.Picture1.Kept(), side.Direction < 0 ? graph : screen), 0);
    page.Picture1.Observer = nullptr;
  }
  const Raster kept = page.Picture1.Kept();
  left.Option.UserClick();
  right.Option.UserClick();
  EXPECT_EQ(Differences(page.Picture1.Kept(), kept), 0) << "on the screen only, after a left run";
}

TEST_F(LateralDerivative, ShowsTheMarkersOnTheCurveAndLeavesTheFixedOne) {
  Plot("x^2");
  const auto isAt = [this](const forms::Image& marker, double x, double y) {
    const double offset = 0.6 * 0.48;
    return marker.Left == 15 * std::floor(page.Picture1.LogicalX(x - offset)) &&
           marker.Top == 15 * std::floor(page.Picture1.LogicalY(y + offset)) && marker.Visible;
  };
  host.AtStep(101, [&] {
    EXPECT_TRUE(isAt(page.Image1(0), 2, 4));
    EXPECT_TRUE(isAt(page.Image1(1), 0, 0));
  });
  left.Option.UserClick();
  EXPECT_TRUE(isAt(page.Image1(0), 2, 4));
  EXPECT_FALSE(page.Image1(1).Visible);
}

TEST_F(LateralDerivative, ReadsTheSpeedAtEachStep) {
  Plot("x");
  host.AtStep(3, [this] { page.HScroll1.UserScroll(10); });
  host.AtStep(5, [this] { page.HScroll1.UserScroll(0); });
  left.Option.UserClick();
  EXPECT_EQ(host.WaitedMilliseconds, 3 * 5 + 2 * 10);
}

TEST_F(LateralDerivative, LocksTheCommandsAndNothingElse) {
  Plot("x^2");
  for (const Side& side : {left, right}) {
    host.AtStep(host.Steps + 1, [&] {
      EXPECT_EQ(LockedCommands(), 12);
      EXPECT_FALSE(left.Option.Value || right.Option.Value);
      EXPECT_TRUE(page.Parar.Reachable() && page.Parar1.Reachable() && page.HScroll1.Reachable());
      EXPECT_NE(side.Value.Caption, "");
      side.Value.UserClick();
      EXPECT_EQ(side.Value.Caption, "");
      page.Função1.UserType("3");  // is not taken
    });
    side.Option.UserClick();
    EXPECT_EQ(LockedCommands(), 0);
    EXPECT_EQ(side.Value.Caption, "4");
    EXPECT_FALSE(side.Option.Value) << "free for its next click";
  }
}

}  // namespace
}  // namespace clinorama::tests
