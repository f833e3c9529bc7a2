#pragma once

#include <string>
#include <string_view>

namespace clinorama::base {

// Numbers as the user sees and writes them: the decimal mark is the comma on every machine, so
// nothing here asks the C locale.

// The shortest decimal text of a number with up to 15 digits: "0,5", "-2", "1E+20".
std::string NumberText(double value);

// A number as a surface prints it: its text with a blank in the place of the sign when it is not
// negative, and a blank behind it.
std::string PrintedNumber(double value);

// A number from 0 to 99 with two digits, as names of pictures have it: "07".
std::string TwoDigits(int number);

// The value rounded to a number of decimals, ties to the even neighbour.
double Round(double value, int decimals);

// The number that a text says, blanks around it allowed; any other text is failure 13, a number
// too large for a 64-bit real failure 6.
double NumberFrom(std::string_view text);

}  // namespace clinorama::base
