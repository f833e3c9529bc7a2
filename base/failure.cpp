#include "base/failure.h"

namespace clinorama::base {

namespace {

// The part of the expression that failed follows the texts of 1101, 1102 and 1104.
constexpr struct {
  int Number;
  const char* Description;
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
    if (row.Number == number) {
      return row.Description;
    }
  }
  return "";
}

}  // namespace

Failure::Failure(int number) : Failure(number, DescriptionOf(number)) {}

void Raise(int number) { throw Failure(number); }

}  // namespace clinorama::base
