#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

constexpr double Pixel = 25.92 / 633;  // in user units: 633 show the plane from -12,96 to 12,96
constexpr double HalfPi = 3.14159 / 2;

using Canvas = WorkPageTest;

DrawingOperation Line(double x1, double y1, double x2, double y2) {
  return {.What = Kind::Line, .X1 = x1, .Y1 = y1, .X2 = x2, .Y2 = y2};
}

DrawingOperation Text(double x, double y, const std::string& text) {
  return {.What = Kind::Text, .X1 = x, .Y1 = y, .Text = text};
}

// What is drawn for axes with marks on x at the distance of a step, none for 0, and these labels.
std::vector<std::string> Axes(bool kept, double step, const Operations& labelsOfX) {
  Operations drawn = {Line(-12.48, 0, 12.48, 0), Line(0, -12.48, 0, 12.48),
                      Text(12.48 + 2 * Pixel, -5 * Pixel, "x"),
                      Text(-12 * Pixel, 12.48 + 9 * Pixel, "y")};
  for (const double x : {step, -step}) {
    for (int i = 1; step > 0 && i * step <= 12; ++i) {
      drawn.push_back(Line(i * x, -2 * Pixel, i * x, 2 * Pixel));
    }
  }
  Operations labels = labelsOfX;
  for (const int sign : {1, -1}) {
    for (int i = 1; i <= 12; ++i) {
      const std::string number = (sign < 0 ? "-" : " ") + std::to_string(i) + " ";
      drawn.push_back(Line(-2 * Pixel, sign * i, 2 * Pixel, sign * i));
      labels.push_back(Text(-18 * Pixel, sign * i + 5 * Pixel, number));
    }
  }
  drawn.insert(drawn.end(), labels.begin(), labels.end());
  std::vector<std::string> told = {"clear"};
  for (DrawingOperation& operation : drawn) {
    operation.Kept = kept;
    told.push_back(Told(operation));
  }
  return told;
}

TEST_F(Canvas, DrawsAxesInUnitsWhateverThePensWere) {
  for (PictureBox* surface : {&page.Picture1, &page.Picture2}) {
    surface->DrawMode = 6;
    surface->DrawStyle = 2;
    surface->DrawWidth = 3;
  }
  page.Picture1.AutoRedraw = false;
  const Recording kept(page.Picture1);
  const Recording live(page.Picture2);
  Return();
  Operations numbers;
  for (const int sign : {1, -1}) {
    for (int i = 1; i <= 12; ++i) {
      const std::string number = (sign < 0 ? "-" : " ") + std::to_string(i) + " ";
      numbers.push_back(Text(sign * i - 8 * Pixel, -8 * Pixel, number));
    }
  }
  EXPECT_EQ(kept.ToldInOrder(), Axes(true, 1, numbers));
  EXPECT_EQ(live.ToldInOrder(), Axes(false, 1, numbers));
}

TEST_F(Canvas, DrawsAxesInRadiansOnTheKeptSurfaceOnly) {
  struct Label {
    const char* Text;
    int HalfPis;
    int Offset;
  };
  Operations labels;
  for (const auto& [text, halfPis, offset] :
       {Label{"-p/2", -1, 6}, Label{"-3 p/2", -3, 6}, Label{"-5 p/2", -5, 6},
        Label{"-7 p/2", -7, 6}, Label{"-p", -2, 4}, Label{"-2 p", -4, 6}, Label{"-3 p", -6, 6},
        Label{"p/2", 1, 4}, Label{" 3 p/2", 3, 6}, Label{" 5 p/2", 5, 6}, Label{" 7 p/2", 7, 6},
        Label{"p", 2, 2}, Label{" 2 p", 4, 6}, Label{" 3 p", 6, 6}}) {
    labels.push_back(Text(halfPis * HalfPi - offset * Pixel, -6 * Pixel, text));
  }
  const Recording kept(page.Picture1);
  const Recording live(page.Picture2);
  host.Texts.clear();
  page.EixosRad.UserClick();
  EXPECT_EQ(kept.ToldInOrder(), Axes(true, HalfPi, labels));
  EXPECT_EQ(live.ToldInOrder(), Axes(false, 0, {}));

  const forms::Font greek = {.Name = "symbol", .Size = 8, .Bold = false};
  EXPECT_EQ(std::count_if(host.Texts.begin(), host.Texts.end(),
                          [&](const forms::TextRun& run) { return run.Font == greek; }),
            14)
      << "once for the screen and the kept picture";
}

TEST_F(Canvas, WritesTheLettersInTheSizeOfTheLastNumbers) {
  const forms::Font number = {.Name = "MS Serif", .Size = 6, .Bold = true};
  forms::Font letter = {.Name = "MS Sans Serif", .Size = 8.25, .Bold = true};
  for (const char* drawing : {"in units", "in radians", "in units again"}) {
    EXPECT_EQ(host.Texts.front().Font, letter) << drawing;
    EXPECT_EQ(host.Texts.back().Font, number) << drawing;
    host.Texts.clear();
    letter.Size = 6;
    page.EixosRad.UserClick();
  }
}

TEST_F(Canvas, PlacesTheArrowHeadsAtTheEndsOfTheAxes) {
  EXPECT_EQ(std::pair(page.Image3.Left() / 15, page.Image3.Top() / 15), std::pair(618.0, 312.0));
  EXPECT_EQ(std::pair(page.Image2.Left() / 15, page.Image2.Top() / 15), std::pair(312.0, 11.0));
}

TEST_F(Canvas, NamesOnTheButtonTheGraduationThatAClickBrings) {
  for (const std::string state : {"radianos", "unidades", "radianos"}) {
    Return();  // changes nothing of it
    EXPECT_EQ(page.EixosRad.Caption, state == "radianos" ? "Radianos" : "Unidades");
    EXPECT_EQ(page.EixosRad.ToolTipText, "Graduar o eixo das abcissas em " + state + ".");
    page.EixosRad.UserClick();
  }
}

TEST_F(Canvas, LosesTheGraphToAnotherGroundAndNotToAnotherColour) {
  const forms::Color cyan = forms::QBColor(11);
  host.ChosenColor = cyan;
  for (const char* choice : {"made", "cancelled"}) {
    Plot("3");
    const Raster before = page.Picture1.Kept();
    page.CorGráfico.UserClick();
    EXPECT_EQ(Differences(page.Picture1.Kept(), before), 0) << choice;
    page.CorFundo.UserClick();
    EXPECT_GT(Differences(page.Picture1.Kept(), before), 0) << choice;
    EXPECT_EQ(PixelsOf(page.Picture1.Screen(), forms::Blue), 0) << choice;
    EXPECT_EQ(ColorAt(page.Picture1.Screen(), 5.5, 5.5), cyan) << choice;
    EXPECT_EQ(ColorAt(page.Picture2.Screen(), 5.5, 5.5), forms::White) << choice;
    host.ChosenColor.reset();
  }
  EXPECT_EQ(host.ColorsOffered, (std::vector<forms::Color>{forms::Blue, forms::White, cyan, cyan}));
}

TEST_F(Canvas, IsWipedByClearingAndByEveryReturn) {
  const Raster empty = page.Picture1.Kept();
  for (const bool clearing : {true, false}) {
    SCOPED_TRACE(clearing ? "clearing" : "return");
    Plot("x");
    EXPECT_GT(Differences(page.Picture1.Kept(), empty), 0);
    page.Image1(0).Visible = true;
    page.Image1(1).Visible = true;
    for (forms::Label* value : {&page.Label2, &page.Label3, &page.Label6}) {
      value->Caption = "3";
    }
    clearing ? page.ApagarGráfico.UserClick() : Return();
    for (const PictureBox* surface : {&page.Picture1, &page.Picture2}) {
      EXPECT_EQ(Differences(surface->Screen(), empty), 0);
    }
    EXPECT_EQ(Differences(page.Picture1.Kept(), empty), 0);
    EXPECT_FALSE(page.Image1(0).Visible || page.Image1(1).Visible);
    EXPECT_EQ(page.Label2.Caption() + page.Label3.Caption(), "");
    EXPECT_EQ(page.Label6.Caption, clearing ? "" : "3");
    EXPECT_TRUE(PlottedOnce());
  }
}

}  // namespace
}  // namespace clinorama::tests
