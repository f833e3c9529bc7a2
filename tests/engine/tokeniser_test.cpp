#include "engine/tokeniser.h"

#include <string>
#include <tuple>
#include <utility>

#include "base/failure.h"
#include "engine/text.h"
#include "tests/engine/outcome.h"
#include "tests/support/failure_of.h"

namespace clinorama::tests {
namespace {

// The tokens with bars between them, a comma as a dot, and the order of the visits.
std::string Interpreted(const std::string& text) {
  const engine::Analysis analysis = engine::Interpretar(text);
  std::string shown;
  for (const auto& [kind, token] : analysis.Simbolos) {
    shown += (shown.empty() ? "" : "|") + (kind == engine::TokenKind::Comma ? "." : token);
  }
  for (const std::int32_t position : analysis.OrdemAvaliacao) {
    shown += ' ' + std::to_string(position);
  }
  return shown;
}

TEST(Tokeniser, TakesTextsApartAndOrdersTheVisits) {
  const std::pair<const char*, const char*> rows[] = {
      {"5sen(2x)", "5|*|sen(|2|*|x|) 6 5 3 7 2"},
      {"1,7x", "1|.|7|*|x 5 4"},
      {"-x^2", "~|x|^|2 2 3 1"},
      {"(-1)-x-1", "(|~|1|)|-|x|-|1 2 1 4 6 5 7"},
      {"max(-1,-2)", "max(|~|1|.|~|2|) 2 5 1 7"},
      {"~[s e{né\xFF] (_x)", "sen(|_x|) 2 1 3"},
      {"2(x+1)", "2|*|(|x|+|1|) 4 5 3 7 2"},
      {"1e5", "1|*|e5 3 2"},
      {")(", ")|("},
      {"x)+(y", "x|)|+|(|y 1 5"},
      {"1+2*3^4%5\\6", "1|+|2|*|3|^|4|%|5|\\|6 6 4 10 8 2"},
      {"((x))(1)", "(|(|x|)|)|(|1|) 3 2 4 1 5 6 8"},
      {"az*AZ^09", "az|*|AZ|^|09 1 3 4 2"},
  };
  for (const auto& [text, interpreted] : rows) {
    EXPECT_EQ(Interpreted(text), interpreted) << text;
  }
}

TEST(Tokeniser, RejectsOnlyAWrongCountAndWhatItsCountersCannotHold) {
  const auto nested = [](int depth) { return Repeated("(", depth) + "1" + Repeated(")", depth); };
  const std::tuple<const char*, std::string, int> rows[] = {
      {"open", "(x", base::WrongParentheses},
      {"close", "x)", base::WrongParentheses},
      {"longest text of skipped characters, which have several bytes", Repeated("é", 32767), 0},
      {"too long before the count", Repeated("é", 32768) + "(", base::Overflow},
      {"most tokens", Repeated("2x+", 8191) + "2x", 0},
      {"too many tokens", Repeated("2x+", 8192), base::Overflow},
      {"deepest", nested(4680), 0},
      {"too deep", nested(4681), base::Overflow},
      {"deepest below", Repeated(")", 4681) + Repeated("(", 4681), 0},
      {"too deep below", Repeated(")", 4682) + Repeated("(", 4682), base::Overflow},
  };
  for (const auto& [name, text, failure] : rows) {
    EXPECT_EQ(FailureOf([&, &of = text] { Interpreted(of); }), failure) << name;
  }
}

TEST(Text, LowersAsciiAndAccentedLatinLettersOnly) {
  EXPECT_EQ(engine::LowerCase("SEN(AZ)_[@`{"), "sen(az)_[@`{");
  EXPECT_EQ(engine::LowerCase("ÀÁÉÇÕÞ×÷ß"), "àáéçõþ×÷ß");
  EXPECT_EQ(engine::LowerCase("ĀĶĸĹŇŉŊŶŸŹŽſĂŐÿİ"), "āķĸĺňŉŋŷÿźžſăőÿİ");
  EXPECT_EQ(engine::LowerCase("\xC3\xFFX\xE2\x82"), "\xC3\xFFx\xE2\x82");
}

TEST(Text, TellsCharactersOfSeveralBytes) {
  EXPECT_EQ(engine::CharacterLength("é", 0), 2);
  EXPECT_EQ(engine::CharacterLength("x\u0800", 1), 3);
  EXPECT_EQ(engine::CharacterLength("\U00010000", 0), 4);
  // Overlong spellings, a surrogate, a code above the last plane, and characters that are cut.
  for (const char* bytes : {"\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
                            "\xF4\x90\x80\x80", "\xC3", "\xE2\x82x"}) {
    EXPECT_EQ(engine::CharacterLength(bytes, 0), 1) << bytes;
  }
}

}  // namespace
}  // namespace clinorama::tests
