#ifndef ZANDIC_TOOL_OUTPUT_H
#define ZANDIC_TOOL_OUTPUT_H

#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// Standard output, which carries the tool's data and nothing else: gathered in a buffer, written in large
/// pieces. After a write that fails everything else is dropped, and the reason is kept.
class Output {
public:
    Output() { _Buffer.reserve(kCapacity + kCapacity / 4); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void Write(std::string_view text) {
        _Buffer.append(text);
        if (_Buffer.size() >= kCapacity) Flush();
    }

    /// Writes out what is gathered.
    void Flush();

    /// \returns why writing failed, or none.
    const std::optional<std::string>& Fault() const { return _Fault; }

private:
    static constexpr std::size_t kCapacity = 1U << 18U;

    std::string _Buffer;
    std::optional<std::string> _Fault;
};

}  // namespace tool

#endif
