// Text to number and back, the same in every locale.
#pragma once

#include <string>
#include <string_view>

namespace kwopde {

/// Returns the leading decimal integer of `text`: blanks skipped, an optional sign, digits up to
/// the first other character. No digits give 0; a number beyond the type's range gives the range's
/// end.
int leadingInteger(std::string_view text);

/// Returns the leading decimal number of `text`, read the same way, with an optional fraction after
/// a point and an optional exponent. Overflow gives the largest finite number, underflow 0.
double leadingDouble(std::string_view text);

/// Returns the number that `text` begins with as atof reads it in the C locale: hexadecimal and
/// exponents, infinity and not-a-number by name, and infinity for overflow. 0 when it begins with
/// none.
double atofInCLocale(const char *text);

/// `number` cut toward zero to an int; beyond the int's range its end, and 0 for not-a-number.
int truncatedInteger(double number);

/// `number` cut toward zero to hundredths, through the int that a hundred times it truncates to; so
/// 1.789 gives 1.78, and 1.15, whose hundredfold is a hair below 115, gives 1.14.
double cutToHundredths(double number);

/// Returns the shortest decimal text that `leadingDouble` reads back as the same number: "1.14",
/// "35".
std::string shortestText(double number);

}  // namespace kwopde
