#ifndef ZANDIC_TOOL_OUTPUT_H
#define ZANDIC_TOOL_OUTPUT_H

#include <optional>
#include <string>
#include <string_view>

namespace tool {

/// Standard output, which carries the tool's data and nothing else, or a text in memory in its place:
/// gathered in a buffer, passed on in large pieces. After a write that fails everything else is dropped, and
/// the reason is kept.
class Output {
public:
    Output() { _Buffer.reserve(kCapacity + kCapacity / 4); }

    /// Appends to \p text, which outlives this; it is complete after a Flush.
    explicit Output(std::string& text) : _Text(&text) {}
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

    std::string* _Text = nullptr;  ///< null: standard output
    std::string _Buffer;
    std::optional<std::string> _Fault;
};

}  // namespace tool

#endif
