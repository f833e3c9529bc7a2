#include "base/number_text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

#include "base/failure.h"

namespace clinorama::base {

std::string NumberText(double value) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out.precision(std::numeric_limits<double>::digits10);
  // Adding 0 turns a negative zero into 0, so no "-0" is shown.
  out << std::uppercase << value + 0.0;
  std::string text = out.str();
  std::replace(text.begin(), text.end(), '.', ',');
  return text;
}

std::string PrintedNumber(double value) {
  std::string text;
  if (value >= 0) {
    text += ' ';
  }
  text += NumberText(value);
  text += ' ';
  return text;
}

std::string TwoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

double Round(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  const double scaled = value * scale;
  // From here on a real has no decimals, and the scaled value may be an infinity.
  constexpr double LastWithDecimals = 4503599627370496.0;  // 2^52
  if (!(std::abs(scaled) < LastWithDecimals)) {
    return value;
  }
  return std::nearbyint(scaled) / scale;
}

double NumberFrom(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) {
    Raise(TypeMismatch);
  }
  std::string digits(text.substr(first, text.find_last_not_of(' ') - first + 1));
  // The stream below would read a point as the decimal mark, and also words like "inf".
  if (digits.find_first_not_of("0123456789,+-eE") != std::string::npos) {
    Raise(TypeMismatch);
  }
  std::replace(digits.begin(), digits.end(), ',', '.');

  std::istringstream in(digits);
  in.imbue(std::locale::classic());
  double value = 0;
  in >> value;
  // Too large a number is left as the largest real by one standard library, as infinite by another.
  if (in.fail() && std::abs(value) >= std::numeric_limits<double>::max()) {
    Raise(Overflow);
  }
  if (in.fail() || in.peek() != std::istringstream::traits_type::eof()) {
    Raise(TypeMismatch);
  }
  return value;
}

}  // namespace clinorama::base
