#include "engine/tokeniser.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

#include "base/failure.h"
#include "engine/text.h"

namespace clinorama::engine {

using namespace base;

namespace {

// What a pair of parentheses adds to the priority of all tokens inside. No rank is higher, so a
// token inside always comes before one outside.
constexpr int LevelStep = 7;

// The rank of a kind within its depth. `^` binds tighter than the unary minus, which binds tighter
// than `*`, `/` and `\`; `%` stands between those and `+`, `-`.
constexpr int Rank(TokenKind kind) {
  switch (kind) {
    case TokenKind::Add:
    case TokenKind::Subtract:
      return 1;
    case TokenKind::Remainder:
      return 2;
    case TokenKind::Multiply:
    case TokenKind::Divide:
    case TokenKind::IntegerDivide:
      return 3;
    case TokenKind::Negate:
      return 4;
    case TokenKind::Power:
      return 5;
    case TokenKind::Name:
      return 6;
    case TokenKind::Open:
    case TokenKind::Function:
      return LevelStep;
    case TokenKind::Close:
    case TokenKind::Numeral:
    case TokenKind::Comma:
      break;
  }
  return 0;
}

// The binary operators.
constexpr struct {
  char Character;
  TokenKind Kind;
} Operators[] = {
    {'+', TokenKind::Add},    {'-', TokenKind::Subtract},       {'*', TokenKind::Multiply},
    {'/', TokenKind::Divide}, {'\\', TokenKind::IntegerDivide}, {'%', TokenKind::Remainder},
    {'^', TokenKind::Power},
};

// A counter of 16 bits. A text that is too long or too deep makes it overflow.
int Limited(int count) {
  if (count > std::numeric_limits<std::int16_t>::max() ||
      count < std::numeric_limits<std::int16_t>::min()) {
    Raise(Overflow);
  }
  return count;
}

// The scan of a text, character by character.
class Scanner {
 public:
  Analysis Scan(std::string_view expressao) {
    int position = 0;
    for (std::size_t at = 0; at < expressao.size();) {
      const std::size_t length = CharacterLength(expressao, at);
      position = Limited(position + 1);
      if (length == 1) {  // characters of more bytes are skipped
        Character(expressao[at]);
      }
      at += length;
    }
    Flush();
    if (nivel_ != 0) {
      Raise(WrongParentheses);
    }
    return {std::move(simbolos_), Order()};
  }

 private:
  enum class Kind { None, Name, Numeral };  // of the token that is being collected

  void Character(char c) {
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_') {
      Letter(c);
    } else if ((c >= '0' && c <= '9') || c == '.') {
      Digit(c == '.' ? ',' : c);
    } else {
      Sign(c);
    }
  }

  void Letter(char c) {
    if (tipo_ == Kind::Numeral) {
      Flush();
      Store(TokenKind::Multiply, "*");
    }
    tipo_ = Kind::Name;
    texto_ += c;
    depoisDeValor_ = true;
  }

  void Digit(char c) {
    if (tipo_ == Kind::None) {
      tipo_ = Kind::Numeral;
    }
    texto_ += c;  // behind a name it belongs to the name, and so does a comma
    depoisDeValor_ = true;
  }

  void Sign(char c) {
    if (c == '(') {
      Opening();
    } else if (c == ')') {
      Closing();
    } else if (c == ',') {
      Operator(TokenKind::Comma, "");
    } else if (c == '-' && !depoisDeValor_) {
      Operator(TokenKind::Negate, "~");
    } else {
      for (const auto& row : Operators) {
        if (row.Character == c) {
          Operator(row.Kind, std::string(1, c));
        }
      }
    }
  }

  void Opening() {
    if (tipo_ == Kind::Name) {
      tipo_ = Kind::None;
      Store(TokenKind::Function, std::exchange(texto_, {}) + "(");
    } else {
      if (tipo_ == Kind::Numeral) {
        Flush();
        Store(TokenKind::Multiply, "*");
      }
      Store(TokenKind::Open, "(");
    }
    depoisDeValor_ = false;
    nivel_ = Limited(nivel_ + LevelStep);
    Limited(nivel_ + LevelStep);  // the next depth must fit too, even if it is not used
  }

  void Closing() {
    Flush();
    Store(TokenKind::Close, ")");
    nivel_ = Limited(nivel_ - LevelStep);
    depoisDeValor_ = true;
  }

  void Operator(TokenKind kind, std::string text) {
    Flush();
    Store(kind, std::move(text));
    depoisDeValor_ = false;
  }

  // Stores the name or numeral that is being collected, if there is one.
  void Flush() {
    if (tipo_ != Kind::None) {
      const TokenKind kind = tipo_ == Kind::Name ? TokenKind::Name : TokenKind::Numeral;
      tipo_ = Kind::None;
      Store(kind, std::exchange(texto_, {}));
    }
  }

  void Store(TokenKind kind, std::string text) {
    Limited(static_cast<int>(simbolos_.size()) + 1);
    simbolos_.push_back({kind, std::move(text)});
    const bool isValue = kind == TokenKind::Numeral || kind == TokenKind::Comma;
    prioridades_.push_back(isValue ? 0 : nivel_ + Rank(kind));
  }

  std::vector<std::int32_t> Order() const {
    std::vector<std::int32_t> order;
    for (std::size_t i = 0; i < prioridades_.size(); ++i) {
      if (prioridades_[i] > 0) {
        order.push_back(static_cast<std::int32_t>(i) + 1);
      }
    }
    const auto priority = [this](std::int32_t p) {
      return prioridades_[static_cast<std::size_t>(p) - 1];
    };
    std::stable_sort(order.begin(), order.end(),
                     [&](std::int32_t a, std::int32_t b) { return priority(a) > priority(b); });
    return order;
  }

  std::vector<Simbolo> simbolos_;
  std::vector<int> prioridades_;
  std::string texto_;  // of the token that is being collected
  Kind tipo_ = Kind::None;
  int nivel_ = 0;               // added to each priority; below 0 behind a surplus ")"
  bool depoisDeValor_ = false;  // a value stands before, so a "-" is binary
};

}  // namespace

Analysis Interpretar(std::string_view expressao) { return Scanner().Scan(expressao); }

}  // namespace clinorama::engine
