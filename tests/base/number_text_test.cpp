#include "base/number_text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <string>
#include <utility>

#include "tests/support/failure_of.h"

namespace clinorama::tests {
namespace {

void ExpectTexts() {
  const std::pair<double, const char*> numbers[] = {
      {-0.0, "0"},        {0.5, "0,5"},
      {-2, "-2"},         {0.1 + 0.2, "0,3"},
      {1234.5, "1234,5"}, {1.0 / 3, "0,333333333333333"},
      {1e20, "1E+20"},    {123456789012345, "123456789012345"}};
  for (const auto& [value, text] : numbers) {
    EXPECT_EQ(base::NumberText(value), text);
    EXPECT_NEAR(base::NumberFrom(text), value, 1e-15);
  }
}

TEST(NumberText, IsTheSameOnEveryMachine) {
  struct OddMarks : std::numpunct<char> {
    char do_decimal_point() const override { return ';'; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };
  ExpectTexts();
  const auto before = std::locale::global(std::locale(std::locale::classic(), new OddMarks));
  ExpectTexts();
  std::locale::global(before);
  for (const char* name : {"pt_PT.UTF-8", "de_DE.UTF-8"}) {
    if (std::setlocale(LC_ALL, name) != nullptr) {
      ExpectTexts();
    }
  }
  std::setlocale(LC_ALL, "C");
}

TEST(NumberText, IsPrintedWithBlanksAroundIt) {
  EXPECT_EQ(base::PrintedNumber(0), " 0 ");
  EXPECT_EQ(base::PrintedNumber(-3.5), "-3,5 ");
}

TEST(NumberText, IsReadWithBlanksAround) {
  constexpr std::pair<double, const char*> texts[] = {{1, "  1 "}, {0.5, ",5"}, {-0.25, "-,25"},
                                                      {5, "+5"},   {3, "3,"},   {2e-3, "2E-3"}};
  for (const auto& [value, text] : texts) {
    EXPECT_EQ(base::NumberFrom(text), value) << text;
  }
}

TEST(NumberText, FailsOnAnyOtherText) {
  for (const char* text :
       {"", "  ", "x", "1x", "1.5", "1 2", ",", "1,2,3", "-", "--1", "1e", "0x1", "inf", "1+1"}) {
    EXPECT_EQ(FailureOf([&] { base::NumberFrom(text); }), 13) << text;
  }
  EXPECT_EQ(FailureOf([] { base::NumberFrom("-1E400"); }), 6);
}

TEST(Round, BringsTiesToTheEvenNeighbour) {
  EXPECT_EQ(base::Round(0.125, 2), 0.12);
  EXPECT_EQ(base::Round(0.375, 2), 0.38);
  EXPECT_EQ(base::Round(-2.5, 0), -2);
  EXPECT_EQ(base::Round(2.34567, 4), 2.3457);
  EXPECT_EQ(base::Round(1e307, 4), 1e307) << "the scaled value is beyond all reals";
}

}  // namespace
}  // namespace clinorama::tests
