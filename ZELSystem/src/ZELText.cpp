#include "ZELText.h"

#include <climits>
#include <cstring>
#include <new>
#include <stdexcept>

#include "ZELHash.h"
#include "ZELPool.h"

/// The empty text: its own reference keeps the count above 0 for ever.
struct ZELEmptyText {
    ZELText block{0};
    char zeros[4] = {};
};

namespace {

constinit ZELEmptyText emptyText;

constexpr std::size_t kWord = sizeof(std::uint64_t);

/// \returns the bytes of a block: whole words, of which Equals compares the last one too.
std::size_t BlockSize(std::size_t length) noexcept {
    return (sizeof(ZELText) + length + kWord) / kWord * kWord;
}

}  // namespace

ZELText* ZELText::Create(std::string_view head, std::string_view tail) {
    const std::size_t length = head.size() + tail.size();
    if (length > INT_MAX) throw std::length_error("text of more than 2147483647 bytes");
    const std::size_t size = BlockSize(length);
    void* const block = ZELPoolAllocate(size);
    std::memset(static_cast<char*>(block) + size - kWord, 0, kWord);
    ZELText* const text = ::new (block) ZELText(static_cast<std::uint32_t>(length));
    char* const characters = static_cast<char*>(block) + sizeof(ZELText);
    if (!head.empty()) std::memcpy(characters, head.data(), head.size());
    if (!tail.empty()) std::memcpy(characters + head.size(), tail.data(), tail.size());
    return text;
}

ZELText* ZELText::CreateEmpty() noexcept { return emptyText.block.AddRef(); }

std::uint32_t ZELText::compute_HashKey() const noexcept { return _HashKey = ZELHashText(View()); }

std::uint32_t ZELText::CharacterCount() const noexcept {
    // Bytes that go on with a character (10xxxxxx) do not begin one.
    std::uint32_t count = 0;
    for (const char byte : View()) count += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    return count;
}

void ZELText::free_Itself() noexcept { ZELPoolFree(this, BlockSize(_Length)); }
