#pragma once

#include <string_view>

namespace clinorama::engine {

// What reading a text as a number gives: a value, or the number of a failure.
struct NumeralReading {
  double Value;
  int FailureNumber;  // 0 if the text is a numeral
};

// Reads digits with at most one comma, which may stand first or last. The value is rounded
// correctly in every locale. A value that is too large is an `Overflow`, any other text a
// `TypeMismatch`.
NumeralReading ReadNumeral(std::string_view text);

}  // namespace clinorama::engine
