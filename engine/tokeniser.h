#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace clinorama::engine {

// What a token is. The evaluation asks for the kind and never for the text.
enum class TokenKind : std::uint8_t {
  Numeral,
  Comma,
  Add,
  Subtract,
  Remainder,
  Multiply,
  Divide,
  IntegerDivide,
  Negate,
  Power,
  Name,
  Open,      // "(" alone
  Function,  // a name and its "("
  Close,
};

// One cell of the expression.
struct Simbolo {
  TokenKind kind;
  std::string text;  // as it appears in messages; a function's ends in "(", a comma's is empty
};

// An expression text taken apart. There is no tree: the tokens stay in a row, and the order says
// which of them acts first on its neighbours.
struct Analysis {
  std::vector<Simbolo> simbolos;
  // 1-based positions in `simbolos`, the highest priority first and equal ones from left to right.
  // Numerals, commas and what stands behind a surplus ")" need no visit and are not listed. An
  // opening token is always followed by the ")" that closes it.
  std::vector<std::int32_t> ordemAvaliacao;
};

// Takes a lower-case text apart. Nothing malformed is rejected here but a wrong count of
// parentheses (`WrongParentheses`); a text, a depth or a number of tokens that the 16-bit counters
// cannot hold is an `Overflow`.
Analysis Interpretar(std::string_view expressao);

}  // namespace clinorama::engine
