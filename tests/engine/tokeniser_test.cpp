#include "engine/tokeniser.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/failure.h"
#include "engine/text.h"
#include "tests/support/failure_of.h"

namespace clinorama::tests {
namespace {

using engine::Analysis;
using engine::Interpretar;
using Order = std::vector<std::int32_t>;

// The tokens with bars between them; the null cell of a comma is a dot.
std::string Tokens(const Analysis& analysis) {
  std::string text;
  for (const engine::Simbolo& simbolo : analysis.simbolos) {
    text += text.empty() ? "" : "|";
    text += simbolo.kind == engine::TokenKind::Comma ? "." : simbolo.text;
  }
  return text;
}

TEST(Tokeniser, TakesTextsApartAndOrdersTheVisits) {
  const struct {
    std::string text;
    std::string tokens;
    Order order;
  } rows[] = {
      {"5sen(2x)", "5|*|sen(|2|*|x|)", {6, 5, 3, 7, 2}},
      {"1,7x", "1|.|7|*|x", {5, 4}},
      {"1.7x", "1,7|*|x", {3, 2}},
      {"-x^2", "~|x|^|2", {2, 3, 1}},
      {"2^-1", "2|^|~|1", {2, 3}},
      {"(-1)", "(|~|1|)", {2, 1, 4}},
      {"x-1", "x|-|1", {1, 2}},
      {"(x)-1", "(|x|)|-|1", {2, 1, 3, 4}},
      {"2*-3", "2|*|~|3", {3, 2}},
      {"max(-1,-2)", "max(|~|1|.|~|2|)", {2, 5, 1, 7}},
      {"+3", "+|3", {1}},
      {"x.5", "x,5", {1}},
      {"log10(x)", "log10(|x|)", {2, 1, 3}},
      {"sen ( x )", "sen(|x|)", {2, 1, 3}},
      {"1 2   3 4", "1234", {}},
      {"s e n (x)", "sen(|x|)", {2, 1, 3}},
      {"~[x{é\xFF]", "x", {1}},
      {"sén(x)", "sn(|x|)", {2, 1, 3}},
      {"2(x+1)", "2|*|(|x|+|1|)", {4, 5, 3, 7, 2}},
      {"2pix", "2|*|pix", {3, 2}},
      {"1e5", "1|*|e5", {3, 2}},
      {"_a", "_a", {1}},
      {")(", ")|(", {}},
      {"x)+(y", "x|)|+|(|y", {1, 5}},
      {"1+2*3^4%5\\6", "1|+|2|*|3|^|4|%|5|\\|6", {6, 4, 10, 8, 2}},
      {"((x))(1)", "(|(|x|)|)|(|1|)", {3, 2, 4, 1, 5, 6, 8}},
      {"", "", {}},
      {" ~é", "", {}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    const Analysis analysis = Interpretar(row.text);
    EXPECT_EQ(Tokens(analysis), row.tokens);
    EXPECT_EQ(analysis.ordemAvaliacao, row.order);
  }
}

std::string Repeated(const std::string& part, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) {
    text += part;
  }
  return text;
}

std::string Nested(int depth) { return Repeated("(", depth) + "1" + Repeated(")", depth); }

TEST(Tokeniser, RejectsOnlyAWrongCountAndWhatItsCountersCannotHold) {
  const struct {
    const char* name;
    std::string text;
    int failure;
  } rows[] = {
      {"open", "(x", base::WrongParentheses},
      {"close", "x)", base::WrongParentheses},
      {"longest text", Repeated("1", 32767), 0},
      {"too long", Repeated("1", 32768), base::Overflow},
      {"a skipped character counts once, however many bytes it has", Repeated("é", 32767), 0},
      {"too long with skipped ones", Repeated("é", 32768), base::Overflow},
      {"too long before the count", Repeated(" ", 32768) + "(", base::Overflow},
      {"most tokens", Repeated("2x+", 8191) + "2x", 0},
      {"too many tokens", Repeated("2x+", 8192), base::Overflow},
      {"deepest", Nested(4680), 0},
      {"too deep", Nested(4681), base::Overflow},
      {"deepest below", Repeated(")", 4681) + Repeated("(", 4681), 0},
      {"too deep below", Repeated(")", 4682) + Repeated("(", 4682), base::Overflow},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(FailureOf([&] { Interpretar(row.text); }), row.failure) << row.name;
  }
}

TEST(Text, LowersAsciiAndAccentedLatinLettersOnly) {
  EXPECT_EQ(engine::LowerCase("SEN(X)_Z[@"), "sen(x)_z[@");
  EXPECT_EQ(engine::LowerCase("ÁÉÇÕÀÞŸŽŐ×÷ß"), "áéçõàþÿžő×÷ß");
  EXPECT_EQ(engine::LowerCase("\xC3\xFFX\xE2\x82"), "\xC3\xFFx\xE2\x82");
  EXPECT_EQ(engine::LowerCase("\xE2\x82\xACX\xF0\x9F\x98\x80Y"), "\xE2\x82\xACx\xF0\x9F\x98\x80y");
}

}  // namespace
}  // namespace clinorama::tests
