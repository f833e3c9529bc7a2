// The relations page apart from its drawings: graduation, colours, clearing, leaving and returning.

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/relations/relations_test.h"

namespace clinorama::tests {
namespace {

using PageControlTest = RelationsTest;
using forms::The;

std::vector<std::string> Texts(const std::vector<Drawing>& prints) {
  std::vector<std::string> texts;
  texts.reserve(prints.size());
  for (const Drawing& print : prints) {
    texts.push_back(print.Text);
  }
  return texts;
}

int TicksAcrossXAxis(const std::vector<Drawing>& lines) {
  return static_cast<int>(std::count_if(lines.begin(), lines.end(), [](const Drawing& line) {
    return line.X1 == line.X2 && line.Y1 == 0.1 && line.Y2 == -0.1;
  }));
}

// Each window has its place between buttons, legends and the edge of the page.
TEST_F(PageControlTest, NothingLiesOverAnythingElse) {
  const auto overlap = [](const forms::Control& a, const forms::Control& b) {
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
           b.Top < a.Top + a.Height;
  };
  for (const forms::Control* control : page.Children()) {
    if (!control->Visible) {
      continue;
    }
    EXPECT_TRUE(control->Left >= 0 && control->Left + control->Width <= page.Width &&
                control->Top >= 0 && control->Top + control->Height <= page.Height)
        << control->Name();
    for (const forms::Control* other : page.Children()) {
      if (other == control || !other->Visible) {
        continue;
      }
      EXPECT_FALSE(overlap(*control, *other)) << control->Name() << " and " << other->Name();
    }
  }
}

TEST_F(PageControlTest, OpensWithLiveCanvasesInUnitsAndBlueCurves) {
  for (const int persistent : {1, 3, 5}) {
    EXPECT_FALSE(PersistentInView(persistent));
    EXPECT_TRUE(page.Picture1(persistent).AutoRedraw);
    EXPECT_FALSE(page.Picture1(persistent + 1).AutoRedraw);
    EXPECT_EQ(page.Picture1(persistent).Left(), page.Picture1(persistent + 1).Left());
    EXPECT_EQ(page.Picture1(persistent).Top(), page.Picture1(persistent + 1).Top());
  }
  for (const forms::CommonDialog* curve :
       {&page.CommonDialog1, &page.CommonDialog3, &page.CommonDialog5}) {
    EXPECT_EQ(curve->Color, forms::Blue);
  }
  EXPECT_EQ(page.EixosRad.Caption(), "Radianos");
  EXPECT_EQ(page.EixosRad2.ToolTipText(), "Graduar os eixos das abcissas em radianos.");
  EXPECT_EQ(page.Picture1(2).Screen().At(266, 266), forms::Black) << "no axes on what is seen";
}

// The axes with their heads, and on either of them a mark and a number for each integer.
TEST_F(PageControlTest, UnitsMarkAndNumberBothAxes) {
  using Segment = std::array<double, 4>;
  std::vector<Segment> lines = {{-9, 0, 9, 0},     {0, 9, 0, -9},        {-0.15, 8.7, 0, 9},
                                {0.15, 8.7, 0, 9}, {8.7, -0.15, 9.1, 0}, {8.7, 0.15, 9.1, 0}};
  std::map<std::string, std::vector<std::pair<double, double>>> numbers = {{"x", {{9.2, -0.3}}},
                                                                           {"y", {{-0.7, 9.7}}}};
  for (int j = -8; j <= 8; ++j) {
    lines.push_back({double(j), 0.1, double(j), -0.1});
  }
  for (int j = -8; j <= 8; ++j) {
    lines.push_back({-0.1, double(j), 0.1, double(j)});
    if (j == 0) {
      continue;
    }
    numbers[(j < 0 ? "" : " ") + std::to_string(j) + " "] = {{j - 0.3, -0.4}, {-0.7, j + 0.3}};
  }
  Press(&Form13::ApagarGráfico1);
  for (const int canvas : {1, 2}) {
    std::vector<Segment> drawn;
    for (const Drawing& line : Of(canvas, Drawing::Kind::Line)) {
      drawn.push_back({line.X1, line.Y1, line.X2, line.Y2});
    }
    EXPECT_EQ(drawn, lines);
    std::map<std::string, std::vector<std::pair<double, double>>> printed;
    for (const Drawing& text : Of(canvas, Drawing::Kind::Text)) {
      printed[text.Text].emplace_back(text.X1, text.Y1);
    }
    EXPECT_EQ(printed, numbers);
  }
  EXPECT_TRUE(Drawn[3].empty());
}

TEST_F(PageControlTest, RadiansHaveElevenMarksAndTenLabelsOnBothCanvases) {
  Press(&Form13::EixosRad1);
  for (const int canvas : {3, 4}) {
    EXPECT_EQ(TicksAcrossXAxis(Of(canvas, Drawing::Kind::Line)), 11);
    EXPECT_EQ(Points(canvas).size(), 17u * 4);
    const auto prints = Of(canvas, Drawing::Kind::Text);
    auto texts = Texts(prints);
    ASSERT_EQ(texts.size(), 28u);
    EXPECT_NEAR(prints[18].X1, -5 * 3.14159 / 2 - 0.9, 1e-9);
    EXPECT_EQ(prints[27].Y1, -0.6);
    texts.erase(texts.begin(), texts.begin() + 18);
    EXPECT_EQ(texts, (std::vector<std::string>{"-5p/2", "-2p", "-3p/2", "-p", "-p/2", "p/2", "p",
                                               "3p/2", "2p", "5p/2"}));
  }
}

// The numbers of the y axis are bold after a graduation in units and plain after one in radians.
TEST_F(PageControlTest, RadiansKeepTheBoldnessOfTheLastGraduation) {
  const auto isBold = [&](Button button) {
    host.Texts.clear();
    Press(button);
    for (const forms::TextRun& run : host.Texts) {
      if (run.Text == " 8 ") {
        return run.Font.Bold;
      }
    }
    return false;
  };
  EXPECT_TRUE(isBold(&Form13::EixosRad));
  EXPECT_FALSE(isBold(&Form13::ApagarGráfico1));
  EXPECT_TRUE(isBold(&Form13::EixosRad));
}

TEST_F(PageControlTest, TogglingTwiceComesBackAndClearsBothTimes) {
  struct Row {
    Button Toggle;
    bool Form13::*Field;
    int Persistent;
  };
  for (const auto& [toggle, field, persistent] :
       {Row{&Form13::EixosRad, &Form13::RadianosFunção, 1},
        Row{&Form13::EixosRad1, &Form13::RadianosPrimeira, 3},
        Row{&Form13::EixosRad2, &Form13::RadianosSegunda, 5}}) {
    for (const bool radians : {true, false}) {
      Press(toggle);
      EXPECT_EQ(page.*field, radians);
      EXPECT_EQ((page.*toggle).Caption(), radians ? "Unidades" : "Radianos");
      EXPECT_EQ((page.*toggle).ToolTipText(), radians ? "Graduar o eixo das abcissas em unidades"
                                                      : "Graduar o eixo das abcissas em radianos");
      EXPECT_EQ(Of(persistent, Drawing::Kind::Clear).size(), 1u);
      EXPECT_EQ(Of(persistent + 1, Drawing::Kind::Clear).size(), 1u);
    }
  }
}

// Leaving toggles: function, first derivative, and the second one only if the first came to units.
TEST_F(PageControlTest, CaptionsAfterLeavingAndReturning) {
  struct Row {
    std::array<bool, 3> Radians;  // of the windows when the user leaves
    std::array<std::string, 3> Captions;
  };
  const std::string u = "Unidades";
  const std::string r = "Radianos";
  const Row rows[] = {
      {{false, false, false}, {u, u, r}}, {{true, true, true}, {r, r, r}},
      {{false, true, false}, {u, r, u}},  {{true, false, true}, {r, u, u}},
      {{true, true, false}, {r, r, u}},   {{false, false, true}, {u, u, u}},
  };
  for (const Row& row : rows) {
    The<Form13>().Unload();
    auto& fresh = The<Form13>();
    fresh.Show();
    const std::array<forms::CommandButton*, 3> toggles = {&fresh.EixosRad, &fresh.EixosRad1,
                                                          &fresh.EixosRad2};
    for (std::size_t i = 0; i < toggles.size(); ++i) {
      if (row.Radians[i]) {
        toggles[i]->UserClick();
      }
    }
    fresh.Sair.UserClick();
    EXPECT_FALSE(fresh.Visible());
    fresh.Show();
    for (std::size_t i = 0; i < toggles.size(); ++i) {
      EXPECT_EQ(toggles[i]->Caption(), row.Captions[i]) << i;
    }
    EXPECT_FALSE(fresh.RadianosFunção || fresh.RadianosPrimeira || fresh.RadianosSegunda);
  }
}

// A clearing in units sets a caption right on the function only.
TEST_F(PageControlTest, StaleCaptionsAfterReturning) {
  page.Sair.UserClick();
  page.Show();
  Press(&Form13::ApagarGráfico1);
  Press(&Form13::ApagarPrimeira);
  EXPECT_EQ(page.EixosRad.Caption(), "Radianos");
  EXPECT_EQ(page.EixosRad1.Caption(), "Unidades");
  Press(&Form13::EixosRad1);
  EXPECT_TRUE(page.RadianosPrimeira);
  EXPECT_EQ(page.EixosRad1.Caption(), "Unidades");
}

TEST_F(PageControlTest, ClearingTheFirstDerivativeForgetsTheColouringOfTheSecond) {
  Press(&Form13::ColocarCoresSegunda, "x^3");
  Press(&Form13::ColocarCoresFunção2);
  EXPECT_EQ(page.ModoCoresFunção, 2);
  Press(&Form13::ApagarSegunda);
  EXPECT_EQ(page.ModoCoresSegunda, 1);
  Press(&Form13::ApagarPrimeira);
  EXPECT_EQ(page.ModoCoresSegunda, 0);
  Press(&Form13::ApagarGráfico1);
  EXPECT_EQ(page.ModoCoresFunção, 0);
}

TEST_F(PageControlTest, GroundIsAskedForAndTheWindowClearedEvenWhenCancelled) {
  Press(&Form13::EixosRad2);
  host.ChosenColor = forms::QBColor(14);
  Press(&Form13::CorFundoSegunda);
  EXPECT_EQ(page.Picture1(5).BackColor(), forms::QBColor(14));
  EXPECT_EQ(page.Picture1(6).BackColor(), forms::QBColor(14));
  EXPECT_EQ(Texts(Of(6, Drawing::Kind::Text)).back(), "5p/2") << "drawn in the same graduation";

  Press(&Form13::DesenharGráfico, "3");
  host.ChosenColor.reset();
  Press(&Form13::CorDoFundo);
  EXPECT_EQ(page.Picture1(1).BackColor(), forms::White);
  EXPECT_FALSE(Of(1, Drawing::Kind::Clear).empty());
  EXPECT_EQ(page.Picture1(1).Kept().At(400, 186), forms::White) << "the graph is gone";
}

TEST_F(PageControlTest, ActivationForgetsTheColoursOfCurvesButNotTheGrounds) {
  host.ChosenColor = forms::QBColor(14);
  Press(&Form13::CorPrimeira);
  Press(&Form13::CorFundoPrimeira);
  page.Sair.UserClick();
  page.Show();
  EXPECT_EQ(page.CommonDialog3.Color, forms::Blue);
  EXPECT_EQ(page.Picture1(3).BackColor(), forms::QBColor(14));
  host.ColorsOffered.clear();
  host.ChosenColor.reset();
  Press(&Form13::CorFundoPrimeira);
  EXPECT_EQ(host.ColorsOffered, std::vector{forms::White});
  EXPECT_EQ(page.Picture1(3).BackColor(), forms::White);
}

}  // namespace
}  // namespace clinorama::tests
