#include "base/failure.h"

namespace clinorama::base {

namespace {

// The texts of 1101, 1102 and 1104 are followed by a part of the expression.
constexpr struct {
  int number;
  const char* description;
} Descriptions[] = {
    {InvalidArgument, "Argumento inválido."},
    {Overflow, "Excesso de capacidade."},
    {IndexOutOfRange, "Índice fora dos limites."},
    {DivisionByZero, "Divisão por zero."},
    {TypeMismatch, "Tipos incompatíveis."},
    {WrongParentheses, "Número de parênteses incorrecto."},
    {UndefinedFunction, "Função não definida: "},
    {UndefinedVariable, "Variável não definida: "},
    {InvalidExpression, "Expressão inválida"},
    {NoArgument, "Argumento inválido na expressão: "},
};

const char* DescriptionOf(int number) {
  for (const auto& row : Descriptions) {
    if (row.number == number) {
      return row.description;
    }
  }
  return "";
}

}  // namespace

Failure::Failure(int number) : Failure(number, DescriptionOf(number)) {}

void Raise(int number) { throw Failure(number); }

}  // namespace clinorama::base
