#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>

#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

constexpr double Pixel = 25.92 / 633;  // in user units: 633 show the plane from -12,96 to 12,96
constexpr double HalfPi = 3.14159 / 2;

using Canvas = WorkPageTest;

forms::DrawingOperation Text(double x, double y, const std::string& text) {
  return {.What = Kind::Text, .X1 = x, .Y1 = y, .Text = text};
}

// One drawing for each step on both halves of an axis.
template <class Draw>
Operations OnAxis(double step, Draw draw) {
  Operations drawn;
  for (const double signedStep : {step, -step}) {
    for (int i = 1; i * step <= 12; ++i) {
      const double at = i * signedStep;
      drawn.push_back(draw(at, (at < 0 ? "-" : " ") + std::to_string(int(i * step)) + " "));
    }
  }
  return drawn;
}

Operations TicksOfX(double step) {
  return OnAxis(step, [](double x, auto) {
    return forms::DrawingOperation{Kind::Line, x, -2 * Pixel, x, 2 * Pixel};
  });
}

// Axes, ticks of x, ticks of y, numbers of x, numbers of y.
using Groups = std::array<Operations, 5>;

Groups InUnits(double stepX, double stepY) {
  return {Operations{{Kind::Line, -12.48, 0, 12.48, 0},
                     {Kind::Line, 0, -12.48, 0, 12.48},
                     Text(12.48 + 2 * Pixel, -5 * Pixel, "x"),
                     Text(-12 * Pixel, 12.48 + 9 * Pixel, "y")},
          TicksOfX(stepX),
          OnAxis(stepY,
                 [](double y, auto) {
                   return forms::DrawingOperation{Kind::Line, -2 * Pixel, y, 2 * Pixel, y};
                 }),
          OnAxis(stepX, [](double x, auto i) { return Text(x - 8 * Pixel, -8 * Pixel, i); }),
          OnAxis(stepY, [](double y, auto i) { return Text(-18 * Pixel, y + 5 * Pixel, i); })};
}

void ExpectDrawn(const Operations& drawn, const Groups& expected, bool kept) {
  ASSERT_FALSE(drawn.empty());
  EXPECT_EQ(drawn[0].What, Kind::Clear);
  Operations all = {drawn[0]};
  for (const Operations& group : expected) {
    all.insert(all.end(), group.begin(), group.end());
  }
  ASSERT_EQ(drawn.size(), all.size());
  for (std::size_t i = 1; i < all.size(); ++i) {
    all[i].Kept = kept;
    EXPECT_EQ(Told(drawn[i]), Told(all[i])) << "drawing " << i;
  }
}

TEST_F(Canvas, IsDrawnAnewByClearingAndByEveryReturnWhateverThePensWere) {
  page.PassoX.Text = "3";
  page.PassoY.Text = "5";
  std::size_t off = 0;
  for (auto* setting : {&page.MarcaX, &page.MarcaY, &page.GradNumX, &page.GradNumY}) {
    const bool clearing = ++off % 2 == 0;
    Plot("20");
    for (forms::PictureBox* surface : {&page.Picture1, &page.Picture2}) {
      surface->DrawMode = forms::InvertPixel;
      surface->DrawStyle = forms::Dotted;
      surface->DrawWidth = 3;
    }
    page.Picture1.AutoRedraw = false;
    for (forms::Label* value : {&page.Label2, &page.Label3, &page.Label6}) {
      value->Caption = "3";
    }
    page.Image1(0).Visible = true;
    page.Image1(1).Visible = true;
    setting->Value = false;
    Groups expected = InUnits(3, 5);
    expected[off].clear();
    The<Form2>().Show();
    clearing ? page.ApagarGráfico.UserClick() : The<Form2>().Clinorama.UserClick();
    ExpectDrawn(onKept, expected, true);
    ExpectDrawn(onLive, expected, false);
    EXPECT_EQ(State(), clearing ? "|| kept" : "||3 kept");
    setting->Value = true;
  }
  EXPECT_TRUE(PlottedOnce());
}

TEST_F(Canvas, DrawsAxesInRadiansOnTheKeptSurfaceOnly) {
  onKept.clear();
  onLive.clear();
  page.EixosRad.UserClick();
  Groups expected = InUnits(1, 1);
  expected[1].clear();
  expected[3].clear();
  ExpectDrawn(onLive, expected, false);
  expected[1] = TicksOfX(HalfPi);
  for (const auto& [text, halfPis, offset] :
       {std::tuple("-p/2", -1, 6), std::tuple("-3 p/2", -3, 6), std::tuple("-5 p/2", -5, 6),
        std::tuple("-7 p/2", -7, 6), std::tuple("-p", -2, 4), std::tuple("-2 p", -4, 6),
        std::tuple("-3 p", -6, 6), std::tuple("p/2", 1, 4), std::tuple(" 3 p/2", 3, 6),
        std::tuple(" 5 p/2", 5, 6), std::tuple(" 7 p/2", 7, 6), std::tuple("p", 2, 2),
        std::tuple(" 2 p", 4, 6), std::tuple(" 3 p", 6, 6)}) {
    expected[3].push_back(Text(halfPis * HalfPi - offset * Pixel, -6 * Pixel, text));
  }
  ExpectDrawn(onKept, expected, true);
}

TEST_F(Canvas, NamesTheNextGraduationOnTheButtonAndWritesEachTextInItsFont) {
  forms::Font letters = {.Name = "MS Sans Serif", .Size = 8.25, .Bold = true};
  for (const std::string next : {"radianos", "unidades", "radianos"}) {
    const auto count = [this](const forms::Font& font) {
      return std::count_if(host.Texts.begin(), host.Texts.end(),
                           [&](const forms::TextRun& run) { return run.Font == font; });
    };
    const bool inUnits = next == "radianos";
    EXPECT_EQ(count(letters), 4);
    EXPECT_EQ(count({.Name = "MS Serif", .Size = 6, .Bold = true}), inUnits ? 96 : 48);
    EXPECT_EQ(count({.Name = "symbol", .Size = 8, .Bold = false}), inUnits ? 0 : 14);
    EXPECT_EQ(page.EixosRad.Caption, inUnits ? "Radianos" : "Unidades");
    EXPECT_EQ(page.EixosRad.ToolTipText, "Graduar o eixo das abcissas em " + next + ".");
    host.Texts.clear();
    letters.Size = 6;  // that of the numbers printed last
    page.EixosRad.UserClick();
  }
}

TEST_F(Canvas, LosesTheGraphToAnotherBackgroundAndNotToAnotherColour) {
  const forms::Color cyan = forms::QBColor(11);
  for (const auto choice : {std::optional(cyan), std::optional<forms::Color>()}) {
    host.ChosenColor = choice;
    onKept.clear();
    page.CorGráfico.UserClick();
    EXPECT_TRUE(onKept.empty());
    page.CorFundo.UserClick();
    EXPECT_EQ(onKept.back().What, Kind::Text) << "the axes are drawn anew";
    EXPECT_EQ(ColorAt(page.Picture1, page.Picture1.Screen(), 5.5, 3), cyan);
    EXPECT_EQ(ColorAt(page.Picture2, page.Picture2.Screen(), 5.5, 3), forms::White);
  }
  EXPECT_EQ(host.ColorsOffered, (std::vector<forms::Color>{forms::Blue, forms::White, cyan, cyan}));
}

}  // namespace
}  // namespace clinorama::tests
