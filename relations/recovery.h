#pragma once

#include "base/failure.h"

namespace clinorama::relations {

// How an operation of the page takes a statement that fails.
enum class Convention {
  // The failure leaves the operation, which ends there with a message box.
  ReportAndStop,
  // The statement has no effect, and the next one runs.
  Ignore,
  // As Ignore, and the point in hand is no longer valid.
  SkipSilently,
};

// Runs the statements and the tests of one press of a button under a convention.
//
// The rule of the two that go on: the next statement runs, in the order of the operation, and the
// statement after a test is the first one of its branch. So a test that fails in itself counts as
// passed. A variable that a failing statement was to set keeps its value.
class Recovery {
 public:
  explicit Recovery(Convention convention) : convention_(convention) {}

  // Whether the statement came to its end.
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

  // A pass has come to its end, so the next one begins with a valid point.
  void EndPass() { pontoValido_ = true; }

  // Whether the point in hand may be plotted. Only silent skipping ever says no: after a failure,
  // and until a first pass has come to its end, as that pass has no neighbour yet.
  bool PontoValido() const { return convention_ != Convention::SkipSilently || pontoValido_; }

 private:
  Convention convention_;
  bool pontoValido_ = false;
};

}  // namespace clinorama::relations
