// The manual teaches the language of expressions. These tests hold its pages against the engine:
// the functions that they describe, the expressions that they give as examples, and what they say
// that comes of them. The last test holds the words of the lesson.

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <utility>
#include <vector>

#include "base/counted_loop.h"
#include "base/number_text.h"
#include "engine/functions.h"
#include "tests/engine/outcome.h"

namespace clinorama::tests {
namespace {

const std::filesystem::path Resources = CLINORAMA_RESOURCES;

std::string Contents(const std::filesystem::path& file) {
  std::ifstream stream(Resources / file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The source of a page in one line, without its comments.
std::string SourceOf(const std::filesystem::path& file) {
  const std::string source = std::regex_replace(Contents(file), std::regex("(^|\n)//[^\n]*"), "$1");
  return std::regex_replace(source, std::regex("[ ~\n]+"), " ");
}

using Match =
    std::pair<std::string, std::vector<std::string>>;  // page, as "funcoes_07", and groups

// All that matches a pattern in the sources of the manual.
std::vector<Match> Matches(const std::string& pattern) {
  const std::regex regex(pattern);
  std::vector<Match> matches;
  for (const auto& entry : std::filesystem::directory_iterator(Resources / "manual")) {
    if (entry.path().extension() != ".typ") {
      continue;
    }
    const std::string source = SourceOf(entry.path());
    for (std::sregex_iterator match(source.begin(), source.end(), regex), end; match != end;
         ++match) {
      matches.push_back({entry.path().stem().string(), {match->begin(), match->end()}});
    }
  }
  return matches;
}

bool InLibrary(const std::string& name) { return engine::FindFunction(name + "(") != nullptr; }

bool HasLine(const std::string& file, const std::string& line) {
  return ("\n" + Contents(file)).find("\n" + line) != std::string::npos;
}

Outcome Evaluate(const std::string& expression, double x) {
  clsEquation equation;
  equation.Equation(expression);
  equation.Var("x", x);
  return OutcomeOf(equation);
}

// Each is described under its name and stands in the list with the number of its page.
TEST(ManualFunctions, AreThoseOfTheLibraryAndAreListedWithTheirPages) {
  const std::vector<Match> matches = Matches(R"re(#funcao\( ?"([^"]*)")re");
  EXPECT_EQ(matches.size(), 39u);
  for (const auto& [page, groups] : matches) {
    const std::string& name = groups[1];
    SCOPED_TRACE(name);
    EXPECT_TRUE(InLibrary(name));
    EXPECT_TRUE(HasLine("manual/" + page + ".txt", name + " "));
    const int number = std::stoi(page.substr(page.find('_') + 1));
    EXPECT_TRUE(HasLine("manual/funcoes_02.txt", name + " " + std::to_string(number) + "\n"));
  }
}

// An example stands between backquotes or in a line of its own; names and signs may stand there
// too. A function has to show something on its page, a number just to have a value.
TEST(ManualExamples, PlotOverTheWholeRangeOfTheirPage) {
  const std::regex variable("(^|[^a-z])x([^a-z]|$)", std::regex::icase);
  const std::regex relations("instrucoes_1[3-9]|comentarios_(07|10)");
  int examples = 0;
  for (const auto& [page, groups] : Matches(R"re(`([^`]+)`|#escreva\("([^"]+)"\))re")) {
    const std::string example = groups[1] + groups[2];
    if (example.find_first_of("xX0123456789") == std::string::npos || InLibrary(example)) {
      continue;
    }
    SCOPED_TRACE(testing::Message() << page << ": " << example);
    // Some pages are about the graph of the relations page, the others about that of the work page.
    const double bound = std::regex_match(page, relations) ? 8 : 12;
    const bool function = std::regex_search(example, variable);
    bool shown = false;
    clsEquation equation;
    equation.Equation(example);
    EXPECT_NO_THROW(base::CountedLoop(-bound, bound, 0.0005, [&](double x) {
      equation.Var("x", x);
      equation.Solve();
      const double y = equation.Solution();
      shown |= function ? std::fabs(y) < bound : y != clsEquation::ForaDoDominio;
    }));
    EXPECT_TRUE(shown);
    ++examples;
  }
  EXPECT_GT(examples, 200);
}

// Each large picture of the examples window names its expression, and the manual lists them.
TEST(ManualExamples, ListThoseOfTheExamplesWindow) {
  for (int number = 1; number <= 6; ++number) {
    const std::string picture = Contents("examples/exemplo_" + std::to_string(number) + ".svg");
    std::smatch name;
    ASSERT_TRUE(std::regex_search(picture, name, std::regex(">([^<]+)</text>"))) << number;
    EXPECT_NE(SourceOf("manual/instrucoes_09.typ").find("`" + name[1].str() + "`"),
              std::string::npos)
        << name[1];
  }
}

// `7/2` = 3,5 is the very value; `sqr(2)` ≈ 1,4142 is rounded, to four decimals or more.
TEST(ManualExamples, HaveTheValuesThatThePagesGive) {
  const std::vector<Match> matches = Matches(R"re(`([^`]+)` (=|≈) (-?[0-9]+(?:,([0-9]+))?))re");
  EXPECT_GT(matches.size(), 80u);
  for (const auto& [page, groups] : matches) {
    const double expected = base::NumberFrom(groups[3]);
    const double places = std::max(4.0, static_cast<double>(groups[4].size()));
    const double error =
        groups[2] == "=" ? 1e-14 * std::fabs(expected) : 0.5 * std::pow(10, -places);
    EXPECT_NEAR(Evaluate(groups[1], 2).Value, expected, error) << page << ": " << groups[1];
  }
}

TEST(ManualExamples, RaiseTheErrorsThatThePagesGive) {
  const std::vector<Match> matches =
      Matches(R"re(errado\("([^"]*)"\),? (?:que )?(?:dá|aparece)(?: o erro)? «(.*?)\.?»)re");
  EXPECT_GT(matches.size(), 15u);
  for (const auto& [page, groups] : matches) {
    const std::string wrong = std::regex_replace(groups[1], std::regex(R"(\\\\)"), "\\");
    const std::string error = Evaluate(wrong, 2).Error;  // with its number in front
    EXPECT_NE(error.find(" " + groups[2]), error.npos) << page << ": " << wrong << ": " << error;
  }
}

// Whole lines as a screen reader gets them, among them the lesson's own slips.
TEST(Lesson, HasItsWordsBesideThePictures) {
  const std::pair<std::string, std::string> rows[] = {
      {"definicao", "f'(a) = lim (x→a) (f(x) - f(a))/(x - a)"},
      {"pagina_19", "Porém, existem clinorama laterais:"},
      {"pagina_28", "- um ponto de reversão se as clinorama laterais"},
      {"pagina_30", "O ponto a é um ponto de anguloso."},
  };
  for (const auto& [page, line] : rows) {
    EXPECT_TRUE(HasLine("lesson/" + page + ".txt", line + "\n")) << line;
  }
}

}  // namespace
}  // namespace clinorama::tests
