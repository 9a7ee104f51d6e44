#ifndef FUZZ_BYTES_H
#define FUZZ_BYTES_H

#include <cstdint>
#include <string_view>

/// The bytes of an input, taken from its front one choice after the other. Behind the end all are zero.
class FuzzBytes {
public:
    explicit FuzzBytes(std::string_view input) : _Rest(input) {}

    bool IsAtEnd() const { return _Rest.empty(); }

    unsigned char Byte() {
        if (_Rest.empty()) return 0;
        const char byte = _Rest.front();
        _Rest.remove_prefix(1);
        return static_cast<unsigned char>(byte);
    }

    /// Two bytes.
    unsigned Word() {
        const unsigned high = Byte();
        return high << 8 | Byte();
    }

    /// Four bytes as a number.
    std::int32_t Number() {
        const std::uint32_t high = Word();
        return static_cast<std::int32_t>(high << 16 | Word());
    }

    /// \returns 0 to \p bound - 1, from one byte; \p bound is 1 to 256.
    std::size_t Below(std::size_t bound) { return Byte() % bound; }

    /// \returns the next \p length bytes; fewer at the end.
    std::string_view Take(std::size_t length) {
        const std::string_view taken = _Rest.substr(0, length);
        _Rest.remove_prefix(taken.size());
        return taken;
    }

private:
    std::string_view _Rest;
};

#endif
