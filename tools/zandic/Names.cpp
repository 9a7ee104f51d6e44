#include "Names.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <system_error>

#include "Model.h"
#include "ZANDicValueWords.h"
#include "ZELEnvironment.h"
#include "ZELVBTXMLNode.h"
#include "zandic.hpp"

namespace tool {
namespace {

constexpr std::string_view kTuning = ZANDicFormat::kContentWords[OXMDicCONTENT_tuning].word;
constexpr std::size_t kShortestUuidMistake = 20;  // digits; a name may well be a short number

bool EndsInContentWord(std::string_view name, std::string_view content) {
    return name.size() > content.size() && name.ends_with(content) &&
           name[name.size() - content.size() - 1] == '.';
}

/// \returns what stands before the first separator; \p rest becomes what stands behind it, if there is one.
std::string_view TakePart(std::optional<std::string_view>& rest) {
    const std::string_view text = *rest;
    const std::size_t end = text.find(kNameSeparator);
    rest = end == text.npos ? std::nullopt : std::optional(text.substr(end + kNameSeparator.size()));
    return text.substr(0, end);
}

bool IsMeantForUuid(std::string_view text) {
    const auto digits = std::count_if(text.begin(), text.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    });
    const auto dashes = std::count(text.begin(), text.end(), '-');
    return static_cast<std::size_t>(digits) >= kShortestUuidMistake &&
           static_cast<std::size_t>(digits + dashes) == text.size();
}

/// Whether \p test holds for a content word of packages: all but that of tuning documents.
template <class Test>
bool OfAnyContent(const Test& test) {
    return std::any_of(std::begin(ZANDicFormat::kContentWords), std::end(ZANDicFormat::kContentWords),
                       [&](const auto& row) { return row.word != kTuning && test(row.word); });
}

bool HasDocument(std::string_view path, std::string_view name) {
    return OfAnyContent([&](std::string_view content) {
        return ZELFindPath(path, std::string(name).append(".").append(content)).has_value();
    });
}

void AddDocumentsOf(const std::string& directory, std::set<std::string>& names) {
    std::error_code fault;  // a directory that cannot be read holds nothing, as for a search
    for (std::filesystem::directory_iterator entry(directory, fault), end; !fault && entry != end;
         entry.increment(fault)) {
        const std::string name = entry->path().filename().string();
        std::error_code none;
        const bool isPackage =
            OfAnyContent([&](std::string_view content) { return EndsInContentWord(name, content); });
        if (isPackage && entry->is_regular_file(none)) names.insert(name);
    }
}

}  // namespace

Target ParseTarget(std::string_view text) {
    Target target{std::string(text), zandic::ParseUuid(text), {}, {}, {}};
    if (target.uuid) return target;
    std::optional<std::string_view> rest = text;
    target.package = TakePart(rest);
    if (rest) target.element = TakePart(rest);
    if (rest) target.member = *rest;
    return target;
}

std::optional<std::string> WrongPackageName(std::string_view name) {
    if (name.empty()) return "a NAME must not be empty";
    if (EndsInContentWord(name, kTuning)) {
        return "a tuning document is read with its package, not by itself: give the package's name";
    }
    if (name.find(kNameSeparator) != name.npos)
        return "only packages can be loaded: give the name before '::'";
    return std::nullopt;
}

std::optional<std::string> WrongTarget(const Target& target, std::string_view path) {
    if (target.uuid) return std::nullopt;
    if (target.text.ends_with(kNameSeparator) || target.text.starts_with(kNameSeparator) ||
        (!target.member.empty() && target.element.empty())) {
        return "a name is missing beside '::'";
    }
    if (IsMeantForUuid(target.text) && !HasDocument(path, target.text)) {
        return "this is no UUID, which has 32 digits, grouped 8-4-4-16 or not at all";
    }
    return WrongPackageName(target.package);
}

std::optional<std::string> DocumentOfPackage(const ZELDbBinary& uuid, std::string_view path) {
    for (std::string& name : DocumentsOf(path)) {
        const auto file = ZELFindPath(path, name);
        const auto document = file ? ZELVBTXMLDocument::CreateFromFile(file->c_str(), nullptr) : nullptr;
        if (!document) continue;
        const auto own = document->Root().getAttributeValue(ZANDicFormat::word::kUuid);
        if (own && zandic::ParseUuid(*own) == uuid) return std::move(name);
    }
    return std::nullopt;
}

std::vector<std::string> DocumentsOf(std::string_view path) {
    std::set<std::string> names;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find(':'), path.size());
        if (end > 0) AddDocumentsOf(std::string(path.substr(0, end)), names);
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return {names.begin(), names.end()};
}

}  // namespace tool
