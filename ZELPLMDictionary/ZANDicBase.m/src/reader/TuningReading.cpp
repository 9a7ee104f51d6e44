#include "TuningReading.h"

#include <utility>

#include "DocumentFile.h"
#include "HexToBinary.h"
#include "PackageLoad.h"
#include "ReaderTexts.h"
#include "Reading.h"
#include "TuningTexts.h"
#include "WordList.h"
#include "ZANDicValueWords.h"
#include "ZELFatalError.h"
#include "ZanDicImplementation.h"

using namespace ZANDicFormat;
using enum ZanDicDiagnosticCode;

namespace {

ZELDbBinary UuidOfObject(OXMIDicElementH& object) {
    ZELDbBinary uuid;
    object.GetUuid(&uuid);
    return uuid;
}

ZELString NameOfObject(OXMIDicElementH& object) {
    ZELString name;
    object.GetName(&name);
    return name;
}

}  // namespace

TuningReading::TuningReading(OXMIDicMgr& manager, const ZELString& packageName, const char* dirNames,
                             OXMIDicPackage& package, LoadRun* run)
    : _Manager(manager),
      _Name(packageName),
      _DirNames(dirNames),
      _Package(package),
      _Run(run),
      _Faults(run != nullptr ? &run->faults : nullptr) {
    _Place.package = packageName.View();
    _Faults.Enter(_Place);
}

TuningReading::~TuningReading() {
    for (IUnknown* const block : _BLOCKS) block->Release();
}

std::string TuningReading::ElementName(const BlockTag& tag) {
    const std::string_view name = NameOf(tag.node);
    return Joined({tag.owner.name.View(), name.empty() ? "" : "::", name});
}

TuningReading::TagPlace TuningReading::PlaceOf(const BlockTag& tag) {
    return {tag.node.Index(), ElementName(tag)};
}

// Faults.

Fault TuningReading::fault_Of(ZanDicDiagnosticCode code, const ZELVBTXMLNode& node,
                              std::string_view line) const {
    Fault fault{code};
    fault.severity = ZanDicSeverity::Warning;
    fault.asksToGoOn = true;
    fault.node = node;
    fault.element = node ? std::string(NameOf(node)) : _Place.package;
    fault.errorLines.emplace_back(line);
    return fault;
}

int TuningReading::cause_OfLeftOut(const ZELDbBinary& uuid) const {
    return _Run != nullptr ? _Run->leftOut.CauseOf(uuid) : 0;
}

HRESULT TuningReading::report_Missing(const ZELVBTXMLNode& node, std::string_view attributeName,
                                      std::string_view text) {
    Fault fault = fault_Of(MissingAttribute, node, Joined({text, _Name.View()}));
    fault.attributeName = attributeName;
    return _Faults.Report(fault);
}

HRESULT TuningReading::report_Missing(const BlockTag& tag, std::string_view attributeName,
                                      std::string_view text) {
    Fault fault = fault_Of(MissingAttribute, tag.node, Joined({text, tag.owner.name.View()}));
    fault.element = ElementName(tag);
    fault.attributeName = attributeName;
    return _Faults.Report(fault);
}

HRESULT TuningReading::report_Block(const BlockTag& tag, std::string_view line, std::string reason) {
    Fault fault = fault_Of(InvalidBlock, tag.node, line);
    fault.element = ElementName(tag);
    fault.attribute = tag.uuid;
    fault.detail = std::move(reason);
    return _Faults.Report(fault);
}

/// The computation knows objects; the tags that they came from tell the place.
void TuningReading::OnBlockFault(const ZanDicBlockFault& blockFault) {
    auto tag = _PLACES.find(blockFault.block);
    if (tag == _PLACES.end()) tag = _PLACES.find(blockFault.owner);
    const bool isHere = tag != _PLACES.end();
    Fault fault =
        fault_Of(InvalidBlock, isHere ? _Document->ElementAt(tag->second.node) : ZELVBTXMLNode(), {});
    fault.element = isHere ? tag->second.element : blockFault.ownerName;
    fault.errorLines = blockFault.lines;
    fault.detail = blockFault.reason;
    _Faults.Report(fault);
}

// The document.

HRESULT TuningReading::Read() {
    const CodeWord* const tuning = FindCode(kContentWords, OXMDicCONTENT_tuning);
    _Place.file = FindDocument(_DirNames, _Name, ZELString(tuning->word));
    if (_Place.file.empty()) return _Result = S_FALSE;
    _Result = S_OK;
    if (!parse_Document()) return _Result;

    const ZELVBTXMLNode node = FindPackageNode(*_Document);
    if (!node) {
        return _Result = _Faults.Report(fault_Of(NoPackageTag, _Document->Root(),
                                                 Joined({tuningtext::kNoPackageTag, _Name.View()})));
    }
    if (!goes_On(check_Package(node), _Result)) return _Result;
    for (const ZELVBTXMLNode child : node.Children()) {
        if (!goes_On(read_Child(child), _Result)) break;
    }
    return _Result;
}

bool TuningReading::parse_Document() {
    ZELVBTXMLError error;
    _Document = ZELVBTXMLDocument::CreateFromFile(_Place.file.c_str(), &error);
    if (_Document != nullptr) return true;
    Fault fault = fault_Of(DocumentNotReadable, {}, Joined({tuningtext::kParserReturnedNull, _Name.View()}));
    fault.detail = error.reason;
    fault.place = {error.line, error.column};
    _Result = _Faults.Report(fault);
    return false;
}

HRESULT TuningReading::check_Package(const ZELVBTXMLNode& node) {
    HRESULT result = S_OK;
    if (const ZELVBTXMLAttribute uuid = node.getAttribute(word::kUuid); !uuid) {
        if (!goes_On(report_Missing(node, word::kUuid, tuningtext::kNoPackageUuid), result)) return result;
    } else if (UuidFromText(uuid.Value()) != UuidOfObject(_Package)) {
        Fault fault = fault_Of(InvalidValue, node, Joined({tuningtext::kWrongPackageUuid, _Name.View()}));
        fault.attribute = uuid;
        if (!goes_On(_Faults.Report(fault), result)) return result;
    }
    if (NameOf(node).empty()) {
        goes_On(report_Missing(node, word::kName, tuningtext::kNoPackageName), result);
    } else if (NameOf(node) != _Name.View()) {
        Fault fault = fault_Of(InvalidValue, node, Joined({tuningtext::kWrongPackageName, _Name.View()}));
        fault.attribute = node.getAttribute(word::kName);
        goes_On(_Faults.Report(fault), result);
    }
    return result;
}

// Classes.

HRESULT TuningReading::read_Child(const ZELVBTXMLNode& node) {
    const std::string_view tagName = node.getTag();
    if (tagName == tag::kComment) return S_OK;
    if (tagName != tag::kClass && tagName != tag::kExtension) {
        return _Faults.Report(fault_Of(UnsupportedTag, node, Joined({tuningtext::kUnsupportedTag, tagName})));
    }
    Owner owner;
    HRESULT result = S_OK;
    if (!goes_On(find_Owner(node, owner), result) || !owner.face) return result;
    goes_On(read_Blocks(node, owner), result);
    return result;
}

HRESULT TuningReading::find_Owner(const ZELVBTXMLNode& node, Owner& owner) {
    const ZELVBTXMLAttribute text = node.getAttribute(word::kUuid);
    if (!text) return report_Missing(node, word::kUuid, tuningtext::kNoElementUuid);

    const ZELDbBinary uuid = UuidFromText(text.Value());
    ZanDicRef<OXMIDicElementH> object;
    if (Failed(_Manager.Search(&uuid, object.Out())) || !object) {
        Fault fault =
            fault_Of(ReferenceNotFound, node,
                     Joined({tuningtext::kElement, text.Value(), tuningtext::kNotFound, _Name.View()}));
        fault.attribute = text;
        fault.detail = text.Value();
        if (const int cause = cause_OfLeftOut(uuid); cause != 0) {
            return _Faults.ReportConsequence(std::move(fault), cause);
        }
        return _Faults.Report(fault);
    }
    OXMDicTYPE type = OXMDicTYPE_UNDEFINED;
    object->GetType(&type);
    if (type != OXMDicTYPE_Class && type != OXMDicTYPE_Extension) {
        Fault fault =
            fault_Of(ReferenceOfWrongKind, node,
                     Joined({tuningtext::kElement, text.Value(), tuningtext::kNotSupported, _Name.View()}));
        fault.attribute = text;
        SetOther(fault, *object);
        fault.detail = "class or extension";
        return _Faults.Report(fault);
    }
    if (Failed(object->QueryInterface(IID_OXMIDicClass, owner.face.OutVoid()))) {
        ZELFatalError(tuningtext::kClassAssertion, tuningtext::kSource, 2);
    }
    owner.name = NameOfObject(*object);
    _PLACES.emplace(uuid, TagPlace{node.Index(), std::string(owner.name.View())});
    if (NameOf(node).empty()) return report_Missing(node, word::kName, tuningtext::kNoElementName);
    if (NameOf(node) == owner.name.View()) return S_OK;
    Fault fault = fault_Of(InvalidValue, node, Joined({tuningtext::kWrongElementName, _Name.View()}));
    fault.attribute = node.getAttribute(word::kName);
    return _Faults.Report(fault);
}

HRESULT TuningReading::read_Blocks(const ZELVBTXMLNode& node, const Owner& owner) {
    HRESULT result = S_OK;
    for (const ZELVBTXMLNode child : node.Children()) {
        if (!goes_On(read_Block(child, owner), result)) break;
    }
    return result;
}

// Blocks.

HRESULT TuningReading::read_Block(const ZELVBTXMLNode& node, const Owner& owner) {
    const std::string_view tagName = node.getTag();
    if (tagName == tag::kComment) return S_OK;
    const bool isExtension = tagName == tag::kAttributeBlockExtension;
    if (!isExtension && tagName != tag::kAttributeBlock) {
        return _Faults.Report(fault_Of(UnsupportedTag, node, Joined({tuningtext::kUnsupportedTag, tagName})));
    }
    HRESULT result = S_OK;
    BlockTag block{node, owner, node.getAttribute(word::kUuid)};
    if (!block.uuid && !goes_On(report_Missing(block, word::kUuid, tuningtext::kNoBlockUuid), result)) {
        return result;
    }
    block.name = NameOf(node);
    if (block.name.empty() && !isExtension &&
        !goes_On(report_Missing(block, word::kName, tuningtext::kNoBlockName), result)) {
        return result;
    }
    if (!goes_On(read_Attributes(block), result)) return result;
    if (isExtension) {
        block.extents = node.getAttribute(word::kExtents);
        if (!block.extents || block.extents.Value().empty()) {
            const HRESULT rc = report_Missing(block, word::kExtents, tuningtext::kNoExtents);
            if (!goes_On(rc, result)) return result;
        }
    }
    return Failed(result) ? result : make_Block(block);
}

HRESULT TuningReading::read_Attributes(BlockTag& block) {
    const std::string_view className = block.owner.name.View();
    const ZELVBTXMLAttribute list = block.node.getAttribute(word::kAttributeUuids);
    if (!list) {
        return report_Missing(block, word::kAttributeUuids, tuningtext::kNoAttributeUuids);
    }
    HRESULT result = S_OK;
    WordList items(list.Value());
    for (std::string_view text = items.Next(); !text.empty(); text = items.Next()) {
        const ZELDbBinary uuid = UuidFromText(text);
        ZanDicRef<OXMIDicElementH> object;
        ZanDicRef<OXMIDicAttribute> attribute;
        const bool isThere = Succeeded(_Manager.Search(&uuid, object.Out())) && object;
        if (isThere && Succeeded(object->QueryInterface(IID_OXMIDicAttribute, attribute.OutVoid()))) {
            block.attributes.push_back(std::move(attribute));
            continue;
        }
        Fault fault = fault_Of(isThere ? ReferenceOfWrongKind : ReferenceNotFound, block.node,
                               Joined({tuningtext::kNoAttribute, text, tuningtext::kIn, className}));
        fault.attribute = list;
        fault.detail = isThere ? std::string_view("attribute") : text;
        if (isThere) SetOther(fault, *object);
        const int cause = isThere ? 0 : cause_OfLeftOut(uuid);
        const HRESULT rc =
            cause != 0 ? _Faults.ReportConsequence(std::move(fault), cause) : _Faults.Report(fault);
        if (!goes_On(rc, result)) break;
    }
    return result;
}

HRESULT TuningReading::make_Block(const BlockTag& tag) {
    ZanDicRef<OXMIDicAttributeBlock> block;
    if (const HRESULT rc = get_Block(tag, tag.uuid, block); Failed(rc)) return rc;
    if (!ZanDicBeginDescription(*block)) {
        return report_Block(tag, tuningtext::kSecondValuation, "the block is described a second time");
    }
    _PLACES.insert_or_assign(UuidFromText(tag.uuid.Value()), PlaceOf(tag));
    HRESULT result = S_OK;
    if (tag.extents && !goes_On(set_Father(tag, *block), result)) return result;
    for (const ZanDicRef<OXMIDicAttribute>& attribute : tag.attributes) {
        const AddResult added = add_Attribute(tag, *attribute, *block);
        if (added == AddResult::Added) continue;
        result = E_FAIL;
        if (added == AddResult::Refused && _Faults.IsStopped()) return result;
    }
    if (!tag.name.empty()) {
        const ZELString name(tag.name);
        block->SetName(&name);
    }
    block->SetClass(tag.owner.face.Get());
    _BLOCKS.Append(block.Get());
    block.Detach();
    return result;
}

/// A block is made when it is first mentioned, by the package whose document mentions it.
HRESULT TuningReading::get_Block(const BlockTag& tag, const ZELVBTXMLAttribute& uuidText,
                                 ZanDicRef<OXMIDicAttributeBlock>& block) {
    const ZELDbBinary uuid = UuidFromText(uuidText.Value());
    ZanDicRef<OXMIDicElementH> object;
    if (Failed(_Manager.Search(&uuid, object.Out())) || !object) {
        if (Succeeded(_Package.CreateAttributeBlock(&uuid, block.Out())) && block) return S_OK;
        return report_Block(tag, Joined({tuningtext::kNotMade, UuidText(uuid)}),
                            "the block could not be made");
    }
    if (Succeeded(object->QueryInterface(IID_OXMIDicAttributeBlock, block.OutVoid()))) return S_OK;
    Fault fault = fault_Of(ReferenceOfWrongKind, tag.node,
                           Joined({tuningtext::kError, UuidText(uuid), tuningtext::kWrongType}));
    fault.attribute = uuidText;
    SetOther(fault, *object);
    fault.detail = "attribute block";
    return _Faults.Report(fault);
}

HRESULT TuningReading::set_Father(const BlockTag& tag, OXMIDicAttributeBlock& block) {
    ZanDicRef<OXMIDicAttributeBlock> father;
    if (const HRESULT rc = get_Block(tag, tag.extents, father); Failed(rc)) return rc;
    // One that is never described is told where it is mentioned first.
    _PLACES.try_emplace(UuidFromText(tag.extents.Value()), PlaceOf(tag));
    if (Succeeded(block.SetFather(father.Get()))) return S_OK;
    return report_Block(tag, Joined({tuningtext::kCyclicExtents, UuidText(UuidOfObject(block))}),
                        "the block would extend itself");
}

TuningReading::AddResult TuningReading::add_Attribute(const BlockTag& tag, OXMIDicAttribute& attribute,
                                                      OXMIDicAttributeBlock& block) {
    ZanDicRef<OXMIDicClass> origin;
    if (attribute.GetOrigin(origin.Out()) != S_OK || !origin) {
        report_Block(tag, tuningtext::kAttributeWithoutClass, "an attribute belongs to no class");
        return AddResult::Refused;
    }
    const std::string uuid = UuidText(UuidOfObject(attribute));
    const std::string_view className = tag.owner.name.View();
    AddResult result = AddResult::Added;
    if (ImplementationOf(origin.Get()) != ImplementationOf(tag.owner.face.Get())) {
        // Deliberate: at fault, and added all the same (OxmDicFromXMLTuningTest.AForeignAttributeIsAdded).
        report_Block(tag,
                     Joined({tuningtext::kAttribute, uuid, tuningtext::kNotAnAttribute,
                             tuningtext::kDeclaredOnClass, className}),
                     Joined({QualifiedName(attribute), " is no attribute of class ", className}));
        result = AddResult::AddedForeign;
    }
    if (Succeeded(block.AddAttribute(&attribute))) return result;
    report_Block(tag,
                 Joined({tuningtext::kAttribute, uuid, tuningtext::kDeclaredOnClass, className,
                         tuningtext::kAddedTwice}),
                 Joined({QualifiedName(attribute), " is in the block already"}));
    return AddResult::Refused;
}

// The computation.

void TuningReading::Compute(std::span<TuningReading* const> tunings) {
    std::vector<TuningReading*> read;
    std::vector<ZanDicTuningMember> members;
    for (TuningReading* const tuning : tunings) {
        if (tuning->_Result != S_OK) continue;
        read.push_back(tuning);
        members.push_back({tuning->_Package, tuning->_BLOCKS, tuning});
    }
    ZanDicComputeTunings(members);
    for (std::size_t index = 0; index < read.size(); ++index) read[index]->_Result = members[index].result;
}
