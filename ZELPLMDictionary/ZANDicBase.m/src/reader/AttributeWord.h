/// Rows that say what is done with an attribute of a tag, and how the row of a name is found.
#ifndef ATTRIBUTE_WORD_H
#define ATTRIBUTE_WORD_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// Finds the row of a name among rows that have a `name`, by one hash and one comparison. The hash has
/// no two names of the rows in one place, which is settled when the table is compiled.
template <class Row, std::size_t N>
class WordIndex {
public:
    consteval explicit WordIndex(const Row (&rows)[N]) : _Rows(rows) {
        while (!fill_Places()) _Seed = _Seed * 1664525U + 2U;
    }

    /// \returns the row of \p name, or null. Names of tags and attributes are never empty.
    constexpr const Row* Find(std::string_view name) const {
        const std::uint8_t index = _Places[place_Of(name)];
        return index != kNone && _Rows[index].name == name ? &_Rows[index] : nullptr;
    }

    /// \returns the place of \p row among the rows.
    constexpr std::size_t IndexOf(const Row& row) const { return static_cast<std::size_t>(&row - _Rows); }

private:
    static constexpr unsigned kBits = 7;
    static constexpr std::uint8_t kNone = 0xFF;
    static_assert(N < kNone);

    constexpr std::size_t place_Of(std::string_view name) const {
        const auto byte = [name](std::size_t index) {
            return static_cast<std::uint32_t>(static_cast<unsigned char>(name[index]));
        };
        const std::uint32_t key = byte(0) | byte(name.size() - 1) << 8U | byte(name.size() / 2) << 16U |
                                  static_cast<std::uint32_t>(name.size()) << 24U;
        return static_cast<std::uint32_t>(key * _Seed) >> (32U - kBits);
    }

    consteval bool fill_Places() {
        _Places.fill(kNone);
        for (std::size_t index = 0; index < N; ++index) {
            std::uint8_t& place = _Places[place_Of(_Rows[index].name)];
            if (place != kNone) return false;
            place = static_cast<std::uint8_t>(index);
        }
        return true;
    }

    const Row* _Rows;
    std::uint32_t _Seed = 0x9E3779B1U;  ///< odd, so that no bit of a key is lost
    std::array<std::uint8_t, std::size_t{1} << kBits> _Places{};
};

#endif
