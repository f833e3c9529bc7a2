// The relations page apart from its drawings: places, graduation, colours, clearing, leaving and
// returning.

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "tests/relations/relations_test.h"

namespace clinorama::tests {
namespace {

using PageControlTest = RelationsTest;
using F = Form13;

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

TEST_F(PageControlTest, OpensWithLiveCanvasesInUnits) {
  EXPECT_EQ(page.Função1.Text(), "x*(1-cos(x))");
  for (const auto& [persistent, pixels] : {std::pair{1, 533}, {3, 333}, {5, 333}}) {
    const forms::PictureBox& kept = page.Picture1(persistent);
    const forms::PictureBox& live = page.Picture1(persistent + 1);
    EXPECT_FALSE(PersistentInView(persistent));
    EXPECT_TRUE(kept.AutoRedraw && !live.AutoRedraw);
    EXPECT_TRUE(live.ScaleWidth() == 20 && live.ScaleHeight() == -20);
    EXPECT_TRUE(kept.Left() == live.Left() && kept.Top() == live.Top());
    EXPECT_TRUE(kept.Screen().Width() == pixels && live.Screen().Width() == pixels);
    EXPECT_EQ(live.Screen().At(pixels / 2, pixels / 2), forms::Black);
  }
}

// The axes with their heads, marks and numbers, on both canvases of a window.
TEST_F(PageControlTest, GraduatesInUnitsAndInRadians) {
  const char* const labels[] = {"-5p/2", "-2p", "-3p/2", "-p", "-p/2", "",
                                "p/2",   "p",   "3p/2",  "2p", "5p/2"};
  const double offsets[] = {0.9, 0.5, 0.6, 0.3, 0.5, 0, 0.5, 0.3, 0.6, 0.3, 0.6};
  const auto same = [](const Drawing& a, const Drawing& b) {
    const double ends = std::hypot(a.X2 - b.X2, a.Y2 - b.Y2);
    return a.What == b.What && a.Text == b.Text &&
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
TEST_F(PageControlTest, FontsOfTheGraduation) {
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
TEST_F(PageControlTest, EachWindowHasItsOwnColoursAndGraduation) {
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
      EXPECT_EQ(
          (page.*window.Toggle).ToolTipText(),
          std::string("Graduar o eixo das abcissas em ") + (radians ? "unidades" : "radianos"));
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
TEST_F(PageControlTest, CaptionsAfterLeavingAndReturning) {
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

TEST_F(PageControlTest, ClearingTheFirstDerivativeForgetsTheColouringOfTheSecond) {
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
