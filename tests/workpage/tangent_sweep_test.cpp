#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "tests/workpage/work_page_test.h"

namespace clinorama::tests {
namespace {

using TangentSweep = WorkPageTest;

TEST_F(TangentSweep, ShowsAndTakesAwayATangentInEachPassWhateverFails) {
  page.Calcular.UserClick();
  EXPECT_EQ(host.MessageBoxes, MessageBoxes{Limits(NotPlotted)});
  EXPECT_EQ(State(), "|| kept");

  constexpr std::size_t Passes = 24001;
  const std::pair<const char*, std::map<double, std::string>> slopesOf[] = {
      {"abs(x)+3", {{-0.001, "-1"}, {0, "0"}, {0.001, "1"}}},
      // Outside its domain all values are 1000. At 2 only the neighbour on the right is inside.
      {"sqr(x-2)", {{-12, "0"}, {1.999, "0"}, {2, "-1"}, {3, "0,5"}}},
      {"2+", {{-12, "0"}, {12, "0"}}},
      // Squares, coordinates and at last the values themselves go beyond their ranges.
      {"10^(100*x)", {{-1, "0"}, {0, "230,259"}}},
      {"x^2/3", {{-12, "-8"}, {-1.5, "-1"}, {1.234, "0,823"}, {12, "8"}}}};
  page.HScroll1.UserScroll(1);
  std::vector<std::string> shown;
  host.EachStep = [&] { shown.push_back(page.Label6.Caption); };
  host.AtStep(12001, [&] {
    EXPECT_EQ(State(), "||0 kept unkept inverting moving" + Locked);
    EXPECT_TRUE(Marks(page.Image1(1), 0, 3));
  });
  for (const auto& [function, slopes] : slopesOf) {
    SCOPED_TRACE(function);
    Plot(function);
    onKept.clear();
    host.MessageBoxes.clear();
    host.WaitedMilliseconds = host.Steps = 0;
    shown.clear();
    page.Calcular.UserClick();
    EXPECT_EQ(host.WaitedMilliseconds, Passes);
    EXPECT_TRUE(host.MessageBoxes.empty());
    for (const auto& [x, slope] : slopes) {
      EXPECT_EQ(shown.at(static_cast<std::size_t>(std::lround((x + 12) * 1000))), slope) << x;
    }
  }
  EXPECT_EQ(State(), "|| kept unkept");
  ASSERT_EQ(onKept.size(), 2 * Passes);
  for (std::size_t pass = 0; pass < Passes; pass += 500) {
    const forms::DrawingOperation& line = onKept[2 * pass];
    EXPECT_NEAR(std::hypot(line.X2 - line.X1, line.Y2 - line.Y1), 10, 1e-4);
    EXPECT_NEAR((line.X1 + line.X2) / 2, -12 + 0.001 * static_cast<double>(pass), 1e-4);
    for (const int mode : {forms::NotMergePen, forms::InvertPixel}) {
      EXPECT_EQ(Told(onKept[2 * pass + (mode == forms::InvertPixel)]),
                Told({Kind::Line, line.X1, line.Y1, line.X2, line.Y2, forms::Black, mode}));
    }
  }
}

}  // namespace
}  // namespace clinorama::tests
