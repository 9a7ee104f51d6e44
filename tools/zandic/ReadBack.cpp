#include "ReadBack.h"

#include <fmt/format.h>

#include <algorithm>

#include "Normalised.h"
#include "Options.h"
#include "SecondProcess.h"

namespace tool {
namespace {

constexpr std::size_t kLongestShown = 80;

/// \returns the line at \p index without blanks and comma around it, cut short.
std::string LineAt(std::string_view text, std::size_t index) {
    if (index >= text.size()) return "nothing more";
    const std::size_t before = text.rfind('\n', index == 0 ? 0 : index - 1);
    std::size_t begin = before == text.npos ? 0 : before + 1;
    if (text[index] == '\n') begin = std::min(begin, index);
    std::string_view line = text.substr(begin, text.find('\n', index) - begin);
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    if (line.ends_with(',')) line.remove_suffix(1);
    if (line.size() <= kLongestShown) return std::string(line);
    std::size_t end = kLongestShown;
    while ((static_cast<unsigned char>(line[end]) & 0xC0U) == 0x80U) --end;  // characters stay whole
    return std::string(line.substr(0, end)) + "...";
}

/// \returns the name, quoted, that stands last before \p index.
std::string_view NameBefore(std::string_view text, std::size_t index) {
    constexpr std::string_view kName = "\"name\": ";
    const std::size_t found = text.rfind(kName, index);
    if (found == text.npos) return "the packages";
    std::string_view name = text.substr(found + kName.size());
    name = name.substr(0, name.find('\n'));
    if (name.ends_with(',')) name.remove_suffix(1);
    return name;
}

/// \returns the last line of \p text without the name of this tool.
std::string OwnLine(std::string_view text) {
    constexpr std::string_view kTool = "zandic: ";
    while (text.ends_with('\n')) text.remove_suffix(1);
    text.remove_prefix(text.rfind('\n') + 1);
    if (text.starts_with(kTool)) text.remove_prefix(kTool.size());
    return std::string(text);
}

bool IsEnd(int status, bool mayRefuse) {
    return status == static_cast<int>(ExitStatus::Done) ||
           (mayRefuse && status == static_cast<int>(ExitStatus::Refused));
}

}  // namespace

std::string FirstDifference(std::string_view saved, std::string_view readBack) {
    const auto shorter = std::min(saved.size(), readBack.size());
    const auto differs =
        std::mismatch(saved.begin(), saved.begin() + static_cast<std::ptrdiff_t>(shorter), readBack.begin());
    const auto index = static_cast<std::size_t>(differs.first - saved.begin());
    return fmt::format("at {}, {} became {}", NameBefore(saved, index), LineAt(saved, index),
                       LineAt(readBack, index));
}

std::optional<std::string> WrongReadBack(const std::vector<std::string>& names,
                                         const std::vector<std::string>& beside, const std::string& path,
                                         std::string dump, bool mayRefuse) {
    std::vector<std::string> arguments{"--quiet", "--path=" + path, "dump", "--json"};
    for (const std::string& name : beside) arguments.push_back("--in=" + name);
    arguments.push_back("--");
    arguments.insert(arguments.end(), names.begin(), names.end());
    SecondRun run = RunAgain(arguments);
    if (!run.isStarted) return "what was saved could not be read back: " + run.err;
    if (!IsEnd(run.status, mayRefuse)) {
        const std::string why = OwnLine(run.err);
        return "what was saved does not read back: " +
               (why.empty() ? fmt::format("exit status {}", run.status) : why);
    }
    if (run.out == dump) return std::nullopt;
    dump = Normalised(dump);
    run.out = Normalised(run.out);
    if (run.out == dump) return std::nullopt;
    return "what was saved reads back as another model: " + FirstDifference(dump, run.out);
}

}  // namespace tool
