#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

constexpr std::size_t Passes = 24001;

using TangentSweep = WorkPageTest;

TEST_F(TangentSweep, IsRefusedBeforeAPlot) {
  page.Calcular.UserClick();
  EXPECT_EQ(
      host.MessageBoxes,
      (std::vector<MessageBox>{{"Deve desenhar primeiro o gráfico da função.", 64, "Limites"}}));
  EXPECT_EQ(host.Steps, 0);
  EXPECT_TRUE(page.Picture1.AutoRedraw);
}

TEST_F(TangentSweep, ShowsTheSlopeInEachPassWhateverFails) {
  struct Slope {
    double X;
    std::string Shown;
  };
  struct Case {
    const char* Function;
    std::vector<Slope> Slopes;
  };
  const Case cases[] = {
      {"x^2/3", {{-12, "-8"}, {-1.5, "-1"}, {1.234, "0,823"}, {12, "8"}}},
      {"abs(x)", {{-0.001, "-1"}, {0, "0"}, {0.001, "1"}}},
      // Outside its domain all values are 1000. At 2 only the neighbour on the right is inside.
      {"sqr(x-2)", {{-12, "0"}, {1.999, "0"}, {2, "-1"}, {3, "0,5"}}},
      {"2+", {{-12, "0"}, {12, "0"}}},
      // Squares, coordinates and at last the values themselves go beyond their ranges.
      {"10^(100*x)", {{-1, "0"}, {0, "230,259"}}}};
  for (const auto& [function, slopes] : cases) {
    SCOPED_TRACE(function);
    Plot(function);
    host.MessageBoxes.clear();
    host.WaitedMilliseconds = 0;
    host.Steps = 0;
    page.HScroll1.UserScroll(1);
    std::vector<std::string> shown;
    host.EachStep = [&] { shown.push_back(page.Label6.Caption); };
    page.Calcular.UserClick();
    EXPECT_EQ(host.WaitedMilliseconds, Passes);
    EXPECT_TRUE(host.MessageBoxes.empty());
    EXPECT_EQ(LockedCommands(), 0);
    EXPECT_EQ(page.Label6.Caption, "");
    for (const auto& [x, slope] : slopes) {
      EXPECT_EQ(shown.at(static_cast<std::size_t>(std::lround((x + 12) * 1000))), slope) << x;
    }
  }
}

TEST_F(TangentSweep, LeavesTheCanvasAsItFoundIt) {
  Plot("x^2/3-4");
  const Raster before = page.Picture1.Screen();
  const Recording recording(page.Picture1);
  host.AtStep(12001, [&] {
    EXPECT_GT(Differences(page.Picture1.Screen(), before), 0) << "no tangent is seen";
    EXPECT_EQ(Differences(page.Picture1.Kept(), before), 0);
    EXPECT_TRUE(page.Image1(1).Visible);
    EXPECT_EQ(page.Image1(1).Left, 15 * std::floor(page.Picture1.LogicalX(-0.6 * 0.48)));
    EXPECT_EQ(page.Image1(1).Top, 15 * std::floor(page.Picture1.LogicalY(-4 + 0.6 * 0.48)));
    EXPECT_EQ(LockedCommands(), 12);
  });
  page.Calcular.UserClick();
  EXPECT_EQ(Differences(page.Picture1.Screen(), before), 0);
  EXPECT_FALSE(page.Image1(1).Visible);
  EXPECT_FALSE(page.Picture1.AutoRedraw);
  EXPECT_EQ(page.Picture1.DrawMode, 13);

  Operations drawn = recording.Drawn;
  ASSERT_EQ(drawn.size(), 2 * Passes);
  for (std::size_t pass = 0; pass < drawn.size() / 2; pass += 500) {
    DrawingOperation& line = drawn[2 * pass];
    EXPECT_NEAR(std::hypot(line.X2 - line.X1, line.Y2 - line.Y1), 10, 1e-4);
    EXPECT_NEAR((line.X1 + line.X2) / 2, -12 + 0.001 * static_cast<double>(pass), 1e-4);
    EXPECT_EQ(std::exchange(line.DrawMode, 6), 2);
    EXPECT_EQ(Told(drawn[2 * pass + 1]), Told(line));
  }
}

}  // namespace
}  // namespace clinorama::tests
