#pragma once

#include <gtest/gtest.h>

#include <string>

#include "base/Module1.h"
#include "engine/clsEquation.h"

namespace clinorama::tests {

// A code that no operation sets: where it is still there afterwards, nothing was written.
constexpr int Untouched = 99;

// What comes of a `Solve`: a value, a point outside the domain, or an error.
struct Outcome {
  double value = 0;  // what `Solution` gives
  int code = Untouched;
  int error = 0;
  std::string description;
};

inline Outcome Value(double value, int code = Untouched) { return {value, code, 0, ""}; }
inline Outcome Domain(int code = Untouched) { return {1000.0, code, 0, ""}; }
inline Outcome Error(int number, std::string description, int code = Untouched) {
  return {0, code, number, std::move(description)};
}
inline Outcome Invalid() { return Error(1103, "Expressão inválida"); }

// A row of a table: the text is evaluated for that `x`.
struct Case {
  std::string text;
  double x;
  Outcome expected;
};

inline Outcome OutcomeOf(clsEquation& equation) {
  Module1::CodigoDominio = Untouched;
  Outcome outcome;
  try {
    equation.Solve();
    outcome.value = equation.Solution();
  } catch (const ErroInterpretador& error) {
    EXPECT_EQ(error.Source(), "Interpretador");
    outcome.error = error.Number();
    outcome.description = error.Description();
  }
  outcome.code = Module1::CodigoDominio;
  return outcome;
}

// The first evaluation is a walk, and the second the programme that it left, if it did.
inline void Check(const Case& row, clsEquation& equation) {
  equation.Var("x", row.x);
  for (const char* which : {"first", "second"}) {
    SCOPED_TRACE("\"" + row.text + "\", x = " + std::to_string(row.x) + ", " + which);
    const Outcome outcome = OutcomeOf(equation);
    EXPECT_EQ(outcome.error, row.expected.error);
    EXPECT_EQ(outcome.description, row.expected.description);
    EXPECT_DOUBLE_EQ(outcome.value, row.expected.value);
    if (row.expected.error == 0) {
      EXPECT_EQ(outcome.code, row.expected.code);
    }
  }
}

inline void Check(const Case& row) {
  clsEquation equation;
  equation.Equation(row.text);
  Check(row, equation);
}

}  // namespace clinorama::tests
