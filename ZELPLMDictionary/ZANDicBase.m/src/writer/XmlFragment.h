/// Markup that is known when the program is compiled: beginnings of attributes, and attributes whose value is
/// one of few words. Written as blocks of fixed size, without a look at the single pieces.
#ifndef XML_FRAGMENT_H
#define XML_FRAGMENT_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "ZANDicWords.h"

/// Some text, filled up to whole blocks of 16 bytes.
template <std::size_t capacity>
struct XmlFragment {
    char text[capacity] = {};
    std::size_t size = 0;  ///< bytes that count

    constexpr XmlFragment& Add(std::string_view piece) {
        for (const char byte : piece) text[size++] = byte;
        return *this;
    }
};

namespace fragment {

constexpr std::size_t WholeBlocks(std::size_t size) { return (size + 15) / 16 * 16; }

constexpr std::string_view kBegin = " ";
constexpr std::string_view kEquals = "=\"";
constexpr std::string_view kEnd = "\"";

template <const std::string_view& word>
constexpr auto MakeBegin() {
    XmlFragment<WholeBlocks(word.size() + 3)> begin;
    begin.Add(kBegin).Add(word).Add(kEquals);
    return begin;
}

/// Codes are small numbers from 0 on.
inline constexpr int kMostCodes = 8;

template <const std::string_view& word, const auto& Words>
constexpr auto MakeWords() {
    constexpr std::size_t longest = [] {
        std::size_t length = 0;
        for (const auto& row : Words) length = std::max(length, row.word.size());
        return length;
    }();
    std::array<XmlFragment<WholeBlocks(word.size() + longest + 4)>, kMostCodes> all{};
    for (const auto& row : Words) {
        all[static_cast<std::size_t>(row.code)].Add(kBegin).Add(word).Add(kEquals).Add(row.word).Add(kEnd);
    }
    return all;
}

template <const std::string_view& word>
constexpr auto MakeFlags() {
    std::array<XmlFragment<WholeBlocks(word.size() + 7)>, 2> both{};
    both[0].Add(kBegin).Add(word).Add(kEquals).Add(ZANDicFormat::value::kNo).Add(kEnd);
    both[1].Add(kBegin).Add(word).Add(kEquals).Add(ZANDicFormat::value::kYes).Add(kEnd);
    return both;
}

}  // namespace fragment

/// The attribute of that name up to its value.
template <const std::string_view& word>
inline constexpr auto kAttributeBegin = fragment::MakeBegin<word>();

/// The whole attribute for each code of a table of words; empty for a code without word.
template <const std::string_view& word, const auto& Words>
inline constexpr auto kAttributeOfCode = fragment::MakeWords<word, Words>();

/// The whole attribute, "No" and "Yes".
template <const std::string_view& word>
inline constexpr auto kAttributeOfFlag = fragment::MakeFlags<word>();

#endif
