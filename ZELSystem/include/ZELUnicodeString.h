#ifndef ZELUNICODESTRING_H
#define ZELUNICODESTRING_H

#include <string_view>
#include <utility>

#include "ZELString.h"
#include "ZELText.h"

/// Text of a document, UTF-8, that may also be null: not there at all, which is not the same as empty.
///
/// One word. A copy shares the text, as with ZELString, and the two share with each other. Neither null nor
/// empty needs memory. Length counts characters; the count is worked out once per shared text.
/// What makes new text throws std::bad_alloc or std::length_error, as with ZELString.
/// One thread.
class ZELSYSTEM_API ZELUnicodeString {
public:
    /// Null.
    ZELUnicodeString() noexcept = default;

    /// \param text closed by a zero; a null pointer gives null, "" gives empty.
    ZELUnicodeString(const char* text)
        : _Text(text != nullptr ? make_Text(std::string_view(text)) : nullptr) {}

    /// Never null.
    explicit ZELUnicodeString(std::string_view text) : _Text(make_Text(text)) {}

    /// Shares the text of \p text; never null.
    explicit ZELUnicodeString(const ZELString& text) noexcept
        : _Text(text._Text != nullptr ? text._Text->AddRef() : ZELText::CreateEmpty()) {}

    ZELUnicodeString(const ZELUnicodeString& other) noexcept
        : _Text(other._Text != nullptr ? other._Text->AddRef() : nullptr) {}
    ZELUnicodeString(ZELUnicodeString&& other) noexcept : _Text(std::exchange(other._Text, nullptr)) {}

    ZELUnicodeString& operator=(const ZELUnicodeString& other) noexcept {
        ZELUnicodeString(other).Swap(*this);
        return *this;
    }
    ZELUnicodeString& operator=(ZELUnicodeString&& other) noexcept {
        ZELUnicodeString(std::move(other)).Swap(*this);
        return *this;
    }

    ~ZELUnicodeString() {
        if (_Text != nullptr) _Text->Release();
    }

    void Swap(ZELUnicodeString& other) noexcept { std::swap(_Text, other._Text); }
    void SetNull() noexcept { ZELUnicodeString().Swap(*this); }

    bool IsNull() const noexcept { return _Text == nullptr; }

    /// \returns whether there is no character: null or empty.
    bool IsEmpty() const noexcept { return _Text == nullptr || _Text->Length() == 0; }

    /// \returns the number of characters, not of bytes; 0 for null.
    int Length() const noexcept { return _Text != nullptr ? static_cast<int>(_Text->CharacterCount()) : 0; }

    /// \returns the text, empty for null; valid while a string shares it.
    std::string_view View() const noexcept {
        return _Text != nullptr ? _Text->View() : std::string_view("", 0);
    }

    /// \returns the text, closed by a zero; never null, valid while a string shares it.
    const char* ConvertToChar() const noexcept { return _Text != nullptr ? _Text->Characters() : ""; }

    /// \returns the same text as a narrow string, shared; null becomes empty.
    ZELString ToZELString() const noexcept { return IsEmpty() ? ZELString() : ZELString(_Text->AddRef()); }

    /// \returns the text without the blanks (character 32 only) at both ends; null stays null.
    ///          Shares the text when there is nothing to strip.
    ZELUnicodeString Stripped() const;

    /// \returns the order of the two texts by their bytes, null before empty: negative, 0 or positive.
    int Compare(const ZELUnicodeString& other) const noexcept {
        if (_Text == nullptr || other._Text == nullptr) return (_Text != nullptr) - (other._Text != nullptr);
        return _Text == other._Text ? 0 : ZELCompareText(View(), other.View());
    }

    /// Null equals null only.
    friend bool operator==(const ZELUnicodeString& a, const ZELUnicodeString& b) noexcept {
        return a.Compare(b) == 0;
    }
    friend bool operator<(const ZELUnicodeString& a, const ZELUnicodeString& b) noexcept {
        return a.Compare(b) < 0;
    }

private:
    static ZELText* make_Text(std::string_view text) {
        return text.empty() ? ZELText::CreateEmpty() : ZELText::Create(text);
    }

    ZELText* _Text = nullptr;  ///< one reference held; null when the string is
};

#endif
