#pragma once

namespace clinorama::base {

// Calls `body` with a counter that begins at `start`, grows by `step` after each call and stops
// when it has passed `end`; with a negative step it falls. The counter is a running sum and is
// never computed from the number of the call, so rounding decides which call is the last: from -12
// to 12 by 0.0005 there are 48,000 calls and not 48,001. Every curve is sampled by this loop.
template <class Body>
void CountedLoop(double start, double end, double step, Body body) {
  for (double counter = start; step >= 0 ? counter <= end : counter >= end; counter += step) {
    body(counter);
  }
}

}  // namespace clinorama::base
