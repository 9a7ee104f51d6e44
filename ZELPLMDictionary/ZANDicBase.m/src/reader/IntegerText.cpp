#include "IntegerText.h"

#include <charconv>
#include <limits>

IntegerText ReadInteger(std::string_view text) {
    using enum IntegerText::Verdict;

    const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
    if (start == std::string_view::npos) return {0, NoDigits};
    text.remove_prefix(start);
    // from_chars knows the minus only, and takes it only in front of a digit.
    const bool isNegative = text.front() == '-';
    if (text.front() == '+') {
        text.remove_prefix(1);
        if (text.starts_with('-')) return {0, NoDigits};
    }

    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::invalid_argument) return {0, NoDigits};
    if (error == std::errc::result_out_of_range) {
        return {isNegative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max(), Clamped};
    }
    return {value, end == text.data() + text.size() ? Proper : TextBehind};
}
