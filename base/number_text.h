#pragma once

#include <string>
#include <string_view>

namespace clinorama::base {

// Numbers as the user sees and writes them. The decimal mark is the comma on every machine, so the
// locale of the C library is not used.

// The shortest decimal text of a number with up to 15 digits: "0,5", "-2", "1E+20".
std::string NumberText(double value);

// A number as a surface prints it: its text and a blank; a number that is not negative has a blank
// in front too, where the sign would be.
std::string PrintedNumber(double value);

// A number from 0 to 99 with two digits, as in the names of pictures: "07".
std::string TwoDigits(int number);

// The value rounded to a number of decimals, ties to the even neighbour.
double Round(double value, int decimals);

// Reads a number, which may have blanks around it. A number that is too large for a 64-bit real is
// an `Overflow`, any other text a `TypeMismatch`.
double NumberFrom(std::string_view text);

}  // namespace clinorama::base
