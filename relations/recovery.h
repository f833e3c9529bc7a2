#pragma once

#include "base/failure.h"

namespace clinorama::relations {

// What an operation does when a statement fails.
enum class Convention {
  // The operation ends with a message box.
  ReportAndStop,
  // The statement has no effect, and the next one runs.
  Ignore,
  // As Ignore, and the point of the present pass is not plotted.
  SkipSilently,
};

// Runs the statements and the tests of one press of a button under a convention.
//
// Ignore and SkipSilently go on with the next statement. After a test that is the first statement
// of its branch, so a test whose evaluation fails counts as passed. A variable that a failing
// statement was to set keeps its value.
class Recovery {
 public:
  explicit Recovery(Convention convention) : convention_(convention) {}

  // Returns whether the statement reached its end.
  template <class Body>
  bool Statement(Body&& body) {
    bool done = false;
    const auto run = [&] {
      body();
      done = true;
    };
    switch (convention_) {
      case Convention::ReportAndStop:
        run();
        break;
      case Convention::Ignore:
        base::Ignorar(run);
        break;
      case Convention::SkipSilently:
        base::Ignorar(run);
        if (!done) {
          pontoValido_ = false;
        }
        break;
    }
    return done;
  }

  template <class Condition>
  bool Test(Condition&& condition) {
    bool passed = true;
    Statement([&] { passed = condition(); });
    return passed;
  }

  // Ends a pass: the point of the next one is valid until a statement fails.
  void EndPass() { pontoValido_ = true; }

  // Whether the point of the present pass may be plotted. Only SkipSilently ever refuses one: after
  // a failure in the pass, and in the whole first pass, which has no valid neighbour.
  bool PontoValido() const { return convention_ != Convention::SkipSilently || pontoValido_; }

 private:
  Convention convention_;
  bool pontoValido_ = false;
};

}  // namespace clinorama::relations
