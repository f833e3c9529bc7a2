#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace clinorama::engine {

// The kind of a token, by which the evaluation tells what to do.
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
  TokenKind Kind;
  std::string Text;  // as shown in messages; of a function with its "(", of a comma empty
};

// The tokens of an expression in the order of the text, and the order in which they are visited.
struct Analysis {
  std::vector<Simbolo> Simbolos;
  // 1-based positions in `Simbolos`, the highest priority first and equal ones from left to right.
  // Numerals, commas and what stands behind a surplus ")" need no visit and are not listed. An
  // opening token is always followed by the ")" that closes it.
  std::vector<std::int32_t> OrdemAvaliacao;
};

// Takes a text in lower case apart. A wrong count of parentheses is a `WrongParentheses`; a length,
// a depth or a number of tokens that a 16-bit counter cannot hold is an `Overflow`. Nothing else
// that is malformed is rejected here.
Analysis Interpretar(std::string_view expressao);

}  // namespace clinorama::engine
