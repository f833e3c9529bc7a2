#include "engine/failure.h"

#include <utility>

namespace clinorama::engine {

std::string DescriptionOf(int number) {
  switch (number) {
    case InvalidArgument:
      return "Argumento inválido.";
    case Overflow:
      return "Excesso de capacidade.";
    case DivisionByZero:
      return "Divisão por zero.";
    case WrongParentheses:
      return "Número de parênteses incorrecto.";
    default:
      return "Expressão inválida";
  }
}

void Raise(int number) { throw Failure{number, DescriptionOf(number)}; }

void Raise(int number, std::string description) { throw Failure{number, std::move(description)}; }

}  // namespace clinorama::engine
