#include "engine/numeral.h"

#include <cstdlib>
#include <limits>
#include <string>

#include "base/failure.h"

namespace clinorama::engine {

using namespace base;

NumeralReading ReadNumeral(std::string_view text) {
  std::string digits;
  bool comma = false;
  std::size_t decimals = 0;
  for (const char c : text) {
    if (c >= '0' && c <= '9') {
      digits += c;
      decimals += comma ? 1 : 0;
    } else if (c == ',' && !comma) {
      comma = true;
    } else {
      return {0, TypeMismatch};
    }
  }
  if (digits.empty()) {
    return {0, TypeMismatch};
  }
  // `strtod` takes the decimal mark from the locale. A whole number with a negative power of ten
  // has no mark, so it is read the same in every locale, and it is rounded only once.
  const std::string plain = digits + "e-" + std::to_string(decimals);
  const double value = std::strtod(plain.c_str(), nullptr);
  if (value > std::numeric_limits<double>::max()) {
    return {0, Overflow};
  }
  return {value, 0};
}

}  // namespace clinorama::engine
