#include "base/number_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <utility>

#include "base/counted_loop.h"
#include "tests/support/failure_of.h"

namespace clinorama::tests {
namespace {

TEST(NumberText, IsTheSameOnEveryMachine) {
  struct OddMark : std::numpunct<char> {
    char do_decimal_point() const override { return ';'; }
  };
  std::locale::global(std::locale(std::locale::classic(), new OddMark));
  std::setlocale(LC_ALL, "pt_PT.UTF-8");  // has no effect where the system lacks it
  const std::pair<double, const char*> numbers[] = {
      {-0.0, "0"}, {0.1 + 0.2, "0,3"}, {-1.0 / 3, "-0,333333333333333"}, {1e20, "1E+20"}};
  for (const auto& [value, text] : numbers) {
    EXPECT_EQ(base::NumberText(value), text);
    EXPECT_NEAR(base::NumberFrom(text), value, 1e-15);
  }
  std::locale::global(std::locale::classic());
}

TEST(NumberText, IsPrintedWithBlanksAroundIt) {
  EXPECT_EQ(base::PrintedNumber(0), " 0 ");
  EXPECT_EQ(base::PrintedNumber(-3.5), "-3,5 ");
  EXPECT_EQ(base::TwoDigits(9) + base::TwoDigits(10), "0910");
}

TEST(NumberText, IsReadWithBlanksAround) {
  for (const char* text : {"  0,02 ", ",02", "+0,02", "2E-2", "2,e-2"}) {
    EXPECT_EQ(base::NumberFrom(text), 0.02) << text;
  }
  for (const char* text :
       {"", "  ", "x", "1x", "1.5", "1 2", ",", "1,2,3", "-", "--1", "1e", "0x1", "inf", "1+1"}) {
    EXPECT_EQ(FailureOf([&] { base::NumberFrom(text); }), 13) << text;
  }
  EXPECT_EQ(FailureOf([] { base::NumberFrom("-1E400"); }), 6);
}

TEST(Round, BringsTiesToTheEvenNeighbour) {
  EXPECT_EQ(base::Round(0.125, 2), 0.12);
  EXPECT_EQ(base::Round(0.375, 2), 0.38);
  EXPECT_EQ(base::Round(1e307, 4), 1e307) << "the scaled value is beyond all reals";
}

TEST(CountedLoop, LetsRoundingDecideOnTheLastPass) {
  int passes = 0;
  const auto count = [&passes](double) { ++passes; };
  base::CountedLoop(-12, 12, 0.0005, count);
  EXPECT_EQ(passes, 48000);
  base::CountedLoop(0, 1, 0.5, count);
  EXPECT_EQ(passes, 48000 + 3);
  base::CountedLoop(1, 0, -0.5, count);
  EXPECT_EQ(passes, 48000 + 6);
}

}  // namespace
}  // namespace clinorama::tests
