/// Texts that writers and readers stumble over.
#ifndef HOSTILE_TEXT_H
#define HOSTILE_TEXT_H

#include <iterator>
#include <string>

/// \returns a text of what XML treats specially, of blanks and other characters, now and then 100 kB of it.
/// All of it is legal in a document. \param choice draws a number from 0 to its argument - 1.
template <class Choice>
std::string DrawHostileText(const Choice& choice) {
    static const std::string kHuge(100'000, '&');
    const char* const pieces[] = {"a",
                                  "Name",
                                  " ",
                                  "  ",
                                  "\"",
                                  "'",
                                  "&",
                                  "<",
                                  ">",
                                  "\t",
                                  "\n",
                                  "\r",
                                  "\r\n",
                                  "&amp;",
                                  "&#10;",
                                  "]]>",
                                  "--",
                                  "<!--",
                                  "<?",
                                  "=",
                                  "%",
                                  "\x7f",
                                  "\xc2\x85",
                                  "\xc3\xa9",
                                  "\xe2\x80\xa8",
                                  "\xe2\x82\xac",
                                  "\xef\xbb\xbf",
                                  "\xf0\x9f\x98\x80",
                                  "0123456789abcdef",
                                  ".",
                                  "/",
                                  "\\",
                                  ":",
                                  ";",
                                  "{",
                                  "\\n"};
    if (choice(400) == 0) return " " + kHuge + " ";
    std::string text;
    for (int count = choice(6); count > 0; --count) text += pieces[choice(std::size(pieces))];
    return text;
}

#endif
