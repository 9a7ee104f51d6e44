#ifndef ZANDIC_TOOL_GLOB_H
#define ZANDIC_TOOL_GLOB_H

#include <string>
#include <string_view>

namespace tool {

/// A pattern for names: "*" is any text, "?" one character, "[a-z]" one of some, "[!a-z]" one of all others,
/// and a backslash takes the character behind it as it is. The case of letters does not count: of Latin,
/// Greek and Cyrillic ones, the same in every locale.
class Glob {
public:
    explicit Glob(std::string_view pattern);

    /// \returns whether all of \p text fits. Linear in the text for each "*".
    bool Matches(std::string_view text) const;

    /// \returns whether \p text has a character that means more than itself.
    static bool IsPattern(std::string_view text) { return text.find_first_of("*?[") != text.npos; }

private:
    bool MatchesOne(std::size_t& at, char32_t letter) const;

    std::u32string _Pattern;  ///< without the difference of cases
};

}  // namespace tool

#endif
