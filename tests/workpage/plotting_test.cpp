#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

class Plotting : public WorkPageTest {
 protected:
  // The points of a plot on the kept surface; those on the live one must be the same.
  Operations PointsOf(const std::string& function) {
    const Recording kept(page.Picture1);
    const Recording live(page.Picture2);
    Plot(function);
    const bool same =
        std::equal(kept.Drawn.begin(), kept.Drawn.end(), live.Drawn.begin(), live.Drawn.end(),
                   [](const DrawingOperation& point, const DrawingOperation& twin) {
                     return point.What == Kind::Point && twin.What == Kind::Point &&
                            point.X1 == twin.X1 && point.Y1 == twin.Y1 && point.Pen == twin.Pen &&
                            point.Kept && !twin.Kept && point.DrawMode == 13 && twin.DrawMode == 13;
                   });
    EXPECT_TRUE(same) << function;
    return kept.Drawn;
  }

  void ExpectInFront(const PictureBox& front) const {
    EXPECT_EQ(page.Picture1.Visible, &front == &page.Picture1);
    EXPECT_EQ(page.Picture2.Visible, &front == &page.Picture2);
  }
};

TEST_F(Plotting, DrawsAPointForEachSampleWithinTheRange) {
  struct Case {
    const char* Function;
    std::size_t Points;
  };
  for (const auto& [function, points] :
       {Case{"3", 48000}, Case{"11.999", 48000}, Case{"12", 0}, Case{"-11.999", 48000},
        Case{"-12", 0}, Case{"sqr(x-2)", 20000}, Case{"ln(-1)", 0}}) {
    page.Picture1.AutoRedraw = false;
    page.Picture2.AutoRedraw = true;
    page.Picture1.DrawMode = page.Picture2.DrawMode = 6;
    EXPECT_EQ(PointsOf(function).size(), points) << function;
    ExpectInFront(page.Picture1);
  }
  EXPECT_TRUE(host.MessageBoxes.empty());
}

TEST_F(Plotting, AddsTheStepUpFromTheLeftEnd) {
  const Operations points = PointsOf("x/2");
  EXPECT_EQ(points.front().X1, -12);
  EXPECT_EQ(points.front().Y1, -6);
  EXPECT_EQ(points.back().X1, 11.999500000006348);
  EXPECT_EQ(PointsOf("sqr(x-2)").front().X1, 2.0000000000030096);
}

TEST_F(Plotting, JoinsNothingAcrossAPole) {
  const Operations points = PointsOf("1/x");
  EXPECT_EQ(points.size(), 48000u - 332) << "but for those nearer to 0 than a twelfth";
  for (const DrawingOperation& point : points) {
    // A division by next to nothing is none to the engine, and leaves the numerator.
    if (std::abs(point.X1) > 0.0001) {
      EXPECT_EQ(point.Y1, 1 / point.X1);
    }
  }
}

TEST_F(Plotting, DrawsASecondGraphOverTheFirst) {
  Plot("5.5");
  Plot("x+3");
  host.ChosenColor = forms::Red;
  page.CorGráfico.UserClick();
  EXPECT_EQ(PointsOf("x+3").front().Pen, forms::Red);
  EXPECT_EQ(ColorAt(page.Picture1.Kept(), 0.5, 5.5), forms::Blue);
  EXPECT_EQ(ColorAt(page.Picture1.Kept(), 0.5, 3.5), forms::Red);
}

TEST_F(Plotting, ShowsThePointsAsTheyArriveAndDoesNotGiveWay) {
  std::size_t points = 0;
  page.Picture2.Observer = [&](const DrawingOperation&) {
    if (points++ % 1000 != 0) {
      return;
    }
    EXPECT_EQ(page.MousePointer, forms::MousePointer::Hourglass);
    ExpectInFront(page.Picture2);
  };
  host.Flushes.clear();
  Plot("3");
  EXPECT_EQ(host.Flushes,
            std::vector<const PictureBox*>(points / forms::PointsToPicture, &page.Picture2));
  EXPECT_EQ(host.Steps, 0);
  EXPECT_EQ(page.MousePointer, forms::MousePointer::Default);
  ExpectInFront(page.Picture1);
}

TEST_F(Plotting, AsksForAFunctionAndLeavesTheLiveSurfaceInFront) {
  const int before = host.ChangesOf(page);  // the pointer is a property of the page itself
  EXPECT_TRUE(PointsOf("").empty());
  EXPECT_EQ(host.MessageBoxes,
            (std::vector<MessageBox>{{"Deve escrever a expressão analítica da função que "
                                      "pretende representar graficamente.",
                                      64, "Limites"}}));
  ExpectInFront(page.Picture2);
  EXPECT_EQ(host.ChangesOf(page), before) << "an hourglass";
  page.Função1.UserType("x");
  EXPECT_FALSE(PlottedOnce());
}

TEST_F(Plotting, StopsAtAnErrorWithThePointsSoFar) {
  struct Case {
    const char* Function;
    std::string Description;
    std::size_t Points;
  };
  for (const auto& [function, description, points] :
       {Case{"   ", "Expressão inválida", 0}, Case{"(x", "Número de parênteses incorrecto.", 0},
        Case{"foo(x)", "Função não definida: foo()", 0},
        // Below 12 up to log10(12)/100; overflows beyond 3,08.
        Case{"10^(100*x)", "Excesso de capacidade.", 24022}}) {
    SCOPED_TRACE(function);
    const std::string text = "Erro na expressão analítica:\n\n" + description;
    host.MessageBoxes.clear();
    host.Focused.clear();
    host.DuringMessageBox = [&] {
      EXPECT_EQ(page.MousePointer, forms::MousePointer::Default);
      EXPECT_TRUE(host.Focused.empty());
    };
    EXPECT_EQ(PointsOf(function).size(), points);
    host.DuringMessageBox = nullptr;
    EXPECT_EQ(host.MessageBoxes, (std::vector<MessageBox>{{text, 64, "Limites"}}));
    EXPECT_EQ(host.Focused, std::vector<std::string>{"Função1"});
    ExpectInFront(page.Picture2);
    EXPECT_TRUE(PlottedOnce());
  }
  Plot("x");
  ExpectInFront(page.Picture1);
}

}  // namespace
}  // namespace clinorama::tests
