#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "base/Module1.h"
#include "engine/clsEquation.h"

namespace clinorama::tests {

// A code that no operation writes. Where it is still there afterwards, nothing was written.
constexpr int Untouched = 99;

// What comes of a `Solve`: a value, a point outside the domain, or an error.
struct Outcome {
  double Value = 0;  // what `Solution` gives
  int Code = Untouched;
  std::string Error{};  // number and description
};

inline Outcome Value(double value, int code = Untouched) { return {value, code}; }
inline Outcome Domain(int code = Untouched) { return {1000, code}; }
inline Outcome Error(const std::string& error) { return {0, Untouched, error}; }
const Outcome Argument = Error("5 Argumento inválido.");
const Outcome Overflow = Error("6 Excesso de capacidade.");
const Outcome ByZero = Error("11 Divisão por zero.");
const Outcome Unbalanced = Error("1100 Número de parênteses incorrecto.");
const Outcome Invalid = Error("1103 Expressão inválida");

inline Outcome OutcomeOf(clsEquation& equation) {
  Module1::CodigoDominio = Untouched;
  try {
    equation.Solve();
    return {equation.Solution(), Module1::CodigoDominio};
  } catch (const ErroInterpretador& error) {
    EXPECT_EQ(error.Source(), "Interpretador");
    return Error(std::to_string(error.Number()) + ' ' + error.Description());
  }
}

// Evaluates a text twice: if the first evaluation is a walk, the second one runs its programme.
inline void Check(const Outcome& expected, double x, const std::string& text,
                  clsEquation& equation) {
  if (equation.Equation() != text) {
    equation.Equation(text);
  }
  equation.Var("x", x);
  for (const char* which : {"first", "second"}) {
    SCOPED_TRACE("\"" + text + "\", x = " + std::to_string(x) + ", " + which);
    const Outcome outcome = OutcomeOf(equation);
    EXPECT_EQ(outcome.Error, expected.Error);
    EXPECT_DOUBLE_EQ(outcome.Value, expected.Value);
    EXPECT_EQ(outcome.Code, expected.Code);
    if (!outcome.Error.empty()) {
      EXPECT_THROW(equation.Solution(), ErroInterpretador);
    }
  }
}

// Checks texts that all come to the same, each with a new interpreter and with one that may have a
// programme from another value.
inline void Check(const Outcome& expected, double x, std::initializer_list<std::string> texts) {
  for (const std::string& text : texts) {
    clsEquation fresh;
    Check(expected, x, text, fresh);
    clsEquation used;
    used.Equation(text);
    used.Var("x", 4);
    OutcomeOf(used);
    Check(expected, x, text, used);
  }
}

inline std::string Repeated(const std::string& part, int times) {
  std::string text;
  for (int i = 0; i < times; ++i) {
    text += part;
  }
  return text;
}

}  // namespace clinorama::tests
