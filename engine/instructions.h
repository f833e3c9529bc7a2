#pragma once

#include "engine/walk.h"

namespace clinorama::engine {

struct Instruction;

// Carries an instruction out, and then those that follow it. Gives the one that ended them: the
// first that calculates nothing, or whose divisor is too small, or whose guard failed.
using Routine = const Instruction* (*)(const Instruction* here);

// A step made ready: it knows where its operands lie and what carries it out. Instructions stand in
// a row, and every routine ends with a jump into the next one's, which takes less time than coming
// back to a loop that looks at codes. (Where a compiler makes calls of these jumps, as one that
// does not optimise may, the stack has to hold them: an expression has at most 32767 tokens.)
struct Instruction {
  Routine routine = nullptr;
  Step step{};
  double* target = nullptr;
  const double* left = nullptr;
  const double* right = nullptr;
};

// What carries out a step of that kind.
Routine RoutineOf(Op op);

}  // namespace clinorama::engine
