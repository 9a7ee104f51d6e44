#include "RulePackages.h"

#include <fmt/format.h>

#include "RuleCodes.h"

namespace tool {
namespace {

namespace word = ZANDicFormat::word;

}  // namespace

/// The tuning document as it was read, else the one beside the package's document.
std::string PackageRules::tuning_File() const {
    const std::string_view tuning = FindCode(ZANDicFormat::kContentWords, OXMDicCONTENT_tuning)->word;
    const std::string name = std::string(_Document.PackageName()).append(".").append(tuning);
    const CheckedDocument& checked = _Document.Checked();
    if (const std::string_view known = checked.documents.FileOf(name); !known.empty()) {
        return std::string(known);
    }
    const std::size_t slash = checked.file.rfind('/');
    return slash == std::string::npos ? name : checked.file.substr(0, slash + 1) + name;
}

void PackageRules::read_Names() {
    for (const std::string_view list : {word::kUseNames, word::kUseScopes}) {
        const ZELVBTXMLAttribute attribute = _Document.Package().getAttribute(list);
        if (!attribute) continue;
        const bool isScope = list == word::kUseScopes;
        std::set<std::string_view> known;
        std::set<std::string_view> told;
        ForEachItem(attribute.Value(), [&](std::string_view item) {
            if (known.insert(item).second) {
                _NAMES.push_back({item, attribute, isScope});
                _NAMED.insert(BeforeDot(item));
            } else if (told.insert(item).second) {
                _Document.Tell(rule::kRepeatedReference, _Document.Package(), attribute,
                               fmt::format("{} of {} names {} more than once", list,
                                           Quoted(_Document.PackageName()), Quoted(item)));
            }
        });
    }
}

void PackageRules::Refer(const RuleElement& element) {
    for (const RuleTarget& target : element.targets) {
        const Party& party = target.party;
        if (party.IsHere() || party.package->empty() || _MET.contains(party.package)) continue;
        use(*party.package);
        if (!is_Named(*party.package)) {
            if (_Document.IsTold(target.attribute)) continue;
            Finding* const finding =
                _Document.Tell(rule::kUnnamedPackage, element.node, target.attribute,
                               fmt::format("package {} is used, but neither UseNames nor UseScopes names it",
                                           Quoted(*party.package)));
            if (finding == nullptr) continue;
            _Document.Note(
                finding, party,
                fmt::format("{} {} is here", _Document.TagOf(party), _Document.QualifiedNameOf(party)));
        }
        _MET.insert(party.package);
    }
}

void PackageRules::Finish() {
    bool knowsTuning = false;
    for (const Named& named : _NAMES) {
        if (named.isScope) continue;
        if (!knowsTuning && is_Unused(named)) {
            use_Tuning();
            knowsTuning = true;
        }
        const std::string_view name = BeforeDot(named.item);
        if (is_Self(name)) {
            _Document.Tell(
                rule::kUnusedPackage, _Document.Package(), named.attribute,
                fmt::format("package {} names itself in UseNames", Quoted(_Document.PackageName())));
        } else if (is_Unused(named)) {
            _Document.Tell(rule::kUnusedPackage, _Document.Package(), named.attribute,
                           fmt::format("package {} of UseNames is not used", Quoted(name)));
        }
    }
}

/// Blocks may be for classes, and extend blocks, of packages that nothing else refers to.
void PackageRules::use_Tuning() {
    const DocumentPlaces* const tuning = _Document.Checked().documents.Read(tuning_File());
    if (tuning == nullptr) return;
    const ZELVBTXMLDocument& document = tuning->Document();
    for (std::uint32_t index = 0; index < document.AttributeCount(); ++index) {
        const ZELVBTXMLAttribute attribute = document.AttributeAt(index);
        const std::string_view name = attribute.Name();
        if (name != word::kExtents && name != word::kAttributeUuids && name != word::kUuid) continue;
        ForEachItem(attribute.Value(), [this](std::string_view item) {
            const Party party = _Document.Find(item);
            if (party && !party.IsHere()) use(*party.package);
        });
    }
}

bool PackageRules::is_Self(std::string_view name) const {
    return name == _Document.PackageName() || name == StemOf(_Document.Checked().file);
}

/// Of a package that is not there nobody knows what is in it.
bool PackageRules::is_Unused(const Named& named) const {
    const std::string_view name = BeforeDot(named.item);
    const CheckedDocument& checked = _Document.Checked();
    if (!checked.dictionary.Package(name) && checked.documents.FileOf(name).empty()) return false;
    return !_USED.contains(name);
}

/// A package is named as its document names it, or as its file is called.
bool PackageRules::is_Named(const std::string& package) const {
    return _NAMED.contains(package) || _NAMED.contains(StemOf(_Document.Checked().documents.FileOf(package)));
}

void PackageRules::use(const std::string& package) {
    _USED.insert(package);
    _USED.emplace(StemOf(_Document.Checked().documents.FileOf(package)));
}

}  // namespace tool
