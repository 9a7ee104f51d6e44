#include "Style.h"

#include <unistd.h>

#include "ZELEnvironment.h"

namespace tool {
namespace {

constexpr std::string_view kEnd = "\033[0m";

/// The sequences of the roles, in their order.
constexpr std::string_view kSequences[] = {
    "", "\033[1m", "\033[2m", "\033[36m", "\033[1;31m", "\033[1;33m", "\033[2m",
};

bool WantsColours(int stream) {
    return isatty(stream) != 0 && ZELGetEnv("NO_COLOR").value_or("").empty() &&
           ZELGetEnv("TERM").value_or("") != "dumb";
}

}  // namespace

Style::Style(int stream) : _HasColours(WantsColours(stream)) {}

const Style& Style::Output() {
    static const Style style(STDOUT_FILENO);
    return style;
}

const Style& Style::Errors() {
    static const Style style(STDERR_FILENO);
    return style;
}

std::string Style::Paint(Role role, std::string_view text) const {
    const std::string_view sequence = kSequences[static_cast<std::size_t>(role)];
    if (!_HasColours || sequence.empty() || text.empty()) return std::string(text);
    return std::string(sequence).append(text).append(kEnd);
}

}  // namespace tool
