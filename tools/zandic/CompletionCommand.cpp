#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "Command.h"
#include "Scripts.h"

namespace tool {
namespace {

struct Script {
    std::string_view word;
    std::string (*make)();
};
constexpr Script kScripts[] = {{"bash", BashCompletion}, {"zsh", ZshCompletion}, {"man", ManualPage}};

}  // namespace

void RunCompletion(Session& session, const Options& options, Output& output) {
    const auto* const found = std::find_if(std::begin(kScripts), std::end(kScripts), [&](const Script& each) {
        return each.word == options.names.front();
    });
    if (found == std::end(kScripts)) {
        return session.RejectUse(
            "", fmt::format("there is nothing for '{}', only for bash, zsh and man", options.names.front()));
    }
    output.Write(found->make());
}

}  // namespace tool
