#pragma once

#include "base/failure.h"

namespace clinorama::tests {

// The number of the failure that a statement raises, 0 where it raises none.
template <class Statement>
int FailureOf(Statement statement) {
  try {
    statement();
  } catch (const base::Failure& failure) {
    return failure.Number();
  }
  return 0;
}

}  // namespace clinorama::tests
