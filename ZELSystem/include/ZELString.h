#ifndef ZELSTRING_H
#define ZELSTRING_H

#include <cstdint>
#include <string_view>
#include <utility>

#include "ZELText.h"

/// Narrow text, UTF-8: a name, a path, a word.
///
/// One word. A copy shares the text: a pointer and a count. The empty string needs no memory, and there
/// is no null string beside it. The hash key is worked out once per shared text.
/// What makes new text (constructors, Append) throws std::bad_alloc when memory is short, or
/// std::length_error above 2^31-1 bytes, and then leaves the string as it was.
/// One thread.
class ZELSYSTEM_API ZELString {
public:
    ZELString() noexcept = default;

    /// \param text closed by a zero; null gives the empty string.
    ZELString(const char* text) : ZELString(text != nullptr ? std::string_view(text) : std::string_view()) {}

    explicit ZELString(std::string_view text) : ZELString(text, 0) {}

    /// \param hashKey that of ZELHashText where the caller knows it, else 0.
    ZELString(std::string_view text, std::uint32_t hashKey)
        : _Text(text.empty() ? nullptr : ZELText::Create(text, hashKey)) {}

    ZELString(const ZELString& other) noexcept
        : _Text(other._Text != nullptr ? other._Text->AddRef() : nullptr) {}
    ZELString(ZELString&& other) noexcept : _Text(std::exchange(other._Text, nullptr)) {}

    ZELString& operator=(const ZELString& other) noexcept {
        ZELString(other).Swap(*this);
        return *this;
    }
    ZELString& operator=(ZELString&& other) noexcept {
        ZELString(std::move(other)).Swap(*this);
        return *this;
    }

    ~ZELString() {
        if (_Text != nullptr) _Text->Release();
    }

    void Swap(ZELString& other) noexcept { std::swap(_Text, other._Text); }

    /// \returns the text; valid while a string shares it.
    std::string_view View() const noexcept {
        return _Text != nullptr ? _Text->View() : std::string_view("", 0);
    }

    /// \returns the text, closed by a zero; never null, valid while a string shares it.
    const char* ConvertToChar() const noexcept { return _Text != nullptr ? _Text->Characters() : ""; }

    /// \returns the number of bytes.
    int Length() const noexcept { return _Text != nullptr ? static_cast<int>(_Text->Length()) : 0; }
    bool IsEmpty() const noexcept { return _Text == nullptr; }

    /// \returns the hash key of the whole text: that of ZELHashText.
    std::uint32_t ComputeHashKey() const noexcept {
        return _Text != nullptr ? _Text->HashKey() : empty_Key();
    }

    /// \returns the order of the two texts by their bytes: negative, 0 when equal, or positive.
    int Compare(const ZELString& other) const noexcept {
        return _Text == other._Text ? 0 : ZELCompareText(View(), other.View());
    }

    /// Adds \p text at the end; it may be part of this string. Other strings keep what they have.
    /// Costs a copy of the whole.
    ZELString& Append(std::string_view text) {
        if (!text.empty()) *this = ZELString(ZELText::Create(View(), text));
        return *this;
    }
    ZELString& Append(const ZELString& text) { return Append(text.View()); }
    ZELString& Append(const char* text) { return text != nullptr ? Append(std::string_view(text)) : *this; }

    friend bool operator==(const ZELString& a, const ZELString& b) noexcept {
        if (a._Text == b._Text) return true;
        return a._Text != nullptr && b._Text != nullptr && a._Text->Equals(*b._Text);
    }
    friend bool operator<(const ZELString& a, const ZELString& b) noexcept { return a.Compare(b) < 0; }

private:
    friend class ZELUnicodeString;

    /// Takes over the reference to \p text.
    explicit ZELString(ZELText* text) noexcept : _Text(text) {}

    static std::uint32_t empty_Key() noexcept;

    ZELText* _Text = nullptr;  ///< one reference held; null when empty
};

#endif
