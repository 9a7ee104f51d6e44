/// Decimal numbers in attributes.
#ifndef INTEGER_TEXT_H
#define INTEGER_TEXT_H

#include <string_view>

/// What a text gave.
struct IntegerText {
    enum class Verdict { Proper, TextBehind, Clamped, NoDigits };

    int value;  ///< 0 without digits; the nearest number that fits when clamped
    Verdict verdict;
};

/// Reads a number: leading white space and a sign are allowed, text after the digits is left over.
IntegerText ReadInteger(std::string_view text);

#endif
