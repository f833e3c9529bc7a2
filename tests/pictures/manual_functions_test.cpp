// The manual teaches the language of expressions. These tests hold its pages against the engine:
// the functions that they describe, the expressions that they give as examples, and what they say
// that comes of them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "engine/clsEquation.h"
#include "engine/functions.h"

namespace clinorama::tests {
namespace {

const std::filesystem::path Manual = std::filesystem::path(CLINORAMA_RESOURCES) / "manual";

std::string Contents(const std::string& name) {
  std::ifstream stream(Manual / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The source of a page in one line, without its comments.
std::string SourceOf(const std::string& name) {
  std::string source = std::regex_replace(Contents(name), std::regex("(^|\n)//[^\n]*"), "$1");
  return std::regex_replace(source, std::regex("[ ~\n]+"), " ");
}

std::vector<std::string> Pages() {
  std::vector<std::string> pages;
  for (const auto& entry : std::filesystem::directory_iterator(Manual)) {
    if (entry.path().extension() == ".typ") {
      pages.push_back(entry.path().filename().string());
    }
  }
  return pages;
}

std::vector<std::smatch> Found(const std::string& source, const std::string& pattern) {
  const std::regex regex(pattern);
  return {std::sregex_iterator(source.begin(), source.end(), regex), {}};
}

bool InLibrary(const std::string& name) { return engine::FindFunction(name + "(") != nullptr; }

struct Outcome {
  std::optional<double> value;  // nothing: an error, or a point outside the domain
  std::string error;
};

Outcome Evaluate(const std::string& expression, double x) {
  clsEquation equation;
  equation.Equation(expression);
  equation.Var("x", x);
  try {
    equation.Solve();
    if (equation.Solution() == clsEquation::ForaDoDominio) {
      return {};
    }
    return {equation.Solution(), ""};
  } catch (const ErroInterpretador& error) {
    return {{}, error.Description()};
  }
}

struct Entry {
  const char* name;
  int page;
};

constexpr Entry Taught[] = {
    {"abs", 3},     {"arccos", 3},   {"arccosec", 4}, {"arccosech", 4}, {"arccosh", 5},
    {"arccotg", 5}, {"arccotgh", 6}, {"arcsec", 6},   {"arcsech", 7},   {"arcsen", 7},
    {"arcsenh", 8}, {"arctg", 8},    {"arctgh", 9},   {"cos", 9},       {"cosec", 10},
    {"cosech", 10}, {"cosh", 11},    {"cotg", 11},    {"cotgh", 12},    {"exp", 12},
    {"fix", 13},    {"int", 13},     {"ln", 14},      {"log", 14},      {"log2", 15},
    {"log10", 15},  {"logn", 16},    {"mant", 17},    {"max", 17},      {"min", 18},
    {"mod", 19},    {"sec", 20},     {"sech", 20},    {"sen", 21},      {"senh", 21},
    {"sgn", 22},    {"sqr", 22},     {"tg", 23},      {"tgh", 23},
};

std::string NameOfPage(int page) {
  return (page < 10 ? "funcoes_0" : "funcoes_") + std::to_string(page);
}

TEST(ManualFunctions, AreDescribedAndListedWithTheirPages) {
  const std::string list = "\n" + Contents("funcoes_02.txt");
  for (const auto& [name, page] : Taught) {
    SCOPED_TRACE(name);
    EXPECT_TRUE(InLibrary(name));
    const std::string words = "\n" + Contents(NameOfPage(page) + ".txt");
    EXPECT_NE(words.find("\n" + std::string(name) + " "), std::string::npos) << page;
    EXPECT_NE(list.find("\n" + std::string(name) + " " + std::to_string(page) + "\n"),
              std::string::npos);
  }
}

TEST(ManualFunctions, AllHaveTheirNamesFromTheLibrary) {
  std::size_t entries = 0;
  for (const std::string& page : Pages()) {
    const std::string source = SourceOf(page);
    for (const std::smatch& entry : Found(source, R"re(#funcao\( ?"([^"]*)")re")) {
      EXPECT_TRUE(InLibrary(entry[1])) << page << ": " << entry[1];
      ++entries;
    }
  }
  EXPECT_EQ(entries, std::size(Taught));
}

// An example stands between backquotes; names and signs may stand there too.
TEST(ManualExamples, HaveAValueSomewhere) {
  int examples = 0;
  for (const std::string& page : Pages()) {
    const std::string source = SourceOf(page);
    for (const std::smatch& raw : Found(source, "`([^`]+)`")) {
      const std::string example = raw[1];
      if (example.find_first_of("xX0123456789") == std::string::npos || InLibrary(example)) {
        continue;
      }
      bool hasValue = false;
      for (const double x : {2.0, 0.5, -0.5, 5.0}) {
        hasValue = hasValue || Evaluate(example, x).value.has_value();
      }
      EXPECT_TRUE(hasValue) << page << ": " << example << " " << Evaluate(example, 2).error;
      ++examples;
    }
  }
  EXPECT_GT(examples, 200);
}

// `7/2` = 3,5 is the very value; `sqr(2)` ≈ 1,4142 is rounded, to four decimals or more.
TEST(ManualExamples, HaveTheValuesThatThePagesGive) {
  int values = 0;
  for (const std::string& page : Pages()) {
    const std::string source = SourceOf(page);
    for (const std::smatch& row :
         Found(source, R"re(`([^`]+)` (=|≈) (-?[0-9]+)(?:,([0-9]+))?)re")) {
      const std::string example = row[1];
      const std::string decimals = row[4];
      double expected = 0;
      std::istringstream(row[3].str() + "." + decimals) >> expected;
      const double places = std::max(4.0, static_cast<double>(decimals.size()));
      const double error =
          row[2] == "=" ? 1e-14 * std::fabs(expected) : 0.5 * std::pow(10, -places);
      const std::optional<double> value = Evaluate(example, 2).value;
      ASSERT_TRUE(value.has_value()) << page << ": " << example;
      EXPECT_NEAR(*value, expected, error) << page << ": " << example;
      ++values;
    }
  }
  EXPECT_GT(values, 80);
}

TEST(ManualExamples, RaiseTheErrorsThatThePagesGive) {
  int errors = 0;
  const auto withoutStop = [](std::string text) {
    if (!text.empty() && text.back() == '.') {
      text.pop_back();
    }
    return text;
  };
  for (const std::string& page : Pages()) {
    const std::string source = SourceOf(page);
    for (const std::smatch& row : Found(
             source, R"re(errado\("([^"]*)"\),? (?:que )?(?:dá|aparece)(?: o erro)? «(.*?)»)re")) {
      const std::string wrong = std::regex_replace(row[1].str(), std::regex(R"(\\\\)"), "\\");
      EXPECT_EQ(withoutStop(Evaluate(wrong, 2).error), withoutStop(row[2]))
          << page << ": " << wrong;
      ++errors;
    }
  }
  EXPECT_GT(errors, 15);
}

}  // namespace
}  // namespace clinorama::tests
