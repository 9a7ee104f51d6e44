#include "RuleDocument.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "HexToBinary.h"
#include "Model.h"
#include "OXMIDicAttributeBlock.h"
#include "OXMIDicClass.h"
#include "ZANDicTags.h"

namespace tool {
namespace {

namespace tag = ZANDicFormat::tag;
namespace word = ZANDicFormat::word;

auto OrderOf(const ZanDicPlace& place) { return std::tie(place.line, place.column); }

/// The package of an element, a member or an attribute block; empty for what does not know it.
std::string PackageOf(OXMIDicElementH& object) {
    zandic::Handle<OXMIDicElement> element = zandic::As<OXMIDicElement>(object);
    if (zandic::Kind(object) == OXMDicTYPE_AttributeBlock) {
        const auto block = zandic::As<OXMIDicAttributeBlock>(object);
        if (block)
            element = zandic::As<OXMIDicElement>(zandic::Link(*block, &OXMIDicAttributeBlock::GetClass));
    }
    if (!element) return "";
    const auto name = zandic::Get(*element, &OXMIDicElement::GetPackageName);
    return name ? std::string(name->View()) : "";
}

std::string_view CodeOf(ZanDicDiagnosticCode code) { return ZanDicDiagnosticName(code); }

}  // namespace

ZELVBTXMLNode FindPackageTag(const ZELVBTXMLDocument& document) {
    const ZELVBTXMLNode root = document.Root();
    if (root.getTag() == tag::kPackage) return root;
    for (const ZELVBTXMLNode child : root.Children()) {
        if (child.getTag() == tag::kPackage) return child;
    }
    return {};
}

std::string_view NameAttribute(const ZELVBTXMLNode& node) {
    return node.getAttributeValue(word::kName).value_or(std::string_view());
}

std::string_view BeforeDot(std::string_view item) { return item.substr(0, item.find('.')); }

std::string_view StemOf(std::string_view file) {
    const std::size_t slash = file.rfind('/');
    return BeforeDot(slash != std::string_view::npos ? file.substr(slash + 1) : file);
}

std::string Quoted(std::string_view text) { return std::string("\"").append(text).append("\""); }

RuleDocument::RuleDocument(const CheckedDocument& checked, Findings& findings)
    : _Checked(checked), _Findings(findings), _Package(FindPackageTag(checked.places.Document())) {
    if (!_Package) return;
    _PackageName = NameAttribute(_Package);
    if (_PackageName.empty()) _PackageName = StemOf(checked.file);  // as the reader takes it
    _OWNERS.assign(Document().ElementCount(), _Package.Index());
    for (const Finding& fault : checked.faults) {
        if (fault.at.file != checked.file || fault.at.place.line == 0) continue;
        _TOLD.push_back({fault.at.place, fault.severity == ZanDicSeverity::Error, fault.code});
    }
    std::sort(_TOLD.begin(), _TOLD.end(),
              [](const Told& a, const Told& b) { return OrderOf(a.place) < OrderOf(b.place); });
    note_Unloaded();
}

/// Notes the documents of packages that this one names and that are not loaded: what is in them can be named
/// all the same.
void RuleDocument::note_Unloaded() {
    for (const std::string_view list : {word::kUseNames, word::kUseScopes}) {
        ForEachItem(_Package.getAttributeValue(list).value_or(""), [this](std::string_view item) {
            const std::string_view name = BeforeDot(item);
            if (name == _PackageName || _Checked.dictionary.Package(name)) return;
            const std::string_view file = _Checked.documents.FileOf(name);
            if (file.empty() || file == _Checked.file) return;
            if (const DocumentPlaces* const places = _Checked.documents.Read(file); places != nullptr) {
                _UNLOADED.emplace_back(&*_PACKAGES.emplace(name).first, places);
            }
        });
    }
}

// Who owns what.

std::string RuleDocument::Name(const ZELVBTXMLNode& node) const {
    if (node.Index() == _Package.Index()) return _PackageName;
    std::vector<std::string_view> names;
    for (ZELVBTXMLNode each = node; each.Index() != _Package.Index(); each = Owner(each)) {
        // A block may be without a name, and what is at fault too.
        if (const std::string_view own = NameAttribute(each); !own.empty()) names.push_back(own);
    }
    std::string name;
    for (auto each = names.rbegin(); each != names.rend(); ++each) {
        if (each != names.rbegin()) name += kNameSeparator;
        name += *each;
    }
    return name;
}

std::string RuleDocument::QualifiedName(const ZELVBTXMLNode& node) const {
    if (node.Index() == _Package.Index()) return _PackageName;
    return std::string(_PackageName).append(kNameSeparator).append(Name(node));
}

// What the reader says of it.

template <class Accept>
bool RuleDocument::is_Told(ZanDicPlace place, Accept accept) const {
    auto told = std::lower_bound(_TOLD.begin(), _TOLD.end(), place, [](const Told& each, ZanDicPlace key) {
        return OrderOf(each.place) < OrderOf(key);
    });
    for (; told != _TOLD.end() && OrderOf(told->place) == OrderOf(place); ++told) {
        if (accept(*told)) return true;
    }
    return false;
}

bool RuleDocument::IsTold(const ZELVBTXMLAttribute& attribute) const {
    return !_TOLD.empty() && is_Told(PlaceOf(attribute), [](const Told&) { return true; });
}

bool RuleDocument::is_LeftOut(const ZELVBTXMLNode& node) const {
    const ZELVBTXMLAttribute uuid = node.getAttribute(word::kUuid);
    const ZELVBTXMLAttribute name = node.getAttribute(word::kName);
    const auto isError = [](const Told& told) { return told.isError; };
    if (is_Told(PlaceOf(node), [&](const Told& told) {
            using enum ZanDicDiagnosticCode;
            const bool lacksIdentity = !uuid || !name || name.Value().empty();
            return told.isError && (lacksIdentity || told.code != CodeOf(MissingAttribute));
        })) {
        return true;
    }
    return (uuid && is_Told(PlaceOf(uuid), isError)) || (name && is_Told(PlaceOf(name), isError));
}

bool RuleDocument::IsLeftOut(const ZELVBTXMLNode& node) const {
    if (_TOLD.empty()) return false;
    for (ZELVBTXMLNode each = node; each.Index() != _Package.Index(); each = Owner(each)) {
        if (is_LeftOut(each)) return true;
    }
    return false;
}

// What references mean.

Party RuleDocument::Find(std::string_view uuidText) { return Find(UuidFromText(uuidText)); }

Party RuleDocument::Find(const ZELDbBinary& uuid) {
    if (const ZELVBTXMLNode node = _Checked.places.Find(uuid)) return {uuid, node, {}, nullptr, nullptr};
    const auto known = _ELSEWHERE.find(uuid);
    if (known != _ELSEWHERE.end()) return known->second;
    return _ELSEWHERE.emplace(uuid, find_Elsewhere(uuid)).first->second;
}

Party RuleDocument::find_Elsewhere(const ZELDbBinary& uuid) {
    Party party{uuid, {}, _Checked.dictionary.Search(uuid), nullptr, nullptr};
    if (party.object) {
        party.package = &*_PACKAGES.insert(PackageOf(*party.object)).first;
        return party;
    }
    for (const auto& [package, places] : _UNLOADED) {
        if (const ZELVBTXMLNode node = places->Find(uuid)) return {uuid, node, {}, package, places};
    }
    return {};
}

std::string RuleDocument::NameOf(const Party& party) const {
    if (party.node) return std::string(NameAttribute(party.node));
    return party.object ? std::string(zandic::Name(*party.object).View()) : std::string();
}

std::string RuleDocument::QualifiedNameOf(const Party& party) const {
    if (party.IsHere()) return QualifiedName(party.node);
    if (party.object) return tool::QualifiedName(*party.object);
    return std::string(*party.package).append(kNameSeparator).append(NameAttribute(party.node));
}

std::string_view RuleDocument::TagOf(const Party& party) const {
    if (party.node) return party.node.getTag();
    return party.object ? tool::TagOf(*party.object) : std::string_view();
}

// Findings.

Finding* RuleDocument::add(std::string_view code, const ZELVBTXMLNode& node, ZanDicPlace place,
                           std::string text) {
    if (IsLeftOut(node)) return nullptr;
    Finding finding;
    finding.code = code;
    finding.at = {_Checked.file, place};
    finding.text = std::move(text);
    finding.element = QualifiedName(node);
    return &_Findings.emplace_back(std::move(finding));
}

Finding* RuleDocument::Tell(std::string_view code, const ZELVBTXMLNode& node, std::string text) {
    return add(code, node, PlaceOf(node), std::move(text));
}

Finding* RuleDocument::Tell(std::string_view code, const ZELVBTXMLNode& node,
                            const ZELVBTXMLAttribute& attribute, std::string text) {
    return add(code, node, PlaceOf(attribute), std::move(text));
}

void RuleDocument::Note(Finding* finding, const Party& party, std::string text) const {
    if (finding == nullptr || !party) return;
    FilePlace at;
    if (party.IsHere()) {
        at = {_Checked.file, PlaceOf(party.node)};
    } else if (party.places != nullptr) {
        at = {party.places->Document().FileName(), PlaceOf(party.node)};
    } else {
        at = _Checked.documents.PlaceOf(*party.package, party.uuid);
    }
    finding->notes.push_back({std::move(at), std::move(text)});
}

void RuleDocument::Note(Finding* finding, const ZELVBTXMLNode& node, std::string text) const {
    if (finding == nullptr) return;
    finding->notes.push_back({{_Checked.file, PlaceOf(node)}, std::move(text)});
}

void RuleDocument::Note(Finding* finding, const ZELVBTXMLAttribute& attribute, std::string text) const {
    if (finding == nullptr) return;
    finding->notes.push_back({{_Checked.file, PlaceOf(attribute)}, std::move(text)});
}

}  // namespace tool
