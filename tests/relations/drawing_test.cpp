// The twelve drawing buttons: what each plots, how it begins and ends, and what it does about a
// failure.

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "tests/relations/relations_test.h"

namespace clinorama::tests {
namespace {

using DrawingTest = RelationsTest;

const char* const ShortMessage = "Deve escrever a expressão analítica da função.";
const char* const LongMessage =
    "Deve escrever a expressão analítica da função que pretende representar graficamente.";

// Overflows at x = 1, and nowhere else on steps of 0.001; elsewhere it is x.
const char* const OneFailure = "x+0*exp(0.0715/((x-1)^2+0.0001))";

TEST_F(DrawingTest, EmptyBox) {
  struct Row {
    Button Press;
    const char* Message;
    bool Focus;
    bool LiveInView;  // the canvases were swapped before the test
  };
  const Row rows[] = {
      {&Form13::DesenharGráfico, LongMessage, true, false},
      {&Form13::ColocarCoresFunção, LongMessage, true, false},
      {&Form13::ColocarCoresFunção2, LongMessage, true, false},
      {&Form13::ExtremosFunção, ShortMessage, false, false},
      {&Form13::InflexõesFunção, ShortMessage, true, false},
      {&Form13::DesenharPrimeira, ShortMessage, false, true},
      {&Form13::ColocarCoresPrimeira1, ShortMessage, false, true},
      {&Form13::ColocarCoresPrimeira2, ShortMessage, false, true},
      {&Form13::ZerosPrimeira, ShortMessage, false, false},
      {&Form13::DesenharSegunda, ShortMessage, false, true},
      {&Form13::ColocarCoresSegunda, ShortMessage, false, true},
      {&Form13::ZerosSegunda, ShortMessage, false, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE((page.*row.Press).Name());
    const int persistent = (page.*row.Press).Parent() == &page.Frame2   ? 1
                           : (page.*row.Press).Parent() == &page.Frame4 ? 3
                                                                        : 5;
    page.Picture1(persistent).Visible = true;
    page.Picture1(persistent + 1).Visible = false;
    Press(row.Press, "  ");
    EXPECT_EQ(host.MessageBoxes, (std::vector<MessageBox>{{row.Message, 64, "Relações"}}));
    EXPECT_EQ(host.Focused,
              row.Focus ? std::vector<std::string>{"Função1"} : std::vector<std::string>{});
    EXPECT_EQ(PersistentInView(persistent), !row.LiveInView);
    EXPECT_EQ(page.MousePointer(), forms::MousePointer::Default);
    EXPECT_TRUE(Points(persistent).empty());
  }
}

// While points arrive: which canvas is seen, and the pointer.
TEST_F(DrawingTest, LiveDrawing) {
  for (const auto& [press, persistent] : DrawingButtons) {
    SCOPED_TRACE((page.*press).Name());
    const bool dotsOnFunction =
        press == &Form13::ExtremosFunção || press == &Form13::InflexõesFunção;
    const bool colouring =
        press == &Form13::ColocarCoresFunção || press == &Form13::ColocarCoresFunção2;
    int seen = 0;
    const int live = persistent + 1;
    page.Picture1(persistent).Visible = true;
    page.Picture1(live).Visible = false;
    DuringDrawing = [&, kept = persistent] {
      ++seen;
      EXPECT_EQ(PersistentInView(kept), dotsOnFunction);
      EXPECT_EQ(page.MousePointer() == forms::MousePointer::Hourglass, !colouring);
    };
    host.Flushes.clear();
    Press(press, "x^3-x");
    DuringDrawing = nullptr;

    EXPECT_GT(seen, 0);
    EXPECT_TRUE(PersistentInView(persistent));
    EXPECT_EQ(page.MousePointer(), forms::MousePointer::Default);
    EXPECT_EQ(page.Picture1(persistent).DrawWidth, 1);
    EXPECT_EQ(page.Picture1(live).DrawWidth, 1);
    EXPECT_EQ(Points(live).size(), dotsOnFunction ? 0u : Points(persistent).size());
    if (!dotsOnFunction) {
      EXPECT_EQ(Points(live).front().DrawWidth, Points(persistent).front().DrawWidth);
    }
    EXPECT_EQ(host.Flushes.size(), Points(live).size() / forms::PointsToPicture);
    EXPECT_EQ(host.Steps, 0) << "nothing lets an event in";
  }
}

// An expression that cannot be interpreted: a message, a line on the x axis, or nothing at all.
TEST_F(DrawingTest, UnbalancedParentheses) {
  const std::string text = "Erro:\n\nNúmero de parênteses incorrecto.";
  struct Row {
    Button Press;
    int Persistent;
    std::vector<MessageBox> Boxes;
    std::vector<std::pair<int, std::size_t>> Lines;  // colours, each with its number of points
    double Y = 0;
  };
  const Row rows[] = {
      {&Form13::DesenharGráfico, 1, {{text, 64, "Relações"}}, {}},
      {&Form13::ColocarCoresFunção, 1, {{text, 0, "Clinorama"}}, {}},
      {&Form13::ColocarCoresFunção2, 1, {{text, 0, "Clinorama"}}, {}},
      {&Form13::DesenharPrimeira, 3, {}, {}},
      {&Form13::DesenharSegunda, 5, {}, {}},
      {&Form13::ColocarCoresPrimeira1, 3, {}, {{Green, 16000}, {Red, 16000}}},
      {&Form13::ColocarCoresPrimeira2, 3, {}, {{Cyan, 16000}, {Magenta, 16000}}},
      {&Form13::ColocarCoresSegunda, 5, {}, {{Cyan, 15999}}, -0.1},
      {&Form13::ExtremosFunção, 1, {}, {{Red, 16000}}},
      {&Form13::InflexõesFunção, 1, {}, {}},
      {&Form13::ZerosPrimeira, 3, {}, {}},
      {&Form13::ZerosSegunda, 5, {}, {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE((page.*row.Press).Name());
    Press(row.Press, "sen(");
    EXPECT_EQ(host.MessageBoxes, row.Boxes);
    EXPECT_EQ(host.Focused.empty(), row.Boxes.empty());
    EXPECT_TRUE(row.Boxes.empty() || !PersistentInView(row.Persistent));
    EXPECT_EQ(page.MousePointer(), forms::MousePointer::Default);
    std::size_t all = 0;
    for (const auto& [color, count] : row.Lines) {
      EXPECT_EQ(Points(row.Persistent, color).size(), count);
      all += count;
    }
    const auto points = Points(row.Persistent);
    EXPECT_EQ(points.size(), all);
    for (const Drawing& point : points) {
      ASSERT_DOUBLE_EQ(point.Y1, row.Y);
    }
    EXPECT_TRUE(points.empty() || points.back().Pen == forms::QBColor(row.Lines.back().first));
  }
  EXPECT_EQ(page.ModoCoresFunção, 0);
}

// Constants show the passes of each loop, and the filters that a zero or a bound meets.
TEST_F(DrawingTest, ConstantFunctions) {
  struct Row {
    Button Press;
    const char* Text;
    int Persistent;
    int Color;
    std::size_t Count;
    double FirstX = 0;
    double LastX = 0;
    double Y = 0;
    int DrawWidth = 1;
  };
  const Row rows[] = {
      {&Form13::DesenharGráfico, "3", 1, CurveBlue, 32001, -8, 8, 3},
      {&Form13::DesenharGráfico, "0", 1, CurveBlue, 0},
      {&Form13::DesenharGráfico, "8", 1, CurveBlue, 0},
      {&Form13::DesenharGráfico, "-8", 1, CurveBlue, 0},
      {&Form13::DesenharPrimeira, "0", 3, CurveBlue, 15999, -7.999, 7.999, 0},
      {&Form13::DesenharSegunda, "0", 5, CurveBlue, 15999, -7.999, 7.999, 0},
      {&Form13::DesenharSegunda, "x^2", 5, CurveBlue, 15999, -7.999, 7.999, 2},
      {&Form13::ColocarCoresFunção, "3", 1, Green, 32001, -8, 8, 2.98},
      {&Form13::ColocarCoresFunção, "3", 1, Red, 32001, -8, 8, 3.01},
      {&Form13::ColocarCoresFunção, "-8", 1, Red, 0},
      {&Form13::ColocarCoresFunção2, "3", 1, Cyan, 16000, -8, 7.999, 3},
      {&Form13::ColocarCoresFunção2, "3", 1, Magenta, 16000, -8, 7.999, 3},
      {&Form13::ColocarCoresPrimeira1, "3", 3, -1, 0},
      {&Form13::ColocarCoresPrimeira2, "3", 3, -1, 0},
      {&Form13::ColocarCoresSegunda, "3", 5, Cyan, 15999, -7.999, 7.999, -0.1},
      {&Form13::ExtremosFunção, "3", 1, Red, 16000, -8, 7.999, 3, 7},
      {&Form13::InflexõesFunção, "3", 1, -1, 0},
      {&Form13::ZerosPrimeira, "3", 3, Red, 15999, -7.999, 7.999, 0, 5},
      {&Form13::ZerosSegunda, "3", 5, Green, 16199, -8.099, 8.099, 0, 5},
      // The value at -8.001 spoils two quotients of what is not constant, the first of them unseen.
      {&Form13::ZerosSegunda, "2*x", 5, Green, 16198, -8.098, 8.099, 0, 5},
      {&Form13::ZerosPrimeira, "x/105", 3, Red, 15999, -7.999, 7.999, 1 / 105.0, 5},
      {&Form13::ZerosPrimeira, "x/95", 3, -1, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE((page.*row.Press).Name() + " of " + row.Text);
    Press(row.Press, row.Text);
    const auto points = Points(row.Persistent, row.Color);
    ASSERT_EQ(points.size(), row.Count);
    if (points.empty()) {
      continue;
    }
    EXPECT_NEAR(points.front().X1, row.FirstX, 1e-9);
    EXPECT_NEAR(points.back().X1, row.LastX, 1e-9);
    for (const Drawing& point : points) {
      ASSERT_NEAR(point.Y1, row.Y, 1e-6);
    }
    EXPECT_EQ(points.front().DrawWidth, row.DrawWidth);
  }
}

// Of the points in a colour, all lie on the side of 0 that is told, and there are many.
TEST_F(DrawingTest, ColoursTellTheSides) {
  struct Row {
    Button Press;
    const char* Text;
    int Persistent;
    int Left;
    int Right;
  };
  const Row rows[] = {
      {&Form13::ColocarCoresFunção, "x^2", 1, Red, Green},
      {&Form13::ColocarCoresPrimeira1, "x^2", 3, Red, Green},
      {&Form13::ColocarCoresFunção2, "x^3", 1, Magenta, Cyan},
      {&Form13::ColocarCoresPrimeira2, "x^3", 3, Magenta, Cyan},
      {&Form13::ColocarCoresSegunda, "x^3", 5, Magenta, Cyan},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE((page.*row.Press).Name());
    Press(row.Press, row.Text);
    EXPECT_GT(Points(row.Persistent, row.Left).size(), 1000u);
    EXPECT_GT(Points(row.Persistent, row.Right).size(), 1000u);
    for (const Drawing& point : Points(row.Persistent, row.Left)) {
      ASSERT_LT(point.X1, 0.0011);
    }
    for (const Drawing& point : Points(row.Persistent, row.Right)) {
      ASSERT_GT(point.X1, -0.0011);
    }
    for (const Drawing& point : Points(row.Persistent)) {
      ASSERT_LT(std::abs(point.Y1), 8);
    }
  }
}

// The groups of dots that touch, by their middles.
std::vector<double> Groups(const std::vector<Drawing>& dots) {
  std::vector<std::vector<double>> groups;
  for (const Drawing& dot : dots) {
    if (groups.empty() || dot.X1 - groups.back().back() > 0.1) {
      groups.emplace_back();
    }
    groups.back().push_back(dot.X1);
  }
  std::vector<double> middles;
  middles.reserve(groups.size());
  for (const auto& group : groups) {
    middles.push_back((group.front() + group.back()) / 2);
  }
  return middles;
}

TEST_F(DrawingTest, SpecialPoints) {
  struct Row {
    Button Press;
    const char* Text;
    int Persistent;
    int Color;
    std::vector<double> Xs;
  };
  const char* const lesson = "x*(1-cos(x))";
  const Row rows[] = {
      {&Form13::ExtremosFunção, lesson, 1, Red, {-6.283, -3.673, 3.673, 6.283}},
      {&Form13::ZerosPrimeira, lesson, 3, Red, {-6.283, -3.673, 0, 3.673, 6.283}},
      {&Form13::InflexõesFunção, lesson, 1, Green, {-5.087, -2.289, 0, 2.289, 5.087}},
      {&Form13::ZerosSegunda, lesson, 5, Green, {-8.096, -5.087, -2.289, 0, 2.289, 5.087, 8.096}},
      {&Form13::ExtremosFunção, "x", 1, Red, {}},
      {&Form13::ExtremosFunção, "sqr(x)", 1, Red, {0}},
      {&Form13::ExtremosFunção, "9-x^2", 1, Red, {}},
      {&Form13::InflexõesFunção, "x^3", 1, Green, {0}},
      {&Form13::InflexõesFunção, "x^3+9", 1, Green, {0}},
      // Crossed faster than the band is wide.
      {&Form13::ZerosPrimeira, "100*x^2+0.037*x", 3, Red, {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE((page.*row.Press).Name() + " of " + row.Text);
    Press(row.Press, row.Text);
    const auto xs = Groups(Points(row.Persistent, row.Color));
    ASSERT_EQ(xs.size(), row.Xs.size());
    for (std::size_t i = 0; i < xs.size(); ++i) {
      EXPECT_NEAR(xs[i], row.Xs[i], 0.02);
    }
  }
  Press(&Form13::InflexõesFunção, "(x-0.0035)^3");
  EXPECT_NEAR(Points(1).back().X1, 0.01, 1e-9) << "the first sample after it, every 0.01";
}

TEST_F(DrawingTest, OutsideTheDomain) {
  Press(&Form13::DesenharGráfico, "sqr(x)");
  EXPECT_GT(Points(1).front().X1, -1e-6);
  for (const Button press : {&Form13::DesenharPrimeira, &Form13::ZerosPrimeira}) {
    Press(press, "sqr(x)");
    const auto points = Points(3);
    ASSERT_GE(points.size(), 7999u);
    for (std::size_t i = 0; i < 7990; ++i) {
      ASSERT_EQ(points[i].Y1, 0);
    }
  }
  Press(&Form13::ColocarCoresPrimeira1, "sqr(x)");
  EXPECT_GT(Points(3).front().X1, 0);
  // The value that decides is that of the sample before: the first one above 0 is left out.
  Press(&Form13::ColocarCoresPrimeira2, "(abs(x-0.0005)+(x-0.0005))^2");
  EXPECT_NEAR(Points(3).front().X1, 0.002, 1e-9);
  // The first valid sample is compared with the value that stands for none.
  Press(&Form13::ColocarCoresFunção, "sqr(x)");
  EXPECT_EQ(Points(1).front().Pen, forms::QBColor(Red));
}

TEST_F(DrawingTest, CornersLeaveGaps) {
  Press(&Form13::DesenharPrimeira, "abs(x)");
  for (const Drawing& point : Points(3)) {
    ASSERT_NEAR(std::abs(point.Y1), 1, 1e-6);
    ASSERT_EQ(point.Y1 > 0, point.X1 > 0.0005) << point.X1;
  }
  Press(&Form13::DesenharSegunda, "abs(x)");
  EXPECT_GT(Points(5).size(), 15990u);
  for (const Drawing& point : Points(5)) {
    ASSERT_GT(std::abs(point.X1 - 0.0005), 0.0004);
  }
}

// Skipped silently, a failure costs its own point; the next quotient starts from a repeated value.
TEST_F(DrawingTest, FailureAtOneAbscissa) {
  const auto near = [this](int canvas, double x) {
    std::vector<Drawing> found;
    for (const Drawing& point : Points(canvas)) {
      if (std::abs(point.X1 - x) < 0.0005) {
        found.push_back(point);
      }
    }
    return found;
  };
  Press(&Form13::DesenharPrimeira, OneFailure);
  EXPECT_EQ(Points(3).size(), 15998u);
  EXPECT_TRUE(near(3, 1).empty());
  ASSERT_EQ(near(3, 1.001).size(), 1u);
  EXPECT_NEAR(near(3, 1.001)[0].Y1, 2, 1e-6);

  // A test that cannot be evaluated runs its branch: both colours, on the axis.
  Press(&Form13::ColocarCoresPrimeira1, OneFailure);
  const auto both = near(3, 1);
  ASSERT_EQ(both.size(), 2u);
  EXPECT_EQ(both[0].Pen, forms::QBColor(Green));
  EXPECT_EQ(both[1].Pen, forms::QBColor(Red));
  EXPECT_NEAR(both[1].Y1, 0, 1e-9);

  Press(&Form13::DesenharSegunda, OneFailure);
  EXPECT_TRUE(near(5, 1).empty());
  Press(&Form13::ColocarCoresSegunda, OneFailure);
  EXPECT_TRUE(near(5, 1).empty()) << "q jumps out of range there";

  // Reported, it ends the drawing; what was drawn stays.
  Press(&Form13::DesenharGráfico, OneFailure);
  ASSERT_EQ(host.MessageBoxes.size(), 1u);
  EXPECT_EQ(host.MessageBoxes[0].Title, "Relações");
  EXPECT_FALSE(PersistentInView(1));
  EXPECT_NEAR(Points(1).back().X1, 0.999, 1e-6);
}

// Differences of finite values can overflow: a failure like any other.
TEST_F(DrawingTest, QuotientsThatOverflow) {
  const std::string cliff = "10^307*x";
  Press(&Form13::DesenharPrimeira, cliff);
  EXPECT_TRUE(Points(3).empty());
  EXPECT_TRUE(host.MessageBoxes.empty());
  // A point beyond 32-bit reals cannot be drawn, and is passed over.
  Press(&Form13::InflexõesFunção, "10^200*x^3+10^199");
  EXPECT_TRUE(Points(1).empty());
  EXPECT_TRUE(host.MessageBoxes.empty());
}

TEST_F(DrawingTest, CurvesAddUpOnThePersistentCanvas) {
  const int row3 = 186;  // pixel rows of y = 3 and y = -3 on the function's canvas
  const int row_3 = 346;
  const int column = 400;
  Press(&Form13::ExtremosFunção, "3");
  EXPECT_FALSE(PersistentInView(1)) << "dots before a first drawing are not seen";
  EXPECT_EQ(page.Picture1(2).Screen().At(column, row3), forms::White);
  page.CommonDialog1.Color = forms::QBColor(2);
  Press(&Form13::DesenharGráfico, "-3");
  EXPECT_TRUE(PersistentInView(1));
  EXPECT_EQ(page.Picture1(1).Screen().At(column, row3), forms::Red);
  EXPECT_EQ(page.Picture1(1).Screen().At(column, row_3), forms::QBColor(2));
  // The live canvas starts bare: its axes went when it was hidden.
  bool bare = false;
  DuringDrawing = [&] {
    bare = page.Picture1(2).Screen().At(266, 100) == forms::White;
    DuringDrawing = nullptr;
  };
  Press(&Form13::DesenharGráfico, "1");
  EXPECT_TRUE(bare);
  Press(&Form13::ColocarCoresFunção2, "3");
  EXPECT_EQ(page.Picture1(1).Screen().At(column, row3), forms::QBColor(Magenta)) << "on top";
}

}  // namespace
}  // namespace clinorama::tests
