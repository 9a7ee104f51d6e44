#ifndef ZELTEXT_H
#define ZELTEXT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "ZELExport.h"

/// Counted text that strings share: what ZELString and ZELUnicodeString point to.
///
/// Never changed once made; the characters follow, and zeros to the end of a word, one at least. The hash key
/// is worked out when first asked for and kept. Counts are not atomic: one thread.
class ZELSYSTEM_API ZELText {
public:
    /// Makes a block for \p text with a count of 1, the caller's. Throws std::bad_alloc or std::length_error.
    /// \param hashKey that of the text where the caller knows it, else 0.
    static ZELText* Create(std::string_view text, std::uint32_t hashKey = 0) {
        ZELText* const made = Create(text, std::string_view());
        made->_HashKey = hashKey;
        return made;
    }

    /// Same for \p head followed by \p tail.
    static ZELText* Create(std::string_view head, std::string_view tail);

    /// \returns the block of the empty text, with one reference more; it is not allocated and never freed.
    static ZELText* CreateEmpty() noexcept;

    ZELText* AddRef() noexcept {
        ++_Count;
        return this;
    }
    void Release() noexcept {
        if (--_Count == 0) free_Itself();
    }

    const char* Characters() const noexcept { return reinterpret_cast<const char*>(this + 1); }
    std::uint32_t Length() const noexcept { return _Length; }
    std::string_view View() const noexcept { return {Characters(), _Length}; }

    /// \returns whether both texts are the same, byte by byte.
    bool Equals(const ZELText& other) const noexcept {
        if (_Length != other._Length) return false;
        const char* const a = Characters();
        const char* const b = other.Characters();
        if (!same_Word<std::uint32_t>(a, b)) return false;
        // Whole words to the end of the block, whose rest is zero.
        for (std::size_t at = sizeof(std::uint32_t); at <= _Length; at += sizeof(std::uint64_t)) {
            if (!same_Word<std::uint64_t>(a + at, b + at)) return false;
        }
        return true;
    }

    /// \returns the hash key of the text.
    std::uint32_t HashKey() const noexcept { return _HashKey != 0 ? _HashKey : compute_HashKey(); }

    /// \returns how many characters the text has, taken as UTF-8.
    std::uint32_t CharacterCount() const noexcept;

private:
    friend struct ZELEmptyText;

    constexpr explicit ZELText(std::uint32_t length) noexcept : _Length(length) {}

    template <class Word>
    static bool same_Word(const char* a, const char* b) noexcept {
        Word first;
        Word second;
        std::memcpy(&first, a, sizeof first);
        std::memcpy(&second, b, sizeof second);
        return first == second;
    }

    std::uint32_t compute_HashKey() const noexcept;
    void free_Itself() noexcept;

    std::uint32_t _Count = 1;
    std::uint32_t _Length;               ///< bytes, without the closing zero
    mutable std::uint32_t _HashKey = 0;  ///< 0 until asked for
};

/// \returns the order of two texts by their bytes: negative, 0 or positive.
inline int ZELCompareText(std::string_view a, std::string_view b) noexcept { return a.compare(b); }

#endif
