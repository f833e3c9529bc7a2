// The relations page. The twelve drawing buttons: what each plots, how it begins and ends, and what
// it does about a failure. Then graduation, colours, clearing, leaving and returning.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "forms/application.h"
#include "relations/Form13.h"
#include "tests/support/scripted_host.h"

namespace clinorama::tests {
namespace {

using F = Form13;
using forms::MousePointer;
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

// The message for an empty box.
const char* const Short = "Deve escrever a expressão analítica da função.";
const char* const Long =
    "Deve escrever a expressão analítica da função que pretende representar graficamente.";

// Overflows at x = 1, and nowhere else on steps of 0.001; elsewhere it is 0.
const std::string OneFailure = "0*exp(0.0715/((x-1)^2+0.0001))";

// How each button begins and ends. The expression that cannot be interpreted gives a message, or
// lines in some colours that all have one ordinate, or nothing.
TEST_F(RelationsTest, EmptyBoxLiveDrawingAndUnbalancedParentheses) {
  struct Row {
    Button Press;
    int Persistent;
    const char* Message;
    bool Focus, LiveStays;   // after the message: the box has the focus, the live canvas is in view
    bool Hourglass, OnLive;  // while points arrive; OnLive: on the live canvas too, in view
    std::vector<int> Lines = {};
    std::size_t Count = 0;
    double Y = 0;
  };
  const Row rows[] = {
      {&F::DesenharGráfico, 1, Long, true, false, true, true},
      {&F::ColocarCoresFunção, 1, Long, true, false, false, true},
      {&F::ColocarCoresFunção2, 1, Long, true, false, false, true},
      {&F::ExtremosFunção, 1, Short, false, false, true, false, {Red}, 16000},
      {&F::InflexõesFunção, 1, Short, true, false, true, false},
      {&F::DesenharPrimeira, 3, Short, false, true, true, true},
      {&F::ColocarCoresPrimeira1, 3, Short, false, true, true, true, {Green, Red}, 32000},
      {&F::ColocarCoresPrimeira2, 3, Short, false, true, true, true, {Cyan, Magenta}, 32000},
      {&F::ZerosPrimeira, 3, Short, false, false, true, true},
      {&F::DesenharSegunda, 5, Short, false, true, true, true},
      {&F::ColocarCoresSegunda, 5, Short, false, true, true, true, {Cyan}, 15999, -0.1},
      {&F::ZerosSegunda, 5, Short, false, false, true, true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE((page.*row.Press).Name());
    forms::PictureBox& kept = page.Picture1(row.Persistent);
    forms::PictureBox& twin = page.Picture1(row.Persistent + 1);
    kept.Visible = true;
    twin.Visible = false;
    Press(row.Press, "  ");
    EXPECT_EQ(host.MessageBoxes, (std::vector<MessageBox>{{row.Message, 64, "Relações"}}));
    EXPECT_EQ(host.Focused, std::vector<std::string>(row.Focus ? 1 : 0, "Função1"));
    EXPECT_EQ(PersistentInView(row.Persistent), !row.LiveStays);
    EXPECT_EQ(page.MousePointer(), MousePointer::Default);

    DuringDrawing = [&, seen = 0]() mutable {
      if (seen++ % 1000 == 0) {
        EXPECT_EQ(PersistentInView(row.Persistent), !row.OnLive);
        EXPECT_EQ(page.MousePointer() == MousePointer::Hourglass, row.Hourglass);
      }
    };
    Press(row.Press, "x^3-x");
    DuringDrawing = nullptr;
    auto points = Points(row.Persistent);
    const auto live = Points(row.Persistent + 1);
    ASSERT_FALSE(points.empty());
    EXPECT_EQ(Drawn[row.Persistent].size(), points.size()) << "nothing else";
    EXPECT_EQ(live.size(), row.OnLive ? points.size() : 0);
    EXPECT_TRUE(live.empty() || live[0].DrawWidth == points[0].DrawWidth);
    EXPECT_TRUE(PersistentInView(row.Persistent));
    EXPECT_EQ(page.MousePointer(), MousePointer::Default);
    EXPECT_TRUE(kept.DrawWidth == 1 && twin.DrawWidth == 1);
    EXPECT_EQ(host.Flushes.size(), live.size() / forms::PointsToPicture);

    page.ModoCoresFunção = 0;
    kept.Visible = row.OnLive;  // the dots of the function swap no canvases
    twin.Visible = !row.OnLive;
    Press(row.Press, "sen(");
    std::vector<MessageBox> boxes;
    if (row.Message == Long) {
      boxes = {{"Erro:\n\nNúmero de parênteses incorrecto.", row.Hourglass ? 64 : 0,
                row.Hourglass ? "Relações" : "Clinorama"}};
    }
    EXPECT_EQ(host.MessageBoxes, boxes);
    EXPECT_EQ(host.Focused, std::vector<std::string>(boxes.size(), "Função1"));
    EXPECT_EQ(PersistentInView(row.Persistent), boxes.empty() && row.OnLive);
    EXPECT_EQ(page.MousePointer(), MousePointer::Default);
    EXPECT_EQ(page.ModoCoresFunção, 0);
    points = Points(row.Persistent);
    EXPECT_EQ(points.size(), row.Count);
    for (std::size_t i = 0; i < points.size(); ++i) {
      ASSERT_TRUE(points[i].Y1 == row.Y &&
                  points[i].Pen == forms::QBColor(row.Lines[i % row.Lines.size()]));
    }
  }
}

// The samples of polynomials, whose quotients are polynomials too: which of them are plotted in a
// colour, and where. Constants show the passes of each loop, and what a zero or a bound meets.
TEST_F(RelationsTest, Polynomials) {
  struct Row {
    Button Press;
    const char* Text;
    int Persistent;
    int Color;
    std::size_t Count;
    double FirstX = 0, LastX = 0;
    std::array<double, 4> Y = {};  // coefficients of the ordinates plotted, from that of x^0 on
    int DrawWidth = 1;
  };
  const Row rows[] = {
      {&F::DesenharGráfico, "3", 1, CurveBlue, 32001, -8, 8, {3}},
      {&F::DesenharGráfico, "0", 1, CurveBlue, 0},
      {&F::DesenharGráfico, "8", 1, CurveBlue, 0},
      {&F::DesenharGráfico, "-8", 1, CurveBlue, 0},
      {&F::DesenharGráfico, "x^3+0.001", 1, CurveBlue, 8000, -2, 1.9995, {0.001, 0, 0, 1}},
      {&F::DesenharPrimeira, "0", 3, CurveBlue, 15999, -7.999, 7.999, {0}},
      {&F::DesenharPrimeira, "x^2", 3, CurveBlue, 8000, -3.999, 4, {-0.001, 2}},
      {&F::DesenharSegunda, "x^2", 5, CurveBlue, 15999, -7.999, 7.999, {2}},
      {&F::DesenharSegunda, "x^3", 5, CurveBlue, 2667, -1.332, 1.334, {-0.006, 6}},
      {&F::ColocarCoresFunção, "3", 1, Green, 32001, -8, 8, {2.98}},
      {&F::ColocarCoresFunção, "3", 1, Red, 32001, -8, 8, {3.01}},
      {&F::ColocarCoresFunção, "x^2-0.0004*x", 1, Red, 5658, -2.829, -0.0005, {6e-7, 0.0016, 1}},
      {&F::ColocarCoresFunção, "x^2-0.0004*x", 1, Green, 5656, 0, 2.8275, {6e-7, 0.0016, 1}},
      {&F::ColocarCoresPrimeira1, "3", 3, AnyColor, 0},
      {&F::ColocarCoresPrimeira1, "x^2", 3, Red, 4000, -3.999, 0, {-0.001, 2}},
      {&F::ColocarCoresPrimeira1, "x^2", 3, Green, 4000, 0.001, 4, {-0.001, 2}},
      {&F::ColocarCoresFunção2, "3", 1, Cyan, 16000, -8, 7.999, {3}},
      {&F::ColocarCoresFunção2, "x^3", 1, Magenta, 2000, -2, -0.001, {0, 7.5e-7, 0.0015, 1}},
      {&F::ColocarCoresFunção2, "x^3", 1, Cyan, 2000, 0, 1.999, {0, 7.5e-7, 0.0015, 1}},
      {&F::ColocarCoresPrimeira2, "3", 3, AnyColor, 0},
      {&F::ColocarCoresPrimeira2, "x^3", 3, Magenta, 1633, -1.632, 0, {1e-6, -0.003, 3}},
      {&F::ColocarCoresPrimeira2, "x^3", 3, Cyan, 1633, 0.001, 1.633, {1e-6, -0.003, 3}},
      {&F::ColocarCoresSegunda, "3", 5, Cyan, 15999, -7.999, 7.999, {-0.1}},
      {&F::ColocarCoresSegunda, "0.5005*x^2-x^3", 5, Cyan, 1333, -1.165, 0.167, {1.007, -6}},
      {&F::ColocarCoresSegunda, "0.5005*x^2-x^3", 5, Magenta, 1334, 0.168, 1.501, {1.007, -6}},
      {&F::ExtremosFunção, "3", 1, Red, 16000, -8, 7.999, {3}, 7},
      {&F::ExtremosFunção, "9-x^2", 1, AnyColor, 0},
      {&F::ExtremosFunção, "2-x^2", 1, Red, 1, 0, 0, {2}, 7},
      {&F::ExtremosFunção, "x^4-2", 1, Red, 1, 0, 0, {-2}, 7},
      {&F::InflexõesFunção, "(x-0.0035)^3+9", 1, Green, 1, 0.01, 0.01, {9}, 7},
      {&F::ZerosPrimeira, "x^2", 3, Red, 10, -0.004, 0.005, {-0.001, 2}, 5},
      {&F::ZerosPrimeira, "x/105", 3, Red, 15999, -7.999, 7.999, {1 / 105.0}, 5},
      {&F::ZerosPrimeira, "x/95", 3, AnyColor, 0},
      {&F::ZerosPrimeira, "-x/95", 3, AnyColor, 0},
      {&F::ZerosSegunda, "x^3", 5, Green, 3, 0, 0.002, {-0.006, 6}, 5},
      // The value at -8.001 spoils two quotients of what is not constant, the first of them unseen.
      {&F::ZerosSegunda, "2*x", 5, Green, 16198, -8.098, 8.099, {0}, 5},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE((page.*row.Press).Name() + " of " + row.Text);
    Press(row.Press, row.Text);
    const auto points = Points(row.Persistent, row.Color);
    EXPECT_EQ(points.size(), row.Count);
    EXPECT_NEAR(points.empty() ? 0 : points.front().X1, row.FirstX, 1e-9);
    EXPECT_NEAR(points.empty() ? 0 : points.back().X1, row.LastX, 1e-9);
    for (const Drawing& point : points) {
      const double x = point.X1;
      ASSERT_NEAR(point.Y1, row.Y[0] + x * (row.Y[1] + x * (row.Y[2] + x * row.Y[3])), 1e-6) << x;
      ASSERT_EQ(point.DrawWidth, row.DrawWidth);
    }
  }
}

// Skipped silently, a failure costs its own point; the next quotient starts from a repeated value.
TEST_F(RelationsTest, FailureAtOneAbscissa) {
  const auto near = [this](int canvas, double x) {
    auto found = Points(canvas);
    std::erase_if(found, [x](const Drawing& point) { return std::abs(point.X1 - x) > 0.0005; });
    return found;
  };
  Press(&F::DesenharPrimeira, "x+" + OneFailure);
  EXPECT_EQ(Points(3).size(), 15998u);
  ASSERT_EQ(near(3, 1.001).size(), 1u);
  EXPECT_NEAR(near(3, 1.001)[0].Y1, 2, 1e-6);

  // A test that cannot be evaluated runs its branch: both colours, on the axis.
  Press(&F::ColocarCoresPrimeira1, "x+" + OneFailure);
  ASSERT_EQ(near(3, 1).size(), 2u);
  EXPECT_EQ(near(3, 1)[0].Pen, forms::QBColor(Green));
  EXPECT_EQ(near(3, 1)[1].Pen, forms::QBColor(Red));
  EXPECT_NEAR(near(3, 1)[1].Y1, 0, 1e-9);

  // The second loop of the plot evaluates the function again, and that of the colours does not.
  Press(&F::DesenharSegunda, OneFailure);
  EXPECT_TRUE(near(5, 1).empty());
  Press(&F::ColocarCoresSegunda, OneFailure);
  EXPECT_EQ(near(5, 1).size(), 1u);

  // Reported, it ends the drawing; what was drawn stays.
  Press(&F::DesenharGráfico, "x+" + OneFailure);
  EXPECT_EQ(host.MessageBoxes.size(), 1u);
  EXPECT_NEAR(Points(1).back().X1, 0.999, 1e-6);
}

TEST_F(RelationsTest, ValuesThatAreLeftOut) {
  // The colour asks for the value of the sample before: the first value above 0 is left out.
  Press(&F::ColocarCoresPrimeira2, "(abs(x-0.0005)+(x-0.0005))^2");
  EXPECT_NEAR(Points(3).front().X1, 0.002, 1e-9);
  // Differences of finite values can overflow: a failure like any other.
  Press(&F::DesenharPrimeira, "10^307*x");
  EXPECT_TRUE(Points(3).empty());
  // Outside the domain the function has one value, and its derivative is 0.
  Press(&F::DesenharPrimeira, "sqr(x)");
  EXPECT_EQ(Points(3).at(7000).Y1, 0);
  // A point beyond 32-bit reals cannot be drawn, and is passed over.
  Press(&F::InflexõesFunção, "10^200*x^3+10^199");
  EXPECT_TRUE(Points(1).empty());
  // Where both colours are plotted the later one stays visible.
  Press(&F::ColocarCoresFunção2, "3");
  EXPECT_EQ(Points(1).back().Pen, forms::QBColor(Magenta));
  // From 1.0003 on it fails. The chord at 1 has values of other chords and seems to turn, but the
  // ordinate of its point cannot be read.
  Press(&F::InflexõesFunção, "sqr(x+20)+0*exp(100000*(x-0.9932))");
  EXPECT_TRUE(Points(1).empty());
  EXPECT_TRUE(host.MessageBoxes.empty());
}

// The buttons of a window that tests ask alike of all windows.
struct Window {
  int Persistent;
  Button Draw, Clear, Toggle, Color, Background;
  bool F::*Radians;
};
const Window Windows[] = {
    {1, &F::DesenharGráfico, &F::ApagarGráfico1, &F::EixosRad, &F::CorDoGráfico, &F::CorDoFundo,
     &F::RadianosFunção},
    {3, &F::DesenharPrimeira, &F::ApagarPrimeira, &F::EixosRad1, &F::CorPrimeira,
     &F::CorFundoPrimeira, &F::RadianosPrimeira},
    {5, &F::DesenharSegunda, &F::ApagarSegunda, &F::EixosRad2, &F::CorSegunda, &F::CorFundoSegunda,
     &F::RadianosSegunda},
};

TEST_F(RelationsTest, OpensWithLiveCanvasesInUnits) {
  EXPECT_EQ(page.Função1.Text(), "x*(1-cos(x))");
  for (const auto& [persistent, pixels] : {std::pair{1, 533}, {3, 333}, {5, 333}}) {
    const forms::PictureBox& kept = page.Picture1(persistent);
    const forms::PictureBox& live = page.Picture1(persistent + 1);
    EXPECT_FALSE(PersistentInView(persistent));
    EXPECT_TRUE(kept.AutoRedraw && !live.AutoRedraw);
    EXPECT_TRUE(live.ScaleWidth() == 20 && live.ScaleHeight() == -20);
    EXPECT_TRUE(kept.Left() == live.Left() && kept.Top() == live.Top());
    EXPECT_TRUE(kept.Screen().Width() == pixels && live.Screen().Width() == pixels);
  }
}

// The axes with their heads, marks and numbers, on both canvases of a window.
TEST_F(RelationsTest, GraduatesInUnitsAndInRadians) {
  const char* const labels[] = {"-5p/2", "-2p", "-3p/2", "-p", "-p/2", "",
                                "p/2",   "p",   "3p/2",  "2p", "5p/2"};
  const double offsets[] = {0.9, 0.5, 0.6, 0.3, 0.5, 0, 0.5, 0.3, 0.6, 0.3, 0.6};
  const auto same = [](const Drawing& a, const Drawing& b) {
    const double ends = std::hypot(a.X2 - b.X2, a.Y2 - b.Y2);
    return a.What == b.What && a.Text == b.Text && a.DrawStyle == b.DrawStyle &&
           std::hypot(a.X1 - b.X1, a.Y1 - b.Y1, ends) < 1e-9;
  };
  forms::Surface expected(8000, 8000, 1);
  expected.Observer = [&](const Drawing& operation) { Drawn[0].push_back(operation); };
  for (const bool radians : {false, true}) {
    Press(radians ? &F::EixosRad : &F::ApagarGráfico1);
    expected.Cls();
    expected.Line(-9, 0, 9, 0);
    expected.Line(0, 9, 0, -9);
    for (const double side : {-0.15, 0.15}) {
      expected.Line(side, 8.7, 0, 9);
      expected.Line(8.7, side, 9.1, 0);
    }
    expected.PrintAt(9.2, -0.3, "x");
    expected.PrintAt(-0.7, 9.7, "y");
    for (int j = -8; j <= 8; ++j) {
      expected.Line(-0.1, j, 0.1, j);
      if (j != 0) {
        expected.PrintAt(-0.7, j + 0.3, base::PrintedNumber(j));
      }
      for (int time = 0; radians && time < 2; ++time) {
        expected.PSet(-0.05, j);
        expected.PSet(0.1, j);
      }
    }
    for (int i = radians ? -5 : -8; i <= (radians ? 5 : 8); ++i) {
      const double x = radians ? i * 3.14159 / 2 : i;
      expected.Line(x, 0.1, x, -0.1);
      if (i != 0 && radians) {
        expected.PrintAt(x - offsets[i + 5], -0.6, labels[i + 5]);
      } else if (i != 0) {
        expected.PrintAt(x - 0.3, -0.4, base::PrintedNumber(i));
      }
    }
    for (const int canvas : {1, 2}) {
      EXPECT_TRUE(std::is_permutation(Drawn[0].begin(), Drawn[0].end(), Drawn[canvas].begin(),
                                      Drawn[canvas].end(), same));
    }
  }
}

// The numbers of the y axis are bold after a graduation in units and plain after one in radians.
TEST_F(RelationsTest, FontsOfTheGraduation) {
  const auto fonts = [&](Button button) {
    host.Texts.clear();
    Press(button);
    std::map<std::string, std::string> found;
    for (const forms::TextRun& run : host.Texts) {
      found[run.Text] = run.Font.Name + (run.Font.Bold ? " bold " : " ") +
                        std::to_string(std::lround(run.Font.Size));
    }
    return found[" 8 "] + ", " + found["x"] + ", " + found["2π"];
  };
  EXPECT_EQ(fonts(&F::EixosRad), "MS Serif bold 6, MS Sans Serif bold 6, symbol 9");
  EXPECT_EQ(fonts(&F::ApagarGráfico1), "MS Serif 6, MS Sans Serif bold 6, symbol 9");
  EXPECT_EQ(fonts(&F::EixosRad), "MS Serif bold 6, MS Sans Serif bold 6, ");
}

// Colours and graduation of each window, and what is left of them after leaving and returning.
TEST_F(RelationsTest, EachWindowHasItsOwnColoursAndGraduation) {
  for (const Window& window : Windows) {
    SCOPED_TRACE(window.Persistent);
    const int live = window.Persistent + 1;
    host.ChosenColor = forms::QBColor(Yellow);
    host.ColorsOffered.clear();
    Press(window.Color);
    EXPECT_TRUE(Drawn.empty());
    Press(window.Draw, "x^2");
    EXPECT_EQ(Points(live).at(0).Pen, forms::QBColor(Yellow));
    for (const bool radians : {true, false}) {
      for (const Button button : {window.Toggle, window.Clear, window.Background}) {
        Press(button);
        EXPECT_EQ(Drawn.size(), 2U);
        EXPECT_EQ(page.*window.Radians, radians);
        for (auto& [canvas, drawings] : Drawn) {
          EXPECT_TRUE(canvas == window.Persistent || canvas == live);
          EXPECT_EQ(drawings.back().Text, radians ? "5p/2" : "y");
        }
      }
      EXPECT_EQ((page.*window.Toggle).Caption(), radians ? "Unidades" : "Radianos");
      EXPECT_TRUE(
          (page.*window.Toggle).ToolTipText().ends_with(radians ? " unidades" : " radianos"));
      host.ChosenColor.reset();  // the second background is cancelled
    }
    EXPECT_EQ(host.ColorsOffered, (std::vector{forms::Blue, forms::White, forms::QBColor(Yellow)}));
    Press(&F::Sair);
    page.Show();
    EXPECT_EQ(page.Picture1(window.Persistent).BackColor(), forms::QBColor(Yellow));
    EXPECT_EQ(page.Picture1(live).BackColor(), forms::QBColor(Yellow));
    Press(window.Draw);
    EXPECT_EQ(Points(live).at(0).Pen, forms::Blue);
    Press(window.Background);
    EXPECT_EQ(page.Picture1(live).BackColor(), forms::White);
  }
}

// Leaving toggles: function, first derivative, and the second one only if the first came to units.
TEST_F(RelationsTest, CaptionsAfterLeavingAndReturning) {
  // The graduations when the user leaves, and the first letters of the captions afterwards.
  for (const auto& [left, captions] :
       {std::pair{"uru", "URU"}, {"rur", "RUU"}, {"rrr", "RRR"}, {"uuu", "UUR"}}) {
    for (int i = 0; i < 3; ++i) {
      if (left[i] == 'r') {
        Press(Windows[i].Toggle);
      }
    }
    Press(&F::Sair);
    EXPECT_FALSE(page.Visible());
    page.Show();
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ((page.*Windows[i].Toggle).Caption().front(), captions[i]) << left << i;
      EXPECT_FALSE(page.*Windows[i].Radians);
      EXPECT_EQ(Drawn[Windows[i].Persistent].back().Text, "y");
    }
  }
  // A clearing in units sets the caption right on the function only.
  Press(&F::ApagarGráfico1);
  Press(&F::ApagarPrimeira);
  EXPECT_EQ(page.EixosRad.Caption(), "Radianos");
  EXPECT_EQ(page.EixosRad1.Caption(), "Unidades");
}

TEST_F(RelationsTest, ClearingTheFirstDerivativeForgetsTheColouringOfTheSecond) {
  std::string modes;
  for (const Button button :
       {&F::ColocarCoresFunção, &F::ColocarCoresFunção2, &F::ColocarCoresSegunda, &F::ApagarSegunda,
        &F::ApagarPrimeira, &F::ApagarGráfico1}) {
    Press(button);
    modes += std::to_string(page.ModoCoresFunção) + std::to_string(page.ModoCoresSegunda) + " ";
  }
  EXPECT_EQ(modes, "10 20 21 21 20 00 ");
}

}  // namespace
}  // namespace clinorama::tests
