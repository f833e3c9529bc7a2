#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <tuple>

#include "base/number_text.h"
#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

constexpr double Pixel = 25.92 / 633;  // in user units: 633 show the plane from -12,96 to 12,96
constexpr double HalfPi = 3.14159 / 2;

using Canvas = WorkPageTest;

forms::DrawingOperation Text(double x, double y, const std::string& text) {
  return {.What = Kind::Text, .X1 = x, .Y1 = y, .Text = text};
}

// Axes, ticks of x, ticks of y, numbers of x, numbers of y.
using Groups = std::array<Operations, 5>;

Groups Axes(double stepX, double stepY) {
  Groups drawn;
  drawn[0] = {{Kind::Line, -12.48, 0, 12.48, 0}, {Kind::Line, 0, -12.48, 0, 12.48}};
  drawn[0].push_back(Text(12.48 + 2 * Pixel, -5 * Pixel, "x"));
  drawn[0].push_back(Text(-12 * Pixel, 12.48 + 9 * Pixel, "y"));
  for (const int sign : {1, -1}) {
    for (double x = sign * stepX; std::abs(x) <= 12; x += sign * stepX) {
      drawn[1].push_back({Kind::Line, x, -2 * Pixel, x, 2 * Pixel});
      drawn[3].push_back(Text(x - 8 * Pixel, -8 * Pixel, base::PrintedNumber(x)));
    }
    for (double y = sign * stepY; std::abs(y) <= 12; y += sign * stepY) {
      drawn[2].push_back({Kind::Line, -2 * Pixel, y, 2 * Pixel, y});
      drawn[4].push_back(Text(-18 * Pixel, y + 5 * Pixel, base::PrintedNumber(y)));
    }
  }
  return drawn;
}

void ExpectDrawn(const Operations& drawn, const Groups& expected, bool kept) {
  Operations all;
  for (const Operations& group : expected) {
    all.insert(all.end(), group.begin(), group.end());
  }
  ASSERT_EQ(drawn.size(), all.size() + 1);
  EXPECT_EQ(drawn[0].What, Kind::Clear);
  for (std::size_t i = 0; i < all.size(); ++i) {
    all[i].Kept = kept;
    EXPECT_EQ(Told(drawn[i + 1]), Told(all[i])) << "drawing " << i;
  }
}

TEST_F(Canvas, IsDrawnAnewByClearingAndByEveryReturnWhateverThePensWere) {
  page.PassoX.Text = "3";
  page.PassoY.Text = "5";
  std::size_t off = 0;
  for (auto* setting : {&page.MarcaX, &page.MarcaY, &page.GradNumX, &page.GradNumY}) {
    const bool clearing = ++off % 2 == 0;
    Plot("20" + std::string(off, ' '));  // unmarks the option
    for (forms::PictureBox* surface : {&page.Picture1, &page.Picture2}) {
      surface->DrawMode = forms::InvertPixel;
      surface->DrawStyle = forms::Dotted;
      surface->DrawWidth = 3;
    }
    page.Picture1.AutoRedraw = false;
    Disturb();
    setting->Value = false;
    Groups expected = Axes(3, 5);
    expected[off].clear();
    The<Form2>().Show();
    clearing ? page.ApagarGráfico.UserClick() : The<Form2>().Clinorama.UserClick();
    ExpectDrawn(onKept, expected, true);
    ExpectDrawn(onLive, expected, false);
    EXPECT_EQ(std::pair(page.Image3.Left() / 15, page.Image3.Top() / 15), std::pair(618.0, 312.0));
    EXPECT_EQ(std::pair(page.Image2.Left() / 15, page.Image2.Top() / 15), std::pair(312.0, 11.0));
    EXPECT_EQ(State(), clearing ? "|| kept right" : "||3 kept right");
    setting->Value = true;
  }
}

TEST_F(Canvas, DrawsAxesInRadiansOnTheKeptSurfaceOnly) {
  onKept.clear();
  onLive.clear();
  page.EixosRad.UserClick();
  Groups expected = Axes(HalfPi, 1);
  expected[3].clear();
  using Label = std::tuple<const char*, int, int>;
  for (const auto& [text, halfPis, offset] :
       {Label("-p/2", -1, 6), Label("-3 p/2", -3, 6), Label("-5 p/2", -5, 6),
        Label("-7 p/2", -7, 6), Label("-p", -2, 4), Label("-2 p", -4, 6), Label("-3 p", -6, 6),
        Label("p/2", 1, 4), Label(" 3 p/2", 3, 6), Label(" 5 p/2", 5, 6), Label(" 7 p/2", 7, 6),
        Label("p", 2, 2), Label(" 2 p", 4, 6), Label(" 3 p", 6, 6)}) {
    expected[3].push_back(Text(halfPis * HalfPi - offset * Pixel, -6 * Pixel, text));
  }
  ExpectDrawn(onKept, expected, true);
  expected[1].clear();
  expected[3].clear();
  ExpectDrawn(onLive, expected, false);
}

TEST_F(Canvas, NamesTheNextGraduationOnTheButtonAndWritesEachTextInItsFont) {
  double letters = 8.25;  // then the size of the numbers printed last
  for (const bool radians : {false, true, false}) {
    const auto count = [this](const forms::Font& font) {
      return std::count_if(host.Texts.begin(), host.Texts.end(),
                           [&](const forms::TextRun& run) { return run.Font == font; });
    };
    EXPECT_EQ(count({"MS Sans Serif", letters, true}), 4);
    EXPECT_EQ(count({"MS Serif", 6, true}), radians ? 48 : 96);
    EXPECT_EQ(count({"symbol", 8, false}), radians ? 14 : 0);
    EXPECT_EQ(page.EixosRad.Caption, radians ? "Unidades" : "Radianos");
    EXPECT_TRUE(page.EixosRad.ToolTipText().ends_with(radians ? " em unidades." : " em radianos."));
    host.Texts.clear();
    letters = 6;
    page.EixosRad.UserClick();
  }
}

TEST_F(Canvas, LosesTheGraphToAnotherBackgroundAndNotToAnotherColour) {
  host.ChosenColor = forms::Red;
  onKept.clear();
  page.CorGráfico.UserClick();
  EXPECT_TRUE(onKept.empty());
  page.CorFundo.UserClick();
  EXPECT_EQ(onKept.back().What, Kind::Text) << "the axes are drawn anew";
  EXPECT_EQ(page.Picture1.BackColor(), forms::Red);
  EXPECT_EQ(page.Picture2.BackColor(), forms::White);
  EXPECT_EQ(host.ColorsOffered, (std::vector<forms::Color>{forms::Blue, forms::White}));
}

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
}

TEST_F(Plotting, ShowsThePointsAsTheyArriveAndDoesNotGiveWay) {
  int wrong = 0;
  page.Picture2.Observer = [&](const forms::DrawingOperation&) {
    wrong += State() != "|| live busy";
  };
  Plot("3");
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(host.Flushes, std::vector<const forms::PictureBox*>(60, &page.Picture2));
  EXPECT_EQ(host.Steps, 0);
}

TEST_F(Plotting, StopsWithoutAFunctionOrAtAnErrorWithThePointsSoFar) {
  host.Changes.clear();
  Plot("");
  EXPECT_EQ(host.MessageBoxes, MessageBoxes{Limits("Deve escrever a expressão analítica da função "
                                                   "que pretende representar graficamente.")});
  EXPECT_EQ(State(), "|| live");
  EXPECT_EQ(std::count(host.Changes.begin(), host.Changes.end(), &page), 0) << "an hourglass";
  page.Calcular.UserClick();
  EXPECT_EQ(host.MessageBoxes.back(), NotPlotted);
  host.DuringMessageBox = [&] {
    EXPECT_EQ(State(), "|| live");
    EXPECT_TRUE(host.Focused.empty());
  };
  for (const auto& [function, description] :
       {std::pair("   ", "Expressão inválida"), std::pair("foo(x)", "Função não definida: foo()"),
        std::pair("10^(100*x)", "Excesso de capacidade.")}) {
    Plot(function);
    const std::string text = std::string("Erro na expressão analítica:\n\n") + description;
    EXPECT_EQ(host.MessageBoxes.back(), Limits(text));
    EXPECT_EQ(host.Focused, std::vector<std::string>{"Função1"});
    host.Focused.clear();
  }
  host.DuringMessageBox = nullptr;
  EXPECT_EQ(onKept.size(), 24022u) << "below 12 up to log10(12)/100, and overflow beyond 3,08";
  page.Abcissa.UserType("");
  page.DerivadaDireita.UserClick();
  EXPECT_EQ(host.MessageBoxes.back(), Limits("Tem de indicar a abcissa do ponto."));
}

}  // namespace
}  // namespace clinorama::tests
