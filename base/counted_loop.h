#pragma once

namespace clinorama::base {

// A loop on a real counter: it starts at `start`, adds `step` after each pass and runs while the
// counter has not passed `end`. The counter accumulates and is never computed from the number of
// the pass, so rounding decides which pass is the last: from -12 to 12 by 0.0005 there are 48,000
// passes and not 48,001. All curves are sampled by it.
template <class Body>
void CountedLoop(double start, double end, double step, Body body) {
  for (double counter = start; step >= 0 ? counter <= end : counter >= end; counter += step) {
    body(counter);
  }
}

}  // namespace clinorama::base
