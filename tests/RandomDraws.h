/// What random models are drawn with: numbers, hostile texts, single properties.
#ifndef RANDOM_DRAWS_H
#define RANDOM_DRAWS_H

#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "RandomModel.h"
#include "ZELUnicodeString.h"

class RandomDraws {
protected:
    /// \param choice lives as long as this. \param drawn the one loss that may be drawn.
    RandomDraws(const Choice& choice, std::optional<Loss> drawn) : _Choice(choice), _Drawn(drawn) {}

    /// \returns a number from 0 to \p count - 1.
    int Draw(int count) { return _Choice(count); }
    bool Chance(int oneOf) { return Draw(oneOf) == 0; }
    /// Whether the model is to have a loss here.
    bool Lose(Loss loss) { return _Drawn == loss && Chance(2); }

    /// What XML treats specially, blanks and other characters, now and then 100 kB: all legal in a document.
    std::string HostileText() {
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
        if (Chance(400)) return " " + kHuge + " ";
        std::string text;
        for (int count = Draw(6); count > 0; --count) text += pieces[Draw(std::size(pieces))];
        if (Lose(Loss::ForbiddenCharacter)) text += Chance(2) ? "\x01" : "\x80";
        return text;
    }
    ZELUnicodeString HostileUnicode() { return ZELUnicodeString(HostileText()); }

    /// Free attributes, where the kind that is written under \p tagName keeps them.
    template <class Interface>
    void Free(std::string_view tagName, Interface& element) {
        if (!IsSaved(tagName, kFreeProperty)) return;
        const char* const names[] = {"Owner", "x:y", "\xc3\xa9t\xc3\xa9", "_a", "Z.1", "NAME"};
        for (int count = Draw(3); count > 0; --count) {
            element.SetOtherAttribute(ZELUnicodeString(names[Draw(std::size(names))]), HostileUnicode());
        }
        if (Lose(Loss::FreeName)) element.SetOtherAttribute(Chance(2) ? "Uuid" : "no name", "x");
    }

    // One property each, by its setter; or not, so that it stays as it was.

    template <class Interface, class Base>
    void Text(Interface& element, HRESULT (Base::*setter)(const ZELUnicodeString*)) {
        if (Chance(2)) return;
        const ZELUnicodeString text = HostileUnicode();
        (element.*setter)(&text);
    }
    template <class Interface, class Base>
    void Flag(Interface& element, HRESULT (Base::*setter)(unsigned char)) {
        if (Chance(2)) (element.*setter)(static_cast<unsigned char>(Draw(2)));
    }
    /// A number from \p lowest to \p highest.
    template <class Word, class Interface, class Base>
    void Code(Interface& element, HRESULT (Base::*setter)(Word), int highest, int lowest = 1) {
        if (Chance(2)) (element.*setter)(static_cast<Word>(lowest + Draw(highest - lowest + 1)));
    }
    template <class Interface, class Base>
    void Number(Interface& element, HRESULT (Base::*setter)(int)) {
        const int numbers[] = {-2147483647 - 1, -1, 0, 1, 2, 250, 2147483647};
        if (Chance(2)) (element.*setter)(numbers[Draw(std::size(numbers))]);
    }

private:
    const Choice& _Choice;
    std::optional<Loss> _Drawn;
};

#endif
