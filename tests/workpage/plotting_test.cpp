#include <gtest/gtest.h>

#include <utility>

#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

using Plotting = WorkPageTest;

TEST_F(Plotting, AddsAPointForEachSampleWithinTheRange) {
  using Case = std::pair<std::string, std::size_t>;
  forms::Color pen = forms::Blue;
  host.ChosenColor = forms::Red;
  for (const auto& [function, points] :
       {Case("x/2", 48000), Case("11.999", 48000), Case("12", 0), Case("-11.999", 48000),
        Case("-12", 0), Case("sqr(x-2)", 20000), Case("1/x", 47668), Case("ln(-1)", 0)}) {
    SCOPED_TRACE(function);
    page.Picture1.AutoRedraw = false;
    page.Picture2.AutoRedraw = true;
    page.Picture1.DrawMode = page.Picture2.DrawMode = forms::InvertPixel;
    Plot(function);
    EXPECT_EQ(State(), "|| kept");
    for (const bool kept : {true, false}) {
      const Operations& drawn = kept ? onKept : onLive;
      ASSERT_EQ(drawn.size(), points);
      for (std::size_t i = 0; i < points; i += 1000) {
        const auto [x, y] = std::pair(drawn[i].X1, drawn[i].Y1);
        EXPECT_EQ(Told(drawn[i]), Told({Kind::Point, x, y, 0, 0, pen, forms::CopyPen, 0, 1, kept}));
        EXPECT_EQ(y == x / 2, function == "x/2");
      }
      // The rounding of the steps adds up, and leaves no room for 12 itself.
      EXPECT_TRUE(points == 0 || drawn.back().X1 == 11.999500000006348);
    }
    page.CorGráfico.UserClick();
    pen = forms::Red;
  }
  EXPECT_TRUE(host.MessageBoxes.empty());
}

TEST_F(Plotting, ShowsThePointsAsTheyArriveAndDoesNotGiveWay) {
  int wrong = 0;
  page.Picture2.Observer = [&](const forms::DrawingOperation&) {
    wrong += State() != "|| live busy";
  };
  host.Flushes.clear();
  Plot("3");
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(host.Flushes, std::vector<const forms::PictureBox*>(60, &page.Picture2));
  EXPECT_EQ(host.Steps, 0);
}

TEST_F(Plotting, AsksForAFunctionAndLeavesTheLiveSurfaceInFront) {
  const int before = host.ChangesOf(page);  // the pointer is a property of the page itself
  Plot("");
  EXPECT_EQ(host.MessageBoxes, MessageBoxes{Limits("Deve escrever a expressão analítica da função "
                                                   "que pretende representar graficamente.")});
  EXPECT_EQ(State(), "|| live");
  EXPECT_EQ(host.ChangesOf(page), before) << "an hourglass";
  page.Função1.UserType("x");
  EXPECT_FALSE(PlottedOnce());
}

TEST_F(Plotting, StopsAtAnErrorWithThePointsSoFar) {
  host.DuringMessageBox = [&] {
    EXPECT_EQ(State(), "|| live");
    EXPECT_TRUE(host.Focused.empty());
  };
  for (const auto& [function, description] :
       {std::pair("   ", "Expressão inválida"), std::pair("foo(x)", "Função não definida: foo()"),
        std::pair("10^(100*x)", "Excesso de capacidade.")}) {
    Plot(function);
    const std::string text = std::string("Erro na expressão analítica:\n\n") + description;
    EXPECT_EQ(host.MessageBoxes, MessageBoxes{Limits(text)});
    EXPECT_EQ(host.Focused, std::vector<std::string>{"Função1"});
    host.MessageBoxes.clear();
    host.Focused.clear();
  }
  host.DuringMessageBox = nullptr;
  EXPECT_EQ(onKept.size(), 24022u) << "below 12 up to log10(12)/100, and overflow beyond 3,08";
  EXPECT_TRUE(PlottedOnce());
}

}  // namespace
}  // namespace clinorama::tests
