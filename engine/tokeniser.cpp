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

// What parentheses add to the priority of all that is inside them: one more than the highest rank
// below, so that the ranks of two depths never mix.
constexpr int Degrau = 7;

// Rank of a kind within its depth. `^` binds tighter than the unary minus, which binds tighter
// than `*`, `/` and `\`; `%` stands between those and `+`, `-`.
constexpr int Posto(TokenKind kind) {
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
      return Degrau;
    case TokenKind::Close:
    case TokenKind::Numeral:
    case TokenKind::Comma:
      break;
  }
  return 0;
}

// A counter of 16 bits: leaving its range is the failure that a longer or deeper text ends in.
int Limited(int count) {
  if (count > std::numeric_limits<std::int16_t>::max() ||
      count < std::numeric_limits<std::int16_t>::min()) {
    Raise(Overflow);
  }
  return count;
}

// The scan of a text, character by character.
class Leitor {
 public:
  Analise Ler(std::string_view expressao) {
    int position = 0;
    for (std::size_t at = 0; at < expressao.size();) {
      const std::size_t length = CharacterLength(expressao, at);
      position = Limited(position + 1);
      if (length == 1) {  // every other character is skipped, so what it separates is joined
        Caracter(expressao[at]);
      }
      at += length;
    }
    Despejar();
    if (nivel_ != 0) {
      Raise(WrongParentheses);
    }
    return {std::move(simbolos_), Ordem()};
  }

 private:
  enum class Tipo { Nenhum, Nome, Numeral };

  void Caracter(char c) {
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_') {
      Letra(c);
    } else if ((c >= '0' && c <= '9') || c == '.') {
      Algarismo(c == '.' ? ',' : c);
    } else {
      Sinal(c);
    }
  }

  void Letra(char c) {
    if (tipo_ == Tipo::Numeral) {
      Despejar();
      Guardar(TokenKind::Multiply, "*");
    }
    tipo_ = Tipo::Nome;
    texto_ += c;
    depoisDeValor_ = true;
  }

  void Algarismo(char c) {
    if (tipo_ == Tipo::Nenhum) {
      tipo_ = Tipo::Numeral;
    }
    texto_ += c;  // behind a name it belongs to the name, a comma too
    depoisDeValor_ = true;
  }

  void Sinal(char c) {
    switch (c) {
      case '(':
        Abrir();
        break;
      case ')':
        Despejar();
        Guardar(TokenKind::Close, ")");
        nivel_ = Limited(nivel_ - Degrau);
        depoisDeValor_ = true;
        break;
      case ',':
        Operador(TokenKind::Comma, "");
        break;
      case '+':
        Operador(TokenKind::Add, "+");
        break;
      case '-':
        depoisDeValor_ ? Operador(TokenKind::Subtract, "-") : Operador(TokenKind::Negate, "~");
        break;
      case '*':
        Operador(TokenKind::Multiply, "*");
        break;
      case '/':
        Operador(TokenKind::Divide, "/");
        break;
      case '\\':
        Operador(TokenKind::IntegerDivide, "\\");
        break;
      case '%':
        Operador(TokenKind::Remainder, "%");
        break;
      case '^':
        Operador(TokenKind::Power, "^");
        break;
      default:
        break;
    }
  }

  void Abrir() {
    if (tipo_ == Tipo::Nome) {
      tipo_ = Tipo::Nenhum;
      Guardar(TokenKind::Function, std::exchange(texto_, {}) + "(");
    } else {
      if (tipo_ == Tipo::Numeral) {
        Despejar();
        Guardar(TokenKind::Multiply, "*");
      }
      Guardar(TokenKind::Open, "(");
    }
    depoisDeValor_ = false;
    nivel_ = Limited(nivel_ + Degrau);
    Limited(nivel_ + Degrau);  // the next depth must have a priority, even if nothing uses it
  }

  void Operador(TokenKind kind, const char* text) {
    Despejar();
    Guardar(kind, text);
    depoisDeValor_ = false;
  }

  // Stores the name or the numeral that is being collected, if there is one.
  void Despejar() {
    if (tipo_ != Tipo::Nenhum) {
      const TokenKind kind = tipo_ == Tipo::Nome ? TokenKind::Name : TokenKind::Numeral;
      tipo_ = Tipo::Nenhum;
      Guardar(kind, std::exchange(texto_, {}));
    }
  }

  void Guardar(TokenKind kind, std::string text) {
    Limited(static_cast<int>(simbolos_.size()) + 1);
    simbolos_.push_back({kind, std::move(text)});
    const bool isValue = kind == TokenKind::Numeral || kind == TokenKind::Comma;
    prioridades_.push_back(isValue ? 0 : nivel_ + Posto(kind));
  }

  std::vector<std::int32_t> Ordem() const {
    std::vector<std::int32_t> ordem;
    for (std::size_t i = 0; i < prioridades_.size(); ++i) {
      if (prioridades_[i] > 0) {
        ordem.push_back(static_cast<std::int32_t>(i) + 1);
      }
    }
    const auto priority = [this](std::int32_t p) {
      return prioridades_[static_cast<std::size_t>(p) - 1];
    };
    std::stable_sort(ordem.begin(), ordem.end(),
                     [&](std::int32_t a, std::int32_t b) { return priority(a) > priority(b); });
    return ordem;
  }

  std::vector<Simbolo> simbolos_;
  std::vector<int> prioridades_;
  std::string texto_;  // of the token being collected
  Tipo tipo_ = Tipo::Nenhum;
  int nivel_ = 0;  // priority offset of the current depth, below 0 behind a surplus ")"
  bool depoisDeValor_ = false;  // a value has just ended, so a "-" is binary
};

}  // namespace

Analise Interpretar(std::string_view expressao) { return Leitor().Ler(expressao); }

}  // namespace clinorama::engine
