#pragma once

#include <string_view>

namespace clinorama::engine {

// What a cell that holds a text gives when it is read as a number: a value, or the number of the
// failure that reading it is.
struct NumeralReading {
  double value;
  int failure;  // 0 if the text is a numeral
};

// Reads digits with at most one comma, which may stand first or last. The value is the correctly
// rounded one whatever the locale; one that is too large is an overflow, any other text a type
// mismatch.
NumeralReading ReadNumeral(std::string_view text);

}  // namespace clinorama::engine
